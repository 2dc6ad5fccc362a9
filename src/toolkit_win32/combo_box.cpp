// ComboBox: the system's own, drop-down with or without edit; the simple one is an edit above an open list.
#include <algorithm>

#include "forms/lists.h"
#include "toolkit_win32/edit_keys.h"
#include "toolkit_win32/keys.h"
#include "toolkit_win32/list_view.h"
#include "toolkit_win32/peer.h"
#include "toolkit_win32/peers.h"
#include "toolkit_win32/texts.h"
#include "toolkit_win32/toolkit.h"

namespace corvane::toolkit_win32 {
namespace {

constexpr int kEditMargins = 8;  // above and below the text: the height of a combo box is that of its font
constexpr long kRowsDropped = 12;
constexpr int kListBorders = 2;

void ShowSelection(const Window& edit, const forms::ComboBox& combo) {
  const std::string text = combo.Text();
  const auto shown = [&](long start, long length) {
    return ShownText(std::string_view(text).substr(static_cast<size_t>(start), static_cast<size_t>(length))).size();
  };
  if (combo.SelStart() > static_cast<long>(text.size())) return;
  const size_t from = shown(0, combo.SelStart()), to = from + shown(combo.SelStart(), combo.SelLength());
  edit.Send(EM_SETSEL, from, static_cast<LPARAM>(to));
}

// A field of one line would beep.
bool MeansNothing(const Message& message) {
  return message.id == WM_CHAR &&
         (message.w == '\r' || message.w == '\n' || message.w == '\t' || message.w == VK_ESCAPE);
}

bool Walks(WPARAM key) {
  return key >= VK_PRIOR && key <= VK_DOWN;
}

// The system's list is filled when somebody looks into it: when it drops down, or a key walks in it. Until then it
// holds the chosen row alone.
class DropDownPeer : public ControlPeer {
 public:
  DropDownPeer(Win32Toolkit& toolkit, forms::ComboBox& combo)
      : ControlPeer(toolkit, combo), combo_(combo), edit_(toolkit, *this) {
    const DWORD kind = IsEdited() ? CBS_DROPDOWN : CBS_DROPDOWNLIST;
    Create({L"COMBOBOX", kind | CBS_AUTOHSCROLL | CBS_HASSTRINGS | WS_VSCROLL | WS_TABSTOP}, Mouse::Untold);
    window_.Send(CB_SETMINVISIBLE, kRowsDropped);  // with visual styles the height of the window says nothing
    COMBOBOXINFO parts{};
    parts.cbSize = sizeof parts;
    if (IsEdited() && GetComboBoxInfo(Handle(), &parts)) edit_.Attach(parts.hwndItem);
  }

 protected:
  void ShowFont() override {
    ControlPeer::ShowFont();
    const int wanted = toolkit_.Fonts().Of(combo_.Font()).Height() + toolkit_.Scale().Scaled(kEditMargins);
    int field = wanted;
    for (int turn = 0; turn < 2; ++turn) {  // the system adds borders of its own, how many only shows behind it
      window_.Send(CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), field);
      field += wanted - ClosedHeight();
    }
    ShowPlace();
  }
  // Its height is that of the list dropped down.
  void ShowPlace() override {
    const RECT place = ShownPlace();
    const long rows = std::clamp(combo_.ListCount(), 1L, kRowsDropped);
    const int list = static_cast<int>(rows * window_.Send(CB_GETITEMHEIGHT, 0)) + kListBorders;
    SetWindowPos(Handle(), nullptr, place.left, place.top, WidthOf(place), ClosedHeight() + list,
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
  }
  void ShowOwn(forms::Property property) override {
    using forms::Property;
    const auto is = [&](auto... any) { return property == Property::All || ((property == any) || ...); };
    if (edit_ && is(Property::Locked)) edit_.Send(EM_SETREADONLY, combo_.Locked());
    if (is(Property::List)) RowsChanged();
    if (property != Property::List) ShowText();
    if (edit_ && is(Property::SelStart, Property::SelLength)) ShowSelection(edit_, combo_);
  }

  std::optional<LRESULT> OnNotice(Window& window, const Message& message) override {
    if (message.id != WM_COMMAND) return ControlPeer::OnNotice(window, message);
    if (&window == &edit_) return std::nullopt;  // to the combo box, which makes its own of it
    if (!IsShowing() && filling_ == 0) Noticed(HIWORD(message.w));
    return 0;
  }

  bool OnKey(Window& window, int key_code, int shift) override {
    const bool takes = IsDropped() && (key_code == VK_RETURN || key_code == VK_ESCAPE);
    return !takes && ControlPeer::OnKey(window, key_code, shift);
  }

  LRESULT OnOwnMessage(Window& window, const Message& message) override {
    if (MeansNothing(message) && !IsDropped()) return 0;
    if (message.id == WM_MOUSEWHEEL && !IsDropped()) return 0;
    if (combo_.Locked() && WouldChange(window, message)) return 0;
    if (&window == &edit_ && message.id == WM_CHAR && UseEditKey(message.window, message.w)) return 0;
    const bool searches = message.id == WM_CHAR && !IsEdited();
    if (searches || (message.id == WM_KEYDOWN && Walks(message.w))) FillRows();
    if (&window == &window_ &&
        (message.id == WM_CTLCOLOREDIT || message.id == WM_CTLCOLORLISTBOX || message.id == WM_CTLCOLORSTATIC)) {
      if (const auto brush = ControlPeer::OnNotice(window, message)) return *brush;
    }
    return window.Default(message);
  }

 private:
  bool IsEdited() const { return combo_.Style() == 0; }
  bool IsDropped() const { return window_.Send(CB_GETDROPPEDSTATE) != 0; }
  int ClosedHeight() const {
    RECT place{};
    GetWindowRect(Handle(), &place);
    return HeightOf(place);
  }

  bool WouldChange(const Window& window, const Message& message) const {
    switch (message.id) {
      case WM_LBUTTONDOWN:
      case WM_LBUTTONDBLCLK:
        return &window == &window_;
      case WM_KEYDOWN:
      case WM_SYSKEYDOWN:
        return message.w == VK_F4 || message.w == VK_UP || message.w == VK_DOWN || message.w == VK_PRIOR ||
               message.w == VK_NEXT || (!IsEdited() && Walks(message.w));
      case WM_CHAR:
        return !IsEdited();
      default:
        return false;
    }
  }

  void Noticed(int what) {
    switch (what) {
      case CBN_DROPDOWN:
        return DropsDown();
      case CBN_SELCHANGE:
        return IsDropped() ? static_cast<void>(walked_ = true) : Chosen();
      case CBN_SELENDCANCEL:
        walked_ = false;
        return;
      case CBN_EDITCHANGE:
        return ReportThenShow(forms::Property::ListIndex, [this] { combo_.UserEdit(BytesOf(window_.Text())); });
      case CBN_CLOSEUP:
        return ClosesUp();
      default:
        return;
    }
  }

  void Chosen() {
    walked_ = false;
    const long row = static_cast<long>(window_.Send(CB_GETCURSEL));
    const Life self = LifeOfThis();
    Report([this, row] { combo_.UserSelect(row); });
    if (!self.expired()) ShowLater();
  }

  // Rows that are walked over by keys are not chosen before the list closes. A click in it comes behind its closing.
  void ClosesUp() {
    toolkit_.Post(LifeOfThis(), [this] { walked_ ? Chosen() : Changed(forms::Property::Text); });
  }

  void DropsDown() {
    walked_ = false;
    const Life self = LifeOfThis();
    Report([this] { combo_.UserDropDown(); });
    if (self.expired()) return;
    FillRows();
    ShowPlace();
  }

  // The system goes on with the text and the selection behind its notice.
  void ShowLater() {
    toolkit_.Post(LifeOfThis(), [this] { Changed(forms::Property::Text); });
  }

  void RowsChanged() {
    stale_ = true;
    if (std::exchange(posted_, true)) return;
    toolkit_.Post(LifeOfThis(), [this] {
      posted_ = false;
      if (IsDropped()) FillRows();
      Changed(forms::Property::Text);
    });
  }

  void FillRows() {
    if (!stale_) return;
    ++filling_;
    stale_ = false;
    window_.Send(WM_SETREDRAW, FALSE);
    window_.Send(CB_RESETCONTENT);
    window_.Send(CB_INITSTORAGE, static_cast<WPARAM>(combo_.ListCount()), 0);
    for (long row = 0; row < combo_.ListCount(); ++row) AddRow(combo_.Rows().At(row).text);
    window_.Send(WM_SETREDRAW, TRUE);
    ShowText();
    --filling_;
  }
  void AddRow(const std::string& text) {
    window_.Send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(ShownText(text).c_str()));
  }

  void ShowText() {
    const std::wstring text = ShownText(combo_.Text());
    if (!stale_) {
      const auto row = static_cast<WPARAM>(combo_.ListIndex());
      if (static_cast<WPARAM>(window_.Send(CB_GETCURSEL)) != row) window_.Send(CB_SETCURSEL, row);
    } else if (!IsEdited() && window_.Text() != text) {
      window_.Send(CB_RESETCONTENT);
      if (combo_.ListIndex() >= 0) AddRow(combo_.Text());
      window_.Send(CB_SETCURSEL, 0);
    }
    if (edit_) window_.SetText(text);
    InvalidateRect(Handle(), nullptr, FALSE);
  }

  forms::ComboBox& combo_;
  Window edit_;
  int filling_ = 0;
  bool stale_ = false;   // the rows of the system's list
  bool posted_ = false;  // that rows have changed is shown at the next turn
  bool walked_ = false;  // in the open list, by keys
};

class SimplePeer : public ControlPeer {
 public:
  SimplePeer(Win32Toolkit& toolkit, forms::ComboBox& combo)
      : ControlPeer(toolkit, combo),
        combo_(combo),
        edit_(toolkit, *this),
        rows_(toolkit, *this),
        view_(toolkit, combo, rows_) {
    Create({nullptr}, Mouse::Untold);
    edit_.Create({L"EDIT", WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, WS_EX_CLIENTEDGE}, Handle());
    Window::Kind list = ListView::kKind;
    list.style |= WS_CHILD | WS_VISIBLE;
    rows_.Create(list, Handle());
    view_.OnChoose = [this](long row) {
      ReportThenShow(forms::Property::Text, [this, row] { combo_.UserSelect(row); });
    };
    view_.OnScroll = [this](long top_row) { Report([this, top_row] { combo_.UserScroll(top_row); }); };
  }

 protected:
  HWND FocusTarget() const override { return edit_.Handle(); }
  void ShowPlace() override {
    ControlPeer::ShowPlace();
    const RECT room = window_.Client();
    const int edit = toolkit_.Fonts().Of(combo_.Font()).Height() + toolkit_.Scale().Scaled(kEditMargins);
    MoveWindow(edit_.Handle(), 0, 0, room.right, edit, TRUE);
    MoveWindow(rows_.Handle(), 0, edit, room.right, std::max<int>(0, room.bottom - edit), TRUE);
  }
  void ShowFont() override {
    const auto font = reinterpret_cast<WPARAM>(toolkit_.Fonts().HandleOf(combo_.Font()));
    for (const Window* part : {&edit_, &rows_}) part->Send(WM_SETFONT, font, TRUE);
    ShowPlace();
  }
  void ShowColors() override {
    InvalidateRect(edit_.Handle(), nullptr, TRUE);
    view_.Repaint();
  }
  void ShowOwn(forms::Property property) override {
    using forms::Property;
    const auto is = [&](auto... any) { return property == Property::All || ((property == any) || ...); };
    if (is(Property::Locked)) edit_.Send(EM_SETREADONLY, combo_.Locked());
    if (is(Property::Enabled)) EnableWindow(edit_.Handle(), combo_.Enabled());
    if (property != Property::List) edit_.SetText(ShownText(combo_.Text()));
    if (is(Property::SelStart, Property::SelLength)) ShowSelection(edit_, combo_);
    if (property == Property::TopIndex) view_.ScrollTo(combo_.TopIndex());
    if (property != Property::List) view_.Follow(combo_.ListIndex());
    view_.RowsChanged(LifeOfThis());
  }

  std::optional<LRESULT> OnNotice(Window& window, const Message& message) override {
    if (message.id != WM_COMMAND) return ControlPeer::OnNotice(window, message);
    if (&window == &edit_ && HIWORD(message.w) == EN_CHANGE && !IsShowing()) {
      ReportThenShow(forms::Property::ListIndex, [this] { combo_.UserEdit(BytesOf(edit_.Text())); });
    }
    return 0;
  }

  LRESULT OnOwnMessage(Window& window, const Message& message) override {
    if (MeansNothing(message)) return 0;
    if (&window == &edit_) {
      if (message.id == WM_CHAR && UseEditKey(message.window, message.w)) return 0;
      const bool walks = message.id == WM_KEYDOWN &&
                         (message.w == VK_UP || message.w == VK_DOWN || message.w == VK_PRIOR || message.w == VK_NEXT);
      if (walks && !combo_.Locked()) return view_.OnMessage(message);
    }
    if (&window != &rows_) return window.Default(message);
    if (message.id == WM_LBUTTONDOWN && GetFocus() != edit_.Handle()) SetFocus(edit_.Handle());
    if (message.id == WM_LBUTTONDOWN && combo_.Locked()) return 0;
    return rows_ ? view_.OnMessage(message) : 0;
  }

 private:
  forms::ComboBox& combo_;
  Window edit_, rows_;
  ListView view_;
};

}  // namespace

NewPeer NewComboBoxPeer(Win32Toolkit& toolkit, forms::ComboBox& combo) {
  return std::make_unique<RemadePeer>([&combo] { return combo.Style(); },
                                      [&toolkit, &combo]() -> std::unique_ptr<ControlPeer> {
                                        if (combo.Style() == 1) return std::make_unique<SimplePeer>(toolkit, combo);
                                        return std::make_unique<DropDownPeer>(toolkit, combo);
                                      });
}

}  // namespace corvane::toolkit_win32
