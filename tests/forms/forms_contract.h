// What every toolkit has to do: one suite, written against Toolkit and the controls alone. A toolkit's test program
// implements ContractDriver (its user's hand on the real widgets) and instantiates FormsContract with a factory of it:
//   INSTANTIATE_TEST_SUITE_P(Qt, FormsContract, testing::Values(DriverFactory(NewQtDriver)));
// Include this in one source file of the program.
#pragma once

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "forms/controls.h"
#include "forms/toolkit.h"

namespace corvane::forms {

// The user's hand. Acts go to the toolkit's own widgets where it has some, and are done when the call returns.
class ContractDriver {
 public:
  virtual ~ContractDriver() = default;
  virtual forms::Toolkit& Toolkit() = 0;
  // Lets the toolkit finish what it put off.
  virtual void Settle() = 0;

  virtual void Click(Control& control, Twips x, Twips y, int button) = 0;
  virtual void DblClick(Control& control, Twips x, Twips y) = 0;
  virtual void MoveOver(Control& control, Twips x, Twips y) = 0;
  virtual void Press(Form& form, int key_code, int shift) = 0;
  virtual void Type(Form& form, const std::string& text) = 0;
  virtual void ChooseRow(ListControl& list, long row) = 0;
  virtual void Scroll(ScrollBar& bar, long value) = 0;
  // Drags the thumb over [places] and lets it go at the last one.
  virtual void DragThumb(ScrollBar& bar, const std::vector<long>& places) = 0;
  virtual void ChooseMenu(Form& form, const std::vector<std::string>& captions) = 0;
  virtual void ClickToolButton(Toolbar& bar, int position) = 0;
  virtual void ChooseToolMenu(Toolbar& bar, int position, int entry) = 0;
  virtual void Close(Form& form) = 0;
  // The next time [form] is shown modally, [act] runs inside its loop.
  virtual void InModal(Form& form, std::function<void()> act) = 0;
  // The next popup menu chooses the item of that caption; "" closes it.
  virtual void OnPopup(const std::string& caption) = 0;
  virtual void Wait(int milliseconds) = 0;

  // What the widget shows; nothing where the toolkit has no pixels to ask.
  virtual std::optional<std::string> ShownText(Control&) { return std::nullopt; }
  virtual std::optional<bool> IsOnScreen(Control&) { return std::nullopt; }
  virtual std::optional<Color> PixelAt(PictureBox&, Twips, Twips) { return std::nullopt; }
  virtual std::optional<bool> IsRowWhollyShown(ListBox&, long) { return std::nullopt; }
  // Whether Alt and a letter opens a menu of the bar.
  virtual bool OpensMenusByKey() { return true; }
};

using DriverFactory = std::function<std::unique_ptr<ContractDriver>()>;

// A user control: a surface and a box on it, laid out in Resize.
class ContractPair : public UserControl {
 public:
  using UserControl::UserControl;
  PictureBox surface{*this, "surface"};
  TextBox edit{surface, "edit"};

 protected:
  void OnResize() override {
    surface.Move(0, 0, Width(), Height());
    edit.Move(60, 60, Width() / 2, 315);
  }
};

// A window with one control of every kind.
class ContractWindow : public Form {
 public:
  explicit ContractWindow(forms::Toolkit& toolkit, std::string name = "frmContract") : Form(toolkit, std::move(name)) {
    Form::Move(300, 300, 9000, 7500);
    SetCaption("Contract");
    lbl.Move(120, 120, 1500, 300), txt.Move(120, 480, 1800, 315), memo.Move(120, 900, 1800, 900);
    cmd.Move(2100, 120, 1200, 375), cmdOK.Move(2100, 600, 1200, 375), cmdCancel.Move(2100, 1080, 1200, 375);
    chk.Move(3500, 120, 1500, 300), fra.Move(3500, 480, 1800, 1200);
    opt1.Move(120, 300, 1500, 300), opt2.Move(120, 660, 1500, 300);
    lst.Move(120, 2000, 1800, 1500), cmb.Move(2100, 2000, 1800, 315), cmbList.Move(2100, 2400, 1800, 315);
    pic.Move(4200, 2000, 3000, 1500), img.Move(5500, 120, 600, 600);
    lin.SetPoints(120, 3600, 3000, 3600), shp.Move(6300, 120, 600, 600);
    hs.Move(120, 3800, 1800, 255), vs.Move(7400, 2000, 255, 1500), tlb.Move(120, 4200, 6000, 420);
    pair.Move(120, 4800, 2400, 900);
    lbl.SetCaption("Label"), cmd.SetCaption("&Press"), cmdOK.SetCaption("OK"), cmdCancel.SetCaption("Cancel");
    chk.SetCaption("Check"), fra.SetCaption("Frame"), opt1.SetCaption("One"), opt2.SetCaption("Two");
    memo.SetMultiLine(true), memo.SetScrollBars(2), cmbList.SetStyle(2), hs.SetMax(100), vs.SetMax(100);
    for (const char* text : {"alpha", "beta", "gamma"}) lst.AddItem(text), cmb.AddItem(text), cmbList.AddItem(text);
    imgl.Add(nullptr);
    tlb.SetImageList(&imgl);
    ToolButton plain{"run", "Run", "Runs"}, drop{"more", "More", ""};
    drop.Style = ToolButtonStyle::DropDown;
    drop.ButtonMenus = {{"one", "First"}, {"two", "Second"}};
    tlb.Add(plain), tlb.Add(drop);
    mnuSave.SetShortcut("^S");
    mnuPopup.SetVisible(false);
    for (Control* control : AllControls()) Note(*control);
    txt.Change = [this] { log.push_back("txt_Change"); };
    cmb.Change = [this] { log.push_back("cmb_Change"); };
    hs.Change = [this] { log.push_back("hs_Change"); };
  }

  void Note(Control& control) {
    const std::string name = control.Name();
    control.Click = [this, name] { log.push_back(name + "_Click"); };
    control.DblClick = [this, name] { log.push_back(name + "_DblClick"); };
    control.MouseDown = [this, name](int, int, Twips, Twips) { log.push_back(name + "_MouseDown"); };
    control.MouseUp = [this, name](int, int, Twips, Twips) { log.push_back(name + "_MouseUp"); };
  }

  std::vector<std::string> Taken() { return std::exchange(log, {}); }

  std::vector<std::string> log;
  Label lbl{*this, "lbl"};
  TextBox txt{*this, "txt"}, memo{*this, "memo"};
  CommandButton cmd{*this, "cmd"}, cmdOK{*this, "cmdOK"}, cmdCancel{*this, "cmdCancel"};
  CheckBox chk{*this, "chk"};
  Frame fra{*this, "fra"};
  OptionButton opt1{fra, "opt1"}, opt2{fra, "opt2"};
  ListBox lst{*this, "lst"};
  ComboBox cmb{*this, "cmb"}, cmbList{*this, "cmbList"};
  PictureBox pic{*this, "pic"};
  Image img{*this, "img"};
  Line lin{*this, "lin"};
  Shape shp{*this, "shp"};
  HScrollBar hs{*this, "hs"};
  VScrollBar vs{*this, "vs"};
  Timer tmr{*this, "tmr"};
  ImageList imgl{*this, "imgl"};
  Toolbar tlb{*this, "tlb"};
  ContractPair pair{*this, "pair"};
  Menu mnuFile{*this, "mnuFile", "&File"}, mnuOpen{mnuFile, "mnuOpen", "&Open..."}, mnuBar{mnuFile, "mnuBar", "-"},
      mnuSave{mnuFile, "mnuSave", "&Save"}, mnuPopup{*this, "mnuPopup", "Popup"}, mnuCut{mnuPopup, "mnuCut", "Cu&t"},
      mnuCopy{mnuPopup, "mnuCopy", "&Copy"};
};

class FormsContract : public testing::TestWithParam<DriverFactory> {
 protected:
  using Log = std::vector<std::string>;

  FormsContract() : driver(GetParam()()), window(std::make_unique<ContractWindow>(driver->Toolkit())) {
    driver->Toolkit().OnFault = [this](const std::string& what) { faults.push_back(what); };
  }
  ~FormsContract() override { driver->Toolkit().OnFault = nullptr; }

  void Show() {
    window->Show();
    driver->Settle();
    window->Taken();
  }
  void Click(Control& control, int button = vbLeftButton) {
    driver->Click(control, control.Width() / 2, control.Height() / 2, button);
  }
  void Focus(Control& control) {
    control.SetFocus();
    driver->Settle();
    window->Taken();
  }

  std::unique_ptr<ContractDriver> driver;
  std::unique_ptr<ContractWindow> window;
  std::vector<std::string> faults;
};

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(FormsContract);

TEST_P(FormsContract, EveryKindOfTheDesignIsShown) {
  Show();
  for (Control* control : window->AllControls()) {
    const bool is_seen = control->Kind() != ControlKind::Timer && control->Kind() != ControlKind::ImageList;
    EXPECT_TRUE(!is_seen || driver->IsOnScreen(*control).value_or(true)) << control->Name();
  }
  EXPECT_TRUE(window->Visible());
  EXPECT_EQ(faults, Log{});
}

TEST_P(FormsContract, ControlsMadeAtRunTimeAppearWhenMadeVisible) {
  Show();
  for (const char* kind : {"VB.Label", "VB.TextBox", "VB.CommandButton", "VB.CheckBox", "VB.OptionButton", "VB.Frame",
                           "VB.ListBox", "VB.ComboBox", "VB.PictureBox", "VB.Image", "VB.Line", "VB.Shape",
                           "VB.HScrollBar", "VB.VScrollBar", "VB.Timer"}) {
    Control& made = window->AddControl(kind, std::string("new") + (kind + 3), window->fra);
    EXPECT_FALSE(driver->IsOnScreen(made).value_or(false)) << kind;
    made.SetVisible(true);
    driver->Settle();
    EXPECT_TRUE(made.Kind() == ControlKind::Timer || driver->IsOnScreen(made).value_or(true)) << kind;
    window->RemoveControl(made);
    driver->Settle();
  }
  EXPECT_EQ(window->fra.Controls().size(), 2u);
}

TEST_P(FormsContract, EveryPropertyCanBeSetWhileShown) {
  Show();
  int set = 0;
  for (Control* control : window->AllControls()) {
    for (int number = 1; number <= static_cast<int>(Property::ZOrder); ++number) {
      const auto property = static_cast<Property>(number);
      runtime::PassOverErrors([&] {
        control->Set(property, control->Get(property));
        ++set;
      });
    }
    control->ZOrder(1);
    control->ZOrder(0);
  }
  driver->Settle();
  EXPECT_GT(set, 200);
  EXPECT_EQ(faults, Log{});
}

TEST_P(FormsContract, TextsOfControlsReachTheScreen) {
  Show();
  window->lbl.SetCaption("other"), window->cmd.SetCaption("Push"), window->chk.SetCaption("Tick");
  window->fra.SetCaption("Group"), window->opt1.SetCaption("First"), window->txt.SetText("typed");
  window->memo.SetText("two\r\nlines"), window->cmb.SetText("own text"), window->cmbList.SetListIndex(1);
  driver->Settle();
  const std::pair<Control*, std::string> shown[] = {
      {&window->lbl, "other"},         {&window->cmd, "Push"},     {&window->chk, "Tick"},
      {&window->fra, "Group"},         {&window->opt1, "First"},   {&window->txt, "typed"},
      {&window->memo, "two\r\nlines"}, {&window->cmb, "own text"}, {&window->cmbList, "beta"}};
  for (const auto& [control, text] : shown) {
    EXPECT_EQ(driver->ShownText(*control).value_or(text), text) << control->Name();
  }
}

TEST_P(FormsContract, HidingAndShowingReachTheScreen) {
  Show();
  window->fra.SetVisible(false);
  driver->Settle();
  EXPECT_FALSE(driver->IsOnScreen(window->fra).value_or(false));
  EXPECT_FALSE(driver->IsOnScreen(window->opt1).value_or(false));
  window->fra.SetVisible(true);
  driver->Settle();
  EXPECT_TRUE(driver->IsOnScreen(window->opt1).value_or(true));
}

TEST_P(FormsContract, AButtonClicksBetweenDownAndUp) {
  Show();
  Click(window->cmd);
  EXPECT_EQ(window->Taken(), (Log{"cmd_MouseDown", "cmd_Click", "cmd_MouseUp"}));
}

TEST_P(FormsContract, LabelsAndPicturesClickBehindUp) {
  Show();
  Click(window->lbl);
  EXPECT_EQ(window->Taken(), (Log{"lbl_MouseDown", "lbl_MouseUp", "lbl_Click"}));
  Click(window->pic);
  EXPECT_EQ(window->Taken(), (Log{"pic_MouseDown", "pic_MouseUp", "pic_Click"}));
}

TEST_P(FormsContract, TheRightButtonClicksPicturesAndNoButtons) {
  Show();
  Click(window->pic, vbRightButton);
  EXPECT_EQ(window->Taken(), (Log{"pic_MouseDown", "pic_MouseUp", "pic_Click"}));
  Click(window->cmd, vbRightButton);
  EXPECT_EQ(window->Taken(), (Log{"cmd_MouseDown", "cmd_MouseUp"}));
}

TEST_P(FormsContract, ADoubleClickComesInVisualBasicsOrder) {
  Show();
  driver->DblClick(window->pic, 300, 300);
  EXPECT_EQ(window->Taken(), (Log{"pic_MouseDown", "pic_MouseUp", "pic_Click", "pic_DblClick", "pic_MouseUp"}));
}

TEST_P(FormsContract, MousePlacesAreTwipsOfTheControl) {
  Show();
  Twips x = 0, y = 0;
  int buttons = -1;
  window->pic.MouseDown = [&](int button, int, Twips at_x, Twips at_y) { x = at_x, y = at_y, buttons = button; };
  driver->Click(window->pic, 600, 450, vbRightButton);
  EXPECT_NEAR(x, 600, 30);
  EXPECT_NEAR(y, 450, 30);
  EXPECT_EQ(buttons, vbRightButton);
  x = y = 0;
  window->pic.MouseMove = [&](int, int, Twips at_x, Twips at_y) { x = at_x, y = at_y; };
  driver->MoveOver(window->pic, 900, 300);
  EXPECT_NEAR(x, 900, 30);
  EXPECT_NEAR(y, 300, 30);
}

TEST_P(FormsContract, ADisabledButtonDoesNotClick) {
  Show();
  window->cmd.SetEnabled(false);
  driver->Settle();
  Click(window->cmd);
  EXPECT_EQ(window->Taken(), Log{});
}

TEST_P(FormsContract, CheckBoxesTurnAndOptionsClearTheirGroup) {
  Show();
  Click(window->chk);
  EXPECT_EQ(window->chk.Value(), vbChecked);
  EXPECT_EQ(window->Taken(), (Log{"chk_MouseDown", "chk_Click", "chk_MouseUp"}));
  Click(window->opt1);
  Click(window->opt2);
  EXPECT_FALSE(window->opt1.Value());
  EXPECT_TRUE(window->opt2.Value());
}

TEST_P(FormsContract, AssignedValuesClickAsInVisualBasic) {
  Show();
  window->chk.SetValue(vbChecked);
  window->opt1.SetValue(true);
  window->opt2.SetValue(true);
  window->lst.SetListIndex(1);
  driver->Settle();
  EXPECT_EQ(window->Taken(), (Log{"chk_Click", "opt1_Click", "opt2_Click", "lst_Click"}));
}

TEST_P(FormsContract, TypingRaisesKeysAndChange) {
  Show();
  Focus(window->txt);
  window->txt.KeyDown = [&](int&, int) { window->log.push_back("KeyDown"); };
  window->txt.KeyPress = [&](int& key) { window->log.push_back("KeyPress " + std::to_string(key)); };
  window->txt.KeyUp = [&](int&, int) { window->log.push_back("KeyUp"); };
  driver->Type(*window, "a");
  EXPECT_EQ(window->Taken(), (Log{"KeyDown", "KeyPress 97", "txt_Change", "KeyUp"}));
  EXPECT_EQ(window->txt.Text(), "a");
  EXPECT_EQ(window->txt.SelStart(), 1);
}

TEST_P(FormsContract, AKeyPressSetToZeroTypesNothing) {
  Show();
  Focus(window->txt);
  window->txt.KeyPress = [](int& key) { key = 0; };
  driver->Type(*window, "abc");
  EXPECT_EQ(window->txt.Text(), "");
}

TEST_P(FormsContract, AKeyPressCanReplaceTheCharacter) {
  Show();
  Focus(window->txt);
  window->txt.KeyPress = [](int& key) { key = 'X'; };
  driver->Type(*window, "ab");
  driver->Settle();
  EXPECT_EQ(window->txt.Text(), "XX");
  EXPECT_EQ(driver->ShownText(window->txt).value_or("XX"), "XX");
}

TEST_P(FormsContract, LockedAndFullBoxesTakeNoText) {
  Show();
  Focus(window->txt);
  window->txt.SetMaxLength(2);
  driver->Type(*window, "abc");
  EXPECT_EQ(window->txt.Text(), "ab");
  window->txt.SetLocked(true);
  driver->Press(*window, vbKeyBack, 0);
  EXPECT_EQ(window->txt.Text(), "ab");
}

TEST_P(FormsContract, EnterBreaksTheLineOfATextBoxOfManyLines) {
  Show();
  Focus(window->memo);
  driver->Type(*window, "a");
  driver->Press(*window, vbKeyReturn, 0);
  driver->Type(*window, "b");
  EXPECT_EQ(window->memo.Text(), "a\r\nb");
}

TEST_P(FormsContract, SelectionsSetByCodeAreWhatTypingReplaces) {
  Show();
  window->txt.SetText("hello");
  Focus(window->txt);
  window->txt.SetSelStart(1);
  window->txt.SetSelLength(3);
  driver->Settle();
  driver->Type(*window, "u");
  EXPECT_EQ(window->txt.Text(), "huo");
}

TEST_P(FormsContract, ChoosingARowSelectsAndClicks) {
  Show();
  driver->ChooseRow(window->lst, 2);
  EXPECT_EQ(window->lst.ListIndex(), 2);
  EXPECT_EQ(window->Taken(), (Log{"lst_MouseDown", "lst_Click", "lst_MouseUp"}));
}

TEST_P(FormsContract, ShiftMarksAllRowsOnTheWayWithOneClick) {
  window->lst.SetMultiSelect(2);
  Show();
  Focus(window->lst);
  window->lst.UserSelect(0);
  window->Taken();
  driver->Press(*window, vbKeyEnd, vbShiftMask);
  EXPECT_EQ(window->Taken(), (Log{"lst_Click"}));
  EXPECT_EQ(window->lst.SelCount(), 3);
  EXPECT_EQ(window->lst.ListIndex(), 2);
}

TEST_P(FormsContract, PagesOfAListOfOneRowAreARow) {
  window->lst.SetHeight(300);
  Show();
  window->lst.SetListIndex(0);
  Focus(window->lst);
  driver->Press(*window, vbKeyPageDown, 0);
  EXPECT_GT(window->lst.ListIndex(), 0);
}

TEST_P(FormsContract, ArrowsWalkThroughAList) {
  Show();
  window->lst.SetListIndex(0);
  Focus(window->lst);
  driver->Press(*window, vbKeyDown, 0);
  EXPECT_EQ(window->lst.ListIndex(), 1);
  EXPECT_EQ(window->Taken(), (Log{"lst_Click"}));
}

TEST_P(FormsContract, AFormCanUnloadItselfWhileASelectionIsExtended) {
  window->lst.SetMultiSelect(2);
  window->lst.Click = [&] { window->Unload(); };
  Show();
  Focus(window->lst);
  driver->Press(*window, vbKeyEnd, vbShiftMask);
  driver->Settle();
  EXPECT_FALSE(window->IsLoaded());
  EXPECT_EQ(faults, Log{});
}

TEST_P(FormsContract, TheLastRowOfAListCanBeReached) {
  for (int style : {0, 1}) {
    window->lst.SetStyle(style);
    for (int row = 0; row < 50; ++row) window->lst.AddItem("row");
    Show();
    const long last = window->lst.ListCount() - 1;
    window->lst.SetListIndex(last);
    driver->Settle();
    EXPECT_TRUE(driver->IsRowWhollyShown(window->lst, last).value_or(true)) << style;
    window->lst.SetTopIndex(0);
    driver->Settle();
    EXPECT_FALSE(driver->IsRowWhollyShown(window->lst, last).value_or(false)) << style;
    window->lst.SetTopIndex(last);
    driver->Settle();
    EXPECT_TRUE(driver->IsRowWhollyShown(window->lst, last).value_or(true)) << style;
  }
}

TEST_P(FormsContract, RowsChangedByCodeKeepTheSelection) {
  Show();
  window->lst.SetListIndex(1);
  window->lst.AddItem("first", 0);
  driver->Settle();
  EXPECT_EQ(window->lst.ListIndex(), 2);
  EXPECT_EQ(window->lst.Text(), "beta");
  window->lst.Clear();
  driver->Settle();
  EXPECT_EQ(window->lst.ListIndex(), -1);
  EXPECT_EQ(faults, Log{});
}

TEST_P(FormsContract, AListTakesManyRowsWhileShown) {
  Show();
  window->lst.SetSorted(true);
  window->lst.Clear();
  for (int row = 0; row < 5000; ++row) window->lst.AddItem("row " + std::to_string(row * 7919 % 5000));
  driver->Settle();
  EXPECT_EQ(window->lst.ListCount(), 5000);
  driver->ChooseRow(window->lst, 0);
  EXPECT_EQ(window->lst.Text(), "row 0");
}

TEST_P(FormsContract, AComboBoxClicksWithoutChangeWhenARowIsChosen) {
  Show();
  driver->ChooseRow(window->cmb, 1);
  const Log taken = window->Taken();
  EXPECT_EQ(window->cmb.Text(), "beta");
  EXPECT_EQ(std::count(taken.begin(), taken.end(), "cmb_Click"), 1);
  EXPECT_EQ(std::count(taken.begin(), taken.end(), "cmb_Change"), 0);
}

TEST_P(FormsContract, TypingIntoAComboBoxRaisesChange) {
  Show();
  Focus(window->cmb);
  driver->Type(*window, "zz");
  EXPECT_EQ(window->cmb.Text(), "zz");
  EXPECT_EQ(window->cmb.ListIndex(), -1);
  EXPECT_EQ(window->Taken(), (Log{"cmb_Change", "cmb_Change"}));
}

TEST_P(FormsContract, TabWalksByTabIndex) {
  Show();
  Focus(window->txt);
  driver->Press(*window, vbKeyTab, 0);
  EXPECT_EQ(window->ActiveControl(), &window->memo);
  driver->Press(*window, vbKeyTab, vbShiftMask);
  EXPECT_EQ(window->ActiveControl(), &window->txt);
}

TEST_P(FormsContract, AClickMovesTheFocusAndValidates) {
  Show();
  Focus(window->txt);
  window->txt.Validate = [&](bool&) { window->log.push_back("txt_Validate"); };
  window->txt.LostFocus = [&] { window->log.push_back("txt_LostFocus"); };
  window->chk.GotFocus = [&] { window->log.push_back("chk_GotFocus"); };
  Click(window->chk);
  EXPECT_EQ(window->Taken(),
            (Log{"txt_Validate", "txt_LostFocus", "chk_GotFocus", "chk_MouseDown", "chk_Click", "chk_MouseUp"}));
}

TEST_P(FormsContract, ARefusedValidationKeepsTheFocus) {
  Show();
  Focus(window->txt);
  window->txt.Validate = [](bool& cancel) { cancel = true; };
  driver->Press(*window, vbKeyTab, 0);
  driver->Settle();
  EXPECT_EQ(window->ActiveControl(), &window->txt);
  driver->Type(*window, "a");
  EXPECT_EQ(window->txt.Text(), "a");
}

TEST_P(FormsContract, ARefusedValidationKeepsTheMouseToo) {
  Show();
  int asked = 0;
  window->txt.Validate = [&](bool& cancel) { cancel = true, ++asked; };
  const auto presses_nothing = [&](Control& control, const std::function<void()>& act) {
    Focus(window->txt);
    asked = 0;
    act();
    driver->Settle();
    EXPECT_EQ(window->Taken(), Log{}) << control.Name();
    EXPECT_EQ(asked, 1) << control.Name();
    EXPECT_EQ(window->ActiveControl(), &window->txt) << control.Name();
  };
  for (Control* control : {static_cast<Control*>(&window->cmd), static_cast<Control*>(&window->pic),
                           static_cast<Control*>(&window->chk)}) {
    presses_nothing(*control, [&] { Click(*control); });
  }
  presses_nothing(window->lst, [&] { driver->ChooseRow(window->lst, 1); });
  EXPECT_EQ(window->lst.ListIndex(), -1);
  EXPECT_EQ(window->chk.Value(), vbUnchecked);
  window->txt.Validate = nullptr;
  Click(window->cmd);
  EXPECT_EQ(window->Taken(), (Log{"cmd_MouseDown", "cmd_Click", "cmd_MouseUp"}));
}

TEST_P(FormsContract, TheBlankPressesAButtonWhenItIsLetGo) {
  Show();
  Focus(window->cmd);
  window->cmd.KeyDown = [&](int&, int) { window->log.push_back("KeyDown"); };
  window->cmd.KeyPress = [&](int& key) { window->log.push_back("KeyPress " + std::to_string(key)); };
  window->cmd.KeyUp = [&](int&, int) { window->log.push_back("KeyUp"); };
  driver->Type(*window, " ");
  EXPECT_EQ(window->Taken(), (Log{"KeyDown", "KeyPress 32", "KeyUp", "cmd_Click"}));
}

TEST_P(FormsContract, AFormWithoutControlsHearsKeysItself) {
  Form bare(driver->Toolkit(), "frmBare");
  bare.Move(300, 300, 3000, 3000);
  Log told;
  bare.KeyDown = [&](int& key, int) { told.push_back("KeyDown " + std::to_string(key)); };
  bare.KeyPress = [&](int& key) { told.push_back("KeyPress " + std::to_string(key)); };
  bare.KeyUp = [&](int& key, int) { told.push_back("KeyUp " + std::to_string(key)); };
  bare.Show();
  driver->Settle();
  driver->Type(bare, "a");
  EXPECT_EQ(told, (Log{"KeyDown 65", "KeyPress 97", "KeyUp 65"}));
  told.clear();
  bare.KeyDown = [&](int& key, int) { key = 0; };
  driver->Type(bare, "a");
  EXPECT_EQ(told, (Log{"KeyUp 65"}));
}

TEST_P(FormsContract, AFormMayGoInAKeyOfItsOwn) {
  Form bare(driver->Toolkit(), "frmBare");
  bare.KeyDown = [&](int&, int) { bare.Unload(); };
  bare.Show();
  driver->Settle();
  driver->Type(bare, "a");
  driver->Settle();
  EXPECT_FALSE(bare.IsLoaded());
  EXPECT_EQ(faults, Log{});
}

TEST_P(FormsContract, ABoxThatIsMadeAgainKeepsTheKeys) {
  Show();
  Focus(window->txt);
  int moved = 0;
  window->txt.LostFocus = window->txt.GotFocus = [&] { ++moved; };
  window->txt.SetMultiLine(true);
  driver->Settle();
  driver->Type(*window, "a");
  EXPECT_EQ(window->txt.Text(), "a");
  Focus(window->cmb);
  window->cmb.SetStyle(1);
  driver->Settle();
  driver->Type(*window, "z");
  EXPECT_EQ(window->cmb.Text(), "z");
  EXPECT_EQ(moved, 1) << "to the other box alone";
}

TEST_P(FormsContract, EnterAndEscapePressTheirButtons) {
  window->cmdOK.SetDefault(true);
  window->cmdCancel.SetCancel(true);
  Show();
  Focus(window->txt);
  driver->Press(*window, vbKeyReturn, 0);
  EXPECT_EQ(window->Taken(), (Log{"cmdOK_Click"}));
  driver->Press(*window, vbKeyEscape, 0);
  EXPECT_EQ(window->Taken(), (Log{"cmdCancel_Click"}));
  EXPECT_EQ(window->ActiveControl(), &window->txt);
}

TEST_P(FormsContract, KeyPreviewHearsKeysFirst) {
  window->SetKeyPreview(true);
  Show();
  Focus(window->pic);
  window->KeyDown = [&](int&, int) { window->log.push_back("form"); };
  window->pic.KeyDown = [&](int&, int) { window->log.push_back("pic"); };
  driver->Press(*window, vbKeyDown, 0);
  EXPECT_EQ(window->Taken(), (Log{"form", "pic"}));
}

TEST_P(FormsContract, APictureBoxHearsArrowsControlTabAndLetters) {
  Show();
  Focus(window->pic);
  std::vector<std::pair<int, int>> keys;
  window->pic.KeyDown = [&](int& key, int shift) { keys.emplace_back(key, shift); };
  driver->Press(*window, vbKeyUp, vbShiftMask);
  driver->Press(*window, vbKeyTab, vbCtrlMask);
  driver->Press(*window, vbKeyA, vbCtrlMask);
  const std::vector<std::pair<int, int>> expected = {
      {vbKeyUp, vbShiftMask}, {vbKeyTab, vbCtrlMask}, {vbKeyA, vbCtrlMask}};
  std::erase_if(keys, [](const auto& key) { return key.first == vbKeyShift || key.first == vbKeyControl; });
  EXPECT_EQ(keys, expected);
  EXPECT_EQ(window->ActiveControl(), &window->pic);
}

TEST_P(FormsContract, AnAccessKeyFocusesAndClicks) {
  Show();
  Focus(window->txt);
  driver->Press(*window, 'P', vbAltMask);
  EXPECT_EQ(window->Taken(), (Log{"cmd_Click"}));
  EXPECT_EQ(window->ActiveControl(), &window->cmd);
}

TEST_P(FormsContract, AnAccessKeyOfTheMenuBarIsAKeyDownFirst) {
  window->txt.KeyDown = [&](int& key, int shift) {
    if (key != 'F') return;
    window->log.push_back("KeyDown " + std::to_string(shift));
    key = 0;
  };
  window->mnuFile.Click = [&] { window->log.push_back("mnuFile_Click"); };
  Show();
  Focus(window->txt);
  driver->OnPopup("");  // closes a menu that opened all the same
  driver->Press(*window, 'F', vbAltMask);
  driver->Settle();
  EXPECT_EQ(window->Taken(), (Log{"KeyDown 4"})) << "taken by the handler it opens no menu";
}

TEST_P(FormsContract, AnAccessKeyOfTheMenuBarThatNobodyTakesOpensTheMenu) {
  if (!driver->OpensMenusByKey()) GTEST_SKIP() << "no menu bar to be seen";
  window->mnuFile.Click = [&] { window->log.push_back("mnuFile_Click"); };
  Show();
  Focus(window->txt);
  driver->OnPopup("");
  driver->Press(*window, 'F', vbAltMask);
  driver->Wait(50);
  EXPECT_EQ(window->Taken(), (Log{"mnuFile_Click"}));
  EXPECT_EQ(window->txt.Text(), "");
}

TEST_P(FormsContract, AScrollBarChangesOnce) {
  Show();
  driver->Scroll(window->hs, 40);
  EXPECT_EQ(window->hs.Value(), 40);
  EXPECT_EQ(window->Taken(), (Log{"hs_Change"}));
  window->hs.SetValue(50);
  driver->Settle();
  EXPECT_EQ(window->Taken(), (Log{"hs_Change"}));
  window->hs.SetMax(30);
  driver->Settle();
  EXPECT_EQ(window->hs.Value(), 30);
  EXPECT_EQ(window->Taken(), (Log{"hs_Change"}));
}

TEST_P(FormsContract, ADraggedThumbScrollsAndThenChanges) {
  Show();
  window->hs.SetMax(100000);
  window->hs.Scroll = [&] { window->log.push_back("Scroll " + std::to_string(window->hs.Value())); };
  window->hs.Change = [&] { window->log.push_back("Change " + std::to_string(window->hs.Value())); };
  driver->DragThumb(window->hs, {30000, 70000});
  EXPECT_EQ(window->Taken(), (Log{"Scroll 30000", "Scroll 70000", "Change 70000"}));
  window->hs.SetValue(5);
  EXPECT_EQ(window->Taken(), (Log{"Change 5"}));
}

TEST_P(FormsContract, ACanvasShowsWhatIsDrawn) {
  Show();
  window->pic.SetBackColor(RGB(255, 255, 255));
  window->pic.Cls();
  window->pic.FillBox(300, 300, 900, 900, RGB(255, 0, 0));
  window->pic.FrameBox(1200, 300, 1500, 600, RGB(0, 0, 255));
  window->pic.DrawLine(0, 0, 150, 150, 0);
  window->pic.SetFillStyle(0);
  window->pic.SetFillColor(RGB(255, 255, 0));
  window->pic.Circle(2100, 600, 300, RGB(255, 0, 0));
  window->pic.PaintPicture(nullptr, 0, 0, 300, 300);
  window->pic.Print("text");
  window->pic.Refresh();
  driver->Settle();
  EXPECT_EQ(driver->PixelAt(window->pic, 600, 600).value_or(RGB(255, 0, 0)), RGB(255, 0, 0));
  EXPECT_EQ(driver->PixelAt(window->pic, 2100, 600).value_or(RGB(255, 255, 0)), RGB(255, 255, 0));
  EXPECT_EQ(driver->PixelAt(window->pic, 1350, 450).value_or(RGB(255, 255, 255)), RGB(255, 255, 255));
  EXPECT_EQ(faults, Log{});
}

TEST_P(FormsContract, TextIsMeasuredInTwips) {
  Show();
  TextMetrics& metrics = driver->Toolkit().Metrics();
  const Font font;
  EXPECT_EQ(metrics.TextWidth("", font), 0);
  EXPECT_GT(metrics.TextWidth("WWWW", font), metrics.TextWidth("WW", font));
  EXPECT_NEAR(metrics.TextWidth("WWWW", font), 2 * metrics.TextWidth("WW", font), 60);
  EXPECT_GT(metrics.TextHeight(font), 120);
  EXPECT_LT(metrics.TextHeight(font), 400);
  Font large = font;
  large.Size = 24;
  EXPECT_GT(metrics.TextHeight(large), metrics.TextHeight(font));
}

TEST_P(FormsContract, MenusOfTheBarClick) {
  Show();
  int clicks = 0;
  window->mnuOpen.Click = [&] { ++clicks; };
  driver->ChooseMenu(*window, {"File", "Open..."});
  EXPECT_EQ(clicks, 1);
  window->mnuOpen.SetEnabled(false);
  driver->Settle();
  driver->ChooseMenu(*window, {"File", "Open..."});
  EXPECT_EQ(clicks, 1);
}

TEST_P(FormsContract, AnOpenedMenuClicksFirst) {
  Show();
  window->mnuFile.Click = [&] { window->log.push_back("mnuFile_Click"); };
  window->mnuOpen.Click = [&] { window->log.push_back("mnuOpen_Click"); };
  driver->ChooseMenu(*window, {"File", "Open..."});
  EXPECT_EQ(window->Taken(), (Log{"mnuFile_Click", "mnuOpen_Click"}));
}

TEST_P(FormsContract, AShortcutClicksItsMenu) {
  Show();
  Focus(window->txt);
  int clicks = 0;
  window->mnuSave.Click = [&] { ++clicks; };
  driver->Press(*window, 'S', vbCtrlMask);
  EXPECT_EQ(clicks, 1);
}

TEST_P(FormsContract, APopupMenuClicksBeforeItReturns) {
  Show();
  window->mnuCopy.Click = [&] { window->log.push_back("mnuCopy_Click"); };
  driver->OnPopup("Copy");
  window->PopupMenu(window->mnuPopup, 300, 300);
  window->log.push_back("back");
  EXPECT_EQ(window->Taken(), (Log{"mnuCopy_Click", "back"}));
  driver->OnPopup("");
  window->PopupMenu(window->mnuPopup, 300, 300);
  EXPECT_EQ(window->Taken(), Log{});
}

TEST_P(FormsContract, ToolbarButtonsTellTheirPlace) {
  Show();
  int button = 0, entry = 0;
  window->tlb.ButtonClick = [&](int position) { button = position; };
  window->tlb.ButtonMenuClick = [&](int position, int chosen) { button = position, entry = chosen; };
  driver->ClickToolButton(window->tlb, 1);
  EXPECT_EQ(button, 1);
  driver->ChooseToolMenu(window->tlb, 2, 2);
  EXPECT_EQ(button, 2);
  EXPECT_EQ(entry, 2);
  window->tlb.SetButtonEnabled(1, false);
  driver->Settle();
  button = 0;
  driver->ClickToolButton(window->tlb, 1);
  EXPECT_EQ(button, 0);
}

TEST_P(FormsContract, APoppedUpMenuClicksItselfOnce) {
  Show();
  window->mnuPopup.Click = [&] { window->log.push_back("mnuPopup_Click"); };
  driver->OnPopup("");
  window->PopupMenu(window->mnuPopup, 300, 300);
  EXPECT_EQ(window->Taken(), (Log{"mnuPopup_Click"}));
}

TEST_P(FormsContract, AUserControlHearsThroughItsSurface) {
  Show();
  driver->Click(window->pair.surface, 2000, 700, vbLeftButton);
  EXPECT_EQ(window->Taken(), (Log{"surface_MouseDown", "surface_MouseUp", "surface_Click"}));
  EXPECT_TRUE(window->pair.HasFocus());
  Click(window->pair.edit);
  driver->Type(*window, "in");
  EXPECT_EQ(window->pair.edit.Text(), "in");
  window->pair.Move(120, 4800, 3000, 900);
  driver->Settle();
  EXPECT_EQ(window->pair.edit.Width(), 1500);
  EXPECT_TRUE(driver->IsOnScreen(window->pair.edit).value_or(true));
}

TEST_P(FormsContract, AModalFormReturnsWhenItIsHidden) {
  Show();
  ContractWindow dialog(driver->Toolkit(), "frmDialog");
  driver->InModal(dialog, [&] {
    driver->Click(dialog.txt, 300, 150, vbLeftButton);
    driver->Type(dialog, "in");
    dialog.Hide();
  });
  dialog.ShowModal();
  EXPECT_EQ(dialog.txt.Text(), "in");
  EXPECT_FALSE(dialog.Visible());
  EXPECT_TRUE(dialog.IsLoaded());
  EXPECT_TRUE(window->IsActiveForm());
}

TEST_P(FormsContract, AModalFormKeepsInputFromOthers) {
  Show();
  ContractWindow dialog(driver->Toolkit(), "frmDialog");
  driver->InModal(dialog, [&] {
    Click(window->cmd);
    dialog.Unload();
  });
  dialog.ShowModal();
  EXPECT_EQ(window->Taken(), Log{});
  Click(window->cmd);
  EXPECT_EQ(window->Taken(), (Log{"cmd_MouseDown", "cmd_Click", "cmd_MouseUp"}));
}

TEST_P(FormsContract, ModalFormsNest) {
  Show();
  ContractWindow outer(driver->Toolkit(), "frmOuter"), inner(driver->Toolkit(), "frmInner");
  Log order;
  driver->InModal(inner, [&] {
    order.push_back("inner");
    inner.Hide();
  });
  driver->InModal(outer, [&] {
    inner.ShowModal();
    order.push_back("outer");
    outer.Hide();
  });
  outer.ShowModal();
  EXPECT_EQ(order, (Log{"inner", "outer"}));
}

TEST_P(FormsContract, ATimerTicksWhileItRuns) {
  Show();
  int ticks = 0;
  window->tmr.Tick = [&] { ++ticks; };
  driver->Wait(30);
  EXPECT_EQ(ticks, 0);
  window->tmr.SetInterval(10);
  driver->Wait(200);
  EXPECT_GE(ticks, 2);
  window->tmr.SetEnabled(false);
  const int before = ticks;
  driver->Wait(60);
  EXPECT_EQ(ticks, before);
}

TEST_P(FormsContract, ATimerThatStopsItselfTicksOnce) {
  Show();
  int ticks = 0;
  window->tmr.Tick = [&] {
    ++ticks;
    window->tmr.SetEnabled(false);
  };
  window->tmr.SetInterval(10);
  driver->Wait(100);
  EXPECT_EQ(ticks, 1);
}

TEST_P(FormsContract, TheCloseBoxUnloadsUnlessRefused) {
  Show();
  bool refuse = true;
  UnloadMode mode = UnloadMode::Code;
  window->QueryUnload = [&](bool& cancel, UnloadMode how) { cancel = refuse, mode = how; };
  driver->Close(*window);
  EXPECT_TRUE(window->IsLoaded());
  EXPECT_EQ(mode, UnloadMode::ControlMenu);
  refuse = false;
  driver->Close(*window);
  EXPECT_FALSE(window->IsLoaded());
}

TEST_P(FormsContract, AFormCanUnloadItselfInsideAClickAndComeBack) {
  Show();
  window->cmd.Click = [&] { window->Unload(); };
  Click(window->cmd);
  driver->Settle();
  EXPECT_FALSE(window->IsLoaded());
  EXPECT_EQ(window->cmd.Peer(), nullptr);
  window->txt.SetText("kept");
  Show();
  EXPECT_EQ(driver->ShownText(window->txt).value_or("kept"), "kept");
  EXPECT_EQ(faults, Log{});
}

TEST_P(FormsContract, HideKeepsValuesAndShowBringsThemBack) {
  Show();
  window->txt.SetText("kept");
  window->Hide();
  driver->Settle();
  EXPECT_FALSE(driver->IsOnScreen(window->txt).value_or(false));
  Show();
  EXPECT_EQ(driver->ShownText(window->txt).value_or("kept"), "kept");
}

TEST_P(FormsContract, AControlMovesToAnotherContainerWhileShown) {
  Show();
  window->chk.SetContainer(window->fra);
  window->chk.Move(120, 900, 1500, 250);
  driver->Settle();
  EXPECT_TRUE(driver->IsOnScreen(window->chk).value_or(true));
  Click(window->chk);
  EXPECT_EQ(window->chk.Value(), vbChecked);
}

TEST_P(FormsContract, AnErrorEndsTheActAndIsTold) {
  Show();
  window->cmd.Click = [] { throw Error(5); };
  Click(window->cmd);
  ASSERT_EQ(faults.size(), 1u);
  EXPECT_EQ(faults[0], runtime::DescriptionOf(5));
}

TEST_P(FormsContract, ResizingByCodeRaisesResizeAndKeepsTheFrame) {
  Show();
  int resizes = 0;
  window->Resize = [&] { ++resizes; };
  window->Move(300, 300, 7500, 6000);
  driver->Settle();
  EXPECT_EQ(resizes, 1);
  EXPECT_EQ(window->Width(), 7500);
  EXPECT_LE(window->ScaleWidth(), 7500);
  EXPECT_GT(window->ScaleWidth(), 7000);
  EXPECT_LT(window->ScaleHeight(), 6000);
}

TEST_P(FormsContract, AnotherStateIsResizedWithTheNewSize) {
  Show();
  const Twips width = window->Width();
  std::vector<Twips> widths;
  window->Resize = [&] { widths.push_back(window->Width()); };
  for (int state : {vbMaximized, vbNormal}) {
    widths.clear();
    window->SetWindowState(state);
    driver->Settle();
    ASSERT_FALSE(widths.empty()) << state;
    EXPECT_EQ(widths.back(), window->Width()) << state;
  }
  EXPECT_EQ(window->Width(), width);
}

TEST_P(FormsContract, DoEventsReturns) {
  Show();
  driver->Toolkit().DoEvents();
  EXPECT_TRUE(window->Visible());
}

}  // namespace corvane::forms
