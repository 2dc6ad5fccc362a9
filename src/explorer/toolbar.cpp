#include "explorer/toolbar.h"

#include "explorer/frm_about.h"
#include "explorer/frm_add_in.h"
#include "forms/icons.h"

namespace corvane::explorer {

using forms::ToolButton;
using forms::ToolButtonStyle;

// A friend of the window: what the keys do is nobody else's.
class ToolTable {
 public:
  using F = frmAddIn;
  static constexpr Tool kTools[] = {
      {},
      {"Previous", "Previous CodePoint", "previous", &F::StepToPrevious, &F::CanStepBack},
      {"Next", "Next CodePoint", "next", &F::StepToNext, &F::CanStepOn},
      {"First", "First CodePoint", "first", &F::StepToFirst, &F::CanStepBack},
      {"Last", "Last CodePoint", "last", &F::StepToLast, &F::CanStepOn},
      {"History", "CodePoint`s History", "history", nullptr, &F::HasHistory, true, nullptr, &F::StepToChosen},
      {},
      {"Refresh", "Refresh", "refresh", &F::Refresh},
      {"Favorites", "Add\\Remove Project Favorites", "favorite", &F::ToggleFavorite, nullptr, true},
      {"BookMarks", "Get BookMarks", "bookmark", &F::ShowBookmarks, nullptr, true},
      {"CloseWnd", "Close All Windows except current", "close-windows", &F::CloseOtherWindows},
      {"Find", "Searching in Designers", "search", &F::SearchProperties},
      {},
      {"Actions", "Additional Actions", "clone", &F::CloneCurrent, nullptr, true},
      {"aCopy", "Copy Component Properties", "copy", &F::CopyProperties, &F::CanCopy},
      {"aPaste", "Paste Component Properties", "paste", &F::PasteProperties, &F::CanPaste},
      {},
      {"Pen", "Quick Declare of Variables or Procedure", "pen", &F::DeclareAtCaret, &F::CanDeclare},
      {"Note", "Project Notes", "note", &F::ShowNotes, &F::CanNote},
      {"Map", "Dependencies and Project Map", "map", &F::ShowMap, &F::CanMap},
      {},
      {"Start", "Start Template", "start", &F::StartWizard, &F::HasLibrary, true, &F::LoadWizardFavorites,
       &F::StartFavorite},
      {"About", "About Developer", "about", &F::ShowAbout},
      {"pImmed", "Clear Immediate window", "immediate", &F::ClearImmediate},
      {"pExit", "Exit from Corvane", "exit", &F::Exit},
  };
  static constexpr ToolEntry kEntries[] = {
      {"Favorites", "Show Favorites", &F::ShowFavorites},
      {"Favorites", "Add \\ Remove current CodeLine into Favorites List", &F::ToggleFavorite},
      {"Favorites", "Show Favorites Designers", &F::ShowFavoriteDesigners},
      {"Favorites", "Add current Designer into Favorites List", &F::AddCurrentDesigner},
      {"BookMarks", "Get BookMarks List", &F::ShowBookmarks},
      {"BookMarks", "Put current CodeLine into BookMarks List", &F::PutCaretLine},
      {"Actions", "Clone current Component", &F::CloneCurrent},
      {"Actions", "Weaver WorkShop", &F::OpenWorkshop, &F::HasLibrary},
  };
};

std::span<const Tool> Tools() {
  return ToolTable::kTools;
}

std::span<const ToolEntry> ToolEntries() {
  return ToolTable::kEntries;
}

void frmAddIn::DesignToolbar() {
  tlbr.SetImageList(&imgl);
  for (const Tool& tool : Tools()) {
    ToolButton button;
    button.Style = tool.drops ? ToolButtonStyle::DropDown : ToolButtonStyle::Default;
    if (tool.IsSeparator()) {
      button.Style = ToolButtonStyle::Separator;
    } else {
      button.Key = tool.key;
      button.ToolTipText = tool.tip;
      button.Image = imgl.Add(forms::Icon(tool.icon));
    }
    tlbr.Add(button);
  }
  tlbr.ButtonClick = [this](int position) { tlbr_ButtonClick(position); };
  tlbr.ButtonDropDown = [this](int position) { tlbr_ButtonDropDown(position); };
  tlbr.ButtonMenuClick = [this](int position, int entry) { tlbr_ButtonMenuClick(position, entry); };
  ShowToolStates();
}

void frmAddIn::AddFixedEntries() {
  for (const Tool& tool : Tools()) {
    std::vector<forms::ButtonMenu> menus;
    for (const ToolEntry& entry : ToolEntries())
      if (std::string_view(entry.key) == tool.key) menus.push_back({"", entry.text, Allows(entry.act, entry.enabled)});
    if (!menus.empty()) tlbr.SetButtonMenus(tlbr.PositionOf(tool.key), std::move(menus));
  }
}

bool frmAddIn::Allows(bool does, Rule rule) const {
  return does && (!rule || (this->*rule)());
}

// Which keys can be pressed follows from the state of the window: to be asked for whenever that has changed.
void frmAddIn::ShowToolStates() {
  for (const Tool& tool : Tools())
    if (!tool.IsSeparator())
      tlbr.SetButtonEnabled(tlbr.PositionOf(tool.key),
                            Allows(tool.click || tool.choose || HasEntries(tool), tool.enabled));
  if (activated) AddFixedEntries();
}

bool frmAddIn::HasEntries(const Tool& tool) const {
  for (const ToolEntry& entry : ToolEntries())
    if (std::string_view(entry.key) == tool.key && Allows(entry.act, entry.enabled)) return true;
  return false;
}

void frmAddIn::tlbr_ButtonClick(int position) {
  const Tool& tool = Tools()[static_cast<size_t>(position) - 1];
  RunTool(Allows(tool.click, tool.enabled) ? tool.click : nullptr);
}

void frmAddIn::tlbr_ButtonDropDown(int position) {
  RunTool(Tools()[static_cast<size_t>(position) - 1].opening);
}

void frmAddIn::tlbr_ButtonMenuClick(int position, int entry) {
  const Tool& tool = Tools()[static_cast<size_t>(position) - 1];
  if (tool.choose) return RunTool([&] { (this->*tool.choose)(entry); });
  for (const ToolEntry& row : ToolEntries())
    if (std::string_view(row.key) == tool.key && --entry == 0)
      return RunTool(Allows(row.act, row.enabled) ? row.act : nullptr);
}

void frmAddIn::RunTool(Act act) {
  RunTool([&] {
    if (act) (this->*act)();
  });
}

// An error ends what the key does and nothing else.
void frmAddIn::RunTool(const std::function<void()>& act) {
  searching = false;
  runtime::PassOverErrors(act);
  services.Screen.SetMousePointer(host::vbDefault);
  ShowToolStates();
}

// Lists the project anew: choosing the mode does it, or, where it is chosen already, its handler is run.
void frmAddIn::Refresh() {
  busy = false;
  if (optProj.Value())
    optProj_Click();
  else
    optProj.SetValue(true);
}

void frmAddIn::ShowAbout() {
  frmAbout about(services, Toolkit());
  about.ShowModal();
  about.Unload();
}

void frmAddIn::Exit() {
  Unload();
  activated = false;
}

}  // namespace corvane::explorer
