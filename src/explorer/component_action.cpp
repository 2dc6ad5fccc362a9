// The actions on the current component.
#include "explorer/frm_add_in.h"
#include "explorer/project_access.h"
#include "explorer/rows.h"
#include "runtime/strings.h"

namespace corvane::explorer {

using namespace runtime;
using host::ComponentType;
using host::Ref;

namespace {

constexpr char kBold = '\x02';
constexpr long kShortestName = 2;

bool HasDesigner(host::VBComponent& component) {
  return component.Type() != ComponentType::StdModule && component.Type() != ComponentType::ClassModule;
}

}  // namespace

void frmAddIn::ComponentAction(ComponentAct action) {
  std::optional<std::string> name = CurrentComponentName(action);
  if (!name) return;
  if (Len(*name) < kShortestName) return SayNoDesigner();
  if (action == ComponentAct::Map) return tools.ShowMap(ActiveComponents(VBInstance), lblSub.Caption());
  if (action == ComponentAct::AddToFavorites) return AddFavoriteDesigner(*name);
  std::string newName;
  if (action == ComponentAct::Clone) {
    newName = services.Prompts.InputBox("Type New name for cloning Component \" " + *name + " \"");
    if (Len(newName) < kShortestName) return;
  }
  Ref<host::VBComponent> component = FindComponent(VBInstance, *name);
  if (action == ComponentAct::Clone) {
    if (component) CloneComponent(*component, newName);
    return;
  }
  if (!component || !HasDesigner(*component)) return SayNoDesigner();
  if (action == ComponentAct::Paste) return tools.PasteProperties(*name, copiedDesigner);
  std::string copied = tools.CopyProperties(*name);
  if (Len(copied) >= kShortestName) copiedDesigner = copied;
}

// Nothing: there is no row to take it from. Empty: there is no such component.
std::optional<std::string> frmAddIn::CurrentComponentName(ComponentAct action) {
  if (lblSub.Caption() == kSearchResult) return NameOfResultAbove();
  std::string name = lbxComp->List(lbxComp->ListIndex());
  if (name == kProjectGlobals) name.clear();
  if (name == kResult) name = LabelOf(lbxProc->List(lbxProc->ListIndex()));
  if (!name.empty()) return name;
  PassOverErrors([&] {
    if (action == ComponentAct::Map)
      name = ActiveComponents(VBInstance)->Item(ComponentInTail(lbxProc->List(lbxProc->ListIndex())))->Name();
    else
      name = Object(ActiveModule(VBInstance)).Name();
  });
  return name;
}

std::optional<std::string> frmAddIn::NameOfResultAbove() const {
  for (long row = txtCode.ListIndex(); row >= 1; --row) {
    std::string text = txtCode.List(row);
    long mark = InStr(text, kModuleName);
    if (mark == 0) continue;
    std::string name = Mid(text, mark + Len(kModuleName));
    std::erase(name, kBold);
    return Trim(name);
  }
  return std::nullopt;
}

}  // namespace corvane::explorer
