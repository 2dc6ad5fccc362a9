// WindowYard: where native windows wait for their end. A window is not destroyed while a message runs of any window
// that would go with it, or of what it stands on: the system's own controls go on after they told their parent of a
// click. What belongs to another top-level window goes at once, also in a click that shows one dialog after the other.
// It outlives its toolkit in such a message.
#pragma once

#include <vector>

#include "toolkit_win32/win.h"

namespace corvane::toolkit_win32 {

class WindowYard {
 public:
  // A message of [window], one of ours, is running.
  class Visit {
   public:
    Visit(WindowYard& yard, HWND window) : yard_(yard), window_(window), around_(yard.visit_) { yard_.visit_ = this; }
    ~Visit() {
      yard_.visit_ = around_;
      yard_.Clear();
    }
    Visit(const Visit&) = delete;
    Visit& operator=(const Visit&) = delete;

   private:
    friend class WindowYard;
    WindowYard& yard_;
    const HWND window_;
    const Visit* const around_;
  };

  // Hides the window, and destroys it as soon as that is safe.
  void Bury(HWND window);
  // It went by itself, with its parent.
  void Forget(HWND window);
  // The toolkit is gone: all goes now.
  void Close();
  bool IsClosed() const { return closed_; }
  // Whether a message of one of our windows is running, those of the system's own loops included: while the user moves
  // a window or has its menu open.
  bool IsVisited() const { return visit_ != nullptr; }

 private:
  void Clear();
  bool IsInUse(HWND window) const;
  std::vector<HWND> buried_;
  const Visit* visit_ = nullptr;  // the innermost
  bool closed_ = false, clearing_ = false;
};

}  // namespace corvane::toolkit_win32
