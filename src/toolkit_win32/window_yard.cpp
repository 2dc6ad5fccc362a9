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

// The end of one can be the end of others, and bring new ones.
void WindowYard::Clear() {
  while (!buried_.empty()) {
    const HWND window = buried_.back();
    buried_.pop_back();
    DestroyWindow(window);
  }
}

}  // namespace corvane::toolkit_win32
