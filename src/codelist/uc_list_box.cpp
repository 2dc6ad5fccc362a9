#include "codelist/uc_list_box.h"

#include <cmath>

#include "codelist/raised.h"
#include "codelist/reading_commands.h"
#include "forms/icons.h"

namespace corvane::codelist {

namespace {

constexpr Twips kWidthOfVs = 255;
constexpr long kAutoScroll = 50;  // milliseconds between two steps
constexpr long kColumnsAtStart = 10;

forms::Font SurfaceFont() {
  forms::Font font;
  font.Name = "Arial";
  font.Size = 9.75f;
  font.Charset = 204;
  return font;
}

}  // namespace

ucListBox::ucListBox(forms::Container& container, std::string name, host::Services& services)
    : UserControl(container, std::move(name)),
      services(services),
      img(forms::Icon("list-current")),
      img1(forms::Icon("list-group")),
      img2(forms::Icon("list-item")),
      reading(std::make_unique<ReadingCommands>(*this)) {
  pic.SetFont(SurfaceFont());
  pic.SetBorderStyle(0);
  pic.SetBackColor(kPlain);
  hs.SetMax(kColumnsAtStart);
  hs.SetTabStop(false);
  vs.SetTabStop(false);
  tmr.SetEnabled(false);
  tmr.SetInterval(kAutoScroll);
  txtEdit.SetVisible(false);
  lbx.SetVisible(false);
  BindEvents();
  Layout();
}

ucListBox::~ucListBox() = default;

void ucListBox::BindEvents() {
  pic.MouseDown = [this](int button, int, Twips x, Twips y) { pic_MouseDown(button, x, y); };
  pic.MouseMove = [this](int button, int shift, Twips x, Twips y) { pic_MouseMove(button, shift, x, y); };
  pic.MouseUp = [this](int button, int, Twips x, Twips y) { pic_MouseUp(button, x, y); };
  pic.Click = [this] { pic_Click(); };
  pic.DblClick = [this] {
    if (store.Count() > 0) DblClick();
  };
  pic.KeyDown = [this](int& key, int shift) { pic_KeyDown(key, shift); };
  pic.KeyPress = [this](int& key) { reading->KeyTyped(key); };
  pic.GotFocus = [this] { FocusChanged(true); };
  pic.LostFocus = [this] { FocusChanged(false); };
  pic.Paint = [this] {
    if (!placing) store.Count() > 0 ? Repaint() : ClearPane();
  };
  hs.Change = [this] { Repaint(); };
  vs.Change = [this] { MovedByBar(false); };
  vs.Scroll = [this] { MovedByBar(true); };
  tmr.Tick = [this] { tmr_Timer(); };
  txtEdit.KeyDown = [this](int& key, int) { txtEdit_KeyDown(key); };
  txtEdit.KeyPress = [this](int& key) { txtEdit_KeyPress(key); };
  txtEdit.LostFocus = [this] { CloseEdit(); };
  lbx.Click = [this] { lbx_Click(); };
  lbx.DblClick = [this] { HideQuickList(); };
  lbx.KeyPress = [this](int& key) { lbx_KeyPress(key); };
  lbx.LostFocus = [this] { lbx_LostFocus(); };
  lbx.MouseMove = [this](int button, int shift, Twips x, Twips y) { MouseMove(button, shift, x, y); };
}

void ucListBox::OnResize() {
  if (placing) return;
  runtime::PassOverErrors([this] { Layout(); });
}

// Rows fill the control exactly: it takes the height of the whole rows that fit best. Painted is only when all is in
// its place: rows that are lost must not move the current line.
void ucListBox::Layout() {
  Raised guard(placing);
  widths.Forget();
  gutterWidth = pic.TextWidth("    ");
  rowHeight = pic.TextHeight("A");
  if (rowHeight <= 0) return;
  visibleRows = std::lrint(Height() / rowHeight);
  SetHeight(rowHeight * static_cast<Twips>(visibleRows));
  paneWidth = std::max<Twips>(0, Width() - kWidthOfVs);
  const Twips bar_top = std::max<Twips>(0, Height() - rowHeight);
  pic.Move(0, 0, paneWidth, Height());
  hs.Move(0, bar_top, paneWidth, rowHeight);
  vs.Move(paneWidth, 0, kWidthOfVs, bar_top);
  ffh.Move(paneWidth, bar_top, kWidthOfVs, rowHeight);
  if (lbx.ListCount() > 0) PlaceQuickList();
  if (store.Count() > 0)
    SetStrPos(currentLine);
  else
    ClearPane();
}

void ucListBox::FocusChanged(bool gained) {
  hasFocus = gained;
  RepaintCurrent(highlightColor);
  pic.Refresh();
  if (!gained && store.Count() > 1) CodeLostFocus(currentLine);
}

void ucListBox::SetBackColor(Color value) {
  UserControl::SetBackColor(value);
  ffh.SetBackColor(value);
  PropertyChanged("BackColor");
}

void ucListBox::HScroll(bool enabled) {
  hs.SetEnabled(enabled);
  PropertyChanged("HScroll");
}

long ucListBox::AddIcon(const std::string& path) {
  runtime::PassOverErrors([&] { imgList.Add(services.Pictures.LoadPicture(path)); });
  return imgList.Count();
}

// Switching off shows with the next load; switching on asks the container for one.
void ucListBox::ToggleColor() {
  if (store.Count() <= 1) return;
  ColorOff = !ColorOff;
  colorCaption = ColorOff ? "Set Color analyze On" : "Set Color analyze Off";
  if (!ColorOff) ColorOnOff(currentLine);
}

}  // namespace corvane::codelist
