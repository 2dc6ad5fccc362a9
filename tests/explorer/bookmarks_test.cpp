// What is remembered of the lines that the user marks.
#include "explorer/bookmarks.h"

#include <gtest/gtest.h>

#include "explorer/rows.h"

namespace corvane::explorer {
namespace {

TEST(Bookmarks, ARowIsTheLineItsModuleAndItsNumber) {
  Bookmarks bookmarks;
  bookmarks.Put("    x = 1", "modMain", 12);
  ASSERT_EQ(bookmarks.Count(), 1);
  EXPECT_EQ(bookmarks.Row(0), "    x = 1" + std::string(160, ' ') + "\\+\\modMain\t12");
}

TEST(Bookmarks, TheEleventhDropsTheOldest) {
  Bookmarks bookmarks;
  for (long line = 1; line <= 11; ++line) bookmarks.Put("line " + std::to_string(line), "modMain", line);
  ASSERT_EQ(bookmarks.Count(), 10);
  for (long index = 0; index < 10; ++index) EXPECT_EQ(ReadBookmark(bookmarks.Row(index)).line, index + 2);
}

TEST(Bookmarks, TheSameLineTwiceInARowIsStoredOnce) {
  Bookmarks bookmarks;
  bookmarks.Put("x = 1", "modMain", 12);
  bookmarks.Put("x = 1", "modMain", 12);
  EXPECT_EQ(bookmarks.Count(), 1);
}

TEST(Bookmarks, TheNewestOfAFullListTwiceInARowDropsNothing) {
  Bookmarks bookmarks;
  for (long line = 1; line <= 10; ++line) bookmarks.Put("line", "modMain", 100 + line);
  bookmarks.Put("line", "modMain", 110);
  EXPECT_EQ(bookmarks.Count(), 10);
  EXPECT_EQ(ReadBookmark(bookmarks.Row(0)).line, 101);
}

TEST(Bookmarks, TheSameLineBehindAnotherIsStoredAgain) {
  Bookmarks bookmarks;
  for (long line : {12, 13, 12}) bookmarks.Put("x = 1", "modMain", line);
  EXPECT_EQ(bookmarks.Count(), 3);
}

TEST(Bookmarks, AnEqualLineWhoseNumberBeginsWithThatOfTheNewestIsLost) {
  const struct { long first, second, count; } kCases[] = {{1, 10, 1}, {2, 25, 1}, {1, 2, 2}, {10, 1, 2}, {12, 1, 2}};
  for (const auto& c : kCases) {
    Bookmarks bookmarks;
    bookmarks.Put("End If", "modMain", c.first);
    bookmarks.Put("End If", "modMain", c.second);
    EXPECT_EQ(bookmarks.Count(), c.count) << c.first << " then " << c.second;
  }
}

TEST(Bookmarks, AnotherTextOrModuleIsAnotherLine) {
  Bookmarks bookmarks;
  bookmarks.Put("x = 1", "modMain", 5);
  bookmarks.Put("x = 1", "modMain2", 5);
  bookmarks.Put("x = 12", "modMain2", 5);
  EXPECT_EQ(bookmarks.Count(), 3);
}

TEST(Bookmarks, NoneAreLeftWhenTheyAreCleared) {
  Bookmarks bookmarks;
  bookmarks.Put("x = 1", "modMain", 5);
  bookmarks.Clear();
  EXPECT_EQ(bookmarks.Count(), 0);
  bookmarks.Put("x = 1", "modMain", 5);
  EXPECT_EQ(bookmarks.Count(), 1);
}

}  // namespace
}  // namespace corvane::explorer
