#include "codelist/cv_button.h"

#include <algorithm>
#include <utility>

#include "forms/form.h"

namespace corvane::codelist {

using forms::Color;
using forms::Twips;

namespace {

constexpr Twips kMargin = 30;         // around the picture
constexpr Twips kGap = 70;            // between picture and caption
constexpr long kHoverInterval = 100;  // milliseconds
constexpr Color kShadow = forms::kButtonShadow, kWhite = 0xFFFFFF, kBlack = 0;

}  // namespace

CvButton::CvButton(forms::Container& container, std::string name, host::Services& services, int index)
    : UserControl(container, std::move(name), index), services(services), caption(Name()) {
  fore_color_ = 0;
  SetTabStop(false);
  pic.SetBorderStyle(0);
  pic.SetBackColor(BackColor());
  pic.SetTabStop(false);
  img.SetStretch(true);
  tmr.SetEnabled(false);
  tmr.SetInterval(kHoverInterval);
  pic.Click = img.Click = [this] {
    if (Enabled()) Click();
  };
  pic.Paint = [this] { Draw(); };
  for (forms::Control* part : {static_cast<forms::Control*>(&pic), static_cast<forms::Control*>(&img)}) {
    part->MouseDown = [this](int, int, Twips, Twips) { Press(); };
    part->MouseMove = [this](int, int, Twips, Twips) { Hover(); };
    part->MouseUp = [this](int, int, Twips, Twips) {
      if (Enabled()) Draw();
    };
  }
  tmr.Tick = [this] { tmr_Timer(); };
}

void CvButton::OnResize() {
  pic.Move(0, 0, Width(), Height());
  Draw();
}

void CvButton::Draw() {
  const Twips height = pic.ScaleHeight(), side = std::max<Twips>(0, height - 2 * kMargin);
  pic.Cls();
  img.Move(kMargin, kMargin, side, side);
  img.SetVisible(Enabled());
  if (!Enabled()) pic.FillBox(kMargin, kMargin, kMargin + side, kMargin + side, kShadow);
  pic.SetForeColor(Enabled() ? ForeColor() : Color{kShadow});
  pic.PrintAt(kMargin + side + kGap, std::max<Twips>(0, (height - pic.TextHeight(caption)) / 2), caption);
  if (borderStyle > 0) DrawLines(kShadow, kWhite);
  pic.Refresh();
}

void CvButton::DrawLines(Color topLeft, Color bottomRight) {
  const Twips right = pic.ScaleWidth() - forms::kTwipsPerPixel, bottom = pic.ScaleHeight() - forms::kTwipsPerPixel;
  pic.DrawLine(0, 0, right, 0, topLeft);
  pic.DrawLine(0, 0, 0, bottom, topLeft);
  pic.DrawLine(right, 0, right, bottom, bottomRight);
  pic.DrawLine(0, bottom, right, bottom, bottomRight);
  pic.Refresh();
}

void CvButton::Press() {
  if (!Enabled()) return;
  DrawLines(kBlack, kWhite);
  services.Loop.DoEvents();
}

void CvButton::Hover() {
  if (!Enabled() || borderStyle < 1) return;
  tmr.SetEnabled(true);
  DrawLines(kWhite, kShadow);
}

// The pointer can leave without a last move.
void CvButton::tmr_Timer() {
  const forms::Control* under = FormOf().Toolkit().ControlUnderPointer();
  if (under == &pic || under == &img) return;
  tmr.SetEnabled(false);
  Draw();
}

void CvButton::Wrote(const std::string& property) {
  Draw();
  PropertyChanged(property);
}

void CvButton::SetPicture(forms::PictureRef value) {
  img.SetPicture(std::move(value));
  Wrote("Picture");
}

void CvButton::SetCaption(std::string value) {
  caption = std::move(value);
  Wrote("Caption");
}

void CvButton::SetForeColor(Color value) {
  UserControl::SetForeColor(value);
  Wrote("ForeColor");
}

void CvButton::SetBackColor(Color value) {
  UserControl::SetBackColor(value);
  pic.SetBackColor(value);
  Wrote("BackColor");
}

void CvButton::SetEnabled(bool value) {
  UserControl::SetEnabled(value);
  Wrote("Enabled");
}

void CvButton::SetFont(const forms::Font& value) {
  UserControl::SetFont(value);
  pic.SetFont(value);
  Wrote("Font");
}

void CvButton::SetBorderStyle(int value) {
  borderStyle = value;
  Wrote("BorderStyle");
}

void CvButton::SetToolTip(const std::string& value) {
  pic.SetToolTipText(value);
  img.SetToolTipText(value);
  Wrote("ToolTip");
}

}  // namespace corvane::codelist
