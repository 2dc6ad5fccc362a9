// Buttons, text boxes, scroll bars, timers, static controls, menus and toolbars.
#include <gtest/gtest.h>

#include "forms/mnemonic.h"
#include "tests/forms/error_number.h"
#include "tests/forms/sample_window.h"

namespace corvane::forms {
namespace {

struct Controls : testing::Test {
  HeadlessToolkit toolkit;
  SampleWindow window{toolkit};
  User user{window};
  void Show() {
    window.Show();
    window.Taken();
  }
  // Runs [act] and tells how often it raised [event].
  template <class Raised, class Act>
  int Count(Raised& event, Act&& act) {
    int count = 0;
    event = [&] { ++count; };
    act();
    event = nullptr;
    return count;
  }
};

TEST_F(Controls, AButtonsValueClicksAndReadsFalse) {
  EXPECT_EQ(Count(window.cmdOK.Click, [&] { window.cmdOK.SetValue(true); }), 1);
  EXPECT_EQ(Count(window.cmdOK.Click, [&] { window.cmdOK.SetValue(false); }), 0);
  EXPECT_FALSE(window.cmdOK.Value());
}

TEST_F(Controls, ACheckBoxClicksWhenItsValueChanges) {
  CheckBox chk(window, "chk");
  EXPECT_EQ(Count(chk.Click, [&] { chk.SetValue(vbChecked); }), 1);
  EXPECT_EQ(Count(chk.Click, [&] { chk.SetValue(vbChecked); }), 0);
  EXPECT_EQ(NumberOf([&] { chk.SetValue(3); }), 380);
  Show();
  chk.SetValue(vbGrayed);
  user.Click(chk);
  EXPECT_EQ(chk.Value(), vbUnchecked);
}

TEST_F(Controls, AnOptionClearsItsContainersOthersSilently) {
  Frame fra(window, "fra");
  OptionButton one(window, "one"), two(window, "two"), apart(fra, "apart");
  one.SetValue(true), apart.SetValue(true);
  one.SetTabStop(false), two.SetTabStop(false);
  window.Note(one), window.Note(two), window.Note(apart);
  two.SetValue(true);
  EXPECT_EQ(window.Taken(), (Log{"two_Click"}));
  EXPECT_FALSE(one.Value());
  EXPECT_TRUE(apart.Value());
  EXPECT_TRUE(two.TabStop());
  two.SetValue(true);
  two.SetValue(false);
  EXPECT_EQ(window.Taken(), Log{});
}

TEST_F(Controls, LabelsAndPicturesClickBehindMouseUp) {
  Label lbl(window, "lbl");
  PictureBox pic(window, "pic");
  Image img(window, "img");
  for (Control* control : {(Control*)&lbl, (Control*)&pic, (Control*)&img}) {
    control->Move(3000, 0, 600, 600);
    window.Note(*control);
  }
  Show();
  for (Control* control : {(Control*)&lbl, (Control*)&img}) {
    user.Click(*control);
    EXPECT_EQ(window.Taken(),
              (Log{control->Name() + "_MouseDown", control->Name() + "_MouseUp", control->Name() + "_Click"}));
  }
  user.ClickAt(pic, 10, 10, vbRightButton);
  const Log taken = window.Taken();
  EXPECT_EQ((Log{taken.end() - 3, taken.end()}), (Log{"pic_MouseDown", "pic_MouseUp", "pic_Click"}));
}

TEST_F(Controls, AReleaseOutsideIsNoClick) {
  PictureBox pic(window, "pic");
  pic.Move(3000, 0, 600, 600);
  Show();
  EXPECT_EQ(Count(pic.Click, [&] { user.Drag(pic, 10, 10, 700, 10); }), 0);
  EXPECT_EQ(Count(pic.Click, [&] { user.Drag(pic, 10, 10, 500, 10); }), 1);
}

TEST_F(Controls, ATextRaisesChangeWhenItDiffers) {
  EXPECT_EQ(Count(window.txtA.Change, [&] { window.txtA.SetText("a"); }), 1);
  EXPECT_EQ(Count(window.txtA.Change, [&] { window.txtA.SetText("a"); }), 0);
}

TEST_F(Controls, ATextBoxEditsAsTyped) {
  Show();
  user.Type("abc");
  EXPECT_EQ(window.txtA.Text(), "abc");
  user.Press(vbKeyLeft);
  user.Press(vbKeyBack);
  EXPECT_EQ(window.txtA.Text(), "ac");
  user.Press(vbKeyHome);
  user.Press(vbKeyDelete);
  EXPECT_EQ(window.txtA.Text(), "c");
  user.Enter(window.txtA, "");
  EXPECT_EQ(window.txtA.Text(), "");
}

TEST_F(Controls, ATextBoxCutsToItsLength) {
  window.txtA.SetMaxLength(3);
  window.txtA.SetText("abcdef");
  EXPECT_EQ(window.txtA.Text(), "abc");
  EXPECT_EQ(NumberOf([&] { window.txtA.SetMaxLength(-1); }), 380);
}

TEST_F(Controls, ALockedTextBoxTakesNoKeys) {
  window.txtA.SetText("a");
  window.txtA.SetLocked(true);
  Show();
  user.Type("bc");
  EXPECT_EQ(window.txtA.Text(), "a");
  EXPECT_FALSE(user.Enter(window.txtA, "x"));
}

TEST_F(Controls, SelectionsCountFromZeroAndAreCut) {
  TextBox& txt = window.txtA;
  txt.SetText("hello");
  txt.SetSelStart(1);
  txt.SetSelLength(3);
  EXPECT_EQ(txt.SelText(), "ell");
  txt.SetSelText("E");
  EXPECT_EQ(txt.Text(), "hEo");
  EXPECT_EQ(txt.SelStart(), 2);
  txt.SetSelStart(99);
  EXPECT_EQ(txt.SelStart(), 3);
  txt.SetSelLength(5);
  EXPECT_EQ(txt.SelLength(), 0);
  EXPECT_EQ(NumberOf([&] { txt.SetSelStart(-1); }), 380);
  txt.SetText("other");
  EXPECT_EQ(txt.SelStart(), 0);
}

TEST_F(Controls, ATextBoxOfOneLineIsAtLeastALineHigh) {
  window.txtA.SetHeight(100);
  EXPECT_EQ(window.txtA.Height(), 198 + 90);
  window.txtB.SetMultiLine(true);
  window.txtB.SetHeight(100);
  EXPECT_EQ(window.txtB.Height(), 100);
  EXPECT_EQ(NumberOf([&] { window.txtA.SetHeight(-1); }), 380);
}

TEST_F(Controls, AScrollBarScrollsWhileDraggedAndChangesAfterwards) {
  HScrollBar hs(window, "hs");
  Log log;
  hs.Change = [&] { log.push_back("Change " + std::to_string(hs.Value())); };
  hs.Scroll = [&] { log.push_back("Scroll " + std::to_string(hs.Value())); };
  Show();
  hs.UserScroll(10, true);
  hs.UserScroll(20, true);
  hs.UserScroll(20, false);
  EXPECT_EQ(log, (Log{"Scroll 10", "Scroll 20", "Change 20"}));
  hs.UserScroll(20, false);
  hs.UserScroll(21, false);
  EXPECT_EQ(log.size(), 4u);
  EXPECT_EQ(log.back(), "Change 21");
}

TEST_F(Controls, AScrollBarRefusesValuesOutsideAndFollowsItsRange) {
  VScrollBar vs(window, "vs");
  EXPECT_EQ(vs.Max(), 32767);
  EXPECT_EQ(Count(vs.Change, [&] { vs.SetValue(100); }), 1);
  EXPECT_EQ(Count(vs.Change, [&] { vs.SetValue(100); }), 0);
  EXPECT_EQ(NumberOf([&] { vs.SetValue(40000); }), 380);
  EXPECT_EQ(Count(vs.Change, [&] { vs.SetMax(50); }), 1);
  EXPECT_EQ(vs.Value(), 50);
  EXPECT_EQ(Count(vs.Change, [&] { vs.SetMin(60); }), 0);  // the bar runs from 60 down to 50
  EXPECT_EQ(NumberOf([&] { vs.SetLargeChange(0); }), 380);
}

TEST_F(Controls, ATimerRunsWithIntervalAndEnabled) {
  Timer tmr(window, "tmr");
  EXPECT_FALSE(tmr.IsRunning());
  tmr.SetInterval(65535);
  EXPECT_TRUE(tmr.IsRunning());
  tmr.SetEnabled(false);
  EXPECT_FALSE(tmr.IsRunning());
  EXPECT_EQ(NumberOf([&] { tmr.SetInterval(65536); }), 380);
  EXPECT_EQ(NumberOf([&] { tmr.SetInterval(-1); }), 380);
}

TEST_F(Controls, ALabelFitsItsCaption) {
  Label lbl(window, "lbl");
  int changes = Count(lbl.Change, [&] {
    lbl.SetCaption("&four");
    lbl.SetCaption("&four");
  });
  EXPECT_EQ(changes, 1);
  lbl.SetAutoSize(true);
  EXPECT_EQ(lbl.Width(), 4 * 83);
  EXPECT_EQ(lbl.Height(), 198);
  lbl.SetCaption("ab\r\nabc");
  EXPECT_EQ(lbl.Width(), 3 * 83);
  EXPECT_EQ(lbl.Height(), 2 * 198);
  lbl.SetWordWrap(true);
  lbl.SetWidth(5 * 83);
  lbl.SetCaption("ab cd ef");
  EXPECT_EQ(lbl.Width(), 5 * 83);
  EXPECT_EQ(lbl.Height(), 2 * 198);
  Font large;
  large.Size = 16;
  lbl.SetFont(large);
  EXPECT_GT(lbl.Height(), 2 * 198);
}

TEST_F(Controls, ALinesPlaceIsTheBoxAroundItsPoints) {
  Line lin(window, "lin");
  lin.SetPoints(300, 200, 100, 50);
  EXPECT_EQ(lin.Place(), (Rect{100, 50, 200, 150}));
}

TEST_F(Controls, AnAmpersandMarksTheAccessKey) {
  EXPECT_EQ(AccessKeyOf("&Open"), 'O');
  EXPECT_EQ(AccessKeyOf("S&ave"), 'A');
  EXPECT_EQ(AccessKeyOf("A && B"), 0);
  EXPECT_EQ(AccessKeyOf("A && &B"), 'B');
  EXPECT_EQ(AccessKeyOf("end&"), 0);
  EXPECT_EQ(WithoutMnemonic("S&ave && &go"), "Save & go");
}

struct Menus : Controls {
  Menu mnuFile{window, "mnuFile", "&File"};
  Menu mnuOpen{mnuFile, "mnuOpen", "&Open..."}, mnuBar{mnuFile, "mnuBar", "-"}, mnuExit{mnuFile, "mnuExit", "E&xit"};
  Menu mnuPop{window, "mnuPop", "Pop"};
  Menu mnuSub{mnuPop, "mnuSub", "Sub"}, mnuDeep{mnuSub, "mnuDeep", "&Deep"};
  Menus() {
    mnuPop.SetVisible(false);
    for (Menu* menu : {&mnuFile, &mnuOpen, &mnuExit, &mnuPop, &mnuDeep}) window.Note(*menu);
    Show();
  }
};

TEST_F(Menus, OpeningClicksTheMenuThenItsItem) {
  EXPECT_TRUE(user.Menu("File", "Open..."));
  EXPECT_EQ(window.Taken(), (Log{"mnuFile_Click", "mnuOpen_Click"}));
}

TEST_F(Menus, DisabledHiddenAndSeparatorItemsAreOutOfReach) {
  mnuOpen.SetEnabled(false);
  mnuExit.SetVisible(false);
  EXPECT_FALSE(user.Menu("File", "Open..."));
  EXPECT_FALSE(user.Menu("File", "Exit"));
  window.Taken();
  mnuOpen.UserClick(), mnuExit.UserClick(), mnuBar.UserClick();
  EXPECT_EQ(window.Taken(), Log{});
}

TEST_F(Menus, PopupsClickBeforeTheyReturn) {
  toolkit.OnPopup("Deep");
  window.PopupMenu(mnuPop, 100, 200);
  window.log.push_back("back");
  EXPECT_EQ(window.Taken(), (Log{"mnuPop_Click", "mnuDeep_Click", "back"}));
  EXPECT_EQ(toolkit.Popups(), (std::vector<Log>{{"mnuPop", "Sub"}}));
  EXPECT_EQ(toolkit.PopupPlaces(), (std::vector<std::pair<Twips, Twips>>{{100, 200}}));
}

TEST_F(Menus, PopupsTellWhatTheyOffer) {
  mnuOpen.SetEnabled(false);
  mnuExit.SetChecked(true);
  window.PopupMenu(mnuFile, 0, 0);
  EXPECT_EQ(toolkit.Popups().back(), (Log{"mnuFile", "(Open...)", "-", "*Exit"}));
  toolkit.OnPopup("Missing");
  window.PopupMenu(mnuFile, 0, 0);
  EXPECT_EQ(toolkit.Faults(), (Log{"mnuFile does not offer Missing"}));
}

TEST_F(Menus, AreFoundByName) {
  EXPECT_EQ(window.Find("MNUDEEP"), &mnuDeep);
  EXPECT_EQ(window.Find("mnuNone"), nullptr);
  EXPECT_EQ(mnuDeep.Parent(), &mnuSub);
}

TEST_F(Menus, AnItemThatGoesLeavesItsMenu) {
  {
    Menu extra(mnuFile, "mnuExtra", "Extra");
    EXPECT_EQ(mnuFile.Items().size(), 4u);
  }
  EXPECT_EQ(mnuFile.Items().size(), 3u);
}

struct Toolbars : Controls {
  ImageList imgl{window, "imgl"};
  Toolbar bar{window, "tlb"};
  Log log;
  Toolbars() {
    bar.Move(0, 0, 6000, 420);
    for (const char* key : {"one", "two", "three"}) bar.Add(ToolButton{key, key, ""});
    bar.ButtonClick = [this](int position) { log.push_back("Click " + std::to_string(position)); };
    bar.ButtonDropDown = [this](int position) { log.push_back("DropDown " + std::to_string(position)); };
    bar.ButtonMenuClick = [this](int position, int entry) {
      log.push_back("Menu " + std::to_string(position) + " " + std::to_string(entry));
    };
    Show();
  }
  int AddStyled(ToolButtonStyle style) {
    ToolButton button{"styled", "", ""};
    button.Style = style;
    return bar.Add(button);
  }
};

TEST_F(Toolbars, ButtonsAreFoundByKeyAndPosition) {
  EXPECT_EQ(bar.PositionOf("TWO"), 2);
  EXPECT_EQ(bar.PositionOf("none"), 0);
  EXPECT_EQ(bar.Button(3).Key, "three");
  EXPECT_EQ(NumberOf([&] { bar.Button(4); }), 35600);
  EXPECT_EQ(NumberOf([&] { bar.SetButtonEnabled(0, true); }), 35600);
}

TEST_F(Toolbars, ClicksTellTheirPosition) {
  EXPECT_TRUE(user.ClickButton(bar, "two"));
  bar.SetButtonEnabled(2, false);
  EXPECT_FALSE(user.ClickButton(bar, 2));
  bar.UserButtonClick(2);
  bar.SetButtonVisible(1, false);
  bar.UserButtonClick(1);
  bar.UserButtonClick(AddStyled(ToolButtonStyle::Separator));
  EXPECT_EQ(log, (Log{"Click 2"}));
}

TEST_F(Toolbars, DropDownsTellOpeningAndEntry) {
  const int position = AddStyled(ToolButtonStyle::DropDown);
  bar.SetButtonMenus(position, {{"a", "A"}, {"b", "B", false}});
  user.ChooseButtonMenu(bar, position, 1);
  user.ChooseButtonMenu(bar, position, 2);
  bar.UserButtonMenuClick(position, 3);
  EXPECT_EQ(log, (Log{"DropDown 4", "Menu 4 1", "DropDown 4"}));
}

TEST_F(Toolbars, CheckButtonsTurnAndGroupsHaveOneDown) {
  const int check = AddStyled(ToolButtonStyle::Check);
  user.ClickButton(bar, check);
  EXPECT_TRUE(bar.Button(check).Pressed);
  user.ClickButton(bar, check);
  EXPECT_FALSE(bar.Button(check).Pressed);
  const int left = AddStyled(ToolButtonStyle::ButtonGroup), right = AddStyled(ToolButtonStyle::ButtonGroup);
  user.ClickButton(bar, left);
  user.ClickButton(bar, right);
  EXPECT_FALSE(bar.Button(left).Pressed);
  EXPECT_TRUE(bar.Button(right).Pressed);
}

TEST_F(Toolbars, AnImageListCountsFromOne) {
  const auto picture = std::make_shared<Picture>(Picture{"x"});
  EXPECT_EQ(imgl.Add(picture), 1);
  EXPECT_EQ(imgl.Item(1), picture);
  EXPECT_EQ(imgl.Item(0), nullptr);
  EXPECT_EQ(imgl.Item(2), nullptr);
  imgl.Clear();
  EXPECT_EQ(imgl.Count(), 0);
}

}  // namespace
}  // namespace corvane::forms
