#include <gtest/gtest.h>

#include "tests/script/translated.h"
#include "tests/support/processor_time.h"

namespace corvane::script {
namespace {

std::string Repeated(const std::string& code, int count) {
  std::string all;
  for (int i = 0; i < count; ++i) all += code;
  return all;
}

double Seconds(const std::string& code) {
  return tests::SecondsOf([&] { EXPECT_FALSE(Translated(code).flat.empty()); });
}

// A bound for slow machines and sanitizers; in a release build it takes a small part of it.
TEST(TranslatorSpeed, TenThousandLinesAreTranslatedAtOnce) {
  const std::string code =
      "total=total+f(\"a\",i)\nIF total>100 THEN x=\"big\"\nFOR i=1 TO 10\nPRINT(i & \" of \" & n)\n"
      "NEXT\nIF a THEN\nb=1 ' note\nELSE\nc=2\nEND IF\n";
  EXPECT_LT(Seconds(Repeated(code, 1000)), 1);
}

// Four times the length; with a copy of the rest at each statement it would take sixteen times as long.
TEST(TranslatorSpeed, GrowsWithTheLengthOfThePiece) {
  const auto seconds = [](int count) { return Seconds(Repeated("FOR i=1 TO 10\nx=x+1\nNEXT\n", count)); };
  EXPECT_LT(seconds(8000), 8 * seconds(2000) + 0.2);
}

TEST(TranslatorSpeed, APieceOfHalvesOfConstructsGrowsWithItsLength) {
  for (const char* code : {"VAR(x=1\n", "x=[[a\n", "x=1 'a\n", "y=/*", "f(\n"}) {
    const auto seconds = [&](int count) {
      return Seconds(Repeated("abc=1\n", 10) + Repeated(code, count) + Repeated("abc=12345\n", count));
    };
    EXPECT_LT(seconds(4000), 8 * seconds(1000) + 0.2) << code;
  }
}

}  // namespace
}  // namespace corvane::script
