#include "runtime/strings.h"

#include <gtest/gtest.h>

#include "runtime/error.h"

namespace corvane::runtime {
namespace {

template <class Call>
long ErrorOf(Call call) {
  try {
    call();
    return 0;
  } catch (const Error& error) {
    return error.Number();
  }
}

TEST(Strings, InStrFindsFromAPositionOn) {
  EXPECT_EQ(InStr("abcabc", "c"), 3);
  EXPECT_EQ(InStr(4, "abcabc", "c"), 6);
  EXPECT_EQ(InStr("abc", "C"), 0);
  EXPECT_EQ(InStr(2, "abc", ""), 2);
  EXPECT_EQ(InStr("", ""), 0);
  EXPECT_EQ(InStr(4, "abc", "c"), 0);
  EXPECT_EQ(ErrorOf([] { InStr(0, "a", "a"); }), kInvalidProcedureCall);
}

TEST(Strings, InStrRevFindsFromTheEnd) {
  EXPECT_EQ(InStrRev("abcabc", "bc"), 5);
  EXPECT_EQ(InStrRev("abcabc", "bc", 5), 2) << "the place must end at or before the start";
  EXPECT_EQ(InStrRev("abc", "", 2), 2);
  EXPECT_EQ(InStrRev("", "a"), 0);
  EXPECT_EQ(InStrRev("abc", "a", 4), 0);
  EXPECT_EQ(ErrorOf([] { InStrRev("abc", "a", 0); }), kInvalidProcedureCall);
}

TEST(Strings, MidLeftAndRightCutByPositions) {
  EXPECT_EQ(Mid("abc", 2), "bc");
  EXPECT_EQ(Mid("abc", 2, 1), "b");
  EXPECT_EQ(Mid("abc", 4), "");
  EXPECT_EQ(Left("abc", 5), "abc");
  EXPECT_EQ(Right("abc", 2), "bc");
  EXPECT_EQ(Right("abc", 0), "");
  EXPECT_EQ(ErrorOf([] { Mid("a", 0); }), kInvalidProcedureCall);
  EXPECT_EQ(ErrorOf([] { Mid("a", 1, -1); }), kInvalidProcedureCall);
  EXPECT_EQ(ErrorOf([] { Left("a", -1); }), kInvalidProcedureCall);
  EXPECT_EQ(ErrorOf([] { Right("a", -1); }), kInvalidProcedureCall);
}

TEST(Strings, TrimTakesBlanksOnly) {
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(Trim(" \t "), "\t");
  EXPECT_EQ(LTrim("  a "), "a ");
  EXPECT_EQ(RTrim(" a\r\n "), " a\r\n");
  EXPECT_EQ(Trim("   "), "");
}

TEST(Strings, MakesCharactersAndRuns) {
  EXPECT_EQ(Space(3), "   ");
  EXPECT_EQ(String(2, 'x'), "xx");
  EXPECT_EQ(Chr(65), "A");
  EXPECT_EQ(Asc("\xFF"), 255);
  EXPECT_EQ(ErrorOf([] { Space(-1); }), kInvalidProcedureCall);
  EXPECT_EQ(ErrorOf([] { Chr(256); }), kInvalidProcedureCall);
  EXPECT_EQ(ErrorOf([] { Asc(""); }), kInvalidProcedureCall);
}

TEST(Strings, ReplaceLooksAtEachPlaceOnce) {
  EXPECT_EQ(Replace("aXbXc", "X", "XX"), "aXXbXXc");
  EXPECT_EQ(Replace("aaa", "aa", "b"), "ba");
  EXPECT_EQ(Replace("abc", "", "x"), "abc");
}

TEST(Strings, ValReadsTheLongestNumber) {
  const std::pair<const char*, double> kCases[] = {
      {"", 0},        {"12abc", 12}, {" 1 2", 12},  {"1.5.2", 1.5},     {"-3", -3},
      {"1E3x", 1000}, {"1d2", 100},  {"&HFF", 255}, {"&HFFFF", -1},     {"&H10000", 65536},
      {"&O17", 15},   {"&17", 15},   {"abc", 0},    {"inf", 0},         {"0x10", 0},
      {"&H", 0},      {"1,5", 1},    {".5", 0.5},   {"&HFFFFFFFF", -1}, {"--1", 0},
      {"&H-1", 0}};
  for (const auto& [text, value] : kCases) EXPECT_EQ(Val(text), value) << text;
}

TEST(Strings, CStrShowsFifteenDigits) {
  const std::pair<double, const char*> kCases[] = {{0, "0"},
                                                   {-2, "-2"},
                                                   {0.5, "0.5"},
                                                   {1e14, "100000000000000"},
                                                   {1e15, "1E+15"},
                                                   {0.00001, "0.00001"},
                                                   {1.0 / 3, "0.333333333333333"},
                                                   {1.0 / 30, "3.33333333333333E-02"},
                                                   {1e-16, "1E-16"},
                                                   {0.1 + 0.2, "0.3"},
                                                   {123456.789, "123456.789"}};
  for (const auto& [number, text] : kCases) EXPECT_EQ(CStr(number), text);
}

TEST(Strings, FormatFillsThePlacesOfItsPicture) {
  struct Case {
    double number;
    const char* picture;
    const char* text;
  };
  const Case kCases[] = {{7, "00", "07"},
                         {123, "00", "123"},
                         {7, "00#   ", "007   "},
                         {0, "#", ""},
                         {1.5, "0.00", "1.50"},
                         {1.005, "0.00", "1.01"},
                         {2.5, "0", "3"},
                         {-2.5, "0", "-3"},
                         {0.4, "#.##", ".4"},
                         {-0.001, "0.00", "0.00"},
                         {9.995, "0.00", "10.00"},
                         {12, "", "12"},
                         {3, "No 0.", "No 3."},
                         {1e-20, "0.0", "0.0"},
                         {123456789, "000", "123456789"}};
  for (const Case& c : kCases) EXPECT_EQ(Format(c.number, c.picture), c.text) << c.number << " " << c.picture;
}

}  // namespace
}  // namespace corvane::runtime
