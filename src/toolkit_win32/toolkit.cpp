#include "toolkit_win32/toolkit.h"

#include <utility>

#include "toolkit_win32/form.h"
#include "toolkit_win32/key_hook.h"
#include "toolkit_win32/menu.h"
#include "toolkit_win32/modal.h"
#include "toolkit_win32/peer.h"
#include "toolkit_win32/peers.h"

namespace corvane::toolkit_win32 {
namespace {

constexpr UINT kRunPosted = WM_APP + 1;

template <class Kind>
Kind& As(forms::Control& control) {
  return dynamic_cast<Kind&>(control);
}

int SystemDpi() {
  const HDC screen = GetDC(nullptr);
  const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
  ReleaseDC(nullptr, screen);
  return dpi > 0 ? dpi : kLogicalDpi;
}

HINSTANCE ModuleOf(const void* code) {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     static_cast<LPCWSTR>(code), &module);
  return module;
}

// Each toolkit has its own class, so that each can take back what it registered.
std::wstring RegisterOwnClass(HINSTANCE instance, const void* toolkit) {
  const std::wstring name = L"Corvane." + std::to_wstring(reinterpret_cast<UINT_PTR>(toolkit));
  WNDCLASSEXW kind{};
  kind.cbSize = sizeof kind;
  kind.style = CS_DBLCLKS;
  kind.lpfnWndProc = DefWindowProcW;
  kind.hInstance = instance;
  kind.hCursor = LoadCursorW(nullptr, MAKEINTRESOURCEW(32512));
  kind.lpszClassName = name.c_str();
  RegisterClassExW(&kind);
  return name;
}

}  // namespace

Win32Toolkit::Win32Toolkit(HINSTANCE instance, int dpi)
    : instance_(instance ? instance : ModuleOf(reinterpret_cast<const void*>(&ModuleOf))),
      scale_(dpi > 0 ? dpi : SystemDpi()),
      own_class_(RegisterOwnClass(instance_, this)),
      styles_(instance_),
      fonts_(scale_.Dpi()),
      metrics_(*this),
      tips_(*this),
      desk_(*this, *this) {
  desk_.Create({nullptr}, HWND_MESSAGE);
}

Win32Toolkit::~Win32Toolkit() {
  posted_.clear();
  clocks_.clear();
  desk_.Release();
  tips_.Close();
  yard_->Close();
  UnregisterClassW(OwnClass(), instance_);
}

std::unique_ptr<forms::FormPeer> Win32Toolkit::NewFormPeer(forms::Form& form) {
  return std::make_unique<FormWindowPeer>(*this, form);
}

std::unique_ptr<forms::Peer> Win32Toolkit::NewPeer(forms::Control& control) {
  using forms::ControlKind;
  switch (control.Kind()) {
    case ControlKind::Label:
      return NewLabelPeer(*this, As<forms::Label>(control));
    case ControlKind::TextBox:
      return NewTextBoxPeer(*this, As<forms::TextBox>(control));
    case ControlKind::CommandButton:
      return NewCommandButtonPeer(*this, As<forms::CommandButton>(control));
    case ControlKind::CheckBox:
      return NewCheckBoxPeer(*this, As<forms::CheckBox>(control));
    case ControlKind::OptionButton:
      return NewOptionButtonPeer(*this, As<forms::OptionButton>(control));
    case ControlKind::Frame:
      return NewFramePeer(*this, As<forms::Frame>(control));
    case ControlKind::ListBox:
      return NewListBoxPeer(*this, As<forms::ListBox>(control));
    case ControlKind::ComboBox:
      return NewComboBoxPeer(*this, As<forms::ComboBox>(control));
    case ControlKind::PictureBox:
      return NewPictureBoxPeer(*this, As<forms::PictureBox>(control));
    case ControlKind::Image:
      return NewImagePeer(*this, As<forms::Image>(control));
    case ControlKind::Line:
      return NewLinePeer(*this, As<forms::Line>(control));
    case ControlKind::Shape:
      return NewShapePeer(*this, As<forms::Shape>(control));
    case ControlKind::HScrollBar:
    case ControlKind::VScrollBar:
      return NewScrollBarPeer(*this, As<forms::ScrollBar>(control));
    case ControlKind::Timer:
      return NewTimerPeer(*this, As<forms::Timer>(control));
    case ControlKind::Toolbar:
      return NewToolbarPeer(*this, As<forms::Toolbar>(control));
    case ControlKind::Menu:
      return NewMenuPeer(As<forms::Menu>(control));
    case ControlKind::UserControl:
      return NewUserControlPeer(*this, As<forms::UserControl>(control));
    case ControlKind::Form:
    case ControlKind::ImageList:
      return nullptr;
  }
  return nullptr;
}

HWND Win32Toolkit::WindowOf(const forms::Form& form) const {
  auto* peer = dynamic_cast<FormWindowPeer*>(form.Peer());
  return peer ? peer->Handle() : nullptr;
}

HWND Win32Toolkit::WindowOf(const forms::Control& control) const {
  auto* peer = dynamic_cast<WindowPeer*>(control.Peer());
  return peer ? peer->Handle() : nullptr;
}

HWND Win32Toolkit::FrontWindow() const {
  const HWND active = GetActiveWindow();
  if (active) return active;
  const HWND own = ActiveForm() ? WindowOf(*ActiveForm()) : nullptr;
  return own && IsWindowEnabled(own) ? own : host_window_;
}

forms::Rect Win32Toolkit::FrameOf(const forms::Form& form) {
  return FrameOfForm(*this, form);
}

void Win32Toolkit::RunModal(forms::Form& form) {
  if (auto* peer = dynamic_cast<FormWindowPeer*>(form.Peer())) peer->RunModalLoop();
}

void Win32Toolkit::DoEvents() {
  RunWaitingMessages();
}

void Win32Toolkit::PopupMenu(forms::Form& form, forms::Menu& menu, forms::Twips x, forms::Twips y) {
  auto* peer = dynamic_cast<FormWindowPeer*>(form.Peer());
  if (!peer || !peer->Handle()) return;
  POINT place{scale_.Pixels(x), scale_.Pixels(y)};
  ClientToScreen(peer->Handle(), &place);
  forms::Menu* chosen = peer->Menus().ChooseFrom(menu, place);
  if (chosen) Guard([&] { chosen->UserClick(); });
}

forms::Control* Win32Toolkit::ControlUnderPointer() {
  POINT place{};
  return GetCursorPos(&place) ? ControlShownBy(WindowFromPoint(place)) : nullptr;
}

void Win32Toolkit::SetScreenPointer(int mouse_pointer) {
  if (std::exchange(screen_pointer_, mouse_pointer) == mouse_pointer) return;
  POINT place{};
  GetCursorPos(&place);
  const HWND below = WindowFromPoint(place);
  if (WindowAround(below)) SendMessageW(below, WM_SETCURSOR, reinterpret_cast<WPARAM>(below), HTCLIENT);
}

UINT_PTR Win32Toolkit::StartClock(unsigned milliseconds, std::function<void()> tick) {
  const UINT_PTR number = ++last_clock_;
  clocks_[number].tick = std::move(tick);
  SetTimer(desk_.Handle(), number, milliseconds, nullptr);
  return number;
}

void Win32Toolkit::StopClock(UINT_PTR number) {
  KillTimer(desk_.Handle(), number);
  clocks_.erase(number);
}

// It may stop itself, or end the toolkit; what it waits for does not bring its next turn.
void Win32Toolkit::Tick(UINT_PTR number) {
  const auto found = clocks_.find(number);
  if (found == clocks_.end() || found->second.runs) return;
  found->second.runs = true;
  const std::shared_ptr<WindowYard> yard = yard_;
  std::function<void()>(found->second.tick)();
  if (yard->IsClosed()) return;
  if (const auto still = clocks_.find(number); still != clocks_.end()) still->second.runs = false;
}

std::shared_ptr<KeyHook> Win32Toolkit::Keys() {
  std::shared_ptr<KeyHook> keys = keys_.lock();
  if (!keys) keys_ = keys = std::make_shared<KeyHook>();
  return keys;
}

void Win32Toolkit::Post(Life wanted_by, std::function<void()> act) {
  if (posted_.empty()) PostMessageW(desk_.Handle(), kRunPosted, 0, 0);
  posted_.push_back({std::move(wanted_by), std::move(act)});
}

// One at a time: an act that waits for the user, or fails, does not hold up the others.
void Win32Toolkit::RunPosted() {
  if (posted_.empty()) return;
  const Posted next = std::move(posted_.front());
  posted_.erase(posted_.begin());
  if (!posted_.empty()) PostMessageW(desk_.Handle(), kRunPosted, 0, 0);
  if (!next.wanted_by.expired()) Guard(next.act);
}

LRESULT Win32Toolkit::OnMessage(Window& window, const Message& message) {
  if (message.id == kRunPosted) {
    RunPosted();
    return 0;
  }
  if (message.id == WM_TIMER) {
    Tick(message.w);
    return 0;
  }
  return window.Default(message);
}

}  // namespace corvane::toolkit_win32
