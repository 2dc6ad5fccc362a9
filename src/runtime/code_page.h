// CodePage: one Windows ANSI code page: case, letters, lead bytes, and the way to and from UTF-8 at the seams.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace corvane::runtime {

class CodePage {
 public:
  // Windows code pages 874, 932, 936, 949, 950 and 1250 to 1258. Any other number is taken as 1252.
  explicit CodePage(int number = 1252);

  int Number() const { return number_; }
  bool IsDoubleByte() const { return double_byte_; }
  // Whether [byte] is the first of a character of two bytes.
  bool IsLead(unsigned char byte) const { return lead_[byte]; }
  // Whether [byte] is a letter, digit or underscore of this page (every byte of a two-byte character is).
  bool IsWordByte(unsigned char byte) const { return word_[byte]; }

  // Whether the byte at [at] (from 0) of [bytes] is the second of a character of two bytes. Walks from the start.
  bool IsSecondByte(std::string_view bytes, size_t at) const;
  // A text of the same length in which a search for ASCII characters finds none inside a character of two bytes:
  // [bytes] itself, or, in a page that has such characters, [copy], in which their first byte stands in place of the
  // second.
  std::string_view ForSearch(std::string_view bytes, std::string& copy) const;

  // Case by this page. Lengths never change: a letter whose other case is not in the page stays as it is.
  std::string ToUpper(std::string_view bytes) const;
  std::string ToLower(std::string_view bytes) const;
  unsigned char Upper(unsigned char byte) const { return upper_[byte]; }
  const std::array<unsigned char, 256>& UpperTable() const { return upper_; }
  // Place of each byte in the order of a sorted list (see collate.h); bytes that differ in case only share one.
  const std::array<uint16_t, 256>& ListOrder() const { return list_order_; }

  // Bytes that the page does not define become U+FFFD; characters that it does not hold become "?".
  std::string ToUtf8(std::string_view bytes) const;
  std::string FromUtf8(std::string_view utf8) const;
  // The same, and whether nothing was lost.
  bool FromUtf8(std::string_view utf8, std::string& bytes) const;

 private:
  std::string Mapped(std::string_view bytes, const std::array<unsigned char, 256>& table) const;
  int number_;
  bool double_byte_ = false;
  std::array<bool, 256> lead_{}, word_{};
  std::array<unsigned char, 256> upper_{}, lower_{};
  std::array<uint16_t, 256> list_order_{};
  std::array<char32_t, 256> unicode_{};
};

// The code page of this process, as Windows has one for each: 1252 until the program that hosts the logic chooses
// another at its start or for the project it opens.
const CodePage& AnsiCodePage();
void SetAnsiCodePage(int number);

// The page that fits a font's character set (Font.Charset), 0 if it says nothing (0, 1, 2, 255).
int CodePageOfCharset(int charset);

}  // namespace corvane::runtime
