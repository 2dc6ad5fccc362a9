#include "environment/line_pattern.h"

#include "environment/doubtful_points.h"
#include "environment/text_search.h"
#include "runtime/code_page.h"
#include "runtime/error.h"

namespace corvane::environment {

namespace {

bool IsWordAt(std::string_view line, size_t at) {
  return at < line.size() && runtime::AnsiCodePage().IsWordByte(static_cast<unsigned char>(line[at]));
}

bool EndsWord(std::string_view line, size_t end) {
  return !IsWordAt(line, end);
}

}  // namespace

bool IsWholeWord(std::string_view line, size_t at, size_t length, CharacterWalk& walk) {
  return EndsWord(line, at + length) && !walk.IsWordBefore(line, at);
}

bool IsWholeWord(std::string_view line, size_t at, size_t length) {
  CharacterWalk walk;
  return IsWholeWord(line, at, length, walk);
}

LinePattern::LinePattern(std::string_view pattern, bool match_case) : match_case_(match_case), pieces_(1) {
  for (size_t i = 0; i < pattern.size(); ++i) {
    auto byte = static_cast<unsigned char>(pattern[i]);
    Set set;
    if (byte == '*') {
      pieces_.emplace_back();
      continue;
    } else if (byte == '?') {
      set.set();
    } else if (byte == '#') {
      for (unsigned char digit = '0'; digit <= '9'; ++digit) set.set(digit);
    } else if (size_t close = byte == '[' ? ReadList(pattern, i, set) : 0; close != 0) {
      i = close;
    } else {
      set = SetOf(byte);
    }
    pieces_.back().push_back(set);
  }
}

LinePattern::Set LinePattern::SetOf(unsigned char byte) const {
  Set set;
  set.set(byte);
  if (match_case_) return set;
  const auto& upper = runtime::AnsiCodePage().UpperTable();
  for (size_t other = 0; other < upper.size(); ++other)
    if (upper[other] == upper[byte]) set.set(other);
  return set;
}

// Returns the place of the closing bracket; 0 where there is none.
size_t LinePattern::ReadList(std::string_view pattern, size_t open, Set& set) const {
  size_t close = pattern.find(']', open + 1);
  if (close == std::string_view::npos) {
    if (doubtful::kUnclosedListFails) throw runtime::Error(runtime::kInvalidPatternString);
    return 0;
  }
  std::string_view list = pattern.substr(open + 1, close - open - 1);
  bool negated = !list.empty() && list[0] == '!';
  if (negated) list.remove_prefix(1);
  for (size_t i = 0; i < list.size(); ++i) {
    auto first = static_cast<unsigned char>(list[i]), last = first;
    if (i + 2 < list.size() && list[i + 1] == '-') last = static_cast<unsigned char>(list[i += 2]);
    for (int byte = first; byte <= last; ++byte) set |= SetOf(static_cast<unsigned char>(byte));
  }
  if (negated) set.flip();
  return close;
}

bool LinePattern::FitsAt(const Piece& piece, std::string_view line, size_t at) const {
  if (at + piece.size() > line.size()) return false;
  for (size_t i = 0; i < piece.size(); ++i)
    if (!piece[i].test(static_cast<unsigned char>(line[at + i]))) return false;
  return true;
}

// The pieces behind the first, each at its earliest place: so the hit is the shortest from its start.
bool LinePattern::FindRest(std::string_view line, size_t at, bool whole_word, size_t& end) const {
  for (size_t i = 1; i < pieces_.size(); ++i) {
    const Piece& piece = pieces_[i];
    bool last = i + 1 == pieces_.size();
    while (!FitsAt(piece, line, at) || (last && whole_word && !EndsWord(line, at + piece.size())))
      if (++at + piece.size() > line.size()) return false;
    at += piece.size();
  }
  end = at;
  return true;
}

LinePattern::Hit LinePattern::Find(std::string_view line, size_t from, bool whole_word) const {
  const Piece& first = pieces_[0];
  CharacterWalk walk;
  for (size_t at = from; at + first.size() <= line.size(); ++at) {
    if (!FitsAt(first, line, at) || !walk.IsAt(line, at) || (whole_word && walk.IsWordBefore(line, at))) continue;
    size_t end = at + first.size();
    if (pieces_.size() == 1) {
      if (whole_word && !EndsWord(line, end)) continue;
    } else if (!FindRest(line, end, whole_word, end)) {
      return {};  // what no later start can mend: there is less text behind it
    }
    return {at, end - at, true};
  }
  return {};
}

}  // namespace corvane::environment
