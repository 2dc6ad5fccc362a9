// The system's own tables of the Windows code pages: iconv on Linux, the Windows API there. code_page.cpp alone uses
// them.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace corvane::runtime {

inline constexpr char32_t kNoCharacter = 0xFFFD;

// What each byte is that is a character by itself; kNoCharacter for those that are none or that [page] leaves
// undefined.
std::array<char32_t, 256> SingleByteCharacters(int page);

// Append the whole text; what the page does not define becomes U+FFFD, what it does not hold becomes "?".
// Return whether nothing was lost.
bool AppendAsUtf8(int page, std::string_view bytes, std::string& utf8);
bool AppendFromUtf8(int page, std::string_view utf8, std::string& bytes);

}  // namespace corvane::runtime
