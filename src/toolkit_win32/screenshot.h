// Pictures of windows.
#pragma once

#include <string>

#include "forms/form.h"
#include "toolkit_win32/win.h"

namespace corvane::toolkit_win32 {

class Win32Toolkit;

// What the window of a visible form looks like now, with its frame where the system draws one, into a PNG file. False
// when it is not shown or the file cannot be written.
bool SaveWindowPicture(Win32Toolkit& toolkit, const forms::Form& form, const std::wstring& path);
bool SaveWindowPicture(HWND window, const std::wstring& path);

}  // namespace corvane::toolkit_win32
