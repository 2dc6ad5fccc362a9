#include <gtest/gtest.h>

#include "tests/forms/error_number.h"
#include "tests/forms/sample_window.h"

namespace corvane::forms {
namespace {

struct Focus : testing::Test {
  HeadlessToolkit toolkit;
  SampleWindow window{toolkit};
  User user{window};
  void Show() {
    window.Show();
    window.Taken();
  }
};

TEST_F(Focus, MovesByValidateLostFocusGotFocus) {
  Show();
  window.txtB.SetFocus();
  EXPECT_EQ(window.Taken(), (Log{"txtA_Validate", "txtA_LostFocus", "txtB_GotFocus"}));
}

TEST_F(Focus, AControlThatCausesNoValidationIsReachedUnasked) {
  Show();
  window.cmdCancel.SetCausesValidation(false);
  window.txtA.Validate = [](bool& cancel) { cancel = true; };
  window.txtB.SetFocus();
  EXPECT_EQ(window.ActiveControl(), &window.txtA);
  EXPECT_TRUE(user.Click(window.cmdCancel));
  EXPECT_EQ(window.ActiveControl(), &window.cmdCancel);
}

TEST_F(Focus, ACancelledValidateKeepsIt) {
  Show();
  window.txtA.Validate = [](bool& cancel) { cancel = true; };
  window.txtB.SetFocus();
  EXPECT_EQ(window.Taken(), Log{});
  EXPECT_TRUE(window.txtA.HasFocus());
}

TEST_F(Focus, OnAHiddenOrDisabledControlIsError5) {
  Show();
  window.txtB.SetVisible(false);
  EXPECT_EQ(NumberOf([&] { window.txtB.SetFocus(); }), 5);
  window.lst.SetEnabled(false);
  EXPECT_EQ(NumberOf([&] { window.lst.SetFocus(); }), 5);
}

TEST_F(Focus, OnAHiddenFormIsError5) {
  EXPECT_EQ(NumberOf([&] { window.txtA.SetFocus(); }), 5);
}

TEST_F(Focus, SameControlAgainTellsNothing) {
  Show();
  window.txtA.SetFocus();
  EXPECT_EQ(window.Taken(), Log{});
}

TEST_F(Focus, HidingTheFocusedControlMovesItOnUnasked) {
  Show();
  window.txtA.Validate = [](bool& cancel) { cancel = true; };
  window.txtA.SetVisible(false);
  EXPECT_EQ(window.Taken(), (Log{"txtA_LostFocus", "txtB_GotFocus"}));
  window.txtB.SetEnabled(false);
  EXPECT_EQ(window.ActiveControl(), &window.cmdOK);
}

TEST_F(Focus, AHandlerMayMoveItOn) {
  Show();
  window.txtB.GotFocus = [&] { window.lst.SetFocus(); };
  window.txtB.SetFocus();
  EXPECT_EQ(window.ActiveControl(), &window.lst);
  EXPECT_EQ(window.Taken(),
            (Log{"txtA_Validate", "txtA_LostFocus", "txtB_Validate", "txtB_LostFocus", "lst_GotFocus"}));
}

TEST_F(Focus, InLostFocusTheOtherIsActiveAlready) {
  Show();
  Control* seen = nullptr;
  window.txtA.LostFocus = [&] { seen = window.ActiveControl(); };
  window.txtB.SetFocus();
  EXPECT_EQ(seen, &window.txtB);
}

TEST_F(Focus, SetFocusOnAnotherFormsControlActivatesThatForm) {
  Show();
  SampleWindow other(toolkit, "frmOther");
  other.Show();
  window.Taken();
  window.txtB.SetFocus();
  EXPECT_TRUE(window.IsActiveForm());
  EXPECT_TRUE(window.txtB.HasFocus());
  const Log taken = window.Taken();
  EXPECT_EQ(taken.back(), "txtB_GotFocus");
}

struct TabOrder : Focus {
  Log Walk(int steps, int shift = 0) {
    Log names;
    for (int step = 0; step < steps; ++step) {
      user.Press(vbKeyTab, shift);
      names.push_back(window.ActiveControl()->Name());
    }
    return names;
  }
};

TEST_F(TabOrder, IsTheOrderOfMakingAndGoesRound) {
  Show();
  EXPECT_EQ(Walk(5), (Log{"txtB", "cmdOK", "cmdCancel", "lst", "txtA"}));
  EXPECT_EQ(Walk(2, vbShiftMask), (Log{"lst", "cmdCancel"}));
}

TEST_F(TabOrder, ATabIndexMovesTheOthersOn) {
  window.lst.SetTabIndex(0);
  EXPECT_EQ(window.lst.TabIndex(), 0);
  EXPECT_EQ(window.txtA.TabIndex(), 1);
  EXPECT_EQ(window.cmdCancel.TabIndex(), 4);
  window.lst.SetTabIndex(99);
  EXPECT_EQ(window.lst.TabIndex(), 4);
  EXPECT_EQ(NumberOf([&] { window.lst.SetTabIndex(-1); }), 380);
}

TEST_F(TabOrder, PassesOverWhatIsHiddenDisabledOrNoStop) {
  window.txtB.SetTabStop(false);
  window.cmdOK.SetVisible(false);
  window.cmdCancel.SetEnabled(false);
  Show();
  EXPECT_EQ(Walk(2), (Log{"lst", "txtA"}));
}

TEST_F(TabOrder, GivesNoKeyDownWhereAnotherStopExists) {
  Show();
  Walk(1);
  EXPECT_EQ(window.Taken(), (Log{"txtA_Validate", "txtA_LostFocus", "txtB_GotFocus", "txtB_KeyUp 9 0"}));
}

TEST_F(TabOrder, GivesKeyDownWhereThereIsNoOther) {
  for (Control* control :
       {(Control*)&window.txtB, (Control*)&window.cmdOK, (Control*)&window.cmdCancel, (Control*)&window.lst}) {
    control->SetEnabled(false);
  }
  Show();
  user.Press(vbKeyTab);
  EXPECT_EQ(window.Taken(), (Log{"txtA_KeyDown 9 0", "txtA_KeyUp 9 0"}));
}

TEST_F(TabOrder, ControlTabIsNoTab) {
  Show();
  user.Press(vbKeyTab, vbCtrlMask);
  EXPECT_EQ(window.Taken(), (Log{"txtA_KeyDown 9 2", "txtA_KeyUp 9 2"}));
}

TEST_F(TabOrder, AGroupOfOptionsIsOneStop) {
  Frame fra(window, "fra");
  OptionButton one(fra, "one"), two(fra, "two"), three(fra, "three");
  fra.Move(2000, 0, 2000, 2000);
  two.SetValue(true);
  Show();
  EXPECT_EQ(Walk(6), (Log{"txtB", "cmdOK", "cmdCancel", "lst", "two", "txtA"}));
}

TEST_F(TabOrder, ControlsOfAUserControlComeInItsPlace) {
  struct Pair : UserControl {
    using UserControl::UserControl;
    TextBox first{*this, "first"}, second{*this, "second"};
  };
  Pair pair(window, "pair");
  pair.Move(3000, 0, 2000, 2000);
  pair.SetTabIndex(1);
  pair.second.SetTabIndex(0);
  Show();
  EXPECT_EQ(Walk(4), (Log{"second", "first", "txtB", "cmdOK"}));
}

struct UserControls : Focus {
  struct Box : UserControl {
    using UserControl::UserControl;
    TextBox inner{*this, "inner"};
    int resizes = 0;

   protected:
    void OnResize() override { ++resizes; }
  };
  Box box{window, "box"};
  UserControls() {
    box.Move(3000, 0, 2000, 2000);
    box.inner.Move(0, 0, 1000, 300);
    window.Note(box), window.Note(box.inner);
  }
};

TEST_F(UserControls, GiveTheFocusToTheirFirstControl) {
  Show();
  box.SetFocus();
  EXPECT_EQ(window.ActiveControl(), &box.inner);
  EXPECT_TRUE(box.HasFocus());
  EXPECT_EQ(window.Taken(), (Log{"txtA_Validate", "txtA_LostFocus", "box_GotFocus", "inner_GotFocus"}));
  window.txtA.SetFocus();
  EXPECT_EQ(window.Taken(), (Log{"inner_Validate", "inner_LostFocus", "box_LostFocus", "txtA_GotFocus"}));
}

TEST_F(UserControls, AreLaidOutWhenLoadedAndResized) {
  const int before = box.resizes;
  Show();
  EXPECT_EQ(box.resizes, before + 1);
  box.SetWidth(2500);
  box.SetLeft(2900);
  EXPECT_EQ(box.resizes, before + 2);
}

TEST_F(UserControls, APressLandsOnWhatStandsThere) {
  Show();
  user.ClickAt(box, 100, 100);
  const Log taken = window.Taken();
  EXPECT_EQ(taken.back(), "inner_Click");
  user.ClickAt(box, 1900, 1900);
  EXPECT_EQ(window.Taken().back(), "box_Click");
}

TEST_F(UserControls, DisabledOnesDisableWhatTheyHold) {
  Show();
  box.SetEnabled(false);
  EXPECT_FALSE(box.inner.IsActive());
  EXPECT_TRUE(box.inner.Enabled());
  EXPECT_FALSE(user.ClickAt(box, 100, 100));
}

}  // namespace
}  // namespace corvane::forms
