#include "script/unread_text.h"

#include <ctime>
#include <gtest/gtest.h>

namespace corvane::script {
namespace {

TEST(UnreadText, IsEatenFromItsFront) {
  UnreadText text("one two");
  text.Cut(4);
  EXPECT_EQ(text.Text(), "two");
  EXPECT_EQ(text.Front(), 't');
  text.Cut(99);
  EXPECT_TRUE(text.Empty());
  EXPECT_EQ(text.Front(), '\0');
}

TEST(UnreadText, TakesTextBackAtItsFront) {
  UnreadText text("three");
  text.Push("two ");
  text.Push("one ");
  EXPECT_EQ(text.Text(), "one two three");
  text.Cut(4);
  text.Push("1 ");
  EXPECT_EQ(text.Text(), "1 two three");
  EXPECT_EQ(text.Size(), 11u);
}

TEST(UnreadText, IsSearchedInWhatIsLeft) {
  UnreadText text("a b a c");
  text.Cut(1);
  EXPECT_EQ(text.Find("a"), 4);
  EXPECT_EQ(text.Find("x"), 0);
  EXPECT_TRUE(text.BeginsWith(" b"));
  EXPECT_FALSE(text.BeginsWith(" b a c and more"));
}

TEST(UnreadText, CutsCharactersOfASet) {
  UnreadText text(": :x:");
  text.CutAnyOf(" :");
  EXPECT_EQ(text.Text(), "x:");
  text.CutAnyOf("x:");
  EXPECT_TRUE(text.Empty());
}

// A copy of the text at each step would take minutes.
TEST(UnreadText, NeitherCuttingNorPushingCostsTheTextBehind) {
  UnreadText text(std::string(20'000'000, 'x'));
  const std::clock_t start = std::clock();
  for (int i = 0; i < 100'000; ++i) {
    text.Cut(20);
    text.Push("thirty characters are put here");
  }
  EXPECT_EQ(text.Size(), 20'000'000u + 100'000 * 10);
  EXPECT_LT(std::clock() - start, 5 * CLOCKS_PER_SEC);
}

}  // namespace
}  // namespace corvane::script
