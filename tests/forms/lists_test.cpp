#include <gtest/gtest.h>

#include "tests/forms/error_number.h"
#include "tests/forms/sample_window.h"

namespace corvane::forms {
namespace {

struct Lists : testing::Test {
  HeadlessToolkit toolkit;
  SampleWindow window{toolkit};
  ListBox& lst = window.lst;
  User user{window};
  void Fill(std::initializer_list<const char*> texts) {
    for (const char* text : texts) lst.AddItem(text);
  }
  Log Rows() {
    Log rows;
    for (long row = 0; row < lst.ListCount(); ++row) rows.push_back(lst.List(row));
    return rows;
  }
  void Show() {
    window.Show();
    window.Taken();
  }
};

TEST_F(Lists, KeepTheOrderOfAdding) {
  Fill({"b", "a"});
  EXPECT_EQ(Rows(), (Log{"b", "a"}));
}

TEST_F(Lists, SortedOnesPutRowsInPlaceAndTellNewIndex) {
  lst.SetSorted(true);
  Fill({"Beta", "alpha", " first"});
  EXPECT_EQ(lst.NewIndex(), 0);
  lst.SetItemData(lst.NewIndex(), 7);
  lst.AddItem("gamma");
  EXPECT_EQ(lst.NewIndex(), 3);
  EXPECT_EQ(Rows(), (Log{" first", "alpha", "Beta", "gamma"}));
  EXPECT_EQ(lst.ItemData(0), 7);
}

TEST_F(Lists, EqualTextsOfASortedListStandInTheOrderOfAdding) {
  lst.SetSorted(true);
  Fill({"x", "x", "X"});
  EXPECT_EQ(lst.NewIndex(), 2);
}

TEST_F(Lists, AddItemWithAPlaceIgnoresSorting) {
  lst.SetSorted(true);
  Fill({"b", "a"});
  lst.AddItem("z", 0);
  EXPECT_EQ(Rows(), (Log{"z", "a", "b"}));
  EXPECT_EQ(NumberOf([&] { lst.AddItem("x", 4); }), 5);
}

TEST_F(Lists, NewItemDataIsZero) {
  Fill({"a"});
  EXPECT_EQ(lst.ItemData(0), 0);
  EXPECT_EQ(lst.ItemData(5), 0);
  EXPECT_EQ(NumberOf([&] { lst.SetItemData(1, 1); }), 381);
}

TEST_F(Lists, NewIndexIsMinusOneWhenEmptyAndAfterARemoval) {
  EXPECT_EQ(lst.NewIndex(), -1);
  Fill({"a", "b"});
  EXPECT_EQ(lst.NewIndex(), 1);
  lst.RemoveItem(0);
  EXPECT_EQ(lst.NewIndex(), -1);
  Fill({"c"});
  lst.Clear();
  EXPECT_EQ(lst.NewIndex(), -1);
}

TEST_F(Lists, RemovingOutsideIsError5) {
  Fill({"a"});
  EXPECT_EQ(NumberOf([&] { lst.RemoveItem(1); }), 5);
  EXPECT_EQ(NumberOf([&] { lst.RemoveItem(-1); }), 5);
}

TEST_F(Lists, TextsOutsideAreEmptyAndTheRowBehindTheLastAppends) {
  Fill({"a"});
  EXPECT_EQ(lst.List(-1), "");
  EXPECT_EQ(lst.List(1), "");
  lst.SetList(1, "b");
  lst.SetList(0, "A");
  EXPECT_EQ(Rows(), (Log{"A", "b"}));
  EXPECT_EQ(NumberOf([&] { lst.SetList(3, "x"); }), 381);
}

TEST_F(Lists, ListIndexClicksOnceForAnotherRow) {
  Fill({"a", "b"});
  lst.SetListIndex(1);
  lst.SetListIndex(1);
  EXPECT_EQ(window.Taken(), (Log{"lst_Click"}));
  EXPECT_EQ(NumberOf([&] { lst.SetListIndex(2); }), 380);
  EXPECT_EQ(NumberOf([&] { lst.SetListIndex(-2); }), 380);
  lst.SetListIndex(-1);
  EXPECT_EQ(lst.Text(), "");
}

TEST_F(Lists, ClearDoesNotClick) {
  Fill({"a"});
  lst.SetListIndex(0);
  window.Taken();
  lst.Clear();
  EXPECT_EQ(lst.ListIndex(), -1);
  EXPECT_EQ(window.Taken(), Log{});
}

TEST_F(Lists, TheSelectionFollowsItsRow) {
  Fill({"a", "b", "c"});
  lst.SetListIndex(1);
  lst.AddItem("0", 0);
  EXPECT_EQ(lst.Text(), "b");
  lst.RemoveItem(0);
  EXPECT_EQ(lst.Text(), "b");
  lst.RemoveItem(1);
  EXPECT_EQ(lst.ListIndex(), -1);
}

TEST_F(Lists, TopIndexIsCutToTheLastPage) {
  for (int row = 0; row < 50; ++row) Fill({"row"});
  lst.SetHeight(60 + 10 * 198);
  EXPECT_EQ(lst.RowsInView(), 10);
  lst.SetTopIndex(20);
  EXPECT_EQ(lst.TopIndex(), 20);
  lst.SetTopIndex(45);
  EXPECT_EQ(lst.TopIndex(), 40);
  EXPECT_EQ(NumberOf([&] { lst.SetTopIndex(50); }), 380);
}

TEST_F(Lists, AClickOnARowComesBetweenDownAndUp) {
  Fill({"a", "b"});
  Show();
  EXPECT_TRUE(user.Choose(lst, "b"));
  EXPECT_EQ(window.Taken(),
            (Log{"txtA_Validate", "txtA_LostFocus", "lst_GotFocus", "lst_MouseDown", "lst_Click", "lst_MouseUp"}));
  EXPECT_TRUE(user.Choose(lst, 1));
  EXPECT_EQ(window.Taken(), (Log{"lst_MouseDown", "lst_Click", "lst_MouseUp"}));
  EXPECT_FALSE(user.Choose(lst, "z"));
}

TEST_F(Lists, ADoubleClickOnARowEndsWithMouseUp) {
  Fill({"a"});
  Show();
  lst.SetFocus();
  window.Taken();
  user.DblClickRow(lst, 0);
  EXPECT_EQ(window.Taken(), (Log{"lst_MouseDown", "lst_Click", "lst_MouseUp", "lst_DblClick", "lst_MouseUp"}));
}

TEST_F(Lists, KeysMoveTheSelection) {
  Fill({"a", "b", "c", "d"});
  lst.SetListIndex(0);
  Show();
  lst.SetFocus();
  const std::pair<int, long> cases[] = {{vbKeyDown, 1}, {vbKeyEnd, 3},      {vbKeyDown, 3}, {vbKeyUp, 2},
                                        {vbKeyHome, 0}, {vbKeyPageDown, 3}, {'B', 1}};
  for (const auto& [key, row] : cases) {
    user.Press(key);
    EXPECT_EQ(lst.ListIndex(), row) << key;
  }
}

TEST_F(Lists, CheckBoxesTellItemCheckBeforeClick) {
  lst.SetStyle(1);
  Fill({"a", "b"});
  lst.ItemCheck = [&](long row) { window.log.push_back("lst_ItemCheck " + std::to_string(row)); };
  lst.SetSelected(1, true);
  EXPECT_EQ(window.Taken(), (Log{"lst_ItemCheck 1", "lst_Click"}));
  lst.SetSelected(1, true);
  EXPECT_EQ(window.Taken(), Log{});
  EXPECT_EQ(lst.SelCount(), 1);
  Show();
  user.Check(lst, 0);
  EXPECT_TRUE(lst.Selected(0));
  EXPECT_EQ(lst.SelCount(), 2);
  const Log taken = window.Taken();
  EXPECT_EQ((Log{taken.end() - 2, taken.end()}), (Log{"lst_ItemCheck 0", "lst_Click"}));
}

TEST_F(Lists, CheckBoxesExcludeMultiSelection) {
  lst.SetStyle(1);
  EXPECT_EQ(NumberOf([&] { lst.SetMultiSelect(1); }), 380);
}

TEST_F(Lists, MultiSelectionMarksRowsAndListIndexIsTheFocusedOne) {
  lst.SetMultiSelect(1);
  Fill({"a", "b", "c"});
  lst.SetSelected(0, true);
  lst.SetSelected(2, true);
  EXPECT_EQ(lst.ListIndex(), 2);
  EXPECT_EQ(lst.SelCount(), 2);
  lst.SetListIndex(1);
  EXPECT_FALSE(lst.Selected(1));
  EXPECT_EQ(NumberOf([&] { lst.Selected(3); }), 381);
}

TEST_F(Lists, AClickInAnExtendedSelectionMarksThatRowAlone) {
  lst.SetMultiSelect(2);
  Fill({"a", "b", "c"});
  lst.SetSelected(0, true);
  lst.SetSelected(2, true);
  Show();
  lst.UserSelect(1);
  EXPECT_EQ(lst.SelCount(), 1);
  EXPECT_TRUE(lst.Selected(1));
  EXPECT_EQ(lst.ListIndex(), 1);
  EXPECT_EQ(window.Taken().back(), "lst_Click");
  lst.UserToggle(2);
  EXPECT_EQ(lst.SelCount(), 2);
}

TEST_F(Lists, ExtendingMarksAllBetweenInOneClick) {
  lst.SetMultiSelect(2);
  Fill({"a", "b", "c", "d"});
  Show();
  lst.UserSelect(3);
  window.Taken();
  lst.UserExtend(1);
  EXPECT_EQ(window.Taken(), (Log{"lst_Click"}));
  EXPECT_EQ(lst.SelCount(), 3);
  EXPECT_FALSE(lst.Selected(0));
  EXPECT_EQ(lst.ListIndex(), 1);
  lst.UserExtend(4);
  EXPECT_EQ(window.Taken(), Log{});
}

TEST_F(Lists, AClickInASimpleSelectionLeavesTheMarks) {
  lst.SetMultiSelect(1);
  Fill({"a", "b"});
  lst.SetSelected(0, true);
  Show();
  lst.UserSelect(1);
  EXPECT_TRUE(lst.Selected(0));
  EXPECT_FALSE(lst.Selected(1));
}

TEST_F(Lists, OneSelectionIsTheListIndex) {
  Fill({"a", "b"});
  lst.SetSelected(1, true);
  EXPECT_EQ(lst.ListIndex(), 1);
  EXPECT_TRUE(lst.Selected(1));
  EXPECT_EQ(lst.SelCount(), 1);
  lst.SetSelected(1, false);
  EXPECT_EQ(lst.ListIndex(), -1);
}

TEST_F(Lists, ADisabledListIsOutOfReach) {
  Fill({"a"});
  Show();
  lst.SetEnabled(false);
  EXPECT_FALSE(user.Choose(lst, 0));
  lst.UserSelect(0);
  EXPECT_EQ(lst.ListIndex(), -1);
}

TEST_F(Lists, ScrollingTellsScroll) {
  int scrolls = 0;
  lst.Scroll = [&] { ++scrolls; };
  lst.UserScroll(3);
  lst.UserScroll(3);
  EXPECT_EQ(scrolls, 1);
  EXPECT_EQ(lst.TopIndex(), 3);
}

struct Combos : Lists {
  ComboBox cmb{window, "cmb"};
  Combos() {
    window.Note(cmb);
    cmb.Change = [this] { window.log.push_back("cmb_Change"); };
    cmb.DropDown = [this] { window.log.push_back("cmb_DropDown"); };
    for (const char* text : {"one", "two"}) cmb.AddItem(text);
  }
};

TEST_F(Combos, AChosenRowClicksWithoutChange) {
  cmb.SetListIndex(1);
  EXPECT_EQ(cmb.Text(), "two");
  EXPECT_EQ(window.Taken(), (Log{"cmb_Click"}));
  cmb.SetListIndex(1);
  EXPECT_EQ(window.Taken(), Log{});
}

TEST_F(Combos, AnAssignedTextRaisesChangeOnce) {
  cmb.SetText("free");
  cmb.SetText("free");
  EXPECT_EQ(window.Taken(), (Log{"cmb_Change"}));
  EXPECT_EQ(cmb.ListIndex(), -1);
  cmb.SetText("two");
  EXPECT_EQ(cmb.ListIndex(), 1);
  EXPECT_EQ(window.Taken(), (Log{"cmb_Change"}));
}

TEST_F(Combos, ATextSetInItsClickStays) {
  cmb.Click = [&] { cmb.SetText("set"); };
  cmb.SetListIndex(1);
  EXPECT_EQ(cmb.Text(), "set");
  EXPECT_EQ(cmb.ListIndex(), -1);
}

TEST_F(Combos, TheTextStaysWhenItsRowGoes) {
  cmb.SetListIndex(0);
  cmb.RemoveItem(0);
  EXPECT_EQ(cmb.Text(), "one");
  EXPECT_EQ(cmb.ListIndex(), -1);
  cmb.Clear();
  EXPECT_EQ(cmb.Text(), "");
}

TEST_F(Combos, ADropDownListTakesOnlyTextsOfItsRows) {
  cmb.SetStyle(2);
  cmb.SetText("two");
  EXPECT_EQ(cmb.ListIndex(), 1);
  EXPECT_EQ(NumberOf([&] { cmb.SetText("three"); }), 383);
  EXPECT_EQ(cmb.Text(), "two");
}

TEST_F(Combos, TheUserDropsDownAndChooses) {
  Show();
  EXPECT_TRUE(user.Choose(cmb, "two"));
  EXPECT_EQ(window.Taken(), (Log{"txtA_Validate", "txtA_LostFocus", "cmb_GotFocus", "cmb_DropDown", "cmb_Click"}));
}

TEST_F(Combos, TypingRaisesChangePerCharacter) {
  Show();
  user.Enter(cmb, "ab");
  EXPECT_EQ(cmb.Text(), "ab");
  const Log taken = window.Taken();
  EXPECT_EQ(std::count(taken.begin(), taken.end(), "cmb_Change"), 2);
}

TEST_F(Combos, ALockedOneIsNotChanged) {
  Show();
  cmb.SetLocked(true);
  user.Choose(cmb, 1);
  EXPECT_EQ(cmb.ListIndex(), -1);
  EXPECT_FALSE(user.Enter(cmb, "x"));
  EXPECT_EQ(cmb.Text(), "");
}

TEST_F(Combos, ADropDownListIsSearchedByTyping) {
  cmb.SetStyle(2);
  Show();
  cmb.SetFocus();
  user.Type("t");
  EXPECT_EQ(cmb.Text(), "two");
}

}  // namespace
}  // namespace corvane::forms
