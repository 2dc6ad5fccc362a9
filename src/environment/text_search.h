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
  // character: see CharacterWalk.
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

// Tells where the characters of a double-byte code page begin. Places of one line that are asked for from left to right
// cost one walk through the line.
class CharacterWalk {
 public:
  // Whether a character begins at offset [at] of [line].
  bool IsAt(std::string_view line, size_t at);
  // Whether the character in front of offset [at], where one begins, is a letter, digit or underscore.
  bool IsWordBefore(std::string_view line, size_t at);

 private:
  void WalkTo(std::string_view line, size_t at);
  const char* line_ = nullptr;
  size_t at_ = 0;        // where a character begins
  size_t previous_ = 0;  // where the one in front of it does
};

}  // namespace corvane::environment
