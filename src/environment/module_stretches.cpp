// ModuleText: the stretches of memory in which its lines lie. An edit patches those that it touches.
#include <algorithm>

#include "environment/module_text.h"
#include "environment/prefetch.h"

namespace corvane::environment {

void ModuleText::PrefetchStart() const {
  Prefetch(bytes_.data() + code_start_, kReadAhead);
  PrefetchLine(stretches_.data());
  PrefetchLine(lines_.data());
  PrefetchLine(lines_.data() + lines_.size());
}

const std::vector<Stretch>& ModuleText::Stretches() const {
  if (stretches_.empty()) AddStretches(stretches_, 0, lines_.size());
  return stretches_;
}

// Whether [line], from 0 and not the first, lies directly behind the line end of the one before.
bool ModuleText::LiesBehind(size_t line) const {
  std::string_view end = OwnLineEnd(lines_[line - 1]);
  return !end.empty() && lines_[line - 1].offset + lines_[line - 1].length + end.size() == lines_[line].offset;
}

// Adds those of the lines [from, to); the first one continues the last stretch where it lies behind it.
void ModuleText::AddStretches(std::vector<Stretch>& stretches, size_t from, size_t to) const {
  for (size_t i = from; i < to; ++i) {
    auto line = static_cast<uint32_t>(i);
    if (!stretches.empty() && LiesBehind(i))
      stretches.back().last_line = line;
    else
      stretches.push_back({line, line});
  }
}

// [removed] lines from [start] have become [inserted] ones.
void ModuleText::PatchStretches(size_t start, size_t removed, size_t inserted) {
  auto ends_before = [](const Stretch& stretch, size_t line) { return stretch.last_line < line; };
  // The stretch in front of the edit too, as what follows may continue it.
  auto first = std::lower_bound(stretches_.begin(), stretches_.end(), start == 0 ? 0 : start - 1, ends_before);
  auto behind = std::lower_bound(first, stretches_.end(), start + removed, ends_before);
  std::vector<Stretch> patch;
  if (start > 0) patch.push_back({first->first_line, static_cast<uint32_t>(start - 1)});
  AddStretches(patch, start, start + inserted);

  auto shift = static_cast<uint32_t>(inserted - removed);  // modulo 2^32, as are the sums
  if (shift != 0)
    for (auto stretch = behind; stretch != stretches_.end(); ++stretch)
      stretch->first_line += shift, stretch->last_line += shift;
  if (behind != stretches_.end()) {
    behind->first_line = static_cast<uint32_t>(start + inserted);
    bool joins = !patch.empty() && LiesBehind(start + inserted);
    if (joins) patch.back().last_line = behind->last_line, ++behind;
  }
  size_t common = std::min(patch.size(), static_cast<size_t>(behind - first));
  std::copy_n(patch.begin(), common, first);
  first += static_cast<long>(common);
  if (common < patch.size())
    stretches_.insert(first, patch.begin() + static_cast<long>(common), patch.end());
  else
    stretches_.erase(first, behind);
}

long ModuleText::LineAt(const Stretch& stretch, const char* at) const {
  uint32_t low = stretch.first_line, high = stretch.last_line;
  while (low < high) {
    uint32_t middle = low + (high - low + 1) / 2;
    if (View(lines_[middle]).data() <= at)
      low = middle;
    else
      high = middle - 1;
  }
  return static_cast<long>(low) + 1;
}

}  // namespace corvane::environment
