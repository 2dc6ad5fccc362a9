// Format with a picture of number places. Understood: 0 and # places, one point, blanks and any other character as a
// literal before, behind or between. The value is rounded half away from zero, and digits that have no place are shown.
#include <cmath>
#include <cstdio>

#include "runtime/strings.h"

namespace corvane::runtime {

namespace {

bool IsPlace(char c) { return c == '0' || c == '#'; }

struct Picture {
  long whole_zeros = 0;     // digits shown at least, from the first "0" to the point
  long decimals = 0;        // places behind the point
  long decimal_zeros = 0;   // of these, shown even when zero
  bool point = false;
  std::string before;       // literals in front of the first place
  std::string behind;       // literals behind the last place
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

}  // namespace

std::string Format(double number, std::string_view picture) {
  if (picture.empty()) return CStr(number);
  Picture parts = Parse(picture);
  double scale = std::pow(10.0, static_cast<double>(parts.decimals));
  double rounded = std::floor(std::fabs(number) * scale + 0.5) / scale;
  char buffer[400];
  std::snprintf(buffer, sizeof buffer, "%.*f", static_cast<int>(parts.decimals), rounded);
  std::string digits = buffer;
  size_t point = digits.find('.');
  std::string whole = digits.substr(0, point);
  std::string decimals = point == std::string::npos ? "" : digits.substr(point + 1);
  if (whole == "0" && parts.whole_zeros == 0) whole.clear();
  while (Len(whole) < parts.whole_zeros) whole.insert(0, 1, '0');
  while (Len(decimals) > parts.decimal_zeros && decimals.back() == '0') decimals.pop_back();
  std::string sign = number < 0 && rounded != 0 ? "-" : "";
  return sign + parts.before + whole + (parts.point ? "." : "") + decimals + parts.behind;
}

}  // namespace corvane::runtime
