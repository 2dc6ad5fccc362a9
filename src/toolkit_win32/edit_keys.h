// Keys that users know from every text field and the system's own does not.
#pragma once

#include "toolkit_win32/win.h"

namespace corvane::toolkit_win32 {

// Ctrl+A selects all of it, Ctrl+Backspace takes the selection, else the word before the caret. True when [character],
// typed into [edit], was one of them.
bool UseEditKey(HWND edit, WPARAM character);

}  // namespace corvane::toolkit_win32
