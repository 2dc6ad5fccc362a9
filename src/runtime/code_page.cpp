#include "runtime/code_page.h"

#include <memory>

#include "runtime/code_page_tables.h"

namespace corvane::runtime {

namespace {

constexpr int kPages[] = {874, 932, 936, 949, 950, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258};

bool IsKnown(int number) {
  for (int page : kPages)
    if (page == number) return true;
  return false;
}

char32_t CaseOf(char32_t c, bool upper) {
  auto shift = [&](char32_t first_upper, char32_t last_upper, char32_t distance) -> char32_t {
    if (upper && c >= first_upper + distance && c <= last_upper + distance) return c - distance;
    if (!upper && c >= first_upper && c <= last_upper) return c + distance;
    return 0;
  };
  if (c == 0xF7 || c == 0xD7) return c;
  for (auto [first, last, distance] : {std::array<char32_t, 3>{'A', 'Z', 32},
                                       {0xC0, 0xDE, 32},
                                       {0x391, 0x3AB, 32},
                                       {0x410, 0x42F, 32},
                                       {0x400, 0x40F, 80}})
    if (char32_t other = shift(first, last, distance)) return other;
  if (c == 0xFF) return upper ? 0x178 : c;
  if (c == 0x178) return upper ? c : 0xFF;
  if (c == 0x3AC) return upper ? 0x386 : c;
  if (c == 0x386) return upper ? c : 0x3AC;
  if (c >= 0x3AD && c <= 0x3AF) return upper ? c - 37 : c;
  if (c >= 0x388 && c <= 0x38A) return upper ? c : c + 37;
  if (c == 0x3CC || c == 0x38C) return upper ? 0x38C : 0x3CC;
  if (c == 0x3CD || c == 0x3CE) return upper ? c - 63 : c;
  if (c == 0x38E || c == 0x38F) return upper ? c : c + 63;
  if (c == 0x490 || c == 0x491) return upper ? 0x490 : 0x491;
  bool even_upper = (c >= 0x100 && c <= 0x12F) || (c >= 0x132 && c <= 0x137) || (c >= 0x14A && c <= 0x177);
  bool odd_upper = (c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E);
  if (even_upper) return upper ? c & ~char32_t{1} : c | 1;
  if (odd_upper) return upper ? (c & 1 ? c : c - 1) : (c & 1 ? c + 1 : c);
  if (c >= 0x1A0 && c <= 0x1B0 && (c == 0x1A0 || c == 0x1A1)) return upper ? 0x1A0 : 0x1A1;
  if (c == 0x1AF || c == 0x1B0) return upper ? 0x1AF : 0x1B0;
  return c;
}

// The symbols of ASCII in the order of a Western locale, behind ".", which comes first of all, and before "_".
constexpr std::string_view kSymbols = "-,;:!?'\"()[]{}@*/\\&#%`^+<=>|~$";

uint16_t PlaceInList(const CodePage& page, unsigned char byte) {
  enum Group : uint16_t {
    kBlank = 1,
    kTab = 2,
    kControl = 3,
    kPoint = 10,
    kSymbol = 20,
    kUnderscore = 60,
    kOther = 100,
    kDigit = 500,
    kLetter = 1000
  };
  if (byte == ' ') return kBlank;
  if (byte == '\t') return kTab;
  if (byte == '.') return kPoint;
  if (byte == '_') return kUnderscore;
  if (byte >= '0' && byte <= '9') return static_cast<uint16_t>(kDigit + byte);
  if (const size_t at = kSymbols.find(static_cast<char>(byte)); at != std::string_view::npos)
    return static_cast<uint16_t>(kSymbol + at);
  if (page.IsWordByte(byte)) return static_cast<uint16_t>(kLetter + page.Upper(byte));
  return static_cast<uint16_t>(byte < 0x80 ? kControl : kOther + byte);
}

bool IsLetter(char32_t c) {
  if (c == kNoCharacter) return false;
  if (c < 0x80) return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
  if (c == 0xAA || c == 0xB5 || c == 0xBA) return true;
  if (c < 0xC0) return false;
  if (c == 0xD7 || c == 0xF7) return false;
  if (c < 0x2000) return true;
  return c >= 0xF900 && c < 0xFE00;
}

}  // namespace

CodePage::CodePage(int number) : number_(IsKnown(number) ? number : 1252) {
  double_byte_ = number_ == 932 || number_ == 936 || number_ == 949 || number_ == 950;
  unicode_ = SingleByteCharacters(number_);
  for (int byte = 0x80; double_byte_ && byte < 256; ++byte) {
    lead_[byte] = number_ == 932 ? (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC)
                                 : byte >= 0x81 && byte <= 0xFE;
    if (lead_[byte]) unicode_[byte] = kNoCharacter;
  }
  for (int byte = 0; byte < 256; ++byte) {
    upper_[byte] = lower_[byte] = static_cast<unsigned char>(byte);
    char32_t code = unicode_[byte];
    word_[byte] = lead_[byte] || IsLetter(code) || (code >= '0' && code <= '9') || code == '_';
    if (code == kNoCharacter) continue;
    for (int other = 0; other < 256; ++other) {
      if (unicode_[other] == CaseOf(code, true)) upper_[byte] = static_cast<unsigned char>(other);
      if (unicode_[other] == CaseOf(code, false)) lower_[byte] = static_cast<unsigned char>(other);
    }
  }
  for (int byte = 0; byte < 256; ++byte) list_order_[byte] = PlaceInList(*this, static_cast<unsigned char>(byte));
}

std::string CodePage::Mapped(std::string_view bytes, const std::array<unsigned char, 256>& table) const {
  std::string result(bytes);
  if (!double_byte_) {
    for (char& c : result) c = static_cast<char>(table[static_cast<unsigned char>(c)]);
    return result;
  }
  for (size_t i = 0; i < result.size(); ++i) {
    auto byte = static_cast<unsigned char>(result[i]);
    if (lead_[byte] && i + 1 < result.size())
      ++i;
    else
      result[i] = static_cast<char>(table[byte]);
  }
  return result;
}

std::string_view CodePage::ForSearch(std::string_view bytes, std::string& copy) const {
  if (!double_byte_) return bytes;
  copy = bytes;
  for (size_t i = 0; i + 1 < copy.size(); ++i) {
    if (!lead_[static_cast<unsigned char>(copy[i])]) continue;
    copy[i + 1] = copy[i];
    ++i;
  }
  return copy;
}

bool CodePage::IsSecondByte(std::string_view bytes, size_t at) const {
  if (!double_byte_) return false;
  size_t character = 0;
  while (character < at) character += lead_[static_cast<unsigned char>(bytes[character])] ? 2 : 1;
  return character != at;
}

std::string CodePage::ToUpper(std::string_view bytes) const {
  return Mapped(bytes, upper_);
}

std::string CodePage::ToLower(std::string_view bytes) const {
  return Mapped(bytes, lower_);
}

std::string CodePage::ToUtf8(std::string_view bytes) const {
  bool plain = true;
  for (char c : bytes) plain = plain && static_cast<unsigned char>(c) < 0x80;
  if (plain) return std::string(bytes);
  std::string result;
  AppendAsUtf8(number_, bytes, result);
  return result;
}

std::string CodePage::FromUtf8(std::string_view utf8) const {
  std::string bytes;
  FromUtf8(utf8, bytes);
  return bytes;
}

bool CodePage::FromUtf8(std::string_view utf8, std::string& bytes) const {
  bytes.clear();
  return AppendFromUtf8(number_, utf8, bytes);
}

namespace {
std::unique_ptr<CodePage>& Current() {
  static auto page = std::make_unique<CodePage>(1252);
  return page;
}
}  // namespace

const CodePage& AnsiCodePage() {
  return *Current();
}

void SetAnsiCodePage(int number) {
  if (Current()->Number() != number) Current() = std::make_unique<CodePage>(number);
}

int CodePageOfCharset(int charset) {
  switch (charset) {
    case 128:
      return 932;
    case 129:
      return 949;
    case 134:
      return 936;
    case 136:
      return 950;
    case 161:
      return 1253;
    case 162:
      return 1254;
    case 163:
      return 1258;
    case 177:
      return 1255;
    case 178:
      return 1256;
    case 186:
      return 1257;
    case 204:
      return 1251;
    case 222:
      return 874;
    case 238:
      return 1250;
    default:
      return 0;
  }
}

}  // namespace corvane::runtime
