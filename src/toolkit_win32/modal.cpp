#include "toolkit_win32/modal.h"

#include <utility>

#include "toolkit_win32/thread_windows.h"
#include "toolkit_win32/window.h"

namespace corvane::toolkit_win32 {
namespace {

thread_local ModalRun* newest_run = nullptr;

void Run(MSG& message) {
  TranslateMessage(&message);
  DispatchMessageW(&message);
}

}  // namespace

ModalRun::ModalRun(HWND window)
    : below_(std::exchange(newest_run, this)), active_before_(GetActiveWindow()), focus_before_(GetFocus()) {
  if (below_) below_->above_ = this;
  ReleaseCapture();
  disabled_ = UsableWindows(window);
  for (HWND each : disabled_) EnableWindow(each, FALSE);
}

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
  if (ended_) return;
  ended_ = true;
  if (below_) below_->above_ = above_;
  (above_ ? above_->below_ : newest_run) = below_;
  if (above_) return above_->disabled_.splice(above_->disabled_.end(), disabled_);
  for (HWND each : disabled_) EnableWindow(each, TRUE);
  disabled_.clear();
}

void ModalRun::GiveFocusBack() const {
  if (!IsWindow(active_before_) || WindowAt(active_before_) || !IsWindowVisible(active_before_)) return;
  const HWND now = GetActiveWindow();
  if (now && now != active_before_ && !WindowAt(now)) return;  // the user or the logic went elsewhere
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
