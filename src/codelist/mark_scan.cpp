#include "codelist/mark_scan.h"

#include "codelist/markup.h"

namespace corvane::codelist {

bool MarkScan::Next() {
  const Mark mark = FirstMark(text_, at_);
  if (mark.step == 0) return false;
  opens_ = mark.step > 0;
  const size_t behind = mark.place + kLevelUp.size();
  const bool followed = text_.substr(behind).starts_with(opens_ ? kLevelDown : kLevelUp);
  if (!followed) level_ += mark.step;
  sought_ = at_ + 1;
  at_ = behind + (step_ == Step::kJumping ? at_ : 0);
  return true;
}

bool FallsBelow(long target, std::string_view text, long level, MarkScan::Step step) {
  for (MarkScan scan(text, level, step); scan.Next();)
    if (scan.Level() < target) return true;
  return false;
}

}  // namespace corvane::codelist
