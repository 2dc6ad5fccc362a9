#include "environment/line_differences.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>

namespace corvane::environment {

namespace {

// More than these are one: each costs a step of whoever follows.
constexpr size_t kMostDifferences = 100;

// A line of both texts, by its numbers there.
struct Anchor {
  long in_old = 0, in_new = 0;
};

class Comparison {
 public:
  Comparison(const ModuleText& old_text, const ModuleText& new_text) : old_(old_text), new_(new_text) {}

  std::vector<LineDifference> Run() {
    LineDifference all{1, old_.Count(), 1, new_.Count()};
    Trim(all);
    long start = all.start, first = all.first;
    for (const Anchor& anchor : Rising(CommonLines(all))) {
      Take({start, anchor.in_old - start, first, anchor.in_new - first});
      start = anchor.in_old + 1;
      first = anchor.in_new + 1;
    }
    Take({start, all.start + all.removed - start, first, all.first + all.inserted - first});
    if (differences_.size() > kMostDifferences) differences_ = {all};
    return std::move(differences_);
  }

 private:
  // Takes the lines off that are the same at both ends.
  void Trim(LineDifference& part) const {
    auto both = [&] { return part.removed > 0 && part.inserted > 0; };
    while (both() && old_.Line(part.start) == new_.Line(part.first))
      ++part.start, ++part.first, --part.removed, --part.inserted;
    while (both() && old_.Line(part.start + part.removed - 1) == new_.Line(part.first + part.inserted - 1))
      --part.removed, --part.inserted;
  }

  void Take(LineDifference part) {
    Trim(part);
    if (part.removed > 0 || part.inserted > 0) differences_.push_back(part);
  }

  // Those that stand once in each, in the order of the old text.
  std::vector<Anchor> CommonLines(const LineDifference& part) const {
    struct Places {
      long count_old = 0, count_new = 0, in_new = 0;
    };
    std::unordered_map<std::string_view, Places> lines;
    for (long line = part.start; line < part.start + part.removed; ++line) ++lines[old_.Line(line)].count_old;
    for (long line = part.first; line < part.first + part.inserted; ++line) {
      auto found = lines.find(new_.Line(line));
      if (found == lines.end()) continue;
      ++found->second.count_new;
      found->second.in_new = line;
    }
    std::vector<Anchor> common;
    for (long line = part.start; line < part.start + part.removed; ++line) {
      const Places& places = lines[old_.Line(line)];
      if (places.count_old == 1 && places.count_new == 1) common.push_back({line, places.in_new});
    }
    return common;
  }

  // The longest part of [anchors] whose places in the new text rise, too.
  static std::vector<Anchor> Rising(const std::vector<Anchor>& anchors) {
    std::vector<size_t> ends;  // of the best run of each length, the anchor that ends it
    std::vector<size_t> before(anchors.size());
    for (size_t i = 0; i < anchors.size(); ++i) {
      auto lower = [&](size_t end, long in_new) { return anchors[end].in_new < in_new; };
      auto place = std::lower_bound(ends.begin(), ends.end(), anchors[i].in_new, lower);
      before[i] = place == ends.begin() ? i : place[-1];
      if (place == ends.end())
        ends.push_back(i);
      else
        *place = i;
    }
    std::vector<Anchor> rising(ends.size());
    size_t at = ends.empty() ? 0 : ends.back();
    for (size_t i = rising.size(); i-- > 0; at = before[at]) rising[i] = anchors[at];
    return rising;
  }

  const ModuleText &old_, &new_;
  std::vector<LineDifference> differences_;
};

}  // namespace

std::vector<LineDifference> DifferencesOf(const ModuleText& old_text, const ModuleText& new_text) {
  return Comparison(old_text, new_text).Run();
}

}  // namespace corvane::environment
