// Texts as Visual Basic string expressions, and back.
#pragma once

#include <string>
#include <string_view>

namespace corvane::script {

// Source of a string expression over several lines. With [substitution] a ":name" of an SQL text is joined in. Throws
// Error 14 where it gets too long.
std::string VBSTR(std::string_view text, bool substitution);

// The text that a string expression has, as far as it is made of strings and vbCrLf; other characters are kept.
std::string UNVBSTR(std::string_view source);

}  // namespace corvane::script
