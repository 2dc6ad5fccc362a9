// The keys of the toolbar, the entries of their drop-downs, and what each does. A key or entry without anything to do
// is disabled, whatever its rule.
#pragma once

#include <span>

#include "explorer/form_acts.h"

namespace corvane::explorer {

struct Tool {
  const char* key = "";  // empty for a separator
  const char* tip = "";
  const char* icon = "";
  Act click = nullptr;
  Rule enabled = nullptr;   // null: always
  bool drops = false;       // has a drop-down
  Act opening = nullptr;    // its drop-down is about to be shown
  Choice choose = nullptr;  // of an entry, from 1, of a drop-down that is made anew while the window is open
  bool IsSeparator() const { return *key == '\0'; }
};

// An entry that a drop-down always has.
struct ToolEntry {
  const char* key;  // of its button
  const char* text;
  Act act;
  Rule enabled = nullptr;
};

std::span<const Tool> Tools();             // by position: the first is position 1
std::span<const ToolEntry> ToolEntries();  // of each button in their order

}  // namespace corvane::explorer
