#include "toolkit_win32/thread_windows.h"

namespace corvane::toolkit_win32 {
namespace {

struct Search {
  HWND owner;
  std::vector<HWND>& found;
};

BOOL CALLBACK NoteUsable(HWND window, LPARAM search) {
  const auto& [owner, found] = *reinterpret_cast<Search*>(search);
  if (window != owner && IsWindowVisible(window) && IsWindowEnabled(window)) found.push_back(window);
  return TRUE;
}

}  // namespace

OtherWindowsDisabled::OtherWindowsDisabled(HWND owner) {
  Search search{owner, disabled_};
  EnumThreadWindows(GetCurrentThreadId(), NoteUsable, reinterpret_cast<LPARAM>(&search));
  for (HWND window : disabled_) EnableWindow(window, FALSE);
}

OtherWindowsDisabled::~OtherWindowsDisabled() {
  for (HWND window : disabled_) EnableWindow(window, TRUE);
}

}  // namespace corvane::toolkit_win32
