#include "runtime/variant.h"

#include <cmath>
#include <cstdlib>

#include "runtime/error.h"
#include "runtime/strings.h"

namespace corvane::runtime {

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
    std::string trimmed = Trim(*text);
    if (UCase(Left(trimmed, 2)) == "&H") return Val(trimmed);
    char* end = nullptr;
    double number = std::strtod(trimmed.c_str(), &end);
    if (!trimmed.empty() && *end == '\0') return number;
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
    if (upper == "TRUE") return true;
    if (upper == "FALSE") return false;
  }
  return ToNumber(value) != 0;
}

}  // namespace corvane::runtime
