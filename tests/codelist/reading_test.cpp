#include "codelist/reading.h"

#include <gtest/gtest.h>
#include <vector>

namespace corvane::codelist {
namespace {

// The word around the "^" of [line], which stands in front of the character that is clicked.
Word At(std::string line, bool sql = false) {
  const size_t click = line.find('^');
  line.erase(click, 1);
  return WordAt(line, click + 1, sql);
}

std::string TextAt(const std::string& line, bool sql = false) {
  return At(line, sql).text;
}

CleanLineOf Lines(std::vector<std::string> lines) {
  return [lines](long line) { return lines.at(static_cast<size_t>(line - 1)); };
}

TEST(WordAt, IsWhatStandsBetweenSeparators) {
  EXPECT_EQ(TextAt("total = cou^nt + 1"), "count");
  EXPECT_EQ(TextAt("^total = 1"), "total");
  EXPECT_EQ(TextAt("x = tota^l"), "total");
  EXPECT_EQ(TextAt("Call F(na^me$)"), "name$") << "a type sign belongs to the word";
}

TEST(WordAt, TellsTheSeparatorThatEndedIt) {
  EXPECT_EQ(At("a = Coun^t(1)").stop, "(");
  EXPECT_EQ(At("a = Coun^t").stop, " ");
}

TEST(WordAt, HoldsOneDotOnItsLeft) {
  EXPECT_EQ(TextAt("x.Cap^tion = 1"), "x.Caption");
  EXPECT_EQ(TextAt("a.b.Cap^tion = 1"), "b.Caption");
  EXPECT_EQ(TextAt(" .Cap^tion = 1"), ".Caption");
  EXPECT_EQ(TextAt("te^xt.Caption = 1"), "text");
}

TEST(WordAt, OnASeparatorIsWhatStandsInFrontOfIt) {
  EXPECT_EQ(TextAt("total ^= 1"), "");
  EXPECT_EQ(TextAt("total^ = 1"), "total");
}

TEST(WordAt, KeepsTheSignOfAVariableInSql) {
  EXPECT_EQ(TextAt("set @cou^nt = 1", true), "@count");
  EXPECT_EQ(TextAt("set ^@count = 1", true), "@count");
  EXPECT_EQ(TextAt("set ^@@rowcount = 1", true), "@@rowcount");
  EXPECT_EQ(TextAt("set @cou^nt = 1"), "count");
}

TEST(WordAt, InSqlTheSignOfTheNextVariableEndsAWord) {
  EXPECT_EQ(At("exec fi^ll@count", true).text, "fill");
  EXPECT_EQ(At("exec fi^ll@count", true).stop, "@");
}

TEST(Reading, TheObjectOfAWithBlockIsItsFirstWord) {
  EXPECT_EQ(ObjectOfWith(Lines({"Sub A()", "With Text1", ".Caption = 1"}), 3), "Text1");
  EXPECT_EQ(ObjectOfWith(Lines({"Sub A()", "With Text1: .Caption = 1"}), 2), "Text1");
  EXPECT_EQ(ObjectOfWith(Lines({"Sub A()", "With Text1", "'With Text2", ".x = 1"}), 4), "Text1") << "no comment";
}

TEST(Reading, WithoutAWithBlockTheLastLineLookedAtStandsInFront) {
  EXPECT_EQ(ObjectOfWith(Lines({"With Text1", "x = 1 'y", ".x = 1"}), 3), "x = 1 ") << "line 1 is not looked at";
  EXPECT_EQ(ObjectOfWith(Lines({".x = 1"}), 1), "");
}

TEST(Reading, ADeclarationIsFoundByAsOrConst) {
  const auto lines =
      Lines({"Sub A(first As Long, ByVal second As Long)", "Dim third As New Form1", "Const FOURTH = 4"});
  EXPECT_EQ(DeclarationAbove(lines, 4, "FIRST"), 1);
  EXPECT_EQ(DeclarationAbove(lines, 4, "SECOND"), 1);
  EXPECT_EQ(DeclarationAbove(lines, 4, "THIRD"), 2);
  EXPECT_EQ(DeclarationAbove(lines, 4, "FOURTH"), 3);
  EXPECT_EQ(DeclarationAbove(lines, 4, "THIR"), std::nullopt);
  EXPECT_EQ(DeclarationAbove(lines, 2, "THIRD"), std::nullopt) << "above the line only";
}

TEST(Reading, ADeclarationWithACommentIsLookedForInTheComment) {
  const auto lines = Lines({"Dim a As Long 'see b As Long", "x"});
  EXPECT_EQ(DeclarationAbove(lines, 2, "A"), std::nullopt);
  EXPECT_EQ(DeclarationAbove(lines, 2, "B"), 1);
}

TEST(Reading, TheClassOfAnObjectIsFollowedThroughItsAssignments) {
  EXPECT_EQ(ClassOf(Lines({"Dim f As New frmMain, g", "f.Show"}), 2, "f"), "FRMMAIN");
  EXPECT_EQ(ClassOf(Lines({"Set f = g", "Set g = New frmMain 'the window", "f.Show"}), 3, "f"), "FRMMAIN");
  EXPECT_EQ(ClassOf(Lines({"Set f = New frmMain: f.Show"}), 1, "f"), "FRMMAIN");
  EXPECT_EQ(ClassOf(Lines({"Set f = New _", "frmMain"}), 2, "f"), "NEW") << "the line goes on, the search does not";
  EXPECT_EQ(ClassOf(Lines({"x = 1", "Set f = New frmMain"}), 1, "f"), "F") << "down to the line only";
}

}  // namespace
}  // namespace corvane::codelist
