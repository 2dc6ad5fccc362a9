// KeyHook: takes the keys that are meant for our windows out of whatever message loop runs, before the loop's owner
// makes something else of them (accelerators, a dialog's keys). Keys of other windows pass untouched.
#pragma once

#include "toolkit_win32/win.h"
#include "toolkit_win32/window.h"

namespace corvane::toolkit_win32 {

class KeyHook {
 public:
  KeyHook();
  ~KeyHook();
  KeyHook(const KeyHook&) = delete;
  KeyHook& operator=(const KeyHook&) = delete;

  // Whether [message] lets Alt go behind a key that was used up with it: the system, which never saw that key, would
  // open the menu bar.
  static bool EndsUsedAlt(Win32Toolkit& toolkit, const Message& message);

 private:
  HHOOK hook_;
};

}  // namespace corvane::toolkit_win32
