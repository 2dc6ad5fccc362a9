#include "cli/view_command.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <regex>
#include <sstream>

#include "runtime/code_page.h"

namespace corvane::cli {
namespace {

using testing::HasSubstr;
using testing::Not;

std::string View(const std::string& bytes, bool html = false, const std::string& name = "a.bas", bool fold = false) {
  std::ostringstream out;
  EXPECT_EQ(ViewFile(bytes, {name, html, fold, 1252}, out), 0);
  return out.str();
}

std::string PlainText(const std::string& shown) {
  return std::regex_replace(shown, std::regex("\x1b\\[[0-9;]*m"), "");
}

TEST(ViewFile, ColoursTheTerminalByLevel) {
  EXPECT_EQ(View("If a Then\nb\nEnd If\nc 'd\n"),
            "\x1b[1;39mIf\x1b[0m\x1b[94m a \x1b[0m\x1b[1;39mThen\x1b[0m\n"
            "\x1b[94mb\x1b[0m\n"
            "\x1b[1;39mEnd If\x1b[0m\n"
            "c \x1b[90m'd\x1b[0m\n");
}

TEST(ViewFile, WritesAPageWithTheLevelColours) {
  const std::string page = View("Do\n  x < 1\nLoop\n", true);
  EXPECT_THAT(page, HasSubstr("<title>a.bas</title>"));
  EXPECT_THAT(page, HasSubstr("<span style=\"color:#000000;font-weight:bold\">Do</span>"));
  EXPECT_THAT(page, HasSubstr("<span style=\"color:#0000ff\">  x &lt; 1</span>\n"));
}

TEST(ViewFile, GoesOnBehindAProcedure) {
  EXPECT_THAT(View("Sub a()\nEnd Sub\nSub b()\nEnd Sub\n"), HasSubstr("Sub b()\n"));
}

TEST(ViewFile, LeavesTheHeadOfAModulePlain) {
  const std::string shown = View(
      "VERSION 5.00\r\nBegin VB.Form For \r\nEnd\r\nAttribute VB_Name = \"Do \"\r\n"
      "Attribute VB_Exposed = False\r\nDo\r\n");
  EXPECT_THAT(shown, HasSubstr("Begin VB.Form For \nEnd\nAttribute VB_Name = \"Do \"\nAttribute VB_Exposed = False\n"));
  EXPECT_THAT(shown, HasSubstr("\x1b[1;39mDo\x1b[0m"));
}

TEST(ViewFile, TakesSqlForSql) {
  EXPECT_THAT(View("select 1 -- x\n", false, "A.SQL"), HasSubstr("\x1b[1;39mSelect\x1b[0m 1 \x1b[90m-- x\x1b[0m\n"));
}

TEST(ViewFile, FoldedShowsTheSkeletonOfTheCode) {
  const std::string code = "Sub a()\nIf b Then\nc = 1\nFor i = 1 To 2\nd = 2\nNext i\nEnd If\ne = 3\nEnd Sub\n";
  EXPECT_EQ(PlainText(View(code, false, "a.bas", true)),
            "Sub a()\nIf b Then\nFor i = 1 To 2\nNext i\nEnd If\ne = 3\nEnd Sub\n");
  EXPECT_EQ(PlainText(View(code)), code);
}

TEST(ViewFile, ALevelLeftOpenInAProcedureFoldsNothingOfTheNext) {
  const std::string code =
      "Dim m\n\nSub a()\nIf x Then If y Then c\nb\nEnd Sub\n\n"
      "Sub b()\nFor i = 1 To 2\nd\nNext i\nEnd Sub\nSub c()\nEnd Sub\n";
  const std::string shown = PlainText(View(code, false, "a.bas", true));
  for (const char* line : {"Sub a()\n", "Sub b()\nFor i = 1 To 2\nNext i\nEnd Sub\n", "Sub c()\nEnd Sub\n"})
    EXPECT_THAT(shown, HasSubstr(line));
  EXPECT_THAT(shown, Not(HasSubstr("d\n")));
}

TEST(ViewFile, FoldingLeavesTheHeadOfAModuleWhole) {
  const std::string head = "VERSION 5.00\nBegin VB.Form F\n   Caption = 1\nEnd\nAttribute VB_Name = \"F\"\n";
  EXPECT_EQ(PlainText(View(head + "With a\nx\nEnd With\n", false, "F.frm", true)), head + "With a\nEnd With\n");
}

TEST(ViewFile, KeepsTheTextAsItIs) {
  EXPECT_EQ(View("x = \"\xE4\"\n"), "x = \"\xC3\xA4\"\n");
}

}  // namespace
}  // namespace corvane::cli
