// ModalRun: one modal window's rule over this thread: its own message loop, all other windows disabled meanwhile, the
// focus given back behind it. It outlives the window and the toolkit when they go inside it. When it
// ends before one that began inside it, that one goes on to rule over what this disabled.
#pragma once

#include <list>

#include "toolkit_win32/win.h"

namespace corvane::toolkit_win32 {

class ModalRun {
 public:
  // Disables what the user could reach on this thread but [window].
  explicit ModalRun(HWND window);
  ~ModalRun() { End(); }
  ModalRun(const ModalRun&) = delete;
  ModalRun& operator=(const ModalRun&) = delete;

  // Runs messages until End. WM_QUIT ends it too, and is left to the loop around it.
  void RunLoop();
  // Enables again what this disabled; to be called before the window is hidden, or the system would look for another
  // program's window to activate.
  void End();
  // Gives the focus back to what had it, when that was no window of ours.
  void GiveFocusBack() const;

 private:
  std::list<HWND> disabled_;
  ModalRun *below_, *above_ = nullptr;  // of those that have not ended
  HWND active_before_, focus_before_;
  bool ended_ = false;
};

// Messages of all windows of this thread that wait now. WM_QUIT is posted again.
void RunWaitingMessages();

}  // namespace corvane::toolkit_win32
