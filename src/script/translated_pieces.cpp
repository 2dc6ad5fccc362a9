#include "script/translated_pieces.h"

#include "script/marks.h"
#include "script/prepare_source.h"
#include "script/translator.h"

namespace corvane::script {

namespace {

constexpr size_t kMostKept = 64u << 20;  // bytes, about
constexpr size_t kSizeOfEntry = 600, kSizeByCharacter = 25;
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

std::string TranslatedPieces::Key(const std::string& text) const {
  const Counters& counters = state_.counters;
  std::string key = text;
  for (const int counter : {counters.ifDepth, counters.loopDepth, counters.loopId, counters.selectId})
    key.append(1, labelMark).append(std::to_string(counter));
  return key;
}

void TranslatedPieces::Keep(Kept& kept, std::string key, Translated translated) {
  kept_size_ +=
      kSizeOfEntry + key.size() + (translated.program ? kSizeByCharacter * translated.program->Text().size() : 0);
  if (kept_size_ > kMostKept) {
    pieces_.clear();
    statements_.clear();
    kept_size_ = 0;
    return;
  }
  kept.emplace(std::move(key), std::move(translated));
}

std::shared_ptr<FlatProgram> TranslatedPieces::Translate(const std::string& text) {
  reported_ = false;
  return TranslateOnce(pieces_, text, [&](ErrorReport& errors) { return PrepareSource(text, errors); });
}

std::shared_ptr<FlatProgram> TranslatedPieces::TranslateStatement(const std::string& text) {
  return TranslateOnce(statements_, text, [&](ErrorReport&) { return text; });
}

template <class Cleaned>
std::shared_ptr<FlatProgram> TranslatedPieces::TranslateOnce(Kept& kept, const std::string& text, Cleaned&& cleaned) {
  std::string key = Key(text);
  const auto known = state_.stopFlag ? kept.end() : kept.find(key);
  if (known != kept.end()) {
    state_.counters = known->second.after;
    return known->second.program;
  }
  WatchedErrors errors(errors_);
  const bool stopped = state_.stopFlag;
  Translated translated{{}, nullptr};
  std::string source = cleaned(errors);
  if (source.size() >= kShortestPiece)
    translated.program = std::make_shared<FlatProgram>(TranslateCode(source, state_, errors));
  translated.after = state_.counters;
  reported_ = errors.reported;
  if (!stopped && !errors.reported) Keep(kept, std::move(key), translated);
  return translated.program;
}

}  // namespace corvane::script
