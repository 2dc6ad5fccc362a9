#include "explorer/menus.h"

#include "explorer/frm_add_in.h"
#include "explorer/project_access.h"

namespace corvane::explorer {

// A friend of the window: what the entries do is nobody else's.
class MenuTable {
 public:
  using F = frmAddIn;
  static constexpr MenuEntry kEntries[] = {
      {&F::mnuSearch, "Search Procedure", &F::mnuSearch_Click},
      {&F::mnuSearchMod, "Search CodeModule", &F::mnuSearchMod_Click},
      {&F::mnuGoDesign, "Goto Designer", &F::mnuGoDesign_Click},
      {&F::mnuComnt, "Comment Procedure", &F::mnuComnt_Click},
      {&F::mnuCop, "Copy into ClipBoard", nullptr, nullptr, true},
      {&F::mnuCopy, "Copy Procedure", &F::mnuCopy_Click},
      {&F::mnuCopyAdd, "Add Procedure", &F::mnuCopyAdd_Click},
      {&F::mnuCopyPLB, "Copy whole PLB", &F::mnuCopyPLB_Click},
      {&F::mnuExec, "&Exec Template", &F::StartWizard, &F::HasLibrary},
      {&F::mnuIDECurrent, "&Current Code", &F::optCurMod_Click},
      {&F::mnuIDEPrev, "&Back to previous line", &F::ShowBookmarks},
      {&F::mnuIDESearch, "&Search current word", &F::mnuIDESearch_Click},
      {&F::mnuIDEDeclare, "&Declare variable", &F::mnuIDEDeclare_Click, &F::CanDeclare},
      {&F::mnuIDETitle, "Project &Title", &F::ShowFavorites},
  };
};

std::span<const MenuEntry> MenuEntries() {
  return MenuTable::kEntries;
}

void frmAddIn::DesignMenus() {
  mnuPLB.SetVisible(false);
  mnuIDE.SetVisible(false);
  mnuTools.SetVisible(false);
  for (const MenuEntry& entry : MenuEntries()) {
    forms::Menu& menu = this->*entry.item;
    menu.SetCaption(entry.caption);
    if (entry.act) menu.Click = [this, act = entry.act] { (this->*act)(); };
  }
  // An entry shows its state at the moment the menu opens.
  mnuPLB.Click = [this] { ShowMenuStates(); };
  mnuIDE.Click = [this] { ShowMenuStates(); };
  ShowMenuStates();
}

void frmAddIn::ShowMenuStates() {
  for (const MenuEntry& entry : MenuEntries())
    (this->*entry.item).SetEnabled(entry.opens || (entry.act && (!entry.enabled || (this->*entry.enabled)())));
}

void frmAddIn::mnuIDESearch_Click() {
  cmbSearch.SetText(CurrentWord(VBInstance));
  Focus(cmbSearch);
}

}  // namespace corvane::explorer
