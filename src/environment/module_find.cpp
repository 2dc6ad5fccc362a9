#include "environment/module_find.h"

#include <algorithm>

#include "environment/doubtful_points.h"
#include "environment/line_pattern.h"
#include "environment/text_search.h"

namespace corvane::environment {

namespace {

// The range of a request, clipped to the text.
struct Range {
  long first = 1, last = 0;
  size_t from = 0;                      // offset in the first line
  size_t end = std::string_view::npos;  // a hit on the last line ends at or before this offset
};

Range RangeOf(const ModuleText& text, const FindRequest& request) {
  Range range{request.start_line, text.Count()};
  range.from = static_cast<size_t>(std::max(request.start_column, 1L) - 1);
  if (request.end_line == -1 || request.end_line > text.Count()) return range;
  range.last = request.end_line;
  if (request.end_column != -1)
    range.end = static_cast<size_t>(std::max(request.end_column - (doubtful::kFindEndColumnIsInclusive ? 0 : 1), 0L));
  return range;
}

// The stretch that holds [line], from 1.
std::vector<Stretch>::const_iterator StretchOf(const std::vector<Stretch>& stretches, long line) {
  return std::partition_point(stretches.begin(), stretches.end(),
                              [&](const Stretch& stretch) { return static_cast<long>(stretch.last_line) + 1 < line; });
}

bool FindPattern(const ModuleText& text, const FindRequest& request, const Range& range, FoundPlace& place) {
  LinePattern pattern(request.target, request.match_case);
  for (long number = range.first; number <= range.last; ++number) {
    std::string_view line = text.Line(number);
    if (number == range.last && range.end < line.size()) line = line.substr(0, range.end);
    size_t from = number == range.first ? range.from : 0;
    if (from > line.size()) continue;
    LinePattern::Hit hit = pattern.Find(line, from, request.whole_word);
    // The last line may have been cut inside a word.
    if (!hit.found || (request.whole_word && !IsWholeWord(text.Line(number), hit.at, hit.length))) continue;
    place = {number, static_cast<long>(hit.at) + 1, static_cast<long>(hit.length)};
    return true;
  }
  return false;
}

class PlainFind {
 public:
  PlainFind(const ModuleText& text, const FindRequest& request, const Range& range, const TextSearch& search)
      : text_(text), request_(request), range_(range), search_(search) {}

  bool Run(FoundPlace& place) {
    const std::vector<Stretch>& stretches = text_.Stretches();
    for (auto stretch = StretchOf(stretches, range_.first); stretch != stretches.end(); ++stretch) {
      long first = static_cast<long>(stretch->first_line) + 1, last = static_cast<long>(stretch->last_line) + 1;
      if (first > range_.last) return false;
      if (FindIn(*stretch, std::max(first, range_.first), std::min(last, range_.last), place)) return true;
    }
    return false;
  }

 private:
  bool FindIn(const Stretch& stretch, long first, long last, FoundPlace& place) {
    std::string_view first_line = text_.Line(first), last_line = text_.Line(last);
    const char* at = first_line.data();
    if (first == range_.first) at += std::min(range_.from, first_line.size());
    const char* end = last_line.data() + last_line.size();
    if (last == range_.last && range_.end < last_line.size()) end = last_line.data() + range_.end;
    while (at < end && (at = search_.Find(at, end)) != nullptr) {
      long number = text_.LineAt(stretch, at);
      std::string_view line = text_.Line(number);
      auto offset = static_cast<size_t>(at - line.data());
      if (Accepts(line, offset)) {
        place = {number, static_cast<long>(offset) + 1, static_cast<long>(search_.Length())};
        return true;
      }
      ++at;
    }
    return false;
  }
  bool Accepts(std::string_view line, size_t at) {
    return at + search_.Length() <= line.size() && walk_.IsAt(line, at) &&
           (!request_.whole_word || IsWholeWord(line, at, search_.Length(), walk_));
  }

  const ModuleText& text_;
  const FindRequest& request_;
  const Range& range_;
  const TextSearch& search_;
  CharacterWalk walk_;
};

}  // namespace

bool Finder::Find(const ModuleText& text, const FindRequest& request, FoundPlace& place) {
  if (request.target.empty()) return false;
  Range range = RangeOf(text, request);
  if (range.first > range.last) return false;
  if (request.pattern) return FindPattern(text, request, range, place);
  if (!search_ || !search_->IsFor(request.target, request.match_case))
    search_.emplace(request.target, request.match_case);
  return PlainFind(text, request, range, *search_).Run(place);
}

}  // namespace corvane::environment
