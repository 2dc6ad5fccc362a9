// Expressions: an expression is evaluated by rewriting its text. Parts are taken out, evaluated from left to right, and
// their values put back, until one simple expression is left.
#pragma once

#include <string>
#include <string_view>

#include "script/script_state.h"

namespace corvane::script {

// What one token stands for: a string, a number, a variable, a call. It may run code.
class Primary {
 public:
  virtual ~Primary() = default;
  virtual std::string EvalPrimary(std::string& token) = 0;
};

class Expressions {
 public:
  Expressions(ScriptState& state, ErrorReport& errors, Primary& primary)
      : state_(state), errors_(errors), primary_(primary) {}

  // The truth of the expression; its value goes to lastValue.
  bool EvalExpression(std::string_view text);
  // The same for an expression without inner structure.
  bool EvalSimple(std::string_view text);

  // The plain form, which every other is compared with.
  bool EvalLiterally(std::string text);

 private:
  struct Rewriting;
  void PutBack(Rewriting& rewriting, std::string& text);
  bool EvalPart(Rewriting& rewriting, std::string part);

  ScriptState& state_;
  ErrorReport& errors_;
  Primary& primary_;
};

}  // namespace corvane::script
