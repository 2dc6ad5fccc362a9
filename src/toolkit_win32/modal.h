// ModalRun: one modal window's rule over this thread: its own message loop, all other windows disabled meanwhile, the
// focus given back behind it. It outlives the window and the toolkit when they go inside it.
#pragma once

#include "toolkit_win32/thread_windows.h"

namespace corvane::toolkit_win32 {

class ModalRun {
 public:
  // Disables what the user could reach on this thread but [window].
  explicit ModalRun(HWND window) : others_(window) {}
  ModalRun(const ModalRun&) = delete;
  ModalRun& operator=(const ModalRun&) = delete;

  // Runs messages until End. WM_QUIT ends it too, and is left to the loop around it.
  void RunLoop();
  // Enables again what this disabled; to be called before the window is hidden, or the system would look for another
  // program's window to activate.
  void End();
  // Gives the focus back to what had it; to a window of ours only where nothing else has it now.
  void GiveFocusBack() const;

 private:
  const HWND active_before_ = GetActiveWindow(), focus_before_ = GetFocus();
  OtherWindowsDisabled others_;
  bool ended_ = false;
};

// Messages of all windows of this thread that wait now. WM_QUIT is posted again.
void RunWaitingMessages();

}  // namespace corvane::toolkit_win32
