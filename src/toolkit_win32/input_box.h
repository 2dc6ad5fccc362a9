// The window of InputBox: the prompt, OK and Cancel beside it, the text below.
#pragma once

#include <string>

#include "toolkit_win32/win.h"

namespace corvane::toolkit_win32 {

enum InputBoxPart : int { kInputPrompt = 100, kInputText = 101 };  // beside IDOK and IDCANCEL

enum class AtStart { Selected, CaretBehind };  // how the text stands in the box

// Shows it in front of [owner] and waits. Empty text on Cancel, Esc and the close box.
std::wstring ShowInputBox(HWND owner, const std::wstring& prompt, const std::wstring& title, const std::wstring& text,
                          AtStart at_start);

}  // namespace corvane::toolkit_win32
