#include "toolkit_win32/peer.h"

#include <iterator>

#include "forms/form.h"
#include "toolkit_win32/colors.h"
#include "toolkit_win32/form.h"
#include "toolkit_win32/key_hook.h"
#include "toolkit_win32/keys.h"
#include "toolkit_win32/texts.h"
#include "toolkit_win32/toolkit.h"
#include "toolkit_win32/wheel.h"

namespace corvane::toolkit_win32 {
namespace {

// By number of the mouse pointer.
constexpr int kPointers[] = {32512, 32512, 32515, 32513, 32512, 32646, 32643, 32645,
                             32642, 32644, 32516, 32514, 32648, 32650, 32651, 32646};

constexpr DWORD kChild = WS_CHILD | WS_CLIPSIBLINGS | WS_CLIPCHILDREN;

bool HoldsFocus(HWND window) {
  const HWND focus = GetFocus();
  return focus && (focus == window || IsChild(window, focus));
}

bool IsMouseMessage(UINT id) {
  return id >= WM_MOUSEFIRST && id <= WM_MOUSELAST;
}

}  // namespace

HCURSOR ShownPointer(int mouse_pointer) {
  const bool known = mouse_pointer >= 0 && mouse_pointer < static_cast<int>(std::size(kPointers));
  return LoadCursorW(nullptr, MAKEINTRESOURCEW(kPointers[known ? mouse_pointer : 0]));
}

HWND InsideOf(forms::Container& container) {
  if (forms::Control* control = container.AsControl()) {
    auto* peer = dynamic_cast<WindowPeer*>(control->Peer());
    return peer ? peer->Inside() : nullptr;
  }
  auto* peer = dynamic_cast<FormWindowPeer*>(container.FormOfContainer().Peer());
  return peer ? peer->Handle() : nullptr;
}

forms::Control* ControlShownBy(HWND window) {
  const Window* found = WindowAround(window);
  auto* peer = found ? dynamic_cast<WindowPeer*>(&found->Sink()) : nullptr;
  return peer ? peer->ControlOf() : nullptr;
}

ControlPeer::ControlPeer(Win32Toolkit& toolkit, forms::Control& control)
    : toolkit_(toolkit), control_(control), window_(toolkit, *this) {}

ControlPeer::~ControlPeer() {
  life_.reset();
  if (!window_) return;
  const Win32Toolkit::ByCode by_code(toolkit_);
  toolkit_.Tips().Show(Handle(), {});
  window_.Release();
}

void ControlPeer::Create(Window::Kind kind, Mouse mouse) {
  mouse_ = mouse;
  captures_ = kind.name == nullptr;
  kind.style |= kChild;
  window_.Create(kind, InsideOf(control_.ContainerOf()));
  BringToFront(true);
}

void ControlPeer::Changed(forms::Property property) {
  if (!window_) return;
  const Win32Toolkit::ByCode by_code(toolkit_);
  ++showing_;
  using forms::Property;
  const auto is = [&](auto... any) { return property == Property::All || ((property == any) || ...); };
  if (is(Property::Font)) ShowFont();
  if (is(Property::BackColor, Property::ForeColor)) ShowColors();
  if (is(Property::Left, Property::Top, Property::Width, Property::Height)) ShowPlace();
  if (is(Property::ToolTipText)) toolkit_.Tips().Show(Handle(), ShownText(control_.ToolTipText()));
  ShowOwn(property);
  if (is(Property::Enabled)) ShowEnabled();
  if (is(Property::Visible)) ShowVisible();
  --showing_;
}

RECT ControlPeer::ShownPlace() const {
  return toolkit_.Scale().PixelsOf(control_.Place());
}

void ControlPeer::ShowPlace() {
  const RECT place = ShownPlace();
  SetWindowPos(Handle(), nullptr, place.left, place.top, WidthOf(place), HeightOf(place),
               SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
}

void ControlPeer::ShowFont() {
  window_.Send(WM_SETFONT, reinterpret_cast<WPARAM>(toolkit_.Fonts().HandleOf(control_.Font())), TRUE);
}

void ControlPeer::ShowColors() {
  InvalidateRect(Handle(), nullptr, TRUE);
}

void ControlPeer::ShowEnabled() {
  if (!control_.Enabled()) LeaveFocus();
  if ((IsWindowEnabled(Handle()) != FALSE) != control_.Enabled()) EnableWindow(Handle(), control_.Enabled());
}

void ControlPeer::ShowVisible() {
  if (!control_.Visible()) LeaveFocus();
  ShowWindow(Handle(), control_.Visible() ? SW_SHOWNA : SW_HIDE);
}

// The system would leave the keys with a window that takes none.
void ControlPeer::LeaveFocus() {
  if (!HoldsFocus(Handle())) return;
  SetFocus(toolkit_.WindowOf(control_.FormOf()));
}

void ControlPeer::TakeFocus() {
  const Win32Toolkit::ByCode by_code(toolkit_);
  if (const HWND target = FocusTarget()) SetFocus(target);
}

void ControlPeer::BringToFront(bool front) {
  SetWindowPos(Handle(), front ? HWND_TOP : HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void ControlPeer::Report(const std::function<void()>& act) {
  if (showing_ == 0) toolkit_.Guard(act);
}

void ControlPeer::ReportThenShow(forms::Property property, const std::function<void()>& act) {
  const Life self = life_;
  Report(act);
  if (!self.expired()) Changed(property);
}

bool ControlPeer::Tell(const std::function<void()>& act) {
  const Life self = life_;
  bool done = false;
  toolkit_.Guard([&] {
    act();
    done = true;
  });
  return done && !self.expired();
}

std::optional<LRESULT> ControlPeer::OnNotice(Window&, const Message& message) {
  switch (message.id) {
    case WM_CTLCOLORBTN:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORSTATIC: {
      const auto dc = reinterpret_cast<HDC>(message.w);
      SetTextColor(dc, ShownColor(control_.ForeColor()));
      SetBkColor(dc, ShownColor(control_.BackColor()));
      return reinterpret_cast<LRESULT>(BrushOf(dc, control_.BackColor()));
    }
    default:
      return std::nullopt;
  }
}

LRESULT ControlPeer::OnMessage(Window& window, const Message& message) {
  if (IsMouseMessage(message.id)) {
    toolkit_.Tips().Hear(Handle(), message);
    if (IsWheel(message.id) && WheelPasses(message)) return 0;
    if (mouse_ != Mouse::Untold) {
      if (message.id == WM_MOUSEMOVE) return MouseMoved(window, message);
      if (IsMousePress(message.id)) return MousePressed(window, message);
      if (IsMouseRelease(message.id)) return MouseReleased(window, message);
    }
  }
  switch (message.id) {
    case WM_CHAR:
      if (CharacterTyped(static_cast<wchar_t>(message.w))) return 0;
      break;
    case WM_KEYUP:
    case WM_SYSKEYUP:
      if (!Tell([&] { control_.UserKeyUp(static_cast<int>(message.w), ShiftNow()); })) return 0;
      if (KeyHook::EndsUsedAlt(toolkit_, message)) return 0;
      break;
    case WM_SETFOCUS:
      // A handler may have moved it on: the caret is there already.
      if (!FocusCame() || !HoldsFocus(message.window)) return 0;
      break;
    case WM_SETCURSOR:
      if (LOWORD(message.l) == HTCLIENT && ShowPointer()) return TRUE;
      break;
    case WM_CAPTURECHANGED:
      return CaptureChanged(window, message);
    default:
      break;
  }
  return OnOwnMessage(window, message);
}

bool ControlPeer::OnKey(Window&, int key_code, int shift) {
  bool used = false;
  const bool done = Tell([&] { used = control_.FormOf().UserKey(key_code, shift); });
  return used || !done;
}

// True when nothing more is to be made of it.
bool ControlPeer::CharacterTyped(wchar_t character) {
  const std::string bytes = BytesOf({&character, 1});
  if (bytes.empty()) return false;
  bool used = false;
  const bool done = Tell([&] { used = control_.UserKeyPress(static_cast<unsigned char>(bytes[0])); });
  return used || !done;
}

bool ControlPeer::FocusCame() {
  if (toolkit_.IsByCode() || control_.HasFocus()) return true;
  return Tell([this] { control_.UserFocus(); });
}

bool ControlPeer::ShowPointer() const {
  int pointer = toolkit_.ScreenPointer();
  if (pointer == 0) pointer = control_.MousePointer();
  if (pointer == 0) pointer = control_.FormOf().MousePointer();
  if (pointer == 0) return false;
  SetCursor(ShownPointer(pointer));
  return true;
}

// False when another control would not let the focus go, or the control went in it.
bool ControlPeer::FocusByMouse() {
  const HWND target = FocusTarget(), focus = GetFocus();
  if (!control_.CanTakeFocus() || !target || focus == target || IsChild(Handle(), focus)) return true;
  const Life self = life_;
  SetFocus(target);
  if (self.expired()) return false;
  return !control_.FormOf().IsActiveForm() || control_.HasFocus();
}

LRESULT ControlPeer::MousePressed(Window& window, const Message& message) {
  if (!FocusByMouse()) return 0;
  if (captures_) SetCapture(message.window);
  const forms::Point place = PlaceOf(message);
  const int button = ButtonOf(message.id), shift = ShiftOfMouse(message.w);
  const Life self = life_;
  bool taken = true;
  held_ |= button;
  ++pressing_;
  const bool done = Tell([&] {
    if (IsDoubleClick(message.id) && button == forms::vbLeftButton) {
      control_.UserDblClick();
    } else {
      taken = control_.UserMouseDown(button, shift, place.x, place.y);
    }
  });
  if (self.expired()) return 0;
  --pressing_;
  if (!taken) {
    held_ &= ~button;
    if (captures_) FreeMouse();
    return 0;
  }
  if (captures_ && GetCapture() != message.window) {  // a window that a handler opened took it
    TellLostButtons();
    return 0;
  }
  return done ? OnOwnMessage(window, message) : 0;
}

// What this does itself is no loss.
void ControlPeer::FreeMouse() {
  freeing_ = true;
  ReleaseCapture();
  freeing_ = false;
}

// Who loses the mouse never hears of the release.
LRESULT ControlPeer::CaptureChanged(Window& window, const Message& message) {
  if (freeing_) return 0;
  const Life self = life_;
  const LRESULT answer = OnOwnMessage(window, message);
  const bool lost = reinterpret_cast<HWND>(message.l) != message.window;
  if (!self.expired() && lost && pressing_ == 0) TellLostButtons();
  return answer;
}

// As releases outside the control, which click nothing.
void ControlPeer::TellLostButtons() {
  constexpr forms::Twips kOutside = -forms::kTwipsPerPixel;
  for (int button : {forms::vbLeftButton, forms::vbRightButton, forms::vbMiddleButton}) {
    if (!(held_ & button)) continue;
    held_ &= ~button;
    if (!Tell([&] { control_.UserMouseUp(button, ShiftNow(), kOutside, kOutside); })) return;
  }
}

LRESULT ControlPeer::MouseReleased(Window& window, const Message& message) {
  const int button = ButtonOf(message.id);
  const bool told = (held_ & button) != 0;  // not when the press was refused, or its loss was told already
  held_ &= ~button;
  const forms::Point place = PlaceOf(message);
  const Life self = life_;
  // Handlers run with the mouse free: they may open windows.
  if (captures_ && GetCapture() == message.window && ButtonsOf(message.w) == 0) FreeMouse();
  const bool native_first = mouse_ == Mouse::ReleasesLast;
  const LRESULT answer = native_first ? OnOwnMessage(window, message) : 0;
  if (self.expired()) return answer;
  const bool alive = !told || Tell([&] { control_.UserMouseUp(button, ShiftOfMouse(message.w), place.x, place.y); });
  return native_first || !alive ? answer : OnOwnMessage(window, message);
}

LRESULT ControlPeer::MouseMoved(Window& window, const Message& message) {
  const forms::Point place = PlaceOf(message);
  const bool alive =
      Tell([&] { control_.UserMouseMove(ButtonsOf(message.w), ShiftOfMouse(message.w), place.x, place.y); });
  return alive ? OnOwnMessage(window, message) : 0;
}

// The wheel is the business of what lies under the pointer, though the system may tell the window with the focus.
bool ControlPeer::WheelPasses(const Message& message) {
  if (GetFocus() != message.window) return false;
  const HWND below = WindowFromPoint({GET_X_LPARAM(message.l), GET_Y_LPARAM(message.l)});
  if (below == message.window || IsChild(Handle(), below) || !WindowAround(below)) return false;
  SendMessageW(below, message.id, message.w, message.l);
  return true;
}

forms::Point ControlPeer::PlaceOf(const Message& message) const {
  POINT place{GET_X_LPARAM(message.l), GET_Y_LPARAM(message.l)};
  if (message.window != Inside()) MapWindowPoints(message.window, Inside(), &place, 1);
  return {toolkit_.Scale().TwipsOf(place.x), toolkit_.Scale().TwipsOf(place.y)};
}

void RemadePeer::Changed(forms::Property property) {
  if (made_for_ == variant_()) return shown_->Changed(property);
  made_for_ = variant_();
  const bool had_focus = HoldsFocus(Handle());
  shown_ = make_();
  shown_->Changed(forms::Property::All);
  if (had_focus) shown_->TakeFocus();
}

}  // namespace corvane::toolkit_win32
