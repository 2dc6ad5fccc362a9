// Texts of COM (UTF-16, with their length) and of the logic (bytes of the ANSI code page).
#pragma once

#include <string>
#include <string_view>

#include "com/com_api.h"
#include "toolkit_win32/texts.h"

namespace corvane::com {

inline std::wstring ToWide(std::string_view ansi) {
  return toolkit_win32::ShownText(ansi);
}
// Characters that the code page does not hold become "?".
inline std::string ToAnsi(std::wstring_view wide) {
  return toolkit_win32::BytesOf(wide);
}

// Null is empty text; a text may hold zeros.
std::string TextOf(BSTR text);
// To be freed by whoever takes it. Throws std::bad_alloc.
BSTR NewBstr(std::string_view ansi);

}  // namespace corvane::com
