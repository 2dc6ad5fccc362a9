// The keys that open the windows of other tools.
#include "explorer/frm_add_in.h"
#include "explorer/project_access.h"
#include "runtime/strings.h"

namespace corvane::explorer {

using namespace runtime;

namespace {

constexpr long kShortestReference = 2;

}  // namespace

void frmAddIn::SetTools(ToolWindows windows) {
  tools = std::move(windows);
  ShowToolStates();
}

bool frmAddIn::CanCopy() const {
  return static_cast<bool>(tools.CopyProperties);
}
bool frmAddIn::CanPaste() const {
  return tools.PasteProperties && Len(copiedDesigner) >= kShortestReference;
}
bool frmAddIn::CanDeclare() const {
  return static_cast<bool>(tools.DeclareVar);
}
bool frmAddIn::CanNote() const {
  return static_cast<bool>(tools.ShowNotes);
}
bool frmAddIn::CanMap() const {
  return static_cast<bool>(tools.ShowMap);
}
bool frmAddIn::HasLibrary() const {
  return tools.library != nullptr;
}

void frmAddIn::CopyProperties() {
  ComponentAction(ComponentAct::Copy);
}
void frmAddIn::PasteProperties() {
  ComponentAction(ComponentAct::Paste);
}
void frmAddIn::ShowMap() {
  ComponentAction(ComponentAct::Map);
}

void frmAddIn::ShowNotes() {
  if (!tools.ShowNotes(ActiveProject(VBInstance))) SetVisible(false);
}

void frmAddIn::DeclareAtCaret() {
  RememberCaretLine();
  if (!tools.DeclareVar(ComponentOfPane(), VBInstance)) return;
  PutBookmark();
  Leave();
}

void frmAddIn::mnuIDEDeclare_Click() {
  if (tools.DeclareVar(ComponentOfPane(), VBInstance)) PutBookmark();
}

// Without an active pane the window opens all the same.
long frmAddIn::ComponentOfPane() {
  long component = 0;
  PassOverErrors([&] { component = FindComponentIndex(VBInstance, Object(ActiveModule(VBInstance)).Name()); });
  return component;
}

}  // namespace corvane::explorer
