// Texts of the logic (bytes of the ANSI code page) and of the screen (UTF-16).
#pragma once

#include <string>
#include <string_view>

namespace corvane::toolkit_win32 {

std::wstring ShownText(std::string_view bytes);
std::string BytesOf(std::wstring_view shown);

// The ANSI code page that the logic has on this system.
int SystemCodePage();
// [of_process], or, where that is none that the logic knows (as UTF-8 for all programs), that [of_language].
int KnownCodePage(unsigned of_process, unsigned of_language);

// A menu's or button's title is one line whatever it holds; file names and the like come from UTF-8.
std::wstring FromUtf8(std::string_view utf8);
std::string ToUtf8(std::wstring_view shown);

}  // namespace corvane::toolkit_win32
