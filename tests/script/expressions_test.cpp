#include "script/expressions.h"

#include <gtest/gtest.h>

#include "script/extraction.h"
#include "script/simple_expression.h"
#include "tests/script/fake_engine.h"
#include "tests/script/fake_primary.h"

namespace corvane::script {
namespace {

// A value as the tests write it: its type, if not text, and its text form.
std::string Shown(const Cell& cell) {
  static const char* const kTypes[] = {"integer ", "", "double ", "boolean "};
  std::string text = TextOf(cell);
  for (char& c : text) c = c == listSep ? '|' : c == quoteMark ? '~' : c;
  return kTypes[cell.index()] + text;
}

struct Evaluated : testing::Test {
  ScriptState state;
  FakeErrors errors{state};
  FakePrimary primary{state, errors};
  Expressions expressions{state, errors, primary};
  using Texts = std::vector<std::string>;

  Evaluated() {
    primary.variables = {{"A", "1"}, {"B", "2"}, {"C", "3"}, {"X", "20"}, {"YY", "5"}, {"S", "ab c"}, {"Q", "\""}};
  }

  std::string Value(const std::string& text) {
    expressions.EvalExpression(text);
    return Shown(state.lastValue);
  }
  bool Truth(const std::string& text) { return expressions.EvalExpression(text); }
};

struct ValueCase {
  const char* expression;
  const char* value;
};
void Expect(Evaluated& test, std::initializer_list<ValueCase> cases) {
  for (const ValueCase& c : cases) EXPECT_EQ(test.Value(c.expression), c.value) << c.expression;
}

TEST_F(Evaluated, MultiplicationIsTakenOutFirst) {
  Expect(*this, {{"1+2*3", "7"}, {"2*3+4", "10"}, {"2*3+4*5", "26"}, {"8/4-1", "double 1"}});
  std::string text = "1+2*3";
  EXPECT_EQ(ExtractSubExpression(text, errors), "2*3");
  EXPECT_EQ(text, "1+{}");
  text = "1+6";
  EXPECT_EQ(ExtractSubExpression(text, errors), "1+6");
  EXPECT_EQ(text, "");
}

TEST_F(Evaluated, OneRankRunsFromLeftToRight) {
  Expect(*this, {{"1-2-3", "double -4"}, {"8/2/2", "double 2"}, {"1+2-3", "double 0"}});
}

TEST_F(Evaluated, AndTakesItsComparisonsOutFirst) {
  std::string text = "a=1 AND b=2";
  EXPECT_EQ(ExtractSubExpression(text, errors), "a=1");
  EXPECT_EQ(text, "{} AND b=2");
  text = "True AND b=2";
  EXPECT_EQ(ExtractSubExpression(text, errors), "b=2");
  EXPECT_EQ(text, "True AND {}");
  Expect(*this, {{"a=1 AND b=2", "boolean True"},
                 {"a=1 AND b=3", "boolean False"},
                 {"a=0 OR b=2", "boolean True"},
                 {"a=0 or b=3 and c=3", "boolean False"},
                 {"a=1 or b=3 and c=4", "boolean True"}});
}

TEST_F(Evaluated, AndTakesBothItsOperandsBeforeOr) {
  std::string text = "True AND False OR True";
  EXPECT_EQ(ExtractSubExpression(text, errors), "True AND False");
  EXPECT_EQ(text, "{} OR True");
}

TEST_F(Evaluated, AGroupIsReplacedWithItsBracketsACallKeepsThem) {
  std::string text = "(a+b)*c";
  EXPECT_EQ(ExtractSubExpression(text, errors), "a+b");
  EXPECT_EQ(text, "{}*c");
  text = "f(a+b)*c";
  EXPECT_EQ(ExtractSubExpression(text, errors), "a+b");
  EXPECT_EQ(text, "f({})*c");
  text = "2*ff(a)*c";
  EXPECT_EQ(ExtractSubExpression(text, errors), "ff(a)");
  EXPECT_EQ(text, "2*{}*c");
  Expect(*this, {{"(a+b)*c", "double 9"}, {"ff(a+b)*c", "double 9"}, {"((a+b))*c", "double 9"}});
}

TEST_F(Evaluated, TheInnermostBracketComesFirst) {
  std::string text = "aa(1)+bb((2+3)*4)";
  EXPECT_EQ(ExtractSubExpression(text, errors), "2+3");
  EXPECT_EQ(text, "aa(1)+bb(({})*4)");  // a group behind a bracket keeps its own
  EXPECT_EQ(Value("aa(1)+bb((2+3)*4)"), "21");
}

TEST_F(Evaluated, ASignBehindABracketIsNoOperator) {
  std::string text = "ff(-1)+2";
  EXPECT_EQ(ExtractSubExpression(text, errors), "ff(-1)");
  EXPECT_EQ(text, "{}+2");
  Expect(*this, {{"(-1)+2", "1"}, {"-1+2", "1"}, {"-a", "-1"}});
}

TEST_F(Evaluated, IntegerDivisionLosesItsRightOperand) {
  Expect(*this, {{"7\\2", "7"}, {"7\\2+1", "8"}});
}

TEST_F(Evaluated, ASumIsTextADifferenceADouble) {
  Expect(*this, {{"2+3", "5"}, {"2-3", "double -1"}, {"2*3", "double 6"}, {"3/2", "double 1.5"}});
}

TEST_F(Evaluated, ATextBesideAPlusJoinsTheRest) {
  Expect(*this, {{"\"a\"+1", "a1"}, {"\"a\"+1+2", "a12"}, {"1+2+\"a\"", "3a"}, {"1+\"a\"+2+3", "1a23"}});
}

TEST_F(Evaluated, ACommaListIsJoinedWithListSep) {
  Expect(*this, {{"a,b,c", "1|2|3"}, {"a,\"x,y\",c", "1|x,y|3"}, {"a+1,b*2", "2|4"}, {"\"\",a", "|1"}});
}

TEST_F(Evaluated, ATrailingCommaAddsASeparator) {
  Expect(*this, {{"a,b,", "1|2|"}, {"a,", "1|"}});
}

TEST_F(Evaluated, AnArrowIsAcceptedAndComparesNothing) {
  Expect(*this, {{"5=>9", "boolean True"}, {"0=>9", "boolean False"}, {"x=>1", "boolean True"}});
}

TEST_F(Evaluated, AComparisonIsABooleanUnlessItIsJoined) {
  Expect(*this,
         {{"5=5", "boolean True"}, {"\"x\"&(5=5)", "xTrue"}, {"(5=5)", "boolean True"}, {"(5=6)+1", "boolean False"}});
}

TEST_F(Evaluated, EqualIsTextual) {
  Expect(*this, {{"5=5.0", "boolean False"}, {"\"a\"=\"A\"", "boolean False"}, {"a<>b", "boolean True"}});
}

TEST_F(Evaluated, OrderingIsTextualForEqualLengths) {
  Expect(*this, {{"9<10", "boolean True"},
                 {"\"9\"<\"10\"", "boolean True"},
                 {"\"ab\"<\"ac\"", "boolean True"},
                 {"\"B\"<\"a\"", "boolean True"},
                 {"9.5<100", "boolean False"},
                 {"2>=2", "boolean True"},
                 {"3<=20", "boolean True"},
                 {"20<=3", "boolean False"}});
}

TEST_F(Evaluated, ATextOfAnotherLengthLeavesTheLeftOperandAsTruth) {
  Expect(*this, {{"\"abc\"<5", "boolean True"}, {"\"abc\">5", "boolean True"}, {"0<\"abc\"", "boolean False"}});
}

TEST_F(Evaluated, AChainComparesTheFirstOperandEachTime) {
  Expect(*this, {{"a=1=1", "boolean True"}, {"a=2=1", "boolean True"}, {"a=1=2", "boolean False"}});
}

TEST_F(Evaluated, NotBeforeAComparisonIsOverwrittenAndAroundItInverts) {
  Expect(*this, {{"NOT a", "boolean False"}, {"NOT(a=b)", "boolean True"}, {"NOT(a=1)", "boolean False"}});
  EXPECT_TRUE(Truth("NOT a=1"));  // the left operand was inverted, and then compared
  EXPECT_FALSE(state.notFlag);
}

// Behind AND it inverts what stands before the AND; in front of OR it inverts both together.
TEST_F(Evaluated, NotBesideAndAndOr) {
  Expect(*this, {{"1 AND NOT 0", "boolean False"},
                 {"0 AND NOT 0", "boolean True"},
                 {"NOT 0 OR 0", "boolean True"},
                 {"NOT 0 OR 1", "boolean False"}});
}

TEST_F(Evaluated, ATextThatIsNoTruthLeavesTheResultTrue) {
  EXPECT_TRUE(Truth("\"abc\""));
  EXPECT_TRUE(Truth("\"\""));
  EXPECT_FALSE(Truth("0"));
  EXPECT_FALSE(Truth("False"));
}

TEST_F(Evaluated, ADifferenceOfZeroIsFalse) {
  EXPECT_FALSE(Truth("1-1"));
  EXPECT_TRUE(Truth("1-2"));
}

TEST_F(Evaluated, AFailedConversionSkipsTheOperation) {
  Expect(*this, {{"5-\"x\"", "5"}, {"5*\"x\"", "5"}, {"5/0", "5"}, {"1E300*1E300", "1E300"}, {"\"x\" AND True", "x"}});
}

TEST_F(Evaluated, ASignBehindAnOperatorOfAnotherRankIsASimpleExpression) {
  EXPECT_EQ(Value("X>-15"), "boolean True");
  EXPECT_EQ(Value("X>2-30"), "boolean True");
  EXPECT_EQ(Value("ff(s,1,-15)"), "ab c|1|-15");
}

TEST_F(Evaluated, ASignBehindATimesLosesWhatTheTraceSays) {
  Expect(*this, {{"2*-3", "double -6"},
                 {"(2*-3)", "double -6"},
                 {"12*-3", "double 9"},
                 {"22*(3-15)", "double 10"},
                 {"YY*(-3)", "double 2"}});
}

TEST_F(Evaluated, ATextIsPutBackBetweenMarks) {
  Expect(*this, {{"\"a+b\"&(\"c,d\"&\"e\")", "a+bc,de"}, {"ff(s)&\"x\"", "ab cx"}, {"ff(\"\")&\"x\"", "x"}});
  EXPECT_EQ(primary.asked.back(), "\"x\"");
}

TEST_F(Evaluated, ANumberThatEndsInZeroIsPutBackAsAText) {
  Value("ff(10)=10");
  EXPECT_EQ(primary.asked, (Texts{"ff(10)", "\"10\"", "10"}));
}

TEST_F(Evaluated, DoubledQuotesAreUndoubledInLiteralsOnly) {
  Expect(*this, {{"\"a\"\"b\"", "a\"b"}, {"\"\"\"\"", "\""}, {"\"\"", ""}, {"(q&q)&\"\"", "\"\""}});
}

TEST_F(Evaluated, AColonAtTheEndIsSubstitutedOnceMore) {
  Expect(*this, {{"ff(\" 5\"):", "5"}, {"ff(\"1,5\"):", "1|5"}, {"ff(\"1,5\")", "1,5"}, {"a+b:", "3"}});
}

TEST_F(Evaluated, AnUnclosedBracketIsABadExpressionWithOkAndWithCancel) {
  state.lastValue = "before";
  EXPECT_TRUE(Truth("(a+b"));
  EXPECT_EQ(errors.messages, Texts{"Bad expression"});
  EXPECT_EQ(Shown(state.lastValue), "before");
  EXPECT_TRUE(primary.asked.empty());
  errors.cancel = true;
  EXPECT_TRUE(Truth("ff(a"));
  EXPECT_EQ(errors.messages, (Texts{"Bad expression", "Bad expression"}));
  EXPECT_TRUE(state.stopFlag);
}

TEST_F(Evaluated, OperatorsInStringsAreNotSeen) {
  Expect(*this, {{"\"1+2\"", "1+2"}, {"\"a AND b\"=\"a AND b\"", "boolean True"}, {"\"(\"&\")\"", "()"}});
}

TEST_F(Evaluated, BlanksAroundOperatorsAreAllowed) {
  Expect(*this, {{"a + b", "3"}, {"a = 1", "boolean True"}, {"a <> b", "boolean True"}, {" a ", "1"}});
}

TEST_F(Evaluated, AnAmpersandJoinsTheLastValue) {
  Expect(*this, {{"\"n=\"&x+1", "n=201"}, {"a&b&c", "123"}});
}

TEST_F(Evaluated, AMarkInATextTakesAValueAndEndsAllTheSame) {
  Expect(*this, {{"\"{}\"=1+2", "boolean False"}});
  state.lastValue = "{}";
  Value("2*-1&\"{}\"");
  Value("\"{}\"&2*-1&\"{}\"&ff(\"{}\")*-2");
}

TEST_F(Evaluated, ATruthInsideMakesTheWholeValueOneUnlessItIsJoined) {
  Expect(*this, {{"ff(\"True\")", "True"}, {"ff(ff(\"True\"))", "boolean True"}, {"ff(ff(\"True\")&\"\")", "True"}});
}

TEST_F(Evaluated, NegativeNumbersOfOneLengthCompareAsTexts) {
  Expect(*this, {{"-9<-5", "boolean False"}, {"-5<-9", "boolean True"}});
}

TEST_F(Evaluated, ABigNumberPutBackIsTakenApartAtItsSign) {
  EXPECT_EQ(Value("(1E15*10)*2"), "32");
  EXPECT_EQ(errors.messages, Texts{"Variable 1E is not found"});
  errors.messages.clear();
  Value("ff(\"1E+15\")-1");
  EXPECT_EQ(errors.messages, Texts{"Variable 1E is not found"});
}

TEST_F(Evaluated, ANumberOfAThousandDigitsIsAText) {
  const std::string digits(1001, '1');
  Expect(*this, {{("\"" + digits + "\"+1").c_str(), (digits + "1").c_str()}});
}

TEST_F(Evaluated, AMarkInATextTakesNoValueWhereNothingWasTakenOut) {
  state.lastValue = std::string(1000, 'x') + "{}{}{}";
  Expect(*this, {{"2*-1&\"{}\"", "-2{}"}, {"2*-1&\"{}\"", "-2{}"}});
}

TEST_F(Evaluated, AnEmptyExpressionIsTrueAndLeavesTheValue) {
  state.lastValue = "before";
  EXPECT_TRUE(Truth(""));
  EXPECT_TRUE(Truth(" :"));
  EXPECT_EQ(Shown(state.lastValue), "before");
}

TEST_F(Evaluated, SimpleTokensJoinAnEqualsOrGreaterToAnyOperator) {
  SimpleTokens tokens("a>=b <> c,>d AND -1");
  Texts seen;
  while (tokens.Next()) seen.push_back(tokens.token + " " + tokens.op);
  EXPECT_EQ(seen, (Texts{"a >=", "b <>", "c ,>", "d  ", "AND  ", "-1  "}));
}

TEST_F(Evaluated, RanksComeFromThePrecedenceText) {
  const struct {
    const char* op;
    int rank;
  } cases[] = {{"*", 9}, {"/", 9}, {"\\", 9}, {"+", 8}, {"&", 8},     {"-", 8},    {"<", 7},  {">", 7},
               {"=", 7}, {",", 1}, {" ", 0},  {"", 0},  {" AND ", 6}, {" OR ", 5}, {"<>", 0}, {"AND", 0}};
  for (const auto& c : cases) EXPECT_EQ(RankOf(c.op), c.rank) << c.op;
}

}  // namespace
}  // namespace corvane::script
