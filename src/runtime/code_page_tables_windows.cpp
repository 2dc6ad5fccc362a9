#include <algorithm>
#include <windows.h>

#include "runtime/code_page_tables.h"

namespace corvane::runtime {

namespace {

// One character of Unicode: one or two units; none: length 0.
struct Units {
  wchar_t units[2] = {};
  int length = 0;
};

// [bytes] must be one character of [page], else nothing.
Units UnitsOf(unsigned page, std::string_view bytes) {
  Units result;
  result.length =
      MultiByteToWideChar(page, MB_ERR_INVALID_CHARS, bytes.data(), static_cast<int>(bytes.size()), result.units, 2);
  return result;
}

// The system has a character for every byte: control characters and private ones where the page defines none, and a
// Hebrew point that other systems do not know.
bool IsStopgap(wchar_t unit) {
  return (unit >= 0x80 && unit < 0xA0) || (unit >= 0xE000 && unit < 0xF900) || unit == 0x05BA;
}

std::string Utf8Of(const Units& character) {
  char bytes[8];
  const int length =
      WideCharToMultiByte(CP_UTF8, 0, character.units, character.length, bytes, sizeof bytes, nullptr, nullptr);
  return std::string(bytes, static_cast<size_t>(std::max(length, 0)));
}

bool AppendInPage(unsigned page, const Units& character, std::string& bytes) {
  char buffer[4];
  BOOL lost = FALSE;
  const int length = WideCharToMultiByte(page, WC_NO_BEST_FIT_CHARS, character.units, character.length, buffer,
                                         sizeof buffer, nullptr, &lost);
  if (length <= 0 || lost) return false;
  bytes.append(buffer, static_cast<size_t>(length));
  return true;
}

// ASCII at the start of [text] goes over as it is; the rest is left.
void TakeAscii(std::string_view& text, std::string& output) {
  size_t length = 0;
  while (length < text.size() && static_cast<unsigned char>(text[length]) < 0x80) ++length;
  output.append(text.substr(0, length));
  text.remove_prefix(length);
}

size_t LengthOfUtf8(std::string_view text) {
  const auto first = static_cast<unsigned char>(text[0]);
  const size_t wanted = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : first >= 0xC0 ? 2 : 1;
  size_t length = 1;
  while (length < std::min(wanted, text.size()) && (static_cast<unsigned char>(text[length]) & 0xC0) == 0x80) ++length;
  return length;
}

}  // namespace

std::array<char32_t, 256> SingleByteCharacters(int page) {
  std::array<char32_t, 256> characters;
  for (size_t byte = 0; byte < characters.size(); ++byte) {
    const char input = static_cast<char>(byte);
    const Units character =
        byte < 0x80 ? Units{{static_cast<wchar_t>(byte)}, 1} : UnitsOf(static_cast<unsigned>(page), {&input, 1});
    const bool defined = character.length == 1 && (byte < 0x80 || !IsStopgap(character.units[0]));
    characters[byte] = defined ? character.units[0] : kNoCharacter;
  }
  return characters;
}

bool AppendAsUtf8(int page, std::string_view bytes, std::string& utf8) {
  const auto table = static_cast<unsigned>(page);
  bool clean = true;
  for (TakeAscii(bytes, utf8); !bytes.empty(); TakeAscii(bytes, utf8)) {
    size_t length = 1;
    if (bytes.size() > 1 && IsDBCSLeadByteEx(table, static_cast<BYTE>(bytes[0]))) length = 2;
    const Units character = UnitsOf(table, bytes.substr(0, length));
    const bool defined = character.length > 0 && (length == 2 || !IsStopgap(character.units[0]));
    utf8 += defined ? Utf8Of(character) : "\xEF\xBF\xBD";
    clean = clean && defined;
    bytes.remove_prefix(defined ? length : 1);
  }
  return clean;
}

bool AppendFromUtf8(int page, std::string_view utf8, std::string& bytes) {
  bool clean = true;
  for (TakeAscii(utf8, bytes); !utf8.empty(); TakeAscii(utf8, bytes)) {
    const size_t length = LengthOfUtf8(utf8);
    const Units character = UnitsOf(CP_UTF8, utf8.substr(0, length));
    const bool held = character.length > 0 && AppendInPage(static_cast<unsigned>(page), character, bytes);
    if (!held) bytes += '?';
    clean = clean && held;
    utf8.remove_prefix(length);
  }
  return clean;
}

}  // namespace corvane::runtime
