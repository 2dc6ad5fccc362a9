// LinePattern: a search pattern of the environment: ? one character, * any text, # a digit, [list] and [!list] one
// character of a list with ranges.
#pragma once

#include <bitset>
#include <cstdint>
#include <string_view>
#include <utility>
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
  using Set = std::bitset<256>;
  // Characters of two bytes, by their code.
  struct Pairs {
    std::vector<std::pair<uint16_t, uint16_t>> ranges;
    bool others = false;  // all but those of the ranges
    bool Takes(uint16_t pair) const;
  };
  struct Place {
    Set bytes;
    Pairs pairs;
  };
  // What stands between two "*": what each of its places takes.
  struct Piece {
    std::vector<Set> bytes;
    std::vector<Pairs> pairs;
    size_t size() const { return bytes.size(); }
  };
  static constexpr size_t kNoFit = static_cast<size_t>(-1);
  // The place behind [piece] where it stands at [at], else kNoFit.
  size_t EndAt(const Piece& piece, std::string_view line, size_t at) const {
    if (double_byte_) return EndByCharacters(piece, line, at);
    if (at + piece.size() > line.size()) return kNoFit;
    for (size_t i = 0; i < piece.size(); ++i)
      if (!piece.bytes[i].test(static_cast<unsigned char>(line[at + i]))) return kNoFit;
    return at + piece.size();
  }
  size_t EndByCharacters(const Piece& piece, std::string_view line, size_t at) const;
  bool FindRest(std::string_view line, size_t at, bool whole_word, size_t& end) const;
  void Add(Place& place, uint16_t first, uint16_t last) const;
  size_t ReadList(std::string_view pattern, size_t open, Place& place) const;

  bool match_case_, double_byte_;
  std::vector<Piece> pieces_;
};

// Whether the characters beside [at, at + length) are no letters, digits or underscores of the code page. The walk
// makes many places of one line cheap.
bool IsWholeWord(std::string_view line, size_t at, size_t length);
bool IsWholeWord(std::string_view line, size_t at, size_t length, CharacterWalk& walk);

}  // namespace corvane::environment
