#include "toolkit_win32/modal.h"

#include "toolkit_win32/window.h"

namespace corvane::toolkit_win32 {
namespace {

void Run(MSG& message) {
  TranslateMessage(&message);
  DispatchMessageW(&message);
}

}  // namespace

void ModalRun::RunLoop() {
  MSG message;
  while (!ended_) {
    const BOOL got = GetMessageW(&message, nullptr, 0, 0);
    if (got == -1) return End();
    if (got == 0) {
      PostQuitMessage(static_cast<int>(message.wParam));
      return End();
    }
    Run(message);
  }
}

void ModalRun::End() {
  ended_ = true;
  others_.End();
}

void ModalRun::GiveFocusBack() const {
  if (!IsWindow(active_before_) || !IsWindowVisible(active_before_)) return;
  const HWND now = GetActiveWindow();
  if (WindowAt(active_before_) && now && IsWindowVisible(now)) return;  // the logic gave it to one of its forms
  if (now && now != active_before_ && !WindowAt(now)) return;           // the user or the logic went elsewhere
  SetActiveWindow(active_before_);
  if (IsWindow(focus_before_)) SetFocus(focus_before_);
}

void RunWaitingMessages() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) return PostQuitMessage(static_cast<int>(message.wParam));
    Run(message);
  }
}

}  // namespace corvane::toolkit_win32
