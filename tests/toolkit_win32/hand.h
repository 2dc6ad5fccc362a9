// The user's hand on native windows: mouse and keyboard as messages that wait in the queue, taken out by a loop that
// knows nothing of our windows, as the environment's own.
#pragma once

#include <string>

#include "toolkit_win32/win.h"

namespace corvane::toolkit_win32 {

// Runs what waits.
inline void Pump() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

// Runs messages for that time.
inline void PumpFor(unsigned milliseconds) {
  const ULONGLONG end = GetTickCount64() + milliseconds;
  for (Pump(); GetTickCount64() < end; Pump()) {
    MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(end - GetTickCount64()), QS_ALLINPUT);
  }
}

// Whether the system would give it mouse and keys.
inline bool CanBeReached(HWND window) {
  for (; window; window = GetAncestor(window, GA_PARENT)) {
    if (!IsWindowEnabled(window) || (!IsWindowVisible(window) && window != GetDesktopWindow())) return false;
  }
  return true;
}

inline void PostMouse(HWND window, UINT message, POINT place, WPARAM held = 0) {
  if (CanBeReached(window)) PostMessageW(window, message, held, MAKELPARAM(place.x, place.y));
  Pump();
}

enum class Button { Left, Right };

inline void PostClick(HWND window, POINT place, Button button = Button::Left, WPARAM held = 0) {
  const bool left = button == Button::Left;
  PostMouse(window, left ? WM_LBUTTONDOWN : WM_RBUTTONDOWN, place, held | (left ? MK_LBUTTON : MK_RBUTTON));
  PostMouse(window, left ? WM_LBUTTONUP : WM_RBUTTONUP, place, held);
}

// Holds keys down for as long as it lives, as far as this thread sees them.
class Held {
 public:
  explicit Held(std::initializer_list<int> keys) {
    GetKeyboardState(before_);
    BYTE now[256];
    for (int key = 0; key < 256; ++key) now[key] = before_[key];
    for (int key : keys) now[key] |= 0x80;
    SetKeyboardState(now);
  }
  ~Held() { SetKeyboardState(before_); }
  Held(const Held&) = delete;
  Held& operator=(const Held&) = delete;

 private:
  BYTE before_[256];
};

struct KeyState {
  bool shift = false, ctrl = false, alt = false;
};

// Down and up again, to what has the focus of this thread at each time.
inline void PostKey(int code, KeyState state = {}) {
  const auto target = [] { return GetFocus() ? GetFocus() : GetActiveWindow(); };
  const Held held({state.shift ? VK_SHIFT : 0, state.ctrl ? VK_CONTROL : 0, state.alt ? VK_MENU : 0});
  const bool system = state.alt && !state.ctrl;
  const LPARAM scan = static_cast<LPARAM>(MapVirtualKeyW(static_cast<UINT>(code), 0)) << 16;
  const LPARAM down = 1 | scan | (system ? 1 << 29 : 0);
  if (CanBeReached(target()))
    PostMessageW(target(), system ? WM_SYSKEYDOWN : WM_KEYDOWN, static_cast<WPARAM>(code), down);
  Pump();
  if (CanBeReached(target())) {
    PostMessageW(target(), system ? WM_SYSKEYUP : WM_KEYUP, static_cast<WPARAM>(code),
                 down | static_cast<LPARAM>(0xC0000000));
  }
  Pump();
}

inline void PostText(const std::wstring& text) {
  for (wchar_t each : text) {
    const SHORT key = VkKeyScanW(each);
    PostKey(LOBYTE(key), {(HIBYTE(key) & 1) != 0, (HIBYTE(key) & 2) != 0, (HIBYTE(key) & 4) != 0});
  }
}

// The deepest visible window at a place of [base]'s client area, and the place in it.
struct Spot {
  HWND window;
  POINT place;
};
inline Spot SpotAt(HWND base, POINT place) {
  for (;;) {
    const HWND below = ChildWindowFromPointEx(base, place, CWP_SKIPINVISIBLE);
    if (!below || below == base) return {base, place};
    if (SendMessageW(below, WM_NCHITTEST, 0, 0) == HTTRANSPARENT) return {base, place};
    MapWindowPoints(base, below, &place, 1);
    base = below;
  }
}

inline std::wstring TextOf(HWND window) {
  wchar_t text[1024];
  return {text, static_cast<size_t>(SendMessageW(window, WM_GETTEXT, 1024, reinterpret_cast<LPARAM>(text)))};
}

}  // namespace corvane::toolkit_win32
