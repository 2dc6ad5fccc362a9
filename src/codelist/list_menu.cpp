#include "codelist/list_menu.h"

#include "codelist/reading_commands.h"
#include "codelist/uc_list_box.h"

namespace corvane::codelist {

// A friend of the commands: they are nobody else's.
class ListMenuTable {
 public:
  using R = ReadingCommands;
  using enum ListEntry;
  static constexpr ListMenuRow kRows[] = {
      {mnuSearch, "mnuSearch", "Search Word", kNone, [](R& r) { r.SearchWord(); }},
      {mnuSearchLocal, "mnuSearchLocal", "Search in Selected Module", kNone, [](R& r) { r.SearchInModule(); }},
      {mnuSearchAll, "mnuSearchAll", "Search in whole Project", kNone, [](R& r) { r.SearchInProject(); }},
      {mnuQFind, "mnuQFind", "Search here", kNone, [](R& r) { r.SearchHere(); }},
      {mnuDBFind, "mnuDBFind", "DataBases and others...", kNone, [](R& r) { r.AskForDBSearch(); }},
      {mnuEdit, "mnuEdit", "Edit Codeline", kNone, [](R& r) { r.list.EditCodeline(); }},
      {mnuCollap, "mnuCollap", "Collapse", kNone, nullptr},
      {mnuCollapce, "mnuCollapce", "Collapse here", mnuCollap, [](R& r) { r.CollapseUnderPointer(); }},
      {mnuLevelCol, "mnuLevelCol", "Collapse on color level", mnuCollap, [](R& r) { r.CollapseOnColorLevel(); }},
      {mnuLogCol, "mnuLogCol", "Logical Collapse", mnuCollap, [](R& r) { r.CollapseLogically(); }},
      {mnuColSel, "mnuColSel", "Collapse selected lines", mnuCollap, [](R& r) { r.CollapseSelectedLines(); }},
      {mnuClrCol, "mnuClrCol", "Full Collapse RESET", mnuCollap, [](R& r) { r.ResetFolding(); }},
      {mnuExpand, "mnuExpand", "Expand", mnuCollap, [](R& r) { r.ExpandBehindCurrent(); }},
      {mnuBeginSub, "mnuBeginSub", "Go Qickly...", kNone, nullptr},
      {mnuGoDown, "mnuGoDown", "Go Down", mnuBeginSub, [](R& r) { r.GoDownLevel(); }},
      {mnuGoUp, "mnuGoUp", "Go Up", mnuBeginSub, [](R& r) { r.GoUpLevel(); }},
      {mnuGoto, "mnuGoto", "GoTo Label", mnuBeginSub, [](R& r) { r.GoToLabel(); }},
      {mnuPrev, "mnuPrev", "Previous", mnuBeginSub, [](R& r) { r.GoToPrevious(); }},
      {mnuGoProc, "mnuGoProc", "Goto Procedure", mnuBeginSub, [](R& r) { r.GoToProcedure(); }},
      {mnuDeclare, "mnuDeclare", "Goto Declaration of", mnuBeginSub, [](R& r) { r.GoToDeclaration(); }},
      {mnuVar, "mnuVar", "Var Info", kNone, [](R& r) { r.ShowDeclarations(); }},
      {mnuQv, "mnuQv", "Quickly...", kNone, nullptr},
      {mnuQuick, "mnuQuick", "Quick View", mnuQv, [](R& r) { r.list.ShowQuickList(); }},
      {mnuColor, "mnuColor", "Set Color analyze Off", mnuQv, [](R& r) { r.list.ToggleColor(); }},
      {mnuComnt, "mnuComnt", "Comment selected lines", mnuQv, [](R& r) { r.CommentSelected(); }},
      {mnuUncomnt, "mnuUncomnt", "Uncomment selected lines", mnuQv, [](R& r) { r.UncommentSelected(); }},
      {mnuClear, "mnuClear", "Clear Selection", mnuQv, [](R& r) { r.list.ClearSelection(); }},
      {mnuSelectAll, "mnuSelectAll", "Select All", mnuQv, [](R& r) { r.list.SelectAll(); }},
      {mnuCopy, "mnuCopy", "Copy Selection", mnuQv, [](R& r) { r.list.CopySelection(); }},
      {mnuAdd, "mnuAdd", "Add Selection", mnuQv, [](R& r) { r.list.AddSelection(); }},
      {mnuPrint, "mnuPrint", "Print Code", mnuQv, [](R& r) { r.PrintCode(); }},
      {mnuFormat, "mnuFormat", "Format Code", mnuQv, [](R& r) { r.FormatCode(); }},
      {mnuHistory, "mnuHistory", "Save into History", kNone, [](R& r) { r.SaveIntoHistory(); }},
      {mnuTEdit, "mnuTEdit", "Edit Weaver menu", kNone, nullptr, 0},
      {mnuItem, "mnuItem", "Item...", kNone, nullptr},
      {mnuNewItem, "mnuNewItem", "Add New Item...", mnuItem, nullptr, 3},
      {mnuEditItem, "mnuEditItem", "Edit selected Item...", mnuItem, nullptr, 5},
      {mnuRenameItem, "mnuRenameItem", "Rename Item", mnuItem, nullptr, 6},
      {mnuDeleteItem, "mnuDeleteItem", "Delete selected Item", mnuItem, nullptr, 4},
      {mnuTemplate, "mnuTemplate", "Develop New Script", kNone, nullptr, 1},
      {mnuEditTempl, "mnuEditTempl", "Edit Script", kNone, nullptr, 2},
  };
};

std::span<const ListMenuRow> ListMenuRows() {
  return ListMenuTable::kRows;
}

ListMenu::ListMenu(forms::Container& container, ReadingCommands& commands)
    : mnuPopUp(container, "mnuPopUp", "PopUp"), mnuTitle(container, "mnuTitle", "Title") {
  mnuPopUp.SetVisible(false);
  mnuTitle.SetVisible(false);
  for (const ListMenuRow& row : ListMenuRows()) {
    forms::Menu& menu = row.entry < ListEntry::mnuTEdit ? mnuPopUp : mnuTitle;
    forms::Menu& parent = row.group == ListEntry::kNone ? menu : (*this)[row.group];
    auto& entry = entries_[static_cast<size_t>(row.entry)];
    entry = std::make_unique<forms::Menu>(parent, row.name, row.caption);
    if (row.act) entry->Click = [&commands, act = row.act] { act(commands); };
    if (row.reminder >= 0)
      entry->Click = [&commands, told = row.reminder] {
        long action = told;
        commands.list.QuickReminder(action);
      };
  }
}

}  // namespace corvane::codelist
