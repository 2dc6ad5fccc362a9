#include <windows.h>

#include "runtime/code_page_tables.h"

namespace corvane::runtime {

namespace {

// The pages' own answer for a byte that they leave free is the control character of that number.
bool IsUndefined(wchar_t character, unsigned char byte) {
  return character == 0xFFFD || (byte >= 0x80 && byte < 0xA0 && character == byte) ||
         (character >= 0xE000 && character < 0xF900);
}

// The character of [length] bytes; 0 where the page has none.
wchar_t CharacterOf(int page, const char* bytes, int length) {
  wchar_t wide[2];
  const int count = MultiByteToWideChar(page, MB_ERR_INVALID_CHARS, bytes, length, wide, 2);
  if (count != 1) return 0;
  return length == 1 && IsUndefined(wide[0], static_cast<unsigned char>(bytes[0])) ? 0 : wide[0];
}

void AppendUtf8(std::string& utf8, wchar_t character) {
  char buffer[4];
  utf8.append(buffer, WideCharToMultiByte(CP_UTF8, 0, &character, 1, buffer, sizeof buffer, nullptr, nullptr));
}

// The length of the UTF-8 character at the front; 0 where it is broken.
size_t LengthOfCharacter(std::string_view utf8) {
  const auto first = static_cast<unsigned char>(utf8[0]);
  const size_t length = first < 0x80 ? 1 : first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : first >= 0xC2 ? 2 : 0;
  if (length > utf8.size()) return 0;
  for (size_t i = 1; i < length; ++i)
    if ((static_cast<unsigned char>(utf8[i]) & 0xC0) != 0x80) return 0;
  return length;
}

}  // namespace

CharacterTable::CharacterTable(int page) : handle_(reinterpret_cast<void*>(static_cast<intptr_t>(page))) {}

CharacterTable::~CharacterTable() = default;

char32_t CharacterTable::Of(unsigned char byte) const {
  const char input = static_cast<char>(byte);
  const wchar_t character = CharacterOf(static_cast<int>(reinterpret_cast<intptr_t>(handle_)), &input, 1);
  return character == 0 && byte != 0 ? 0xFFFD : character;
}

std::string Utf8OfPage(int page, std::string_view bytes) {
  std::string utf8;
  utf8.reserve(bytes.size() + bytes.size() / 2);
  for (size_t i = 0; i < bytes.size();) {
    const auto byte = static_cast<unsigned char>(bytes[i]);
    if (byte < 0x80) {
      utf8 += bytes[i++];
      continue;
    }
    const bool two = IsDBCSLeadByteEx(page, byte) && i + 1 < bytes.size();
    const wchar_t character = CharacterOf(page, bytes.data() + i, two ? 2 : 1);
    AppendUtf8(utf8, character == 0 ? L'\xFFFD' : character);
    i += two && character != 0 ? 2 : 1;
  }
  return utf8;
}

bool PageOfUtf8(int page, std::string_view utf8, std::string& bytes) {
  bool clean = true;
  while (!utf8.empty()) {
    size_t length = LengthOfCharacter(utf8);
    wchar_t wide[2];
    const int count = length == 0 ? 0
                                  : MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, utf8.data(),
                                                        static_cast<int>(length), wide, 2);
    char buffer[8];
    BOOL lost = count == 0;
    const int written =
        count == 0 ? 0
                   : WideCharToMultiByte(page, WC_NO_BEST_FIT_CHARS, wide, count, buffer, sizeof buffer, nullptr, &lost);
    if (lost || written == 0) {
      bytes += '?';
      clean = false;
      for (length = 1; length < utf8.size() && (static_cast<unsigned char>(utf8[length]) & 0xC0) == 0x80;) ++length;
    } else {
      bytes.append(buffer, static_cast<size_t>(written));
    }
    utf8.remove_prefix(length);
  }
  return clean;
}

}  // namespace corvane::runtime
