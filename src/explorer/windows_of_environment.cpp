// What the explorer does to the windows of the environment.
#include <vector>

#include "explorer/frm_add_in.h"
#include "explorer/project_access.h"
#include "runtime/strings.h"

namespace corvane::explorer {

using namespace runtime;
using host::Ref;

namespace {

constexpr long kFewestLetters = 3;  // of a selected component whose designer stays open

}  // namespace

// Without a selected component all code panes are closed.
void frmAddIn::CloseOtherWindows() {
  std::string selected;
  PassOverErrors([&] { selected = Object(Object(VBInstance).SelectedVBComponent()).Name(); });
  PassOverErrors([&] { CloseDesignersBut(Len(selected) >= kFewestLetters ? selected : std::string()); });
  // The collection loses each pane that is closed.
  std::vector<Ref<host::CodePane>> panes;
  for (Ref<host::CodePane> pane : host::Each(Object(VBInstance).CodePanes())) panes.push_back(pane);
  for (const Ref<host::CodePane>& pane : panes)
    PassOverErrors([&] {
      if (Object(Object(pane).CodeModule()).Name() != selected) Object(pane->Window()).Close();
    });
}

void frmAddIn::CloseDesignersBut(const std::string& selected) {
  for (Ref<host::VBComponent> component : host::Each(ActiveComponents(VBInstance))) {
    if (!HasCode(*component) || (!selected.empty() && component->Name() == selected)) continue;
    PassOverErrors([&] {
      if (component->HasOpenDesigner()) Object(component->DesignerWindow()).Close();
    });
  }
}

// The window has no object for its text: keys are the only way.
void frmAddIn::ClearImmediate() {
  Ref<host::Window> window;
  PassOverErrors([&] { window = Object(VBInstance).Windows()->Item("Immediate"); });
  if (!window) return;
  // A hidden window would leave the focus, and so the keys, to another.
  window->SetVisible(true);
  window->SetFocus();
  for (const char* keys : {"^({Home})", "^a", "{Del}"}) services.Loop.SendKeys(keys);
}

}  // namespace corvane::explorer
