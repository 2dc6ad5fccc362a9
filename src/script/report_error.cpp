#include "script/report_error.h"

#include "runtime/strings.h"
#include "script/flat_to_text.h"

namespace corvane::script {

void ErrorBoxes::ReportError(const std::string& message) {
  ++reported_;
  if (unreported_ != nullptr) {
    unreported_->push_back(message);
    return;
  }
  services_.Screen.SetMousePointer(host::vbDefault);
  const long answer = Ask(message, FlatToText(state_.currentLine));
  if (answer == host::vbCancel) {
    state_.stopFlag = true;
  } else if (!state_.wizardMode) {
    state_.debugOn = true;
  }
}

long ErrorBoxes::Ask(const std::string& message, const std::string& flat) {
  if (box_) return box_(message, flat);
  return services_.Prompts.MsgBox(message + runtime::kCrLf + flat, host::vbOKCancel, kBoxTitle);
}

std::vector<std::string> ErrorBoxes::Unreported(const std::function<void()>& work) {
  std::vector<std::string> messages;
  std::vector<std::string>* const outer = unreported_;
  unreported_ = &messages;
  runtime::PassOverErrors(work);
  unreported_ = outer;
  return messages;
}

}  // namespace corvane::script
