// ToolTips: one native tool tip window for all controls of a toolkit, made when the first has a text.
#pragma once

#include <string>

#include "toolkit_win32/window.h"

namespace corvane::toolkit_win32 {

class ToolTips : private MessageSink {
 public:
  explicit ToolTips(Win32Toolkit& toolkit) : window_(toolkit, *this) {}
  // Empty text: none. A window's tips must be taken away before it goes.
  void Show(HWND over, const std::wstring& text);
  // A mouse message of [over], or of a part of it.
  void Hear(HWND over, const Message& message);
  void Close() { window_.Release(); }
  HWND Handle() const { return window_.Handle(); }

 private:
  LRESULT OnMessage(Window& window, const Message& message) override { return window.Default(message); }
  Window window_;
};

}  // namespace corvane::toolkit_win32
