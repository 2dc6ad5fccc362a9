// A simple expression: operands and operators without inner structure, evaluated from left to right.
#pragma once

#include <string>
#include <string_view>

#include "script/operators.h"
#include "script/script_state.h"

namespace corvane::script {

// Reads the operands of a simple expression from its front.
class SimpleTokens {
 public:
  explicit SimpleTokens(std::string_view text);

  // False at the end. A token is a name, a number, a string or a call.
  bool Next();

  std::string token;
  std::string op;     // behind it: one character, or two that end in "=" or ">"
  bool word = false;  // the token is itself an operator, AND or OR
  bool last = false;  // nothing stands behind the operator

 private:
  size_t EndOfToken() const;
  void TakeOperator(size_t length);

  std::string rest_;
};

// A token as EvalPrimary takes it: a text between quoteMark becomes a string, a string loses its doubled quotes.
std::string AsPrimary(const std::string& token);

// The state of the evaluation: takes each operand's value with the operator behind it.
class SimpleEvaluation {
 public:
  explicit SimpleEvaluation(ScriptState& state) : state_(state) {}

  void Word(std::string_view op) { pending_ = op; }
  void Operand(std::string value, std::string_view op, bool last);
  bool Finish();

 private:
  void ComparePoint(std::string value, std::string_view op);
  void ApplyPending(const std::string& value, std::string_view op);
  void Start(std::string value, std::string_view op);
  void TakeTruth();
  void ApplyNot();

  ScriptState& state_;
  bool result_ = true;
  Accumulator acc_;
  std::string pending_, comparison_;
};

}  // namespace corvane::script
