// Texts as numbers and booleans: the conversions of the language, none of which raises anything.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace corvane::script {

// No text of more characters is taken for a number.
inline constexpr size_t kLongestNumber = 1000;

// As the platform's CDbl reads [text], a "$" included; nothing for a text that is no number or does not fit.
std::optional<double> NumberOf(std::string_view text);
inline bool IsNumeric(std::string_view text) {
  return NumberOf(text).has_value();
}

// The text of a number, which is read back as the same number: as the platform's CStr writes it where 15 digits do.
std::string TextOfNumber(double number);

// "True" and "False" in any case; any number but 0 is true; nothing for other texts.
std::optional<bool> BooleanOf(std::string_view text);

// Whether a value may stand in an expression without marks: a number that, if longer than one character, ends in a
// digit from 1 to 9.
bool LooksNumeric(std::string_view text);

inline std::string BooleanText(bool value) {
  return value ? "True" : "False";
}

}  // namespace corvane::script
