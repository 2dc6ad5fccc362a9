// Names for expressions under test: variables by name, and calls that give back their argument.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "runtime/strings.h"
#include "script/expressions.h"
#include "script/marks.h"
#include "script/numbers.h"

namespace corvane::script {

class FakePrimary : public Primary {
 public:
  FakePrimary(ScriptState& state, ErrorReport& errors) : state_(state), errors_(errors) {}

  std::map<std::string, std::string> variables;
  std::vector<std::string> asked;  // every token, in order

  std::string EvalPrimary(std::string& token) override {
    asked.push_back(token);
    if (state_.stopFlag || token.empty()) return {};
    const bool negative = token.size() > 1 && token[0] == '-';
    if (negative) token.erase(0, 1);
    const std::string value = ValueOf(token);
    if (!negative) return value;
    const auto number = NumberOf(value);
    return number ? runtime::CStr(-*number) : std::string();
  }

 private:
  std::string ValueOf(const std::string& token) {
    if (token[0] == '"') return token.size() < 2 ? std::string() : token.substr(1, token.size() - 2);
    if (const size_t open = token.find('('); open != std::string::npos && open >= 2) return Call(token, open);
    if (IsNumeric(token)) return token[0] == '&' ? runtime::CStr(*NumberOf(token)) : token;
    const std::string name = runtime::UCase(token);
    if (name == "TRUE" || name == "FALSE") return name == "TRUE" ? "True" : "False";
    if (name == "NOT") return state_.notFlag = !state_.notFlag, "";
    if (auto found = variables.find(name); found != variables.end()) return found->second;
    if (!state_.lvalueMode) errors_.ReportError("Variable " + token + " is not found");
    return {};
  }

  // A call changes lastValue, as one that runs code does.
  std::string Call(const std::string& token, size_t open) {
    std::string argument = token.substr(open + 1, token.rfind(')') - open - 1);
    if (!argument.empty() && (argument[0] == quoteMark || argument[0] == '"'))
      argument = argument.substr(1, argument.size() - 2);
    else if (auto found = variables.find(runtime::UCase(argument)); found != variables.end())
      argument = found->second;
    const std::string name = runtime::UCase(token.substr(0, open));
    if (name == "NOT") state_.notFlag = !state_.notFlag;
    if (name == "RUN") state_.lastValue = "<" + argument + ">";
    return name == "RUN" ? TextOf(state_.lastValue) : argument;
  }

  ScriptState& state_;
  ErrorReport& errors_;
};

}  // namespace corvane::script
