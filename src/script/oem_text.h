// Texts of the code page of console programs.
#pragma once

#include <string>
#include <string_view>

namespace corvane::script {

// [bytes] of the OEM code page that goes with the ANSI code page in force, in the latter.
std::string OemToChar(std::string_view bytes);

}  // namespace corvane::script
