// To a procedure or a declaration anywhere in the project, for a word that the code view could not find in itself.
#include "explorer/frm_add_in.h"
#include "explorer/project_access.h"
#include "explorer/rows.h"
#include "explorer/set_while.h"
#include "explorer/sought_word.h"
#include "runtime/strings.h"

namespace corvane::explorer {

using namespace runtime;
using host::ComponentType;
using host::Ref;

// A word that is nowhere leaves the view as it is, without a message.
void frmAddIn::txtCode_GoProc(const std::string& text) {
  PassOverErrors([&] {
    TakeSnapshotOfView();
    const SoughtWord word = SoughtIn(text);
    long component = 0;  // where it cannot be told, the rows of all are looked through
    PassOverErrors([&] { component = word.dotted ? ComponentOfObject(word.object) : GoToCode(); });
    long row = RowOfWord(word, component);
    if (row < 0) {
      const bool listed = component > 0 && ListWord(word, component);
      currentComponent = 0;
      if (listed) row = RowOfWord(word, component);
    }
    if (row >= 0) ShowWord(row);
  });
}

// The component that stands in front of the dot, or whose type the variable there has; else the one in view.
long frmAddIn::ComponentOfObject(const std::string& object) {
  long index = FindComponentIndex(VBInstance, object);
  if (index < 1) index = ComponentInTail(lbxProc->List(lbxProc->ListIndex()));
  if (index < 1)
    PassOverErrors([&] { index = FindComponentIndex(VBInstance, Object(ActiveModule(VBInstance)).Name()); });
  long found = 0;
  const auto typeIn = [&](host::VBComponent& component) {
    PassOverErrors([&] {
      const std::string type = TypeOfVariable(Object(component.CodeModule()), object);
      if (!type.empty()) found = FindComponentIndex(VBInstance, type);
    });
    return found > 0;
  };
  Ref<host::VBComponents> components = ActiveComponents(VBInstance);
  if (index > 0) PassOverErrors([&] { typeIn(Object(components->Item(index))); });
  if (found > 0) return found;
  for (Ref<host::VBComponent> component : host::Each(*components))
    if (component->Type() == ComponentType::StdModule && typeIn(*component)) return found;
  return index;
}

// The first row that declares the word, of [component] where that is known and the row tells it; -1 if none does.
long frmAddIn::RowOfWord(const SoughtWord& word, long component) const {
  for (long row = 0; row < lbxProc->ListCount(); ++row) {
    const std::string text = lbxProc->List(row);
    if (!word.IsIn(UCase(text))) continue;
    const long inTail = ComponentInTail(text);
    if (component <= 0 || inTail < 0 || inTail == component) return row;
  }
  return -1;
}

// Lists the line that declares the word: of [component], else of the first standard module that has one, which
// [component] takes.
bool frmAddIn::ListWord(const SoughtWord& word, long& component) {
  Ref<host::VBComponents> components = ActiveComponents(VBInstance);
  bool listed = false;
  PassOverErrors([&] { listed = ListWordOf(word, Object(components->Item(component)), component); });
  if (listed) return true;
  long index = 0;
  for (Ref<host::VBComponent> other : host::Each(*components)) {
    if (++index == component || other->Type() != ComponentType::StdModule) continue;
    PassOverErrors([&] { listed = ListWordOf(word, *other, index); });
    if (!listed) continue;
    component = index;
    return true;
  }
  return false;
}

bool frmAddIn::ListWordOf(const SoughtWord& word, host::VBComponent& component, long index) {
  Ref<host::CodeModule> module = component.CodeModule();
  const long line = word.LineIn(Object(module));
  if (line == 0) return false;
  currentComponent = index;
  AddProcedureRow(*module, line, module->Name(), 1);
  hasResults = true;  // the list is another one now
  return true;
}

void frmAddIn::ShowWord(long row) {
  ResetHistoryButtons();
  {
    SetWhile filling(busy);
    lbxProc->SetListIndex(row);
  }
  const long fill = fills;
  DoEvents();
  if (fill != fills) return;
  lbxProc_Click();
  SetWhile noEvent(noOptionEvent);
  optProj.SetValue(true);
  optCurMod.SetValue(false);
}

}  // namespace corvane::explorer
