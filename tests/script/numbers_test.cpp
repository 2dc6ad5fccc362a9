#include "script/numbers.h"

#include <cmath>
#include <gtest/gtest.h>

namespace corvane::script {
namespace {

TEST(Numbers, AreReadAsThePlatformReadsThem) {
  const struct {
    const char* text;
    bool numeric;
    double value;
  } cases[] = {
      {"0", true, 0},
      {"12", true, 12},
      {" 12 ", true, 12},
      {"-1.5", true, -1.5},
      {"1e3", true, 1000},
      {"1D3", true, 1000},
      {"&HFF", true, 255},
      {"&o17", true, 15},
      {"$5", true, 5},
      {"-$5", true, -5},
      {"(5)", true, -5},
      {"5-", true, -5},
      {"1,234", true, 1234},
      {"", false, 0},
      {" ", false, 0},
      {"abc", false, 0},
      {"12a", false, 0},
      {"True", false, 0},
      {"1 2", false, 0},
      {"-", false, 0},
      {"&H", false, 0},
      {"1E999", false, 0},
      {"$", false, 0},
      {"$A", false, 0},
      {"999999999999999", true, 999999999999999.0},
      {"00012", true, 12},
  };
  for (const auto& c : cases) {
    const auto number = NumberOf(c.text);
    EXPECT_EQ(number.has_value(), c.numeric) << c.text;
    EXPECT_EQ(number.value_or(0), c.value) << c.text;
  }
}

TEST(Numbers, BooleansAreWordsAndNumbers) {
  EXPECT_EQ(BooleanOf("True"), true);
  EXPECT_EQ(BooleanOf("false"), false);
  EXPECT_EQ(BooleanOf("0"), false);
  EXPECT_EQ(BooleanOf("0.0"), false);
  EXPECT_EQ(BooleanOf("-3"), true);
  EXPECT_EQ(BooleanOf("abc"), std::nullopt);
  EXPECT_EQ(BooleanOf(""), std::nullopt);
}

TEST(Numbers, ANumberWithAZeroAtItsEndDoesNotLookNumeric) {
  EXPECT_TRUE(LooksNumeric("0"));
  EXPECT_TRUE(LooksNumeric("15"));
  EXPECT_TRUE(LooksNumeric("-1"));
  EXPECT_FALSE(LooksNumeric("10"));
  EXPECT_FALSE(LooksNumeric("a1"));
  EXPECT_FALSE(LooksNumeric(""));
  EXPECT_FALSE(LooksNumeric("5 "));
  EXPECT_TRUE(LooksNumeric(" 5"));
  EXPECT_TRUE(LooksNumeric("1E+15"));
}

TEST(Numbers, AreWrittenAsTheyAreReadBack) {
  const std::pair<double, const char*> cases[] = {{0.1, "0.1"},
                                                  {-2.5, "-2.5"},
                                                  {1e15, "1E+15"},
                                                  {1.0 / 3, "0.3333333333333333"},
                                                  {0.1 + 0.2, "0.30000000000000004"},
                                                  {1e16 - 2, "9999999999999998"},
                                                  {121932631112635269, "1.2193263111263526E+17"},
                                                  {1.0 / 30000, "3.3333333333333335E-05"}};
  for (const auto& [number, text] : cases) {
    EXPECT_EQ(TextOfNumber(number), text);
    EXPECT_EQ(NumberOf(text), number) << text;
  }
}

TEST(Numbers, OfManyDigitsAreReadBackAsTheSame) {
  double number = 1;
  for (int i = 0; i < 3000; ++i) {
    number *= i % 2 == 0 ? 1.2345678901234567 : 0.71234567890123;
    for (const double one : {number, 1 / number, std::sqrt(number), number * 1e200})
      EXPECT_EQ(NumberOf(TextOfNumber(one)), one) << TextOfNumber(one);
  }
}

}  // namespace
}  // namespace corvane::script
