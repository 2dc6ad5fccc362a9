// The window: what stands on it, how it opens, closes and grows.
#include "explorer/frm_about.h"
#include "tests/explorer/explorer_fixture.h"

namespace corvane::tests {
namespace {

using forms::ControlKind;

class Window : public ExplorerTest {
 protected:
  const Sources kShop = {Frm("frmMain", {"Option Explicit", ""}), Bas("modMain", {"Public a", "Public b"})};

  static std::string CaptionOf(const forms::Control& control) {
    if (auto* button = dynamic_cast<const forms::Button*>(&control)) return button->Caption();
    if (auto* button = dynamic_cast<const codelist::CvButton*>(&control)) return button->Caption();
    if (auto* label = dynamic_cast<const forms::Label*>(&control)) return label->Caption();
    if (auto* frame = dynamic_cast<const forms::Frame*>(&control)) return frame->Caption();
    if (auto* combo = dynamic_cast<const forms::ComboBox*>(&control)) return combo->Text();
    if (auto* box = dynamic_cast<const forms::TextBox*>(&control)) return box->Text();
    return {};
  }
  static std::string ToolTipOf(const forms::Control& control) {
    auto* button = dynamic_cast<const codelist::CvButton*>(&control);
    return button ? button->ToolTip() : control.ToolTipText();
  }
};

TEST_F(Window, ItsControlsBeforeItIsUsed) {
  const struct {
    const char* name;
    ControlKind kind;
    const char *caption, *tip;
  } kCases[] = {
      {"tlbr", ControlKind::Toolbar, "", ""},
      {"imgl", ControlKind::ImageList, "", ""},
      {"axAllComp", ControlKind::UserControl, "All Comp.", ""},
      {"axForms", ControlKind::UserControl, "Forms", ""},
      {"axControls", ControlKind::UserControl, "Controls", ""},
      {"axClasses", ControlKind::UserControl, "Classes", ""},
      {"axModules", ControlKind::UserControl, "", ""},
      {"axLastComp", ControlKind::UserControl, "", ""},
      {"txtFind", ControlKind::TextBox, "", "Components Filter"},
      {"lbxComp1", ControlKind::ComboBox, "Declarations", "All Components ComboBox"},
      {"lbxComp2", ControlKind::ComboBox, "Declarations", "All Components ComboBox"},
      {"lbxProc1", ControlKind::ListBox, "", ""},
      {"lbxProc2", ControlKind::ListBox, "", ""},
      {"txtFproc", ControlKind::TextBox, "", "Procedures Filter"},
      {"optProj", ControlKind::OptionButton, "Project", "Selects All Project Components"},
      {"optCurMod", ControlKind::OptionButton, "Current Code", "Selects current CodeModule"},
      {"optSelMod", ControlKind::OptionButton, "Selected", "Trigger selected component in PLB"},
      {"optProcAll", ControlKind::OptionButton, "All entries", "Shows all Procedures"},
      {"optProcSub", ControlKind::OptionButton, "Subs", "Shows only Subs"},
      {"optProcFunc", ControlKind::OptionButton, "Functions", "Shows only Functions"},
      {"optProcProp", ControlKind::OptionButton, "Properties", "Shows only Properties"},
      {"optProcEvent", ControlKind::OptionButton, "Events", "Shows CodeModule Events"},
      {"optAllProc", ControlKind::OptionButton, "All", "Shows All procedures"},
      {"optProcPubl", ControlKind::OptionButton, "Public", "Shows only Public Procedures"},
      {"optProcPriv", ControlKind::OptionButton, "Private", "Shows only Private Procedures"},
      {"optProcStat", ControlKind::OptionButton, "Static", "Shows only Static Procedures"},
      {"cmbSearch", ControlKind::ComboBox, "", "Type or select string for Search"},
      {"cbSearch", ControlKind::UserControl, "Search", ""},
      {"optFndAll", ControlKind::OptionButton, "Whole Project", ""},
      {"optFndCur", ControlKind::OptionButton, "Current Module", "Current CodeModule in Visual Basic"},
      {"optFndSel", ControlKind::OptionButton, "Selected Module", "Current CodeModule in Corvane"},
      {"optGroup", ControlKind::OptionButton, "Project group", ""},
      {"chkWhole", ControlKind::CheckBox, "Whole Word", "Check whole/not whole  word"},
      {"chkSub", ControlKind::CheckBox, "Subs", "Check only Subs or Functions"},
      {"chkComnt", ControlKind::CheckBox, "With comments", "Check strings with comments"},
      {"txtCode", ControlKind::UserControl, "", ""},
      {"lblSub", ControlKind::Label, "", ""},
      {"Label5", ControlKind::Label, "", ""},
      {"Label1", ControlKind::Label, "Components", ""},
      {"Label2", ControlKind::Label, "Procedures and Declarations", ""},
      {"Label3", ControlKind::Label, "Code View", ""},
      {"cmdPrev", ControlKind::UserControl, "", ""},
      {"cmdNext", ControlKind::UserControl, "", ""},
      {"cmGo", ControlKind::UserControl, "", ""},
      {"cmdColor", ControlKind::UserControl, "Off", ""},
      {"cmdMore", ControlKind::CommandButton, "Max", "Maximize \\ Minimize Code Window"},
      {"optFirst", ControlKind::OptionButton, "First PLB", "First list of Code Links"},
      {"optSecond", ControlKind::OptionButton, "Second PLB", "Second list of Code Links"},
      {"txtClip", ControlKind::TextBox, "", "ClipBook Window"},
      {"lstSave", ControlKind::ListBox, "", ""},
      {"txtPrev", ControlKind::TextBox, "Text1", ""},
      {"Frame1", ControlKind::Frame, "", ""},
      {"Frame2", ControlKind::Frame, "", ""},
      {"Frame3", ControlKind::Frame, "", "Procedures visibility selector"},
      {"Frame4", ControlKind::Frame, "", "All Project \\ Current CodeModule Selector"},
      {"Frame5", ControlKind::Frame, "", ""},
      {"Frame6", ControlKind::Frame, "", ""},
  };
  EXPECT_EQ(form.Caption(), "Corvane V 1.0");
  for (const auto& c : kCases) {
    forms::Control* control = form.Find(c.name);
    ASSERT_NE(control, nullptr) << c.name;
    EXPECT_EQ(control->Kind(), c.kind) << c.name;
    EXPECT_EQ(CaptionOf(*control), c.caption) << c.name;
    EXPECT_EQ(ToolTipOf(*control), c.tip) << c.name;
  }
  EXPECT_FALSE(form.lstSave.Visible());
  EXPECT_FALSE(form.txtPrev.Visible());
}

TEST_F(Window, TheButtonsOfItsToolbar) {
  const struct {
    int position;
    const char *key, *tip;
  } kCases[] = {
      {2, "Previous", "Previous CodePoint"},
      {3, "Next", "Next CodePoint"},
      {4, "First", "First CodePoint"},
      {5, "Last", "Last CodePoint"},
      {6, "History", "CodePoint`s History"},
      {8, "Refresh", "Refresh"},
      {9, "Favorites", "Add\\Remove Project Favorites"},
      {10, "BookMarks", "Get BookMarks"},
      {11, "CloseWnd", "Close All Windows except current"},
      {12, "Find", "Searching in Designers"},
      {14, "Actions", "Additional Actions"},
      {15, "aCopy", "Copy Component Properties"},
      {16, "aPaste", "Paste Component Properties"},
      {18, "Pen", "Quick Declare of Variables or Procedure"},
      {19, "Note", "Project Notes"},
      {20, "Map", "Dependencies and Project Map"},
      {22, "Start", "Start Template"},
      {23, "About", "About Developer"},
      {24, "pImmed", "Clear Immediate window"},
      {25, "pExit", "Exit from Corvane"},
  };
  ASSERT_EQ(form.tlbr.Count(), 25);
  for (const auto& c : kCases) {
    EXPECT_EQ(form.tlbr.Button(c.position).Key, c.key);
    EXPECT_EQ(form.tlbr.Button(c.position).ToolTipText, c.tip) << c.key;
    EXPECT_NE(form.imgl.Item(form.tlbr.Button(c.position).Image), nullptr) << c.key;
  }
  for (int position : {1, 7, 13, 17, 21})
    EXPECT_EQ(form.tlbr.Button(position).Style, forms::ToolButtonStyle::Separator) << position;
}

TEST_F(Window, TheEntriesOfItsMenus) {
  const struct {
    const char *name, *caption;
  } kCases[] = {
      {"mnuSearch", "Search Procedure"},
      {"mnuSearchMod", "Search CodeModule"},
      {"mnuGoDesign", "Goto Designer"},
      {"mnuComnt", "Comment Procedure"},
      {"mnuCop", "Copy into ClipBoard"},
      {"mnuCopy", "Copy Procedure"},
      {"mnuCopyAdd", "Add Procedure"},
      {"mnuCopyPLB", "Copy whole PLB"},
      {"mnuExec", "&Exec Template"},
      {"mnuIDECurrent", "&Current Code"},
      {"mnuIDEPrev", "&Back to previous line"},
      {"mnuIDESearch", "&Search current word"},
      {"mnuIDEDeclare", "&Declare variable"},
      {"mnuIDETitle", "Project &Title"},
  };
  for (const auto& c : kCases) {
    auto* menu = dynamic_cast<forms::Menu*>(form.Find(c.name));
    ASSERT_NE(menu, nullptr) << c.name;
    EXPECT_EQ(menu->Caption(), c.caption);
  }
}

TEST_F(Window, TheFirstActivationMakesTheDropDowns) {
  OpenWindow(kShop);
  auto entries = [&](const char* key) {
    std::vector<std::string> texts;
    for (const auto& menu : form.tlbr.Button(form.tlbr.PositionOf(key)).ButtonMenus) texts.push_back(menu.Text);
    return texts;
  };
  EXPECT_THAT(entries("Favorites"),
              ElementsAre("Show Favorites", "Add \\ Remove current CodeLine into Favorites List",
                          "Show Favorites Designers", "Add current Designer into Favorites List"));
  EXPECT_THAT(entries("BookMarks"), ElementsAre("Get BookMarks List", "Put current CodeLine into BookMarks List"));
  EXPECT_THAT(entries("Actions"), ElementsAre("Clone current Component", "Weaver WorkShop"));
  EXPECT_FALSE(form.tlbr.Button(2).Enabled);
  EXPECT_FALSE(form.tlbr.Button(3).Enabled);
  EXPECT_FALSE(form.cmdPrev.Enabled());
  EXPECT_FALSE(form.cmdNext.Enabled());
}

TEST_F(Window, LoadingMovesItAndFillsTheSearchBox) {
  OpenWindow(kShop);
  EXPECT_EQ(form.Left(), 200);
  EXPECT_EQ(form.Top(), 200);
  EXPECT_THAT(Rows(form.cmbSearch), ElementsAre("Project Title"));
}

TEST_F(Window, LoadingOffersTheCurrentWordForSearch) {
  Open(kShop);
  Caret("modMain", 1, 8);
  form.VBInstance = environment;
  form.LoadForm();
  EXPECT_EQ(form.cmbSearch.Text(), "a");
}

TEST_F(Window, AShortHelpFileIsTakenFromTheLibrarysFolder) {
  services.app.HelpFile = "corvane.hlp";
  OpenWindow(kShop);
  EXPECT_EQ(services.app.HelpFile, "C:\\Corvane\\corvane.hlp");
  form.Unload();
  form.Show();
  EXPECT_EQ(services.app.HelpFile, "C:\\Corvane\\corvane.hlp");
}

TEST_F(Window, ItIsActivatedOnce) {
  OpenWindow(kShop);
  ChooseComponent("modMain");
  form.Hide();
  form.Show();
  EXPECT_EQ(form.lbxComp->Text(), "modMain");
}

TEST_F(Window, AfterItWasUnloadedItComesUpAfresh) {
  OpenWindow(kShop);
  ChooseComponent("modMain");
  form.optSecond.UserClick();
  form.cmdMore.UserClick();
  form.Unload();
  form.Show();
  EXPECT_TRUE(form.lbxComp == &form.lbxComp1);
  EXPECT_TRUE(form.lbxComp1.Visible());
  EXPECT_TRUE(form.optFirst.Value());
  EXPECT_EQ(form.cmdMore.Caption(), "Max");
  EXPECT_EQ(form.lbxComp->ListIndex(), 0);
  EXPECT_THAT(Components(), ElementsAre(" Project Globals", "frmMain", "modMain"));
  EXPECT_EQ(form.Caption(), "Corvane V 1.0 ( C:\\Test\\Shop.vbp )");
}

TEST_F(Window, AfterItWasUnloadedAllKindsAreListed) {
  OpenWindow(kShop);
  form.axForms.Click();
  ASSERT_THAT(Components(), ElementsAre(" Project Globals", "frmMain"));
  form.Unload();
  form.Show();
  EXPECT_THAT(Components(), ElementsAre(" Project Globals", "frmMain", "modMain"));
}

TEST_F(Window, DisplayPopsUpItsMenuFromTheSecondTimeOn) {
  Open(kShop);
  form.VBInstance = environment;
  form.Display();
  EXPECT_THAT(toolkit.Popups(), IsEmpty());
  form.Display();
  ASSERT_EQ(toolkit.Popups().size(), 1u);
  EXPECT_EQ(toolkit.Popups()[0][0], "mnuIDE");
  EXPECT_EQ(toolkit.PopupPlaces().back(), std::pair(3500.0f, 2000.0f));
  form.Unload();
  form.Display();
  EXPECT_EQ(toolkit.Popups().size(), 1u);
}

TEST_F(Window, TheMenuShowsTheCurrentCode) {
  OpenWindow(kShop);
  Caret("modMain", 2);
  toolkit.OnPopup("Current Code");
  form.Display();
  EXPECT_THAT(Components(), ElementsAre("modMain"));
}

TEST_F(Window, TheMenuOffersTheCurrentWordForSearch) {
  OpenWindow(kShop);
  Caret("modMain", 2, 8);
  toolkit.OnPopup("Search current word");
  form.Display();
  EXPECT_EQ(form.cmbSearch.Text(), "b");
  EXPECT_TRUE(form.cmbSearch.HasFocus());
}

TEST_F(Window, ItsSizeKeepsALeastMeasure) {
  OpenWindow(kShop);
  form.UserResize(6000, 3000);
  EXPECT_EQ(form.Width(), 10530);
  EXPECT_EQ(form.Height(), 8400);
  EXPECT_EQ(form.txtCode.Width(), 10530 - 260);
  EXPECT_EQ(form.lbxProc1.Width(), 10530 - 260);
}

TEST_F(Window, WiderThanItsViewsTheViewsStopGrowing) {
  OpenWindow(kShop);
  form.UserResize(15000, 9000);
  EXPECT_EQ(form.Width(), 15000);
  for (forms::Control* control :
       {static_cast<forms::Control*>(&form.txtCode), static_cast<forms::Control*>(&form.lbxProc1),
        static_cast<forms::Control*>(&form.lbxProc2)})
    EXPECT_EQ(control->Width(), 12300 - 260);
}

TEST_F(Window, WhatStandsBelowTheCodeMovesWithItsHeight) {
  OpenWindow(kShop);
  for (int height : {8400, 9600, 12000}) {
    form.UserResize(11000, height);
    for (forms::Frame* frame : {&form.Frame4, &form.Frame6}) EXPECT_EQ(frame->Height(), height - frame->Top() - 550);
    EXPECT_EQ(form.txtClip.Top(), form.Frame4.Top() + 90);
    EXPECT_EQ(form.txtClip.Top() + form.txtClip.Height(), form.ScaleHeight() - 180);
    EXPECT_EQ(form.cmdMore.Top(), form.Frame4.Top() + 90);
    EXPECT_EQ(form.cmdColor.Top(), form.Frame4.Top() + 500);
    EXPECT_LE(form.txtCode.Height(), form.Frame4.Top() - form.txtCode.Top() - 60);
    EXPECT_GT(form.txtCode.Height(), form.Frame4.Top() - form.txtCode.Top() - 60 - form.txtCode.RowHeight());
  }
}

TEST_F(Window, TheFramesKeepTheirHeightAndMove) {
  OpenWindow(kShop);
  const forms::Twips frame4 = form.Frame4.Height(), frame6 = form.Frame6.Height();
  for (int height : {8400, 9600, 12000}) {
    form.UserResize(11000, height);
    EXPECT_EQ(form.Frame4.Height(), frame4);
    EXPECT_EQ(form.Frame6.Height(), frame6);
    EXPECT_EQ(form.Frame4.Top(), height - frame4 - 550);
    EXPECT_EQ(form.Frame6.Top(), form.Frame4.Top());
  }
}

TEST_F(Window, ANewSizePaintsOnce) {
  OpenWindow(kShop);
  std::vector<forms::Twips> widths;
  services.loop.on_do_events = [&] { widths.push_back(form.txtCode.Width()); };
  form.UserResize(11000, 9600);
  services.loop.on_do_events = nullptr;
  EXPECT_THAT(widths, ElementsAre(11000 - 260));
}

TEST_F(Window, ASecondResizeWhileMinimisedBringsItBack) {
  OpenWindow(kShop);
  form.UserWindowState(forms::vbMinimized);
  EXPECT_EQ(form.WindowState(), forms::vbMinimized);
  form.Resize();
  EXPECT_EQ(form.WindowState(), forms::vbNormal);
}

TEST_F(Window, KeysStandForTheButtonsThatTakeNoFocus) {
  OpenWindow({Frm("frmMain", {"Option Explicit", ""}), Bas("modMain", {"Public a", "Public b"}),
              Cls("clsItem", {"Dim a", "Dim b"}), Ctl("ucGrid", {"Dim a", "Dim b"})});
  const struct {
    int key;
    const char* first;
  } kCases[] = {{'1', "clsItem"}, {'2', "frmMain"}, {'3', "ucGrid"}, {'4', "clsItem"}, {'5', "modMain"}};
  for (const auto& c : kCases) {
    EXPECT_TRUE(form.lbxProc->UserKeyDown(c.key, forms::vbAltMask));
    EXPECT_EQ(form.lbxComp->Text(), c.first) << c.key;
  }
  form.lbxProc->UserKeyDown(forms::vbKeyF1 + 10, 0);
  EXPECT_EQ(form.cmdMore.Caption(), "Min");
  form.txtCode.pic.UserKeyDown(forms::vbKeyF1 + 10, 0);
  EXPECT_EQ(form.cmdMore.Caption(), "Max");
  form.lbxProc->UserKeyDown(forms::vbKeyF1 + 10, forms::vbShiftMask);
  EXPECT_TRUE(form.txtCode.ColorOff);
  form.lbxComp->UserSelect(RowOf(Components(), "modMain"));
  form.lbxProc->UserKeyDown(forms::vbKeyF1 + 6, 0);
  EXPECT_EQ(environment->ActiveCodePane()->CodeModule()->Name(), "modMain");
  form.lbxProc->UserKeyDown(forms::vbKeyF1 + 6, forms::vbShiftMask);
  EXPECT_EQ(Messages().size(), 1u);
}

TEST_F(Window, RefreshListsTheProject) {
  OpenWindow(kShop);
  environment->ActiveVBProject()->VBComponents()->Add(host::ComponentType::ClassModule);
  Module("Class1").InsertLines(1, "Dim a\r\nDim b");
  form.tlbr.UserButtonClick(form.tlbr.PositionOf("Refresh"));
  EXPECT_THAT(Components(), Contains("Class1"));
}

TEST_F(Window, F5ListsTheProject) {
  OpenWindow(kShop);
  environment->ActiveVBProject()->VBComponents()->Add(host::ComponentType::ClassModule);
  Module("Class1").InsertLines(1, "Dim a\r\nDim b");
  form.lbxProc->UserKeyDown(forms::vbKeyF5, forms::vbShiftMask);
  EXPECT_THAT(Components(), Not(Contains("Class1")));
  form.lbxProc->UserKeyDown(forms::vbKeyF5, 0);
  EXPECT_THAT(Components(), Contains("Class1"));
}

TEST_F(Window, AfterAnyButtonOfTheToolbarThePointerIsTheDefaultOne) {
  OpenWindow(kShop);
  toolkit.OnModal("frmAbout", [](forms::Form& about) { about.Unload(); });
  for (int position = 1; position <= form.tlbr.Count(); ++position) {
    if (form.tlbr.Button(position).Key == "pExit") continue;
    services.screen.SetMousePointer(host::vbHourglass);
    form.tlbr.ButtonClick(position);
    EXPECT_EQ(services.screen.MousePointer(), host::vbDefault) << form.tlbr.Button(position).Key;
  }
}

TEST_F(Window, RefreshLeavesTheCurrentCode) {
  Open(kShop);
  Caret("modMain", 2);
  OpenWindow();
  form.tlbr.UserButtonClick(form.tlbr.PositionOf("Refresh"));
  EXPECT_TRUE(form.optProj.Value());
  EXPECT_THAT(Components(), ElementsAre(" Project Globals", "frmMain", "modMain"));
}

TEST_F(Window, ExitUnloadsIt) {
  OpenWindow(kShop);
  form.tlbr.UserButtonClick(form.tlbr.PositionOf("pExit"));
  EXPECT_FALSE(form.IsLoaded());
}

TEST_F(Window, AboutShowsTheReadme) {
  OpenWindow(kShop);
  services.files.Put("C:\\Corvane\\readme.txt", "Read this.");
  toolkit.OnModal("frmAbout", [&](forms::Form& shown) {
    auto& about = static_cast<explorer::frmAbout&>(shown);
    EXPECT_FALSE(about.txtRead.Visible());
    about.cmdSysInfo.UserClick();
    EXPECT_FALSE(about.cmdSysInfo.Visible());
    EXPECT_EQ(about.txtRead.Text(), "Read this.");
    EXPECT_EQ(about.txtRead.Height(), about.Height() - 550);
    about.cmdOk.UserClick();
  });
  form.tlbr.UserButtonClick(form.tlbr.PositionOf("About"));
  EXPECT_THAT(toolkit.Faults(), IsEmpty());
}

TEST_F(Window, AboutShowsAnEmptyBoxWithoutTheReadme) {
  OpenWindow(kShop);
  toolkit.OnModal("frmAbout", [&](forms::Form& shown) {
    auto& about = static_cast<explorer::frmAbout&>(shown);
    about.cmdSysInfo.UserClick();
    EXPECT_TRUE(about.txtRead.Visible());
    EXPECT_EQ(about.txtRead.Text(), "");
    about.cmdOk.UserClick();
  });
  form.tlbr.UserButtonClick(form.tlbr.PositionOf("About"));
  EXPECT_THAT(toolkit.Faults(), IsEmpty());
}

}  // namespace
}  // namespace corvane::tests
