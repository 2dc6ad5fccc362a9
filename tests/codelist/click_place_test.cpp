#include "codelist/click_place.h"

#include <gtest/gtest.h>

#include "codelist/markup.h"
#include "runtime/strings.h"

namespace corvane::codelist {
namespace {

// Every character is 100 twips wide.
forms::Twips Width(std::string_view text) {
  return static_cast<forms::Twips>(text.size()) * 100;
}

ClickPlace At(std::string_view readable, forms::Twips x) {
  const std::string text = runtime::Replace(runtime::Replace(readable, "{", kLevelUp), "}", kLevelDown);
  return PlaceAt(runtime::Replace(text, "^", "\x02"), 34, x, Width);
}

TEST(ClickPlace, IsTheCharacterAtWhoseEndTheWidthIsReached) {
  EXPECT_EQ(At("abcdef", -50).position, 1u);
  EXPECT_EQ(At("abcdef", 0).position, 1u);
  EXPECT_EQ(At("abcdef", 100).position, 1u);
  EXPECT_EQ(At("abcdef", 101).position, 2u);
  EXPECT_EQ(At("abcdef", 600).position, 6u);
}

TEST(ClickPlace, BehindTheTextIsOneBehindTheLastCharacter) {
  EXPECT_EQ(At("abcdef", 601).position, 7u);
  EXPECT_EQ(At("", 10).position, 1u);
}

TEST(ClickPlace, MarksTakeNoRoomAndAreCountedUpToThere) {
  const char* line = "^If{ a }^Then{";
  EXPECT_EQ(At(line, 10).text, "If a Then");
  EXPECT_EQ(At(line, 200).level, 34) << "the keyword stands at the outer level";
  EXPECT_EQ(At(line, 201).level, 35);
  EXPECT_EQ(At(line, 501).level, 34);
  EXPECT_EQ(At(line, 5000).level, 35) << "behind the text all of them";
}

TEST(ClickPlace, AMarkInFrontOfTheFirstCharacterCounts) {
  EXPECT_EQ(At("}^Next", 1).level, 33);
}

TEST(ClickPlace, AnEndlessLineIsNotMeasuredCharacterByCharacter) {
  const std::string line(1'000'000, 'x');
  long measured = 0;
  const auto place = PlaceAt(line, 33, 5000, [&](std::string_view text) {
    measured += static_cast<long>(text.size());
    return static_cast<forms::Twips>(text.size()) * 100;
  });
  EXPECT_EQ(place.position, 50u);
  EXPECT_LT(measured, 1000);
}

}  // namespace
}  // namespace corvane::codelist
