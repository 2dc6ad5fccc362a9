// CommandButton, CheckBox, OptionButton.
#include "forms/buttons.h"

#include "forms/form.h"
#include "toolkit_win32/colors.h"
#include "toolkit_win32/painted.h"
#include "toolkit_win32/peer.h"
#include "toolkit_win32/peers.h"
#include "toolkit_win32/texts.h"
#include "toolkit_win32/toolkit.h"
// Needs the Windows API in front of it.
#include <uxtheme.h>

namespace corvane::toolkit_win32 {
namespace {

forms::Color GroundOf(const forms::Control& control) {
  const forms::Control* holder = control.ContainerOf().AsControl();
  return holder ? holder->BackColor() : control.FormOf().BackColor();
}

// The system's button of a kind that does not turn itself: what it shows is what the control says.
class ButtonPeer : public ControlPeer {
 public:
  ButtonPeer(Win32Toolkit& toolkit, forms::Button& button, DWORD style)
      : ControlPeer(toolkit, button), button_(button) {
    Create({L"BUTTON", style | BS_MULTILINE}, Mouse::ReleasesLast);
  }

 protected:
  void ShowOwn(forms::Property property) override {
    if (property == forms::Property::All || property == forms::Property::Caption) {
      window_.SetText(ShownText(button_.Caption()));
    }
    ShowValue();
  }
  virtual void ShowValue() {}

  std::optional<LRESULT> OnNotice(Window& window, const Message& message) override {
    if (message.id != WM_COMMAND) return ControlPeer::OnNotice(window, message);
    if (HIWORD(message.w) == BN_CLICKED && !focusing_) {
      ReportThenShow(forms::Property::Value, [this] { button_.UserClick(); });
    }
    return 0;
  }

  LRESULT OnOwnMessage(Window& window, const Message& message) override {
    switch (message.id) {
      case WM_SETFOCUS:
        return Focused(window, message);
      case WM_LBUTTONDBLCLK:  // a second press like the first
        return window.Default({message.window, WM_LBUTTONDOWN, message.w, message.l});
      case WM_KEYDOWN:  // the blank presses by its character, which a handler may have taken
        if (message.w == VK_SPACE) return 0;
        break;
      case WM_CHAR:
        if (message.w == ' ') return window.Default({message.window, WM_KEYDOWN, VK_SPACE, message.l});
        return 0;
      default:
        break;
    }
    return window.Default(message);
  }

 private:
  // The system clicks an option that gets the focus.
  LRESULT Focused(Window& window, const Message& message) {
    const Life self = LifeOfThis();
    focusing_ = true;
    const LRESULT answer = window.Default(message);
    if (!self.expired()) focusing_ = false;
    return answer;
  }

  forms::Button& button_;
  bool focusing_ = false;
};

class CommandButtonPeer : public ButtonPeer {
 public:
  CommandButtonPeer(Win32Toolkit& toolkit, forms::CommandButton& button)
      : ButtonPeer(toolkit, button, BS_PUSHBUTTON | WS_TABSTOP), button_(button) {}

 protected:
  void ShowValue() override {
    const DWORD type = button_.Default() ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
    const auto style = static_cast<DWORD>(GetWindowLongPtrW(Handle(), GWL_STYLE));
    if ((style & BS_TYPEMASK) != type) window_.Send(BM_SETSTYLE, type | BS_MULTILINE, TRUE);
  }
  // Its corners show what lies behind it.
  std::optional<LRESULT> OnNotice(Window& window, const Message& message) override {
    if (message.id != WM_CTLCOLORBTN) return ButtonPeer::OnNotice(window, message);
    return reinterpret_cast<LRESULT>(BrushOf(reinterpret_cast<HDC>(message.w), GroundOf(button_)));
  }

 private:
  forms::CommandButton& button_;
};

// A graphical button: picture above caption, in its own colour.
class PicturedButtonPeer : public ButtonPeer {
 public:
  PicturedButtonPeer(Win32Toolkit& toolkit, forms::CommandButton& button)
      : ButtonPeer(toolkit, button, BS_OWNERDRAW | WS_TABSTOP), button_(button) {}

 protected:
  void ShowValue() override { InvalidateRect(Handle(), nullptr, FALSE); }

  std::optional<LRESULT> OnNotice(Window& window, const Message& message) override {
    if (message.id != WM_DRAWITEM) return ButtonPeer::OnNotice(window, message);
    const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(message.l);
    const BufferedPaint buffer(item.hDC, item.rcItem);
    Paint(buffer.Dc(), item.rcItem, item.itemState);
    return TRUE;
  }

 private:
  void Paint(HDC dc, RECT place, UINT state) {
    const bool pressed = (state & ODS_SELECTED) != 0;
    Fill(dc, place, button_.BackColor());
    if (button_.Default() || (state & ODS_FOCUS)) {
      FrameRect(dc, &place, BrushOf(dc, forms::k3DDarkShadow));
      place = InsideBorder(place, 1);
    }
    DrawEdge(dc, &place, pressed ? EDGE_SUNKEN : EDGE_RAISED, BF_RECT);
    const RECT inside = InsideBorder(place, toolkit_.Scale().Scaled(kBorder + 1));
    RECT content = inside;
    if (pressed) OffsetRect(&content, 1, 1);
    PaintContent(dc, content);
    if ((state & ODS_FOCUS) && !(state & ODS_NOFOCUSRECT)) DrawFocusRect(dc, &inside);
  }

  void PaintContent(HDC dc, RECT place) {
    const std::wstring caption = ShownText(button_.Caption());
    SelectObject(dc, toolkit_.Fonts().HandleOf(button_.Font()));
    RECT text{0, 0, WidthOf(place), 0};
    if (!caption.empty()) DrawTextW(dc, caption.c_str(), -1, &text, DT_CALCRECT | DT_WORDBREAK);
    const SIZE size = toolkit_.Pictures().SizeOf(button_.Picture());
    const int width = toolkit_.Scale().Scaled(size.cx), height = toolkit_.Scale().Scaled(size.cy);
    int top = place.top + (HeightOf(place) - height - HeightOf(text)) / 2;
    const int left = place.left + (WidthOf(place) - width) / 2;
    toolkit_.Pictures().Draw(dc, {left, top, left + width, top + height}, button_.Picture(), !button_.Enabled());
    top += height;
    text = {place.left, top, place.right, top + HeightOf(text)};
    const forms::Color gray = forms::kGrayText;
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, ShownColor(button_.Enabled() ? button_.ForeColor() : gray));
    DrawTextW(dc, caption.c_str(), -1, &text, DT_CENTER | DT_WORDBREAK);
  }

  forms::CommandButton& button_;
};

// Check boxes and options. The system's styles give their text a colour of their own: another one needs the plain look.
class MarkPeer : public ButtonPeer {
 public:
  using ButtonPeer::ButtonPeer;

 protected:
  void ShowColors() override {
    const bool own = control_.ForeColor() != forms::kButtonText && control_.ForeColor() != forms::kWindowText;
    if (own != plain_) SetWindowTheme(Handle(), own ? L"" : nullptr, own ? L"" : nullptr);
    plain_ = own;
    ButtonPeer::ShowColors();
  }
  void ShowMark(WPARAM mark) {
    if (static_cast<WPARAM>(window_.Send(BM_GETCHECK)) != mark) window_.Send(BM_SETCHECK, mark);
  }

 private:
  bool plain_ = false;
};

class CheckBoxPeer : public MarkPeer {
 public:
  CheckBoxPeer(Win32Toolkit& toolkit, forms::CheckBox& box)
      : MarkPeer(toolkit, box, BS_3STATE | WS_TABSTOP), box_(box) {}

 protected:
  void ShowValue() override {
    constexpr WPARAM kMarks[] = {BST_UNCHECKED, BST_CHECKED, BST_INDETERMINATE};
    ShowMark(kMarks[box_.Value()]);
  }

 private:
  forms::CheckBox& box_;
};

class OptionButtonPeer : public MarkPeer {
 public:
  OptionButtonPeer(Win32Toolkit& toolkit, forms::OptionButton& option)
      : MarkPeer(toolkit, option, BS_RADIOBUTTON), option_(option) {}

 protected:
  void ShowValue() override { ShowMark(option_.Value() ? BST_CHECKED : BST_UNCHECKED); }

 private:
  forms::OptionButton& option_;
};

}  // namespace

NewPeer NewCommandButtonPeer(Win32Toolkit& toolkit, forms::CommandButton& button) {
  return std::make_unique<RemadePeer>([&button] { return button.Style(); },
                                      [&toolkit, &button]() -> std::unique_ptr<ControlPeer> {
                                        if (button.Style() == 1)
                                          return std::make_unique<PicturedButtonPeer>(toolkit, button);
                                        return std::make_unique<CommandButtonPeer>(toolkit, button);
                                      });
}

NewPeer NewCheckBoxPeer(Win32Toolkit& toolkit, forms::CheckBox& box) {
  return std::make_unique<CheckBoxPeer>(toolkit, box);
}

NewPeer NewOptionButtonPeer(Win32Toolkit& toolkit, forms::OptionButton& option) {
  return std::make_unique<OptionButtonPeer>(toolkit, option);
}

}  // namespace corvane::toolkit_win32
