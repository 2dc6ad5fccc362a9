// The expression's plan against its plain form, on generated expressions and values.
#include <gtest/gtest.h>
#include <random>

#include "script/expressions.h"
#include "tests/script/fake_engine.h"
#include "tests/script/fake_primary.h"

namespace corvane::script {
namespace {

class Generated {
 public:
  explicit Generated(unsigned seed) : random_(seed) {}

  size_t Below(size_t limit) { return std::uniform_int_distribution<size_t>(0, limit - 1)(random_); }

  std::string Expression(int depth = 0) {
    std::string text = Operand(depth);
    for (size_t more = Below(4); more > 0; --more) text += Pick(kOperators) + Operand(depth);
    if (Below(30) == 0) text += ',';
    return text;
  }
  // With something missing, doubled or strange in it.
  std::string Damaged() {
    static const std::vector<std::string> kPieces = {"(", ")",  "\"", "{}", "-",     "+",  " ", ",", "=>", "&",
                                                     ":", "()", "((", "*-", " AND ", "\\", "'", ".", "&H", "NOT "};
    std::string text = Expression();
    for (size_t changes = 1 + Below(2); changes > 0; --changes) {
      const size_t at = Below(text.size() + 1);
      if (Below(3) == 0)
        text.erase(at, 1 + Below(3));
      else
        text.insert(at, Pick(kPieces));
    }
    return text;
  }
  std::string Value() {
    static const std::vector<std::string> kValues = {"1",
                                                     "20",
                                                     "-15",
                                                     "abc",
                                                     "",
                                                     "True",
                                                     "False",
                                                     "1,5",
                                                     "10",
                                                     "0",
                                                     "1E+15",
                                                     " 5",
                                                     "5 ",
                                                     "a+b",
                                                     "{}",
                                                     "\"",
                                                     "2.5",
                                                     "-3",
                                                     "$7",
                                                     "&H5",
                                                     "x:",
                                                     ")",
                                                     "(5",
                                                     "00",
                                                     "7",
                                                     "3",
                                                     "9",
                                                     "AND",
                                                     "1D2",
                                                     std::string(1, quoteMark),
                                                     std::string(1, listSep)};
    return Pick(kValues);
  }

 private:
  const std::string& Pick(const std::vector<std::string>& texts) { return texts[Below(texts.size())]; }

  std::string Operand(int depth) {
    static const std::vector<std::string> kSimple = {"a",    "b",  "cc",    "dd",      "1",    "2",
                                                     "15",   "10", "\"x\"", "\"a+b\"", "\"\"", "\"q\"\"q\"",
                                                     "True", "-a", "-4",    "3.5",     "none", "12"};
    static const std::vector<std::string> kCalls = {"ff", "run", "LEN", "gg", "NOT"};
    switch (depth < 3 ? Below(8) : 0) {
      case 6:
        return (Below(8) == 0 ? "-(" : "(") + Expression(depth + 1) + ")";
      case 7:
        return Pick(kCalls) + "(" + Expression(depth + 1) + ")";
      default:
        return Pick(kSimple);
    }
  }

  const std::vector<std::string> kOperators = {"+",  "-",  "*", "/",     "&",    "=", "<", ">", "<=", ">=", "<>",
                                               "=>", "\\", ",", " AND ", " OR ", "+", "-", "*", "&",  "="};
  std::mt19937 random_;
};

// One side of the comparison, with all that an evaluation may change.
struct Side {
  ScriptState state;
  FakeErrors errors{state};
  FakePrimary primary{state, errors};
  Expressions expressions{state, errors, primary};

  void Start(const std::map<std::string, std::string>& variables, bool cancel) {
    state.lastValue = std::string("before");
    state.notFlag = state.stopFlag = false;
    errors.messages.clear();
    errors.cancel = cancel;
    primary.asked.clear();
    primary.variables = variables;
  }
};

// Values that are known are not asked for by the plan; they can have no effect.
std::vector<std::string> WithoutKnown(const std::vector<std::string>& asked) {
  std::vector<std::string> rest;
  for (const std::string& token : asked) {
    const std::string number = token[0] == '-' ? token.substr(1) : token;
    const bool known = token.empty() || token[0] == '"' || token == "True" || token == "False" ||
                       (number.find('(') == std::string::npos && IsNumeric(number));
    if (!known) rest.push_back(token);
  }
  return rest;
}

struct Compared {
  Side plain, fast;
  long planned = 0;

  void Expect(const std::string& text, Generated& generated) {
    // Met twice, an expression has its plan; then with other values each time.
    for (int round = 0; round < 5; ++round) {
      std::map<std::string, std::string> variables;
      for (const char* name : {"A", "B", "CC", "DD"}) variables[name] = generated.Value();
      const bool cancel = generated.Below(6) == 0;
      plain.Start(variables, cancel);
      fast.Start(variables, cancel);
      const bool plain_result = plain.expressions.EvalLiterally(text);
      const bool fast_result = fast.expressions.EvalExpression(text);
      const std::string where =
          text + " with " + variables["A"] + "|" + variables["B"] + "|" + variables["CC"] + "|" + variables["DD"];
      ASSERT_EQ(fast_result, plain_result) << where;
      ASSERT_EQ(fast.state.lastValue.index(), plain.state.lastValue.index()) << where;
      ASSERT_EQ(TextOf(fast.state.lastValue), TextOf(plain.state.lastValue)) << where;
      ASSERT_EQ(fast.state.notFlag, plain.state.notFlag) << where;
      ASSERT_EQ(fast.state.stopFlag, plain.state.stopFlag) << where;
      ASSERT_EQ(fast.errors.messages, plain.errors.messages) << where;
      ASSERT_EQ(WithoutKnown(fast.primary.asked), WithoutKnown(plain.primary.asked)) << where;
    }
    planned += PlanExpression(text).has_value();
  }
};

TEST(ExpressionDifferential, GeneratedExpressions) {
  Compared compared;
  for (unsigned seed = 0; seed < 4000; ++seed) {
    Generated generated(seed);
    compared.Expect(generated.Expression(), generated);
    if (testing::Test::HasFatalFailure()) return;
  }
  EXPECT_GT(compared.planned, 2500);
}

TEST(ExpressionDifferential, DamagedExpressions) {
  Compared compared;
  for (unsigned seed = 0; seed < 4000; ++seed) {
    Generated generated(100000 + seed);
    compared.Expect(generated.Damaged(), generated);
    if (testing::Test::HasFatalFailure()) return;
  }
}

}  // namespace
}  // namespace corvane::script
