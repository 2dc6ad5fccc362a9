#include "script/line_comments.h"

#include <gtest/gtest.h>

namespace corvane::script {
namespace {

std::string CodeOf(const char* line) {
  return std::string(LineComments().CodeOf(line).value_or("(dropped)"));
}

TEST(LineComments, ALineThatIsAComment) {
  for (const char* line : {"' note", "   'note", "'", "REM note", "  rem note", "Rem "})
    EXPECT_EQ(CodeOf(line), "(dropped)") << line;
  for (const char* line : {"REM", "REMARK=1", "x=1", ""}) EXPECT_EQ(CodeOf(line), line);
}

TEST(LineComments, ACommentBehindCodeIsCutOff) {
  EXPECT_EQ(CodeOf("x=1 ' note"), "x=1 ");
  EXPECT_EQ(CodeOf("x=1 ' it's \"so\" %>"), "x=1 ");
}

TEST(LineComments, BehindADoubleQuoteNothingIsCut) {
  EXPECT_EQ(CodeOf("x=\"it's\""), "x=\"it's\"");
  EXPECT_EQ(CodeOf("x=\"a\" ' note"), "x=\"a\" ' note");
}

TEST(LineComments, BehindALiteralNothingIsCut) {
  EXPECT_EQ(CodeOf("x=[[it's]]"), "x=[[it's]]");
  EXPECT_EQ(CodeOf("x=[[a]] ' note"), "x=[[a]] ' note");
}

TEST(LineComments, LinesInALiteralAreLeftAlone) {
  LineComments comments;
  EXPECT_EQ(comments.CodeOf("x=[[a"), "x=[[a");
  EXPECT_EQ(comments.CodeOf("' text"), "' text");
  EXPECT_EQ(comments.CodeOf("REM text"), "REM text");
  EXPECT_EQ(comments.CodeOf("b]] ' text"), "b]] ' text");
  EXPECT_EQ(comments.CodeOf("' note"), std::nullopt);
}

TEST(LineComments, ALiteralMayBeginInTheFirstLine) {
  LineComments comments;
  comments.Begin("x=[[a");
  EXPECT_EQ(comments.CodeOf("' text"), "' text");
}

TEST(LineComments, ALiteralBehindACommentDoesNotBegin) {
  LineComments comments;
  EXPECT_EQ(comments.CodeOf("y=1 'x=[["), "y=1 ");
  EXPECT_EQ(comments.CodeOf("' note"), std::nullopt);
}

TEST(LineComments, ManyLinesAreOnePiece) {
  EXPECT_EQ(CodeOfLines("x=1\r\ny=2"), "x=1\ty=2:");
  EXPECT_EQ(CodeOfLines("x=1 'a\r\n' b\r\ny=2 'c\r\n"), "x=1 'a\ty=2 \t:");
  EXPECT_EQ(CodeOfLines("\r\n\r\n"), "\t\t:");
  EXPECT_EQ(CodeOfLines(""), ":");
}

}  // namespace
}  // namespace corvane::script
