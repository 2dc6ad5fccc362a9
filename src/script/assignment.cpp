#include "script/assignment.h"

#include <algorithm>
#include <utility>

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

constexpr size_t kLongestKnown = 2000;  // characters of a statement
constexpr size_t kMostKnown = 5000;

bool IsBracketLiteral(std::string_view right) {
  return runtime::BeginsWith(right, "[[");
}

Text AsText(const Cell& value) {
  const auto* text = std::get_if<Text>(&value);
  return text != nullptr ? *text : Text(TextOf(value));
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

void Assignment::AssignLiterally(const std::string& text, long eq) {
  const std::string statement = WithOwnOperator(text, eq);
  const Target target = FindTarget(Trim(Left(statement, eq - 1)));
  if (target.kind == Target::kUnknown) return errors_.ReportError(statement + " Unknown Variable");
  const std::string right = Mid(statement, eq + 1);
  if (right.size() < 2) return errors_.ReportError(statement + " Error operation");
  if (Evaluate(right)) Store(target);
}

void Assignment::Assign(std::string_view statement, long eq) {
  const KnownAssignment* known = Known(statement, eq);
  if (!known || !AssignKnown(*known)) AssignLiterally(std::string(statement), eq);
}

const KnownAssignment* Assignment::Known(std::string_view statement, long eq) {
  if (statement.size() > kLongestKnown) return nullptr;
  if (running_ == 0 && known_.size() > kMostKnown) known_.clear();
  auto found = known_.find(statement);
  if (found == known_.end()) {
    if (!met_before_(statement)) return nullptr;
    found = known_.emplace(statement, KnownOf(std::string(statement), eq)).first;
  }
  return found->second && found->second->eq == eq ? &*found->second : nullptr;
}

// Appends in place to a text that is too long to be anything but a text.
class Assignment::Appending : public LastStep {
 public:
  Appending(Assignment& assignment, const KnownAssignment& known, long cell)
      : assignment_(assignment), known_(known), cell_(cell) {}

  bool Take(const PlannedStep& step, const std::vector<SlotValue>& values) override {
    ScriptState& state = assignment_.state_;
    if (state.stopFlag || state.notFlag) return false;
    Text* text = TextNamed(step.terms[0].name);
    if (text == nullptr || text->Size() <= kLongestNumber) return false;
    std::string more, value;
    for (size_t i = 1; i < step.terms.size(); ++i) {
      if (!ValueOf(step.terms[i], values, value)) return false;
      more += value;
    }
    text->Append(more);
    state.lastValue = *text;
    return done = true;
  }

  bool done = false;

 private:
  // The target's text, if [name] is the target for reading too.
  Text* TextNamed(const NameReference& name) {
    if (known_.to_result) return &assignment_.state_.resultText;
    VariableStore& store = assignment_.store_;
    const int depth = assignment_.state_.subDepth;
    if (!name.IsFresh(store.Generation(), depth)) {
      const long place = store.FindVisible(name.upper, depth);
      name.Remember(place == 0 ? 0 : store.CellNumberAt(place), store.Generation(), depth);
    }
    return name.cell == cell_ && store.HasCell(cell_) ? std::get_if<Text>(&store.At(cell_)) : nullptr;
  }

  bool ValueOf(const PlannedTerm& term, const std::vector<SlotValue>& values, std::string& value) {
    if (term.kind == PlannedTerm::kName) return assignment_.primary_.EvalVariable(term.name, value);
    if (term.kind == PlannedTerm::kToken) {
      std::string token = term.text;
      value = assignment_.primary_.EvalPrimary(token);
    } else {
      value = term.kind == PlannedTerm::kSlot ? values[term.slot].text : term.text;
    }
    return true;
  }

  Assignment& assignment_;
  const KnownAssignment& known_;
  const long cell_;
};

// False if the variable is not there.
bool Assignment::AssignKnown(const KnownAssignment& known) {
  struct Running {
    int& depth;
    explicit Running(int& depth) : depth(depth) { ++depth; }
    ~Running() { --depth; }
  } running(running_);
  const NameReference& target = known.target;
  if (!known.to_result && !target.IsFresh(store_.Generation(), state_.subDepth))
    target.Remember(store_.CellForStoring(target.upper, state_.subDepth), store_.Generation(), state_.subDepth);
  const long cell = target.cell;
  if (cell == 0 && !known.to_result) return false;
  state_.lastValue = known.right;
  Appending appending(*this, known, cell);
  expressions_.EvalExpression(known.right.Get(), known.appends ? &appending : nullptr);
  if (!state_.stopFlag && !appending.done) Store({known.to_result ? Target::kResult : Target::kCell, cell, {}});
  return true;
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
  const std::string object = Left(name, dot - 1);
  struct LeftSide {
    bool& mode;
    const bool before = std::exchange(mode, true);
    ~LeftSide() { mode = before; }
  };
  std::string token = object, value;
  {
    const LeftSide left_side{state_.lvalueMode};
    value = primary_.EvalPrimary(token);
  }
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
      state_.resultText = AsText(state_.lastValue);
      break;
    case Target::kProperty:
      outside_.ide.SetProp(errors_, target.address, TextOf(state_.lastValue));
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
  if (state_.stopFlag) return true;
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
