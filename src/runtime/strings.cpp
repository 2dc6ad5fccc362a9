#include "runtime/strings.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "runtime/code_page.h"
#include "runtime/error.h"
#include "runtime/find_text.h"

namespace corvane::runtime {

namespace {

void Require(bool condition) {
  if (!condition) throw Error(kInvalidProcedureCall);
}

size_t FirstNonBlank(std::string_view text) {
  size_t at = text.find_first_not_of(' ');
  return at == std::string_view::npos ? text.size() : at;
}

size_t EndWithoutBlanks(std::string_view text) {
  size_t at = text.find_last_not_of(' ');
  return at == std::string_view::npos ? 0 : at + 1;
}

}  // namespace

long InStr(long start, std::string_view text, std::string_view find) {
  Require(start >= 1);
  if (start > Len(text)) return 0;
  size_t at = FindFirst(text, find, static_cast<size_t>(start - 1));
  return at == std::string_view::npos ? 0 : static_cast<long>(at) + 1;
}

long InStrRev(std::string_view text, std::string_view find, long start) {
  Require(start == -1 || start >= 1);
  if (text.empty() || start > Len(text)) return 0;
  if (start == -1) start = Len(text);
  if (find.empty()) return start;
  if (Len(find) > start) return 0;
  size_t at = FindLast(text.substr(0, static_cast<size_t>(start)), find);
  return at == std::string_view::npos ? 0 : static_cast<long>(at) + 1;
}

std::string Mid(std::string_view text, long start) {
  return Mid(text, start, Len(text));
}

std::string Mid(std::string_view text, long start, long count) {
  Require(start >= 1 && count >= 0);
  if (start > Len(text)) return {};
  return std::string(text.substr(static_cast<size_t>(start - 1), static_cast<size_t>(count)));
}

std::string Left(std::string_view text, long count) {
  Require(count >= 0);
  return std::string(text.substr(0, static_cast<size_t>(count)));
}

std::string Right(std::string_view text, long count) {
  Require(count >= 0);
  size_t kept = std::min(text.size(), static_cast<size_t>(count));
  return std::string(text.substr(text.size() - kept));
}

std::string LTrim(std::string_view text) {
  return std::string(text.substr(FirstNonBlank(text)));
}

std::string RTrim(std::string_view text) {
  return std::string(text.substr(0, EndWithoutBlanks(text)));
}

std::string Trim(std::string_view text) {
  text = text.substr(0, EndWithoutBlanks(text));
  return std::string(text.substr(FirstNonBlank(text)));
}

std::string UCase(std::string_view text) {
  return AnsiCodePage().ToUpper(text);
}
std::string LCase(std::string_view text) {
  return AnsiCodePage().ToLower(text);
}

std::string Space(long count) {
  return String(count, ' ');
}

std::string String(long count, char character) {
  Require(count >= 0);
  return std::string(static_cast<size_t>(count), character);
}

std::string Chr(long code) {
  Require(code >= 0 && code <= 255);
  return std::string(1, static_cast<char>(code));
}

long Asc(std::string_view text) {
  Require(!text.empty());
  return static_cast<unsigned char>(text.front());
}

std::string Replace(std::string_view text, std::string_view find, std::string_view replacement) {
  if (find.empty()) return std::string(text);
  std::string result;
  result.reserve(text.size());
  size_t from = 0;
  for (size_t at; (at = FindFirst(text, find, from)) != std::string_view::npos; from = at + find.size()) {
    result.append(text, from, at - from);
    result.append(replacement);
  }
  return result.append(text, from);
}

namespace {

// "&H" and "&O" numbers; at most 16 bits of digits are a signed Integer, as Visual Basic has it.
double Based(const std::string& digits, int base) {
  const unsigned long long value = std::strtoull(digits.c_str(), nullptr, base);
  const size_t significant =
      std::min(digits.size(), digits.find_first_not_of(base == 16 ? "0123456789ABCDEFabcdef" : "01234567"));
  if (base == 16 && significant <= 4) return static_cast<int16_t>(value);
  if (base == 8 && value <= 0xFFFF) return static_cast<int16_t>(value);
  return static_cast<int32_t>(value);
}

bool IsSkippedByVal(char c) {
  return c == ' ' || c == '\t' || c == '\n';
}

}  // namespace

double Val(std::string_view text) {
  std::string digits(text);
  digits.erase(std::remove_if(digits.begin(), digits.end(), IsSkippedByVal), digits.end());
  if (BeginsWith(digits, "&")) {
    const char base = UCase(Mid(digits, 2, 1)) == "H" ? 'H' : 'O';
    const bool lettered = base == 'H' || UCase(Mid(digits, 2, 1)) == "O";
    digits.erase(0, lettered ? 2 : 1);
    // A sign or a prefix behind it would be read by the C library.
    if (digits.empty() || !std::isxdigit(static_cast<unsigned char>(digits[0])) || BeginsWith(UCase(digits), "0X"))
      return 0;
    return Based(digits, base == 'H' ? 16 : 8);
  }
  std::replace_if(
      digits.begin(), digits.end(), [](char c) { return c == 'D' || c == 'd'; }, 'E');
  digits.resize(std::min(digits.size(), digits.find_first_not_of("+-.0123456789Ee")));
  return std::strtod(digits.c_str(), nullptr);
}

std::string CStr(double number) {
  if (number == 0) return "0";
  if (std::trunc(number) == number && std::fabs(number) < 1e15) return std::to_string(static_cast<long long>(number));
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, "%.14e", number);
  std::string text = buffer;
  size_t e = text.find('e');
  long exponent = std::strtol(text.c_str() + e + 1, nullptr, 10);
  std::string mantissa = text.substr(0, e);
  mantissa.resize(mantissa.find_last_not_of('0') + 1);
  if (mantissa.back() == '.') mantissa.pop_back();
  long digits =
      static_cast<long>(std::count_if(mantissa.begin(), mantissa.end(), [](char c) { return c >= '0' && c <= '9'; }));
  long decimals = std::max(0L, digits - 1 - exponent);
  if (exponent < 15 && decimals <= 15) {
    std::snprintf(buffer, sizeof buffer, "%.*f", static_cast<int>(decimals), number);
    return buffer;
  }
  std::snprintf(buffer, sizeof buffer, "%sE%c%02ld", mantissa.c_str(), exponent < 0 ? '-' : '+', std::labs(exponent));
  return buffer;
}

}  // namespace corvane::runtime
