#include "forms/picture_box.h"

#include <algorithm>
#include <utility>

#include "forms/form.h"
#include "forms/property_table.h"
#include "forms/text_lines.h"

namespace corvane::forms {

namespace {

constexpr Twips kBorders = 60;  // both together, with BorderStyle 1

constexpr PropertyEntry<PictureBox> kProperties[] = {
    Entry<PictureBox, &PictureBox::Picture, &PictureBox::SetPicture>(Property::Picture),
    Entry<PictureBox, &PictureBox::BorderStyle, &PictureBox::SetBorderStyle>(Property::BorderStyle),
    Entry<PictureBox, &PictureBox::FillColor, &PictureBox::SetFillColor>(Property::FillColor),
    Entry<PictureBox, &PictureBox::FillStyle, &PictureBox::SetFillStyle>(Property::FillStyle),
    ReadOnly<PictureBox, &PictureBox::ScaleWidth>(Property::ScaleWidth),
    ReadOnly<PictureBox, &PictureBox::ScaleHeight>(Property::ScaleHeight),
};

Rect BoxOf(Twips x1, Twips y1, Twips x2, Twips y2) {
  return {std::min(x1, x2), std::min(y1, y2), std::max(x1, x2) - std::min(x1, x2), std::max(y1, y2) - std::min(y1, y2)};
}

}  // namespace

forms::Canvas* PictureBox::CanvasOf() const {
  return Peer() ? Peer()->Canvas() : nullptr;
}

void PictureBox::SetPicture(PictureRef value) {
  if (picture_ == value) return;
  picture_ = std::move(value);
  Changed(Property::Picture);
  Change();
}

void PictureBox::SetBorderStyle(int value) {
  if (value < 0 || value > 1) throw Error(runtime::kInvalidPropertyValue);
  border_style_ = value;
  Changed(Property::BorderStyle);
}

Twips PictureBox::ScaleWidth() const {
  return std::max<Twips>(0, Width() - (border_style_ != 0 ? kBorders : 0));
}
Twips PictureBox::ScaleHeight() const {
  return std::max<Twips>(0, Height() - (border_style_ != 0 ? kBorders : 0));
}

void PictureBox::Cls() {
  current_x_ = current_y_ = 0;
  if (auto* canvas = CanvasOf()) canvas->Clear(BackColor());
}

// Text of several lines goes on at X 0 of the next line.
void PictureBox::Print(std::string_view text) {
  TextMetrics& metrics = FormOf().Toolkit().Metrics();
  auto* canvas = CanvasOf();
  bool first = true;
  ForEachLine(text, [&](std::string_view line) {
    if (!std::exchange(first, false)) {
      current_x_ = 0;
      current_y_ += metrics.TextHeight(font_);
    }
    if (canvas && !line.empty()) canvas->Text(current_x_, current_y_, line, font_, fore_color_);
    current_x_ += metrics.TextWidth(line, font_);
  });
}

void PictureBox::PrintLine(std::string_view text) {
  Print(text);
  current_x_ = 0;
  current_y_ += FormOf().Toolkit().Metrics().TextHeight(font_);
}

void PictureBox::FillBox(Twips x1, Twips y1, Twips x2, Twips y2, Color color) {
  if (auto* canvas = CanvasOf()) canvas->FillBox(BoxOf(x1, y1, x2, y2), color);
  current_x_ = x2, current_y_ = y2;
}

void PictureBox::FrameBox(Twips x1, Twips y1, Twips x2, Twips y2, Color color) {
  if (auto* canvas = CanvasOf()) canvas->FrameBox(BoxOf(x1, y1, x2, y2), color);
  current_x_ = x2, current_y_ = y2;
}

void PictureBox::DrawLine(Twips x1, Twips y1, Twips x2, Twips y2, Color color) {
  if (auto* canvas = CanvasOf()) canvas->Line(x1, y1, x2, y2, color);
  current_x_ = x2, current_y_ = y2;
}

void PictureBox::Circle(Twips x, Twips y, Twips radius, Color outline) {
  if (auto* canvas = CanvasOf()) canvas->Circle(x, y, radius, outline, fill_style_ == 0, fill_color_);
  current_x_ = x, current_y_ = y;
}

void PictureBox::PaintPicture(const PictureRef& picture, Twips x, Twips y, Twips width, Twips height) {
  auto* canvas = CanvasOf();
  if (canvas && picture && !picture->bytes.empty()) canvas->PaintPicture(picture, {x, y, width, height});
}

void PictureBox::Refresh() {
  if (auto* canvas = CanvasOf()) canvas->Refresh();
}

Twips PictureBox::TextWidth(std::string_view text) const {
  return WidestLine(FormOf().Toolkit().Metrics(), text, font_);
}

Twips PictureBox::TextHeight(std::string_view text) const {
  return HeightOfLines(FormOf().Toolkit().Metrics(), text, font_);
}

void PictureBox::OnLoaded() {
  if (auto* canvas = CanvasOf()) canvas->Clear(BackColor());
  Paint();
}

void PictureBox::OnResize() {
  Resize();
  if (Peer()) Paint();
}

Variant PictureBox::Get(Property property) const {
  return GetBy<Control>(kProperties, *this, property);
}
void PictureBox::Set(Property property, const Variant& value) {
  SetBy<Control>(kProperties, *this, property, value);
}

}  // namespace corvane::forms
