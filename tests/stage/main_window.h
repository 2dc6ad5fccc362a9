// MainWindow: the environment's main window with a place for code, its accelerator table, and its message loop, which
// knows nothing of the windows of an add-in.
#pragma once

#include <functional>
#include <vector>
#include <windows.h>

namespace corvane::stage {

class MainWindow {
 public:
  MainWindow();
  ~MainWindow();
  MainWindow(const MainWindow&) = delete;

  HWND Handle() const { return window_; }
  HWND CodeArea() const { return code_; }
  // Its accelerators that were taken: 1 F5, 2 Ctrl+F, 3 Delete, 4 Tab, 5 Enter, 6 Esc, 7 Alt+1, 8 "A". None should be
  // while a window of the add-in has the focus.
  std::vector<int> commands;

  // Runs the loop until [done]. False when that took too long.
  bool PumpUntil(const std::function<bool()>& done, DWORD milliseconds = 10000);
  // Until no message is left, and a little longer.
  void Settle();
  // [act] is done from inside whatever loop runs in [milliseconds] from now.
  void Later(DWORD milliseconds, std::function<void()> act);

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM w, LPARAM l);
  void Dispatch(MSG& message);
  void RunDue(UINT_PTR timer);

  HWND window_ = nullptr, code_ = nullptr;
  HACCEL accelerators_ = nullptr;
  struct Act {
    UINT_PTR timer;
    std::function<void()> act;
  };
  std::vector<Act> later_;
  UINT_PTR last_timer_ = 100;
};

}  // namespace corvane::stage
