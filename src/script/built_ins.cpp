#include "script/built_ins.h"

#include <algorithm>

#include "runtime/error.h"
#include "runtime/strings.h"
#include "script/arguments.h"
#include "script/marks.h"
#include "script/numbers.h"

namespace corvane::script {

namespace {

// A name that gives its own name to VAR would call itself for ever.
constexpr int kDeepest = 250;
constexpr long kOutOfStackSpace = 28;

// What stands before the last ")"; without one, all of it.
std::string UpToBracket(const std::string& text) {
  return text.substr(0, text.rfind(')'));
}

bool IsQuoted(std::string_view text) {
  return !text.empty() && (text[0] == '"' || text[0] == quoteMark);
}

std::string Inside(std::string_view text) {
  return text.size() < 2 ? std::string() : std::string(text.substr(1, text.size() - 2));
}

std::string Negated(const std::string& text) {
  const auto number = NumberOf(text);
  return number ? TextOfNumber(-*number) : std::string();
}

struct Nesting {
  int& depth;
  explicit Nesting(int& depth) : depth(depth) {
    if (++depth <= kDeepest) return;
    --depth;
    throw runtime::Error(kOutOfStackSpace, "Out of stack space");
  }
  ~Nesting() { --depth; }
};

}  // namespace

BuiltIns::BuiltIns(ScriptState& state, VariableStore& store, Arrays& arrays, ScriptObjects& objects,
                   ErrorReport& errors, CodeRunner& runner, Outside& outside)
    : state_(state),
      store_(store),
      arrays_(arrays),
      objects_(objects),
      errors_(errors),
      runner_(runner),
      names_(state, store, errors, outside),
      use_{state, errors, outside, objects, *this} {}

std::string BuiltIns::EvalPrimary(std::string& token) {
  if (state_.stopFlag || token.empty()) return {};
  const Nesting nesting(nesting_);
  const bool negative = token[0] == '-' && token.size() > 1;
  if (negative) token.erase(0, 1);
  const std::string value = ValueOf(token);
  return negative ? Negated(value) : value;
}

bool BuiltIns::EvalVariable(const NameReference& name, std::string& value) {
  if (state_.stopFlag) return true;
  if (!name.IsFresh(store_.Generation(), state_.subDepth)) {
    const long place = store_.FindVisible(name.upper, state_.subDepth);
    name.Remember(place == 0 ? 0 : store_.CellNumberAt(place), store_.Generation(), state_.subDepth);
  }
  if (name.cell == 0) return false;
  value = TextOf(store_.Value(name.cell));
  return true;
}

std::string BuiltIns::ValueOf(std::string& token) {
  if (IsQuoted(token)) return Inside(token);
  std::replace(token.begin(), token.end(), quoteMark, '"');
  const size_t open = token.find('(');
  if (open == std::string::npos) return names_.Value(token);
  if (open < 2)
    return names_.Value(token.size() > 1 && token.back() == ')' ? token.substr(0, token.size() - 1) : token);
  const std::string key = runtime::UCase(std::string_view(token).substr(0, open + 1));
  const std::string rest = token.substr(open + 1);
  const FunctionRow* row = FindFunction(key);
  return row ? CallFunction(*row, rest) : CallNamed(key, rest);
}

std::string BuiltIns::Argument(std::string text) {
  text = UpToBracket(text);
  return IsQuoted(text) ? Inside(text) : names_.Value(text);
}

std::string BuiltIns::CallFunction(const FunctionRow& row, const std::string& rest) {
  if (row.names_array) return CallOnArray(row, rest);
  if (row.two || row.three) return CallWithParts(row, rest);
  const std::string argument = Argument(rest);
  std::string value;
  runtime::PassOverErrors([&] { value = row.one(use_, argument); });
  return value;
}

std::string BuiltIns::CallWithParts(const FunctionRow& row, const std::string& rest) {
  const std::string list = UpToBracket(rest);
  const auto parts = SplitArguments(IsQuoted(list) ? Inside(list) : list);
  std::string value;
  if (parts.size() == 1 && row.one) {
    const std::string argument = Argument(rest);
    runtime::PassOverErrors([&] { value = row.one(use_, argument); });
  } else if (parts.size() == 2 && row.two) {
    runtime::PassOverErrors([&] { value = row.two(use_, parts[0], parts[1]); });
  } else if (parts.size() == 3 && row.three) {
    runtime::PassOverErrors([&] { value = row.three(use_, parts[0], parts[1], parts[2]); });
  } else if (parts.size() > 1 || !row.quiet_alone) {
    errors_.ReportError(std::string(row.other_count));
  }
  return value;
}

bool BuiltIns::FindArray(const std::string& key, long& slot) {
  const long place = store_.FindVisible(key, state_.subDepth);
  const long cell = place == 0 ? 0 : store_.CellNumberAt(place);
  if (cell == 0) return false;
  slot = static_cast<long>(NumberOf(TextOf(store_.Value(cell))).value_or(0));
  return true;
}

std::string BuiltIns::CallOnArray(const FunctionRow& row, const std::string& rest) {
  std::string name = UpToBracket(rest);
  if (IsQuoted(name)) name = Inside(name);
  long slot = 0;
  if (!FindArray(runtime::UCase(runtime::Trim(name)) + "(", slot)) {
    errors_.ReportError("Undeclared array.");
    return {};
  }
  return arrays_.ArrayAccess(slot, row.key.substr(0, row.key.size() - 1));
}

std::string BuiltIns::CallNamed(const std::string& key, const std::string& rest) {
  if (long slot = 0; FindArray(key, slot)) {
    const std::string index = Argument(rest);
    return state_.stopFlag ? std::string() : arrays_.ArrayAccess(slot, index);
  }
  if (const long place = objects_.Find(key)) return objects_.ObjectCall(place, rest, *expressions_);
  runner_.RunCode("Call " + key + rest + ":");
  return TextOf(state_.lastValue);
}

}  // namespace corvane::script
