#include "toolkit_win32/keys.h"

namespace corvane::toolkit_win32 {
namespace {

bool IsHeld(int key) {
  return (GetKeyState(key) & 0x8000) != 0;
}

}  // namespace

int ShiftNow() {
  return (IsHeld(VK_SHIFT) ? forms::vbShiftMask : 0) | (IsHeld(VK_CONTROL) ? forms::vbCtrlMask : 0) |
         (IsHeld(VK_MENU) ? forms::vbAltMask : 0);
}

int ShiftOfMouse(WPARAM held) {
  return (held & MK_SHIFT ? forms::vbShiftMask : 0) | (held & MK_CONTROL ? forms::vbCtrlMask : 0) |
         (IsHeld(VK_MENU) ? forms::vbAltMask : 0);
}

int ButtonOf(UINT mouse_message) {
  switch (mouse_message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_LBUTTONDBLCLK:
      return forms::vbLeftButton;
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP:
    case WM_RBUTTONDBLCLK:
      return forms::vbRightButton;
    case WM_MBUTTONDOWN:
    case WM_MBUTTONUP:
    case WM_MBUTTONDBLCLK:
      return forms::vbMiddleButton;
    default:
      return 0;
  }
}

int ButtonsOf(WPARAM held) {
  return (held & MK_LBUTTON ? forms::vbLeftButton : 0) | (held & MK_RBUTTON ? forms::vbRightButton : 0) |
         (held & MK_MBUTTON ? forms::vbMiddleButton : 0);
}

bool IsDoubleClick(UINT message) {
  return message == WM_LBUTTONDBLCLK || message == WM_RBUTTONDBLCLK || message == WM_MBUTTONDBLCLK;
}

bool IsMousePress(UINT message) {
  return message == WM_LBUTTONDOWN || message == WM_RBUTTONDOWN || message == WM_MBUTTONDOWN || IsDoubleClick(message);
}

bool IsMouseRelease(UINT message) {
  return message == WM_LBUTTONUP || message == WM_RBUTTONUP || message == WM_MBUTTONUP;
}

bool IsKeyMessage(UINT message) {
  return message >= WM_KEYFIRST && message <= WM_KEYLAST;
}

}  // namespace corvane::toolkit_win32
