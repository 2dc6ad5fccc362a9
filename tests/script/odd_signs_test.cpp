// The check of signs beside the evaluator: what it passes is read as with the signed operands in variables.
#include "script/odd_signs.h"

#include <gtest/gtest.h>

#include "script/code_pieces.h"
#include "tests/script/fake_engine.h"
#include "tests/script/fake_primary.h"
#include "tests/script/generated_code.h"

namespace corvane::script {
namespace {

// An expression in two forms that mean the same: with signs behind operators, and with names in their place. No bracket
// is computed, as its value brings a sign of its own.
struct Written {
  std::string with_signs, with_names;
};

class Generator {
 public:
  explicit Generator(uint64_t seed) : numbers_(seed) {}

  Written Expression() {
    Written made;
    Add(made, Operand(false));
    for (size_t count = 1 + numbers_.Below(4); count > 0; --count) {
      static const char* const kOperators[] = {"+", "-", "&", "*", "<", ">", "=", "<=", "<>", ",", " AND ", " OR "};
      const std::string op = kOperators[numbers_.Below(std::size(kOperators))];
      Add(made, {op, op});
      Add(made, Operand(op[0] != ' ' && numbers_.Below(2) == 0));
    }
    return made;
  }

 private:
  Written Operand(bool with_sign) {
    static const char* const kOperands[] = {"1", "2", "3", "5", "12", "15", "20", "A", "B", "NN", "YY"};
    const std::string operand = kOperands[numbers_.Below(std::size(kOperands))];
    if (!with_sign) return {operand, operand};
    const bool group = numbers_.Below(4) == 0;
    return {group ? "(-" + operand + ")" : "-" + operand, "MINUS" + operand};
  }

  static void Add(Written& made, const Written& more) {
    made.with_signs += more.with_signs;
    made.with_names += more.with_names;
  }

  GeneratedCode numbers_;
};

struct Evaluation {
  ScriptState state;
  FakeErrors errors{state};
  FakePrimary primary{state, errors};
  Expressions expressions{state, errors, primary};

  // The names have other values at each [turn].
  explicit Evaluation(int turn) {
    for (const auto& [name, value] : {std::pair{"A", 4}, {"B", 7}, {"NN", 3}, {"YY", 18}})
      AddName(name, value * (1 + 3 * turn));
    for (const int value : {1, 2, 3, 5, 12, 15, 20})
      primary.variables["MINUS" + std::to_string(value)] = std::to_string(-value);
  }

  void AddName(const std::string& name, int value) {
    primary.variables[name] = std::to_string(value);
    primary.variables["MINUS" + name] = std::to_string(-value);
  }

  std::string Value(const std::string& expression) {
    const bool truth = expressions.EvalExpression(expression);
    std::string value = TextOf(state.lastValue) + (truth ? " true" : " false");
    for (const std::string& message : errors.messages) value += message;
    errors.messages.clear();
    return value;
  }
};

bool IsFlagged(const std::string& code) {
  for (const SourceStatement& source : SourceStatements({{code, {1}}}))
    if (HasOddSign(source)) return true;
  return false;
}

TEST(OddSigns, WhatIsNotFlaggedIsReadAsWithNames) {
  Generator generator(7);
  int plain = 0, odd = 0, flagged_in_vain = 0;
  for (int round = 0; round < 20'000; ++round) {
    const Written made = generator.Expression();
    if (made.with_signs == made.with_names) continue;
    bool same = true;
    for (int turn = 0; turn < 3; ++turn)
      same = same && Evaluation(turn).Value(made.with_signs) == Evaluation(turn).Value(made.with_names);
    const bool flagged = IsFlagged("zz=" + made.with_signs);
    EXPECT_TRUE(same || flagged) << made.with_signs;
    if (!flagged) ++plain;
    if (flagged) ++(same ? flagged_in_vain : odd);
  }
  EXPECT_GT(plain, 1'000);
  EXPECT_GT(odd, 5'000);
  EXPECT_LT(flagged_in_vain, odd);
}

}  // namespace
}  // namespace corvane::script
