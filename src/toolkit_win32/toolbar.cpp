#include "forms/toolbar.h"

#include <algorithm>
#include <vector>

#include "toolkit_win32/colors.h"
#include "toolkit_win32/peer.h"
#include "toolkit_win32/peers.h"
#include "toolkit_win32/texts.h"
#include "toolkit_win32/toolkit.h"

namespace corvane::toolkit_win32 {
namespace {

constexpr int kIcon = 16;  // logical pixels

bool IsBlank(const forms::ToolButton& button) {
  return button.Style == forms::ToolButtonStyle::Separator || button.Style == forms::ToolButtonStyle::Placeholder;
}

BYTE StyleOf(const forms::ToolButton& button) {
  using forms::ToolButtonStyle;
  if (IsBlank(button)) return BTNS_SEP;
  const bool turns = button.Style == ToolButtonStyle::Check || button.Style == ToolButtonStyle::ButtonGroup;
  return BTNS_AUTOSIZE | BTNS_NOPREFIX | (turns ? BTNS_CHECK : 0) |
         (button.Style == ToolButtonStyle::DropDown ? BTNS_DROPDOWN : 0) | (button.Caption.empty() ? 0 : BTNS_SHOWTEXT);
}

// The pictures of a bar in the system's image lists: as they are, and faded for buttons that are disabled. Without
// visual styles the lists know no degrees of transparency: there the pictures stand on the bar's own ground.
class ButtonImages {
 public:
  ButtonImages(Win32Toolkit& toolkit, int size) : toolkit_(toolkit), size_(size) {
    const VisualStyles::Use styled(toolkit.Styles());
    const UINT kind = toolkit.Styles().AreThere() ? ILC_COLOR32 | ILC_MASK : ILC_COLOR24;
    plain_ = ImageList_Create(size, size, kind, 0, 8);
    faded_ = ImageList_Create(size, size, ILC_COLOR24, 0, 8);
  }
  ~ButtonImages() {
    ImageList_Destroy(plain_);
    ImageList_Destroy(faded_);
  }
  ButtonImages(const ButtonImages&) = delete;
  ButtonImages& operator=(const ButtonImages&) = delete;
  HIMAGELIST Plain() const { return plain_; }
  HIMAGELIST Faded() const { return faded_; }

  // Its place in the lists; I_IMAGENONE for one that cannot be shown.
  int PlaceOf(const forms::PictureRef& picture) {
    const SIZE own = toolkit_.Pictures().SizeOf(picture);
    if (own.cx <= 0 || own.cy <= 0) return I_IMAGENONE;
    const auto found = std::find(pictures_.begin(), pictures_.end(), picture);
    if (found != pictures_.end()) return static_cast<int>(found - pictures_.begin());
    pictures_.push_back(picture);
    const VisualStyles::Use styled(toolkit_.Styles());
    AddOnGround(faded_, picture, true);
    if (!toolkit_.Styles().AreThere()) return AddOnGround(plain_, picture, false);
    return ImageList_ReplaceIcon(plain_, -1, toolkit_.Pictures().IconOf(picture, {size_, size_}));
  }

 private:
  int AddOnGround(HIMAGELIST list, const forms::PictureRef& picture, bool faded) {
    const HDC screen = GetDC(nullptr), dc = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, size_, size_);
    const HGDIOBJ before = SelectObject(dc, bitmap);
    const RECT whole{0, 0, size_, size_};
    Fill(dc, whole, forms::kButtonFace);
    toolkit_.Pictures().Draw(dc, whole, picture, faded);
    SelectObject(dc, before);
    const int place = ImageList_Add(list, bitmap, nullptr);
    DeleteObject(bitmap);
    DeleteDC(dc);
    ReleaseDC(nullptr, screen);
    return place;
  }

  Win32Toolkit& toolkit_;
  int size_;
  HIMAGELIST plain_ = nullptr, faded_ = nullptr;
  std::vector<forms::PictureRef> pictures_;
};

class ToolbarPeer : public ControlPeer {
 public:
  ToolbarPeer(Win32Toolkit& toolkit, forms::Toolbar& bar)
      : ControlPeer(toolkit, bar), bar_(bar), images_(toolkit, toolkit.Scale().Scaled(kIcon)) {
    const DWORD style = TBSTYLE_FLAT | TBSTYLE_LIST | TBSTYLE_TOOLTIPS;
    Create({TOOLBARCLASSNAMEW, style | CCS_NODIVIDER | CCS_NORESIZE | CCS_NOPARENTALIGN}, Mouse::Untold);
    window_.Send(TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON));
    window_.Send(TB_SETUNICODEFORMAT, TRUE);
    window_.Send(TB_SETEXTENDEDSTYLE, 0, TBSTYLE_EX_DRAWDDARROWS | TBSTYLE_EX_MIXEDBUTTONS);
    window_.Send(TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images_.Plain()));
    window_.Send(TB_SETDISABLEDIMAGELIST, 0, reinterpret_cast<LPARAM>(images_.Faded()));
  }
  // The lists go before the window, which may still be painting.
  ~ToolbarPeer() override {
    if (!window_) return;
    window_.Send(TB_SETIMAGELIST, 0, 0);
    window_.Send(TB_SETDISABLEDIMAGELIST, 0, 0);
  }

 protected:
  void ShowOwn(forms::Property property) override {
    using forms::Property;
    if (property != Property::All && property != Property::Buttons && property != Property::Enabled) return;
    for (int position = static_cast<int>(shown_.size()) + 1; position <= bar_.Count(); ++position) AddButton(position);
    for (int position = 1; position <= bar_.Count(); ++position) ShowButton(position);
  }

  std::optional<LRESULT> OnNotice(Window& window, const Message& message) override {
    if (message.id == WM_COMMAND) {
      const int position = LOWORD(message.w);
      ReportThenShow(forms::Property::Buttons, [this, position] { Clicked(position); });
      return 0;
    }
    if (message.id != WM_NOTIFY) return ControlPeer::OnNotice(window, message);
    auto* header = reinterpret_cast<NMHDR*>(message.l);
    switch (header->code) {
      case TBN_DROPDOWN:
        OpenMenu(reinterpret_cast<NMTOOLBARW*>(header)->iItem);
        return TBDDRET_DEFAULT;
      case TBN_GETINFOTIPW:
        TellTip(*reinterpret_cast<NMTBGETINFOTIPW*>(header));
        return 0;
      default:
        return 0;
    }
  }

 private:
  // What the native button shows.
  struct Shown {
    int image = I_IMAGENONE;
    BYTE state = 0;
    std::wstring text;
    bool operator==(const Shown&) const = default;
  };

  // The native bar has turned a button that turns: the control's own state follows, not this one.
  void Clicked(int position) {
    shown_[static_cast<size_t>(position) - 1].state ^= kStateUnknown;
    bar_.UserButtonClick(position);
  }

  Shown WantedOf(const forms::ToolButton& button) {
    Shown wanted;
    if (bar_.ImageListOf() && !IsBlank(button)) wanted.image = images_.PlaceOf(bar_.ImageListOf()->Item(button.Image));
    wanted.text = ShownText(button.Caption);
    wanted.state = static_cast<BYTE>((button.Enabled && bar_.Enabled() ? TBSTATE_ENABLED : 0) |
                                     (button.Visible ? 0 : TBSTATE_HIDDEN) | (button.Pressed ? TBSTATE_CHECKED : 0));
    return wanted;
  }

  void AddButton(int position) {
    const forms::ToolButton& button = bar_.Button(position);
    TBBUTTON made{};
    made.idCommand = position;
    made.fsStyle = StyleOf(button);
    made.fsState = TBSTATE_ENABLED;
    made.iBitmap = IsBlank(button) ? 0 : I_IMAGENONE;
    made.iString = IsBlank(button) ? 0 : reinterpret_cast<INT_PTR>(L"");
    window_.Send(TB_ADDBUTTONSW, 1, reinterpret_cast<LPARAM>(&made));
    shown_.push_back({I_IMAGENONE, TBSTATE_ENABLED, {}});
  }

  // Only what differs: each change lays the whole bar out anew.
  void ShowButton(int position) {
    const forms::ToolButton& button = bar_.Button(position);
    Shown wanted = WantedOf(button);
    Shown& shown = shown_[static_cast<size_t>(position) - 1];
    TBBUTTONINFOW info{};
    info.cbSize = sizeof info;
    if (shown.state != wanted.state) info.dwMask |= TBIF_STATE;
    if (!IsBlank(button) && shown.image != wanted.image) info.dwMask |= TBIF_IMAGE;
    if (!IsBlank(button) && shown.text != wanted.text) info.dwMask |= TBIF_TEXT | TBIF_STYLE;
    if (info.dwMask == 0) return;
    shown = std::move(wanted);
    info.fsState = shown.state;
    info.fsStyle = StyleOf(button);
    info.iImage = shown.image;
    info.pszText = shown.text.data();
    window_.Send(TB_SETBUTTONINFOW, static_cast<WPARAM>(position), reinterpret_cast<LPARAM>(&info));
  }

  void TellTip(NMTBGETINFOTIPW& asked) const {
    const forms::ToolButton& button = bar_.Button(asked.iItem);
    const std::wstring tip = ShownText(button.ToolTipText.empty() ? button.Caption : button.ToolTipText);
    lstrcpynW(asked.pszText, tip.c_str(), asked.cchTextMax);
  }

  // Its entries are read when it opens.
  void OpenMenu(int position) {
    const Life self = LifeOfThis();
    Report([this, position] { bar_.UserButtonDropDown(position); });
    if (self.expired()) return;
    const HMENU menu = CreatePopupMenu();
    int entry = 0;
    for (const forms::ButtonMenu& item : bar_.Button(position).ButtonMenus) {
      const UINT kind = item.Text == "-" ? MF_SEPARATOR : MF_STRING | (item.Enabled ? MF_ENABLED : MF_GRAYED);
      AppendMenuW(menu, kind, static_cast<UINT_PTR>(++entry), ShownText(item.Text).c_str());
    }
    const int chosen = entry == 0 ? 0 : Track(menu, position);
    DestroyMenu(menu);
    if (chosen > 0 && !self.expired()) Report([=, this] { bar_.UserButtonMenuClick(position, chosen); });
  }

  int Track(HMENU menu, int position) {
    TPMPARAMS beside{};
    beside.cbSize = sizeof beside;
    window_.Send(TB_GETRECT, static_cast<WPARAM>(position), reinterpret_cast<LPARAM>(&beside.rcExclude));
    MapWindowPoints(Handle(), HWND_DESKTOP, reinterpret_cast<POINT*>(&beside.rcExclude), 2);
    const RECT& place = beside.rcExclude;
    return TrackPopupMenuEx(menu, TPM_RETURNCMD | TPM_LEFTALIGN | TPM_TOPALIGN | TPM_VERTICAL, place.left, place.bottom,
                            Handle(), &beside);
  }

  static constexpr BYTE kStateUnknown = 0x80;

  forms::Toolbar& bar_;
  ButtonImages images_;
  std::vector<Shown> shown_;
};

}  // namespace

NewPeer NewToolbarPeer(Win32Toolkit& toolkit, forms::Toolbar& bar) {
  return std::make_unique<ToolbarPeer>(toolkit, bar);
}

}  // namespace corvane::toolkit_win32
