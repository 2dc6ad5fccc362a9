// Format with a picture of number places. Understood: 0 and # places, one point, blanks and any other character as a
// literal before, behind or between. The value is rounded half away from zero, and digits that have no place are shown.
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "runtime/error.h"
#include "runtime/strings.h"

namespace corvane::runtime {

namespace {

bool IsPlace(char c) {
  return c == '0' || c == '#';
}

struct Picture {
  long whole_zeros = 0;    // digits shown at least, from the first "0" to the point
  long decimals = 0;       // places behind the point
  long decimal_zeros = 0;  // of these, shown even when zero
  bool point = false;
  std::string before;  // literals in front of the first place
  std::string behind;  // literals behind the last place
};

Picture Parse(std::string_view picture) {
  Picture result;
  bool in_places = false;
  for (char c : picture) {
    if (IsPlace(c)) {
      in_places = true;
      if (!result.point) {
        if (c == '0' || result.whole_zeros > 0) ++result.whole_zeros;
      } else {
        ++result.decimals;
        if (c == '0') result.decimal_zeros = result.decimals;
      }
    } else if (c == '.' && !result.point) {
      in_places = result.point = true;
    } else {
      (in_places ? result.behind : result.before) += c;
    }
  }
  return result;
}

// [number] without its sign, rounded to [decimals] places half away from zero. As Visual Basic does, the rounding looks
// at fifteen digits: 1.005 is 1.01, though the nearest double lies below.
std::string RoundedDigits(double number, long decimals) {
  if (!std::isfinite(number)) throw Error(kOverflow);
  char buffer[400];
  std::snprintf(buffer, sizeof buffer, "%.14e", std::fabs(number));
  const long exponent = std::strtol(std::strchr(buffer, 'e') + 1, nullptr, 10);
  const long places = 14 - exponent;  // decimals that fifteen digits reach
  if (places <= decimals) {
    std::snprintf(buffer, sizeof buffer, "%.*f", static_cast<int>(decimals), std::strtod(buffer, nullptr));
    return buffer;
  }
  // One digit behind the last place, cut from the fifteen, decides.
  std::snprintf(buffer, sizeof buffer, "%.*f", static_cast<int>(places), std::strtod(buffer, nullptr));
  std::string digits = buffer;
  const size_t cut = digits.size() - static_cast<size_t>(places - decimals);
  const bool up = digits[cut] >= '5';
  digits.resize(decimals == 0 ? cut - 1 : cut);
  if (!up) return digits;
  for (size_t at = digits.size(); at-- > 0;) {
    if (digits[at] == '.') continue;
    if (digits[at] != '9') return ++digits[at], digits;
    digits[at] = '0';
  }
  return "1" + digits;
}

}  // namespace

std::string Format(double number, std::string_view picture) {
  if (picture.empty()) return CStr(number);
  Picture parts = Parse(picture);
  const std::string digits = RoundedDigits(number, parts.decimals);
  size_t point = digits.find('.');
  std::string whole = digits.substr(0, point);
  std::string decimals = point == std::string::npos ? "" : digits.substr(point + 1);
  if (whole == "0" && parts.whole_zeros == 0) whole.clear();
  while (Len(whole) < parts.whole_zeros) whole.insert(0, 1, '0');
  while (Len(decimals) > parts.decimal_zeros && decimals.back() == '0') decimals.pop_back();
  std::string sign = number < 0 && digits.find_first_of("123456789") != std::string::npos ? "-" : "";
  return sign + parts.before + whole + (parts.point ? "." : "") + decimals + parts.behind;
}

}  // namespace corvane::runtime
