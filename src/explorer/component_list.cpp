// The list of components and what fills it.
#include <algorithm>

#include "explorer/frm_add_in.h"
#include "explorer/project_access.h"
#include "explorer/rows.h"
#include "explorer/set_while.h"
#include "forms/types.h"
#include "runtime/strings.h"

namespace corvane::explorer {

using namespace runtime;
using host::ComponentType;
using host::Ref;

namespace {

enum KindFilter : long { kAllKinds = 0, kForms = 1, kUserControls = 2, kModules = 3, kClasses = 4 };
constexpr long kFewestLines = 2, kShortestRow = 3;

bool BeginsWithBlank(const std::string& text) {
  return BeginsWith(text, " ");
}

}  // namespace

void frmAddIn::FillComponentList() {
  if (!PassOverErrors([this] { ListProject(); })) ShowProcedures();
  services.Screen.SetMousePointer(host::vbDefault);
  busy = false;
}

void frmAddIn::ListProject() {
  std::string nameFilter = BeginListing();
  if (!initDone) {
    bool shown = CurrentModule();
    initDone = true;
    if (shown) return ShowProcedures();
    const long fill = fills;
    DoEvents();
    if (fill != fills) return;
    nameFilter = BeginListing();
  }
  if (!Holds(Caption(), " (")) SetCaption(Caption() + " ( " + ActiveProject(VBInstance)->FileName() + " )");
  const long fill = fills;
  ListComponents(nameFilter);
  if (fill != fills) return;
  services.Screen.SetMousePointer(host::vbDefault);
  ChooseListedRow();
}

// Empties the lists but for their first rows, and takes the name filter out of its box.
std::string frmAddIn::BeginListing() {
  BeginFill();
  TakeSnapshotOfView();
  HideProcedures();
  if (!keepFilters) {
    optProcAll.SetValue(true);
    optAllProc.SetValue(true);
  }
  lbxComp->Clear();
  lbxProc->Clear();
  txtCode.Clear();
  lbxComp->AddItem(kProjectGlobals);
  lbxComp->SetItemData(lbxComp->NewIndex(), 0);
  AddRow(kDeclarations, 0);
  services.Screen.SetMousePointer(host::vbHourglass);
  std::string nameFilter = UCase(txtFind.Text());
  txtFind.SetText("");
  SetWhile noEvent(noOptionEvent);
  optProj.SetValue(true);
  return nameFilter;
}

// What was being filled so far sees it behind its yield, and ends.
long frmAddIn::BeginFill() {
  busy = true;
  return ++fills;
}

// A hidden control loses the focus; it gets it back when it is shown again.
void frmAddIn::HideProcedures() {
  proceduresHadFocus = proceduresHadFocus || lbxProc->HasFocus();
  lbxProc->SetVisible(false);
}

void frmAddIn::ShowProcedures() {
  lbxProc->SetVisible(true);
  if (std::exchange(proceduresHadFocus, false)) Focus(*lbxProc);
}

// Notes the row that the lists belong to; false, and nothing is noted, where that is the project or a short name.
bool frmAddIn::RememberComponentRow() {
  ForgetComponentRow();
  long row = lbxComp->ListIndex();
  std::string text = lbxComp->List(row);
  if (row < 0 || text == kProjectGlobals || Len(text) < kShortestRow) return false;
  currentText = text;
  currentItemData = lbxComp->ItemData(row);
  return true;
}

void frmAddIn::ForgetComponentRow() {
  currentText.clear();
  currentItemData = 0;
}

void frmAddIn::ListComponents(const std::string& nameFilter) {
  std::string text;
  Ref<host::VBComponents> components = ActiveComponents(VBInstance);
  long index = 0;
  for (Ref<host::VBComponent> component : host::Each(*components)) {
    ++index;
    if (!HasCode(*component)) continue;
    Ref<host::CodeModule> module = component->CodeModule();
    if (component->Type() == ComponentType::StdModule && !skipGlobals) AddGlobals(*module, index, text);
    if (!PassesKindFilter(component->Type()) || module->CountOfLines() < kFewestLines) continue;
    std::string name = module->Name();
    if (!nameFilter.empty() && !Holds(UCase(name), nameFilter)) continue;
    lbxComp->AddItem(LTrim(name));
    lbxComp->SetItemData(lbxComp->NewIndex(), index);
  }
  lblSub.SetCaption(LTrim(kProjectGlobals));
  ShowRaw(text);
}

// The declarations and the procedures of a standard module, where it has declarations.
void frmAddIn::AddGlobals(host::CodeModule& module, long index, std::string& text) {
  long declarations = module.CountOfDeclarationLines();
  if (declarations == 0) return;
  currentComponent = index;
  text += TitleOfModule(module.Name()) + kCrLf + module.Lines(1, declarations) + kCrLf;
  FillProcedureList(module);
}

bool frmAddIn::PassesKindFilter(ComponentType type) const {
  switch (kindFilter) {
    case kForms:
      return type == ComponentType::VBForm || type == ComponentType::VBMDIForm;
    case kUserControls:
      return type == ComponentType::UserControl;
    case kModules:
      return type == ComponentType::StdModule;
    case kClasses:
      return type == ComponentType::ClassModule;
    default:
      return true;
  }
}

// A filter that leaves one component opens it at once, and a kind button opens the first of its kind.
void frmAddIn::ChooseListedRow() {
  long rows = lbxComp->ListCount();
  long row = rows == 2 || (skipGlobals && rows >= 3) ? 1 : 0;
  lbxComp->SetListIndex(row);
  lbxProc->SetListIndex(0);
  ForgetComponentRow();
  ShowProcedures();
  busy = false;
  if (row == 1) lbxComp_Click();
}

void frmAddIn::ListKind(long kind) {
  kindFilter = kind;
  pendingComponent.clear();
  SetWhile skipping(skipGlobals);
  FillComponentList();
}

void frmAddIn::lbxComp_Click() {
  chosenRow = lbxComp->ListIndex();
  if (busy) return;
  skipGlobals = false;
  OfferInSearch(lbxComp->List(lbxComp->ListIndex()));
  ResetHistoryButtons();
  if (optCurMod.Value()) return ListActiveModule();
  long index = 0;
  if (TakePendingComponent(index)) return ShowComponent(index);
  if (lbxComp->ListIndex() <= 0) return FillComponentList();
  {
    SetWhile filling(busy);
    optProcAll.SetValue(true);
    optAllProc.SetValue(true);
  }
  ShowComponent(lbxComp->ItemData(lbxComp->ListIndex()));
}

// The search box always offers the name that was chosen last.
void frmAddIn::OfferInSearch(const std::string& rowText) {
  if (!rowText.empty() && !BeginsWithBlank(rowText)) cmbSearch.SetText(rowText);
}

bool frmAddIn::TakePendingComponent(long& index) {
  if (pendingComponent.empty()) return false;
  std::string name = std::exchange(pendingComponent, {});
  index = FindComponentIndex(VBInstance, name);
  if (index < 1) return false;
  lbxComp->SetList(0, name);
  lbxComp->SetText(name);
  return true;
}

void frmAddIn::ListActiveModule() {
  Ref<host::CodeModule> module = ActiveModule(VBInstance);
  if (!module) return;
  const long fill = BeginFill();
  {
    SetWhile filling(busy);
    currentComponent = FindComponentIndex(VBInstance, module->Name());
    lbxProc->Clear();
    AddRow(CurrentDeclarations(currentComponent), 1);
    FillProcedureList(*module);
  }
  ShowProcedures();
  DoEvents();
  if (fill != fills) return;
  lbxProc_Click();
  Focus(*lbxProc);
}

// The declarations and the procedures of the component at [index]; of one that has gone only the empty lists.
void frmAddIn::ShowComponent(long index) {
  SetWhile filling(busy);
  const long fill = BeginFill();
  TakeSnapshot();
  Ref<host::CodeModule> module;
  PassOverErrors([&] { module = Object(ActiveComponents(VBInstance)->Item(index)).CodeModule(); });
  txtCode.Clear();
  PassOverErrors([&] { ShowDeclarations(Object(module)); });
  if (fill != fills) return;
  lbxProc->Clear();
  AddRow(kDeclarations, 0);
  currentComponent = index;
  if (module) FillProcedureList(*module);
  RememberComponentRow();
  ShowProcedures();
  busy = false;
  Focus(*lbxProc);
}

void frmAddIn::lbxComp_GotFocus() {
  if (lbxComp->ListCount() == 0) return;
  long row = lbxComp->ListIndex();
  if (row >= 0) chosenRow = row;
  std::string text = lbxComp->List(row);
  bool globals = text == kProjectGlobals;
  currentText = globals ? std::string() : text;
  currentItemData = globals ? 0 : lbxComp->ItemData(row);
  OfferInSearch(text);
}

// A name that was typed chooses its row; one that is in no row gives way to the row that was chosen.
void frmAddIn::lbxComp_KeyPress(int& key) {
  if (key != forms::vbKeyReturn) return;
  key = 0;
  if (busy) return;
  std::string typed = UCase(Trim(lbxComp->Text()));
  for (long row = 0; row < lbxComp->ListCount(); ++row)
    if (UCase(Trim(lbxComp->List(row))) == typed) return lbxComp->UserSelect(row);
  if (lbxComp->ListCount() == 0) return;
  SetWhile restoring(busy);
  lbxComp->SetListIndex(std::clamp(chosenRow, 0L, lbxComp->ListCount() - 1));
}

void frmAddIn::txtFind_KeyPress(int key) {
  if (key != forms::vbKeyReturn) return;
  ListKind(kAllKinds);
  Focus(*lbxComp);
}

}  // namespace corvane::explorer
