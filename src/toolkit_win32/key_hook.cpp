#include "toolkit_win32/key_hook.h"

#include <exception>

#include "toolkit_win32/keys.h"
#include "toolkit_win32/toolkit.h"

namespace corvane::toolkit_win32 {
namespace {

// An open menu, or a window that is being moved by keys, has the keys to itself.
bool AreKeysTaken() {
  GUITHREADINFO state{};
  state.cbSize = sizeof state;
  GetGUIThreadInfo(GetCurrentThreadId(), &state);
  return (state.flags & (GUI_INMENUMODE | GUI_INMOVESIZE | GUI_POPUPMENUMODE | GUI_SYSTEMMENUMODE)) != 0;
}

bool GoesDown(UINT id) {
  return id == WM_KEYDOWN || id == WM_SYSKEYDOWN;
}

// The key as the logic sees it, then as the native window does.
void Run(const MSG& message, Window& window) {
  if (GoesDown(message.message)) {
    Win32Toolkit& toolkit = window.Toolkit();
    const std::shared_ptr<WindowYard> yard = toolkit.Yard();
    const bool used = window.Sink().OnKey(window, static_cast<int>(message.wParam), ShiftNow());
    if (!yard->IsClosed()) toolkit.SetAltUsed(used && message.message == WM_SYSKEYDOWN);
    if (used) return;
  }
  if (!IsWindow(message.hwnd)) return;
  TranslateMessage(&message);
  DispatchMessageW(&message);
}

// Nothing thrown enters the system.
void RunGuarded(const MSG& message, Window& window) noexcept {
  Win32Toolkit& toolkit = window.Toolkit();
  const std::shared_ptr<WindowYard> yard = toolkit.Yard();
  try {
    Run(message, window);
  } catch (...) {
    if (!yard->IsClosed()) toolkit.Guard([fault = std::current_exception()] { std::rethrow_exception(fault); });
  }
}

LRESULT CALLBACK Hear(int code, WPARAM removed, LPARAM l) noexcept {
  auto& message = *reinterpret_cast<MSG*>(l);
  if (code == HC_ACTION && removed == PM_REMOVE && IsKeyMessage(message.message) && !AreKeysTaken()) {
    if (Window* window = WindowAround(message.hwnd)) {
      const MSG taken = message;
      message.message = WM_NULL;
      message.wParam = 0;
      message.lParam = 0;
      RunGuarded(taken, *window);
    }
  }
  return CallNextHookEx(nullptr, code, removed, l);
}

}  // namespace

bool KeyHook::EndsUsedAlt(Win32Toolkit& toolkit, const Message& message) {
  if (message.w != VK_MENU || !toolkit.AltUsed()) return false;
  toolkit.SetAltUsed(false);
  return true;
}

KeyHook::KeyHook() : hook_(SetWindowsHookExW(WH_GETMESSAGE, Hear, nullptr, GetCurrentThreadId())) {}

KeyHook::~KeyHook() {
  if (hook_) UnhookWindowsHookEx(hook_);
}

}  // namespace corvane::toolkit_win32
