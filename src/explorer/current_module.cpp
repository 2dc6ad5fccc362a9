// The mode "Current Code", and the change between the modes.
#include "explorer/frm_add_in.h"
#include "explorer/project_access.h"
#include "explorer/rows.h"
#include "explorer/set_while.h"
#include "runtime/strings.h"

namespace corvane::explorer {

using namespace runtime;
using host::Ref;

namespace {

constexpr char kNoCodePane[] =
    "Use this option when Code Pane is opened.\r\n"
    "Code Module is not available now.";
constexpr long kFarAway = 990000;

}  // namespace

bool frmAddIn::CurrentModule() {
  if (noPairEvent) return false;
  Ref<host::CodeModule> module = ActiveModule(VBInstance);
  if (!module) {
    LeaveCurrentMode();
    return false;
  }
  long caretLine = Object(module->CodePane()).GetSelection().start_line;
  ResetHistoryButtons();
  const long fill = BeginFill();
  {
    SetWhile filling(busy);
    ListModuleAt(*module, caretLine);
  }
  ShowProcedures();
  DoEvents();
  if (fill == fills) lbxProc_Click();
  if (fill == fills) {
    Focus(*lbxProc);
    optFndSel.SetValue(true);
    Focus(txtCode);
  }
  initDone = true;
  return true;
}

void frmAddIn::LeaveCurrentMode() {
  ShowProcedures();
  {
    SetWhile noEvent(noOptionEvent);
    optProj.SetValue(true);
  }
  if (initDone) services.Prompts.MsgBox(kNoCodePane);
  busy = false;
}

void frmAddIn::ListModuleAt(host::CodeModule& module, long caretLine) {
  TakeSnapshotOfView();
  lbxComp->Clear();
  lbxProc->Clear();
  txtCode.Clear();
  std::string name = module.Name();
  lbxComp->AddItem(LTrim(name));
  lbxComp->SetItemData(lbxComp->NewIndex(), 0);
  currentComponent = FindComponentIndex(VBInstance, name);
  AddRow(CurrentDeclarations(currentComponent), 1);
  if (currentComponent < 1) return;
  {
    SetWhile noEvent(noOptionEvent);
    optCurMod.SetValue(true);
  }
  if (caretLine > 0) AddProcedureRow(module, caretLine, kCurrentLine);
  FillProcedureList(module);
  txtCode.Clear();
  lbxComp->SetListIndex(0);
  lbxProc->SetListIndex(0);
  RememberComponentRow();
  if (caretLine > module.CountOfDeclarationLines()) SelectRowNear(caretLine);
}

// The row of the caret's line, else the last one above it.
void frmAddIn::SelectRowNear(long caretLine) {
  long best = 0, distance = kFarAway;
  for (long row = 1; row < lbxProc->ListCount(); ++row) {
    if (Holds(lbxProc->List(row), kCurrentLine)) {
      best = row;
      break;
    }
    long away = caretLine - lbxProc->ItemData(row);
    if (away <= 0 || away >= distance) continue;
    best = row;
    distance = away;
  }
  if (best > 0) lbxProc->SetListIndex(best);
}

void frmAddIn::optProj_Click() {
  if (noOptionEvent || noPairEvent) {
    noOptionEvent = false;
    return;
  }
  SavePendingPoint();
  optFndAll.SetValue(true);
  Focus(*lbxProc);
  FillComponentList();
}

void frmAddIn::optCurMod_Click() {
  if (noOptionEvent || noPairEvent) {
    noOptionEvent = false;
    return;
  }
  {
    SetWhile filling(busy);
    optAllProc.SetValue(true);
    optProcAll.SetValue(true);
  }
  CurrentModule();
}

// The label of a search hit is a module's name: the list then holds just that module and opens it.
void frmAddIn::optSelMod_Click() {
  if (noOptionEvent || noPairEvent) {
    noOptionEvent = false;
    return;
  }
  std::string name = LabelOf(lbxProc->List(lbxProc->ListIndex()));
  if (!name.empty() && !Holds(name, " ")) {
    txtFind.SetText(name);
    cmbSearch.SetText(name);
    return ListKind(0);
  }
  if (optProcAll.Value())
    FilterProcedures();
  else
    optProcAll.SetValue(true);
}

}  // namespace corvane::explorer
