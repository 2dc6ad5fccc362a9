#include "codelist/markup.h"

#include <gtest/gtest.h>

#include "codelist/line_store.h"

namespace corvane::codelist {
namespace {

TEST(Markup, CleanTextTakesTheMarksOut) {
  EXPECT_EQ(CleanText("/-\\\x02"
                      "End If/-\\/+\\"),
            "End If");
  EXPECT_EQ(CleanText("\x03(a!)b\x06"), "(a!)b");
  EXPECT_EQ(CleanText("\x04"
                      "1\x04"
                      "x"),
            "\x04"
            "1\x04"
            "x")
      << "a picture mark stays";
}

TEST(Markup, CleanTextLooksAtEachMarkOnce) {
  EXPECT_EQ(CleanText("//+\\-\\"), "") << "what the first pass brings together the second takes";
  EXPECT_EQ(CleanText("//-\\+\\"), "/+\\") << "but no pass comes again";
}

TEST(Markup, ThePlainLengthCountsNoMarks) {
  EXPECT_EQ(PlainLength(""), 0u);
  EXPECT_EQ(PlainLength(" \x02If"), 3u);
  EXPECT_EQ(PlainLength("\x03(a)\x06"), 3u);
  EXPECT_EQ(PlainLength("\x04"
                        "1\x04x"),
            4u)
      << "a picture mark is text";
}

TEST(Markup, MarksAreCountedFromLeftToRight) {
  EXPECT_EQ(SumOfMarks("a"), 0);
  EXPECT_EQ(SumOfMarks("/+\\/+\\a/-\\"), 1);
  EXPECT_EQ(SumOfMarks("/-\\/-"), -1);
  EXPECT_EQ(SumOfMarks("//+\\"), 1);
}

TEST(Markup, ANegativeLevelIsStoredAbove200) {
  EXPECT_EQ(EncodeLevel(0), 0);
  EXPECT_EQ(EncodeLevel(33), 33);
  EXPECT_EQ(EncodeLevel(-1), 201);
}

TEST(Markup, TheColourFollowsTheLevelInARingOfEleven) {
  EXPECT_EQ(LevelColor(33), forms::RGB(0, 0, 0));
  EXPECT_EQ(LevelColor(34), forms::RGB(0, 0, 255));
  EXPECT_EQ(LevelColor(35), forms::RGB(0, 128, 0));
  EXPECT_EQ(LevelColor(32), forms::RGB(128, 0, 0));
  EXPECT_EQ(LevelColor(-1), forms::RGB(128, 0, 0));
  EXPECT_EQ(LevelColor(201), forms::RGB(255, 0, 0));
}

TEST(Markup, EachLevelOfTheRingHasItsColour) {
  using forms::RGB;
  const forms::Color ring[] = {RGB(0, 0, 0),     RGB(0, 0, 255),   RGB(0, 128, 0),   RGB(255, 0, 0),
                               RGB(255, 0, 255), RGB(0, 128, 128), RGB(128, 0, 128), RGB(128, 128, 128),
                               RGB(0, 0, 128),   RGB(128, 128, 0), RGB(128, 0, 0)};
  for (long index = 0; index < 11; ++index) {
    EXPECT_EQ(LevelColor(BaseLevel + index), ring[index]) << index;
    EXPECT_EQ(LevelColor(index - 11), ring[index]) << index << " from below 0";
  }
}

TEST(LineStore, KeepsATextInPlaceWhileOthersAreAppendedAndReplaced) {
  LineStore store;
  store.Append("first", 33);
  const std::string_view first = store.Text(1);
  for (int i = 0; i < 100000; ++i) store.Append(std::string(20, 'x'), 34);
  store.Append(std::string(3'000'000, 'y'), 35);
  store.Replace(2, "second");
  EXPECT_EQ(first, "first");
  EXPECT_EQ(store.Text(2), "second");
  EXPECT_EQ(store.LineLevel(2), 34) << "the state stays";
  EXPECT_EQ(store.Text(100002).size(), 3'000'000u);
  EXPECT_EQ(store.Count(), 100002);
  store.Clear();
  EXPECT_EQ(store.Count(), 0);
  store.Append("", 33);
  EXPECT_EQ(store.Text(1), "");
}

TEST(LineStore, TellsVisibleLinesByTheirState) {
  LineStore store;
  for (int state : {33, 596, 597, 33 + kHidden, 0x3FFFF, 0x40000, 33 + kHidden + kBoundary, 33 + kHidden + kSelected})
    store.Append("x", state);
  const bool visible[] = {true, true, false, false, false, true, true, true};
  for (long i = 1; i <= store.Count(); ++i) EXPECT_EQ(store.IsVisible(i), visible[i - 1]) << i;
}

TEST(LineStore, TheLevelIsTheMaskedState) {
  LineStore store;
  store.Append("x", 34 + kHidden + kSelected);
  EXPECT_EQ(store.LineLevel(1), 34);
}

}  // namespace
}  // namespace corvane::codelist
