#include "script/translator.h"

#include "runtime/strings.h"
#include "script/flat_items.h"
#include "script/marks.h"
#include "script/translation.h"

namespace corvane::script {

namespace {

constexpr char kSeparators[] = {' ', ':', lineMark, '\0'};
}  // namespace

std::string TranslateCode(std::string& text, ScriptState& state, ErrorReport& report) {
  std::string source;
  source.swap(text);
  return Translation(state, report).Run(std::move(source));
}

std::string Translation::Run(std::string text) {
  pieces_.emplace_back(std::move(text));
  for (;;) {
    TranslatePiece();
    Piece done = std::move(pieces_.back());
    pieces_.pop_back();
    if (!done.open_comment) done.flat += "::";
    if (pieces_.empty()) return std::move(done.flat);
    EndOneLineIf(done.flat);
  }
}

// Up to its end, or up to a one-line IF in it, whose tail is the innermost piece then.
void Translation::TranslatePiece() {
  while (TranslateNext()) {
  }
}

bool Translation::TranslateNext() {
  UnreadText& unread = pieces_.back().unread;
  unread.CutAnyOf(kSeparators);
  if (state_.stopFlag || unread.Empty()) return false;
  const ScanEnd end = ScanStatement(unread, statement_, state_, report_);
  if (end == ScanEnd::kOpenComment) pieces_.back().open_comment = true;
  if (end == ScanEnd::kStatement && statement_.text.size() >= 2) Rewrite();
  return end == ScanEnd::kStatement || end == ScanEnd::kDropped;
}

void Translation::Rewrite() {
  from_else_if_ = false;
  SetStatement(std::move(statement_.text));
  for (const KeywordRule* rule = kRules; rule->apply != nullptr; ++rule)
    if (runtime::BeginsWith(upper_, rule->start) && (this->*rule->apply)()) return;
  EmitOrdinary();
}

void Translation::EmitOrdinary() {
  if (statement_.text.size() < 3) return;
  const bool bare = statement_.eqPos < 1 && statement_.parenPos == 0 && !statement_.operatorMet;
  if (statement_.text.front() == labelMark) {
    Flat() += statement_.text;
  } else if (bare && !runtime::Holds(kBareWords, upper_)) {
    (Flat() += labelMark) += upper_;
  } else {
    Emit(statement_.eqPos, statement_.parenPos, statement_.text);
  }
}

void Translation::SetStatement(std::string text) {
  statement_.text = std::move(text);
  upper_ = runtime::UCase(statement_.text);
}

void Translation::Emit(long eq, long paren, std::string_view text) {
  AppendStatement(Flat(), eq, paren, text);
}

// The jump as a text of its own is translated: a blank in it comes before any "=", and its program ends in "::".
void Translation::EmitJump(const std::string& jump) {
  Emit(-1, 0, jump + ':');
  Flat() += "::";
}

void Translation::EmitLabel(std::string_view name) {
  AppendLabel(Flat(), name);
}

}  // namespace corvane::script
