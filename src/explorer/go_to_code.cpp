// From the explorer into the environment: to a line of code, to a designer.
#include "explorer/find_line_near.h"
#include "explorer/frm_add_in.h"
#include "explorer/project_access.h"
#include "explorer/rows.h"
#include "runtime/strings.h"

namespace corvane::explorer {

using namespace runtime;
using host::ComponentType;
using host::Ref;

namespace {

constexpr char kTitleChosen[] = "Don't select \"Standart Module\" line. It's a title";
constexpr char kNoDesigner[] =
    "Current component has not a designer.\r\n"
    "Designer is not available.";
constexpr char kPreviousPoint[] = "<Previous point>";

}  // namespace

long frmAddIn::GoToCode() {
  bool going = std::exchange(goMode, false);
  bool globals = IsGlobalsText();
  if (globals && IsTitleOfModule(txtCode.List(txtCode.ListIndex()))) {
    if (going) SayTitleChosen();
    return 0;
  }
  long index = 0, line = 0;
  Ref<host::CodeModule> module = globals ? ModuleOfTitleAbove(index, line) : ModuleOfRow(index, line);
  if (module && commentMode)
    CommentAt(*module, line);
  else if (going && module)
    GoTo(*module, line);
  return index;
}

// Whether the code view shows the declarations of all standard modules.
bool frmAddIn::IsGlobalsText() const {
  return lbxComp->List(lbxComp->ListIndex()) == kProjectGlobals && lbxProc->List(lbxProc->ListIndex()) == kDeclarations;
}

// The standard module whose title stands above the selected code row; [line] counts from the title.
Ref<host::CodeModule> frmAddIn::ModuleOfTitleAbove(long& index, long& line) {
  long title = txtCode.ListIndex();
  while (title > 0 && !IsTitleOfModule(txtCode.List(title))) --title;
  if (title == 0) return nullptr;
  Ref<host::VBComponent> component = FindComponent(VBInstance, ModuleOfTitle(txtCode.List(title)), &index);
  if (!component || component->Type() != ComponentType::StdModule) return nullptr;
  Ref<host::CodeModule> module = component->CodeModule();
  long row = txtCode.ListIndex();
  line = FindLineNear(*module, row - title, txtCode.List(row), lblSub.Caption());
  return module;
}

// The module of the procedure row. The code rows carry no numbers: the line is reckoned from the row's line and the
// distance of the code row from the first one with code, and then looked for by its text.
Ref<host::CodeModule> frmAddIn::ModuleOfRow(long& index, long& line) {
  std::string row = lbxProc->List(lbxProc->ListIndex());
  if (lbxComp->ListIndex() < 1 && ComponentInTail(row) < 0 && !IsBookmark(row)) return nullptr;
  index = ComponentOfRow();
  if (index < 1) return nullptr;
  Ref<host::CodeModule> module = Object(commentMode ? ComponentToWrite() : ComponentAt(row, index)).CodeModule();
  line = std::max(lbxProc->ItemData(lbxProc->ListIndex()), 1L);
  if (toProcStart) return module;
  long codeRow = txtCode.ListIndex();
  long offset = codeRow - firstCodeRow + 1;
  line = FindLineNear(*module, std::max(line + offset - 1, 1L), txtCode.List(codeRow), lblSub.Caption());
  return module;
}

void frmAddIn::GoTo(host::CodeModule& module, long line) {
  RecordCurrentPoint();
  RememberPreviousPoint();
  Ref<host::CodePane> pane = module.CodePane();
  Object(pane).SetSelection({line, 1, line, 1});
  pane->Show();
}

void frmAddIn::RememberPreviousPoint() {
  Ref<host::CodePane> pane = Object(VBInstance).ActiveCodePane();
  if (pane) previousPoint = BookmarkRow(kPreviousPoint, pane->CodeModule()->Name(), pane->GetSelection().start_line);
}

void frmAddIn::cmGo_Click() {
  std::string name = DesignerName();
  designerFromRow = false;
  bool opened = false;
  if (!name.empty()) PassOverErrors([&] { opened = OpenDesigner(name); });
  if (!opened) SayNoDesigner();
}

void frmAddIn::SayNoDesigner() {
  services.Prompts.MsgBox(kNoDesigner);
}

void frmAddIn::SayTitleChosen() {
  services.Prompts.MsgBox(kTitleChosen);
}

// The chosen component; in the lists of the whole project that which the procedure row names in front of its colon.
std::string frmAddIn::DesignerName() {
  std::string name = lbxComp->List(lbxComp->ListIndex());
  if (name == kProjectGlobals || name == kResult || designerFromRow)
    name = LabelOf(lbxProc->List(lbxProc->ListIndex()));
  return name;
}

bool frmAddIn::OpenDesigner(const std::string& name) {
  Ref<host::VBComponent> component = FindComponent(VBInstance, name);
  if (!component || component->Type() == ComponentType::StdModule || component->Type() == ComponentType::ClassModule)
    return false;
  Object(component->DesignerWindow()).SetVisible(true);
  Object(component->DesignerWindow()).SetFocus();
  return true;
}

}  // namespace corvane::explorer
