// The search of the project's code: its box, its options, its hits as rows of the procedures.
#include "explorer/frm_add_in.h"
#include "explorer/project_access.h"
#include "explorer/rows.h"
#include "explorer/search_module.h"
#include "explorer/set_while.h"
#include "forms/types.h"
#include "runtime/strings.h"

namespace corvane::explorer {

using namespace runtime;
using host::Ref;

namespace {

constexpr char kNoModule[] = "Selected CodeModule is not available";
constexpr char kNoText[] =
    "You must enter String or choose Project Title\r\n"
    "from the ComboBox";
constexpr long kWholeProject = 2, kActiveModule = 3;
constexpr long kLatestTexts = 7, kShortestRemembered = 2;
constexpr char kOtherProject[] = "_";

}  // namespace

void frmAddIn::cbSearch_Click() {
  std::string module;
  {
    SetWhile noEvent(noPairEvent);
    optProj_Click();
    if ((optFndSel.Value() || searchScope == kActiveModule) && searchScope != kWholeProject) {
      module = SelectedModule();
      if (module.empty() && searchScope == 0) return SayInSearch(kNoModule);
    }
    if (cmbSearch.Text().empty()) return SayInSearch(kNoText);
    RememberSearchText(cmbSearch.Text());
    if (optCurMod.Value()) {
      optProj_Click();
      optCurMod.SetValue(false);
    }
  }
  ResetHistoryButtons();
  const std::string component = lbxComp->List(lbxComp->ListIndex());
  const long itemData = lbxComp->ItemData(lbxComp->ListIndex());
  const long fill = BeginFill();
  {
    SetWhile filling(busy);
    goMode = false;
    BeginResults();
    PassOverErrors([&] { ListHits(module); });
    chkSub.SetValue(0);
    services.Screen.SetMousePointer(host::vbDefault);
    lbxComp->SetListIndex(0);
  }
  if (fill != fills) return;
  if (lbxProc->ListCount() > 0) return ShowFirstResult();
  SetWhile filling(busy);
  RestoreComponentRow(component, itemData);
}

void frmAddIn::SayInSearch(const char* message) {
  services.Prompts.MsgBox(message);
}

// The module that the component row names, or among results the procedure row; empty for none.
std::string frmAddIn::SelectedModule() const {
  const std::string text = lbxComp->Text();
  if (Holds(text, kProjectGlobals)) return {};
  return Holds(text, kResult) ? LabelOf(lbxProc->List(lbxProc->ListIndex())) : text;
}

// The latest texts stand behind the first row, the newest first; a text that is there stays where it is.
void frmAddIn::RememberSearchText(const std::string& text) {
  long row = 1;
  while (row < cmbSearch.ListCount() && cmbSearch.List(row) != text) ++row;
  if (row == cmbSearch.ListCount() && Len(text) >= kShortestRemembered) {
    if (row > kLatestTexts) cmbSearch.RemoveItem(cmbSearch.ListCount() - 1);
    cmbSearch.AddItem(cmbSearch.List(cmbSearch.ListCount() - 1));
    for (long last = cmbSearch.ListCount() - 1; last >= 2; --last) cmbSearch.SetList(last, cmbSearch.List(last - 1));
    cmbSearch.SetList(1, text);
  }
  cmbSearch.SetText(text);
}

// Empties the lists for results; what was listed for a component can be returned to.
void frmAddIn::BeginResults() {
  TakeSnapshotOfView();
  hasResults = true;
  lbxComp->Clear();
  lbxProc->Clear();
  txtCode.Clear();
  lbxComp->AddItem(kResult);
  lbxComp->SetItemData(lbxComp->NewIndex(), 0);
  services.Screen.SetMousePointer(host::vbHourglass);
}

// [module] empty: the options tell. Positions count on from project to project.
void frmAddIn::ListHits(std::string module) {
  const Ref<host::VBProjects> projects = Object(VBInstance).VBProjects();
  if (optGroup.Value() && Object(projects).Count() < 2) optFndAll.SetValue(true);
  const bool group = optGroup.Value();
  const std::string narrowed = ModuleToSearch();
  if (module.empty()) module = narrowed;
  const std::string active = ActiveProject(VBInstance)->Name();
  currentComponent = 0;
  for (const Ref<host::VBProject>& project : host::Each(projects)) {
    const std::string name = project->Name();
    if (!group && name != active) continue;
    for (const Ref<host::VBComponent>& component : host::Each(project->VBComponents())) {
      ++currentComponent;
      PassOverErrors([&] { ListHitsOf(Object(component), module, group ? name : std::string()); });
    }
  }
}

// The module that the options and the code view narrow the search to; empty for all. Error 91 without a code pane.
std::string frmAddIn::ModuleToSearch() {
  const bool narrowed = !optFndAll.Value() && !optGroup.Value();
  const bool ofPane = searchScope == kActiveModule || (searchScope == 0 && narrowed);
  return ofPane ? Object(ActiveModule(VBInstance)).Name() : std::string();
}

// [project] is named in the rows unless it is empty.
void frmAddIn::ListHitsOf(host::VBComponent& component, const std::string& only, const std::string& project) {
  if (!HasCode(component)) return;
  const Ref<host::CodeModule> code = component.CodeModule();
  host::CodeModule& module = Object(code);
  std::string label = module.Name();
  if (!only.empty() && label != only) return;
  if (!project.empty() && !label.empty()) label = kOtherProject + project + "." + label;
  const ModuleSearch search{.text = cmbSearch.Text(),
                            .wholeWord = chkWhole.Value() == 1,
                            .headersOnly = chkSub.Value() == 1,
                            .withComments = chkComnt.Value() != 0};
  SearchModule(module, search,
               [&](long line, const std::string& text, long number) { AddProcedureText(text, line, label, number); });
}

void frmAddIn::ShowFirstResult() {
  optCurMod.SetValue(false);
  optProj.SetValue(false);
  PassOverErrors([&] { lbxProc->SetListIndex(0); });  // a row of another project may lead nowhere
  Focus(*lbxProc);
}

// Nothing was found: the row of before is the only one.
void frmAddIn::RestoreComponentRow(const std::string& text, long itemData) {
  if (text.empty()) return;
  lbxComp->Clear();
  lbxComp->AddItem(text);
  lbxComp->SetItemData(lbxComp->NewIndex(), itemData);
  lbxComp->SetListIndex(0);
}

void frmAddIn::cmbSearch_KeyPress(int& key) {
  if (key == forms::vbKeyEscape) Leave();
  if (key != forms::vbKeyReturn) return;
  key = 0;
  cbSearch.Click();
}

void frmAddIn::cmbSearch_Click() {
  if (cmbSearch.ListIndex() >= 0) optFndAll.SetValue(true);
}

void frmAddIn::mnuSearchMod_Click() {
  cmbSearch.SetText(LabelOf(lbxProc->List(lbxProc->ListIndex())));
  chkWhole.SetValue(1);
  chkSub.SetValue(0);
  optFndAll.SetValue(true);
  cbSearch.Click();
}

}  // namespace corvane::explorer
