// RecordedErrors: an error box that keeps what it was asked to show, and is answered with OK or, from one message on,
// with Cancel.
#pragma once

#include <string>
#include <vector>

#include "script/script_state.h"

namespace corvane::script {

struct RecordedError {
  std::string message, currentLine;
  bool operator==(const RecordedError&) const = default;
};

class RecordedErrors : public ErrorReport {
 public:
  static constexpr size_t kNever = ~size_t{0};

  // [cancelled]: which message is answered with Cancel, counted from 0.
  explicit RecordedErrors(ScriptState& state, size_t cancelled = kNever) : state_(state), cancelled_(cancelled) {}

  void ReportError(const std::string& message) override {
    errors.push_back({message, state_.currentLine});
    if (errors.size() > cancelled_) state_.stopFlag = true;
  }
  std::vector<std::string> Messages() const {
    std::vector<std::string> messages;
    for (const RecordedError& error : errors) messages.push_back(error.message);
    return messages;
  }

  std::vector<RecordedError> errors;

 private:
  ScriptState& state_;
  size_t cancelled_;
};

}  // namespace corvane::script
