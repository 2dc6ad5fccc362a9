#include "environment/designer_lines.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstring>

#include "runtime/strings.h"

namespace corvane::environment {

namespace {

bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}
// [text] is this keyword, in any case. Keywords are ASCII.
bool IsWord(std::string_view text, std::string_view keyword) {
  auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
  return text.size() == keyword.size() &&
         std::equal(text.begin(), text.end(), keyword.begin(), [&](char a, char b) { return lower(a) == lower(b); });
}

bool IsLineEnd(char c) {
  return c == '\r' || c == '\n';
}

// The first word of [text], cut off with the blanks behind it.
std::string_view CutWord(std::string_view& text) {
  size_t end = 0;
  while (end < text.size() && !IsBlank(text[end])) ++end;
  const std::string_view word = text.substr(0, end);
  while (end < text.size() && IsBlank(text[end])) ++end;
  text.remove_prefix(end);
  return word;
}

// A property's name has no blank, quote or angle bracket; "" is none ("=======" of a conflict).
bool IsPropertyName(std::string_view name) {
  if (name.empty()) return false;
  return std::none_of(name.begin(), name.end(), [](unsigned char c) { return c <= ' ' || std::strchr("\"'<>=", c); });
}

DesignerLine BlockLine(DesignerLine::Kind kind, std::string_view rest) {
  std::string_view first = CutWord(rest), second = CutWord(rest);
  // BEGIN alone is the head of a class; BeginProperty has its name first, the {GUID} behind.
  if (kind == DesignerLine::BeginProperty) std::swap(first, second);
  return {kind, second, first};
}

bool IsAttribute(std::string_view line, std::string_view name) {
  constexpr std::string_view kWord = "Attribute ";
  return line.substr(0, kWord.size()) == kWord && line.substr(kWord.size(), name.size()) == name;
}

// Where in [file] a line that begins with `Attribute VB_Name` starts, from [from] on; npos without one.
size_t FindNameAttribute(std::string_view file, size_t from) {
  constexpr std::string_view kName = "Attribute VB_Name";
  for (size_t at = file.find(kName, from); at != std::string_view::npos; at = file.find(kName, at + 1))
    if (at == 0 || file[at - 1] == '\n') return at;
  return std::string_view::npos;
}

}  // namespace

std::string_view CutLine(std::string_view& rest) {
  const void* end = std::memchr(rest.data(), '\n', rest.size());
  const size_t length = end ? static_cast<const char*>(end) - rest.data() + 1 : rest.size();
  const std::string_view line = rest.substr(0, length);
  rest.remove_prefix(length);
  return line;
}

std::string_view TrimBlanks(std::string_view text) {
  while (!text.empty() && (IsBlank(text.back()) || IsLineEnd(text.back()))) text.remove_suffix(1);
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  return text;
}

std::string Shown(std::string_view text) {
  constexpr size_t kMost = 60;
  std::string shown(text.substr(0, kMost));
  for (char& c : shown)
    if (static_cast<unsigned char>(c) < ' ' || c == 127) c = '?';
  return text.size() > kMost ? shown + "..." : shown;
}

DesignerLine ClassifyDesignerLine(std::string_view raw) {
  const std::string_view text = TrimBlanks(raw);
  if (text.empty()) return {DesignerLine::Blank, {}, {}};
  std::string_view rest = text;
  const std::string_view word = CutWord(rest);
  const bool assigned = !rest.empty() && rest.front() == '=';  // a property may be called "End"
  if (!assigned) {
    if (IsWord(word, "Begin")) return BlockLine(DesignerLine::Begin, rest);
    if (IsWord(word, "BeginProperty")) return BlockLine(DesignerLine::BeginProperty, rest);
    if (IsWord(text, "End")) return {DesignerLine::End, {}, {}};
    if (IsWord(text, "EndProperty")) return {DesignerLine::EndProperty, {}, {}};
  }
  const size_t sign = text.find('=');
  if (sign == std::string_view::npos) return {};
  const std::string_view name = TrimBlanks(text.substr(0, sign));
  if (!IsPropertyName(name)) return {};
  return {DesignerLine::Property, name, TrimBlanks(text.substr(sign + 1))};
}

bool IsVersionLine(std::string_view text) {
  constexpr std::string_view kWord = "VERSION ";
  return text.size() > kWord.size() && IsWord(text.substr(0, kWord.size()), kWord) && text[kWord.size()] >= '0' &&
         text[kWord.size()] <= '9';
}

bool IsOlderVersion(std::string_view version_line) {
  const bool is_class = version_line.size() >= 5 && IsWord(version_line.substr(version_line.size() - 5), "CLASS");
  return !is_class && runtime::Val(version_line.substr(8)) < 5;
}

DesignerValue ValueOf(std::string_view raw) {
  std::string_view value = ClassifyDesignerLine(raw).value;
  // The comment begins at the first apostrophe outside quotes.
  bool quoted = false;
  for (size_t i = 0; i < value.size(); ++i) {
    if (value[i] == '"') quoted = !quoted;
    if (value[i] == '\'' && !quoted) return {TrimBlanks(value.substr(0, i)), value.substr(i)};
  }
  return {value, {}};
}

bool IsValueClosed(std::string_view value) {
  return value.empty() || value.front() != '"' || std::count(value.begin(), value.end(), '"') % 2 == 0;
}

std::string Quoted(std::string_view text) {
  return '"' + runtime::Replace(text, "\"", "\"\"") + '"';
}

std::string Unquoted(std::string_view quoted) {
  if (quoted.size() >= 2 && quoted.front() == '"' && quoted.back() == '"') quoted = quoted.substr(1, quoted.size() - 2);
  return runtime::Replace(quoted, "\"\"", "\"");
}

bool ReadReference(std::string_view value, SiblingReference& reference) {
  reference = {};
  if (!value.empty() && value.front() == '$') {
    reference.is_text = true;
    value.remove_prefix(1);
  }
  reference.is_quoted = !value.empty() && value.front() == '"';
  const size_t colon = value.rfind(':');
  if (colon == std::string_view::npos || colon == 0) return false;
  std::string_view file = value.substr(0, colon);
  const std::string_view digits = value.substr(colon + 1);
  if (reference.is_quoted) {
    if (file.size() < 3 || file.back() != '"') return false;
    file = file.substr(1, file.size() - 2);
  } else if (reference.is_text || file.find_first_of("\" \t") != std::string_view::npos ||
             file.find('.') == std::string_view::npos) {
    return false;
  }
  // A quoted text such as "a":"b" is no reference; an offset is hexadecimal digits only.
  const char* end = digits.data() + digits.size();
  const auto [read, error] = std::from_chars(digits.data(), end, reference.offset, 16);
  if (digits.empty() || read != end || error != std::errc{}) return false;
  reference.file = std::string(file);
  return true;
}

std::string WriteReference(const SiblingReference& reference) {
  char digits[24];
  std::snprintf(digits, sizeof digits, "%04zX", reference.offset);
  const std::string file = reference.is_quoted ? '"' + reference.file + '"' : reference.file;
  return (reference.is_text ? "$" : "") + file + ":" + digits;
}

std::string PropertyLine(int depth, std::string_view name, std::string_view value, std::string_view line_end) {
  std::string line(3 * static_cast<size_t>(depth), ' ');
  line += name;
  if (name.size() < 16) line.append(16 - name.size(), ' ');
  line += "=   ";
  line += value;
  line += line_end;
  return line;
}

std::string WithValue(std::string_view raw, std::string_view value) {
  size_t start = raw.find('=') + 1;
  while (start < raw.size() && IsBlank(raw[start])) ++start;
  size_t end = raw.size();
  while (end > start && (IsLineEnd(raw[end - 1]) || IsBlank(raw[end - 1]))) --end;
  std::string line(raw.substr(0, start));
  line += value;
  line += raw.substr(end);
  return line;
}

size_t DesignerPartLength(std::string_view file) {
  std::string_view rest = file;
  if (rest.substr(0, 3) == "\xEF\xBB\xBF") rest.remove_prefix(3);
  std::string_view probe = rest;
  std::string_view first = CutLine(probe);
  while (!probe.empty() && TrimBlanks(first).empty()) first = CutLine(probe);
  if (!IsVersionLine(TrimBlanks(first))) return 0;

  long depth = 0;
  bool opened = false;
  auto position = [&] { return file.size() - rest.size(); };
  while (!rest.empty() && !(opened && depth == 0)) {
    if (IsAttribute(rest, "VB_")) return position();
    const DesignerLine line = ClassifyDesignerLine(CutLine(rest));
    if (line.kind == DesignerLine::Begin || line.kind == DesignerLine::BeginProperty) {
      ++depth;
      opened = true;
    }
    if (opened && (line.kind == DesignerLine::End || line.kind == DesignerLine::EndProperty)) --depth;
  }
  const size_t end = position();
  // Text between the End and the attributes belongs to the part: its blocks were not balanced.
  const bool attributes_follow = rest.substr(0, 10) == "Attribute ";
  const size_t name_at = attributes_follow ? std::string_view::npos : FindNameAttribute(file, end);
  return name_at == std::string_view::npos ? end : name_at;
}

}  // namespace corvane::environment
