#include "codelist/formatter.h"

#include <gtest/gtest.h>
#include <string>

#include "codelist/markup.h"
#include "runtime/strings.h"

namespace corvane::codelist {
namespace {

std::string Marked(std::string_view readable) {
  const std::string text = runtime::Replace(runtime::Replace(readable, "{", kLevelUp), "}", kLevelDown);
  return runtime::Replace(text, "^", "\x02");
}

TEST(Formatter, EachLevelIsAStepOfTwoBlanks) {
  EXPECT_EQ(Formatted(Marked("        x = 1"), 33), "x = 1");
  EXPECT_EQ(Formatted(Marked("x = 1"), 35), "    x = 1");
  EXPECT_EQ(Formatted("", 35), "    ") << "an empty line too";
}

TEST(Formatter, ALineThatClosesABlockStandsOneStepOut) {
  EXPECT_EQ(Formatted(Marked("   }^Next{}i"), 35), "  Nexti");
  EXPECT_EQ(Formatted(Marked("L1: }^Next"), 35), "    L1: Next") << "only at the start of the text";
}

TEST(Formatter, ALineThatStartsWithALevelUpStandsOneStepIn) {
  EXPECT_EQ(IndentOf(Marked("  {x"), 34), 2);
}

TEST(Formatter, AClosingKeywordAtTheOutermostLevelIsNeverNegative) {
  EXPECT_EQ(IndentOf(Marked("}^Next"), 33), 0);
  EXPECT_EQ(Formatted(Marked("}^Next"), 33), "Next");
}

TEST(Formatter, BehindTheEleventhLevelTheIndentBeginsAgain) {
  EXPECT_EQ(IndentOf("x", 43), 10);
  EXPECT_EQ(IndentOf("x", 44), 0);
  EXPECT_EQ(IndentOf(Marked("}x"), 44), 0) << "not ten";
  EXPECT_EQ(IndentOf("x", 201), 3) << "the word of a level below none";
}

TEST(Formatter, ACommentLineInsideABlockKeepsItsIndent) {
  EXPECT_EQ(Formatted("      'as it is", 35), std::nullopt);
  EXPECT_EQ(Formatted("'", 35), std::nullopt);
}

TEST(Formatter, CommentingPutsAMarkInFront) {
  EXPECT_EQ(Commented("  x = 1"), "'  x = 1");
}

TEST(Formatter, UncommentingGivesTheCodeBack) {
  EXPECT_EQ(Uncommented("'x = 1"), "x = 1");
  EXPECT_EQ(Uncommented("   '  y = 2"), "  y = 2") << "the blanks in front go";
  EXPECT_EQ(Uncommented("'.Caption = a"), ".Caption = a");
  EXPECT_EQ(Uncommented("''x"), "'x");
  EXPECT_EQ(Uncommented("'+ 1"), "+ 1");
  EXPECT_EQ(Uncommented("'& a"), "& a");
  EXPECT_EQ(Uncommented("'"), "");
}

TEST(Formatter, UncommentingLeavesDecorationAndCodeAlone) {
  EXPECT_EQ(Uncommented("'-----"), std::nullopt);
  EXPECT_EQ(Uncommented("'1. first"), std::nullopt);
  EXPECT_EQ(Uncommented("'\xC4ndern"), std::nullopt) << "no letter from A to Z";
  EXPECT_EQ(Uncommented("x = 1 'a"), std::nullopt);
  EXPECT_EQ(Uncommented("\t'x"), std::nullopt) << "blanks only";
  EXPECT_EQ(Uncommented("x"), std::nullopt);
  EXPECT_EQ(Uncommented(""), std::nullopt);
}

TEST(Formatter, PrintingStepsByFourBlanksAndPutsCommentsToTheEdge) {
  EXPECT_EQ(Printed(Marked("  ^If{ a"), 34), "    If a");
  EXPECT_EQ(Printed("     'a comment  ", 35), "'a comment");
}

}  // namespace
}  // namespace corvane::codelist
