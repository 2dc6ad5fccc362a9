// The contract suite on the Windows API, with the user's hand on native windows.
#include "tests/forms/forms_contract.h"
#include "tests/toolkit_win32/hand.h"
#include "tests/toolkit_win32/popup.h"
#include "toolkit_win32/peer.h"
#include "toolkit_win32/texts.h"
#include "toolkit_win32/toolkit.h"

namespace corvane::toolkit_win32 {
namespace {

class Win32Driver : public forms::ContractDriver {
 public:
  forms::Toolkit& Toolkit() override { return toolkit_; }
  void Settle() override { Pump(); }

  void Click(forms::Control& control, forms::Twips x, forms::Twips y, int button) override {
    const Spot spot = SpotOf(control, x, y);
    PostClick(spot.window, spot.place, button == forms::vbRightButton ? Button::Right : Button::Left);
  }
  void DblClick(forms::Control& control, forms::Twips x, forms::Twips y) override {
    const Spot spot = SpotOf(control, x, y);
    PostClick(spot.window, spot.place);
    PostMouse(spot.window, WM_LBUTTONDBLCLK, spot.place, MK_LBUTTON);
    PostMouse(spot.window, WM_LBUTTONUP, spot.place);
  }
  void MoveOver(forms::Control& control, forms::Twips x, forms::Twips y) override {
    const Spot spot = SpotOf(control, x, y);
    PostMouse(spot.window, WM_MOUSEMOVE, spot.place);
  }
  void Press(forms::Form&, int key_code, int shift) override {
    PostKey(key_code,
            {(shift & forms::vbShiftMask) != 0, (shift & forms::vbCtrlMask) != 0, (shift & forms::vbAltMask) != 0});
  }
  void Type(forms::Form&, const std::string& text) override { PostText(toolkit_win32::ShownText(text)); }

  void ChooseRow(forms::ListControl& list, long row) override {
    Pump();
    const HWND window = toolkit_.WindowOf(list);
    if (list.Kind() == forms::ControlKind::ComboBox) return ChooseDropped(window, row);
    RECT place{};
    SendMessageW(window, LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place));
    PostClick(window, {place.left + 30, (place.top + place.bottom) / 2});
  }
  // The thumb is let go there at once.
  void Scroll(forms::ScrollBar& bar, long value) override {
    TellScroll(bar, SB_THUMBPOSITION, value);
    TellScroll(bar, SB_ENDSCROLL, value);
    Pump();
  }
  void DragThumb(forms::ScrollBar& bar, const std::vector<long>& places) override {
    for (long place : places) TellScroll(bar, SB_THUMBTRACK, place);
    TellScroll(bar, SB_THUMBPOSITION, places.back());
    TellScroll(bar, SB_ENDSCROLL, places.back());
    Pump();
  }
  void ChooseMenu(forms::Form& form, const std::vector<std::string>& captions) override {
    const HWND window = toolkit_.WindowOf(form);
    HMENU menu = GetMenu(window);
    for (const std::string& caption : captions) {
      const int place = PlaceIn(menu, toolkit_win32::ShownText(caption));
      if (place < 0) return;
      const auto at = static_cast<UINT>(place);
      const UINT number = GetMenuItemID(menu, place);
      if (GetMenuState(menu, at, MF_BYPOSITION) & (MF_GRAYED | MF_DISABLED)) return;
      const HMENU sub = GetSubMenu(menu, place);
      if (!sub) return static_cast<void>(SendMessageW(window, WM_COMMAND, number, 0));
      SendMessageW(window, WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(sub), MAKELPARAM(place, 0));
      menu = sub;
    }
  }
  void ClickToolButton(forms::Toolbar& bar, int position) override {
    const RECT place = ToolPlace(bar, position);
    PostClick(toolkit_.WindowOf(bar), {place.left + 8, (place.top + place.bottom) / 2});
  }
  void ChooseToolMenu(forms::Toolbar& bar, int position, int entry) override {
    const RECT place = ToolPlace(bar, position);
    OnPopup(bar.Button(position).ButtonMenus.at(static_cast<size_t>(entry) - 1).Text);
    PostClick(toolkit_.WindowOf(bar), {place.right - 4, (place.top + place.bottom) / 2});
  }
  void Close(forms::Form& form) override {
    PostMessageW(toolkit_.WindowOf(form), WM_SYSCOMMAND, SC_CLOSE, 0);
    Pump();
  }

  void InModal(forms::Form& form, std::function<void()> act) override {
    Soon([this, &form, act = std::move(act)] { form.Visible() ? act() : InModal(form, act); });
  }
  void OnPopup(const std::string& caption) override { ChooseWhenOpen(caption, 1); }
  void Wait(int milliseconds) override { PumpFor(static_cast<unsigned>(milliseconds)); }

  std::optional<std::string> ShownText(forms::Control& control) override {
    return BytesOf(TextOf(toolkit_.WindowOf(control)));
  }
  std::optional<bool> IsOnScreen(forms::Control& control) override {
    const HWND window = toolkit_.WindowOf(control);
    RECT place{};
    return window && IsWindowVisible(window) && GetWindowRect(window, &place) && !IsRectEmpty(&place);
  }
  // From the screen itself.
  std::optional<forms::Color> PixelAt(forms::PictureBox& box, forms::Twips x, forms::Twips y) override {
    const HWND window = dynamic_cast<WindowPeer&>(*box.Peer()).Inside();
    UpdateWindow(window);
    const HDC dc = GetDC(window);
    const COLORREF color = GetPixel(dc, toolkit_.Scale().Pixels(x), toolkit_.Scale().Pixels(y));
    ReleaseDC(window, dc);
    return color;
  }
  std::optional<bool> IsRowWhollyShown(forms::ListBox& list, long row) override {
    const HWND window = toolkit_.WindowOf(list);
    RECT place{}, client{};
    SendMessageW(window, LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place));
    GetClientRect(window, &client);
    return place.top >= 0 && place.bottom <= client.bottom;
  }

 private:
  // As the system tells while [place] is that of the thumb.
  void TellScroll(forms::ScrollBar& bar, int what, long place) {
    const HWND window = toolkit_.WindowOf(bar);
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_TRACKPOS | SIF_POS;
    info.nPos = info.nTrackPos = static_cast<int>(place);
    if (what != SB_ENDSCROLL) SetScrollInfo(window, SB_CTL, &info, FALSE);
    const bool upright = bar.Kind() == forms::ControlKind::VScrollBar;
    SendMessageW(GetParent(window), upright ? WM_VSCROLL : WM_HSCROLL,
                 MAKEWPARAM(what, what == SB_ENDSCROLL ? 0 : place), reinterpret_cast<LPARAM>(window));
  }
  Spot SpotOf(forms::Control& control, forms::Twips x, forms::Twips y) {
    const HWND base = dynamic_cast<WindowPeer&>(*control.Peer()).Inside();
    return SpotAt(base, {toolkit_.Scale().Pixels(x), toolkit_.Scale().Pixels(y)});
  }
  RECT ToolPlace(forms::Toolbar& bar, int position) {
    RECT place{};
    SendMessageW(toolkit_.WindowOf(bar), TB_GETITEMRECT, static_cast<WPARAM>(position - 1),
                 reinterpret_cast<LPARAM>(&place));
    return place;
  }
  void ChooseDropped(HWND combo, long row) {
    SetFocus(combo);
    Pump();
    SendMessageW(combo, CB_SHOWDROPDOWN, TRUE, 0);
    Pump();
    COMBOBOXINFO parts{};
    parts.cbSize = sizeof parts;
    GetComboBoxInfo(combo, &parts);
    RECT place{};
    SendMessageW(parts.hwndList, LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place));
    PostClick(parts.hwndList, {place.left + 10, (place.top + place.bottom) / 2});
  }
  void ChooseWhenOpen(const std::string& caption, unsigned milliseconds) {
    Soon(
        [this, caption] {
          if (!ChooseInOpenPopup(toolkit_win32::ShownText(caption))) ChooseWhenOpen(caption, kLookAgain);
        },
        milliseconds);
  }
  // Inside whatever loop runs next.
  void Soon(std::function<void()> act, unsigned milliseconds = 1) {
    auto number = std::make_shared<UINT_PTR>();
    *number = toolkit_.StartClock(milliseconds, [this, number, act = std::move(act)] {
      const auto run = act;
      toolkit_.StopClock(*number);
      run();
    });
  }

  static constexpr unsigned kLookAgain = 30;  // milliseconds: the loop must find its end in between
  Win32Toolkit toolkit_;
};

std::unique_ptr<forms::ContractDriver> NewWin32Driver() {
  return std::make_unique<Win32Driver>();
}

}  // namespace
}  // namespace corvane::toolkit_win32

namespace corvane::forms {

INSTANTIATE_TEST_SUITE_P(Win32, FormsContract, testing::Values(DriverFactory(toolkit_win32::NewWin32Driver)));

}  // namespace corvane::forms
