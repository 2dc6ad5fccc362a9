#include "runtime/strings.h"
#include "script/translation.h"
#include "script/translator.h"

namespace corvane::script {

using runtime::Left;
using runtime::Mid;

bool Translation::EndSub() {
  Emit(0, 0, "END SUB:");
  return true;
}

// A SUB with a local variable of its own name.
bool Translation::Function() {
  const std::string rest = Mid(statement_.text, 10, static_cast<long>(statement_.text.size()) - 10);
  const long bracket = runtime::InStr(rest, "(");
  if (bracket < 2) {
    Report("Error Function definition");
    return state_.stopFlag;
  }
  std::string& name = pieces_.back().function;
  name = runtime::UCase(runtime::Trim(Left(rest, bracket - 1)));
  Push("SUB " + rest + ":DIM " + name + ":");
  return true;
}

bool Translation::ExitFunction() {
  const std::string name = pieces_.back().function;
  if (name.empty()) Report("There is no Function for Exit Function operator.");
  Push("CSTR(" + name + "):EXIT SUB:");
  return true;
}

// The value of CStr is what the call gives back.
bool Translation::EndFunction() {
  const std::string name = std::move(pieces_.back().function);
  pieces_.back().function.clear();
  if (name.empty()) {
    Report("There is no Function for End Function operator.");
    if (state_.stopFlag) return true;
  }
  std::string value = "CStr(" + name + ")";
  Flat() += TranslateCode(value, state_, report_);
  return EndSub();
}

}  // namespace corvane::script
