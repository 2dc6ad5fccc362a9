#include "script/translated_pieces.h"

#include "script/prepare_source.h"
#include "script/translator.h"

namespace corvane::script {

namespace {

constexpr size_t kMostKept = 8u << 20;  // characters
constexpr size_t kShortestPiece = 3;

// Tells whether an error was reported: a piece that reports one does so each time it comes.
class WatchedErrors : public ErrorReport {
 public:
  explicit WatchedErrors(ErrorReport& errors) : errors_(errors) {}
  void ReportError(const std::string& message) override {
    reported = true;
    errors_.ReportError(message);
  }
  bool reported = false;

 private:
  ErrorReport& errors_;
};

}  // namespace

const TranslatedPieces::Translated* TranslatedPieces::Find(const Kept& kept, const std::string& text) const {
  const auto found = kept.find(text);
  if (found == kept.end()) return nullptr;
  for (const Translated& translated : found->second)
    if (translated.before == state_.counters) return &translated;
  return nullptr;
}

void TranslatedPieces::Keep(Kept& kept, const std::string& text, Translated translated) {
  kept_size_ += text.size() + (translated.program ? translated.program->Text().size() : 0);
  if (kept_size_ > kMostKept) {
    pieces_.clear();
    statements_.clear();
    kept_size_ = 0;
    return;
  }
  kept[text].push_back(std::move(translated));
}

std::shared_ptr<FlatProgram> TranslatedPieces::Translate(const std::string& text) {
  return TranslateOnce(pieces_, text, [&](ErrorReport& errors) { return PrepareSource(text, errors); });
}

std::shared_ptr<FlatProgram> TranslatedPieces::TranslateStatement(const std::string& text) {
  return TranslateOnce(statements_, text, [&](ErrorReport&) { return text; });
}

template <class Cleaned>
std::shared_ptr<FlatProgram> TranslatedPieces::TranslateOnce(Kept& kept, const std::string& text, Cleaned&& cleaned) {
  if (const Translated* known = state_.stopFlag ? nullptr : Find(kept, text)) {
    state_.counters = known->after;
    return known->program;
  }
  WatchedErrors errors(errors_);
  const bool stopped = state_.stopFlag;
  Translated translated{state_.counters, {}, nullptr};
  std::string source = cleaned(errors);
  if (source.size() >= kShortestPiece)
    translated.program = std::make_shared<FlatProgram>(TranslateCode(source, state_, errors));
  translated.after = state_.counters;
  if (!stopped && !errors.reported) Keep(kept, text, translated);
  return translated.program;
}

}  // namespace corvane::script
