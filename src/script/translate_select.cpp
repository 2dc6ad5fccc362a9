#include <cstdlib>

#include "runtime/strings.h"
#include "script/translation.h"

namespace corvane::script {

using runtime::Left;
using runtime::Mid;

int Translation::SelectNesting() const {
  return std::abs(Count().selectId);
}

std::string Translation::SelectLabel() const {
  return "_S" + std::to_string(SelectNesting());
}

// Becomes an ordinary statement with its bracket at column 5.
bool Translation::SelectCase() {
  Count().selectId = SelectNesting() + 1;
  const std::string expression = Mid(statement_.text, 12, static_cast<long>(statement_.text.size()) - 12);
  SetStatement("PUSH(" + std::to_string(Count().selectId) + "," + runtime::Trim(expression) + "):");
  statement_.parenPos = 5;
  return false;
}

bool Translation::EndSelect() {
  if (NoSelectOpen()) return true;
  Emit(0, 0, "END IF:");
  EmitLabel(SelectLabel());
  Count().selectId = SelectNesting() - 1;
  if (Count().selectId > 0) EmitLabel(SelectLabel());
  return true;
}

bool Translation::CaseElse() {
  if (NoSelectOpen() || Count().selectId > 0) return true;
  EmitJump("GOTN " + SelectLabel());
  EmitLabel(SelectLabel());
  return true;
}

bool Translation::Case() {
  if (NoSelectOpen()) return true;
  if (Count().selectId < 0) {
    Emit(-1, 0, "GOTN " + SelectLabel() + ":");
    EmitLabel(SelectLabel());
    Flat() += "::";
  }
  const std::string nesting = std::to_string(SelectNesting());
  Emit(0, statement_.parenPos, Left(statement_.text, 5) + nesting + "," + Mid(statement_.text, 6));
  EmitJump("GO " + SelectLabel());
  Count().selectId = -SelectNesting();
  return true;
}

bool Translation::NoSelectOpen() {
  if (SelectNesting() >= 1) return false;
  Report("Select Case: error");
  return true;
}

}  // namespace corvane::script
