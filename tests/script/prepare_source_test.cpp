#include "script/prepare_source.h"

#include <gtest/gtest.h>

#include "tests/script/translated.h"

namespace corvane::script {
namespace {

using Lines = std::vector<std::string>;

struct Cleaned {
  explicit Cleaned(const std::string& code) : report(state), text(PrepareSource(Piece(code), report)) {}
  ScriptState state;
  RecordedErrors report;
  std::string text;
};

TEST(PrepareSource, TakesBlanksAwayBesideOperatorsAndBrackets) {
  const std::pair<const char*, const char*> cases[] = {
      {"a = b + c", "a=b+c:"}, {"a  +b", "a+b:"},       {"f ( 1 , 2 )", "f(1 , 2):"},
      {"a   b", "a b:"},       {"f(1) b", "f(1) b:"},   {"f(1) = 2", "f(1)=2:"},
      {"x : y", "x:y:"},       {"a | b & c", "a|b&c:"}, {"  a  ", "a:"},
      {"x \t y", "x \t y:"},
  };
  for (const auto& [code, cleaned] : cases) EXPECT_EQ(Cleaned(code).text, cleaned) << code;
}

TEST(PrepareSource, LooksAtTheSameColumnAgainBehindARemoval) {
  EXPECT_EQ(Cleaned("a  +b").text, "a+b:");
  EXPECT_EQ(Cleaned("a(     b").text, "a(b:");
}

TEST(PrepareSource, EndsShortTextsWithAColonToo) {
  EXPECT_EQ(Cleaned("").text, ":");
  EXPECT_EQ(Cleaned("  ").text, ":");
  EXPECT_EQ(Cleaned("a").text, "a:");
  EXPECT_EQ(Cleaned("a=").text, "a=:");
}

TEST(PrepareSource, KeepsTheBlankBetweenOrOrAndAndABracket) {
  EXPECT_EQ(Cleaned("a OR (b)").text, "a OR (b):");
  EXPECT_EQ(Cleaned("a and (b)").text, "a and (b):");
  EXPECT_EQ(Cleaned("a NOT (b)").text, "a NOT(b):");
}

TEST(PrepareSource, LooksForOrAndAtThreeCharactersFromColumnFiveOnly) {
  EXPECT_EQ(Cleaned("AND (b)").text, "AND(b):");
  EXPECT_EQ(Cleaned("xAND (b)").text, "xAND (b):");
  EXPECT_EQ(Cleaned("xxOR (b)").text, "xxOR(b):");
  EXPECT_EQ(Cleaned("x OR (b)").text, "x OR (b):");
}

// The blank goes when a sign or bracket follows, and the keyword is one no more.
TEST(PrepareSource, GluesKeywordsToSignsAndBrackets) {
  EXPECT_EQ(Cleaned("FOR i=3 TO -1").text, "FOR i=3 TO-1:");
  EXPECT_EQ(Cleaned("WHILE (x)").text, "WHILE(x):");
  EXPECT_EQ(Cleaned("CASE -1").text, "CASE-1:");
  EXPECT_EQ(Cleaned("IF -1<0 THEN x=1").text, "IF-1<0 THEN x=1:");
  EXPECT_EQ(Cleaned("a AND -b").text, "a AND-b:");
}

TEST(PrepareSource, LeavesStringsAlone) {
  EXPECT_EQ(Cleaned("x = \"a + 'b\" + y").text, "x=\"a + 'b\"+y:");
}

TEST(PrepareSource, NeverLooksAtTheFirstColumn) {
  EXPECT_EQ(Cleaned("\"a + b\" + c").text, "\"a+b\" + c:");
  EXPECT_EQ(Cleaned("'a + b\nc").text, "'a+b\tc:");
}

TEST(PrepareSource, TakesACommentUpToTheLineEnd) {
  EXPECT_EQ(Cleaned("x=1 ' note\ny=2").text, Piece("x=1 \ny=2:"));
  EXPECT_EQ(Cleaned("x=1'a'b\ny=2'c\nz=3").text, Piece("x=1\ny=2\nz=3:"));
}

TEST(PrepareSource, LeavesACommentThatNoLineEndFollows) {
  EXPECT_EQ(Cleaned("x=1 'note").text, "x=1 'note:");
  EXPECT_EQ(Cleaned("a=1\nx=1 'note").text, Piece("a=1\nx=1 'note:"));
}

TEST(PrepareSource, LeavesALiteralAlone) {
  EXPECT_EQ(Cleaned("x = [[ a ]]").text, "x=[[ a ]]:");
  EXPECT_EQ(Cleaned("x=[[ a + 'b\n \"c ]] + d").text, Piece("x=[[ a + 'b\n \"c ]]+d:"));
}

TEST(PrepareSource, ReportsALiteralThatIsNotClosed) {
  Cleaned cleaned("x=[[ a + b");
  EXPECT_EQ(cleaned.report.Messages(), Lines{"There are not ']]' symbols."});
  EXPECT_EQ(cleaned.text, "x=[[ a + b:");
  EXPECT_EQ(cleaned.report.errors[0].currentLine, "");
}

TEST(PrepareSource, FindsTheEndOfALiteralAtTheLastColumns) {
  EXPECT_TRUE(Cleaned("x=[[a]]").report.errors.empty());
  EXPECT_TRUE(Cleaned("x=[[]]").report.errors.empty());
  EXPECT_FALSE(Cleaned("x=[[]").report.errors.empty());
}

}  // namespace
}  // namespace corvane::script
