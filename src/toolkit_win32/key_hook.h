// KeyHook: takes the keys that are meant for our windows out of whatever message loop runs, before the loop's owner
// makes something else of them (accelerators, a dialog's keys). Keys of other windows pass untouched.
#pragma once

#include "toolkit_win32/win.h"

namespace corvane::toolkit_win32 {

class KeyHook {
 public:
  KeyHook();
  ~KeyHook();
  KeyHook(const KeyHook&) = delete;
  KeyHook& operator=(const KeyHook&) = delete;

 private:
  HHOOK hook_;
};

}  // namespace corvane::toolkit_win32
