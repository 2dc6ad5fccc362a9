// The user's mouse and keys on the surface: current line, selected lines, branches of a tree.
#include <cmath>
#include <cstdlib>

#include "codelist/reading_commands.h"
#include "codelist/uc_list_box.h"
#include "runtime/strings.h"

namespace corvane::codelist {

namespace {

constexpr int kMenuKey = 93;
constexpr uint32_t kDragDelay = 300;  // milliseconds between the press and the first step

}  // namespace

// Row 0 lies above the surface.
long ucListBox::RowAt(Twips y) const {
  return y < 0 || rowHeight <= 0 ? 0 : static_cast<long>(y / rowHeight) + 1;
}

// 0 for a row behind the last line.
long ucListBox::LineOnRow(long row) const {
  if (row < 1 || store.Count() == 0) return 0;
  long line = topLine;
  for (; row > 1 && line <= store.Count(); --row) line = NextVisible(line);
  return line <= store.Count() ? line : 0;
}

bool ucListBox::MoveToRow(long row) {
  const long line = LineOnRow(row);
  if (line == 0) return false;
  RepaintCurrent(kPlain);
  currentRow = row;
  currentLine = line;
  RepaintCurrent(highlightColor);
  pic.Refresh();
  return true;
}

void ucListBox::FlipSelected() {
  if (!store.Has(currentLine) || SelectionIsLocked()) return;
  store.SetState(currentLine, store.State(currentLine) ^ kSelected);
}

void ucListBox::ToggleSelect() {
  FlipSelected();
  RepaintCurrent(highlightColor);
  pic.Refresh();
}

void ucListBox::SelectAll() {
  if (SelectionIsLocked()) return;
  for (long line = 1; line <= store.Count(); ++line) store.SetState(line, store.State(line) | kSelected);
  Repaint();
}

void ucListBox::ClearSelection() {
  if (SelectionIsLocked()) return;
  for (long line = 1; line <= store.Count(); ++line) store.SetState(line, store.State(line) & ~kSelected);
  Repaint();
}

void ucListBox::CopySelection() {
  MoveSelectionToClipBook("");
}

// Behind a gap.
void ucListBox::AddSelection() {
  MoveSelectionToClipBook(clipBook + "\r\n\r\n");
}

// With no line selected the clip book keeps what it holds.
void ucListBox::MoveSelectionToClipBook(std::string copied) {
  if (SelectionIsLocked()) return;
  bool any = false;
  for (long line = 1; line <= store.Count(); ++line) {
    if (!store.IsSelected(line)) continue;
    any = true;
    store.SetState(line, store.State(line) & ~kSelected);
    copied.append(List(line)).append(runtime::kCrLf);
  }
  if (any) clipBook = std::move(copied);
  Repaint();
  runtime::PassOverErrors([this] { services.Clipboard.Clear(); });
  runtime::PassOverErrors([this] { services.Clipboard.SetText(clipBook); });
  ClipBook();
}

void ucListBox::pic_MouseDown(int button, Twips x, Twips y) {
  EndDrag();
  mouseX = x;
  mouseY = y;
  if (loading || !MoveToRow(RowAt(y))) return;
  if (x < gutterWidth && button == forms::vbLeftButton) return ToggleSelect();
  drag.running = true;
  drag.row = currentRow;
  drag.pressed = services.Loop.TickCount();
}

void ucListBox::pic_MouseMove(int button, int shift, Twips x, Twips y) {
  if (!SelectionIsLocked()) MouseMove(button, shift, x, y);
  tmr.SetEnabled(false);
  drag.x = x;
  if (drag.running && (button & forms::vbLeftButton)) DragTo(y);
}

// Outside the surface each turn of the timer is one step more.
void ucListBox::DragTo(Twips y) {
  const bool above = y<0, below = y> pic.ScaleHeight();
  if (above || below) {
    drag.scrolling = above ? -1 : 1;
    tmr.SetEnabled(true);
  }
  if (drag.direction == 0 && services.Loop.TickCount() - drag.pressed < kDragDelay) return;
  long steps = above || below ? drag.scrolling : RowAt(y) - drag.row;
  const bool down = steps > 0;
  for (steps = std::labs(steps); steps > 0; --steps)
    if (!DragStep(down)) break;
  pic.Refresh();
}

// Moving on selects line after line; turning back takes it off again.
bool ucListBox::DragStep(bool down) {
  const long target = down ? NextVisible(currentLine) : PrevVisible(currentLine);
  if (!store.Has(target)) return false;
  const int direction = down ? 1 : -1;
  if (currentLine != drag.line || direction != drag.direction) FlipSelected();
  if (down)
    LineDown();
  else
    LineUp();
  FlipSelected();
  RepaintCurrent(highlightColor);
  drag.line = currentLine;
  drag.row = currentRow;
  drag.direction = direction;
  return true;
}

void ucListBox::tmr_Timer() {
  tmr.SetEnabled(false);
  if (!drag.running || currentLine < 2 || currentLine >= store.Count()) return;
  pic_MouseMove(forms::vbLeftButton, 0, drag.x, drag.scrolling < 0 ? -1 : pic.ScaleHeight() + 1);
}

void ucListBox::pic_MouseUp(int button, Twips x, Twips y) {
  EndDrag();
  mouseX = x;
  mouseY = y;
  if (button == forms::vbRightButton) reading->OpenMenu(x, y);
}

// As a click on the first character of the current line.
void ucListBox::OpenMenuByKey() {
  mouseX = gutterWidth;
  mouseY = RowTop(currentRow);
  reading->OpenMenu(mouseX, mouseY + rowHeight);
}

void ucListBox::EndDrag() {
  tmr.SetEnabled(false);
  drag = {};
}

void ucListBox::pic_Click() {
  UcClick();
  if (loading || LineOnRow(RowAt(mouseY)) == 0) return;
  if (!treeMode) return FireClick();
  const long indent = (store.LineLevel(currentLine) - BaseLevel) * kColumnsOfLevel;
  if (indent < 5 || firstColumn != 0 || currentLine == store.Count()) return;
  const Twips box = gutterWidth + TreeBoxOffset(indent);
  if (mouseX >= box && mouseX <= box + kTreeBoxWidth) ToggleBranch(currentLine);
}

// Opening shows the entries one level deeper; closing hides all that are deeper.
void ucListBox::ToggleBranch(long index) {
  const long level = store.LineLevel(index);
  const bool open = !store.IsVisible(index + 1);
  for (long line = index + 1; line <= store.Count() && store.LineLevel(line) > level; ++line) {
    if (!open)
      store.SetState(line, store.State(line) | kHidden);
    else if (store.LineLevel(line) == level + 1)
      store.SetState(line, store.State(line) & ~kHidden);
  }
  Repaint();
}

void ucListBox::pic_KeyDown(int& key, int shift) {
  if (loading) return;
  const bool ctrl = (shift & forms::vbCtrlMask) != 0;
  const int pressed = std::exchange(key, 0);
  switch (pressed) {
    case forms::vbKeyReturn:
      if (!ctrl) break;
      services.Loop.DoEvents();
      return DblClick();
    case forms::vbKeyTab:
      if (shift != forms::vbCtrlMask) break;
      return CtrlTab();
    case forms::vbKeyC:
      if (!ctrl) break;
      return CopySelection();
    case forms::vbKeyA:
      if (!ctrl) break;
      return SelectAll();
    case forms::vbKeyUp:
    case forms::vbKeyDown:
      if (shift & forms::vbShiftMask) ToggleSelect();
      return pressed == forms::vbKeyUp ? LineUp() : LineDown();
    case forms::vbKeyPageUp:
      return PageUp();
    case forms::vbKeyPageDown:
      return PageDown();
    case kMenuKey:
      return OpenMenuByKey();
    case forms::vbKeyF10:
      if (shift != forms::vbShiftMask) break;
      return OpenMenuByKey();
    case forms::vbKeyHome:
      return GoFirst();
    case forms::vbKeyEnd:
      return GoLast();
    default:
      break;
  }
  key = pressed;
}

}  // namespace corvane::codelist
