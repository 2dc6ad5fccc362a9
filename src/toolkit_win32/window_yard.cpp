#include "toolkit_win32/window_yard.h"

namespace corvane::toolkit_win32 {

void WindowYard::Bury(HWND window) {
  ShowWindow(window, SW_HIDE);
  buried_.push_back(window);
  if (visits_ == 0 || closed_) Clear();
}

void WindowYard::Forget(HWND window) {
  std::erase(buried_, window);
}

void WindowYard::Close() {
  closed_ = true;
  Clear();
}

// The end of one can be the end of others, and bring new ones. None is destroyed inside the end of another: the messages
// of that are visits, too.
void WindowYard::Clear() {
  if (clearing_) return;
  clearing_ = true;
  while (!buried_.empty()) {
    const HWND window = buried_.back();
    buried_.pop_back();
    DestroyWindow(window);
  }
  clearing_ = false;
}

}  // namespace corvane::toolkit_win32
