// The window itself: loading, activation, unloading, keys, the toolbar.
#include "explorer/frm_add_in.h"
#include "explorer/project_access.h"
#include "explorer/search_module.h"
#include "runtime/strings.h"

namespace corvane::explorer {

using namespace runtime;

namespace {

constexpr long kShortestHelpPath = 12;
constexpr forms::Twips kMenuX = 3500, kMenuY = 2000;

}  // namespace

void frmAddIn::Display() {
  bool wasLoaded = loadedOnce;
  Show();
  DoEvents();
  if (wasLoaded && IsLoaded()) PopupMenu(mnuIDE, kMenuX, kMenuY);
}

void frmAddIn::BindEvents() {
  Load = [this] { Form_Load(); };
  Activate = [this] { Form_Activate(); };
  Resize = [this] { Form_Resize(); };
  UnloadEvent = [this](bool&) { Form_Unload(); };
  KeyDown = [this](int& key, int shift) { Form_KeyDown(key, shift); };
  Click = [this] { searching = false; };
  BindComponentEvents();
  BindProcedureEvents();
  BindCodeEvents();
  BindSearchEvents();
}

void frmAddIn::BindComponentEvents() {
  for (forms::ComboBox* list : {&lbxComp1, &lbxComp2}) {
    list->Click = [this] { lbxComp_Click(); };
    list->GotFocus = [this] { lbxComp_GotFocus(); };
    list->KeyPress = [this](int& key) { lbxComp_KeyPress(key); };
  }
  axAllComp.Click = [this] { ListKind(0); };
  axForms.Click = [this] { ListKind(1); };
  axControls.Click = [this] { ListKind(2); };
  axModules.Click = [this] { ListKind(3); };
  axClasses.Click = [this] { ListKind(4); };
  axLastComp.Click = [this] { RunTool(&frmAddIn::ShowFavoriteDesigners); };
  txtFind.KeyPress = [this](int& key) { txtFind_KeyPress(key); };
  optProj.Click = [this] { optProj_Click(); };
  optCurMod.Click = [this] { optCurMod_Click(); };
  optSelMod.Click = [this] { optSelMod_Click(); };
  optFirst.Click = [this] { SwitchPair(0); };
  optSecond.Click = [this] { SwitchPair(1); };
}

void frmAddIn::BindProcedureEvents() {
  for (forms::ListBox* list : {&lbxProc1, &lbxProc2}) {
    list->Click = [this] { lbxProc_Click(); };
    list->DblClick = [this] { lbxProc_DblClick(); };
    list->KeyPress = [this](int& key) { lbxProc_KeyPress(key); };
    list->KeyDown = [this](int& key, int shift) { lbxProc_KeyDown(key, shift); };
    list->MouseDown = [this](int button, int, forms::Twips x, forms::Twips y) { lbxProc_MouseDown(button, x, y); };
  }
  for (forms::OptionButton* option : {&optProcAll, &optProcSub, &optProcFunc, &optProcProp, &optProcEvent, &optAllProc,
                                      &optProcPubl, &optProcPriv, &optProcStat})
    BindFilter(*option);
  cmdPrev.Click = [this] { cmdPrev_Click(); };
  cmdNext.Click = [this] { cmdNext_Click(); };
  txtFproc.KeyPress = [this](int& key) { txtFproc_KeyPress(key); };
}

void frmAddIn::BindCodeEvents() {
  txtCode.Click = [this] { searching = false; };
  txtCode.TextDone = [this] { txtCode_TextDone(); };
  txtCode.DblClick = [this] { txtCode_DblClick(); };
  txtCode.GoProc = [this](const std::string& text) { txtCode_GoProc(text); };
  txtCode.Search = [this](const std::string& text) { txtCode_Search(text); };
  txtCode.UpdateString = [this](long row, const std::string& text) { ReplaceCodeLine(row, text); };
  txtCode.ColorOnOff = [this](long row) { ReloadCode(row); };
  txtCode.ClipBook = [this] { ShowClipBook(); };
  txtCode.CodeLostFocus = [this](long row) { txtCode_CodeLostFocus(row); };
  txtCode.EscapeClicked = [this] { txtCode_EscapeClicked(); };
  cmGo.Click = [this] { cmGo_Click(); };
  cmdMore.Click = [this] { cmdMore_Click(); };
  cmdColor.Click = [this] { cmdColor_Click(); };
}

void frmAddIn::BindSearchEvents() {
  cbSearch.Click = [this] { cbSearch_Click(); };
  cmbSearch.Click = [this] { cmbSearch_Click(); };
  cmbSearch.KeyPress = [this](int& key) { cmbSearch_KeyPress(key); };
}

void frmAddIn::Form_Load() {
  ResetToDesign();
  Move(200, 200);
  cmbSearch.Clear();
  cmbSearch.AddItem(kProjectTitle);
  cmbSearch.SetText(CurrentWord(VBInstance));
  for (int i = 0; i < kPairs; ++i) {
    pairLine[i] = 0;
    pairProj[i] = true;
    pairCurMod[i] = false;
  }
  loadedOnce = true;
  kindFilter = 0;
  std::string& help = services.App.HelpFile;
  if (Len(help) < kShortestHelpPath) help = services.App.Path + "\\" + help;
}

void frmAddIn::Form_Activate() {
  if (activated) return;
  activated = true;
  ForgetHistory();
  snapshots.Clear();
  hasResults = false;
  cmdPrev.SetEnabled(false);
  cmdNext.SetEnabled(false);
  lbxProc = &lbxProc1;
  lbxComp = &lbxComp1;
  lbxComp2.Move(lbxComp1.Left(), lbxComp1.Top(), lbxComp1.Width(), lbxComp2.Height());
  lbxProc2.Move(lbxProc1.Left(), lbxProc1.Top(), lbxProc1.Width(), lbxProc1.Height());
  ShowToolStates();
  initDone = false;
  FillComponentList();
}

void frmAddIn::Form_Unload() {
  activated = false;
  loadedOnce = false;
  navigating = false;
  ForgetChoices();
  ForgetPlaces();
}

void frmAddIn::ForgetChoices() {
  ++fills;
  pendingComponent.clear();
  ForgetComponentRow();
}

// The buttons of the surface take no focus: these keys stand for them.
void frmAddIn::Form_KeyDown(int& key, int shift) {
  using namespace forms;
  const struct {
    int key, shift;
    void (*act)(frmAddIn&);
  } kKeys[] = {
      {vbKey0 + 1, vbAltMask, [](frmAddIn& form) { form.ListKind(0); }},
      {vbKey0 + 2, vbAltMask, [](frmAddIn& form) { form.ListKind(1); }},
      {vbKey0 + 3, vbAltMask, [](frmAddIn& form) { form.ListKind(2); }},
      {vbKey0 + 4, vbAltMask, [](frmAddIn& form) { form.ListKind(4); }},
      {vbKey0 + 5, vbAltMask, [](frmAddIn& form) { form.ListKind(3); }},
      {vbKey0 + 6, vbAltMask, [](frmAddIn& form) { form.axLastComp.Click(); }},
      {vbKeyLeft, vbAltMask, [](frmAddIn& form) { form.RunTool(&frmAddIn::StepToPrevious); }},
      {vbKeyRight, vbAltMask, [](frmAddIn& form) { form.RunTool(&frmAddIn::StepToNext); }},
      {vbKeyHome, vbAltMask, [](frmAddIn& form) { form.RunTool(&frmAddIn::StepToFirst); }},
      {vbKeyEnd, vbAltMask, [](frmAddIn& form) { form.RunTool(&frmAddIn::StepToLast); }},
      {vbKeyPageUp, vbAltMask,
       [](frmAddIn& form) {
         if (form.cmdPrev.Enabled()) form.RunTool(&frmAddIn::cmdPrev_Click);
       }},
      {vbKeyPageDown, vbAltMask,
       [](frmAddIn& form) {
         if (form.cmdNext.Enabled()) form.RunTool(&frmAddIn::cmdNext_Click);
       }},
      {vbKeyA + 19, vbCtrlMask, [](frmAddIn& form) { form.OpenToolsMenu(); }},  // Ctrl+T
      {vbKeyF5, 0, [](frmAddIn& form) { form.Refresh(); }},
      {vbKeyF1 + 6, 0, [](frmAddIn& form) { form.txtCode.DblClick(); }},
      {vbKeyF1 + 6, vbShiftMask, [](frmAddIn& form) { form.cmGo_Click(); }},
      {vbKeyF1 + 10, 0, [](frmAddIn& form) { form.cmdMore_Click(); }},
      {vbKeyF1 + 10, vbShiftMask, [](frmAddIn& form) { form.cmdColor_Click(); }},
  };
  for (const auto& entry : kKeys)
    if (key == entry.key && shift == entry.shift) {
      key = 0;
      return entry.act(*this);
    }
}

void frmAddIn::Leave() {
  SetVisible(false);
  Object(Object(VBInstance).MainWindow()).SetFocus();
}

// A control cannot take the focus while it or the window is hidden; that ends nothing.
void frmAddIn::Focus(forms::Control& control) {
  PassOverErrors([&] { control.SetFocus(); });
}

}  // namespace corvane::explorer
