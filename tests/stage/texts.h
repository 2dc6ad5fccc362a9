// Texts of the logic (bytes of its ANSI code page) as Windows has them, and back.
#pragma once

#include <string>
#include <string_view>
#include <windows.h>

namespace corvane::stage {

std::wstring Wide(std::string_view ansi);
std::string Ansi(std::wstring_view wide);
BSTR NewBstr(std::string_view ansi);  // the caller frees it
std::string FromBstr(BSTR text);

}  // namespace corvane::stage
