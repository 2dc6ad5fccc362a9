// ListMenu: the two menus that the right mouse button opens on a list, by their entries. Entries, captions, groups and
// what they do are one table.
#pragma once

#include <array>
#include <memory>
#include <span>

#include "forms/menu.h"

namespace corvane::codelist {

class ReadingCommands;

// In the order of the menus; a group stands in front of its entries. Up to mnuHistory those of mnuPopUp.
enum class ListEntry {
  mnuSearch,
  mnuSearchLocal,
  mnuSearchAll,
  mnuQFind,
  mnuDBFind,
  mnuEdit,
  mnuCollap,
  mnuCollapce,
  mnuLevelCol,
  mnuLogCol,
  mnuColSel,
  mnuClrCol,
  mnuExpand,
  mnuBeginSub,
  mnuGoDown,
  mnuGoUp,
  mnuGoto,
  mnuPrev,
  mnuGoProc,
  mnuDeclare,
  mnuVar,
  mnuQv,
  mnuQuick,
  mnuColor,
  mnuComnt,
  mnuUncomnt,
  mnuClear,
  mnuSelectAll,
  mnuCopy,
  mnuAdd,
  mnuPrint,
  mnuFormat,
  mnuHistory,
  mnuTEdit,
  mnuItem,
  mnuNewItem,
  mnuEditItem,
  mnuRenameItem,
  mnuDeleteItem,
  mnuTemplate,
  mnuEditTempl,
  kCount,
  kNone = kCount,
};

struct ListMenuRow {
  ListEntry entry;
  const char* name;
  const char* caption;
  ListEntry group;                // in which it stands; kNone: in the menu itself
  void (*act)(ReadingCommands&);  // null for a group and for an item of mnuTitle
  long reminder = -1;             // what QuickReminder tells of an item of mnuTitle
};

std::span<const ListMenuRow> ListMenuRows();

class ListMenu {
 public:
  ListMenu(forms::Container& container, ReadingCommands& commands);
  forms::Menu& operator[](ListEntry entry) { return *entries_[static_cast<size_t>(entry)]; }
  void Enable(ListEntry entry, bool enabled) { (*this)[entry].SetEnabled(enabled); }

  forms::Menu mnuPopUp, mnuTitle;

 private:
  std::array<std::unique_ptr<forms::Menu>, static_cast<size_t>(ListEntry::kCount)> entries_;
};

}  // namespace corvane::codelist
