#include "forms/list_rows.h"

#include <algorithm>
#include <utility>

#include "runtime/strings.h"

namespace corvane::forms {

long RowReached(const ListControl& list, int key_code, long page) {
  const long last = list.ListCount() - 1, row = list.ListIndex();
  switch (key_code) {
    case vbKeyUp:
    case vbKeyLeft:
      return std::max(0L, row - 1);
    case vbKeyDown:
    case vbKeyRight:
      return std::min(last, row + 1);
    case vbKeyPageUp:
      return std::max(0L, row - page);
    case vbKeyPageDown:
      return std::min(last, row + page);
    case vbKeyHome:
      return 0;
    case vbKeyEnd:
      return last;
    default:
      return -1;
  }
}

long RowBeginningWith(const ListControl& list, std::string_view letter) {
  const long count = list.ListCount();
  const std::string wanted = runtime::UCase(letter);
  for (long step = 1; step <= count; ++step) {
    const long row = (list.ListIndex() + step + count) % count;
    const std::string_view text = list.Rows().At(row).text;
    if (runtime::UCase(text.substr(0, letter.size())) == wanted) return row;
  }
  return -1;
}

long ListRows::LastTop() const {
  return std::max(0L, Count() - RowsInView());
}

void ListRows::KeepInRange() {
  top_ = std::clamp(top_, 0L, LastTop());
}

void ListRows::ScrollTo(long row) {
  top_ = std::max(0L, row);
  FitScrollBar();
}

void ListRows::Follow(long row) {
  if (row < 0) return;
  if (row < top_) return ScrollTo(row);
  if (row >= top_ + RowsInView()) ScrollTo(row - RowsInView() + 1);
}

void ListRows::ScrollByUser(long row) {
  const long before = top_;
  ScrollTo(row);
  if (list_ && top_ != before && OnScroll) OnScroll(top_);
}

bool ListRows::IsShownSelected(long row) const {
  if (Many()) return IsMarked(row);
  return row == (pressed_ >= 0 ? pressed_ : list_->ListIndex());
}

void ListRows::Press(long row) {
  pressed_ = row;
  Repaint();
}

void ListRows::DragTo(long row) {
  if (pressed_ < 0 || row < 0 || row == pressed_) return;
  pressed_ = row;
  Repaint();
}

void ListRows::LoseMouse() {
  if (std::exchange(pressed_, -1) >= 0) Repaint();
}

void ListRows::Release(bool on_box, int shift) {
  const long row = std::exchange(pressed_, -1);
  Repaint();
  if (row < 0 || row >= Count()) return;
  if (on_box || ToggleOnClick || (Extends && (shift & vbCtrlMask) != 0)) return OnToggle(row);
  if (Extends && (shift & vbShiftMask) != 0) return OnExtend(row);
  OnChoose(row);
}

void ListRows::MoveTo(long row, int shift) {
  Follow(row);
  if (row == list_->ListIndex()) return;
  Extends && (shift & vbShiftMask) != 0 ? OnExtend(row) : OnChoose(row);
}

bool ListRows::KeyDown(int key_code, int shift) {
  if (Count() == 0) return false;
  const long row = RowReached(*list_, key_code, std::max(1L, RowsInView() - 1));
  if (row >= 0) MoveTo(row, shift);
  return row >= 0;
}

bool ListRows::Typed(std::string_view letter, int shift) {
  if (Count() == 0 || letter.empty() || static_cast<unsigned char>(letter[0]) < ' ') return false;
  if (letter == " " && (Boxes || Many())) {
    if (list_->ListIndex() >= 0) OnToggle(list_->ListIndex());
    return true;
  }
  const long row = RowBeginningWith(*list_, letter);
  if (row >= 0) MoveTo(row, shift);
  return true;
}

}  // namespace corvane::forms
