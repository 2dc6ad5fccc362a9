#include "workshop/frm_result.h"

#include <algorithm>

#include "forms/icons.h"
#include "runtime/strings.h"

namespace corvane::workshop {

using namespace runtime;
using forms::Twips;

namespace {

constexpr Twips kWidth = 8400, kHeight = 7650, kWider = 1600, kHigher = 3000;
constexpr Twips kMargin = 120, kTextTop = 420, kButtonsToBottom = 820, kSearchRow = 570;
constexpr Twips kButtonWidth = 1260, kButtonHeight = 375, kOkLeft = 5500, kCancelLeft = 6900, kCancelLeftWide = 7000;
constexpr int kEnter = 13, kEscape = 27;

// The bounds of the line in which [offset] (from 0) lies, without its end.
struct LineBounds {
  size_t start, end;
};
LineBounds LineAround(const std::string& text, size_t offset) {
  size_t before = offset == 0 ? std::string::npos : text.rfind(kCrLf, offset - 1);
  return {before == std::string::npos ? 0 : before + 2, std::min(text.find(kCrLf, offset), text.size())};
}

size_t StartOfLine(const std::string& text, long line) {
  size_t at = 0;
  for (; line > 1; --line) {
    size_t end = text.find(kCrLf, at);
    if (end == std::string::npos) break;
    at = end + 2;
  }
  return at;
}

}  // namespace

frmResult::frmResult(forms::Toolkit& toolkit) : Form(toolkit, "frmResult") {
  Design();
  BindEvents();
}

void frmResult::Design() {
  SetBorderStyle(forms::FormBorder::FixedDialog);
  SetIcon(forms::Icon("corvane"));
  SetKeyPreview(true);
  Move(1200, 600, kWidth, kHeight);
  lblText.SetUseMnemonic(false);
  txtRes.SetMultiLine(true);
  txtRes.SetScrollBars(3);
  for (forms::Control* shown : {static_cast<forms::Control*>(&txtRes), static_cast<forms::Control*>(&lstTitle)})
    shown->SetFont({.Name = "Courier New", .Size = 9.75f});
  lstTitle.SetVisible(false);
  lblSearch.SetCaption("&Search:");
  txtSearch.SetToolTipText("Type a text and press Enter");
  OKButton.SetCaption("OK");
  CancelButton.SetCaption("Cancel");
  int index = 0;
  for (forms::Control* control :
       std::initializer_list<forms::Control*>{&txtRes, &lstTitle, &lblSearch, &txtSearch, &OKButton, &CancelButton})
    control->SetTabIndex(index++);
  PlaceControls();
}

// In the size that the window has.
void frmResult::PlaceControls() {
  const bool wide = Width() > kWidth;
  const Twips buttons = Height() - kButtonsToBottom, width = Width() - 3 * kMargin;
  const Twips height = buttons - kMargin - kSearchRow - kTextTop;
  lblText.Move(kMargin, kMargin, width, 240);
  txtRes.Move(kMargin, kTextTop, width, height);
  lstTitle.Move(kMargin, kTextTop, width, height);
  lblSearch.Move(kMargin, kTextTop + height + 165, 780, 240);
  txtSearch.Move(960, kTextTop + height + 120, 4200, 315);
  OKButton.Move(kOkLeft, buttons, kButtonWidth, kButtonHeight);
  CancelButton.Move(wide ? kCancelLeftWide : kCancelLeft, buttons, kButtonWidth, kButtonHeight);
}

void frmResult::NewWidth(bool list) {
  Move(Left(), Top(), kWidth + (list ? kWider : 0), kHeight + (list ? kHigher : 0));
  PlaceControls();
}

void frmResult::BindEvents() {
  OKButton.Click = [this] { Answer(true); };
  CancelButton.Click = [this] { Answer(false); };
  KeyPress = [this](int& key) { Form_KeyPress(key); };
  txtSearch.KeyPress = [this](int& key) { txtSearch_KeyPress(key); };
  lstTitle.KeyPress = [this](int& key) { lstTitle_KeyPress(key); };
  lstTitle.DblClick = [this] { SelectFoundLine(); };
}

bool frmResult::DisplayRes(const std::string& text, const std::string& label, const std::string& caption, long line) {
  confirmed = false;
  SetCaption(caption);
  lblText.SetCaption(label);
  txtRes.SetText(text);
  txtRes.SetSelStart(static_cast<long>(StartOfLine(text, line)));
  txtSearch.SetText("");
  HideHits();
  ShowModal();
  return confirmed;
}

void frmResult::Answer(bool ok) {
  confirmed = ok;
  Hide();
}

void frmResult::Form_KeyPress(int& key) {
  if (key != kEscape) return;
  key = 0;
  lstTitle.Visible() ? HideHits() : Answer(false);
}

void frmResult::txtSearch_KeyPress(int& key) {
  if (key != kEnter) return;
  key = 0;
  ListHits(UCase(txtSearch.Text()));
}

// One row for each hit, with its place.
void frmResult::ListHits(const std::string& wanted) {
  if (wanted.empty()) return;
  lstTitle.Clear();
  const std::string& text = txtRes.Text();
  const std::string upper = UCase(text);
  for (size_t at = 0; (at = upper.find(wanted, at)) != std::string::npos; at += wanted.size()) {
    LineBounds line = LineAround(text, at);
    lstTitle.AddItem(text.substr(line.start, line.end - line.start));
    lstTitle.SetItemData(lstTitle.NewIndex(), static_cast<long>(at));
  }
  if (lstTitle.ListCount() == 0) return;
  lstTitle.SetVisible(true);
  lstTitle.ZOrder();
  lstTitle.SetListIndex(0);
  PassOverErrors([this] { lstTitle.SetFocus(); });
}

void frmResult::lstTitle_KeyPress(int& key) {
  if (key != kEnter) return;
  key = 0;
  SelectFoundLine();
}

void frmResult::SelectFoundLine() {
  if (lstTitle.ListIndex() < 0) return;
  LineBounds line = LineAround(txtRes.Text(), static_cast<size_t>(lstTitle.ItemData(lstTitle.ListIndex())));
  HideHits();
  txtRes.SetSelStart(static_cast<long>(line.start));
  txtRes.SetSelLength(static_cast<long>(line.end - line.start));
}

void frmResult::HideHits() {
  lstTitle.SetVisible(false);
  PassOverErrors([this] { txtRes.SetFocus(); });
}

}  // namespace corvane::workshop
