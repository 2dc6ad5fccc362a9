// Theme: the parts of a kind of control as the system's visual styles draw them; not there where a window has none.
#pragma once

#include "toolkit_win32/win.h"
// Needs the Windows API in front of it.
#include <uxtheme.h>

namespace corvane::toolkit_win32 {

class Win32Toolkit;

class Theme {
 public:
  // [kind]: as the system names it ("BUTTON").
  Theme(const Win32Toolkit& toolkit, HWND window, const wchar_t* kind);
  ~Theme();
  Theme(const Theme&) = delete;
  Theme& operator=(const Theme&) = delete;

  explicit operator bool() const { return theme_ != nullptr; }
  void Draw(HDC dc, int part, int state, const RECT& place) const;

 private:
  HTHEME theme_;
};

}  // namespace corvane::toolkit_win32
