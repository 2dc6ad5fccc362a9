#include "script/source_statements.h"

#include <algorithm>

#include "runtime/strings.h"
#include "script/if_statement.h"
#include "script/marks.h"
#include "script/operators.h"
#include "script/prepare_source.h"

namespace corvane::script {

namespace {

constexpr char kSeparators[] = {' ', ':', lineMark, '\0'};

struct Silent : ErrorReport {
  void ReportError(const std::string&) override {}
};

std::string WithoutTexts(const std::string& statement) {
  std::string upper = runtime::UCase(statement);
  const std::vector<bool> quoted = QuotedColumns(statement);
  const size_t literal = statement.find("=[[");
  for (size_t at = 0; at < upper.size(); ++at)
    if (quoted[at] || (literal != std::string::npos && at > literal)) upper[at] = '"';
  return upper;
}

// The length of a one-line IF or ELSEIF up to and with its THEN; 0 for any other statement.
size_t HeadOfIf(const std::string& statement) {
  const std::string upper = runtime::UCase(statement);
  const long skipped = runtime::BeginsWith(upper, "ELSEIF") ? 4 : 0;
  const std::string start = runtime::Mid(upper, skipped + 1, 3);
  const long then_column = ThenColumn(upper);
  if (then_column < skipped + 5 || (start != "IF " && start != "IF(")) return 0;
  const size_t head = static_cast<size_t>(then_column) + 4;
  return statement.size() - head < 2 ? 0 : head;
}

// The first place that stands in none of the comments at the front of [text], and is no blank or line end.
size_t BehindComments(std::string_view text) {
  for (size_t at = 0;;) {
    at = std::min(text.find_first_not_of(kSeparators, at), text.size());
    if (text.substr(at, 2) != "/*") return at;
    at = text.find("*/", at + 1) + 2;
  }
}

class Collecting {
 public:
  explicit Collecting(std::vector<SourceStatement>& all) : all_(all) {}

  // Cleaning leaves every line mark, so those passed by tell the line.
  void Piece(const CodePiece& piece) {
    UnreadText unread(PrepareSource(piece.code + ':', silent_));
    for (;;) {
      const size_t before = marks_;
      CutSeparators(unread);
      if (unread.Empty()) return;
      if (colon_before_ && marks_ == before) all_[last_].more_on_line = true;
      TakeWithTails(unread, piece.lines);
    }
  }

 private:
  void CutSeparators(UnreadText& unread) {
    const std::string_view text = unread.Text();
    const size_t size = std::min(text.find_first_not_of(kSeparators), text.size());
    marks_ += Marks(text.substr(0, size));
    unread.Cut(size);
  }

  void TakeWithTails(UnreadText& unread, const std::vector<long>& lines) {
    const std::string_view text = unread.Text();
    const size_t size = unread.Size(), first = all_.size();
    const bool taken = Take(unread);
    const std::string_view used = text.substr(0, size - unread.Size());
    colon_before_ = taken && used.ends_with(':');
    if (taken) {
      const auto line_at = [&](size_t at) {
        return lines[std::min(marks_ + Marks(used.substr(0, at)), lines.size() - 1)];
      };
      const std::string_view before = used.substr(0, all_.back().statement.start);
      all_.back().line = line_at(before.size());
      const size_t lost = BehindComments(before);
      if (lost < before.size()) all_.back().lost_line = line_at(lost);
      TakeTails();
    }
    marks_ += Marks(used);
    last_ = first;
  }

  // Of a one-line IF the head alone is kept.
  void TakeTails() {
    for (size_t depth = 0; all_.back().is_one_line_if && depth < kDeepestIf; ++depth) {
      std::string& text = all_.back().statement.text;
      const long line = all_.back().line;
      const size_t head = all_.back().upper.size();
      UnreadText tail(text.substr(head));
      text.erase(head);
      tail.CutAnyOf(kSeparators);
      if (tail.Empty() || !Take(tail)) return;
      all_.back().line = line;
    }
  }

  bool Take(UnreadText& unread) {
    SourceStatement source;
    if (ScanStatement(unread, source.statement, scratch_, silent_) != ScanEnd::kStatement) return false;
    source.upper = WithoutTexts(source.statement.text);
    if (const size_t head = HeadOfIf(source.statement.text)) {
      source.is_one_line_if = true;
      source.upper.resize(head);
    }
    all_.push_back(std::move(source));
    return true;
  }

  static size_t Marks(std::string_view text) { return std::count(text.begin(), text.end(), lineMark); }

  std::vector<SourceStatement>& all_;
  ScriptState scratch_;
  Silent silent_;
  size_t marks_ = 0;
  size_t last_ = 0;            // the statement before, of which those behind it may be tails
  bool colon_before_ = false;  // it ended at a ":"
};

}  // namespace

std::vector<SourceStatement> SourceStatements(const std::vector<CodePiece>& pieces) {
  std::vector<SourceStatement> all;
  for (size_t number = 0; number < pieces.size(); ++number) {
    const size_t first = all.size();
    Collecting(all).Piece(pieces[number]);
    for (size_t i = first; i < all.size(); ++i) all[i].piece = number;
  }
  return all;
}

}  // namespace corvane::script
