#include "toolkit_win32/theme.h"

#include "toolkit_win32/toolkit.h"

namespace corvane::toolkit_win32 {

Theme::Theme(const Win32Toolkit& toolkit, HWND window, const wchar_t* kind)
    : theme_(toolkit.Styles().AreThere() ? OpenThemeData(window, kind) : nullptr) {}

Theme::~Theme() {
  if (theme_) CloseThemeData(theme_);
}

void Theme::Draw(HDC dc, int part, int state, const RECT& place) const {
  DrawThemeBackground(theme_, dc, part, state, &place, nullptr);
}

}  // namespace corvane::toolkit_win32
