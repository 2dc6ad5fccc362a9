#include "list_fixture.h"

namespace corvane::codelist {
namespace {

using namespace forms;
using testing::ElementsAre;
using testing::IsEmpty;

class EditBox : public ListTest {
 protected:
  void SetUp() override {
    list.sGrid("VB");
    list.SetText("a\r\nif b then\r\nc\r\n");
    list.SetStrPos(2);
    list.CodeLostFocus = {};
    events.clear();
  }
  void Type(const std::string& text) { list.txtEdit.UserEdit(text, 0, 0); }
};

TEST_F(EditBox, ShowsTheCleanLineAlongTheBottom) {
  list.EditCodeline();
  EXPECT_TRUE(list.txtEdit.Visible());
  EXPECT_EQ(list.txtEdit.Text(), "If b Then");
  EXPECT_EQ(list.txtEdit.Left(), 412);
  EXPECT_EQ(list.txtEdit.Top(), 9 * 234 - 234 - 20);
  EXPECT_EQ(list.txtEdit.Width(), 3745 - 392 - 30);
  EXPECT_TRUE(list.txtEdit.HasFocus());
}

TEST_F(EditBox, EnterTellsTheChangeAndGivesTheFocusBack) {
  list.EditCodeline();
  Type("x");
  list.txtEdit.UserKeyPress(vbKeyReturn);
  EXPECT_THAT(events, ElementsAre("UpdateString 2 x"));
  EXPECT_TRUE(list.pic.HasFocus());
  EXPECT_FALSE(list.txtEdit.Visible());
  EXPECT_EQ(list.List(2), "If b Then") << "the container replaces the line";
}

TEST_F(EditBox, EnterWithoutAChangeTellsNothing) {
  list.EditCodeline();
  list.txtEdit.UserKeyPress(vbKeyReturn);
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(EditBox, AnArrowTellsTheChangeAndGoesOn) {
  list.EditCodeline();
  Type("x");
  list.txtEdit.UserKeyDown(vbKeyDown, 0);
  EXPECT_THAT(events, ElementsAre("UpdateString 2 x", "Click"));
  EXPECT_EQ(list.txtEdit.Text(), "c");
  list.txtEdit.UserKeyDown(vbKeyUp, 0);
  EXPECT_EQ(list.txtEdit.Text(), "If b Then");
  EXPECT_TRUE(list.txtEdit.Visible());
}

TEST_F(EditBox, AHandlerThatMovesTheFocusKeepsTheTextThatItIsTold) {
  std::string told;
  list.UpdateString = [&](long, const std::string& text) {
    window.other.SetFocus();
    told = text;
  };
  for (bool by_enter : {true, false}) {
    list.SetStrPos(2);
    list.EditCodeline();
    Type("x");
    if (by_enter)
      list.txtEdit.UserKeyPress(vbKeyReturn);
    else
      list.txtEdit.UserKeyDown(vbKeyDown, 0);
    EXPECT_EQ(std::exchange(told, {}), "x") << by_enter;
    EXPECT_FALSE(list.txtEdit.Visible());
  }
}

TEST_F(EditBox, ANewTextDropsTheEdit) {
  list.EditCodeline();
  Type("x");
  list.SetText("d\r\ne\r\n");
  EXPECT_FALSE(list.txtEdit.Visible());
  list.txtEdit.UserKeyPress(vbKeyReturn);
  EXPECT_THAT(events, testing::Not(testing::Contains(testing::HasSubstr("UpdateString"))));
}

TEST_F(EditBox, EscapeDropsTheEdit) {
  list.EditCodeline();
  Type("x");
  list.txtEdit.UserKeyPress(vbKeyEscape);
  EXPECT_THAT(events, IsEmpty());
  EXPECT_FALSE(list.txtEdit.Visible());
  EXPECT_EQ(list.txtEdit.Text(), "");
}

TEST_F(EditBox, EscapeGivesTheFocusBackToTheLinesAndToNobodyBefore) {
  window.other.GotFocus = [this] { events.push_back("other"); };
  list.EditCodeline();
  list.txtEdit.UserKeyPress(vbKeyEscape);
  EXPECT_TRUE(list.pic.HasFocus());
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(EditBox, LosingTheFocusDropsTheEdit) {
  list.EditCodeline();
  Type("x");
  window.other.SetFocus();
  EXPECT_THAT(events, IsEmpty());
  EXPECT_FALSE(list.txtEdit.Visible());
}

TEST_F(EditBox, NeedsACurrentLine) {
  list.Clear();
  list.EditCodeline();
  EXPECT_FALSE(list.txtEdit.Visible());
}

TEST_F(EditBox, IsAsHighAsTheLastRow) {
  Font small = list.txtEdit.Font();
  small.Size = 6;  // in which a line is lower than a row
  list.txtEdit.SetFont(small);
  list.EditCodeline();
  EXPECT_EQ(list.txtEdit.Height(), 234);
}

TEST_F(EditBox, AnArrowIsSwallowedAndOtherKeysAreNot) {
  list.EditCodeline();
  for (const auto& [pressed, left] :
       {std::pair{vbKeyUp, 0}, std::pair{vbKeyDown, 0}, std::pair{vbKeyLeft, int(vbKeyLeft)}}) {
    int key = pressed;
    list.txtEdit.KeyDown(key, 0);
    EXPECT_EQ(key, left) << pressed;
  }
}

TEST_F(EditBox, DownScrollsOnceMoreFromTheDistanceOfAllRowsOn) {
  for (const auto& [hidden, top] : {std::pair{8, 1}, std::pair{9, 11}}) {
    list.sGrid("TREE");
    list.SetText("a\r\n" + runtime::Replace(std::string(static_cast<size_t>(hidden), 'x'), "x", "++h\r\n") +
                 "b\r\nc\r\n");
    list.EditCodeline();
    list.txtEdit.UserKeyDown(vbKeyDown, 0);
    EXPECT_EQ(list.ListIndex(), hidden + 2);
    EXPECT_EQ(list.TopLine(), top) << hidden;
  }
}

TEST_F(EditBox, DownOverManyHiddenLinesScrollsOnceMore) {
  list.sGrid("TREE");
  list.SetText("a\r\n" + runtime::Replace(std::string(10, 'x'), "x", "++h\r\n") + "b\r\nc\r\n");
  list.EditCodeline();
  list.txtEdit.UserKeyDown(vbKeyDown, 0);
  EXPECT_EQ(list.ListIndex(), 12);
  EXPECT_EQ(list.TopLine(), 12) << "eleven lines behind the top, but the second row";
  EXPECT_EQ(list.CurrentRow(), 1);
}

class QuickList : public ListTest {
 protected:
  void SetUp() override {
    Load(30);
    list.CodeLostFocus = {};
    for (long line : {5, 20}) list.AddQuickItem(line);
    list.ShowQuickList();
  }
};

TEST_F(QuickList, LiesOverTheLowerHalf) {
  EXPECT_TRUE(list.lbx.Visible());
  EXPECT_TRUE(list.lbx.HasFocus());
  EXPECT_EQ(list.lbx.Place(), (Rect{412, 6 * 234, 3745 - 392 - 30, 4 * 234}));
}

TEST_F(QuickList, AChoiceGoesToItsLineAndKeepsTheList) {
  list.lbx.UserSelect(1);
  EXPECT_EQ(list.ListIndex(), 20);
  EXPECT_TRUE(list.lbx.Visible());
  EXPECT_TRUE(list.lbx.HasFocus());
}

TEST_F(QuickList, AContainerThatTakesTheFocusDuringAChoiceDoesNotCloseIt) {
  list.vs.Change = [this] { window.other.SetFocus(); };
  list.lbx.UserSelect(1);
  EXPECT_TRUE(list.lbx.Visible());
  EXPECT_TRUE(list.lbx.HasFocus());
}

TEST_F(QuickList, LosingTheFocusBehindAChoiceHidesIt) {
  list.lbx.UserSelect(1);
  window.other.SetFocus();
  EXPECT_FALSE(list.lbx.Visible());
}

TEST_F(QuickList, OnlyTheFirstLossOfFocusDuringAChoiceLeavesItOpen) {
  list.vs.Change = [this] {
    window.other.SetFocus();
    list.lbx.SetFocus();
    window.other.SetFocus();
  };
  list.lbx.UserSelect(1);
  EXPECT_FALSE(list.lbx.Visible());
}

TEST_F(QuickList, DoubleClickEnterAndEscapeHideIt) {
  list.lbx.UserDblClick();
  EXPECT_FALSE(list.lbx.Visible());
  for (int key : {vbKeyReturn, vbKeyEscape}) {
    list.ShowQuickList();
    list.lbx.UserKeyPress(key);
    EXPECT_FALSE(list.lbx.Visible()) << key;
    EXPECT_TRUE(list.Visible()) << "the list itself stays";
  }
}

TEST_F(QuickList, HiddenItGivesTheFocusBackToTheLinesAndToNobodyBefore) {
  window.other.GotFocus = [this] { events.push_back("other"); };
  list.lbx.UserKeyPress(vbKeyEscape);
  EXPECT_TRUE(list.pic.HasFocus());
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(QuickList, LosingTheFocusHidesIt) {
  window.other.SetFocus();
  EXPECT_FALSE(list.lbx.Visible());
}

TEST_F(QuickList, MovingThePointerOverItIsTold) {
  list.MouseMove = [this](int, int, Twips, Twips) { events.push_back("MouseMove"); };
  list.lbx.UserMouseMove(0, 0, 10, 10);
  EXPECT_THAT(events, ElementsAre("MouseMove"));
}

TEST_F(QuickList, AResizeShowsItAgain) {
  window.other.SetFocus();
  list.SetHeight(1170);
  EXPECT_TRUE(list.lbx.Visible());
  EXPECT_EQ(list.lbx.Top(), 3 * 234);
}

}  // namespace
}  // namespace corvane::codelist
