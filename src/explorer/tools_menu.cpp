// The toolbar takes no focus: this menu has all its keys for the keyboard, each with the entries of its drop-down.
#include "explorer/frm_add_in.h"
#include "explorer/toolbar.h"

namespace corvane::explorer {

namespace {

constexpr char kSeparator[] = "-";

// A caption in which "&" is a plain character. The entries of a drop-down are captions already.
std::string Plain(const std::string& text) {
  std::string plain;
  for (char c : text) plain.append(c == '&' ? 2 : 1, c);
  return plain;
}

}  // namespace

void frmAddIn::OpenToolsMenu() {
  while (!toolItems.empty()) toolItems.pop_back();
  int position = 0;
  for (const Tool& tool : Tools()) {
    ++position;
    if (tool.IsSeparator())
      AddToolItem(mnuTools, kSeparator, true, {});
    else
      AddToolItems(position, tool);
  }
  PopupMenu(mnuTools, tlbr.Left(), tlbr.Top() + tlbr.Height());
}

void frmAddIn::AddToolItems(int position, const Tool& tool) {
  const bool enabled = tlbr.Button(position).Enabled;
  if (enabled && tool.opening) tlbr_ButtonDropDown(position);
  const auto entries = tlbr.Button(position).ButtonMenus;
  const bool acts = Allows(tool.click, tool.enabled);
  const auto click = [this, position] { tlbr_ButtonClick(position); };
  if (entries.empty()) {
    AddToolItem(mnuTools, Plain(tool.tip), enabled && acts, click);
    return;
  }
  forms::Menu& group = AddToolItem(mnuTools, Plain(tool.tip), enabled, {});
  if (acts) AddToolItem(group, Plain(tool.tip), true, click);
  if (acts) AddToolItem(group, kSeparator, true, {});
  for (size_t entry = 0; entry < entries.size(); ++entry)
    AddToolItem(group, entries[entry].Text, entries[entry].Enabled,
                [this, position, entry] { tlbr_ButtonMenuClick(position, static_cast<int>(entry) + 1); });
}

forms::Menu& frmAddIn::AddToolItem(forms::Menu& parent, const std::string& caption, bool enabled,
                                   std::function<void()> act) {
  const std::string name = "mnuTool" + std::to_string(toolItems.size() + 1);
  toolItems.push_back(std::make_unique<forms::Menu>(parent, name, caption));
  forms::Menu& item = *toolItems.back();
  item.SetEnabled(enabled);
  if (act) item.Click = std::move(act);
  return item;
}

}  // namespace corvane::explorer
