// Cell: a value of the language: text, a double, a boolean, or the integer 0 of a fresh variable.
#pragma once

#include <string>
#include <variant>

namespace corvane::script {

using Cell = std::variant<int, std::string, double, bool>;

// The text form: booleans are "True" and "False", doubles as runtime::CStr writes them.
std::string TextOf(const Cell& cell);

}  // namespace corvane::script
