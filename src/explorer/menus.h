// The entries of the window's two popup menus, and what each does. An entry without anything to do is disabled,
// whatever its rule.
#pragma once

#include <span>

#include "explorer/form_acts.h"

namespace corvane::forms {
class Menu;
}

namespace corvane::explorer {

struct MenuEntry {
  forms::Menu frmAddIn::*item;
  const char* caption;
  Act act;
  Rule enabled = nullptr;  // null: always
  bool opens = false;      // has entries of its own
};

std::span<const MenuEntry> MenuEntries();

}  // namespace corvane::explorer
