// ListRows: how the user moves through rows that a toolkit paints itself: which one is on top, which one the held
// button marks, and what a click, a key or a letter chooses. The rows are read from the control, never kept.
#pragma once

#include <functional>
#include <string_view>

#include "forms/lists.h"

namespace corvane::forms {

class ListRows {
 public:
  explicit ListRows(ListControl& list) : list_(&list) {}
  virtual ~ListRows() = default;
  ListRows(const ListRows&) = delete;
  ListRows& operator=(const ListRows&) = delete;
  // The control is gone or loses its toolkit's side: nothing is read or told any more.
  void Leave() { list_ = nullptr; }

  // What the rows carry besides their text.
  bool Boxes = false;
  std::function<bool(long row)> IsMarked = [](long) { return false; };  // ticked, or selected among many
  bool ToggleOnClick = false;                                           // simple multi-selection
  bool Extends = false;                                                 // extended multi-selection

  // The user's acts. Each may be the end of this.
  std::function<void(long row)> OnChoose, OnToggle;
  std::function<void(long row)> OnExtend;  // Shift
  std::function<void(long top_row)> OnScroll;

  void Follow(long row);  // scrolls it into view
  void ScrollTo(long row);
  long TopRow() const { return top_; }
  virtual long RowsInView() const = 0;  // that fit, at least 1
  // Shows the scroll bar and the rows as they are now; calls KeepInRange first.
  virtual void FitScrollBar() = 0;
  virtual void Repaint() = 0;

 protected:
  long Count() const { return list_ ? list_->ListCount() : 0; }
  long LastTop() const;
  void KeepInRange();
  bool Many() const { return ToggleOnClick || Extends; }
  bool IsShownSelected(long row) const;
  // The left button, over a row or over none (-1). While it is held the row under it is shown selected.
  void Press(long row);
  void DragTo(long row);
  void Release(bool on_box, int shift);
  void LoseMouse();  // nothing is chosen
  // True when the key is the list's. A letter is one character of the code page.
  bool KeyDown(int key_code, int shift);
  bool Typed(std::string_view letter, int shift);
  void ScrollByUser(long row);

  ListControl* list_;

 private:
  void MoveTo(long row, int shift);
  long top_ = 0;
  long pressed_ = -1;  // the row under the held button
};

// The row that a key leads to from the selected one, pages being of so many rows; -1 for a key that does not move.
long RowReached(const ListControl& list, int key_code, long page);
// The next row, round the end, that begins with the letter, whatever its case; -1 if there is none.
long RowBeginningWith(const ListControl& list, std::string_view letter);

}  // namespace corvane::forms
