// ListView: the rows of a list control in a plain window, read from the control each time they are painted. It keeps no
// copy of them, so its cost is that of the rows in view, whatever the length of the list.
#pragma once

#include "forms/list_rows.h"
#include "toolkit_win32/window.h"

namespace corvane::toolkit_win32 {

class Win32Toolkit;

class ListView : public forms::ListRows {
 public:
  // [window] is made by its owner as kKind tells, and hands its messages here. The view lives as long as both.
  ListView(Win32Toolkit& toolkit, forms::ListControl& list, Window& window)
      : ListRows(list), toolkit_(toolkit), window_(window) {}
  static constexpr Window::Kind kKind = {nullptr, WS_VSCROLL, WS_EX_CLIENTEDGE};

  // Rows came, went or changed: shown at the next turn of the loop, while [life] lasts.
  void RowsChanged(Life life);
  void Repaint() override { InvalidateRect(window_.Handle(), nullptr, FALSE); }
  void FitScrollBar() override;
  int RowHeight() const;
  long RowsInView() const override;
  long RowAt(POINT place) const;  // -1 outside the rows
  RECT PlaceOfRow(long row) const;

  LRESULT OnMessage(const Message& message);  // may be the end of this

 private:
  std::optional<LRESULT> Answer(const Message& message) const;
  int BoxWidth() const;
  void PaintRows();
  void PaintRow(HDC dc, long row, const RECT& place) const;
  void PaintBox(HDC dc, const RECT& place, bool ticked) const;
  void PaintFrame() const;
  bool IsOnBox(POINT place) const { return Boxes && place.x < BoxWidth(); }
  void Scroll(int how);
  void Wheel(int turn);

  Win32Toolkit& toolkit_;
  Window& window_;
  struct BarState {
    long last = 0, page = 0, top = 0;
    bool operator==(const BarState&) const = default;
  };
  BarState bar_;    // as it is shown
  int turned_ = 0;  // of the wheel, not yet scrolled
  bool stale_ = false;
};

}  // namespace corvane::toolkit_win32
