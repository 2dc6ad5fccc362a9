// The keys that a text of SendKeys describes; a toolkit or its program presses them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace corvane::forms {

struct SentKey {
  int key_code = 0;       // of a named key ("{HOME}"), as KeyDown tells it; 0 for a character
  std::string character;  // to be typed, one of the ANSI code page; empty for a named key
  int shift = 0;          // vbShiftMask + vbCtrlMask + vbAltMask, held meanwhile
  bool operator==(const SentKey&) const = default;
};

// "+" Shift, "^" Ctrl, "%" Alt for the next key or (group), "~" Enter, "{NAME}", "{NAME count}", "{c}" for a character
// that means something else. Throws Error 5 for what is none of these.
std::vector<SentKey> ParseSentKeys(std::string_view keys);

}  // namespace corvane::forms
