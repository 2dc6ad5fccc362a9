// Format as Visual Basic's function of that name has it: a text, which may be a number or a date, with a picture.
#pragma once

#include <string>
#include <string_view>

namespace corvane::runtime {

// A picture of dates formats a date (a number is taken for one), a picture of digits a number; "@" and "&" places and
// "<" and ">" format a text. Pictures of numbers have up to three sections, for positive, negative and zero, and may
// group thousands ("#,##0.00"), show percents ("0%") or powers ("0.00E+00"). An empty picture gives the value.
std::string FormatValue(std::string_view value, std::string_view picture);

}  // namespace corvane::runtime
