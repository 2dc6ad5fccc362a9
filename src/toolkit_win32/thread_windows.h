// The other windows of this thread while something modal is shown that is no form.
#pragma once

#include <list>

#include "toolkit_win32/win.h"

namespace corvane::toolkit_win32 {

// What the user could reach on this thread, without [but].
std::list<HWND> UsableWindows(HWND but);

// Disables the thread's visible windows until its end, but for [but]: a modal window of ours, or the owner of one of
// the system's, which disables that itself; it must be usable again before the modal window goes, so that it gets the
// focus back. When it ends before one that began inside it, that one goes on to rule over what this disabled.
class OtherWindowsDisabled {
 public:
  explicit OtherWindowsDisabled(HWND but);
  ~OtherWindowsDisabled() { End(); }
  OtherWindowsDisabled(const OtherWindowsDisabled&) = delete;
  OtherWindowsDisabled& operator=(const OtherWindowsDisabled&) = delete;

  void End();

 private:
  std::list<HWND> disabled_;
  OtherWindowsDisabled *below_, *above_ = nullptr;  // of those that have not ended
  bool ended_ = false;
};

}  // namespace corvane::toolkit_win32
