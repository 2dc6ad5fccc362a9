// Window: a native window whose messages come to a peer first. Nothing thrown leaves it, and it stays until none of
// its messages is running any more: a peer may go in the middle of one.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "toolkit_win32/win.h"

namespace corvane::toolkit_win32 {

class Win32Toolkit;
class Window;
struct WindowSlot;

struct Message {
  HWND window;
  UINT id;
  WPARAM w;
  LPARAM l;
};

// What a window's messages come to; it outlives the Window.
class MessageSink {
 public:
  virtual ~MessageSink() = default;
  // Every message of the window; what is not its own it hands to window.Default(message).
  virtual LRESULT OnMessage(Window& window, const Message& message) = 0;
  // What the window told its parent (WM_COMMAND, WM_NOTIFY, WM_CTLCOLOR..., WM_HSCROLL, WM_VSCROLL, WM_DRAWITEM,
  // WM_MEASUREITEM): the answer, or nothing to let the parent have it.
  virtual std::optional<LRESULT> OnNotice(Window&, const Message&) { return std::nullopt; }
  // A key goes down, before anything is made of it: true when it was used up.
  virtual bool OnKey(Window&, int /*key_code*/, int /*shift*/) { return false; }
  // The system destroyed the window, with its parent or its owner.
  virtual void OnGone(Window&) {}
};

// Tells whether what it was made for is still there.
using Life = std::weak_ptr<const void>;

class Window {
 public:
  Window(Win32Toolkit& toolkit, MessageSink& sink) : toolkit_(toolkit), sink_(sink) {}
  ~Window() { Release(); }
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;

  struct Kind {
    const wchar_t* name;  // null: a plain window of the toolkit's own class
    DWORD style = 0, extended = 0;
    int menu_id = 0;  // of a child
  };
  // Makes a native window, with visual styles where the host has them.
  void Create(const Kind& kind, HWND parent, const std::wstring& text = {}, const RECT& place = {});
  // Watches a part of another control (the edit field of a combo box). It is not destroyed with this.
  void Attach(HWND window);
  // Destroys the native window, or lets the watched one go.
  void Release();

  HWND Handle() const { return handle_; }
  explicit operator bool() const { return handle_ != nullptr; }
  Win32Toolkit& Toolkit() const { return toolkit_; }
  MessageSink& Sink() const { return sink_; }
  // What the native class does with it.
  LRESULT Default(const Message& message);
  LRESULT Send(UINT id, WPARAM w = 0, LPARAM l = 0) const { return SendMessageW(handle_, id, w, l); }
  std::wstring Text() const;
  void SetText(const std::wstring& text);  // nothing when it is the same
  RECT Client() const;

 private:
  friend struct WindowSlot;
  LRESULT Tell(const Message& message);

  Win32Toolkit& toolkit_;
  MessageSink& sink_;
  HWND handle_ = nullptr;
  WindowSlot* slot_ = nullptr;
  bool owned_ = false;
};

// The window that watches [handle]; null for a window that is not ours.
Window* WindowAt(HWND handle);
// The same, or that of the nearest parent.
Window* WindowAround(HWND handle);

}  // namespace corvane::toolkit_win32
