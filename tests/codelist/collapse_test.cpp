#include "codelist/collapse.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "codelist/line_analysis.h"
#include "codelist/mark_scan.h"
#include "codelist/markup.h"
#include "marked_text.h"

namespace corvane::codelist {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int32_t kStart = kBoundary | kCollapseStart;

// The lines as the list keeps them: analysed, each with the level at its start.
class Collapse : public testing::Test {
 protected:
  void Load(const std::vector<std::string>& lines) {
    AnalysisState state;
    LineBuffer buffer;
    long level = BaseLevel;
    for (const std::string& line : lines) {
      const auto marked = AnalyseLine(Language::Vb, state, line, buffer);
      store.Append(marked, EncodeLevel(level));
      level += SumOfMarks(marked);
    }
  }
  void LoadMarked(const std::vector<std::pair<std::string, long>>& lines) {
    for (const auto& [text, level] : lines)
      store.Append(runtime::Replace(runtime::Replace(text, "{", kLevelUp), "}", kLevelDown), EncodeLevel(level));
  }
  std::vector<long> Shown() const {
    std::vector<long> lines;
    for (long line = 1; line <= store.Count(); ++line)
      if (store.IsVisible(line)) lines.push_back(line);
    return lines;
  }
  std::vector<long> With(int32_t bits) const {
    std::vector<long> lines;
    for (long line = 1; line <= store.Count(); ++line)
      if ((store.State(line) & bits) == bits) lines.push_back(line);
    return lines;
  }
  void Select(long line) { store.SetState(line, store.State(line) | kSelected); }

  LineStore store;
};

class CollapseOfAnIf : public Collapse {
 protected:
  CollapseOfAnIf() {
    Load({"Sub A()", "For i = 1 To 9", "If a Then", "b = 1", "c = 2", "End If", "d = 3", "Next", "End Sub"});
  }
};

TEST_F(CollapseOfAnIf, HereFoldsTheBlockOfTheLevel) {
  CollapseHere(store, 4, 35);
  EXPECT_THAT(Shown(), ElementsAre(1, 2, 3, 6, 7, 8, 9));
  EXPECT_THAT(With(kStart), ElementsAre(3)) << "the start line shows the dot";
  EXPECT_THAT(With(kBoundary), ElementsAre(3, 6)) << "the line behind the stretch stays visible";
}

TEST_F(CollapseOfAnIf, TheConditionBehindTheIfFoldsTheIf) {
  CollapseHere(store, 3, 35);
  EXPECT_THAT(Shown(), ElementsAre(1, 2, 3, 6, 7, 8, 9));
}

TEST_F(CollapseOfAnIf, TheKeywordIfFoldsTheEnclosingBlock) {
  CollapseHere(store, 3, 34);
  EXPECT_THAT(Shown(), ElementsAre(1, 2, 8, 9));
  EXPECT_THAT(With(kStart), ElementsAre(2));
}

TEST_F(CollapseOfAnIf, AStretchInsideLosesItsMarks) {
  CollapseHere(store, 4, 35);
  CollapseHere(store, 7, 34);
  EXPECT_THAT(With(kStart), ElementsAre(2));
  Expand(store, 2);
  EXPECT_THAT(Shown(), ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9));
}

TEST_F(CollapseOfAnIf, OnAColorLevelFoldsAllFromThereInward) {
  CollapseOnLevel(store, 35);
  EXPECT_THAT(Shown(), ElementsAre(1, 2, 3, 6, 7, 8, 9));
  EXPECT_THAT(With(kStart), ElementsAre(3));
  EXPECT_THAT(With(kBoundary), ElementsAre(3, 9)) << "the last line always";
}

TEST_F(CollapseOfAnIf, LogicalLeavesTheLinesWithAKeyword) {
  LogicalCollapse(store);
  EXPECT_THAT(Shown(), ElementsAre(1, 2, 3, 6, 8, 9)) << "Next and End If hold one";
  EXPECT_THAT(With(kStart), ElementsAre(3, 6));
}

TEST_F(CollapseOfAnIf, SelectedLinesAreFoldedByHand) {
  for (const long line : {1, 4, 5, 9}) Select(line);
  CollapseSelected(store);
  EXPECT_THAT(Shown(), ElementsAre(1, 2, 3, 6, 7, 8));
  EXPECT_THAT(With(kSelected), IsEmpty());
  EXPECT_THAT(With(kStart), ElementsAre(3, 8)) << "no boundary behind a stretch";
  EXPECT_EQ(store.State(1), 33) << "line 1 is never folded";
}

TEST_F(CollapseOfAnIf, ResetShowsAllAndClearsTheSelection) {
  CollapseHere(store, 4, 35);
  Select(7);
  ResetCollapse(store);
  EXPECT_THAT(Shown(), ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9));
  EXPECT_THAT(With(kSelected), IsEmpty());
  EXPECT_THAT(With(kBoundary), IsEmpty());
  EXPECT_EQ(store.LineLevel(4), 35);
}

TEST_F(CollapseOfAnIf, ExpandOpensTheStretchBehindTheLine) {
  CollapseHere(store, 4, 35);
  EXPECT_TRUE(CanExpand(store, 3));
  EXPECT_FALSE(CanExpand(store, 2));
  EXPECT_FALSE(CanExpand(store, 6)) << "nothing is hidden behind it";
  Expand(store, 3);
  EXPECT_THAT(Shown(), ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9));
  EXPECT_THAT(With(kBoundary), IsEmpty()) << "dot and boundary go";
}

TEST_F(Collapse, ABoundaryThatStartsAnotherStretchKeepsItsBits) {
  Load({"Sub A()", "If a Then", "b = 1", "Else", "c = 2", "End If", "End Sub"});
  CollapseHere(store, 3, 34);
  CollapseHere(store, 5, 34);
  ASSERT_THAT(Shown(), ElementsAre(1, 2, 4, 6, 7)) << "an Else dips below the level: one branch at a time";
  Expand(store, 2);
  EXPECT_THAT(Shown(), ElementsAre(1, 2, 3, 4, 6, 7));
  EXPECT_THAT(With(kStart), ElementsAre(4));
}

TEST_F(Collapse, UnderASelectedLineTheDotStaysBehindExpanding) {
  Load({"Sub A()", "If a Then", "b = 1", "End If", "End Sub"});
  CollapseHere(store, 3, 34);
  Select(1);
  Expand(store, 2);
  EXPECT_THAT(Shown(), ElementsAre(1, 2, 3, 4, 5));
  EXPECT_THAT(With(kStart), ElementsAre(2));
}

TEST_F(Collapse, WithoutAStartAboveTheFirstLineIsTheStart) {
  Load({"For i = 1 To 9", "a = 1", "b = 2", "Next", "c = 3"});
  CollapseHere(store, 2, 34);
  EXPECT_THAT(Shown(), ElementsAre(1, 4, 5));
  EXPECT_EQ(store.State(1), BaseLevel + kHidden + kStart);
}

TEST_F(Collapse, TheFirstAndTheLastLineHaveNothingToFold) {
  Load({"Do", "a = 1", "Loop"});
  EXPECT_FALSE(CanFold(store, 1));
  EXPECT_TRUE(CanFold(store, 2));
  EXPECT_FALSE(CanFold(store, 3));
}

TEST_F(Collapse, AnEmptyListIsFoldedWithoutHarm) {
  CollapseOnLevel(store, 34);
  LogicalCollapse(store);
  CollapseSelected(store);
  ResetCollapse(store);
  Expand(store, 1);
  EXPECT_EQ(GoDown(store, 0, 34), 0);
  EXPECT_EQ(GoUp(store, 0, 34), 0);
  EXPECT_EQ(store.Count(), 0);
}

TEST_F(Collapse, ALineAboveThatIsSelectedGetsNoDot) {
  Load({"Sub A()", "Do", "a = 1", "Loop", "End Sub"});
  Select(2);
  LogicalCollapse(store);
  EXPECT_THAT(With(kStart), IsEmpty());
  EXPECT_FALSE(store.IsVisible(3));
}

TEST_F(Collapse, ASelectedHiddenLineIsVisibleToTheRowWalk) {
  Load({"Sub A()", "Do", "a = 1", "Loop", "End Sub"});
  CollapseHere(store, 3, 34);
  ASSERT_FALSE(store.IsVisible(3));
  Select(3);
  EXPECT_TRUE(store.IsVisible(3));
}

// Of a pair that changes nothing the first half is passed without being counted: the count runs one too high.
TEST_F(Collapse, BehindANeutralPairTheCountRunsOneTooHigh) {
  MarkScan scan("a/-\\/+\\b/-\\", 34, MarkScan::Step::kBehindMark);
  std::vector<long> levels;
  while (scan.Next()) levels.push_back(scan.Level());
  EXPECT_THAT(levels, ElementsAre(34, 35, 34));
}

TEST_F(Collapse, TheStepThatJumpsPassesOverLaterMarks) {
  const auto count = [](MarkScan::Step step) {
    int marks = 0;
    for (MarkScan scan("abcdef/+\\gh/-\\ij/-\\k", 34, step); scan.Next();) ++marks;
    return marks;
  };
  EXPECT_EQ(count(MarkScan::Step::kBehindMark), 3);
  EXPECT_EQ(count(MarkScan::Step::kJumping), 2);
}

class GoAlong : public Collapse {
 protected:
  GoAlong() {
    Load({"Sub A()", "  Do", "    If a Then", "      b = 1", "    Else", "      c = 2", "    End If", "  Loop",
          "  d = 3", "End Sub"});
  }
};

TEST_F(GoAlong, DownStopsWhereABlockOfTheLevelClosesOrOpens) {
  EXPECT_EQ(GoDown(store, 4, 35), 5) << "Else dips to the level outside";
  EXPECT_EQ(GoDown(store, 5, 34), 7);
  EXPECT_EQ(GoDown(store, 7, 34), 8);
}

TEST_F(GoAlong, UpStopsWhereABlockOfTheLevelClosesOrOpens) {
  EXPECT_EQ(GoUp(store, 6, 35), 5);
  EXPECT_EQ(GoUp(store, 4, 34), 3) << "Then dips to the level of its If";
  EXPECT_EQ(GoUp(store, 3, 34), 2);
}

TEST_F(GoAlong, WhereTheWalkRunsOutTheLineReachedIsTheResult) {
  EXPECT_EQ(GoDown(store, 9, 33), 10);
  EXPECT_EQ(GoDown(store, 10, 33), 10);
  EXPECT_EQ(GoUp(store, 2, 33), 1);
  EXPECT_EQ(GoUp(store, 1, 33), 1);
}

TEST_F(Collapse, AKeywordAtTheVeryStartIsNoPlaceWhereABlockOpens) {
  LoadMarked({{"a", 33}, {"{Do", 33}, {"x", 34}, {"}Loop", 34}, {"b", 33}});
  EXPECT_EQ(GoDown(store, 1, 33), 4);
}

TEST_F(Collapse, APassedMarkBehindTheFirstOnesIsAPlaceWhereABlockOpens) {
  LoadMarked({{"a", 35}, {"}{abc}123456789{}z", 35}, {"b", 35}, {"c", 35}});
  EXPECT_EQ(GoDown(store, 1, 34), 2);
}

}  // namespace
}  // namespace corvane::codelist
