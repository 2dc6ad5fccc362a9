#include "tests/stage/main_window.h"

#include <algorithm>

namespace corvane::stage {

namespace {

constexpr wchar_t kClass[] = L"StageMainWindow";
constexpr UINT_PTR kWakeUp = 1;
constexpr DWORD kSettled = 20;  // milliseconds without a message

ACCEL kAccelerators[] = {
    {FVIRTKEY, VK_F5, 1},     {FVIRTKEY | FCONTROL, 'F', 2}, {FVIRTKEY, VK_DELETE, 3},  {FVIRTKEY, VK_TAB, 4},
    {FVIRTKEY, VK_RETURN, 5}, {FVIRTKEY, VK_ESCAPE, 6},      {FVIRTKEY | FALT, '1', 7}, {FVIRTKEY, 'A', 8}};

}  // namespace

MainWindow::MainWindow() {
  const HINSTANCE instance = GetModuleHandleW(nullptr);
  WNDCLASSW description{};
  description.lpfnWndProc = &Procedure;
  description.hInstance = instance;
  description.hCursor = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
  description.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_APPWORKSPACE + 1);
  description.lpszClassName = kClass;
  RegisterClassW(&description);
  window_ = CreateWindowW(kClass, L"Stage", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, 0, 0, 1000, 700, nullptr, nullptr,
                          instance, this);
  code_ = CreateWindowW(L"EDIT", L"", WS_CHILD | WS_VISIBLE | ES_MULTILINE, 4, 4, 400, 300, window_, nullptr, instance,
                        nullptr);
  accelerators_ = CreateAcceleratorTableW(kAccelerators, static_cast<int>(std::size(kAccelerators)));
  ShowWindow(window_, SW_SHOW);
  SetForegroundWindow(window_);
  SetFocus(code_);
}

MainWindow::~MainWindow() {
  DestroyAcceleratorTable(accelerators_);
  DestroyWindow(window_);
  UnregisterClassW(kClass, GetModuleHandleW(nullptr));
}

LRESULT CALLBACK MainWindow::Procedure(HWND window, UINT message, WPARAM w, LPARAM l) {
  if (message == WM_NCCREATE)
    SetWindowLongPtrW(window, GWLP_USERDATA,
                      reinterpret_cast<LONG_PTR>(reinterpret_cast<CREATESTRUCTW*>(l)->lpCreateParams));
  auto* self = reinterpret_cast<MainWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (self && message == WM_COMMAND && HIWORD(w) == 1) self->commands.push_back(LOWORD(w));
  if (self && message == WM_TIMER) self->RunDue(w);
  if (self && message == WM_SETFOCUS) SetFocus(self->code_);
  return DefWindowProcW(window, message, w, l);
}

void MainWindow::RunDue(UINT_PTR timer) {
  const auto due = std::find_if(later_.begin(), later_.end(), [&](const Act& act) { return act.timer == timer; });
  if (due == later_.end()) return;
  KillTimer(window_, timer);
  const auto act = due->act;
  later_.erase(due);
  act();
}

void MainWindow::Later(DWORD milliseconds, std::function<void()> act) {
  later_.push_back({++last_timer_, std::move(act)});
  SetTimer(window_, last_timer_, milliseconds, nullptr);
}

// Every key is looked up among its accelerators, whatever window it is for, and then among those of its dialogs.
void MainWindow::Dispatch(MSG& message) {
  if (TranslateAcceleratorW(window_, accelerators_, &message)) return;
  if (IsDialogMessageW(window_, &message)) return;
  TranslateMessage(&message);
  DispatchMessageW(&message);
}

// The timer ends the wait for a message that never comes.
bool MainWindow::PumpUntil(const std::function<bool()>& done, DWORD milliseconds) {
  const DWORD start = GetTickCount();
  SetTimer(window_, kWakeUp, 5, nullptr);
  bool reached = done();
  MSG message;
  while (!reached && GetTickCount() - start < milliseconds && GetMessageW(&message, nullptr, 0, 0) > 0) {
    Dispatch(message);
    reached = done();
  }
  KillTimer(window_, kWakeUp);
  return reached;
}

void MainWindow::Settle() {
  DWORD quiet_since = GetTickCount();
  PumpUntil([&] {
    MSG next;
    if (PeekMessageW(&next, nullptr, 0, 0, PM_NOREMOVE) && next.message != WM_TIMER) quiet_since = GetTickCount();
    return GetTickCount() - quiet_since > kSettled;
  });
}

}  // namespace corvane::stage
