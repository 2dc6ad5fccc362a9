// Expressions: an expression is evaluated by rewriting its text. Parts are taken out, evaluated from left to right, and
// their values put back, until one simple expression is left.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "script/expression_plan.h"
#include "script/plan_cache.h"
#include "script/script_state.h"

namespace corvane::script {

// What one token stands for: a string, a number, a variable, a call. It may run code.
class Primary {
 public:
  virtual ~Primary() = default;
  virtual std::string EvalPrimary(std::string& token) = 0;
  // The value of a variable without more ado; false if EvalPrimary has to be asked.
  virtual bool EvalVariable(const NameReference& name, std::string& value) {
    (void)name, (void)value;
    return false;
  }
};

// May do the last step of an expression in a way of its own.
class LastStep {
 public:
  virtual ~LastStep() = default;
  // False, and nothing done, where the step has to be evaluated. [values] are those that the steps before put back.
  virtual bool Take(const PlannedStep& step, const std::vector<SlotValue>& values) = 0;
};

class Expressions {
 public:
  Expressions(ScriptState& state, ErrorReport& errors, Primary& primary)
      : state_(state), errors_(errors), primary_(primary) {}

  // The truth of the expression; its value goes to lastValue. An expression met again follows its plan, and [last] is
  // asked for its last step, if the value of that is the expression's.
  bool EvalExpression(std::string_view text, LastStep* last = nullptr);
  // The same for an expression without inner structure.
  bool EvalSimple(std::string_view text);

  // The plain form, which every other is compared with.
  bool EvalLiterally(std::string text);

 private:
  struct Rewriting;
  void PutBack(Rewriting& rewriting, std::string& text);
  bool EvalPart(Rewriting& rewriting, std::string part);
  bool GoesOn(Rewriting& rewriting, std::string& working, const std::string& before);
  bool Rewrite(Rewriting& rewriting, std::string working);
  bool Finish(Rewriting& rewriting, const std::string& working);

  const ExpressionPlan* PlanOf(std::string_view text);
  bool Follow(const ExpressionPlan& plan, LastStep* last);
  bool EvalTerms(const PlannedStep& step, const std::vector<SlotValue>& values);
  std::string ValueOf(const PlannedTerm& term, const std::vector<SlotValue>& values);
  bool LeavePlan(Rewriting& rewriting, const PlannedStep& step, const std::vector<SlotValue>& values);

  ScriptState& state_;
  ErrorReport& errors_;
  Primary& primary_;
  PlanCache plans_;
  int following_ = 0;  // plans being followed, in one another
};

}  // namespace corvane::script
