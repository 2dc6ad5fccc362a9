#include "environment/line_pattern.h"

#include <algorithm>

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

// Bytes of the character at [at].
size_t LengthAt(std::string_view text, size_t at) {
  return at + 1 < text.size() && runtime::AnsiCodePage().IsLead(static_cast<unsigned char>(text[at])) ? 2 : 1;
}

// The character at [at] as a number: its byte, or its first byte * 256 + its second.
uint16_t CodeAt(std::string_view text, size_t at) {
  auto byte = [&](size_t place) { return static_cast<uint16_t>(static_cast<unsigned char>(text[place])); };
  return LengthAt(text, at) == 1 ? byte(at) : static_cast<uint16_t>(byte(at) << 8 | byte(at + 1));
}

// The characters of a text. Codes of two bytes lie above all of one.
std::vector<uint16_t> Codes(std::string_view text) {
  std::vector<uint16_t> codes;
  for (size_t at = 0; at < text.size(); at += LengthAt(text, at)) codes.push_back(CodeAt(text, at));
  return codes;
}

constexpr uint16_t kLastByte = 0xFF;

}  // namespace

bool IsWholeWord(std::string_view line, size_t at, size_t length, CharacterWalk& walk) {
  return EndsWord(line, at + length) && !walk.IsWordBefore(line, at);
}

bool IsWholeWord(std::string_view line, size_t at, size_t length) {
  CharacterWalk walk;
  return IsWholeWord(line, at, length, walk);
}

LinePattern::LinePattern(std::string_view pattern, bool match_case)
    : match_case_(match_case), double_byte_(runtime::AnsiCodePage().IsDoubleByte()), pieces_(1) {
  for (size_t i = 0; i < pattern.size(); i += LengthAt(pattern, i)) {
    uint16_t code = CodeAt(pattern, i);
    Place place;
    if (code == '*') {
      pieces_.emplace_back();
      continue;
    } else if (code == '?') {
      place.bytes.set();
      place.pairs.others = true;
    } else if (code == '#') {
      Add(place, '0', '9');
    } else if (size_t close = code == '[' ? ReadList(pattern, i, place) : 0; close != 0) {
      i = close;
    } else {
      Add(place, code, code);
    }
    pieces_.back().bytes.push_back(place.bytes);
    pieces_.back().pairs.push_back(std::move(place.pairs));
  }
}

// Those of one byte without case, unless it counts; those of two are as they are, as in a plain search.
void LinePattern::Add(Place& place, uint16_t first, uint16_t last) const {
  const auto& upper = runtime::AnsiCodePage().UpperTable();
  for (size_t byte = first; byte <= std::min(last, kLastByte); ++byte) {
    place.bytes.set(byte);
    for (size_t other = 0; !match_case_ && other < upper.size(); ++other)
      if (upper[other] == upper[byte]) place.bytes.set(other);
  }
  if (last > kLastByte) place.pairs.ranges.emplace_back(std::max<uint16_t>(first, kLastByte + 1), last);
}

// Returns the place of the closing bracket; 0 where there is none.
size_t LinePattern::ReadList(std::string_view pattern, size_t open, Place& place) const {
  size_t close = open + 1;
  while (close < pattern.size() && pattern[close] != ']') close += LengthAt(pattern, close);
  if (close >= pattern.size()) {
    if (doubtful::kUnclosedListFails) throw runtime::Error(runtime::kInvalidPatternString);
    return 0;
  }
  std::vector<uint16_t> list = Codes(pattern.substr(open + 1, close - open - 1));
  bool negated = !list.empty() && list[0] == '!';
  for (size_t i = negated ? 1 : 0; i < list.size(); ++i) {
    bool is_range = i + 2 < list.size() && list[i + 1] == '-';
    Add(place, list[i], is_range ? list[i + 2] : list[i]);
    if (is_range) i += 2;
  }
  if (negated) place.bytes.flip();
  place.pairs.others = negated;
  return close;
}

bool LinePattern::Pairs::Takes(uint16_t pair) const {
  for (const auto& [first, last] : ranges)
    if (first <= pair && pair <= last) return !others;
  return others;
}

size_t LinePattern::EndByCharacters(const Piece& piece, std::string_view line, size_t at) const {
  for (size_t i = 0; i < piece.size(); ++i) {
    if (at >= line.size()) return kNoFit;
    uint16_t code = CodeAt(line, at);
    if (!(code <= kLastByte ? piece.bytes[i].test(code) : piece.pairs[i].Takes(code))) return kNoFit;
    at += LengthAt(line, at);
  }
  return at;
}

// The pieces behind the first, each at its earliest place: so the hit is the shortest from its start. [at] and [end]
// are places where characters begin.
bool LinePattern::FindRest(std::string_view line, size_t at, bool whole_word, size_t& end) const {
  for (size_t i = 1; i < pieces_.size(); ++i) {
    bool last = i + 1 == pieces_.size();
    size_t behind = EndAt(pieces_[i], line, at);
    while (behind == kNoFit || (last && whole_word && !EndsWord(line, behind))) {
      if (at + pieces_[i].size() >= line.size()) return false;
      at += double_byte_ ? LengthAt(line, at) : 1;
      behind = EndAt(pieces_[i], line, at);
    }
    at = behind;
  }
  end = at;
  return true;
}

LinePattern::Hit LinePattern::Find(std::string_view line, size_t from, bool whole_word) const {
  const Piece& first = pieces_[0];
  CharacterWalk walk;
  for (size_t at = from; at + first.size() <= line.size(); ++at) {
    size_t end = EndAt(first, line, at);
    if (end == kNoFit || !walk.IsAt(line, at) || (whole_word && walk.IsWordBefore(line, at))) continue;
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
