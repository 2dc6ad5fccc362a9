#include "toolkit_win32/window_yard.h"

#include <algorithm>

namespace corvane::toolkit_win32 {

void WindowYard::Bury(HWND window) {
  ShowWindow(window, SW_HIDE);
  buried_.push_back(window);
  Clear();
}

void WindowYard::Forget(HWND window) {
  std::erase(buried_, window);
}

void WindowYard::Close() {
  closed_ = true;
  Clear();
}

bool WindowYard::IsInUse(HWND window) const {
  const HWND root = GetAncestor(window, GA_ROOT);
  for (const Visit* visit = visit_; visit; visit = visit->around_) {
    HWND above = GetAncestor(visit->window_, GA_ROOT);
    while (above && above != root) above = GetWindow(above, GW_OWNER);
    if (above) return true;
  }
  return false;
}

// The end of one can be the end of others, and bring new ones. None is destroyed inside the end of another: the
// messages of that are visits, too.
void WindowYard::Clear() {
  if (clearing_) return;
  clearing_ = true;
  const auto is_free = [this](HWND window) { return closed_ || !IsInUse(window); };
  for (;;) {
    const auto next = std::find_if(buried_.rbegin(), buried_.rend(), is_free);
    if (next == buried_.rend()) break;
    const HWND window = *next;
    Forget(window);
    DestroyWindow(window);
  }
  clearing_ = false;
}

}  // namespace corvane::toolkit_win32
