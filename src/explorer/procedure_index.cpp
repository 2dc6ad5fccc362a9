// The list of procedures: its rows, its filters, its keys.
#include "explorer/frm_add_in.h"
#include "explorer/project_access.h"
#include "explorer/rows.h"
#include "explorer/set_while.h"
#include "forms/types.h"
#include "runtime/strings.h"

namespace corvane::explorer {

using namespace runtime;

void frmAddIn::FillProcedureList(host::CodeModule& module) {
  ProcedureFilter filter = FilterInForce();
  int pointer = services.Screen.MousePointer();
  PassOverErrors([&] {
    lbxProc->SetListIndex(0);
    services.Screen.SetMousePointer(host::vbHourglass);
    ScanProcedures(module, filter, [this](long line, const std::string& text) { AddProcedureText(text, line); });
  });
  services.Screen.SetMousePointer(pointer);
  if (lbxProc->ListCount() > 0) lbxProc->SetListIndex(0);
}

// The name filter serves for one scan.
ProcedureFilter frmAddIn::FilterInForce() {
  ProcedureFilter filter;
  if (optProcSub.Value()) filter.kind = ProcedureKind::Subs;
  if (optProcFunc.Value()) filter.kind = ProcedureKind::Functions;
  if (optProcProp.Value()) filter.kind = ProcedureKind::Properties;
  if (optProcEvent.Value()) filter.kind = ProcedureKind::Events;
  if (optProcPubl.Value()) filter.visibility = Visibility::Public;
  if (optProcPriv.Value()) filter.visibility = Visibility::Private;
  if (optProcStat.Value()) filter.visibility = Visibility::Static;
  filter.name = txtFproc.Text();
  txtFproc.SetText("");
  return filter;
}

void frmAddIn::AddProcedureRow(host::CodeModule& module, long line, const std::string& label, long number) {
  AddProcedureText(module.Lines(line, 1), line, label, number);
}

void frmAddIn::AddProcedureText(const std::string& text, long line, const std::string& label, long number) {
  std::string row = LTrim(text);
  if (Len(label) > 1) row = label + kLabelEnd + (number < 0 ? "" : Format(static_cast<double>(number), "00#   ")) + row;
  AddRow(LTrim(row) + TailOf(currentComponent), line);
}

void frmAddIn::AddRow(const std::string& text, long itemData) {
  lbxProc->AddItem(text);
  lbxProc->SetItemData(lbxProc->NewIndex(), itemData);
}

// A click on a filter lists again what is listed.
void frmAddIn::FilterProcedures() {
  SetWhile keeping(keepFilters);
  if (!busy) lbxComp_Click();
}

// A press on a filter that is chosen already lists again; the press that chooses it has done so by its Click.
void frmAddIn::BindFilter(forms::OptionButton& option) {
  option.MouseDown = [this](int, int, forms::Twips, forms::Twips) { filterClicked = false; };
  option.MouseUp = [this, &option](int, int, forms::Twips, forms::Twips) {
    if (option.Value() && !std::exchange(filterClicked, false)) FilterProcedures();
  };
  option.Click = [this, &option] {
    filterClicked = true;
    if (std::exchange(noOptionEvent, false)) return;
    if (&option == &optAllProc) return optAllProc_Click();
    if (&option == &optProcEvent) return optProcEvent_Click();
    FilterProcedures();
  };
}

void frmAddIn::optAllProc_Click() {
  if (!optProcEvent.Value() && !optProcAll.Value())
    optProcAll.SetValue(true);
  else
    FilterProcedures();
}

// Event handlers are private by habit: another visibility would hide them.
void frmAddIn::optProcEvent_Click() {
  {
    SetWhile noEvent(noOptionEvent);
    optAllProc.SetValue(true);
  }
  FilterProcedures();
}

void frmAddIn::txtFproc_KeyPress(int key) {
  if (key == forms::vbKeyReturn) lbxComp_Click();
}

void frmAddIn::lbxProc_DblClick() {
  if (lbxComp->List(lbxComp->ListIndex()) == kProjectGlobals && lbxProc->List(lbxProc->ListIndex()) == kDeclarations)
    return;
  SetWhile start(toProcStart);
  goMode = true;
  GoToCode();
}

void frmAddIn::lbxProc_KeyPress(int key) {
  if (key == forms::vbKeyReturn) lbxProc_DblClick();
  if (key == forms::vbKeyEscape) Leave();
}

}  // namespace corvane::explorer
