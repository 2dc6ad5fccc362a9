#include "environment/properties_values.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>

#include "environment/designer_lines.h"
#include "environment/doubtful_points.h"
#include "environment/lookup.h"
#include "runtime/error.h"
#include "runtime/strings.h"

namespace corvane::environment {

using runtime::Variant;

namespace {

// Colours of QBColor(0) to QBColor(15).
constexpr long kBasicColours[] = {0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080, 0x008080, 0xC0C0C0,
                                  0x808080, 0xFF0000, 0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};

bool ReadHexadecimal(std::string_view text, double& number) {
  if (text.size() < 3 || text[0] != '&' || (text[1] != 'H' && text[1] != 'h')) return false;
  text.remove_prefix(2);
  if (text.back() == '&') text.remove_suffix(1);
  uint32_t bits = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), bits, 16);
  if (text.empty() || end != text.data() + text.size() || error != std::errc{}) return false;
  number = static_cast<int32_t>(bits);
  return true;
}

bool ReadBasicColour(std::string_view text, double& number) {
  constexpr std::string_view kFunction = "QBColor(";
  if (text.size() <= kFunction.size() || text.back() != ')' || !SameName(text.substr(0, kFunction.size()), kFunction))
    return false;
  unsigned index = 99;
  std::from_chars(text.data() + kFunction.size(), text.data() + text.size() - 1, index);
  if (index > 15) return false;
  number = static_cast<double>(kBasicColours[index]);
  return true;
}

bool IsNumberShape(std::string_view text) {
  return !text.empty() && text.find_first_not_of("0123456789+-.eE") == std::string_view::npos &&
         text.find_first_of("0123456789") != std::string_view::npos;
}

Variant NumberVariant(double number) {
  if (number == std::floor(number) && std::fabs(number) < 2147483648.0) return static_cast<long>(number);
  return number;
}

// A control byte other than a tab cannot stand in a quoted text; a tab never does in the environment's files either.
bool IsControlByte(unsigned char c) {
  return c < ' ';
}

// One of the property's own list, where that is known.
long ChoiceNumber(std::string_view choices, const Variant& value) {
  const long number = runtime::ToLong(value);
  if (number < 0 || (!choices.empty() && ChoiceText(choices, number).empty()))
    throw runtime::Error(runtime::kInvalidPropertyValue);
  return number;
}

std::string WriteColour(long colour) {
  char text[16];
  std::snprintf(text, sizeof text, "&H%08X&", static_cast<unsigned>(static_cast<uint32_t>(colour)));
  return text;
}

std::string WriteShortcut(const std::string& text) {
  if (std::any_of(text.begin(), text.end(), [](unsigned char c) { return c <= ' ' || c == '"' || c == '\''; }))
    throw runtime::Error(runtime::kInvalidPropertyValue);
  return text;
}

}  // namespace

bool NeedsSibling(std::string_view text) {
  return text.size() > doubtful::kLongestInlineText || std::any_of(text.begin(), text.end(), IsControlByte);
}

bool ReadNumber(std::string_view text, double& number) {
  if (ReadHexadecimal(text, number) || ReadBasicColour(text, number)) return true;
  std::string plain(text);
  if (std::count(plain.begin(), plain.end(), ',') == 1 && plain.find('.') == std::string::npos)
    std::replace(plain.begin(), plain.end(), ',', '.');
  if (!IsNumberShape(plain)) return false;
  const char* begin = plain.data() + (plain[0] == '+' ? 1 : 0);
  const auto [end, error] = std::from_chars(begin, plain.data() + plain.size(), number);
  return error == std::errc{} && end == plain.data() + plain.size();
}

Variant ReadValue(PropertyKind kind, const DesignerValue& value) {
  double number = 0;
  switch (kind) {
    case PropertyKind::Text:
      return Unquoted(value.text);
    case PropertyKind::Shortcut:
      return std::string(value.text);
    case PropertyKind::Boolean:
      // Anything but 0 is True.
      return !ReadNumber(value.text, number) || number != 0;
    case PropertyKind::Length:
      ReadNumber(value.text, number);
      return number;
    case PropertyKind::Number:
    case PropertyKind::Choice:
    case PropertyKind::Colour:
      ReadNumber(value.text, number);
      return static_cast<long>(std::nearbyint(std::clamp(number, -2147483648.0, 2147483647.0)));
    case PropertyKind::Picture:
      return runtime::PictureRef();
    default:
      return {};
  }
}

Variant GuessValue(const DesignerValue& value) {
  if (!value.text.empty() && value.text.front() == '"') return Unquoted(value.text);
  if (value.text == "0" && value.comment == "'False") return false;
  if (value.text == "-1" && value.comment == "'True") return true;
  double number = 0;
  if (ReadNumber(value.text, number)) return NumberVariant(number);
  return std::string(value.text);
}

Variant DefaultValue(const PropertyRow& row, const std::string& name) {
  switch (row.kind) {
    case PropertyKind::Boolean:
      return row.default_value == "True";
    case PropertyKind::Text:
      return row.default_value == "$" ? name : Unquoted(row.default_value);
    default:
      return ReadValue(row.kind, {row.default_value, {}});
  }
}

std::string WriteBoolean(bool value) {
  return value ? "-1  'True" : "0   'False";
}

// Lengths are Singles: seven digits.
std::string WriteLength(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%.7g", value);
  return runtime::CStr(runtime::Val(text));
}

std::string WriteValue(PropertyKind kind, std::string_view choices, const Variant& value) {
  switch (kind) {
    case PropertyKind::Boolean:
      return WriteBoolean(runtime::ToBoolean(value));
    case PropertyKind::Length:
      return WriteLength(runtime::ToNumber(value));
    case PropertyKind::Number:
      return runtime::CStr(runtime::ToLong(value));
    case PropertyKind::Colour:
      return WriteColour(runtime::ToLong(value));
    case PropertyKind::Choice: {
      const long number = ChoiceNumber(choices, value);
      const std::string_view text = ChoiceText(choices, number);
      return runtime::CStr(number) + (text.empty() ? "" : "  '" + std::string(text));
    }
    case PropertyKind::Text:
      return Quoted(runtime::ToText(value));
    case PropertyKind::Shortcut:
      return WriteShortcut(runtime::ToText(value));
    default:
      throw runtime::Error(runtime::kPropertyReadOnly);
  }
}

}  // namespace corvane::environment
