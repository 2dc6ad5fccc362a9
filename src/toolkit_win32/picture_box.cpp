// PictureBox with its canvas, and UserControl: both are surfaces for other controls.
#include "forms/picture_box.h"

#include <algorithm>

#include "forms/form.h"
#include "forms/scroll_bar.h"
#include "forms/user_control.h"
#include "toolkit_win32/canvas.h"
#include "toolkit_win32/colors.h"
#include "toolkit_win32/painted.h"
#include "toolkit_win32/peers.h"
#include "toolkit_win32/toolkit.h"
#include "toolkit_win32/wheel.h"

namespace corvane::toolkit_win32 {
namespace {

// The scroll bar that stands beside [control] and works along [way]; null if there is none.
forms::ScrollBar* ScrollBarBeside(forms::Control& control, forms::ControlKind way) {
  for (forms::Control* sibling : control.ContainerOf().Controls()) {
    if (sibling->Kind() == way && sibling->AcceptsInput()) return dynamic_cast<forms::ScrollBar*>(sibling);
  }
  return nullptr;
}

// The border is the window's own: inside it is the client area, which is the surface.
class PictureBoxPeer : public ControlPeer {
 public:
  PictureBoxPeer(Win32Toolkit& toolkit, forms::PictureBox& box)
      : ControlPeer(toolkit, box), box_(box), canvas_(toolkit, [this] { ShowLater(); }) {
    Create({nullptr}, Mouse::ActsLast);
    canvas_.ShowIn(Handle());
  }
  forms::Canvas* Canvas() override { return &canvas_; }

 protected:
  void ShowPlace() override {
    ControlPeer::ShowPlace();
    FitSurface();
  }
  void ShowOwn(forms::Property property) override {
    if (property == forms::Property::BorderStyle || property == forms::Property::All) {
      SetWindowPos(Handle(), nullptr, 0, 0, 0, 0,
                   SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
      FitSurface();
    }
    if (property != forms::Property::All && property != forms::Property::Picture) return;
    canvas_.SetBackground(box_.Picture());
    canvas_.Clear(box_.BackColor());
  }
  void ShowColors() override {}
  void ShowFont() override {}

  LRESULT OnOwnMessage(Window& window, const Message& message) override {
    switch (message.id) {
      case WM_PAINT:
        Expose();
        return 0;
      case WM_PRINTCLIENT:
        canvas_.ShowOn(reinterpret_cast<HDC>(message.w), window.Client());
        return 0;
      case WM_ERASEBKGND:
        return 1;
      case WM_NCCALCSIZE:
        InflateRect(reinterpret_cast<RECT*>(message.l), -Border(), -Border());
        return 0;
      case WM_NCPAINT:
        PaintFrame();
        return 0;
      case WM_MOUSEWHEEL:
        if (Turn(forms::ControlKind::VScrollBar, upright_, message)) return 0;
        break;
      case WM_MOUSEHWHEEL:
        if (Turn(forms::ControlKind::HScrollBar, sideways_, message)) return 0;
        break;
      case WM_GETDLGCODE:
        return DLGC_WANTALLKEYS | DLGC_WANTARROWS | DLGC_WANTCHARS;
      default:
        break;
    }
    return window.Default(message);
  }

 private:
  int Border() const { return box_.BorderStyle() == 1 ? toolkit_.Scale().Scaled(kBorder) : 0; }

  void FitSurface() {
    const RECT inside = window_.Client();
    if (canvas_.Fit({WidthOf(inside), HeightOf(inside)}, box_.BackColor())) InvalidateRect(Handle(), nullptr, FALSE);
  }
  void ShowLater() {
    toolkit_.Post(LifeOfThis(), [this] { canvas_.Refresh(); });
  }
  void Expose() {
    PAINTSTRUCT paint{};
    const HDC dc = BeginPaint(Handle(), &paint);
    canvas_.ShowOn(dc, paint.rcPaint);
    EndPaint(Handle(), &paint);
  }
  void PaintFrame() {
    if (Border() == 0) return;
    RECT place{};
    GetWindowRect(Handle(), &place);
    OffsetRect(&place, -place.left, -place.top);
    const HDC dc = GetWindowDC(Handle());
    const RECT inside = InsideBorder(place, Border());
    ExcludeClipRect(dc, inside.left, inside.top, inside.right, inside.bottom);
    Fill(dc, place, box_.BackColor());
    PaintSunkenFrame(dc, place, toolkit_.Scale());
    ReleaseDC(Handle(), dc);
  }
  // The wheel scrolls what the control's own scroll bar scrolls.
  bool Turn(forms::ControlKind way, Wheel& wheel, const Message& message) {
    forms::ScrollBar* bar = ScrollBarBeside(control_, way);
    if (!bar) return false;
    if (const int notches = wheel.NotchesOf(message.id, message.w)) {
      Report([&] { bar->UserScroll(ValueAfter(*bar, notches), false); });
    }
    return true;
  }

  forms::PictureBox& box_;
  GdiCanvas canvas_;
  Wheel upright_, sideways_;
};

class UserControlPeer : public PaintedPeer {
 public:
  UserControlPeer(Win32Toolkit& toolkit, forms::UserControl& control) : PaintedPeer(toolkit, control) {
    CreatePainted(Mouse::ActsLast);
  }

 protected:
  void Paint(HDC dc, const RECT& place) override { Fill(dc, place, control_.BackColor()); }
  bool HasGround() const override { return true; }
};

}  // namespace

NewPeer NewPictureBoxPeer(Win32Toolkit& toolkit, forms::PictureBox& box) {
  return std::make_unique<PictureBoxPeer>(toolkit, box);
}

NewPeer NewUserControlPeer(Win32Toolkit& toolkit, forms::UserControl& control) {
  return std::make_unique<UserControlPeer>(toolkit, control);
}

}  // namespace corvane::toolkit_win32
