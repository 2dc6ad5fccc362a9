#include "codelist/click_place.h"

#include <algorithm>
#include <vector>

#include "codelist/markup.h"

namespace corvane::codelist {

namespace {

// The number of characters at whose end the text is at least [x] wide; one more than there are when it never is. Lines
// may be endless: widths are measured for ever longer starts first, then between the last two.
size_t CharactersTo(std::string_view text, forms::Twips x, const WidthOf& width) {
  const auto reaches = [&](size_t count) { return width(text.substr(0, count)) >= x; };
  size_t enough = 1;
  while (enough < text.size() && !reaches(enough)) enough *= 2;
  enough = std::min(enough, text.size());
  if (text.empty() || !reaches(enough)) return text.size() + 1;
  size_t too_few = enough / 2;
  while (enough - too_few > 1) {
    const size_t middle = too_few + (enough - too_few) / 2;
    (reaches(middle) ? enough : too_few) = middle;
  }
  return enough;
}

}  // namespace

ClickPlace PlaceAt(std::string_view stored, long level, forms::Twips x, const WidthOf& width) {
  ClickPlace place;
  struct Step {
    size_t behind;  // characters of the text in front of the mark
    int step;
  };
  std::vector<Step> steps;
  for (size_t from = 0; from < stored.size();) {
    const Mark mark = FirstMark(stored, from);
    const size_t end = std::min(mark.place, stored.size());
    for (const char c : stored.substr(from, end - from))
      if (c != kBold) place.text += c;
    if (mark.place == std::string_view::npos) break;
    steps.push_back({place.text.size(), mark.step});
    from = mark.place + kLevelUp.size();
  }
  place.position = CharactersTo(place.text, x, width);
  place.level = level;
  for (const Step& step : steps)
    if (step.behind < place.position) place.level += step.step;
  return place;
}

}  // namespace corvane::codelist
