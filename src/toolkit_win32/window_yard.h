// WindowYard: where native windows wait for their end. A window is not destroyed while a message of any of ours runs:
// the system's own controls go on after they told their parent of a click. It outlives its toolkit in such a message.
#pragma once

#include <vector>

#include "toolkit_win32/win.h"

namespace corvane::toolkit_win32 {

class WindowYard {
 public:
  // A message of one of our windows is running.
  class Visit {
   public:
    explicit Visit(WindowYard& yard) : yard_(yard) { ++yard_.visits_; }
    ~Visit() {
      if (--yard_.visits_ == 0) yard_.Clear();
    }
    Visit(const Visit&) = delete;
    Visit& operator=(const Visit&) = delete;

   private:
    WindowYard& yard_;
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
  bool IsVisited() const { return visits_ > 0; }

 private:
  void Clear();
  std::vector<HWND> buried_;
  int visits_ = 0;
  bool closed_ = false, clearing_ = false;
};

}  // namespace corvane::toolkit_win32
