#include "forms/scroll_bar.h"

#include <algorithm>
#include <utility>

#include "toolkit_win32/peer.h"
#include "toolkit_win32/peers.h"
#include "toolkit_win32/toolkit.h"
#include "toolkit_win32/wheel.h"

namespace corvane::toolkit_win32 {
namespace {

// The system's bar counts from 0 at its near end, whichever way the range runs.
class ScrollBarPeer : public ControlPeer {
 public:
  ScrollBarPeer(Win32Toolkit& toolkit, forms::ScrollBar& bar) : ControlPeer(toolkit, bar), bar_(bar) {
    const bool flat = bar.Kind() == forms::ControlKind::HScrollBar;
    // The system gives the focus to one with a tab stop alone when it is clicked.
    const DWORD focus = bar.CanTakeFocus() ? WS_TABSTOP : 0;
    Create({L"SCROLLBAR", static_cast<DWORD>(flat ? SBS_HORZ : SBS_VERT) | focus}, Mouse::Untold);
  }

 protected:
  void ShowOwn(forms::Property) override {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE | (dragging_ ? 0 : SIF_POS);
    info.nPage = static_cast<UINT>(std::min(bar_.LargeChange(), Length() + 1));
    info.nMax = static_cast<int>(Length() + static_cast<long>(info.nPage) - 1);
    info.nPos = static_cast<int>(std::abs(bar_.Value() - bar_.Min()));
    SetScrollInfo(Handle(), SB_CTL, &info, TRUE);
  }
  void ShowColors() override {}

  std::optional<LRESULT> OnNotice(Window& window, const Message& message) override {
    if (message.id != WM_HSCROLL && message.id != WM_VSCROLL) return ControlPeer::OnNotice(window, message);
    Scrolled(LOWORD(message.w));
    return 0;
  }

  LRESULT OnOwnMessage(Window& window, const Message& message) override {
    // Of a drag that is broken off the system need not tell more. The place of one that is let go comes in this turn.
    if (message.id == WM_CAPTURECHANGED && dragging_) toolkit_.Post(LifeOfThis(), [this] { EndDrag(); });
    if (!IsWheel(message.id)) return window.Default(message);
    if (const int notches = wheel_.NotchesOf(message.id, message.w)) {
      ReportThenShow(forms::Property::Value, [&] { bar_.UserScroll(ValueAfter(bar_, notches), false); });
    }
    return 0;
  }

 private:
  long Length() const { return std::abs(bar_.Max() - bar_.Min()); }

  void Scrolled(int how) {
    switch (how) {
      case SB_LINEUP:
        return MoveBy(-bar_.SmallChange());
      case SB_LINEDOWN:
        return MoveBy(bar_.SmallChange());
      case SB_PAGEUP:
        return MoveBy(-bar_.LargeChange());
      case SB_PAGEDOWN:
        return MoveBy(bar_.LargeChange());
      case SB_TOP:
        return MoveTo(0);
      case SB_BOTTOM:
        return MoveTo(Length());
      case SB_THUMBTRACK:
        dragging_ = true;
        return MoveTo(ThumbPlace());
      case SB_THUMBPOSITION:
        dragging_ = false;
        return MoveTo(ThumbPlace());
      case SB_ENDSCROLL:  // alone when the bar lost the mouse under the thumb
        return EndDrag();
      default:
        break;
    }
  }

  void EndDrag() {
    if (std::exchange(dragging_, false)) MoveBy(0);
  }

  // 32 bits of it: the message holds 16.
  long ThumbPlace() const {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_TRACKPOS;
    GetScrollInfo(Handle(), SB_CTL, &info);
    return info.nTrackPos;
  }
  void MoveBy(long step) { MoveTo(std::abs(bar_.Value() - bar_.Min()) + step); }
  void MoveTo(long place) {
    place = std::clamp(place, 0L, Length());
    const long value = bar_.Min() <= bar_.Max() ? bar_.Min() + place : bar_.Min() - place;
    ReportThenShow(forms::Property::Value, [&, value] { bar_.UserScroll(value, dragging_); });
  }

  forms::ScrollBar& bar_;
  bool dragging_ = false;
  Wheel wheel_;
};

}  // namespace

NewPeer NewScrollBarPeer(Win32Toolkit& toolkit, forms::ScrollBar& bar) {
  return std::make_unique<ScrollBarPeer>(toolkit, bar);
}

}  // namespace corvane::toolkit_win32
