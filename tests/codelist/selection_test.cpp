#include "list_fixture.h"

namespace corvane::codelist {
namespace {

using namespace forms;
using testing::ElementsAre;
using testing::IsEmpty;

class Selection : public ListTest {
 protected:
  void DragTo(long row) { list.pic.UserMouseMove(vbLeftButton, 0, 1000, YOf(row)); }
  void DragToY(Twips y) { list.pic.UserMouseMove(vbLeftButton, 0, 1000, y); }
  void Wait(uint32_t milliseconds) { services.loop.ticks += milliseconds; }
};

TEST_F(Selection, AClickMovesTheCurrentLine) {
  Load(5);
  ClickOn(3);
  EXPECT_EQ(list.ListIndex(), 3);
  EXPECT_EQ(list.CurrentRow(), 3);
  EXPECT_THAT(events, ElementsAre("UcClick", "Click"));
  EXPECT_THAT(SelectedLines(), IsEmpty());
}

TEST_F(Selection, AClickBehindTheLastLineIsTheControlsClickOnly) {
  Load(3);
  ClickOn(5);
  EXPECT_EQ(list.ListIndex(), 1);
  EXPECT_THAT(events, ElementsAre("UcClick"));
}

TEST_F(Selection, AnyButtonMovesTheCurrentLine) {
  list.sGrid("VB");
  list.SetText("do\r\ndo\r\ndo\r\n");
  Press(3, 1000, vbRightButton);
  ReleaseAt(3, 1000, vbRightButton);
  EXPECT_EQ(list.ListIndex(), 3);
  EXPECT_EQ(list.ClickLevel, 35);
}

TEST_F(Selection, APressInTheGutterFlipsTheLine) {
  Load(5);
  ClickOn(2, 100);
  ClickOn(4, 100);
  EXPECT_THAT(SelectedLines(), ElementsAre(2, 4));
  ClickOn(2, 100);
  EXPECT_THAT(SelectedLines(), ElementsAre(4));
  Press(3, 100, vbRightButton);
  EXPECT_THAT(SelectedLines(), ElementsAre(4)) << "with the left button only";
}

TEST_F(Selection, ADragSelectsFromTheFirstLineOn) {
  Load(9);
  Press(2);
  Wait(300);
  DragTo(3);
  DragTo(5);
  EXPECT_THAT(SelectedLines(), ElementsAre(2, 3, 4, 5));
  EXPECT_EQ(list.ListIndex(), 5);
}

TEST_F(Selection, TurningBackTakesTheSelectionOff) {
  Load(9);
  Press(2);
  Wait(300);
  DragTo(5);
  DragTo(4);
  EXPECT_THAT(SelectedLines(), ElementsAre(2, 3)) << "the line that is left and the line that is reached";
  DragTo(6);
  EXPECT_THAT(SelectedLines(), ElementsAre(2, 3, 4, 5, 6));
}

TEST_F(Selection, ADragStartsAfterThreeHundredMilliseconds) {
  Load(9);
  Press(2);
  Wait(299);
  DragTo(4);
  EXPECT_THAT(SelectedLines(), IsEmpty());
  EXPECT_EQ(list.ListIndex(), 2);
  Wait(1);
  DragTo(4);
  EXPECT_THAT(SelectedLines(), ElementsAre(2, 3, 4));
}

TEST_F(Selection, ADragEndsAtTheLastLine) {
  Load(3);
  Press(2);
  Wait(300);
  DragTo(8);
  EXPECT_THAT(SelectedLines(), ElementsAre(2, 3));
  DragTo(9);
  EXPECT_THAT(SelectedLines(), ElementsAre(2, 3));
}

TEST_F(Selection, APressInTheGutterStartsNoDrag) {
  Load(9);
  Press(2, 100);
  Wait(300);
  DragTo(5);
  EXPECT_THAT(SelectedLines(), ElementsAre(2));
}

TEST_F(Selection, BelowTheSurfaceTheTimerScrollsOnUntilTheListEnds) {
  Load(14);
  Press(9);
  Wait(300);
  DragToY(5000);
  EXPECT_EQ(list.ListIndex(), 10);
  EXPECT_TRUE(list.tmr.Enabled());
  toolkit.Advance(1000);
  EXPECT_EQ(list.ListIndex(), 14);
  EXPECT_FALSE(list.tmr.Enabled());
  EXPECT_THAT(SelectedLines(), ElementsAre(9, 10, 11, 12, 13, 14));
}

TEST_F(Selection, AboveTheSurfaceTheTimerScrollsUp) {
  Load(30);
  list.SetStrPos(20);
  Press(1);
  Wait(300);
  DragToY(-10);
  toolkit.Tick(list.tmr);
  EXPECT_EQ(list.ListIndex(), 16);
  EXPECT_EQ(list.TopLine(), 16);
  EXPECT_THAT(SelectedLines(), ElementsAre(16, 17, 18));
}

TEST_F(Selection, ATurnOfTheTimerMovesThePointerToJustOutsideTheSurface) {
  Load(30);
  Press(9);
  Wait(300);
  std::vector<forms::Twips> told;
  list.MouseMove = [&told](int button, int, forms::Twips, forms::Twips y) {
    if (button == forms::vbLeftButton) told.push_back(y);
  };
  DragToY(5000);
  toolkit.Tick(list.tmr);
  EXPECT_THAT(told, ElementsAre(5000, list.pic.ScaleHeight() + 1));
  DragToY(-10);
  toolkit.Tick(list.tmr);
  EXPECT_THAT(told, ElementsAre(5000, list.pic.ScaleHeight() + 1, -10, -1));
}

TEST_F(Selection, ThePointerComingBackStopsTheTimer) {
  Load(30);
  Press(9);
  Wait(300);
  DragToY(5000);
  DragTo(9);
  EXPECT_FALSE(list.tmr.Enabled());
}

TEST_F(Selection, AReleaseStopsTheTimerAndTheDrag) {
  Load(30);
  Press(9);
  Wait(300);
  DragToY(5000);
  ReleaseAt(9);
  EXPECT_FALSE(list.tmr.Enabled());
  const auto selected = SelectedLines();
  DragTo(2);
  EXPECT_EQ(SelectedLines(), selected);
}

TEST_F(Selection, ShiftWithAnArrowFlipsTheLineThatIsLeft) {
  Load(5);
  Key(vbKeyDown, vbShiftMask);
  Key(vbKeyDown, vbShiftMask);
  EXPECT_THAT(SelectedLines(), ElementsAre(1, 2));
  Key(vbKeyUp, vbShiftMask);
  EXPECT_THAT(SelectedLines(), ElementsAre(1, 2, 3));
}

TEST_F(Selection, ShiftWithAnArrowThatCannotGoOnShowsTheFlippedLine) {
  Load(2);
  Key(vbKeyUp, vbShiftMask);
  EXPECT_THAT(Drawn("fill"), testing::Contains("fill 0 0 3745 234 #808080"));
  Key(vbKeyDown);
  Canvas().Forget();
  Key(vbKeyDown, vbShiftMask);
  EXPECT_THAT(Drawn("fill"), testing::Contains("fill 0 234 3745 234 #808080"));
}

TEST_F(Selection, SelectAllAndCopy) {
  Load(3);
  Key(vbKeyA, vbCtrlMask);
  EXPECT_THAT(SelectedLines(), ElementsAre(1, 2, 3));
  Key(vbKeyC, vbCtrlMask);
  EXPECT_EQ(services.clipboard.text, "1\r\n2\r\n3\r\n");
  EXPECT_THAT(SelectedLines(), IsEmpty());
  EXPECT_THAT(events, ElementsAre("ClipBook"));
}

TEST_F(Selection, CopyWithNothingSelectedKeepsTheClipBook) {
  Load(3);
  list.SelectAll();
  list.CopySelection();
  services.clipboard.text = "other";
  list.CopySelection();
  EXPECT_EQ(services.clipboard.text, "1\r\n2\r\n3\r\n");
}

TEST_F(Selection, AClipboardThatFailsIsPassedOver) {
  Load(3);
  services.clipboard.fail_with = 521;
  list.SelectAll();
  list.CopySelection();
  EXPECT_THAT(events, ElementsAre("ClipBook"));
}

TEST_F(Selection, LockedOutsideCodeCommandsDoNothing) {
  Load(3, "TREE");
  bool moved = false;
  list.MouseMove = [&](int, int, Twips, Twips) { moved = true; };
  list.LockSelection = true;
  ClickOn(2, 100);
  list.SelectAll();
  list.CopySelection();
  list.pic.UserMouseMove(0, 0, 500, 500);
  EXPECT_THAT(SelectedLines(), IsEmpty());
  EXPECT_EQ(services.clipboard.clears, 0);
  EXPECT_FALSE(moved);
  Load(3, "VB");
  list.SelectAll();
  EXPECT_THAT(SelectedLines(), ElementsAre(1, 2, 3)) << "code is not locked";
}

TEST_F(Selection, MovingThePointerIsTold) {
  Load(3);
  list.MouseMove = [this](int, int, Twips x, Twips) { events.push_back("MouseMove " + std::to_string(int(x))); };
  list.pic.UserMouseMove(0, 0, 500, 500);
  EXPECT_THAT(events, ElementsAre("MouseMove 500"));
}

TEST_F(Selection, DoubleClickEnterAndCtrlEnterAreDblClick) {
  Load(3);
  list.pic.UserDblClick();
  list.pic.UserKeyPress(vbKeyReturn);
  const long yields = services.loop.yields;
  Key(vbKeyReturn, vbCtrlMask);
  EXPECT_THAT(events, ElementsAre("DblClick", "DblClick", "DblClick"));
  EXPECT_EQ(services.loop.yields, yields + 1);
}

TEST_F(Selection, AnEmptyListHasNoDblClickAndIgnoresTypedKeys) {
  list.pic.UserDblClick();
  list.pic.UserKeyPress(vbKeyReturn);
  list.pic.UserKeyPress(vbKeyEscape);
  EXPECT_THAT(events, IsEmpty());
  EXPECT_TRUE(list.Visible());
}

TEST_F(Selection, CtrlTabAloneIsTold) {
  Load(3);
  Key(vbKeyTab, vbCtrlMask);
  Key(vbKeyTab, vbCtrlMask | vbShiftMask);
  EXPECT_THAT(events, ElementsAre("CtrlTab"));
}

TEST_F(Selection, EscapeHidesTheListUnlessItIsKept) {
  Load(3);
  list.KeepOnEscape = true;
  list.pic.UserKeyPress(vbKeyEscape);
  EXPECT_TRUE(list.Visible());
  list.KeepOnEscape = false;
  list.CodeLostFocus = {};
  list.pic.UserKeyPress(vbKeyEscape);
  EXPECT_FALSE(list.Visible());
  EXPECT_THAT(events, ElementsAre("EscapeClicked"));
}

TEST_F(Selection, LosingTheFocusTellsTheLine) {
  Load(3);
  list.SetStrPos(2);
  window.other.SetFocus();
  EXPECT_THAT(events, ElementsAre("CodeLostFocus 2"));
  Load(1);
  list.SetFocus();
  events.clear();
  window.other.SetFocus();
  EXPECT_THAT(events, IsEmpty()) << "one line is not worth it";
}

class TreeClick : public Selection {
 protected:
  void SetUp() override {
    list.sGrid("TREE");
    list.SetText("root\r\n+a\r\n++b\r\n+++c\r\n++d\r\n+e\r\n");
    events.clear();
  }
  std::vector<long> Visible() {
    std::vector<long> lines;
    for (long line = 1; line <= list.ListCount(); ++line)
      if (list.IsLineVisible(line)) lines.push_back(line);
    return lines;
  }
};

// The box of level 34 stands behind seven blanks and the gutter.
constexpr Twips kInBox = 392 + 7 * 98 + 2 + 75;

TEST_F(TreeClick, OpensTheNextLevelAndClosesAllBelow) {
  EXPECT_THAT(Visible(), ElementsAre(1, 2, 6));
  ClickOn(2, kInBox);
  EXPECT_THAT(Visible(), ElementsAre(1, 2, 3, 5, 6)) << "only one level deeper";
  ClickOn(3, kInBox + 12 * 98);
  EXPECT_THAT(Visible(), ElementsAre(1, 2, 3, 4, 5, 6));
  ClickOn(2, kInBox);
  EXPECT_THAT(Visible(), ElementsAre(1, 2, 6));
  EXPECT_THAT(Levels(), ElementsAre(33, 34, 35, 36, 35, 34)) << "the levels stay";
}

TEST_F(TreeClick, IsTheControlsClickOnly) {
  ClickOn(2, 3000);
  EXPECT_THAT(events, ElementsAre("UcClick"));
  EXPECT_THAT(Visible(), ElementsAre(1, 2, 6)) << "beside the box";
}

TEST_F(TreeClick, OnTheLastOrAnOuterEntryOpensNothing) {
  ClickOn(3, kInBox);
  ClickOn(1, kInBox);
  EXPECT_THAT(Visible(), ElementsAre(1, 2, 6));
}

TEST_F(TreeClick, AnArrowKeyIsTheListsClick) {
  Key(vbKeyDown);
  EXPECT_EQ(list.ListIndex(), 2);
  EXPECT_THAT(events, ElementsAre("Click"));
}

TEST_F(TreeClick, AClosingBranchLeavesTheCurrentRow) {
  ClickOn(2, kInBox);
  ClickOn(3, kInBox + 12 * 98);
  ClickOn(2, kInBox);
  EXPECT_EQ(list.TopLine(), 1);
  EXPECT_EQ(list.CurrentRow(), 2);
  EXPECT_EQ(list.ListIndex(), 2);
}

// What closes a branch is a click on the entry above it, which then is the current one and, scrolled there, the top.
TEST_F(TreeClick, AClosingBranchAtTheTopLeavesTheTop) {
  ClickOn(2, kInBox);
  list.vs.UserScroll(2, false);
  ASSERT_EQ(list.TopLine(), 2);
  ClickOn(1, kInBox);
  EXPECT_THAT(Visible(), ElementsAre(1, 2, 6));
  EXPECT_EQ(list.TopLine(), 2);
  EXPECT_EQ(list.CurrentRow(), 1);
  EXPECT_EQ(list.ListIndex(), 2);
}

TEST_F(TreeClick, ScrolledToTheRightOpensNothing) {
  list.hs.SetValue(1);
  ClickOn(2, kInBox);
  EXPECT_THAT(Visible(), ElementsAre(1, 2, 6));
}

TEST_F(Selection, ADragNeedsTheLeftButton) {
  Load(9);
  Press(2);
  Wait(300);
  list.pic.UserMouseMove(vbRightButton, 0, 1000, YOf(5));
  EXPECT_THAT(SelectedLines(), IsEmpty());
  EXPECT_EQ(list.ListIndex(), 2);
  DragTo(3);
  EXPECT_THAT(SelectedLines(), ElementsAre(2, 3));
}

TEST_F(Selection, TheTimerEndsOnTheFirstLine) {
  Load(30);
  Press(2);
  Wait(300);
  DragToY(-10);
  ASSERT_EQ(list.ListIndex(), 1);
  ASSERT_TRUE(list.tmr.Enabled());
  toolkit.Tick(list.tmr);
  EXPECT_FALSE(list.tmr.Enabled());
  EXPECT_THAT(SelectedLines(), ElementsAre(1, 2));
}

TEST_F(Selection, TheLowerEdgeOfTheSurfaceIsNotBelowIt) {
  Load(30);
  Press(9);
  Wait(300);
  DragToY(list.pic.ScaleHeight());
  EXPECT_FALSE(list.tmr.Enabled());
  DragToY(list.pic.ScaleHeight() + 1);
  EXPECT_TRUE(list.tmr.Enabled());
}

TEST_F(TreeClick, CountsFromTheLeftEdgeOfTheBoxToItsRight) {
  const Twips left = kInBox - 75;
  ClickOn(2, left - 1);
  EXPECT_THAT(Visible(), ElementsAre(1, 2, 6));
  ClickOn(2, left + 151);
  EXPECT_THAT(Visible(), ElementsAre(1, 2, 6));
  ClickOn(2, left);
  EXPECT_THAT(Visible(), ElementsAre(1, 2, 3, 5, 6));
  ClickOn(2, left + 150);
  EXPECT_THAT(Visible(), ElementsAre(1, 2, 6));
}

TEST_F(TreeClick, IsWhereTheButtonIsReleased) {
  Press(2, kInBox);
  ReleaseAt(2, 3000);
  EXPECT_THAT(Visible(), ElementsAre(1, 2, 6));
  Press(2, 3000);
  ReleaseAt(2, kInBox);
  EXPECT_THAT(Visible(), ElementsAre(1, 2, 3, 5, 6));
}

}  // namespace
}  // namespace corvane::codelist
