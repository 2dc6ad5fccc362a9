// The code view: what a row of the procedures shows in it, its size and its colours.
#include "explorer/find_line_near.h"
#include "explorer/frm_add_in.h"
#include "explorer/project_access.h"
#include "explorer/rows.h"
#include "explorer/set_while.h"
#include "runtime/strings.h"

namespace corvane::explorer {

using namespace runtime;
using host::Ref;

namespace {

constexpr long kFirstProcedureLine = 4, kBlockLines = 250, kUnknownLines = 550, kLinesBehind = 5, kFewestLines = 3;
constexpr long kBlockHead = 3, kBlockFrom = 40, kLongestHead = 65;

bool IsCommentOrBlank(const std::string& row) {
  std::string text = UCase(Trim(row));
  return text.empty() || BeginsWith(text, "'") || text == "REM" || BeginsWith(text, "REM ");
}

// What stands in front of the row's code; empty where nothing does.
std::string HitLabel(const std::string& row) {
  return runtime::Left(row, std::max(InStr(row, kLabelEnd) - 1, 0L));
}

Ref<host::VBComponent> ComponentOfName(host::VBComponents& components, const std::string& name) {
  for (Ref<host::VBComponent> component : host::Each(components))
    if (HasCode(*component) && component->Name() == name) return component;
  return nullptr;
}

}  // namespace

void frmAddIn::lbxProc_Click() {
  searching = false;
  if (busy) return;
  savedPosition = 0;
  firstLineShown = 0;
  viewedModule.clear();
  navigating ? RestoreHistoryPoint() : ResetHistoryButtons();
  long index = ComponentOfRow();
  if (index < 1) return;
  std::string row = lbxProc->List(lbxProc->ListIndex());
  Ref<host::CodeModule> module = Object(ComponentAt(row, index)).CodeModule();
  long at = lbxProc->ListIndex(), line = lbxProc->ItemData(at);
  if (at == 0 && row == kDeclarations) return ShowDeclarations(*module);
  std::string title = ShownText(row);
  if (line >= kFirstProcedureLine) {
    long moved = FindLineNear(*module, -line, row, title);
    if (moved >= 1 && moved != line) lbxProc->SetItemData(at, line = moved);
    if (ShowProcedure(*module, line)) return;
  }
  ShowBlock(*module, line, title);
}

// Position of the component that the selected row belongs to; below 1 when it belongs to none. The first row of the
// project lists the project again.
long frmAddIn::ComponentOfRow() {
  std::string row = lbxProc->List(lbxProc->ListIndex());
  long inTail = ComponentInTail(row);
  if (lbxComp->ListIndex() >= 1) return inTail >= 0 ? inTail : lbxComp->ItemData(lbxComp->ListIndex());
  if (IsBookmark(row)) return ComponentOfBookmark(ReadBookmark(row));
  if (inTail < 0 && lbxProc->ListIndex() == 0) FillComponentList();
  return inTail;
}

// The row becomes one like the others.
long frmAddIn::ComponentOfBookmark(const Bookmark& bookmark) {
  long index = 0, row = lbxProc->ListIndex();
  lbxProc->SetItemData(row, bookmark.line);
  if (FindComponent(VBInstance, bookmark.module, &index))
    lbxProc->SetList(row, bookmark.text + kTailMark + CStr(index));
  return index;
}

// A position goes stale when a component is added or removed behind the lists: a name in the rows goes before it.
Ref<host::VBComponent> frmAddIn::ComponentAt(const std::string& row, long index) {
  const std::string name = ComponentNamedBy(row);
  const Ref<host::VBComponents> components = ComponentsOf(row);
  Ref<host::VBComponent> component;
  if (components) PassOverErrors([&] { component = components->Item(index); });
  if (components && !name.empty() && (!component || component->Name() != name))
    if (Ref<host::VBComponent> named = ComponentOfName(*components, name)) component = named;
  return component ? component : ActiveComponents(VBInstance)->Item(index);
}

// A row that begins with "_" belongs to another project: "_Project.Module:    ". Nothing if that has gone.
Ref<host::VBComponents> frmAddIn::ComponentsOf(const std::string& row) {
  if (!BeginsWith(row, "_")) return ActiveComponents(VBInstance);
  const std::string label = HitLabel(row), project = Mid(label.substr(0, label.find('.')), 2);
  Ref<host::VBComponents> components;
  PassOverErrors([&] { components = Object(Object(VBInstance).VBProjects()->Item(project)).VBComponents(); });
  return components;
}

// The name in the row's label, else that of the component row which the row belongs to; empty where neither tells it.
std::string frmAddIn::ComponentNamedBy(const std::string& row) const {
  const std::string label = HitLabel(row);
  if (!label.empty() && !Holds(label, " ")) return BeginsWith(label, "_") ? Mid(label, InStr(label, ".") + 1) : label;
  const std::string chosen = lbxComp->List(lbxComp->ListIndex());
  if (chosen == kProjectGlobals || chosen == kResult) return {};
  const long inTail = ComponentInTail(row);
  const long own = lbxComp->ListIndex() >= 1 ? lbxComp->ItemData(lbxComp->ListIndex()) : currentComponent;
  return inTail < 0 || inTail == own ? chosen : std::string();
}

// The component whose text the code view shows, whatever its position is by now; Nothing where it has gone, or the
// selected row names another one.
Ref<host::VBComponent> frmAddIn::ComponentToWrite() {
  const std::string row = lbxProc->List(lbxProc->ListIndex()), named = ComponentNamedBy(row);
  if (viewedModule.empty() || (!named.empty() && named != viewedModule)) return nullptr;
  const Ref<host::VBComponents> components = ComponentsOf(row);
  return components ? ComponentOfName(*components, viewedModule) : nullptr;
}

void frmAddIn::RememberView(host::CodeModule& module, long firstLine) {
  firstLineShown = firstLine;
  viewedModule = module.Name();
  viewedLines = module.CountOfLines();
}

void frmAddIn::ShowDeclarations(host::CodeModule& module) {
  long lines = module.CountOfDeclarationLines();
  std::string text = lines > 0 ? module.Lines(1, lines) : std::string();
  textOffset = 1;
  RememberView(module, 1);
  txtCode.Clear();
  lblSub.SetCaption(LTrim(kDeclarations));
  ShowRaw(text);
}

// The whole procedure around [line]; false where there is none, or its name has a single letter.
bool frmAddIn::ShowProcedure(host::CodeModule& module, long line) {
  host::ProcKind kind;
  std::string name = module.ProcOfLine(line, kind);
  if (Len(name) < 2) return false;
  long body = module.ProcBodyLine(name, kind);
  if (body > line) return false;
  if (!Holds(UCase(module.Lines(body, 1)), UCase(name)) && Len(module.Lines(body + 1, 1)) < 2) ++body;
  textOffset = line - body + 1;
  if (const CodePoint* point = navigating ? points.Current() : nullptr) savedPosition = point->row;
  if (textOffset == 0) {
    --body;
    textOffset = 1;
  }
  RememberView(module, body);
  long count = module.ProcCountLines(name, kind);
  std::string text = module.Lines(body, count >= kFewestLines ? count + kLinesBehind : kUnknownLines);
  lblSub.SetCaption(Trim(module.Lines(body, 1)));
  ShowCode(text, false, false);
  return true;
}

void frmAddIn::ShowBlock(host::CodeModule& module, long line, const std::string& title) {
  long start = line;
  if (line > 1) start = line >= kBlockFrom ? line - kBlockHead : 1;
  std::string text = module.Lines(start, kBlockLines);
  RememberView(module, start);
  textOffset = line - start + 1;
  lblSub.SetCaption(title);
  ShowCode(text, false, true);
}

// A text that comes while another one loads waits until that has stopped: how it is read is told for each text, and
// taken back when the last one stands. Escape has hidden the view; a text that comes into it must be seen.
void frmAddIn::ShowCode(const std::string& text, bool raw, bool wholeBlock) {
  if (text.empty()) txtCode.Clear();  // an empty text does not wait
  txtCode.SetVisible(true);
  txtCode.NoAnalyse = raw;
  txtCode.AllProcText(wholeBlock);
  if (textLoads) return txtCode.SetText(text);
  SetWhile loading(textLoads);
  txtCode.SetText(text);
  txtCode.NoAnalyse = false;
  txtCode.AllProcText(false);
}

void frmAddIn::ShowRaw(const std::string& text) {
  ShowCode(text, true, false);
}

void frmAddIn::txtCode_TextDone() {
  long done = ++textsDone;
  firstCodeRow = 1;
  for (long row = 1; row <= std::min(txtCode.ListCount(), kLongestHead); ++row)
    if (!IsCommentOrBlank(txtCode.List(row))) {
      firstCodeRow = row;
      break;
    }
  DoEvents();
  if (done != textsDone) return;  // another text stands in the view by now
  if (savedPosition > 0) textOffset = savedPosition;
  txtCode.SetStrPos(textOffset);
  textOffset = 1;
  savedPosition = 0;
}

void frmAddIn::ReloadCode(long row) {
  lbxProc_Click();
  txtCode.SetStrPos(row);
}

void frmAddIn::cmdColor_Click() {
  txtCode.ColorOff = cmdColor.Caption() == "Off";
  cmdColor.SetCaption(txtCode.ColorOff ? "On" : "Off");
  if (txtCode.ListIndex() > 0) ReloadCode(txtCode.ListIndex());
}

void frmAddIn::cmdMore_Click() {
  bool maximise = cmdMore.Caption() == "Max";
  if (maximise) {
    codePlace = txtCode.Place();
    forms::Twips top = tlbr.Top() + tlbr.Height() + 60;
    txtCode.Move(lbxProc1.Left(), top, lbxProc1.Width(), txtCode.Height());
    SetCodeHeight(Frame4.Top() - top - 60);
    txtCode.ZOrder();
  } else {
    txtCode.Move(codePlace.left, codePlace.top, codePlace.width, txtCode.Height());
    SetCodeHeight(codePlace.height);
  }
  cmdMore.SetCaption(maximise ? "Min" : "Max");
  cmGo.SetVisible(!maximise);
  CoverLists(maximise);
  txtCode.SetVisible(true);
  Focus(txtCode);
}

// What the maximised view covers must not take the focus.
void frmAddIn::CoverLists(bool covered) {
  for (forms::Control* control : std::initializer_list<forms::Control*>{
           &lbxComp1, &lbxComp2, &txtFind, &Frame1, &lbxProc1, &lbxProc2, &txtFproc, &Frame2, &Frame3})
    control->SetEnabled(!covered);
}

void frmAddIn::txtCode_EscapeClicked() {
  Object(Object(VBInstance).MainWindow()).SetFocus();
}

}  // namespace corvane::explorer
