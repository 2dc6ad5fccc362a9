// What clicks, keys and letters choose in rows that a toolkit paints itself.
#include "forms/list_rows.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "forms/form.h"
#include "forms/headless_toolkit.h"

namespace corvane::forms {
namespace {

using Log = std::vector<std::string>;

// Three rows in view.
class Rows : public ListRows {
 public:
  explicit Rows(ListControl& list) : ListRows(list) {
    IsMarked = [](long row) { return row == 4; };
    OnChoose = [this](long row) { told.push_back("choose " + std::to_string(row)); };
    OnToggle = [this](long row) { told.push_back("toggle " + std::to_string(row)); };
    OnExtend = [this](long row) { told.push_back("extend " + std::to_string(row)); };
    OnScroll = [this](long row) { told.push_back("scroll " + std::to_string(row)); };
  }
  long RowsInView() const override { return 3; }
  void FitScrollBar() override { KeepInRange(); }
  void Repaint() override {}
  using ListRows::DragTo, ListRows::IsShownSelected, ListRows::KeyDown, ListRows::LoseMouse, ListRows::Press,
      ListRows::Release, ListRows::ScrollByUser, ListRows::Typed;
  Log Taken() { return std::exchange(told, {}); }
  Log told;
};

class ListRowsTest : public testing::Test {
 protected:
  ListRowsTest() {
    for (const char* text : {"alpha", "beta", "Gamma", "gold", "delta", "epsilon"}) list.AddItem(text);
  }
  HeadlessToolkit toolkit;
  Form form{toolkit, "frm"};
  ListBox list{form, "lst"};
  Rows rows{list};
};

TEST_F(ListRowsTest, TheRowThatIsLetGoIsChosen) {
  rows.Press(1);
  EXPECT_TRUE(rows.IsShownSelected(1));
  rows.DragTo(-1);
  EXPECT_TRUE(rows.IsShownSelected(1)) << "outside the rows the last one stays";
  rows.DragTo(2);
  EXPECT_TRUE(rows.IsShownSelected(2));
  rows.Release(false, 0);
  EXPECT_EQ(rows.Taken(), (Log{"choose 2"}));
  rows.Release(false, 0);
  rows.Press(-1), rows.DragTo(2), rows.Release(false, 0);
  rows.Press(1), rows.LoseMouse(), rows.Release(false, 0);
  EXPECT_EQ(rows.Taken(), Log{});
}

TEST_F(ListRowsTest, ARowThatWentMeanwhileIsNotChosen) {
  rows.Press(5);
  list.RemoveItem(0);
  rows.Release(false, 0);
  EXPECT_EQ(rows.Taken(), Log{});
}

TEST_F(ListRowsTest, BoxesControlAndShiftHaveTheirOwnActs) {
  const struct {
    bool toggle, extends, on_box;
    int shift;
    const char* act;
  } cases[] = {
      {false, false, false, 0, "choose 1"},          {false, false, true, 0, "toggle 1"},
      {true, false, false, 0, "toggle 1"},           {false, false, false, vbCtrlMask, "choose 1"},
      {false, true, false, vbCtrlMask, "toggle 1"},  {false, true, false, vbShiftMask, "extend 1"},
      {true, false, false, vbShiftMask, "toggle 1"}, {false, true, false, 0, "choose 1"},
  };
  for (const auto& each : cases) {
    rows.ToggleOnClick = each.toggle, rows.Extends = each.extends;
    rows.Press(1), rows.Release(each.on_box, each.shift);
    EXPECT_EQ(rows.Taken(), Log{each.act});
  }
}

TEST_F(ListRowsTest, ManyRowsAreShownAsTheyAreMarked) {
  list.SetListIndex(1);
  EXPECT_TRUE(rows.IsShownSelected(1));
  rows.Extends = true;
  EXPECT_FALSE(rows.IsShownSelected(1));
  EXPECT_TRUE(rows.IsShownSelected(4));
}

TEST_F(ListRowsTest, KeysReachTheirRowAndBringItIntoView) {
  const struct {
    long from;
    int key;
    const char* act;
    long top;
  } cases[] = {
      {-1, vbKeyDown, "choose 0", 0}, {2, vbKeyUp, "choose 1", 0},       {2, vbKeyRight, "choose 3", 1},
      {0, vbKeyEnd, "choose 5", 3},   {1, vbKeyPageDown, "choose 3", 1}, {5, vbKeyPageUp, "choose 3", 3},
      {4, vbKeyHome, "choose 0", 0},
  };
  for (const auto& each : cases) {
    list.SetListIndex(each.from);
    rows.Follow(each.from);
    EXPECT_TRUE(rows.KeyDown(each.key, 0));
    EXPECT_EQ(rows.Taken(), Log{each.act});
    EXPECT_EQ(rows.TopRow(), each.top) << each.act;
  }
  EXPECT_FALSE(rows.KeyDown(vbKeyA, 0));
  list.SetListIndex(0);
  EXPECT_TRUE(rows.KeyDown(vbKeyUp, 0));
  EXPECT_EQ(rows.Taken(), Log{}) << "it stands there already";
  rows.Extends = true;
  rows.KeyDown(vbKeyDown, vbShiftMask);
  EXPECT_EQ(rows.Taken(), Log{"extend 1"});
}

TEST_F(ListRowsTest, LettersFindTheNextRowRoundTheEnd) {
  list.SetListIndex(2);
  EXPECT_TRUE(rows.Typed("g", 0));
  EXPECT_TRUE(rows.Typed("E", 0));
  EXPECT_TRUE(rows.Typed("b", 0));
  EXPECT_TRUE(rows.Typed("x", 0));
  EXPECT_EQ(rows.Taken(), (Log{"choose 3", "choose 5", "choose 1"}));
  EXPECT_FALSE(rows.Typed("\r", 0));
  EXPECT_FALSE(rows.Typed("", 0));
}

TEST_F(ListRowsTest, TheBlankTogglesWhereRowsAreMarked) {
  list.SetListIndex(1);
  rows.Typed(" ", 0);
  EXPECT_EQ(rows.Taken(), Log{}) << "no row begins with it";
  rows.Boxes = true;
  rows.Typed(" ", 0);
  EXPECT_EQ(rows.Taken(), Log{"toggle 1"});
}

TEST_F(ListRowsTest, ScrollingEndsOnTheLastPageAndIsToldToTheUserAlone) {
  rows.ScrollTo(2);
  EXPECT_EQ(rows.Taken(), Log{});
  rows.ScrollByUser(9);
  EXPECT_EQ(rows.TopRow(), 3);
  rows.ScrollByUser(7);
  rows.ScrollByUser(-1);
  EXPECT_EQ(rows.Taken(), (Log{"scroll 3", "scroll 0"}));
}

TEST_F(ListRowsTest, WithoutItsControlNothingIsReadOrTold) {
  rows.Press(1);
  rows.Leave();
  rows.Release(false, 0);
  EXPECT_FALSE(rows.KeyDown(vbKeyDown, 0));
  EXPECT_FALSE(rows.Typed("a", 0));
  rows.ScrollByUser(2);
  EXPECT_EQ(rows.Taken(), Log{});
}

}  // namespace
}  // namespace corvane::forms
