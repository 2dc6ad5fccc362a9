#include "toolkit_win32/form.h"

#include <algorithm>
#include <iterator>

#include "toolkit_win32/colors.h"
#include "toolkit_win32/key_hook.h"
#include "toolkit_win32/keys.h"
#include "toolkit_win32/texts.h"
#include "toolkit_win32/toolkit.h"

namespace corvane::toolkit_win32 {
namespace {

struct Border {
  DWORD style, extended;
};

constexpr DWORD kTitled = WS_CAPTION | WS_SYSMENU;

// By FormBorder. Those that can be minimised have a place on the task bar to come back from.
constexpr Border kBorders[] = {
    {WS_POPUP, 0},
    {kTitled | WS_MINIMIZEBOX, WS_EX_APPWINDOW},
    {WS_OVERLAPPEDWINDOW, WS_EX_APPWINDOW},
    {kTitled | WS_POPUP, WS_EX_DLGMODALFRAME},
    {kTitled | WS_POPUP, WS_EX_TOOLWINDOW},
    {kTitled | WS_POPUP | WS_THICKFRAME, WS_EX_TOOLWINDOW},
};

const Border& BorderOf(const forms::Form& form) {
  const auto style = static_cast<size_t>(form.BorderStyle());
  return kBorders[style < std::size(kBorders) ? style : static_cast<size_t>(forms::FormBorder::Sizable)];
}

bool IsPlaced(const forms::Form& form) {
  return form.Left() != 0 || form.Top() != 0;
}

RECT OuterPlace(HWND window) {
  RECT place{};
  GetWindowRect(window, &place);
  return place;
}

// In the middle of the work area of the screen that [near_to] is on.
POINT MiddleOfScreen(HWND near_to, SIZE size) {
  MONITORINFO screen{};
  screen.cbSize = sizeof screen;
  GetMonitorInfoW(MonitorFromWindow(near_to, MONITOR_DEFAULTTOPRIMARY), &screen);
  const RECT& area = screen.rcWork;
  return {std::max(area.left, area.left + (WidthOf(area) - size.cx) / 2),
          std::max(area.top, area.top + (HeightOf(area) - size.cy) / 2)};
}

struct Owners {
  HWND from, to;
};

BOOL CALLBACK ChangeOwner(HWND window, LPARAM owners) noexcept {
  const auto& [from, to] = *reinterpret_cast<const Owners*>(owners);
  if (WindowAt(window) && GetWindow(window, GW_OWNER) == from) {
    SetWindowLongPtrW(window, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(to));
  }
  return TRUE;
}

BOOL CALLBACK PassOn(HWND child, LPARAM l) noexcept {
  const auto& message = *reinterpret_cast<const Message*>(l);
  SendMessageW(child, message.id, message.w, message.l);
  return TRUE;
}

}  // namespace

forms::Rect FrameOfForm(const Win32Toolkit& toolkit, const forms::Form& form) {
  const Border& border = BorderOf(form);
  RECT frame{0, 0, 0, 0};
  AdjustWindowRectEx(&frame, border.style, form.ShowsMenuBar(), border.extended);
  const PixelScale& scale = toolkit.Scale();
  return {scale.TwipsOf(-frame.left), scale.TwipsOf(-frame.top), scale.TwipsOf(WidthOf(frame)),
          scale.TwipsOf(HeightOf(frame))};
}

FormWindowPeer::FormWindowPeer(Win32Toolkit& toolkit, forms::Form& form)
    : toolkit_(toolkit), form_(form), window_(toolkit, *this), menus_(toolkit, form, window_), keys_(toolkit.Keys()) {
  const Win32Toolkit::ByCode by_code(toolkit_);
  const Border& border = BorderOf(form);
  window_.Create({nullptr, border.style | WS_CLIPCHILDREN, border.extended}, toolkit.HostWindow());
  Changed(forms::Property::All);
}

FormWindowPeer::~FormWindowPeer() {
  life_.reset();
  const Win32Toolkit::ByCode by_code(toolkit_);
  if (modal_) modal_->End();
  LetOwnedFormsStay();
  window_.Release();
}

// The system destroys a window with its owner: a modal form that stands in front of this one is a life of its own.
void FormWindowPeer::LetOwnedFormsStay() {
  const Owners owners{Handle(), toolkit_.HostWindow()};
  if (owners.from) EnumThreadWindows(GetCurrentThreadId(), ChangeOwner, reinterpret_cast<LPARAM>(&owners));
}

void FormWindowPeer::Changed(forms::Property property) {
  using forms::Property;
  if (!window_) {
    // Its window went with its owner, and Unload was refused: it cannot be shown any more.
    if (property == Property::Visible) form_.Hide();
    return;
  }
  const Life self = life_;
  const Win32Toolkit::ByCode by_code(toolkit_);
  ++showing_;
  const auto is = [&](auto... any) { return property == Property::All || ((property == any) || ...); };
  if (is(Property::Caption)) window_.SetText(ShownText(form_.Caption()));
  if (is(Property::Icon)) ShowIcon();
  if (is(Property::BackColor)) RedrawWindow(Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
  if (is(Property::Left, Property::Top, Property::Width, Property::Height)) ShowPlace();
  if (is(Property::WindowState)) ShowState();
  if (is(Property::Visible)) ShowVisible();
  if (!self.expired()) --showing_;
}

void FormWindowPeer::ShowIcon() {
  const SIZE large{GetSystemMetrics(SM_CXICON), GetSystemMetrics(SM_CYICON)};
  const SIZE small_one{GetSystemMetrics(SM_CXSMICON), GetSystemMetrics(SM_CYSMICON)};
  window_.Send(WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(toolkit_.Pictures().IconOf(form_.Icon(), large)));
  window_.Send(WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(toolkit_.Pictures().IconOf(form_.Icon(), small_one)));
}

// A form that was never placed stands in the middle of the screen of the host.
void FormWindowPeer::ShowPlace() {
  if (form_.WindowState() != forms::vbNormal && form_.Visible()) return;
  const RECT wanted = toolkit_.Scale().PixelsOf(form_.Place());
  POINT corner{wanted.left, wanted.top};
  if (!IsPlaced(form_) && !IsWindowVisible(Handle()))
    corner = MiddleOfScreen(toolkit_.HostWindow(), {WidthOf(wanted), HeightOf(wanted)});
  placing_ = true;
  SetWindowPos(Handle(), nullptr, corner.x, corner.y, WidthOf(wanted), HeightOf(wanted),
               SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
  placing_ = false;
}

int FormWindowPeer::ShownState() const {
  return IsIconic(Handle()) ? forms::vbMinimized : IsZoomed(Handle()) ? forms::vbMaximized : forms::vbNormal;
}

void FormWindowPeer::ShowState() {
  if (!form_.Visible() || !IsWindowVisible(Handle()) || ShownState() == form_.WindowState()) return;
  constexpr int kShow[] = {SW_RESTORE, SW_MINIMIZE, SW_MAXIMIZE};
  ShowWindow(Handle(), kShow[form_.WindowState()]);
}

void FormWindowPeer::ShowVisible() {
  if (form_.Visible()) return ShowOnScreen();
  const std::shared_ptr<ModalRun> modal = std::move(modal_);
  if (modal) modal->End();
  const Life self = life_;
  ShowWindow(Handle(), SW_HIDE);
  // What it was shown in front of may go before it is shown again.
  if (modal && !self.expired() && window_) BelongTo(toolkit_.HostWindow());
}

void FormWindowPeer::BelongTo(HWND owner) {
  SetWindowLongPtrW(Handle(), GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owner));
}

void FormWindowPeer::ShowOnScreen() {
  if (IsWindowVisible(Handle())) return;
  menus_.ShowNow();
  // Hidden in another state it comes back at the place that it had before that.
  const bool restored = form_.WindowState() == forms::vbNormal && ShownState() != forms::vbNormal;
  if (!restored) ShowPlace();
  if (!IsPlaced(form_)) {
    const RECT place = OuterPlace(Handle());
    form_.UserMove(toolkit_.Scale().TwipsOf(place.left), toolkit_.Scale().TwipsOf(place.top));
  }
  if (form_.IsModal()) {
    const HWND owner = toolkit_.FrontWindow();
    if (owner != Handle()) BelongTo(owner);
    modal_ = std::make_shared<ModalRun>(Handle());
  }
  constexpr int kShow[] = {SW_SHOWNA, SW_SHOWMINNOACTIVE, SW_SHOWMAXIMIZED};
  ShowWindow(Handle(), restored ? SW_SHOWNOACTIVATE : kShow[form_.WindowState()]);
}

void FormWindowPeer::TakeFocus() {
  const Win32Toolkit::ByCode by_code(toolkit_);
  if (window_) SetFocus(Handle());
}

void FormWindowPeer::BringToFront(bool front) {
  SetWindowPos(Handle(), front ? HWND_TOP : HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void FormWindowPeer::Activate() {
  if (!window_ || form_.WindowState() == forms::vbMinimized) return;
  if (!IsWindowEnabled(Handle())) return;  // something modal is shown in front of it
  const Win32Toolkit::ByCode by_code(toolkit_);
  BringWindowToTop(Handle());
  if (!SetForegroundWindow(Handle())) SetActiveWindow(Handle());
  PutWhereFocusBelongs();
}

void FormWindowPeer::RunModalLoop() {
  if (!modal_ || !form_.Visible()) return;
  const std::shared_ptr<ModalRun> modal = modal_;
  modal->RunLoop();
  modal->GiveFocusBack();
}

// Of colours and styles the system tells top-level windows alone.
void FormWindowPeer::TellControls(const Message& message) {
  EnumChildWindows(Handle(), PassOn, reinterpret_cast<LPARAM>(&message));
  RedrawWindow(Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

LRESULT FormWindowPeer::OnMessage(Window& window, const Message& message) {
  switch (message.id) {
    case WM_CLOSE:
      toolkit_.Guard([this] { form_.UserClose(); });
      return 0;
    case WM_ACTIVATE:
      Activated(LOWORD(message.w) != WA_INACTIVE && HIWORD(message.w) == 0);
      return 0;
    case WM_SIZE:
      WindowResized(message.w);
      return 0;
    case WM_MOVE:
      WindowMoved();
      return 0;
    case WM_ERASEBKGND:
    case WM_PRINTCLIENT:
      Fill(reinterpret_cast<HDC>(message.w), window.Client(), form_.BackColor());
      return 1;
    case WM_SYSCOLORCHANGE:
    case WM_THEMECHANGED:
      TellControls(message);
      break;
    case WM_HELP:  // F1 that nobody used; the system would ask the owner, which is the environment
      return TRUE;
    case WM_SETCURSOR:
      if (LOWORD(message.l) == HTCLIENT && ShowPointer()) return TRUE;
      break;
    case WM_CHAR:
      if (CharacterTyped(static_cast<wchar_t>(message.w))) return 0;
      break;
    case WM_LBUTTONUP:
      toolkit_.Guard([this] { form_.UserClick(); });
      return 0;
    case WM_KEYUP:
    case WM_SYSKEYUP: {
      const Life self = life_;
      toolkit_.Guard([&] { form_.UserKeyUp(static_cast<int>(message.w), ShiftNow()); });
      if (self.expired() || KeyHook::EndsUsedAlt(toolkit_, message)) return 0;
      break;
    }
    default: {
      const std::optional<LRESULT> answer = menus_.OnMessage(message);
      if (answer) return *answer;
      break;
    }
  }
  return window.Default(message);
}

// The keys of a form without a control that takes them.
bool FormWindowPeer::OnKey(Window&, int key_code, int shift) {
  const Life self = life_;
  bool used = false;
  toolkit_.Guard([&] { used = form_.UserKey(key_code, shift); });
  return used || self.expired();
}

// Nobody could end a form that is not there: neither the user a modal one, nor the logic one that it takes for visible.
void FormWindowPeer::OnGone(Window&) {
  if (modal_) modal_->End();
  Win32Toolkit& toolkit = toolkit_;
  const Life self = life_;
  toolkit.Guard([this] { form_.Hide(); });
  if (self.expired()) return;
  toolkit.Guard([this] { form_.Unload(forms::UnloadMode::Owner); });
}

bool FormWindowPeer::CharacterTyped(wchar_t character) {
  if (form_.ActiveControl()) return false;
  const std::string bytes = BytesOf({&character, 1});
  const Life self = life_;
  bool used = false;
  if (!bytes.empty()) {
    toolkit_.Guard([&] { used = form_.UserKeyPress(static_cast<unsigned char>(bytes[0])); });
  }
  return used || self.expired();
}

void FormWindowPeer::Activated(bool active) {
  if (!active) return;
  const Life self = life_;
  if (!toolkit_.IsByCode()) toolkit_.Guard([this] { form_.UserActivate(true); });
  if (!self.expired()) PutWhereFocusBelongs();
}

void FormWindowPeer::PutWhereFocusBelongs() {
  const Win32Toolkit::ByCode by_code(toolkit_);
  forms::Control* control = form_.ActiveControl();
  const HWND focus = GetFocus();
  if (control && control->Peer()) {
    const HWND own = toolkit_.WindowOf(*control);
    if (focus != own && !IsChild(own, focus)) control->Peer()->TakeFocus();
  } else if (focus != Handle()) {
    SetFocus(Handle());
  }
}

void FormWindowPeer::WindowResized(WPARAM how) {
  if (!form_.Visible() || !IsWindowVisible(Handle())) return;
  const int state = ShownState();
  const bool changes_state = state != form_.WindowState();
  const RECT now = OuterPlace(Handle()), wanted = toolkit_.Scale().PixelsOf(form_.Place());
  const bool resized =
      !placing_ && how != SIZE_MINIMIZED && (WidthOf(now) != WidthOf(wanted) || HeightOf(now) != HeightOf(wanted));
  const forms::Twips width = toolkit_.Scale().TwipsOf(WidthOf(now)), height = toolkit_.Scale().TwipsOf(HeightOf(now));
  if (showing_ > 0) {
    if (resized) form_.NoteSize(width, height);
  } else if (changes_state) {
    if (resized) form_.NoteSize(width, height);
    toolkit_.Guard([&] { form_.UserWindowState(state); });
  } else if (resized) {
    toolkit_.Guard([&] { form_.UserResize(width, height); });
  }
}

void FormWindowPeer::WindowMoved() {
  if (showing_ > 0 || !form_.Visible() || ShownState() != forms::vbNormal) return;
  const RECT wanted = toolkit_.Scale().PixelsOf(form_.Place()), now = OuterPlace(Handle());
  if (now.left == wanted.left && now.top == wanted.top) return;
  toolkit_.Guard([&] { form_.UserMove(toolkit_.Scale().TwipsOf(now.left), toolkit_.Scale().TwipsOf(now.top)); });
}

bool FormWindowPeer::ShowPointer() const {
  const int pointer = toolkit_.ScreenPointer() ? toolkit_.ScreenPointer() : form_.MousePointer();
  if (pointer == 0) return false;
  SetCursor(ShownPointer(pointer));
  return true;
}

}  // namespace corvane::toolkit_win32
