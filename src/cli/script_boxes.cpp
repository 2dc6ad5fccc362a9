#include "cli/script_boxes.h"

#include <ostream>

#include "cli/json_text.h"
#include "runtime/code_page.h"
#include "runtime/strings.h"
#include "script/report_error.h"

namespace corvane::cli {

namespace {

constexpr long kButtons = 15;  // of a style

long ButtonOf(const std::string& answer, const std::string& title) {
  const std::string upper = runtime::UCase(answer);
  if (upper != "OK" && upper != "CANCEL")
    throw WrongAnswer("--answer \"" + answer + "\" fits no button of the box \"" +
                      runtime::AnsiCodePage().ToUtf8(title) + "\", which are ok and cancel");
  return upper == "OK" ? host::vbOK : host::vbCancel;
}

}  // namespace

long ScriptBoxes::MsgBox(const std::string& prompt, long style, const std::string& title) {
  const Box box{title == "Print Box" ? "print" : "message", title.empty() ? program_ : title, prompt, {}};
  if ((style & kButtons) == host::vbOKCancel) return Button(box, host::vbOK);
  Tell(box, "ok");
  return host::vbOK;
}

std::string ScriptBoxes::InputBox(const std::string& prompt, const std::string& title,
                                  const std::string& default_text) {
  std::string answer = default_text;
  if (!answers_.empty()) {
    answer = runtime::AnsiCodePage().FromUtf8(answers_.front());
    answers_.pop_front();
  }
  Tell({"input", title.empty() ? program_ : title, prompt, {}}, answer);
  return answer;
}

long ScriptBoxes::ErrorBox(const std::string& message, const std::string& flat) {
  ++errors_;
  return Button({"error", script::kBoxTitle, message, flat}, host::vbCancel);
}

long ScriptBoxes::Button(const Box& box, long otherwise) {
  long button = otherwise;
  if (!answers_.empty()) {
    button = ButtonOf(answers_.front(), box.title);
    answers_.pop_front();
  }
  Tell(box, button == host::vbOK ? "ok" : "cancel");
  return button;
}

void ScriptBoxes::Tell(const Box& box, const std::string& answer) {
  const bool error = std::string_view(box.kind) == "error";
  if (!json_) {
    const std::string text = error ? box.message + runtime::kCrLf + box.flat : box.message;
    out_ << runtime::AnsiCodePage().ToUtf8(box.title + ": " + text) << '\n' << std::flush;
    return;
  }
  out_ << "{\"box\":\"" << box.kind << "\",\"title\":" << JsonText(box.title)
       << ",\"message\":" << JsonText(box.message);
  if (error) out_ << ",\"flat\":" << JsonText(box.flat);
  out_ << ",\"answer\":" << JsonText(answer) << "}\n" << std::flush;
}

}  // namespace corvane::cli
