// Paths of the logic and of Windows. A name that the ANSI code page does not hold stands in a path as UTF-8: both kinds
// may stand in one path.
#pragma once

#include <string>
#include <string_view>

namespace corvane::toolkit_win32 {

// A path or a name as the system told it.
std::string PathFromSystem(std::wstring_view path);
// A path of the logic as the system takes it, whole and of any length. Bytes that are UTF-8 mean that name unless the
// name of the code page alone is there.
std::wstring PathForSystem(std::string_view path);

}  // namespace corvane::toolkit_win32
