#include "environment/module_text.h"

#include <gtest/gtest.h>

#include "environment/module_head.h"
#include "tests/environment/opened.h"

namespace corvane::environment {
namespace {

ModuleText Read(const std::string& bytes) {
  return ModuleText(bytes, ReadModuleHead(bytes).code_start);
}

std::string Shown(const ModuleText& text) {
  std::string shown;
  for (long line = 1; line <= text.Count(); ++line) (shown += text.Line(line)) += '|';
  return shown;
}

void Replace(ModuleText& text, long start, long count, std::vector<std::string_view> lines, bool revives = false) {
  text.Replace(start, count, lines, revives);
}

TEST(ModuleText, UneditedFilesAreWrittenAsTheyWere) {
  for (const char* bytes : {"",
                            "\n",
                            "\r\n",
                            "x",
                            "x\n",
                            "x\r\n",
                            "x\r\ny",
                            "x\ny\r\nz\n",
                            "\n\n\n",
                            "x\ry\n",
                            "x\ny\r",
                            "x\r\r\ny\r\n",
                            "Attribute VB_Name = \"A\"",
                            "Attribute VB_Name = \"A\"\r\n",
                            "Attribute VB_Name = \"A\"\r\nSub A()\r\nAttribute A.VB_UserMemId = 0\r\nEnd Sub",
                            "Attribute VB_Name = \"A\"\n\n",
                            "VERSION 5.00\r\nBegin VB.Form F \r\n",
                            "VERSION 5.00\r\nBegin VB.Form F \r\nEnd\r\nSub X()",
                            "' c _\nAttribute A.VB_Description = \"not hidden\"\n",
                            "\tAttribute x.VB_Y = 1\n",
                            "a\x05\x7F\x0B"
                            "b\n"}) {
    EXPECT_EQ(Read(bytes).Write(), bytes);
    EXPECT_EQ(ModuleText(bytes, 0).Write(), bytes);
  }
}

TEST(ModuleText, HidesTheHeadAndAttributeLines) {
  EXPECT_EQ(Shown(Read("VERSION 1.0 CLASS\nBEGIN\n  MultiUse = -1  'True\nEND\nAttribute VB_Name = \"C\"\n"
                       "Attribute VB_Exposed = False\nOption Explicit\nPublic WithEvents x As Y\n"
                       "Attribute x.VB_VarHelpID = -1\nSub A( _\n  b)\nAttribute A.VB_UserMemId = 0\nEnd Sub\n")),
            "Option Explicit|Public WithEvents x As Y|Sub A( _|  b)|End Sub|");
}

TEST(ModuleText, ABlankLineBehindTheHeadIsALine) {
  EXPECT_EQ(Shown(Read("Attribute VB_Name = \"A\"\n\nSub A()\n")), "|Sub A()|");
}

TEST(ModuleText, WhatFollowsAContinuedCommentIsNoAttribute) {
  EXPECT_EQ(Read("x\n' c _\nAttribute A.VB_Description = \"d\"\n").Count(), 3);
}

struct EditCase {
  const char* what;
  const char* before;
  long start, count;
  std::vector<std::string_view> lines;
  const char* after;
};

class Edits : public testing::TestWithParam<EditCase> {};
TEST_P(Edits, ChangeTheirLinesAlone) {
  const EditCase& edit = GetParam();
  ModuleText text = Read(edit.before);
  Replace(text, edit.start, edit.count, edit.lines);
  EXPECT_EQ(text.Write(), edit.after) << edit.what;
}

INSTANTIATE_TEST_SUITE_P(
    LineEnds, Edits,
    testing::Values(
        EditCase{"a file of CR LF", "a\r\nb\r\n", 2, 0, {"x"}, "a\r\nx\r\nb\r\n"},
        EditCase{"a file of LF", "a\nb\n", 2, 0, {"x"}, "a\nx\nb\n"},
        EditCase{"mixed: the first counts", "a\nb\r\nc\n", 2, 1, {"x"}, "a\nx\nc\n"},
        EditCase{"no final line end, line added", "a\nb", 3, 0, {"x"}, "a\nb\nx"},
        EditCase{"no final line end, last line gone", "a\r\nb", 2, 1, {}, "a"},
        EditCase{"all lines gone", "Attribute VB_Name = \"A\"\r\na\r\n", 1, 1, {}, "Attribute VB_Name = \"A\"\r\n"},
        EditCase{"first line of a head without line end",
                 "Attribute VB_Name = \"A\"",
                 1,
                 0,
                 {"x"},
                 "Attribute VB_Name = \"A\"\r\nx\r\n"},
        EditCase{"a CR inside a line", "a\nb\n", 2, 0, {"x\ry"}, "a\nx\ry\nb\n"},
        EditCase{"a CR at its end is no part of the line end", "a\nb\n", 2, 0, {"x\r"}, "a\nx\r\r\nb\n"},
        EditCase{"an empty file", "", 1, 0, {"x", ""}, "x\r\n\r\n"}));

INSTANTIATE_TEST_SUITE_P(Attributes, Edits,
                         testing::Values(EditCase{"they move with their line",
                                                  "Sub A()\nAttribute A.VB_X = 1\nEnd Sub\n",
                                                  1,
                                                  0,
                                                  {"'c"},
                                                  "'c\nSub A()\nAttribute A.VB_X = 1\nEnd Sub\n"},
                                         EditCase{"a line below the header stands behind them",
                                                  "Sub A()\nAttribute A.VB_X = 1\nEnd Sub\n",
                                                  2,
                                                  0,
                                                  {"x"},
                                                  "Sub A()\nAttribute A.VB_X = 1\nx\nEnd Sub\n"},
                                         EditCase{"they go with their member",
                                                  "Sub A()\nAttribute A.VB_X = 1\nEnd Sub\nSub B()\n",
                                                  1,
                                                  2,
                                                  {},
                                                  "Sub B()\n"},
                                         EditCase{"they stay when the header changes",
                                                  "Sub A()\nAttribute A.VB_X = 1\nEnd Sub\n",
                                                  1,
                                                  1,
                                                  {"Public Sub a(b)"},
                                                  "Public Sub a(b)\nAttribute A.VB_X = 1\nEnd Sub\n"},
                                         EditCase{"they take the new name of their member",
                                                  "Sub A()\nAttribute A.VB_X = \"A\"\nEnd Sub\n",
                                                  1,
                                                  1,
                                                  {"Sub Bc()"},
                                                  "Sub Bc()\nAttribute Bc.VB_X = \"A\"\nEnd Sub\n"},
                                         EditCase{"they are left out below what declares nothing",
                                                  "Dim a\nAttribute a.VB_X = 1\nDim b\n",
                                                  1,
                                                  1,
                                                  {"Di"},
                                                  "Di\nDim b\n"},
                                         EditCase{"they follow a member that is declared again further down",
                                                  "Sub A()\nAttribute A.VB_X = 1\nEnd Sub\n",
                                                  1,
                                                  1,
                                                  {"'c", "Sub A( _", "  b)"},
                                                  "'c\nSub A( _\n  b)\nAttribute A.VB_X = 1\nEnd Sub\n"},
                                         EditCase{"the end of a continued header goes",
                                                  "Sub A(a, _\n  b)\nAttribute A.VB_X = 1\nEnd Sub\n",
                                                  2,
                                                  1,
                                                  {},
                                                  "Sub A(a, _\nEnd Sub\nAttribute A.VB_X = 1\n"},
                                         EditCase{"the header is continued by a new line",
                                                  "Sub A( _\n  b)\nAttribute A.VB_X = 1\nEnd Sub\n",
                                                  2,
                                                  1,
                                                  {"  b, _", "  c)"},
                                                  "Sub A( _\n  b, _\n  c)\nAttribute A.VB_X = 1\nEnd Sub\n"},
                                         EditCase{"one of two variables",
                                                  "Public a, b\nAttribute a.VB_X = 1\nAttribute b.VB_X = 2\n",
                                                  1,
                                                  1,
                                                  {"Public b, c"},
                                                  "Public b, c\nAttribute b.VB_X = 2\n"}));

TEST(ModuleText, AnAttributeComesBackWithItsMember) {
  ModuleText text = Read("Sub A()\nAttribute A.VB_UserMemId = 0\nEnd Sub\n");
  Replace(text, 1, 2, {}, true);
  EXPECT_EQ(text.Write(), "");
  Replace(text, 1, 0, {"Sub A()", "End Sub"}, true);
  EXPECT_EQ(text.Write(), "Sub A()\nAttribute A.VB_UserMemId = 0\nEnd Sub\n");
}

TEST(ModuleText, TypingDoesNotGrowWithoutEnd) {
  ModuleText text = Read("a\n");
  std::string line(1000, 'x');
  for (int i = 0; i < 1000; ++i) Replace(text, 1, 1, {line + std::to_string(i)});
  EXPECT_EQ(text.Write(), line + "999\n");
}

TEST(ModuleText, LinesOfTheTextItselfMayBeInsertedAgain) {
  ModuleText text = Read("a\nb\n");
  Replace(text, 1, 1, {"long enough to be no short string"});
  Replace(text, 3, 0, {text.Line(1), text.Line(2)});
  EXPECT_EQ(Shown(text), "long enough to be no short string|b|long enough to be no short string|b|");
}

TEST(CutIntoLines, CutsAtFeedsAloneAsReadingDoes) {
  EXPECT_EQ(CutIntoLines("a\r\nb\nc\rd\r\n"), (std::vector<std::string_view>{"a", "b", "c\rd", ""}));
  EXPECT_EQ(CutIntoLines(""), std::vector<std::string_view>{""});
}

}  // namespace
}  // namespace corvane::environment
