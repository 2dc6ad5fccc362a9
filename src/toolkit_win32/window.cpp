#include "toolkit_win32/window.h"

#include <cstdint>
#include <exception>
#include <string>

#include "toolkit_win32/toolkit.h"
#include "toolkit_win32/window_yard.h"

namespace corvane::toolkit_win32 {

namespace {

// The property that holds a window's slot. Another copy of this code on the same desktop, in another process or another
// library of this one, has its own.
const wchar_t* NameOfSlot() {
  static const std::wstring name = L"CorvaneWindow" + std::to_wstring(reinterpret_cast<uintptr_t>(&NameOfSlot));
  return name.c_str();
}

bool IsOfThisThread(HWND handle) {
  return GetWindowThreadProcessId(handle, nullptr) == GetCurrentThreadId();
}

// The child that [message] comes from, when it is one that a control sends to its parent.
HWND SenderOf(const Message& message) {
  switch (message.id) {
    case WM_COMMAND:
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORSCROLLBAR:
    case WM_CTLCOLORSTATIC:
      return reinterpret_cast<HWND>(message.l);
    case WM_NOTIFY:
      return message.l ? reinterpret_cast<const NMHDR*>(message.l)->hwndFrom : nullptr;
    case WM_DRAWITEM: {
      const auto* item = reinterpret_cast<const DRAWITEMSTRUCT*>(message.l);
      return item && item->CtlType != ODT_MENU ? item->hwndItem : nullptr;
    }
    case WM_MEASUREITEM: {
      const auto* item = reinterpret_cast<const MEASUREITEMSTRUCT*>(message.l);
      const bool of_control = item && item->CtlType != ODT_MENU;
      return of_control ? GetDlgItem(message.window, static_cast<int>(item->CtlID)) : nullptr;
    }
    default:
      return nullptr;
  }
}

}  // namespace

// What hangs on a native window from its first message that we see to its last.
struct WindowSlot {
  WNDPROC original;
  Window* window;  // null: let go
  Win32Toolkit* toolkit;
  std::shared_ptr<WindowYard> yard;

  // Null for a window of somebody else: what hangs on that is no pointer of ours.
  static WindowSlot* Of(HWND handle) {
    return IsOfThisThread(handle) ? static_cast<WindowSlot*>(GetPropW(handle, NameOfSlot())) : nullptr;
  }

  static void Hang(Window& window, HWND handle) {
    auto slot = std::make_unique<WindowSlot>();
    slot->window = &window;
    slot->toolkit = &window.toolkit_;
    slot->yard = window.toolkit_.Yard();
    window.handle_ = handle;
    window.slot_ = slot.get();
    SetPropW(handle, NameOfSlot(), slot.release());
    window.slot_->original =
        reinterpret_cast<WNDPROC>(SetWindowLongPtrW(handle, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure)));
  }

  static LRESULT CALLBACK Procedure(HWND handle, UINT id, WPARAM w, LPARAM l) noexcept {
    WindowSlot* slot = Of(handle);
    if (!slot) return DefWindowProcW(handle, id, w, l);
    if (id == WM_NCDESTROY) return End(slot, handle, w, l);
    const std::shared_ptr<WindowYard> yard = slot->yard;
    const WindowYard::Visit visit(*yard, handle);
    if (!slot->window) return CallWindowProcW(slot->original, handle, id, w, l);
    Win32Toolkit& toolkit = *slot->toolkit;
    try {
      return slot->window->Tell({handle, id, w, l});
    } catch (...) {
      if (!yard->IsClosed()) toolkit.Guard([fault = std::current_exception()] { std::rethrow_exception(fault); });
      return 0;
    }
  }

  static LRESULT End(WindowSlot* slot, HWND handle, WPARAM w, LPARAM l) {
    const std::unique_ptr<WindowSlot> last(slot);
    slot->yard->Forget(handle);
    if (Window* window = slot->window) {
      window->handle_ = nullptr;
      window->slot_ = nullptr;
      window->sink_.OnGone(*window);
    }
    RemovePropW(handle, NameOfSlot());
    SetWindowLongPtrW(handle, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(slot->original));
    return CallWindowProcW(slot->original, handle, WM_NCDESTROY, w, l);
  }
};

void Window::Create(const Kind& kind, HWND parent, const std::wstring& text, const RECT& place) {
  Release();
  const VisualStyles::Use styled(toolkit_.Styles());
  const bool child = (kind.style & WS_CHILD) != 0;
  const auto menu = reinterpret_cast<HMENU>(static_cast<INT_PTR>(child ? kind.menu_id : 0));
  const bool placed = place.right > place.left;
  const int left = placed  ? place.left
                   : child ? 0
                           : CW_USEDEFAULT,
            top = placed  ? place.top
                  : child ? 0
                          : CW_USEDEFAULT;
  HWND made =
      CreateWindowExW(kind.extended, kind.name ? kind.name : toolkit_.OwnClass(), text.c_str(), kind.style, left, top,
                      place.right - place.left, place.bottom - place.top, parent, menu, toolkit_.Instance(), nullptr);
  if (!made) return;
  owned_ = true;
  WindowSlot::Hang(*this, made);
}

void Window::Attach(HWND window) {
  Release();
  owned_ = false;
  if (window && !WindowSlot::Of(window)) WindowSlot::Hang(*this, window);
}

void Window::Release() {
  if (!handle_) return;
  const HWND handle = handle_;
  slot_->window = nullptr;
  const std::shared_ptr<WindowYard> yard = slot_->yard;
  handle_ = nullptr;
  slot_ = nullptr;
  if (owned_) yard->Bury(handle);
}

LRESULT Window::Tell(const Message& message) {
  if (const HWND sender = SenderOf(message)) {
    if (Window* child = WindowAt(sender); child && child != this) {
      if (const std::optional<LRESULT> answer = child->sink_.OnNotice(*child, message)) return *answer;
      if (!WindowAt(message.window)) return 0;
    }
  }
  return sink_.OnMessage(*this, message);
}

LRESULT Window::Default(const Message& message) {
  if (!slot_) return 0;
  return CallWindowProcW(slot_->original, message.window, message.id, message.w, message.l);
}

std::wstring Window::Text() const {
  std::wstring text(static_cast<size_t>(GetWindowTextLengthW(handle_)), L'\0');
  const int length = GetWindowTextW(handle_, text.data(), static_cast<int>(text.size()) + 1);
  text.resize(static_cast<size_t>(length));
  return text;
}

void Window::SetText(const std::wstring& text) {
  if (Text() != text) SetWindowTextW(handle_, text.c_str());
}

RECT Window::Client() const {
  RECT client{};
  GetClientRect(handle_, &client);
  return client;
}

Window* WindowAt(HWND handle) {
  const WindowSlot* slot = handle ? WindowSlot::Of(handle) : nullptr;
  return slot ? slot->window : nullptr;
}

Window* WindowAround(HWND handle) {
  for (; handle; handle = GetAncestor(handle, GA_PARENT)) {
    if (Window* found = WindowAt(handle)) return found;
  }
  return nullptr;
}

}  // namespace corvane::toolkit_win32
