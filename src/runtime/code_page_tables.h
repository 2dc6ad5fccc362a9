// The system's own tables of code pages: iconv on Linux, the Windows API there.
#pragma once

#include <string>
#include <string_view>

namespace corvane::runtime {

// The characters of the single bytes of a page.
class CharacterTable {
 public:
  explicit CharacterTable(int page);
  ~CharacterTable();
  CharacterTable(const CharacterTable&) = delete;
  CharacterTable& operator=(const CharacterTable&) = delete;
  // U+FFFD where the page defines none.
  char32_t Of(unsigned char byte) const;

 private:
  void* handle_;
};

// Bytes that the page does not define become U+FFFD.
std::string Utf8OfPage(int page, std::string_view bytes);
// Appends to [bytes]; characters that the page does not hold, and what is no UTF-8, become "?" each. Returns whether
// there were none.
bool PageOfUtf8(int page, std::string_view utf8, std::string& bytes);

}  // namespace corvane::runtime
