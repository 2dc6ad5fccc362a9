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
  if (!PassOverErrors([this] { ListProject(); })) lbxProc->SetVisible(true);
  services.Screen.SetMousePointer(host::vbDefault);
  busy = false;
}

void frmAddIn::ListProject() {
  std::string nameFilter = BeginListing();
  if (!initDone) {
    bool shown = CurrentModule();
    initDone = true;
    if (shown) return lbxProc->SetVisible(true);
    DoEvents();
    nameFilter = BeginListing();
  }
  if (!Holds(Caption(), " (")) SetCaption(Caption() + " ( " + ActiveProject(VBInstance)->FileName() + " )");
  ListComponents(nameFilter);
  services.Screen.SetMousePointer(host::vbDefault);
  ChooseListedRow();
}

// Empties the lists but for their first rows, and takes the name filter out of its box.
std::string frmAddIn::BeginListing() {
  busy = true;
  RememberComponentRow();
  lbxProc->SetVisible(false);
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

void frmAddIn::RememberComponentRow() {
  long row = lbxComp->ListIndex();
  std::string text = lbxComp->List(row);
  if (row < 0 || text == kProjectGlobals || Len(text) < kShortestRow) return;
  currentText = text;
  currentItemData = lbxComp->ItemData(row);
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
  lbxProc->SetVisible(true);
  busy = false;
  if (row == 1) lbxComp_Click();
}

void frmAddIn::ListKind(long kind) {
  kindFilter = kind;
  SetWhile skipping(skipGlobals);
  FillComponentList();
}

void frmAddIn::lbxComp_Click() {
  if (busy) return;
  skipGlobals = false;
  OfferInSearch(lbxComp->List(lbxComp->ListIndex()));
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
  pendingComponent.clear();
}

bool frmAddIn::TakePendingComponent(long& index) {
  chosenRow = lbxComp->ListIndex();
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
  {
    SetWhile filling(busy);
    currentComponent = FindComponentIndex(VBInstance, module->Name());
    lbxProc->Clear();
    AddRow(CurrentDeclarations(currentComponent), 1);
    FillProcedureList(*module);
  }
  lbxProc->SetVisible(true);
  DoEvents();
  lbxProc_Click();
  Focus(*lbxProc);
}

// The declarations and the procedures of the component at [index]; of one that has gone only the empty lists.
void frmAddIn::ShowComponent(long index) {
  SetWhile filling(busy);
  Ref<host::CodeModule> module;
  PassOverErrors([&] { module = Object(ActiveComponents(VBInstance)->Item(index)).CodeModule(); });
  txtCode.Clear();
  PassOverErrors([&] { ShowDeclarations(Object(module)); });
  lbxProc->Clear();
  AddRow(kDeclarations, 0);
  currentComponent = index;
  if (module) FillProcedureList(*module);
  lbxProc->SetVisible(true);
  busy = false;
  Focus(*lbxProc);
}

void frmAddIn::lbxComp_GotFocus() {
  if (lbxComp->ListCount() == 0) return;
  long row = lbxComp->ListIndex();
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
  std::string typed = UCase(Trim(lbxComp->Text()));
  for (long row = 0; row < lbxComp->ListCount(); ++row)
    if (UCase(Trim(lbxComp->List(row))) == typed) return lbxComp->UserSelect(row);
}

void frmAddIn::txtFind_KeyPress(int key) {
  if (key != forms::vbKeyReturn) return;
  ListKind(kAllKinds);
  Focus(*lbxComp);
}

}  // namespace corvane::explorer
  if (row >= 0) chosenRow = row;
  if (busy) return;
  if (lbxComp->ListCount() == 0) return;
  SetWhile restoring(busy);
  lbxComp->SetListIndex(std::clamp(chosenRow, 0L, lbxComp->ListCount() - 1));
