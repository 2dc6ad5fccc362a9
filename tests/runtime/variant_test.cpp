#include "runtime/variant.h"

#include <gtest/gtest.h>

#include "runtime/error.h"

namespace corvane::runtime {
namespace {

long NumberOfError(const Variant& value) {
  try {
    ToNumber(value);
    return 0;
  } catch (const Error& error) {
    return error.Number();
  }
}

TEST(Variant, IsReadAsText) {
  EXPECT_EQ(ToText(Variant()), "");
  EXPECT_EQ(ToText(true), "True");
  EXPECT_EQ(ToText(false), "False");
  EXPECT_EQ(ToText(-3L), "-3");
  EXPECT_EQ(ToText(0.5), "0.5");
  EXPECT_EQ(ToText(std::string("a")), "a");
  EXPECT_EQ(ToText(PictureRef()), "");
}

TEST(Variant, IsReadAsANumber) {
  const std::pair<const char*, double> kTexts[] = {{" 5 ", 5},     {"5-", -5},   {"(5)", -5},   {"1,234.5", 1234.5},
                                                   {"1,2", 12},    {"1D2", 100}, {"&HFF", 255}, {"&HFFFF", -1},
                                                   {"-1E2", -100}, {".5", 0.5}};
  for (const auto& [text, number] : kTexts) EXPECT_EQ(ToNumber(std::string(text)), number) << text;
  EXPECT_EQ(ToNumber(true), -1);
  EXPECT_EQ(ToNumber(Variant()), 0);
}

TEST(Variant, WhatIsNoNumberIsATypeMismatch) {
  for (const char* text : {"", " ", "-", ".", "&H", "&HG", "1 2", "5%", "abc", "inf", "nan", "0x10", "1.2.3"})
    EXPECT_EQ(NumberOfError(std::string(text)), kTypeMismatch) << text;
  EXPECT_EQ(NumberOfError(PictureRef()), kTypeMismatch);
  EXPECT_EQ(NumberOfError(std::string("1E999")), kOverflow);
}

TEST(Variant, WholeNumbersRoundHalvesToEven) {
  EXPECT_EQ(ToLong(2.5), 2);
  EXPECT_EQ(ToLong(3.5), 4);
  EXPECT_EQ(ToLong(-2.5), -2);
  EXPECT_THROW(ToLong(3e9), Error);
}

TEST(Variant, IsReadAsABoolean) {
  for (const char* text : {"True", "TRUE", "#true#", "1", "-2"}) EXPECT_TRUE(ToBoolean(std::string(text))) << text;
  for (const char* text : {"False", "#FALSE#", "0"}) EXPECT_FALSE(ToBoolean(std::string(text))) << text;
  EXPECT_THROW(ToBoolean(std::string("yes")), Error);
}

TEST(Errors, CarryVisualBasicsDescriptions) {
  EXPECT_EQ(Error(kTypeMismatch).Description(), "Type mismatch");
  EXPECT_EQ(Error(12345).Description(), "Application-defined or object-defined error");
  EXPECT_FALSE(PassOverErrors([] { throw Error(5); }));
  EXPECT_TRUE(PassOverErrors([] {}));
  EXPECT_THROW(PassOverErrors([] { throw std::runtime_error("x"); }), std::runtime_error);
}

}  // namespace
}  // namespace corvane::runtime
