#include "script/numbers.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "runtime/error.h"
#include "runtime/strings.h"
#include "runtime/variant.h"

namespace corvane::script {

namespace {

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// The plain whole numbers that most texts are; -1 for others.
double Digits(std::string_view text) {
  if (text.empty() || text.size() > 15) return -1;
  long long number = 0;
  for (char c : text) {
    if (!IsDigit(c)) return -1;
    number = number * 10 + (c - '0');
  }
  return static_cast<double>(number);
}

constexpr double kFirstOfManyDigits = 1e15;

// No number begins with another character than these, blanks apart. "$" is the currency sign.
constexpr std::string_view kFirstOfNumber = " +-.0123456789&($";
// Nor holds one another than these. To find that out from a failed conversion takes longer than a whole statement.
constexpr std::string_view kInNumbers = " +-.,0123456789&()$ABCDEFHOabcdefho";

std::string WithoutCurrencySign(std::string_view text) {
  std::string number(text);
  const size_t at = number.find_first_not_of(" +-(");
  if (at != std::string::npos && number[at] == '$') number.erase(at, 1);
  return number;
}

}  // namespace

std::optional<double> NumberOf(std::string_view text) {
  if (const double number = Digits(text); number >= 0) return number;
  if (text.empty() || text.size() > kLongestNumber || kFirstOfNumber.find(text[0]) == std::string_view::npos) return {};
  if (text.find_first_not_of(kInNumbers) != std::string_view::npos) return {};
  std::optional<double> number;
  runtime::PassOverErrors([&] { number = runtime::ToNumber(WithoutCurrencySign(text)); });
  return number;
}

std::string TextOfNumber(double number) {
  std::string text = runtime::CStr(number);
  if (std::trunc(number) == number && std::fabs(number) < kFirstOfManyDigits) return text;
  for (int digits = 16; digits <= 17 && std::strtod(text.c_str(), nullptr) != number; ++digits) {
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.*G", digits, number);
    text = buffer;
  }
  return text;
}

std::optional<bool> BooleanOf(std::string_view text) {
  if (text == "True") return true;
  if (text == "False") return false;
  if (const auto number = NumberOf(text)) return *number != 0;
  const std::string upper = runtime::UCase(runtime::Trim(text.substr(0, text.size() > 64 ? 0 : text.size())));
  if (upper == "TRUE" || upper == "#TRUE#") return true;
  if (upper == "FALSE" || upper == "#FALSE#") return false;
  return {};
}

bool LooksNumeric(std::string_view text) {
  if (text.empty()) return false;
  if (text.size() > 1 && (text.back() < '1' || text.back() > '9')) return false;
  return IsNumeric(text);
}

}  // namespace corvane::script
