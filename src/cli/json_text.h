// Texts of the logic as JSON strings.
#pragma once

#include <string>
#include <string_view>

namespace corvane::cli {

// [bytes] of the ANSI code page in force, in quotes: UTF-8, with what JSON does not allow escaped.
std::string JsonText(std::string_view bytes);

}  // namespace corvane::cli
