#include "script/expressions.h"

#include "runtime/strings.h"
#include "script/extraction.h"
#include "script/marks.h"
#include "script/numbers.h"
#include "script/simple_expression.h"

namespace corvane::script {

namespace {

bool HoldsTakenOut(std::string_view text) {
  return runtime::Holds(text, kTakenOut);
}

}  // namespace

struct Expressions::Rewriting {
  bool joins;          // an "&" stands in it: a truth inside does not make the value one
  bool truth = false;  // a truth was put back
  bool result = true;
  size_t rounds_left;  // each round takes an operator or a bracket away; a text may hold the marks of the rewriting
};

bool Expressions::EvalSimple(std::string_view text) {
  SimpleTokens tokens(text);
  SimpleEvaluation evaluation(state_);
  while (tokens.Next()) {
    if (tokens.word) {
      evaluation.Word(tokens.token);
      continue;
    }
    std::string token = AsPrimary(tokens.token);
    evaluation.Operand(primary_.EvalPrimary(token), tokens.op, tokens.last);
  }
  return evaluation.Finish();
}

void Expressions::PutBack(Rewriting& rewriting, std::string& text) {
  std::string value = TextOf(state_.lastValue);
  if (value == "True" || value == "False") {
    if (!rewriting.joins) rewriting.truth = true;
  } else if (!LooksNumeric(value)) {
    value = quoteMark + value + quoteMark;
  }
  text.replace(text.find(kTakenOut), kTakenOut.size(), value);
  if (rewriting.rounds_left > 0) --rewriting.rounds_left;
}

// Where putting a value back changes nothing, as with a sign behind an operator, the whole text is a simple expression.
bool Expressions::EvalPart(Rewriting& rewriting, std::string part) {
  for (;;) {
    const std::string before = part;
    std::string inner = ExtractSubExpression(part, errors_);
    if (inner.empty() && part == before) return EvalSimple(part);
    if (part == kTakenOut || !HoldsTakenOut(part)) return EvalSimple(inner.empty() ? part : inner);
    EvalSimple(inner);
    PutBack(rewriting, part);
    if (part == before || rewriting.rounds_left == 0) return EvalSimple(part);
  }
}

// Puts the value of a part back into the working text. False if nothing is left to take out.
bool Expressions::GoesOn(Rewriting& rewriting, std::string& working, const std::string& before) {
  if (!HoldsTakenOut(working)) return false;
  if (working.size() < 3) {
    working.clear();
    return false;
  }
  PutBack(rewriting, working);
  return working != before && rewriting.rounds_left > 0;
}

bool Expressions::Finish(Rewriting& rewriting, const std::string& working) {
  if (!working.empty()) rewriting.result = EvalSimple(working);
  if (rewriting.truth) state_.lastValue = rewriting.result;
  return rewriting.result;
}

bool Expressions::Rewrite(Rewriting& rewriting, std::string working) {
  while (!working.empty()) {
    const std::string before = working;
    std::string part = ExtractSubExpression(working, errors_);
    if (part.empty() && working == before) break;
    rewriting.result = EvalPart(rewriting, std::move(part));
    if (!GoesOn(rewriting, working, before)) break;
  }
  return Finish(rewriting, working);
}

bool Expressions::EvalLiterally(std::string text) {
  Rewriting rewriting{.joins = HoldsJoin(text), .rounds_left = 4 * text.size() + 64};
  return Rewrite(rewriting, std::move(text));
}

bool Expressions::EvalExpression(std::string_view text, LastStep* last) {
  const ExpressionPlan* plan = PlanOf(text);
  return plan ? Follow(*plan, last) : EvalLiterally(std::string(text));
}

const ExpressionPlan* Expressions::PlanOf(std::string_view text) {
  if (following_ == 0) plans_.Trim();
  return plans_.Find(text);
}

bool Expressions::Follow(const ExpressionPlan& plan, LastStep* last) {
  struct Following {
    int& depth;
    explicit Following(int& depth) : depth(depth) { ++depth; }
    ~Following() { --depth; }
  } following(following_);
  Rewriting rewriting{.joins = plan.joins, .rounds_left = plan.rounds};
  std::vector<SlotValue> values;
  values.reserve(plan.slots);
  for (const PlannedStep& step : plan.steps) {
    const bool is_last = &step == &plan.steps.back() && !rewriting.truth;
    if (is_last && last != nullptr && last->Take(step, values)) return true;
    const bool result = EvalTerms(step, values);
    if (step.counts) rewriting.result = result;
    if (step.into == PlannedStep::kNowhere) continue;
    std::string value = TextOf(state_.lastValue);
    const bool truth = value == "True" || value == "False";
    const bool quoted = !truth && !LooksNumeric(value);
    if (!FitsPlan(value, quoted)) return LeavePlan(rewriting, step, values);
    if (truth && !rewriting.joins) rewriting.truth = true;
    values.push_back({std::move(value), quoted});
    --rewriting.rounds_left;
  }
  if (rewriting.truth) state_.lastValue = rewriting.result;
  return rewriting.result;
}

bool Expressions::EvalTerms(const PlannedStep& step, const std::vector<SlotValue>& values) {
  SimpleEvaluation evaluation(state_);
  for (const PlannedTerm& term : step.terms) {
    if (term.kind == PlannedTerm::kWord)
      evaluation.Word(term.text);
    else
      evaluation.Operand(ValueOf(term, values), term.op, term.last);
  }
  return evaluation.Finish();
}

// A stopped run has no values.
std::string Expressions::ValueOf(const PlannedTerm& term, const std::vector<SlotValue>& values) {
  if (state_.stopFlag && term.kind <= PlannedTerm::kSlot) return {};
  std::string value;
  switch (term.kind) {
    case PlannedTerm::kText:
      return term.text;
    case PlannedTerm::kSlot:
      return values[term.slot].text;
    case PlannedTerm::kName:
      if (primary_.EvalVariable(term.name, value)) return value;
      [[fallthrough]];
    case PlannedTerm::kToken:
      value = term.text;
      return primary_.EvalPrimary(value);
    default:
      value = AsPrimary(WithValues(term.text, values));
      return primary_.EvalPrimary(value);
  }
}

// The plain form goes on where the plan does not hold: the value of [step] is in lastValue and not put back yet.
bool Expressions::LeavePlan(Rewriting& rewriting, const PlannedStep& step, const std::vector<SlotValue>& values) {
  std::string working = WithValues(step.working, values);
  if (step.into == PlannedStep::kPart) {
    std::string part = WithValues(step.part, values);
    const std::string before = WithValues(step.part_before, values);
    PutBack(rewriting, part);
    rewriting.result =
        part == before || rewriting.rounds_left == 0 ? EvalSimple(part) : EvalPart(rewriting, std::move(part));
  }
  const std::string before = WithValues(step.working_before, values);
  return GoesOn(rewriting, working, before) ? Rewrite(rewriting, working) : Finish(rewriting, working);
}

}  // namespace corvane::script
