// The other windows of this thread while something modal is shown that is no form.
#pragma once

#include <list>

#include "toolkit_win32/win.h"

namespace corvane::toolkit_win32 {

// What the user could reach on this thread, without [but].
std::list<HWND> UsableWindows(HWND but);

// Disables the thread's visible windows as long as it lives, but for [owner], which the modal window disables itself:
// it must be usable again before the modal window goes, so that it gets the focus back.
class OtherWindowsDisabled {
 public:
  explicit OtherWindowsDisabled(HWND owner);
  ~OtherWindowsDisabled();
  OtherWindowsDisabled(const OtherWindowsDisabled&) = delete;
  OtherWindowsDisabled& operator=(const OtherWindowsDisabled&) = delete;

 private:
  std::list<HWND> disabled_;
};

}  // namespace corvane::toolkit_win32
