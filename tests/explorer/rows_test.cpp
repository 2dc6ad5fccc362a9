#include "explorer/rows.h"

#include <gtest/gtest.h>

#include "runtime/strings.h"

namespace corvane::explorer {
namespace {

TEST(Rows, TheTailTellsTheComponent) {
  EXPECT_EQ(TailOf(12), std::string(160, ' ') + " +|12");
  EXPECT_EQ(TailOf(0), "");
  EXPECT_EQ(ComponentInTail("Sub A()" + TailOf(12)), 12);
  EXPECT_EQ(ShownText("Sub A()" + TailOf(12)), "Sub A()");
}

TEST(Rows, TheLastMarkCounts) {
  EXPECT_EQ(ComponentInTail("x = \" +|7\"" + TailOf(3)), 3);
}

TEST(Rows, AMarkInFrontOfPositionFiveIsNoTail) {
  EXPECT_EQ(ComponentInTail("abc +|7"), -1);
  EXPECT_EQ(ComponentInTail("abcd +|7"), 7);
  EXPECT_EQ(ComponentInTail("Sub A()"), -1);
}

TEST(Rows, TheFirstRowOfTheCurrentCodeHasItsTailFartherBehind) {
  EXPECT_EQ(CurrentDeclarations(3), "  Declarations" + std::string(200, ' ') + " +|3");
}

TEST(Rows, TheTitleOfAStandardModule) {
  const std::string stars = " ****************************** ";
  EXPECT_EQ(TitleOfModule("modMain"), stars + "Standart Module: modMain" + stars);
  EXPECT_TRUE(IsTitleOfModule(TitleOfModule("modMain")));
  EXPECT_FALSE(IsTitleOfModule("' Standart Module: modMain"));
  EXPECT_EQ(ModuleOfTitle(TitleOfModule("modMain")), "modMain");
  EXPECT_EQ(ModuleOfTitle(TitleOfModule(std::string(40, 'm'))), std::string(30, 'm'));
}

TEST(Rows, ABookmarkKeepsItsModuleAndLine) {
  std::string row = BookmarkRow("x = 1", "modMain", 12);
  EXPECT_EQ(row, "x = 1" + std::string(160, ' ') + "\\+\\modMain\t12");
  ASSERT_TRUE(IsBookmark(row));
  Bookmark bookmark = ReadBookmark(row);
  EXPECT_EQ(runtime::RTrim(bookmark.text), "x = 1");
  EXPECT_EQ(bookmark.module, "modMain");
  EXPECT_EQ(bookmark.line, 12);
  EXPECT_FALSE(IsBookmark("x = 1" + TailOf(3)));
  EXPECT_FALSE(IsBookmark("abc \\+\\modMain\t12"));
  EXPECT_TRUE(IsBookmark("abcd \\+\\modMain\t12"));
}

TEST(Rows, ABookmarksTextMayHoldTheMarkItself) {
  const Bookmark bookmark = ReadBookmark(BookmarkRow("a \\+\\b\tc", "modMain", 12));
  EXPECT_EQ(runtime::RTrim(bookmark.text), "a \\+\\b\tc");
  EXPECT_EQ(bookmark.module, "modMain");
  EXPECT_EQ(bookmark.line, 12);
}

TEST(Rows, TheLabelStandsInFrontOfTheColon) {
  EXPECT_EQ(LabelOf("frmMain:    001   x"), "frmMain");
  EXPECT_EQ(LabelOf("Sub A()"), "");
}

}  // namespace
}  // namespace corvane::explorer
