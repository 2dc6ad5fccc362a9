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

const TranslatedPieces::Translated* TranslatedPieces::Find(const std::string& text) const {
  const auto found = kept_.find(text);
  if (found == kept_.end()) return nullptr;
  for (const Translated& translated : found->second)
    if (translated.before == state_.counters) return &translated;
  return nullptr;
}

void TranslatedPieces::Keep(const std::string& text, Translated translated) {
  kept_size_ += text.size() + (translated.program ? translated.program->Text().size() : 0);
  if (kept_size_ > kMostKept) {
    kept_.clear();
    kept_size_ = 0;
    return;
  }
  kept_[text].push_back(std::move(translated));
}

std::shared_ptr<FlatProgram> TranslatedPieces::Translate(const std::string& text) {
  if (const Translated* known = state_.stopFlag ? nullptr : Find(text)) {
    state_.counters = known->after;
    return known->program;
  }
  WatchedErrors errors(errors_);
  const bool stopped = state_.stopFlag;
  Translated translated{state_.counters, {}, nullptr};
  std::string source = PrepareSource(text, errors);
  if (source.size() >= kShortestPiece)
    translated.program = std::make_shared<FlatProgram>(TranslateCode(source, state_, errors));
  translated.after = state_.counters;
  if (!stopped && !errors.reported) Keep(text, translated);
  return translated.program;
}

std::shared_ptr<FlatProgram> TranslatedPieces::TranslateStatement(std::string text) {
  return std::make_shared<FlatProgram>(TranslateCode(text, state_, errors_));
}

}  // namespace corvane::script
