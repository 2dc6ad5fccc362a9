// LinePattern: a search pattern of the environment: ? one character, * any text, # a digit, [list] and [!list] one
// character of a list with ranges.
#pragma once

#include <array>
#include <bitset>
#include <string_view>
#include <vector>

#include "environment/text_search.h"

namespace corvane::environment {

class LinePattern {
 public:
  // Throws Error 93 for an unclosed "[" where that is an error.
  LinePattern(std::string_view pattern, bool match_case);

  struct Hit {
    size_t at = 0, length = 0;
    bool found = false;
  };
  // The first hit at or behind [from], the shortest one there. [whole_word]: its neighbours are no letters or digits.
  Hit Find(std::string_view line, size_t from, bool whole_word) const;

 private:
  using Set = std::bitset<256>;    // the bytes that one place of the pattern takes
  using Piece = std::vector<Set>;  // what stands between two "*"
  bool FitsAt(const Piece& piece, std::string_view line, size_t at) const;
  bool FindRest(std::string_view line, size_t at, bool whole_word, size_t& end) const;
  Set SetOf(unsigned char byte) const;
  size_t ReadList(std::string_view pattern, size_t open, Set& set) const;

  bool match_case_;
  std::vector<Piece> pieces_;
};

// Whether the characters beside [at, at + length) are no letters, digits or underscores of the code page. The walk
// makes many places of one line cheap.
bool IsWholeWord(std::string_view line, size_t at, size_t length);
bool IsWholeWord(std::string_view line, size_t at, size_t length, CharacterWalk& walk);

}  // namespace corvane::environment
