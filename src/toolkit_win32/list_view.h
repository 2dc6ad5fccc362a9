// ListView: the rows of a list control in a plain window, read from the control each time they are painted. It keeps no
// copy of them, so its cost is that of the rows in view, whatever the length of the list.
#pragma once

#include <functional>

#include "forms/lists.h"
#include "toolkit_win32/window.h"

namespace corvane::toolkit_win32 {

class Win32Toolkit;

class ListView {
 public:
  // [window] is made by its owner as kKind tells, and hands its messages here. The view lives as long as both.
  ListView(Win32Toolkit& toolkit, forms::ListControl& list, Window& window)
      : toolkit_(toolkit), list_(list), window_(window) {}
  static constexpr Window::Kind kKind = {nullptr, WS_VSCROLL, WS_EX_CLIENTEDGE};

  // What the rows carry besides their text.
  bool Boxes = false;
  std::function<bool(long row)> IsMarked = [](long) { return false; };  // ticked, or selected among many

  // The user's acts.
  std::function<void(long row)> OnChoose;
  std::function<void(long row)> OnToggle;
  std::function<void(long row)> OnExtend;  // Shift
  std::function<void(long top_row)> OnScroll;
  bool ToggleOnClick = false;  // simple multi-selection
  bool Extends = false;        // extended multi-selection

  // Rows came, went or changed: shown at the next turn of the loop, while [life] lasts.
  void RowsChanged(Life life);
  void Repaint() const { InvalidateRect(window_.Handle(), nullptr, FALSE); }
  void FitScrollBar();
  void Follow(long row);  // scrolls it into view
  void ScrollTo(long row);
  long TopRow() const { return top_; }
  int RowHeight() const;
  long RowsInView() const;
  long RowAt(POINT place) const;  // -1 outside the rows
  RECT PlaceOfRow(long row) const;

  LRESULT OnMessage(const Message& message);  // may be the end of this

 private:
  std::optional<LRESULT> Answer(const Message& message) const;
  long Count() const { return list_.ListCount(); }
  bool Many() const { return ToggleOnClick || Extends; }
  int BoxWidth() const;
  bool IsShownSelected(long row) const;
  void PaintRows();
  void PaintRow(HDC dc, long row, const RECT& place) const;
  void PaintBox(HDC dc, const RECT& place, bool ticked) const;
  void PaintFrame() const;
  bool IsOnBox(POINT place) const { return Boxes && place.x < BoxWidth(); }
  void Press(POINT place);
  void Drag(POINT place, WPARAM held);
  void Release(POINT place);
  bool KeyDown(int key);
  bool Typed(wchar_t character);
  void MoveTo(long row);
  long RowOfKey(int key) const;  // -1 when the key moves nothing
  long RowBeginningWith(wchar_t letter) const;
  void Scroll(int how);
  void Wheel(int turn);
  void ScrollByUser(long row);

  Win32Toolkit& toolkit_;
  forms::ListControl& list_;
  Window& window_;
  struct BarState {
    long last = 0, page = 0, top = 0;
    bool operator==(const BarState&) const = default;
  };
  BarState bar_;  // as it is shown
  long top_ = 0;
  long pressed_ = -1;  // the row under the held button
  int turned_ = 0;     // of the wheel, not yet scrolled
  bool stale_ = false;
};

}  // namespace corvane::toolkit_win32
