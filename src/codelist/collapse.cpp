#include "codelist/collapse.h"

#include "codelist/mark_scan.h"
#include "codelist/markup.h"

namespace corvane::codelist {

namespace {

using Step = MarkScan::Step;

constexpr int32_t kFoldedFrom = 767;   // states from here on are no plain level
constexpr int32_t kMarkedFrom = 1024;  // a line with such a state is not made the start of a stretch
constexpr size_t kFirstPlaces = 4;     // a block that opens in front of the first mark of a line is no place to stop

void Add(LineStore& store, long line, int32_t bits) {
  store.SetState(line, store.State(line) | bits);
}

void ReduceToLevel(LineStore& store, long line) {
  store.SetState(line, store.State(line) & kLevelMask);
}

// Its selection and older marks go with it.
void Hide(LineStore& store, long line) {
  store.SetState(line, static_cast<int32_t>(store.LineLevel(line)) + kHidden);
}

void HideBehindStart(LineStore& store, long line) {
  Hide(store, line);
  if (line > 1 && store.State(line - 1) < kMarkedFrom) Add(store, line - 1, kBoundary | kCollapseStart);
}

// The block of level [target] ends, or has not begun, in this line.
bool Leaves(const LineStore& store, long line, long target, Step step) {
  return store.LineLevel(line) < target || FallsBelow(target, store.Text(line), store.LineLevel(line), step);
}

bool StopsAt(const LineStore& store, long line, long target) {
  if (store.LineLevel(line) < target) return true;
  for (MarkScan scan(store.Text(line), store.LineLevel(line), Step::kJumping); scan.Next();) {
    if (!scan.Opens() && scan.Level() <= target) return true;
    if (scan.Opens() && scan.SoughtFrom() > kFirstPlaces && scan.Level() - 1 == target) return true;
  }
  return false;
}

}  // namespace

bool CanFold(const LineStore& store, long line) {
  return line > 1 && line < store.Count();
}

void CollapseHere(LineStore& store, long line, long target) {
  long start = line, end = line + 1;
  while (start > 1 && !Leaves(store, start, target, Step::kBehindMark)) --start;
  while (end < store.Count() && !Leaves(store, end, target, Step::kJumping)) ++end;
  if (start >= end || end > store.Count()) return;
  for (long hidden = start; hidden < end; ++hidden) Hide(store, hidden);
  Add(store, start, kBoundary | kCollapseStart);
  Add(store, end, kBoundary);
}

void CollapseOnLevel(LineStore& store, long target) {
  if (store.Count() == 0) return;
  for (long line = 1; line < store.Count(); ++line)
    if (!Leaves(store, line, target, Step::kJumping)) HideBehindStart(store, line);
  Add(store, store.Count(), kBoundary);
}

void LogicalCollapse(LineStore& store) {
  if (store.Count() == 0) return;
  for (long line = 1; line < store.Count(); ++line) {
    const bool keyword = store.Text(line).find(kBold) != std::string_view::npos;
    if (store.LineLevel(line) > BaseLevel && !keyword) HideBehindStart(store, line);
  }
  Add(store, store.Count(), kBoundary);
}

void CollapseSelected(LineStore& store) {
  if (store.Count() == 0) return;
  store.SetState(1, store.State(1) & ~kSelected);
  for (long line = 2; line <= store.Count(); ++line)
    if (store.IsSelected(line)) HideBehindStart(store, line);
}

void ResetCollapse(LineStore& store) {
  for (long line = 1; line <= store.Count(); ++line) ReduceToLevel(store, line);
}

bool CanExpand(const LineStore& store, long line) {
  if (!store.Has(line) || line == store.Count() || store.State(line) <= kBoundary) return false;
  const int32_t behind = store.State(line + 1);
  return behind >= kFoldedFrom && behind < kBoundary;
}

void Expand(LineStore& store, long line) {
  if (!store.Has(line) || line == store.Count() || store.State(line + 1) < kFoldedFrom) return;
  long at = line + 1;
  for (; at <= store.Count() && store.State(at) >= kFoldedFrom; ++at) {
    const bool boundary = store.State(at) >= kBoundary && at < store.Count();
    if (boundary) {
      const int32_t behind = store.State(at + 1);
      if (behind < kFoldedFrom || behind > kBoundary) ReduceToLevel(store, at);
      return;
    }
    ReduceToLevel(store, at);
    // Below a hidden line this one is the start of another stretch too.
    if (at == line + 1 && (line == 1 || store.State(line - 1) < kFoldedFrom)) ReduceToLevel(store, line);
  }
}

long GoDown(const LineStore& store, long line, long target) {
  if (line >= store.Count()) return line;
  for (++line; line < store.Count() && !StopsAt(store, line, target);) ++line;
  return line;
}

long GoUp(const LineStore& store, long line, long target) {
  if (line <= 1) return line;
  for (--line; line > 1 && !StopsAt(store, line, target);) --line;
  return line;
}

}  // namespace corvane::codelist
