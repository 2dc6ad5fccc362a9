#include <gtest/gtest.h>

#include "tests/forms/sample_window.h"

namespace corvane::forms {
namespace {

struct Keys : testing::Test {
  HeadlessToolkit toolkit;
  SampleWindow window{toolkit};
  User user{window};
  Keys() {
    window.Show();
    window.Taken();
  }
};

TEST_F(Keys, ComeAsDownPressUp) {
  user.Press(vbKeyA);
  EXPECT_EQ(window.Taken(), (Log{"txtA_KeyDown 65 0", "txtA_KeyPress 97", "txtA_KeyUp 65 0"}));
  EXPECT_EQ(window.txtA.Text(), "a");
}

TEST_F(Keys, ThatMakeNoCharacterHaveNoKeyPress) {
  user.Press(vbKeyF5);
  EXPECT_EQ(window.Taken(), (Log{"txtA_KeyDown 116 0", "txtA_KeyUp 116 0"}));
}

TEST_F(Keys, MakeCharactersAsAKeyboardDoes) {
  struct {
    int key, shift, character;
  } const cases[] = {{vbKeyA, 0, 'a'},
                     {vbKeyA, vbShiftMask, 'A'},
                     {vbKeyC, vbCtrlMask, 3},
                     {vbKeyReturn, 0, 13},
                     {vbKeyReturn, vbCtrlMask, 10},
                     {vbKeyBack, 0, 8},
                     {vbKeyEscape, 0, 27},
                     {vbKeySpace, 0, 32},
                     {vbKey0, 0, '0'},
                     {vbKeyA, vbAltMask, 0},
                     {vbKeyHome, 0, 0}};
  for (const auto& each : cases) {
    int character = 0;
    window.txtA.KeyPress = [&](int& key) { character = key; };
    user.Press(each.key, each.shift);
    EXPECT_EQ(character, each.character) << each.key << " " << each.shift;
  }
}

TEST_F(Keys, KeyCodeZeroCancelsTheKey) {
  window.txtA.KeyDown = [](int& key, int) { key = 0; };
  user.Press(vbKeyA);
  EXPECT_EQ(window.Taken(), (Log{"txtA_KeyUp 65 0"}));
  EXPECT_EQ(window.txtA.Text(), "");
}

TEST_F(Keys, KeyAsciiZeroCancelsTheCharacter) {
  window.txtA.KeyPress = [](int& key) { key = 0; };
  user.Type("abc");
  EXPECT_EQ(window.txtA.Text(), "");
}

TEST_F(Keys, KeyPreviewHearsAllThreeFirst) {
  window.SetKeyPreview(true);
  window.KeyDown = [&](int&, int) { window.log.push_back("Form_KeyDown"); };
  window.KeyPress = [&](int&) { window.log.push_back("Form_KeyPress"); };
  window.KeyUp = [&](int&, int) { window.log.push_back("Form_KeyUp"); };
  user.Press(vbKeyA);
  EXPECT_EQ(window.Taken(), (Log{"Form_KeyDown", "txtA_KeyDown 65 0", "Form_KeyPress", "txtA_KeyPress 97", "Form_KeyUp",
                                 "txtA_KeyUp 65 0"}));
}

TEST_F(Keys, KeyPreviewCanKeepAKeyFromTheControl) {
  window.SetKeyPreview(true);
  window.KeyDown = [](int& key, int) { key = 0; };
  user.Press(vbKeyA);
  EXPECT_EQ(window.Taken(), (Log{"txtA_KeyUp 65 0"}));
}

TEST_F(Keys, WithoutKeyPreviewTheFormHearsNothing) {
  int heard = 0;
  window.KeyDown = [&](int&, int) { ++heard; };
  user.Press(vbKeyA);
  EXPECT_EQ(heard, 0);
}

TEST_F(Keys, AFormWithoutControlsHearsThemItself) {
  Form bare(toolkit, "frmBare");
  Log log;
  bare.KeyDown = [&](int& key, int) { log.push_back("KeyDown " + std::to_string(key)); };
  bare.KeyPress = [&](int& key) { log.push_back("KeyPress " + std::to_string(key)); };
  bare.KeyUp = [&](int& key, int) { log.push_back("KeyUp " + std::to_string(key)); };
  bare.Show();
  User(bare).Press(vbKeyA);
  EXPECT_EQ(log, (Log{"KeyDown 65", "KeyPress 97", "KeyUp 65"}));
}

TEST_F(Keys, TheDefaultButtonTakesEnterAndTheCancelButtonEsc) {
  window.cmdOK.SetDefault(true);
  window.cmdCancel.SetCancel(true);
  user.Press(vbKeyReturn);
  EXPECT_EQ(window.Taken(), (Log{"cmdOK_Click", "txtA_KeyUp 13 0"}));
  user.Press(vbKeyEscape);
  EXPECT_EQ(window.Taken(), (Log{"cmdCancel_Click", "txtA_KeyUp 27 0"}));
  EXPECT_EQ(window.ActiveControl(), &window.txtA);
}

TEST_F(Keys, AHiddenDefaultButtonLeavesEnterToTheControl) {
  window.cmdOK.SetDefault(true);
  window.cmdOK.SetEnabled(false);
  user.Press(vbKeyReturn);
  EXPECT_EQ(window.Taken(), (Log{"txtA_KeyDown 13 0", "txtA_KeyPress 13", "txtA_KeyUp 13 0"}));
}

TEST_F(Keys, EnterPressesTheFocusedButtonBeforeTheDefaultOne) {
  window.cmdOK.SetDefault(true);
  window.cmdCancel.SetFocus();
  window.Taken();
  user.Press(vbKeyReturn);
  EXPECT_EQ(window.Taken(), (Log{"cmdCancel_Click", "cmdCancel_KeyUp 13 0"}));
}

TEST_F(Keys, SpacePressesTheFocusedButton) {
  window.cmdOK.SetFocus();
  window.Taken();
  user.Press(vbKeySpace);
  EXPECT_EQ(window.Taken(), (Log{"cmdOK_KeyDown 32 0", "cmdOK_KeyPress 32", "cmdOK_KeyUp 32 0", "cmdOK_Click"}));
}

TEST_F(Keys, OnlyOneButtonIsTheDefaultOne) {
  window.cmdOK.SetDefault(true);
  window.cmdCancel.SetDefault(true);
  EXPECT_FALSE(window.cmdOK.Default());
  window.cmdOK.SetCancel(true);
  window.cmdCancel.SetCancel(true);
  EXPECT_FALSE(window.cmdOK.Cancel());
}

TEST_F(Keys, AnAccessKeyFocusesAndClicksItsButton) {
  window.cmdOK.SetCaption("&Go on");
  user.Press('G', vbAltMask);
  EXPECT_EQ(window.Taken(),
            (Log{"txtA_Validate", "txtA_LostFocus", "cmdOK_GotFocus", "cmdOK_Click", "cmdOK_KeyUp 71 4"}));
}

TEST_F(Keys, AnAccessKeyOfALabelFocusesTheControlBehindIt) {
  Label lbl(window, "lbl");
  lbl.SetCaption("&Name");
  lbl.SetTabIndex(1);
  user.Press('N', vbAltMask);
  EXPECT_EQ(window.ActiveControl(), &window.txtB);
  lbl.SetUseMnemonic(false);
  window.txtA.SetFocus();
  user.Press('N', vbAltMask);
  EXPECT_EQ(window.ActiveControl(), &window.txtA);
}

TEST_F(Keys, ArrowsChooseAmongOptions) {
  Frame fra(window, "fra");
  fra.Move(2000, 0, 2000, 2000);
  OptionButton one(fra, "one"), two(fra, "two"), three(fra, "three");
  one.SetValue(true);
  window.Note(one), window.Note(two), window.Note(three);
  two.SetEnabled(false);
  one.SetFocus();
  window.Taken();
  user.Press(vbKeyDown);
  EXPECT_EQ(window.Taken(), (Log{"one_KeyDown 40 0", "one_Validate", "one_LostFocus", "three_GotFocus", "three_Click",
                                 "three_KeyUp 40 0"}));
  EXPECT_TRUE(three.Value());
  EXPECT_FALSE(one.Value());
  user.Press(vbKeyRight);
  EXPECT_TRUE(one.Value());
}

TEST_F(Keys, ArrowsWalkFromButtonToButton) {
  window.cmdOK.SetFocus();
  user.Press(vbKeyDown);
  EXPECT_EQ(window.ActiveControl(), &window.cmdCancel);
  user.Press(vbKeyUp);
  EXPECT_EQ(window.ActiveControl(), &window.cmdOK);
}

struct Shortcuts : Keys {
  Menu mnuFile{window, "mnuFile", "&File"};
  Menu mnuSave{mnuFile, "mnuSave", "&Save"};
  int clicks = 0;
  Shortcuts() {
    mnuSave.Click = [this] { ++clicks; };
  }
};

TEST_F(Shortcuts, AreReadFromTheirText) {
  struct {
    const char* text;
    int key, shift;
    const char* shown;
  } const cases[] = {{"^S", 'S', 2, "Ctrl+S"},
                     {"{F5}", vbKeyF5, 0, "F5"},
                     {"+^{F1}", vbKeyF1, 3, "Ctrl+Shift+F1"},
                     {"%{BKSP}", vbKeyBack, 4, "Alt+Backspace"},
                     {"", 0, 0, ""},
                     {"^{INSERT}", vbKeyInsert, 2, "Ctrl+Ins"},
                     {"+{DEL}", vbKeyDelete, 1, "Shift+Del"},
                     {"{F17}", 0, 0, ""},
                     {"^{F12}", vbKeyF12, 2, "Ctrl+F12"}};
  for (const auto& each : cases) {
    mnuSave.SetShortcut(each.text);
    EXPECT_EQ(mnuSave.ShortcutKey(), each.key) << each.text;
    EXPECT_EQ(mnuSave.ShortcutShift(), each.shift) << each.text;
    EXPECT_EQ(mnuSave.ShortcutText(), each.shown);
  }
}

TEST_F(Shortcuts, TheBarAndItsMenusAreTheForms) {
  Menu mnuOther{window, "mnuOther", "Other"};
  EXPECT_TRUE(window.ShowsMenuBar());
  EXPECT_TRUE(window.HasMenu(&mnuFile));
  EXPECT_TRUE(window.HasMenu(&mnuSave));
  EXPECT_FALSE(window.HasMenu(nullptr));
  Form bare(toolkit, "frmBare");
  EXPECT_FALSE(bare.HasMenu(&mnuSave));
  mnuFile.SetVisible(false), mnuOther.SetVisible(false);
  EXPECT_FALSE(window.ShowsMenuBar()) << "popup menus alone";
}

TEST_F(Shortcuts, ClickBeforeAnyControlHearsTheKey) {
  mnuSave.SetShortcut("^S");
  user.Press('S', vbCtrlMask);
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(window.Taken(), (Log{"txtA_KeyUp 83 2"}));
  user.Press('S');
  EXPECT_EQ(clicks, 1);
}

TEST_F(Shortcuts, OfDisabledItemsAndMenusDoNothing) {
  mnuSave.SetShortcut("^S");
  mnuSave.SetEnabled(false);
  user.Press('S', vbCtrlMask);
  mnuSave.SetEnabled(true);
  mnuFile.SetEnabled(false);
  user.Press('S', vbCtrlMask);
  EXPECT_EQ(clicks, 0);
}

TEST_F(Shortcuts, OfAMenuThatOnlyPopsUpWork) {
  mnuFile.SetVisible(false);
  mnuSave.SetShortcut("^S");
  user.Press('S', vbCtrlMask);
  EXPECT_EQ(clicks, 1);
}

TEST_F(Shortcuts, WorkBeforeTheDefaultButton) {
  window.cmdOK.SetDefault(true);
  mnuSave.SetShortcut("{F5}");
  user.Press(vbKeyF5);
  EXPECT_EQ(clicks, 1);
}

}  // namespace
}  // namespace corvane::forms
