#include "toolkit_win32/painted.h"

#include <vector>

#include "toolkit_win32/colors.h"
#include "toolkit_win32/toolkit.h"

namespace corvane::toolkit_win32 {
namespace {

RECT PlaceInParent(HWND window) {
  RECT place{};
  GetWindowRect(window, &place);
  MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&place), 2);
  return place;
}

PaintedPeer* PaintedAt(HWND window) {
  const Window* found = WindowAt(window);
  return found ? dynamic_cast<PaintedPeer*>(&found->Sink()) : nullptr;
}

// The painted controls under [window] that it covers some of, the lowest first.
std::vector<HWND> PaintedUnder(HWND window) {
  std::vector<HWND> found;
  const RECT place = PlaceInParent(window);
  for (HWND each = GetWindow(window, GW_HWNDNEXT); each; each = GetWindow(each, GW_HWNDNEXT)) {
    RECT common, other = PlaceInParent(each);
    if (IsWindowVisible(each) && IntersectRect(&common, &place, &other) && PaintedAt(each)) found.push_back(each);
  }
  return {found.rbegin(), found.rend()};
}

bool IsClear(HWND window) {
  if (!IsWindowVisible(window)) return false;
  const PaintedPeer* painted = PaintedAt(window);
  return painted && painted->IsClear();
}

void PaintBehind(HWND window, HDC dc) {
  const HWND parent = GetParent(window);
  const RECT place = PlaceInParent(window);
  POINT before{};
  OffsetWindowOrgEx(dc, place.left, place.top, &before);
  SendMessageW(parent, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc), PRF_CLIENT | PRF_ERASEBKGND);
  SetWindowOrgEx(dc, before.x, before.y, nullptr);
  for (HWND each : PaintedUnder(window)) {
    const RECT other = PlaceInParent(each);
    OffsetWindowOrgEx(dc, place.left - other.left, place.top - other.top, &before);
    PaintedAt(each)->PaintWithoutGround(dc);
    SetWindowOrgEx(dc, before.x, before.y, nullptr);
  }
}

}  // namespace

void RepaintWithClear(HWND window, const RECT* place) {
  InvalidateRect(window, place, FALSE);
  const HWND parent = GetParent(window);
  if (!parent || !IsWindowVisible(parent)) return;
  RECT common;
  for (HWND each = GetWindow(window, GW_CHILD); each; each = GetWindow(each, GW_HWNDNEXT)) {
    const RECT other = PlaceInParent(each);
    if ((!place || IntersectRect(&common, place, &other)) && IsClear(each)) InvalidateRect(each, nullptr, FALSE);
  }
  const RECT own = PlaceInParent(window);
  for (HWND each = GetWindow(window, GW_HWNDPREV); each; each = GetWindow(each, GW_HWNDPREV)) {
    const RECT other = PlaceInParent(each);
    if (IntersectRect(&common, &own, &other) && IsClear(each)) InvalidateRect(each, nullptr, FALSE);
  }
}

// Where it stood something else is seen now. A form that is unloaded is hidden already.
PaintedPeer::~PaintedPeer() {
  if (Handle() && control_.FormOf().Visible()) Repaint();
}

void PaintedPeer::BringToFront(bool front) {
  ControlPeer::BringToFront(front);
  Repaint();
}

void PaintedPeer::CreatePainted(Mouse mouse, bool takes_mouse) {
  takes_mouse_ = takes_mouse;
  Create({nullptr}, mouse);
}

void PaintedPeer::Repaint() {
  RepaintWithClear(Handle());
}

// The buttons on it have its colour around them.
void PaintedPeer::ShowColors() {
  Repaint();
  RedrawWindow(Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

// What showed through at the old place does not at the new one.
void PaintedPeer::ShowPlace() {
  Repaint();
  ControlPeer::ShowPlace();
  Repaint();
}

LRESULT PaintedPeer::OnOwnMessage(Window& window, const Message& message) {
  switch (message.id) {
    case WM_PAINT:
      PaintWindow();
      return 0;
    case WM_PRINTCLIENT: {
      const auto dc = reinterpret_cast<HDC>(message.w);
      if (!HasGround()) PaintBehind(Handle(), dc);
      Paint(dc, window.Client());
      return 0;
    }
    case WM_ERASEBKGND:
      return 1;
    case WM_NCHITTEST:
      if (!takes_mouse_) return HTTRANSPARENT;
      break;
    default:
      break;
  }
  return window.Default(message);
}

void PaintedPeer::PaintWindow() {
  PAINTSTRUCT paint{};
  const HDC target = BeginPaint(Handle(), &paint);
  if (target && !IsRectEmpty(&paint.rcPaint)) {
    const BufferedPaint buffer(target, paint.rcPaint);
    if (!HasGround()) PaintBehind(Handle(), buffer.Dc());
    Paint(buffer.Dc(), window_.Client());
  }
  EndPaint(Handle(), &paint);
}

RECT InsideBorder(RECT place, int pixels) {
  InflateRect(&place, -pixels, -pixels);
  return place;
}

void PaintSunkenFrame(HDC dc, const RECT& place, const PixelScale& scale) {
  const int line = scale.Scaled(1);
  const forms::Color color = forms::kButtonShadow;
  Fill(dc, {place.left, place.top, place.right, place.top + line}, color);
  Fill(dc, {place.left, place.bottom - line, place.right, place.bottom}, color);
  Fill(dc, {place.left, place.top, place.left + line, place.bottom}, color);
  Fill(dc, {place.right - line, place.top, place.right, place.bottom}, color);
}

BufferedPaint::BufferedPaint(HDC target, const RECT& place)
    : target_(target),
      dc_(CreateCompatibleDC(target)),
      place_(place),
      bitmap_(CreateCompatibleBitmap(target, WidthOf(place), HeightOf(place))),
      bitmap_before_(SelectObject(dc_, bitmap_)) {
  SetWindowOrgEx(dc_, place.left, place.top, nullptr);
}

BufferedPaint::~BufferedPaint() {
  BitBlt(target_, place_.left, place_.top, WidthOf(place_), HeightOf(place_), dc_, place_.left, place_.top, SRCCOPY);
  SelectObject(dc_, bitmap_before_);
  DeleteObject(bitmap_);
  DeleteDC(dc_);
}

}  // namespace corvane::toolkit_win32
