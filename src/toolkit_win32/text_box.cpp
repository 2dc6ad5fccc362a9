// TextBox: the system's edit field, of one line or many.
#include "forms/text_box.h"

#include <algorithm>

#include "runtime/code_page.h"
#include "toolkit_win32/edit_keys.h"
#include "toolkit_win32/peer.h"
#include "toolkit_win32/peers.h"
#include "toolkit_win32/texts.h"
#include "toolkit_win32/toolkit.h"

namespace corvane::toolkit_win32 {
namespace {

DWORD AlignmentStyle(forms::Alignment alignment) {
  switch (alignment) {
    case forms::Alignment::Right:
      return ES_RIGHT;
    case forms::Alignment::Center:
      return ES_CENTER;
    default:
      return ES_LEFT;
  }
}

// A line without a horizontal bar breaks at the edge.
DWORD StyleOf(const forms::TextBox& box) {
  const DWORD style = AlignmentStyle(box.Alignment());
  if (!box.MultiLine()) return style | ES_AUTOHSCROLL;
  const bool sideways = box.ScrollBars() & 1, upright = box.ScrollBars() & 2;
  return style | ES_MULTILINE | ES_WANTRETURN | ES_AUTOVSCROLL | (sideways ? WS_HSCROLL | ES_AUTOHSCROLL : 0) |
         (upright ? WS_VSCROLL : 0);
}

// What the system's field takes at its making alone.
int VariantOf(const forms::TextBox& box) {
  return static_cast<int>(StyleOf(box)) * 2 + (box.BorderStyle() != 0 ? 1 : 0);
}

// Positions on the screen count characters; those of the control bytes.
long ByteAt(const std::wstring& shown, DWORD position) {
  if (!runtime::AnsiCodePage().IsDoubleByte()) return static_cast<long>(position);
  return static_cast<long>(BytesOf(std::wstring_view(shown).substr(0, position)).size());
}
DWORD PositionAt(const std::string& bytes, long byte) {
  if (!runtime::AnsiCodePage().IsDoubleByte()) return static_cast<DWORD>(byte);
  return static_cast<DWORD>(ShownText(std::string_view(bytes).substr(0, static_cast<size_t>(byte))).size());
}

// Messages behind which the selection may be another one.
bool MaySelect(UINT id) {
  return id == WM_KEYDOWN || id == WM_CHAR || (id >= WM_MOUSEFIRST && id <= WM_MOUSELAST) || id == WM_COMMAND ||
         id == WM_SETFOCUS || (id >= WM_CUT && id <= WM_UNDO);
}

class TextBoxPeer : public ControlPeer {
 public:
  TextBoxPeer(Win32Toolkit& toolkit, forms::TextBox& box) : ControlPeer(toolkit, box), box_(box) {
    const DWORD frame = box.BorderStyle() != 0 ? WS_EX_CLIENTEDGE : 0;
    Create({L"EDIT", StyleOf(box) | WS_TABSTOP, frame}, Mouse::ActsLast);
  }

 protected:
  void ShowOwn(forms::Property property) override {
    using forms::Property;
    const auto is = [&](auto... any) { return property == Property::All || ((property == any) || ...); };
    if (is(Property::Locked)) window_.Send(EM_SETREADONLY, box_.Locked());
    if (is(Property::MaxLength)) window_.Send(EM_SETLIMITTEXT, static_cast<WPARAM>(box_.MaxLength()));
    if (is(Property::PasswordChar)) ShowPasswordChar();
    if (is(Property::Text)) ShowText();
    if (is(Property::Text, Property::SelStart, Property::SelLength)) ShowSelection();
  }

  std::optional<LRESULT> OnNotice(Window& window, const Message& message) override {
    if (message.id != WM_COMMAND) return ControlPeer::OnNotice(window, message);
    if (HIWORD(message.w) == EN_CHANGE) ReportThenShow(forms::Property::Text, [this] { Tell(); });
    return 0;
  }

  LRESULT OnOwnMessage(Window& window, const Message& message) override {
    if (message.id == WM_CHAR && !box_.MultiLine() && MeansNothing(message.w)) return 0;
    const Life self = LifeOfThis();
    const bool used = message.id == WM_CHAR && UseEditKey(message.window, message.w);
    const LRESULT answer = used ? 0 : window.Default(message);
    if (!self.expired() && MaySelect(message.id) && !IsShowing()) TellSelection();
    return answer;
  }

 private:
  // The system's field of one line would beep.
  static bool MeansNothing(WPARAM character) {
    return character == '\r' || character == '\n' || character == '\t' || character == VK_ESCAPE;
  }

  void ShowPasswordChar() {
    const std::wstring shown = ShownText(box_.PasswordChar());
    window_.Send(EM_SETPASSWORDCHAR, shown.empty() ? 0 : shown[0]);
    InvalidateRect(Handle(), nullptr, TRUE);
  }

  void ShowText() {
    const std::wstring text = ShownText(box_.Text());
    if (shown_ == text) return;
    shown_ = text;
    SetWindowTextW(Handle(), text.c_str());
  }

  struct Range {
    DWORD from = 0, to = 0;
    bool operator==(const Range&) const = default;
  };
  Range Selected() const {
    Range range;
    window_.Send(EM_GETSEL, reinterpret_cast<WPARAM>(&range.from), reinterpret_cast<LPARAM>(&range.to));
    return range;
  }
  void ShowSelection() {
    const Range range{PositionAt(box_.Text(), box_.SelStart()),
                      PositionAt(box_.Text(), box_.SelStart() + box_.SelLength())};
    told_ = range;
    if (Selected() == range) return;
    window_.Send(EM_SETSEL, range.from, static_cast<LPARAM>(range.to));
    window_.Send(EM_SCROLLCARET);
  }

  void Tell() {
    const Range range = Selected();
    shown_ = window_.Text();
    std::string bytes = BytesOf(shown_);
    if (box_.MaxLength() > 0 && bytes.size() > static_cast<size_t>(box_.MaxLength())) bytes = box_.Text();
    const long start = ByteAt(shown_, range.from);
    box_.UserEdit(std::move(bytes), start, ByteAt(shown_, range.to) - start);
  }

  // While an edit is not told yet the positions belong to the new text.
  void TellSelection() {
    const Range range = Selected();
    if (range == told_) return;
    told_ = range;
    const long start = ByteAt(shown_, range.from), length = ByteAt(shown_, range.to) - start;
    Report([this, start, length] { box_.UserSelect(start, length); });
  }

  forms::TextBox& box_;
  std::wstring shown_;  // what the field holds
  Range told_;
};

}  // namespace

NewPeer NewTextBoxPeer(Win32Toolkit& toolkit, forms::TextBox& box) {
  return std::make_unique<RemadePeer>(
      [&box] { return VariantOf(box); },
      [&toolkit, &box]() -> std::unique_ptr<ControlPeer> { return std::make_unique<TextBoxPeer>(toolkit, box); });
}

}  // namespace corvane::toolkit_win32
