#include "script/expressions.h"

#include "runtime/strings.h"
#include "script/extraction.h"
#include "script/marks.h"
#include "script/numbers.h"
#include "script/simple_expression.h"

namespace corvane::script {

namespace {

bool Joins(std::string_view text) {
  bool quoted = false;
  for (char c : text) {
    if (c == '"') quoted = !quoted;
    if (c == '&' && !quoted) return true;
  }
  return false;
}

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
    if (part == kTakenOut || !HoldsTakenOut(part)) return EvalSimple(inner.empty() ? part : inner);
    EvalSimple(inner);
    PutBack(rewriting, part);
    if (part == before || rewriting.rounds_left == 0) return EvalSimple(part);
  }
}

bool Expressions::EvalLiterally(std::string working) {
  Rewriting rewriting{.joins = Joins(working), .rounds_left = 4 * working.size() + 64};
  while (!working.empty()) {
    const std::string before = working;
    std::string part = ExtractSubExpression(working, errors_);
    rewriting.result = EvalPart(rewriting, std::move(part));
    if (!HoldsTakenOut(working)) break;
    if (working.size() < 3) {
      working.clear();
      break;
    }
    PutBack(rewriting, working);
    if (working == before || rewriting.rounds_left == 0) break;
  }
  if (!working.empty()) rewriting.result = EvalSimple(working);
  if (rewriting.truth) state_.lastValue = rewriting.result;
  return rewriting.result;
}

bool Expressions::EvalExpression(std::string_view text) {
  return EvalLiterally(std::string(text));
}

}  // namespace corvane::script
