// TextSearch: one search text, prepared once: finds it in stretches of bytes, with or without case.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace corvane::environment {

class TextSearch {
 public:
  // By the code page in force; requires a text that is not empty.
  TextSearch(std::string_view text, bool match_case);

  // The first place in [begin, end), null if there is none. In a double-byte code page it may be one inside a
  // character: see IsAtCharacter.
  const char* Find(const char* begin, const char* end) const;
  size_t Length() const { return text_.size(); }
  // Whether it was prepared for this search, by the code page in force.
  bool IsFor(std::string_view text, bool match_case) const;

 private:
  // One byte of the text in both cases.
  struct Probe {
    size_t at = 0;
    unsigned char one = 0, other = 0;
  };
  bool FitsAt(const char* place) const;
  Probe ProbeAt(size_t at) const;
  void ChooseProbes();

  std::string asked_;
  int code_page_;
  std::string text_;  // upper-cased without case
  bool match_case_;
  bool double_byte_;
  std::array<unsigned char, 256> fold_;
  Probe rare_, second_;
  bool has_probes_ = false;
};

// Whether a character of a double-byte code page begins at offset [at] of [line].
bool IsAtCharacter(std::string_view line, size_t at);

}  // namespace corvane::environment
