#include "toolkit_win32/thread_windows.h"

#include <utility>

namespace corvane::toolkit_win32 {
namespace {

thread_local OtherWindowsDisabled* newest = nullptr;

struct Search {
  HWND but;
  std::list<HWND> found;
};

// Where memory ends, the search ends with what it has: nothing thrown enters the system.
BOOL CALLBACK NoteUsable(HWND window, LPARAM l) noexcept {
  auto& search = *reinterpret_cast<Search*>(l);
  if (window == search.but || !IsWindowVisible(window) || !IsWindowEnabled(window)) return TRUE;
  try {
    search.found.push_back(window);
    return TRUE;
  } catch (...) {
    return FALSE;
  }
}

}  // namespace

std::list<HWND> UsableWindows(HWND but) {
  Search search{but, {}};
  EnumThreadWindows(GetCurrentThreadId(), NoteUsable, reinterpret_cast<LPARAM>(&search));
  return std::move(search.found);
}

OtherWindowsDisabled::OtherWindowsDisabled(HWND but)
    : disabled_(UsableWindows(but)), below_(std::exchange(newest, this)) {
  if (below_) below_->above_ = this;
  ReleaseCapture();
  for (HWND window : disabled_) EnableWindow(window, FALSE);
}

void OtherWindowsDisabled::End() {
  if (std::exchange(ended_, true)) return;
  if (below_) below_->above_ = above_;
  (above_ ? above_->below_ : newest) = below_;
  if (above_) return above_->disabled_.splice(above_->disabled_.end(), disabled_);
  for (HWND window : disabled_) EnableWindow(window, TRUE);
}

}  // namespace corvane::toolkit_win32
