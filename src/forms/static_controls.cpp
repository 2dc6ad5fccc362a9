#include "forms/static_controls.h"

#include <algorithm>
#include <utility>

#include "forms/form.h"
#include "forms/property_table.h"

namespace corvane::forms {

namespace {

constexpr PropertyEntry<Frame> kFrame[] = {
    Entry<Frame, &Frame::Caption, &Frame::SetCaption>(Property::Caption),
    Entry<Frame, &Frame::BorderStyle, &Frame::SetBorderStyle>(Property::BorderStyle),
};
constexpr PropertyEntry<Image> kImage[] = {
    Entry<Image, &Image::Picture, &Image::SetPicture>(Property::Picture),
    Entry<Image, &Image::Stretch, &Image::SetStretch>(Property::Stretch),
    Entry<Image, &Image::BorderStyle, &Image::SetBorderStyle>(Property::BorderStyle),
};
constexpr PropertyEntry<Line> kLine[] = {
    Entry<Line, &Line::X1, &Line::SetX1>(Property::X1),
    Entry<Line, &Line::Y1, &Line::SetY1>(Property::Y1),
    Entry<Line, &Line::X2, &Line::SetX2>(Property::X2),
    Entry<Line, &Line::Y2, &Line::SetY2>(Property::Y2),
    Entry<Line, &Line::BorderColor, &Line::SetBorderColor>(Property::BorderColor),
    Entry<Line, &Line::BorderWidth, &Line::SetBorderWidth>(Property::BorderWidth),
};
constexpr PropertyEntry<Shape> kShape[] = {
    Entry<Shape, &Shape::ShapeOf, &Shape::SetShape>(Property::Shape),
    Entry<Shape, &Shape::BorderColor, &Shape::SetBorderColor>(Property::BorderColor),
    Entry<Shape, &Shape::FillColor, &Shape::SetFillColor>(Property::FillColor),
    Entry<Shape, &Shape::FillStyle, &Shape::SetFillStyle>(Property::FillStyle),
    Entry<Shape, &Shape::BorderStyle, &Shape::SetBorderStyle>(Property::BorderStyle),
    Entry<Shape, &Shape::BorderWidth, &Shape::SetBorderWidth>(Property::BorderWidth),
    Entry<Shape, &Shape::BackStyle, &Shape::SetBackStyle>(Property::BackStyle),
};

int Within(int value, int low, int high) {
  if (value < low || value > high) throw Error(runtime::kInvalidPropertyValue);
  return value;
}

}  // namespace

void Frame::SetCaption(std::string value) {
  if (caption_ == value) return;
  caption_ = std::move(value);
  Changed(Property::Caption);
}

void Frame::SetBorderStyle(int value) {
  border_style_ = Within(value, 0, 1);
  Changed(Property::BorderStyle);
}

Variant Frame::Get(Property property) const {
  return GetBy<Control>(kFrame, *this, property);
}
void Frame::Set(Property property, const Variant& value) {
  SetBy<Control>(kFrame, *this, property, value);
}

void Image::SetPicture(PictureRef value) {
  picture_ = std::move(value);
  Changed(Property::Picture);
}

void Image::SetStretch(bool value) {
  stretch_ = value;
  Changed(Property::Stretch);
}

void Image::SetBorderStyle(int value) {
  border_style_ = Within(value, 0, 1);
  Changed(Property::BorderStyle);
}

Variant Image::Get(Property property) const {
  return GetBy<Control>(kImage, *this, property);
}
void Image::Set(Property property, const Variant& value) {
  SetBy<Control>(kImage, *this, property, value);
}

void Line::SetPoints(Twips x1, Twips y1, Twips x2, Twips y2) {
  x1_ = x1, y1_ = y1, x2_ = x2, y2_ = y2;
  place_ = {std::min(x1, x2), std::min(y1, y2), std::max(x1, x2) - std::min(x1, x2),
            std::max(y1, y2) - std::min(y1, y2)};
  Changed(Property::X1);
}

void Line::SetBorderColor(Color value) {
  border_color_ = value;
  Changed(Property::BorderColor);
}

void Line::SetBorderWidth(int value) {
  border_width_ = Within(value, 1, 8192);
  Changed(Property::BorderWidth);
}

Variant Line::Get(Property property) const {
  return GetBy<Control>(kLine, *this, property);
}
void Line::Set(Property property, const Variant& value) {
  SetBy<Control>(kLine, *this, property, value);
}

bool Shape::IsSquare() const {
  return shape_ == ShapeKind::Square || shape_ == ShapeKind::Circle || shape_ == ShapeKind::RoundedSquare;
}

std::optional<Color> Shape::ShownFill() const {
  if (fill_style_ == 0) return fill_color_;
  if (back_style_ == 1) return BackColor();
  return std::nullopt;
}

void Shape::SetShape(ShapeKind value) {
  shape_ = static_cast<ShapeKind>(Within(static_cast<int>(value), 0, 5));
  Changed(Property::Shape);
}

void Shape::SetBorderColor(Color value) {
  border_color_ = value;
  Changed(Property::BorderColor);
}

void Shape::SetFillColor(Color value) {
  fill_color_ = value;
  Changed(Property::FillColor);
}

void Shape::SetFillStyle(int value) {
  fill_style_ = Within(value, 0, 7);
  Changed(Property::FillStyle);
}

void Shape::SetBorderStyle(int value) {
  border_style_ = Within(value, 0, 6);
  Changed(Property::BorderStyle);
}

void Shape::SetBorderWidth(int value) {
  border_width_ = Within(value, 1, 8192);
  Changed(Property::BorderWidth);
}

void Shape::SetBackStyle(int value) {
  back_style_ = Within(value, 0, 1);
  Changed(Property::BackStyle);
}

Variant Shape::Get(Property property) const {
  return GetBy<Control>(kShape, *this, property);
}
void Shape::Set(Property property, const Variant& value) {
  SetBy<Control>(kShape, *this, property, value);
}

}  // namespace corvane::forms
