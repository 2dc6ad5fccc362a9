// Which lines the rows show, and how the current line and the top line move.
#include <algorithm>
#include <cstdlib>
#include <utility>

#include "codelist/raised.h"
#include "codelist/uc_list_box.h"

namespace corvane::codelist {

namespace {

constexpr int32_t kTopHiddenFrom = 767;  // a top line of such a state gives its place to the next visible one
constexpr long kRowOfStrPos = 3;

}  // namespace

// Count + 1 when there is none; a negative line counts as the last.
long ucListBox::NextVisible(long index) const {
  if (index < 0) index = store.Count();
  do ++index;
  while (index <= store.Count() && !store.IsVisible(index));
  return std::min(index, store.Count() + 1);
}

// 0 when there is none.
long ucListBox::PrevVisible(long index) const {
  index = std::min(index, store.Count() + 1);
  do --index;
  while (index >= 1 && !store.IsVisible(index));
  return std::max(index, 0L);
}

void ucListBox::SetBar(forms::ScrollBar& bar, long value) {
  Raised guard(scrollGuard);
  bar.SetValue(std::max(bar.Min(), std::min(bar.Max(), value)));
  valueOfVs = vs.Value();
}

void ucListBox::FireClick() {
  if (!scrollGuard) Click();
}

void ucListBox::GoHome() {
  if (currentLine > 1) previousLine = currentLine;
  SetStrPos(1);
  SetBar(vs, 0);
}

long ucListBox::SetStrPos(long index) {
  if (loading || !store.Has(index)) return index;
  currentLine = topLine = index;
  const long row = std::clamp(visibleRows, 1L, kRowOfStrPos);  // in a low list the last one
  for (long above = 1; above < row; ++above) topLine = std::max(1L, PrevVisible(topLine));
  currentRow = std::min(row, index);
  {
    Raised without(noRefresh);
    Repaint();
  }
  if (topLine > 1) SetBar(vs, ValueOfTop());
  pic.Refresh();
  return index;
}

// The current row keeps its place; the current line is the one that comes to stand on it. A hidden top line gives way
// to the next visible one, if there is any.
void ucListBox::Repaint() {
  if (loading || scrollGuard || !store.Has(topLine)) return;
  runtime::PassOverErrors([this] {
    ClearPane();
    firstColumn = hs.Value();
    const int32_t state = store.State(topLine);
    const bool hidden = state >= kTopHiddenFrom && state < kVisibleFrom;
    if (const long visible = NextVisible(topLine); hidden && store.Has(visible)) topLine = visible;
    long drawn = 0;
    for (long line = topLine; drawn < visibleRows && line <= store.Count(); line = NextVisible(line)) {
      PaintLineAt(++drawn, line, kPlain);
      if (drawn <= currentRow) currentLine = line;
    }
    currentRow = std::min(currentRow, drawn);
    PaintLineAt(currentRow, currentLine, highlightColor);
    if (replaceIndex == 0 && !noRefresh) pic.Refresh();
  });
}

void ucListBox::RepaintCurrent(Color colour) {
  if (currentRow > 0) PaintLineAt(currentRow, currentLine, colour);
}

void ucListBox::PaintRows() {
  long line = topLine;
  for (long row = 1; row <= visibleRows && line <= store.Count(); ++row, line = NextVisible(line))
    PaintLineAt(row, line, kPlain);
}

void ucListBox::LineUp() {
  if (currentRow <= 0 || currentLine <= 1) return;
  if (currentLine == topLine) return ScrollUpOne();
  RepaintCurrent(kPlain);
  --currentRow;
  currentLine = PrevVisible(currentLine);
  RepaintCurrent(highlightColor);
  pic.Refresh();
  FireClick();
}

void ucListBox::LineDown() {
  if (currentRow <= 0 || NextVisible(currentLine) > store.Count()) return;
  RepaintCurrent(kPlain);
  ++currentRow;
  currentLine = NextVisible(currentLine);
  RepaintCurrent(highlightColor);
  // The drawing position stands under the row now; the last rows lie behind the horizontal bar.
  const bool behind_bar = currentRow > visibleRows || pic.CurrentY() >= pic.ScaleHeight() - hs.Height() + 1;
  if (behind_bar) ScrollDownOne();
  pic.Refresh();
  FireClick();
}

void ucListBox::ScrollUpOne() {
  const long above = PrevVisible(topLine);
  if (above < 1) return;
  topLine = above;
  currentLine = std::max(1L, PrevVisible(currentLine));
  PaintRows();
  RepaintCurrent(highlightColor);
  SetBar(vs, ValueOfTop());
  pic.Refresh();
  FireClick();
}

void ucListBox::ScrollDownOne() {
  const long below = NextVisible(topLine);
  if (!store.Has(below)) return;
  topLine = below;
  --currentRow;
  PaintRows();
  PaintRowsBehindLast();
  RepaintCurrent(highlightColor);
  SetBar(vs, ValueOfTop());
  pic.Refresh();
}

void ucListBox::PageUp() {
  if (topLine < 2) return;
  long line = topLine;
  for (long step = visibleRows - 2; step > 0 && PrevVisible(line) >= 1; --step) line = PrevVisible(line);
  StepBackFrom(NextVisible(line));
}

void ucListBox::PageDown() {
  long line = topLine;
  for (long step = visibleRows - 2; step > 0 && line <= store.Count(); --step) line = NextVisible(line);
  if (line < store.Count()) StepBackFrom(NextVisible(line));
}

// [line] becomes the top line and the current one, and then gives its place to the visible line above it; with none
// there, to the first visible line.
void ucListBox::StepBackFrom(long line) {
  const long first = NextVisible(0);
  if (!store.Has(first)) return;
  ClearPane();
  topLine = currentLine = PrevVisible(line) >= first ? line : NextVisible(first);
  currentRow = 1;
  ScrollUpOne();
}

void ucListBox::GoFirst() {
  if (store.Count() >= 2) StepBackFrom(2);
}

void ucListBox::GoLast() {
  if (store.Count() >= 3) StepBackFrom(store.Count());
}

// [line], or the visible line next to it in the direction of travel; the other direction where there is none.
long ucListBox::LineToward(long line, bool down) const {
  line = std::max(1L, std::min(line, store.Count()));
  if (store.IsVisible(line)) return line;
  const long next = NextVisible(line), previous = PrevVisible(line);
  if (down) return next <= store.Count() ? next : previous;
  return previous >= 1 ? previous : next;
}

// The bar counts lines from 0 but starts at 1: its lowest value is that of the first line, and only of that.
long ucListBox::ValueOfTop() const {
  return topLine <= NextVisible(0) ? vs.Min() : std::max(vs.Min() + 1, topLine - 1);
}

// The line that the bar asks for, having moved from [before].
long ucListBox::LineOfBar(long before, bool dragging) const {
  const long step = vs.Value() - before;
  if (vs.Value() <= vs.Min()) return NextVisible(0);
  const bool one_line = std::labs(step) == 1 && !dragging && before == ValueOfTop();
  if (one_line) return step > 0 ? NextVisible(topLine) : PrevVisible(topLine);
  return LineToward(vs.Value() + 1, step > 0);
}

// While the user drags the bar it stays under the hand, also over hidden lines.
void ucListBox::MovedByBar(bool dragging) {
  if (scrollGuard || loading || store.Count() == 0) return;
  if (vs.Value() > store.Count()) return SetBar(vs, topLine);
  const long before = std::exchange(valueOfVs, vs.Value());
  const long step = vs.Value() - before;
  const long line = step == 0 ? topLine : LineOfBar(before, dragging);
  if (line != topLine && store.Has(line)) ShowFrom(line, std::labs(step) == 1);
  if (!dragging) SetBar(vs, ValueOfTop());
}

// [line] at the top; the highlight there too, or kept on its line.
void ucListBox::ShowFrom(long line, bool keep_highlight) {
  const long highlighted = currentLine;
  ClearPane();
  topLine = currentLine = line;
  currentRow = 1;
  PaintRows();
  while (keep_highlight && currentLine < highlighted && currentRow < visibleRows - 1) {
    currentLine = NextVisible(currentLine);
    ++currentRow;
  }
  RepaintCurrent(highlightColor);
  pic.Refresh();
}

}  // namespace corvane::codelist
