// The history of code points without a window.
#include "explorer/code_points.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "explorer/rows.h"
#include "runtime/strings.h"

namespace corvane::tests {
namespace {

using explorer::CodePoint;
using explorer::CodePoints;
using explorer::PointText;
using explorer::RowOfPoint;
using explorer::SnippetOf;
using runtime::Space;

std::string Row(const std::string& text, long component) {
  return text + explorer::TailOf(component);
}

CodePoint Point(const std::string& module, const std::string& code, const std::string& header, long line = 10,
                long row = 3) {
  return {PointText(module, SnippetOf(code, row), Row(header, 1), 1), line, row};
}

TEST(CodePoint, SnippetIsTheFirst25CharactersAndDots) {
  EXPECT_EQ(SnippetOf("    Total = Total + Price * Count", 3), "    Total = Total + Price... ");
  EXPECT_EQ(SnippetOf("Beep", 3), "Beep" + Space(21) + "... ");
}

TEST(CodePoint, SnippetIsEmptyOnTheFirstTwoRowsAndForShortLines) {
  EXPECT_EQ(SnippetOf("    Total = 1", 1), "");
  EXPECT_EQ(SnippetOf("    Total = 1", 2), "");
  EXPECT_EQ(SnippetOf("a=1", 9), "");
  EXPECT_EQ(SnippetOf("", 9), "");
}

TEST(CodePoint, TextIsModuleSnippetAndRowWithItsTail) {
  EXPECT_EQ(PointText("modMain", SnippetOf("    Fill basket", 5), Row("Public Sub Main()", 2), 2),
            "modMain:    " + ("    Fill basket" + Space(10)) + "... " + "Public Sub Main()" + Space(160) + " +|2");
  EXPECT_EQ(PointText("modMain", "", Row("Public Sub Main()", 2), 2),
            "modMain:    Public Sub Main()" + Space(160) + " +|2");
}

TEST(CodePoint, LabelOfTheCaretsLineIsDropped) {
  EXPECT_EQ(PointText("modMain", "", Row("A current line:    Total = 1", 2), 2), "modMain:    " + Row("Total = 1", 2));
  EXPECT_EQ(PointText("modMain", "", Row("A current line:    001   Total = 1", 2), 2),
            "modMain:    " + Row("Total = 1", 2))
      << "with its number";
}

TEST(CodePoint, LabelThatIsTheModuleIsNotRepeated) {
  const std::string hit = Row("modMain:    001   Total = 1", 2);
  EXPECT_EQ(PointText("modMain", "", hit, 2), hit);
  EXPECT_EQ(PointText("modMain", "", Row("_Shop.modMain:    001   Total = 1", 2), 2),
            Row("_Shop.modMain:    001   Total = 1", 2))
      << "of another project";
}

TEST(CodePoint, ColonInCodeIsNoLabel) {
  EXPECT_EQ(PointText("modMain", "", Row("Sub A():    Beep", 2), 2), "modMain:    " + Row("Sub A():    Beep", 2));
}

TEST(CodePoint, RowThatTellsNoComponentGetsATail) {
  EXPECT_EQ(PointText("modMain", "", " Declarations", 2), "modMain:     Declarations" + explorer::TailOf(2));
}

TEST(CodePoint, ItsRowIsTheTextWithoutTheSnippet) {
  const std::string row = Row("Public Sub Main()", 2);
  EXPECT_EQ(RowOfPoint(PointText("modMain", SnippetOf("    Fill", 5), row, 2)), "modMain:    " + row);
  EXPECT_EQ(RowOfPoint(PointText("modMain", "", row, 2)), "modMain:    " + row);
  const std::string dots = Row("Print \"wait... please\"", 2);
  EXPECT_EQ(RowOfPoint(PointText("modMain", "", dots, 2)), "modMain:    " + dots) << "dots in the code";
}

TEST(CodePoints, EachIsPushedBehindTheNewest) {
  CodePoints points;
  EXPECT_TRUE(points.IsPastNewest());
  points.Push(Point("modMain", "", "Sub A()"));
  points.Push(Point("modMain", "", "Sub B()"));
  EXPECT_EQ(points.Count(), 2);
  EXPECT_EQ(points.Caption(0), "modMain:    Sub A()");
  EXPECT_EQ(points.Caption(1), "modMain:    Sub B()");
  EXPECT_TRUE(points.IsPastNewest());
  EXPECT_TRUE(points.HasLower());
  EXPECT_FALSE(points.HasHigher());
}

TEST(CodePoints, TheFifteenthDropsTheOldest) {
  CodePoints points;
  for (int i = 1; i <= 14; ++i) points.Push(Point("modMain", "", "Sub A" + std::to_string(i) + "()"));
  EXPECT_EQ(points.Count(), 14);
  EXPECT_EQ(points.Caption(0), "modMain:    Sub A1()");
  points.Push(Point("modMain", "", "Sub A15()"));
  EXPECT_EQ(points.Count(), 14);
  EXPECT_EQ(points.Caption(0), "modMain:    Sub A2()");
  EXPECT_EQ(points.Caption(13), "modMain:    Sub A15()");
  EXPECT_EQ(points.Index(), 14);
}

TEST(CodePoints, TheSameTextUpdatesTheNewest) {
  CodePoints points;
  points.Push(Point("modMain", "", "Sub A()", 10, 2));
  points.GoTo(0);
  points.Push(Point("modMain", "", "Sub A()", 12, 1));
  ASSERT_EQ(points.Count(), 1);
  EXPECT_EQ(points.At(0).line, 12);
  EXPECT_EQ(points.At(0).row, 1);
  EXPECT_EQ(points.Index(), 0) << "the place stays";
}

TEST(CodePoints, TheSameProcedureVisitedTwiceUpdatesOneEntry) {
  CodePoints points;
  points.Push(Point("modMain", "    First = 1", "Sub A()", 10, 4));
  points.Push(Point("modMain", "    Second = 2", "Sub A()", 11, 7));
  ASSERT_EQ(points.Count(), 1);
  EXPECT_EQ(points.At(0).line, 11);
  EXPECT_EQ(points.At(0).row, 7);
  points.Push(Point("modMore", "    Second = 2", "Sub A()", 11, 7));
  EXPECT_EQ(points.Count(), 2) << "of another module";
  points.Push(Point("modMore", "    Second = 2", "Sub B()", 11, 7));
  EXPECT_EQ(points.Count(), 3) << "another procedure";
}

TEST(CodePoints, WithoutASnippetNothingTellsTheSameProcedure) {
  CodePoints points;
  points.Push(Point("modMain", "    First = 1", "Sub A()", 10, 4));
  points.Push(Point("modMain", "", "Sub A()", 10, 1));
  EXPECT_EQ(points.Count(), 2);
}

TEST(CodePoints, OnlyTheNewestIsUpdated) {
  CodePoints points;
  for (const char* header : {"Sub A()", "Sub B()", "Sub A()"}) points.Push(Point("modMain", "    x = 1", header));
  EXPECT_EQ(points.Count(), 3);
}

TEST(CodePoints, CaptionIsWhatStandsBeforeTheTailAndAtMost95Characters) {
  CodePoints points;
  points.Push(Point("modMain", "    Fill basket", "Public Sub Main()"));
  EXPECT_EQ(points.Caption(0), "modMain:        Fill basket          ... Public Sub Main()");
  points.Push(Point("modMain", "", "Sub " + std::string(100, 'A') + "()"));
  EXPECT_EQ(points.Caption(1), "modMain:    Sub " + std::string(79, 'A'));
}

TEST(CodePoints, StepsPassOverWhatIsInView) {
  CodePoints points;
  for (const char* header : {"Sub A()", "Sub B()", "Sub C()"}) points.Push(Point("modMain", "", header));
  ASSERT_TRUE(points.StepBack("Sub C()"));
  EXPECT_EQ(points.Index(), 1);
  ASSERT_TRUE(points.StepBack("Sub B()"));
  EXPECT_EQ(points.Index(), 0);
  EXPECT_FALSE(points.HasLower());
  EXPECT_FALSE(points.StepBack("Sub A()"));
  ASSERT_TRUE(points.StepOn("Sub B()"));
  EXPECT_EQ(points.Index(), 2);
  EXPECT_FALSE(points.HasHigher());
  EXPECT_FALSE(points.StepOn(""));
}

TEST(CodePoints, AStepThatFindsOnlyTheViewStays) {
  CodePoints points;
  points.Push(Point("modMain", "", "Sub A()"));
  EXPECT_FALSE(points.StepBack("Sub A()"));
  EXPECT_EQ(points.Index(), 1);
  EXPECT_TRUE(points.StepBack("")) << "without a title every entry is another";
}

TEST(CodePoints, ClearedTheyAreNone) {
  CodePoints points;
  points.Push(Point("modMain", "", "Sub A()"));
  points.Clear();
  EXPECT_EQ(points.Count(), 0);
  EXPECT_TRUE(points.IsPastNewest());
  EXPECT_FALSE(points.HasLower());
}

}  // namespace
}  // namespace corvane::tests
