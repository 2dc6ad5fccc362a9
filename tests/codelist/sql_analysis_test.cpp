#include <gtest/gtest.h>

#include "marked_text.h"

namespace corvane::codelist {
namespace {

struct Case {
  const char* line;
  const char* marked;  // "^" bold, "{" a level up, "}" a level down, "~" a comment from the line before
};

void PrintTo(const Case& c, std::ostream* out) {
  *out << c.line;
}

class SqlWords : public testing::TestWithParam<Case> {};

TEST_P(SqlWords, AreMarked) {
  EXPECT_EQ(Sql(GetParam().line), GetParam().marked);
}

INSTANTIATE_TEST_SUITE_P(
    EachRow, SqlWords,
    testing::Values(Case{"select a", "^Select}{ a"}, Case{"set a", "^Set}{ a"}, Case{"cursor a", "^Cursor}{ a"},
                    Case{"commit a", "^Commit}{ a"}, Case{"close a", "^Close}{ a"}, Case{"case a", "^Case{ a"},
                    Case{"end", "}^End}{ "}, Case{"else a", "^Else}{ a"}, Case{"execute a", "^Execute}{ a"},
                    Case{"exec a", "^Exec}{ a"}, Case{"declare a", "^Declare}{ a"},
                    Case{"deallocate a", "^Deallocate}{ a"}, Case{"delete a", "^Delete}{ a"},
                    Case{"from a", "^From}{ a"}, Case{"fetch a", "^Fetch}{ a"}, Case{"where a", "^Where}{ a"},
                    Case{"while a", "^While}{ a"}, Case{"when a", "}^When{ a"}, Case{"open a", "^Open}{ a"},
                    Case{"order by a", "^Order By}{ a"}, Case{"update a", "^Update}{ a"}, Case{"union a", "^Union}{ a"},
                    Case{"begin tran a", "^Begin Tran}{  a"}, Case{"begin transaction", "^Begin Transaction}{ "},
                    Case{"begin", "^Begin{ "}, Case{"values(a)", "^Values}{({a})"}, Case{"goto a", "^GoTo}{ a"},
                    Case{"group by a", "^Group By}{ a"}, Case{"return 1", "^Return}{ 1"},
                    Case{"rollback a", "^Rollback}{ a"}, Case{"then a", "}^Then{ a"}, Case{"trans a", "^Trans}{ a"},
                    Case{"transaction a", "^Transaction}{ a"}, Case{"is null", "^Is}{ null"},
                    Case{"insert a", "^Insert}{ a"}, Case{"if a", "^If}{ a"}, Case{"into a", "^Into}{ a"}));

INSTANTIATE_TEST_SUITE_P(ThatStandAsTheyDo, SqlWords,
                         testing::Values(Case{"begin tran", "^Begin Tran}{ "},
                                         Case{"begin transactions", "^Begin Transaction}{ s"},
                                         Case{"end, a", "}^End}{  a"}, Case{"end) a", "end}) a"},
                                         Case{"returns", "^Return}{s"}, Case{"union select a", "^Union}{ select a"},
                                         Case{"delete from a", "^Delete}{ from a"},
                                         Case{"insert into a", "^Insert}{ ^Into}{ a"}, Case{"a,select b", "a,select b"},
                                         Case{"a=select b", "a=^Select}{ b"}, Case{"a+select b", "a+^Select}{ b"},
                                         Case{"(select b)", "({^Select}{ b})"}, Case{"case when a", "^Case{ when a"}));

TEST(SqlAnalyser, AnInnerBracketStandsOneLevelAboveTheOuterOne) {
  EXPECT_EQ(Sql("a = (b + (c))"), "a = ({b + ({c})})");
}

TEST(SqlAnalyser, ALineInsideABlockCommentBeginsWithItsMark) {
  AnalysisState state;
  EXPECT_EQ(Analysed(Language::Sql, state, "select /* a"), "^Select}{ /* a");
  EXPECT_TRUE(state.inBlockComment);
  EXPECT_EQ(Analysed(Language::Sql, state, "select (b)"), "~select (b)");
  EXPECT_EQ(Analysed(Language::Sql, state, "x */ select (b)"), "~x */ ^Select}{ ({b})");
  EXPECT_FALSE(state.inBlockComment);
}

TEST(SqlAnalyser, ABlockCommentOnOneLineTakesTheRestOver) {
  AnalysisState state;
  EXPECT_EQ(Analysed(Language::Sql, state, "/* x */ select "), "/* x */ select ");
  EXPECT_FALSE(state.inBlockComment);
}

TEST(SqlAnalyser, AnEndOfACommentInFrontOfItsStartCountsToo) {
  AnalysisState state;
  Analysed(Language::Sql, state, "*/ x /* y");
  EXPECT_FALSE(state.inBlockComment);
}

TEST(SqlAnalyser, AnApostropheInsideACommentHidesItsEnd) {
  AnalysisState state{.inBlockComment = true};
  EXPECT_EQ(Analysed(Language::Sql, state, "don't */ select a"), "~don't */ select a");
  EXPECT_TRUE(state.inBlockComment);
}

TEST(SqlAnalyser, ACommentMayOpenAgainOnTheStrokeThatClosedTheLast) {
  AnalysisState state{.inBlockComment = true};
  Analysed(Language::Sql, state, "*/* x");
  EXPECT_FALSE(state.inBlockComment) << "its end stands in the line";
}

TEST(SqlAnalyser, TakesALineCommentOverAsItIs) {
  EXPECT_EQ(Sql("select a --\tselect (b)"), "^Select}{ a --\tselect (b)");
}

TEST(SqlAnalyser, LeavesStringsAlone) {
  EXPECT_EQ(Sql("a = 'select (b)' + select c"), "a = 'select (b)' + ^Select}{ c");
}

TEST(SqlAnalyser, TurnsATabIntoFiveBlanksInAStringToo) {
  EXPECT_EQ(Sql("'a\tb'"), "'a     b'");
}

TEST(SqlAnalyser, ADoubleQuoteInsideAStringHidesItsEnd) {
  EXPECT_EQ(Sql("'a\" ' select (b)"), "'a\" ' select (b)");
}

TEST(SqlAnalyser, ElseOfACaseGoesOutAndInAgain) {
  AnalysisState state;
  EXPECT_EQ(Analysed(Language::Sql, state, "case a when 1 then 2"), "^Case{ a }^When{ 1 }^Then{ 2");
  EXPECT_TRUE(state.sqlInCase);
  EXPECT_EQ(Analysed(Language::Sql, state, "else 3 end"), "}^Else{ 3 }^End}{ ");
  EXPECT_FALSE(state.sqlInCase);
  EXPECT_EQ(Analysed(Language::Sql, state, "else 3"), "^Else}{ 3");
}

TEST(SqlAnalyser, AnIfEndsACase) {
  AnalysisState state{.sqlInCase = true};
  Analysed(Language::Sql, state, "if(a)");
  EXPECT_FALSE(state.sqlInCase);
}

}  // namespace
}  // namespace corvane::codelist
