// The design of the explorer: captions, tool tips, places, menus, the order of Tab. Places are those of the smallest
// window; what moves with its size is in resize.cpp.
#include <vector>

#include "explorer/frm_add_in.h"
#include "explorer/set_while.h"
#include "forms/icons.h"

namespace corvane::explorer {

using forms::Rect;

frmAddIn::frmAddIn(host::Services& services, forms::Toolkit& toolkit)
    : Form(toolkit, "frmAddIn"),
      axAllComp(*this, "axAllComp", services),
      axForms(*this, "axForms", services),
      axControls(*this, "axControls", services),
      axModules(*this, "axModules", services),
      axClasses(*this, "axClasses", services),
      axLastComp(*this, "axLastComp", services),
      cmdPrev(*this, "cmdPrev", services),
      cmdNext(*this, "cmdNext", services),
      cmGo(*this, "cmGo", services),
      txtCode(*this, "txtCode", services),
      cbSearch(Frame6, "cbSearch", services),
      cmdColor(*this, "cmdColor", services),
      mnuPLB(*this, "mnuPLB", "PLB"),
      mnuSearch(mnuPLB, "mnuSearch", ""),
      mnuSearchMod(mnuPLB, "mnuSearchMod", ""),
      mnuGoDesign(mnuPLB, "mnuGoDesign", ""),
      mnuComnt(mnuPLB, "mnuComnt", ""),
      mnuCop(mnuPLB, "mnuCop", ""),
      mnuCopy(mnuCop, "mnuCopy", ""),
      mnuCopyAdd(mnuCop, "mnuCopyAdd", ""),
      mnuCopyPLB(mnuCop, "mnuCopyPLB", ""),
      mnuIDE(*this, "mnuIDE", "IDE"),
      mnuExec(mnuIDE, "mnuExec", ""),
      mnuIDECurrent(mnuIDE, "mnuIDECurrent", ""),
      mnuIDEPrev(mnuIDE, "mnuIDEPrev", ""),
      mnuIDESearch(mnuIDE, "mnuIDESearch", ""),
      mnuIDEDeclare(mnuIDE, "mnuIDEDeclare", ""),
      mnuIDETitle(mnuIDE, "mnuIDETitle", ""),
      mnuTools(*this, "mnuTools", "Tools"),
      services(services) {
  Design();
  ResetToDesign();
  BindEvents();
}

void frmAddIn::Design() {
  SetIcon(forms::Icon("corvane"));
  SetKeyPreview(true);
  DesignToolbar();
  DesignMenus();
  DesignLists();
  DesignOptions();
  DesignButtons();
  Label1.SetCaption("Components");
  Label2.SetCaption("Procedures and Declarations");
  Label3.SetCaption("Code View");
  // They show code, in which "&" is an operator.
  lblSub.SetUseMnemonic(false);
  Label5.SetUseMnemonic(false);
  OrderTabs();
}

void frmAddIn::DesignLists() {
  for (forms::ComboBox* list : {&lbxComp1, &lbxComp2}) {
    list->SetSorted(true);
    list->SetToolTipText("All Components ComboBox");
  }
  for (forms::ListBox* list : {&lbxProc1, &lbxProc2}) {
    list->SetSorted(true);
    // Wide blanks keep the tails of the rows behind the right edge.
    list->SetFont({.Name = "Courier New", .Size = 8.25f});
  }
  txtFind.SetToolTipText("Components Filter");
  txtFproc.SetToolTipText("Procedures Filter");
  cmbSearch.SetToolTipText("Type or select string for Search");
  txtClip.SetToolTipText("ClipBook Window");
  txtClip.SetMultiLine(true);
  txtClip.SetScrollBars(2);
  lstSave.SetVisible(false);
  txtPrev.SetVisible(false);
  txtCode.sGrid("VB");
}

void frmAddIn::DesignOptions() {
  const struct {
    forms::Button& control;
    const char *caption, *tip;
  } kOptions[] = {
      {optFirst, "First PLB", "First list of Code Links"},
      {optSecond, "Second PLB", "Second list of Code Links"},
      {optProcAll, "All entries", "Shows all Procedures"},
      {optProcSub, "Subs", "Shows only Subs"},
      {optProcFunc, "Functions", "Shows only Functions"},
      {optProcProp, "Properties", "Shows only Properties"},
      {optProcEvent, "Events", "Shows CodeModule Events"},
      {optAllProc, "All", "Shows All procedures"},
      {optProcPubl, "Public", "Shows only Public Procedures"},
      {optProcPriv, "Private", "Shows only Private Procedures"},
      {optProcStat, "Static", "Shows only Static Procedures"},
      {optProj, "Project", "Selects All Project Components"},
      {optCurMod, "Current Code", "Selects current CodeModule"},
      {optSelMod, "Selected", "Trigger selected component in PLB"},
      {optFndAll, "Whole Project", ""},
      {optFndCur, "Current Module", "Current CodeModule in Visual Basic"},
      {optFndSel, "Selected Module", "Current CodeModule in Corvane"},
      {optGroup, "Project group", ""},
      {chkWhole, "Whole Word", "Check whole/not whole  word"},
      {chkSub, "Subs", "Check only Subs or Functions"},
      {chkComnt, "With comments", "Check strings with comments"},
      {cmdMore, "Max", "Maximize \\ Minimize Code Window"},
  };
  for (const auto& option : kOptions) {
    option.control.SetCaption(option.caption);
    option.control.SetToolTipText(option.tip);
  }
  for (forms::Frame* frame : {&Frame1, &Frame2, &Frame3, &Frame5}) frame->SetBorderStyle(0);
  Frame3.SetToolTipText("Procedures visibility selector");
  Frame4.SetToolTipText("All Project \\ Current CodeModule Selector");
}

void frmAddIn::DesignButtons() {
  const struct {
    codelist::CvButton& control;
    const char *caption, *icon;
    bool enabled;
  } kButtons[] = {
      {axAllComp, "All Comp.", "all", true},
      {axForms, "Forms", "forms", true},
      {axControls, "Controls", "controls", true},
      {axClasses, "Classes", "classes", true},
      {axModules, "", "modules", true},
      {axLastComp, "", "favorite", true},
      {cmdPrev, "", "previous", false},
      {cmdNext, "", "next", false},
      {cmGo, "", "go-designer", true},
      {cmdColor, "Off", "color", true},
      {cbSearch, "Search", "search", true},
  };
  for (const auto& button : kButtons) {
    button.control.SetCaption(button.caption);
    button.control.SetPicture(forms::Icon(button.icon));
    button.control.SetEnabled(button.enabled);
    button.control.SetBorderStyle(1);
  }
}

// Columns and rows of one grid: 75 twips of margin, the right edge of the code view for all rows.
void frmAddIn::PlaceControls() {
  const struct {
    forms::Control& control;
    Rect place;
  } kPlaces[] = {
      {tlbr, {0, 0, 10410, 420}},           {Label1, {75, 555, 1125, 240}},       {axAllComp, {1275, 495, 1350, 330}},
      {axForms, {2670, 495, 1080, 330}},    {axControls, {3795, 495, 1230, 330}}, {axClasses, {5070, 495, 1200, 330}},
      {axModules, {6315, 495, 345, 330}},   {axLastComp, {6705, 495, 345, 330}},  {Frame1, {7140, 495, 3205, 330}},
      {optFirst, {0, 30, 1500, 270}},       {optSecond, {1605, 30, 1600, 270}},   {lbxComp1, {75, 900, 6975, 315}},
      {lbxComp2, {75, 900, 6975, 315}},     {txtFind, {7140, 900, 3205, 315}},    {Label2, {75, 1335, 3000, 240}},
      {cmdPrev, {9615, 1275, 345, 330}},    {cmdNext, {10000, 1275, 345, 330}},   {lbxProc1, {75, 1635, 10270, 1080}},
      {lbxProc2, {75, 1635, 10270, 1080}},  {txtFproc, {75, 2775, 1665, 315}},    {Frame2, {1845, 2775, 5235, 315}},
      {optProcAll, {0, 30, 1185, 255}},     {optProcSub, {1185, 30, 795, 255}},   {optProcFunc, {1980, 30, 1125, 255}},
      {optProcProp, {3105, 30, 1170, 255}}, {optProcEvent, {4275, 30, 960, 255}}, {Frame3, {7140, 2775, 3205, 315}},
      {optAllProc, {0, 30, 645, 255}},      {optProcPubl, {645, 30, 870, 255}},   {optProcPriv, {1515, 30, 930, 255}},
      {optProcStat, {2445, 30, 760, 255}},  {Label3, {75, 3195, 1125, 240}},      {lblSub, {1275, 3195, 8650, 200}},
      {Label5, {3150, 1335, 6390, 200}},    {cmGo, {10000, 3150, 345, 330}},      {txtCode, {75, 3510, 10270, 3065}},
      {Frame4, {75, 6635, 1560, 1215}},     {optProj, {120, 150, 1380, 255}},     {optCurMod, {120, 480, 1380, 255}},
      {optSelMod, {120, 810, 1380, 255}},   {Frame6, {1710, 6635, 6180, 1215}},   {cmbSearch, {120, 135, 4515, 315}},
      {cbSearch, {4710, 135, 1350, 315}},   {optFndAll, {120, 525, 1440, 255}},   {optFndCur, {1560, 525, 1545, 255}},
      {optFndSel, {3105, 525, 1620, 255}},  {optGroup, {4725, 525, 1335, 255}},   {Frame5, {120, 840, 5940, 285}},
      {chkWhole, {0, 15, 1440, 255}},       {chkSub, {1440, 15, 1545, 255}},      {chkComnt, {2985, 15, 1620, 255}},
      {cmdMore, {7965, 6725, 735, 345}},    {cmdColor, {7965, 7135, 735, 345}},   {txtClip, {8775, 6725, 1570, 1090}},
      {lstSave, {75, 1635, 1215, 495}},     {txtPrev, {75, 1635, 1215, 315}},
  };
  for (const auto& spot : kPlaces)
    spot.control.Move(spot.place.left, spot.place.top, spot.place.width, spot.place.height);
}

// Components, then their filter, procedures, then their filters, code, then what stands below it.
void frmAddIn::OrderTabs() {
  const std::vector<forms::Control*> kOrder = {
      &lbxComp1,   &lbxComp2,    &txtFind,     &Frame1,      &optFirst,    &optSecond,   &lbxProc1,     &lbxProc2,
      &txtFproc,   &Frame2,      &optProcAll,  &optProcSub,  &optProcFunc, &optProcProp, &optProcEvent, &Frame3,
      &optAllProc, &optProcPubl, &optProcPriv, &optProcStat, &txtCode,     &Frame4,      &optProj,      &optCurMod,
      &optSelMod,  &Frame6,      &cmbSearch,   &optFndAll,   &optFndCur,   &optFndSel,   &optGroup,     &Frame5,
      &chkWhole,   &chkSub,      &chkComnt,    &cmdMore,     &txtClip};
  int index = 0;
  for (forms::Control* control : kOrder) control->SetTabIndex(index++);
}

// A window that is loaded again comes up as it was designed.
void frmAddIn::ResetToDesign() {
  SetWhile noFills(busy);
  SetWhile noPairs(noPairEvent);
  lbxComp = &lbxComp1;
  lbxProc = &lbxProc1;
  pair = 0;
  ForgetChoices();
  initDone = keepFilters = skipGlobals = goMode = toProcStart = designerFromRow = wasMinimised = false;
  SetCaption("Corvane V 1.0");
  Move(Left(), Top(), 10800, 9600);
  PlaceControls();
  ResetTexts();
  ResetOptions();
}

void frmAddIn::ResetTexts() {
  for (forms::ComboBox* list : {&lbxComp1, &lbxComp2}) {
    list->Clear();
    list->SetText("Declarations");
  }
  for (forms::ListBox* list : {&lbxProc1, &lbxProc2, &lstSave}) list->Clear();
  for (forms::TextBox* box : {&txtFind, &txtFproc, &txtClip}) box->SetText("");
  txtPrev.SetText("Text1");
  lblSub.SetCaption("");
  Label5.SetCaption("");
  txtCode.Clear();
  txtCode.ColorOff = false;
  cmdColor.SetCaption("Off");
  cmdMore.SetCaption("Max");
}

void frmAddIn::ResetOptions() {
  for (forms::OptionButton* option : {&optFirst, &optProcAll, &optAllProc, &optProj, &optFndAll})
    option->SetValue(true);
  for (forms::CheckBox* box : {&chkWhole, &chkSub, &chkComnt}) box->SetValue(forms::vbUnchecked);
  for (forms::Control* first : {static_cast<forms::Control*>(&lbxComp1), static_cast<forms::Control*>(&lbxProc1),
                                static_cast<forms::Control*>(&txtCode), static_cast<forms::Control*>(&cmGo)})
    first->SetVisible(true);
  lbxComp2.SetVisible(false);
  lbxProc2.SetVisible(false);
  CoverLists(false);
}

}  // namespace corvane::explorer
