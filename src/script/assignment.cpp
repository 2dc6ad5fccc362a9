#include "script/assignment.h"

#include <algorithm>

#include "runtime/error.h"
#include "runtime/strings.h"
#include "script/marks.h"
#include "script/numbers.h"

namespace corvane::script {

namespace {

using runtime::InStr;
using runtime::Left;
using runtime::Mid;
using runtime::Trim;
using runtime::UCase;

bool IsBracketLiteral(std::string_view right) {
  return runtime::BeginsWith(right, "[[");
}

// Whether "V op= E" stands there; then it becomes V = V op E.
bool HasOwnOperator(const std::string& statement, long eq) {
  const char before = eq >= 2 ? statement[static_cast<size_t>(eq) - 2] : ' ';
  return std::string_view("+-*/&").find(before) != std::string_view::npos;
}

// Place of the ")=" of name(index)=value, from 1; 0 if there is none or a double quote stands before it.
long EndOfIndex(const std::string& statement, long paren) {
  const long end = InStr(std::max(paren, 1L), statement, ")=");
  const long quote = InStr(statement, "\"");
  return end == 0 || (quote != 0 && quote < end) ? 0 : end;
}

}  // namespace

struct Assignment::Target {
  enum Kind { kCell, kResult, kProperty, kUnknown } kind;
  long cell = 0;
  std::string address;  // of a property
};

void Assignment::Assign(std::string statement, long eq) {
  if (HasOwnOperator(statement, eq)) {
    const std::string name = Left(statement, eq - 2);
    const std::string operation = Mid(statement, eq - 1, 1) + Mid(statement, eq + 1);
    statement = name + "=" + name + operation;
    eq = runtime::Len(name) + 1;
  }
  const Target target = FindTarget(Trim(Left(statement, eq - 1)));
  if (target.kind == Target::kUnknown) return errors_.ReportError(statement + " Unknown Variable");
  const std::string right = Mid(statement, eq + 1);
  if (right.size() < 2) return errors_.ReportError(statement + " Error operation");
  if (Evaluate(right)) Store(target);
}

Assignment::Target Assignment::FindTarget(std::string name) {
  if (UCase(Left(name, 4)) == "VAR(") {
    const long end = runtime::InStrRev(name, ")");
    std::string expression = Trim(end < 5 ? Mid(name, 5) : Mid(name, 5, end - 5));
    name = primary_.EvalPrimary(expression);
  }
  if (runtime::Holds(name, ".")) return {Target::kProperty, 0, PropertyAddress(name)};
  const std::string upper = UCase(name);
  if (upper == "RESULT") return {Target::kResult, 0, {}};
  const bool found = store_.FindForStoring(LocalName(upper, state_.subDepth)) != 0 || store_.FindForStoring(upper) != 0;
  return {found ? Target::kCell : Target::kUnknown, store_.CellForStoring(upper, state_.subDepth), {}};
}

// The part before the "." may be a variable that holds the name of the object.
std::string Assignment::PropertyAddress(const std::string& name) {
  const long dot = InStr(name, ".");
  std::string object = Left(name, dot - 1);
  const bool before = state_.lvalueMode;
  state_.lvalueMode = true;
  std::string token = object;
  const std::string value = primary_.EvalPrimary(token);
  state_.lvalueMode = before;
  return (value.empty() ? object : value) + Mid(name, dot);
}

bool Assignment::Evaluate(const std::string& right) {
  if (!IsBracketLiteral(right)) {
    state_.lastValue = right;
    expressions_.EvalExpression(right);
    return !state_.stopFlag;
  }
  const long end = InStr(3, right, "]]");
  if (end == 0) {
    errors_.ReportError("There are not ]] brackets");
    return false;
  }
  state_.lastValue = runtime::Replace(Mid(right, 3, end - 3), std::string(1, lineMark), runtime::kCrLf);
  return true;
}

void Assignment::Store(const Target& target) {
  switch (target.kind) {
    case Target::kResult:
      state_.resultText = TextOf(state_.lastValue);
      break;
    case Target::kProperty:
      outside_.ide.SetProp(target.address, TextOf(state_.lastValue));
      break;
    case Target::kCell:
      store_.Store(target.cell, state_.lastValue);
      break;
    case Target::kUnknown:
      break;
  }
}

bool Assignment::AssignElement(const std::string& statement, long paren) {
  const long end = EndOfIndex(statement, paren);
  if (paren < 1 || end == 0) return false;
  const std::string name = Trim(Left(statement, paren));
  const long cell = store_.CellForStoring(UCase(name), state_.subDepth);
  if (cell == 0) return false;
  const auto slot = static_cast<long>(NumberOf(TextOf(store_.Value(cell))).value_or(0));
  const std::string index = Trim(Mid(statement, paren + 1, std::max(0L, end - paren - 1)));
  std::string value = Mid(statement, end + 2);
  if (!value.empty() && value.back() == ':') value.pop_back();
  value = Trim(value);
  const std::string plain_name = Left(name, runtime::Len(name) - 1);
  expressions_.EvalExpression(index);
  const auto number = NumberOf(TextOf(state_.lastValue));
  if (!number) {
    errors_.ReportError(plain_name + " Array index is not numeric.");
    return true;
  }
  if (*number < 1 || value.empty()) {
    errors_.ReportError(plain_name + " Bad expression.");
    return true;
  }
  expressions_.EvalExpression(value);
  if (!state_.stopFlag) arrays_.ArrayStore(slot, *number);
  return true;
}

void Assignment::DeclareVars(const std::string& text) {
  if (text.size() < 5) return errors_.ReportError(text + " Operator DIM Error");
  std::string names = text.back() == ':' ? text.substr(0, text.size() - 1) : text;
  names = UCase(Trim(Mid(names, 5))) + ",";
  for (size_t from = 0, comma; (comma = names.find(',', from)) != std::string::npos; from = comma + 1) {
    const std::string name = Trim(std::string_view(names).substr(from, comma - from));
    if (name.empty()) return;
    Declare(name);
  }
}

void Assignment::Declare(std::string name) {
  name = LocalName(name, state_.subDepth);
  if (const long place = store_.FindForReading(name)) {
    store_.Store(store_.CellNumberAt(place), 0);
    return;
  }
  const size_t brackets = name.find("()");
  const bool is_array = brackets != std::string::npos && brackets > 0;
  if (is_array) name.erase(brackets + 1, 1);
  const long cell = store_.Declare(name);
  if (is_array) store_.Store(cell, Cell(static_cast<int>(++arrays_.arrayCount)));
}

}  // namespace corvane::script
