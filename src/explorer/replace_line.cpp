// A line that was edited in the code view goes into its module.
#include <algorithm>

#include "explorer/frm_add_in.h"
#include "explorer/project_access.h"
#include "explorer/rows.h"
#include "runtime/strings.h"

namespace corvane::explorer {

using namespace runtime;
using host::Ref;

namespace {

constexpr char kCannotEdit[] = "Can't edit this line.";
constexpr char kChangedBefore[] = "Can not Replace line because line was changed before";

size_t BlanksAtEnd(std::string_view text) {
  return text.size() - (text.find_last_not_of(' ') + 1);
}

// The list shows some keywords with a blank behind them that the line of the module has not.
std::string WithoutBlanksOfTheList(std::string text, const std::string& row, const std::string& line) {
  const size_t shown = BlanksAtEnd(row), own = BlanksAtEnd(line);
  if (shown > own) text.resize(text.size() - std::min(shown - own, BlanksAtEnd(text)));
  return text;
}

// Whether the lines from [line] are what the rows from [from] show. Where lines came or went since the view was loaded,
// each row must be; else the first one, and one beside [row], so that a twin which moved there is not taken for it.
bool RowsStand(host::CodeModule& module, long line, const codelist::ucListBox& list, long from, long row,
               long linesThen) {
  const auto stands = [&](long at) {
    const long own = line + at - from;
    return own <= module.CountOfLines() && Trim(list.List(at)) == Trim(module.Lines(own, 1));
  };
  if (!stands(row)) return false;
  if (module.CountOfLines() == linesThen)
    return stands(from) && ((row > from && stands(row - 1)) || row >= list.ListCount() || stands(row + 1));
  for (long at = from; at <= list.ListCount(); ++at)
    if (!stands(at)) return false;
  return true;
}

}  // namespace

void frmAddIn::ReplaceCodeLine(long row, const std::string& text) {
  const auto replace = [&] {
    if (IsTitleOfModule(txtCode.List(row))) return SayTitleChosen();
    long line = 0;
    Ref<host::CodeModule> module = IsGlobalsText() ? ModuleUnderTitle(row, line) : ModuleInView(row, line);
    if (!module) return SayChangedBefore();
    if (line < 1 || lblSub.Caption() == kSearchResult) {
      services.Prompts.MsgBox(kCannotEdit);
      return;
    }
    if (line > module->CountOfLines() || Trim(txtCode.List(row)) != Trim(module->Lines(line, 1)))
      return SayChangedBefore();
    if (!IsGlobalsText() && !RowsStand(*module, firstLineShown, txtCode, 1, row, viewedLines))
      return SayChangedBefore();
    module->ReplaceLine(line, WithoutBlanksOfTheList(text, txtCode.List(row), module->Lines(line, 1)));
    txtCode.ReplaceItem(row, module->Lines(line, 1));
    DoEvents();
  };
  if (!PassOverErrors(replace)) services.Prompts.MsgBox(kCannotEdit);
}

void frmAddIn::SayChangedBefore() {
  services.Prompts.MsgBox(kChangedBefore);
}

// The standard module whose title stands above [row], and the line that the row shows.
Ref<host::CodeModule> frmAddIn::ModuleUnderTitle(long row, long& line) {
  long title = row;
  while (title > 0 && !IsTitleOfModule(txtCode.List(title))) --title;
  if (title == 0) return nullptr;
  Ref<host::VBComponent> component = FindComponent(VBInstance, ModuleOfTitle(txtCode.List(title)));
  if (!component || component->Type() != host::ComponentType::StdModule) return nullptr;
  line = row - title;
  return component->CodeModule();
}

// As for a jump, the row of the procedures tells the line of the first row with code. In a text that starts elsewhere,
// as behind a search, the line is known from its first row: an equal one further down must not be taken for it.
Ref<host::CodeModule> frmAddIn::ModuleInView(long row, long& line) {
  Ref<host::VBComponent> component = ComponentToWrite();
  if (!component) return nullptr;
  line = std::max(lbxProc->ItemData(lbxProc->ListIndex()), 1L) + row - firstCodeRow;
  if (line >= 1 && firstLineShown > 0) line = firstLineShown + row - 1;
  return component->CodeModule();
}

}  // namespace corvane::explorer
