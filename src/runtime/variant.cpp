#include "runtime/variant.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "runtime/error.h"
#include "runtime/strings.h"

namespace corvane::runtime {

namespace {

// Texts as CDbl takes them: blanks around, a sign before or behind, brackets for a negative number, "," between groups,
// an exponent with E or D, "&H" and "&O". False for anything else.
bool ReadNumber(std::string text, double& number) {
  text = Trim(text);
  if (BeginsWith(text, "&")) {
    const std::string digits = UCase(Mid(text, 2));
    const bool hexadecimal = BeginsWith(digits, "H");
    const std::string rest = Mid(digits, hexadecimal || BeginsWith(digits, "O") ? 2 : 1);
    number = Val(text);
    return !rest.empty() && rest.find_first_not_of(hexadecimal ? "0123456789ABCDEF" : "01234567") == std::string::npos;
  }
  bool negative = false;
  if (BeginsWith(text, "(") && text.back() == ')') {
    negative = true;
    text = Trim(Mid(text, 2, Len(text) - 2));
  } else if (!text.empty() && (text.back() == '-' || text.back() == '+') &&
             text.find_first_of("+-") == text.size() - 1) {
    negative = text.back() == '-';
    text = Trim(Left(text, Len(text) - 1));
  }
  const size_t point = std::min(text.find('.'), text.size());
  for (size_t at = text.find(',', 1); at < point; at = text.find(',', at)) text.erase(at, 1);
  if (text.find_first_not_of("+-.0123456789EeDd") != std::string::npos) return false;
  for (char& c : text)
    if (c == 'D' || c == 'd') c = 'E';
  char* end = nullptr;
  number = std::strtod(text.c_str(), &end);
  if (text.empty() || *end != '\0') return false;
  if (std::isinf(number)) throw Error(kOverflow);
  if (negative) number = -number;
  return true;
}

}  // namespace

std::string ToText(const Variant& value) {
  if (auto* flag = std::get_if<bool>(&value)) return *flag ? "True" : "False";
  if (auto* number = std::get_if<long>(&value)) return CStr(*number);
  if (auto* number = std::get_if<double>(&value)) return CStr(*number);
  if (auto* text = std::get_if<std::string>(&value)) return *text;
  return {};
}

double ToNumber(const Variant& value) {
  if (std::holds_alternative<std::monostate>(value)) return 0;
  if (auto* flag = std::get_if<bool>(&value)) return *flag ? -1 : 0;
  if (auto* number = std::get_if<long>(&value)) return static_cast<double>(*number);
  if (auto* number = std::get_if<double>(&value)) return *number;
  if (auto* text = std::get_if<std::string>(&value)) {
    double number = 0;
    if (ReadNumber(*text, number)) return number;
  }
  throw Error(kTypeMismatch);
}

long ToLong(const Variant& value) {
  double number = std::nearbyint(ToNumber(value));
  if (number < -2147483648.0 || number > 2147483647.0) throw Error(kOverflow);
  return static_cast<long>(number);
}

bool ToBoolean(const Variant& value) {
  if (auto* text = std::get_if<std::string>(&value)) {
    std::string upper = UCase(Trim(*text));
    if (upper == "TRUE" || upper == "#TRUE#") return true;
    if (upper == "FALSE" || upper == "#FALSE#") return false;
  }
  return ToNumber(value) != 0;
}

}  // namespace corvane::runtime
