#include "codelist/mark_scan.h"

#include "codelist/markup.h"

namespace corvane::codelist {

bool MarkScan::Next() {
  const size_t up = text_.find(kLevelUp, at_), down = text_.find(kLevelDown, at_);
  if (up == down) return false;  // there is neither
  opens_ = up < down;
  const size_t mark = opens_ ? up : down, other = opens_ ? down : up;
  if (other != mark + kLevelUp.size()) level_ += opens_ ? 1 : -1;
  sought_ = at_ + 1;
  at_ = mark + kLevelUp.size() + (step_ == Step::kJumping ? at_ : 0);
  return true;
}

bool FallsBelow(long target, std::string_view text, long level, MarkScan::Step step) {
  for (MarkScan scan(text, level, step); scan.Next();)
    if (scan.Level() < target) return true;
  return false;
}

}  // namespace corvane::codelist
