// Label, Frame, Image, Line, Shape: what only shows something.
#pragma once

#include <optional>

#include "forms/control.h"

namespace corvane::forms {

enum class Alignment : int { Left = 0, Right = 1, Center = 2 };

class Label : public Control {
 public:
  using Control::Control;
  ControlKind Kind() const override { return ControlKind::Label; }
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string value);  // raises Change when it differs
  forms::Alignment Alignment() const { return alignment_; }
  void SetAlignment(forms::Alignment value);
  int BorderStyle() const { return border_style_; }
  void SetBorderStyle(int value);
  bool AutoSize() const { return auto_size_; }
  void SetAutoSize(bool value);
  bool WordWrap() const { return word_wrap_; }
  void SetWordWrap(bool value);
  bool Wraps() const { return word_wrap_ || !auto_size_; }  // its lines are cut to its width
  int BackStyle() const { return back_style_; }             // 0 transparent, 1 opaque
  void SetBackStyle(int value);
  bool UseMnemonic() const { return use_mnemonic_; }  // an "&" marks the access key of the control behind it
  void SetUseMnemonic(bool value);
  void SetFont(const forms::Font& value) override;
  Event<> Change;
  Variant Get(Property property) const override;
  void Set(Property property, const Variant& value) override;

 protected:
  void OnLoaded() override { FitToCaption(); }

 private:
  void FitToCaption();
  std::string caption_;
  forms::Alignment alignment_ = forms::Alignment::Left;
  int border_style_ = 0, back_style_ = 1;
  bool auto_size_ = false, word_wrap_ = false, use_mnemonic_ = true;
};

class Frame : public Control, public Container {
 public:
  using Control::Control;
  ControlKind Kind() const override { return ControlKind::Frame; }
  Form& FormOfContainer() override { return FormOf(); }
  Control* AsControl() override { return this; }
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string value);
  int BorderStyle() const { return border_style_; }
  void SetBorderStyle(int value);
  Variant Get(Property property) const override;
  void Set(Property property, const Variant& value) override;

 private:
  std::string caption_;
  int border_style_ = 1;
};

class Image : public Control {
 public:
  using Control::Control;
  ControlKind Kind() const override { return ControlKind::Image; }
  PictureRef Picture() const { return picture_; }
  void SetPicture(PictureRef value);
  bool Stretch() const { return stretch_; }
  void SetStretch(bool value);
  int BorderStyle() const { return border_style_; }
  void SetBorderStyle(int value);
  Variant Get(Property property) const override;
  void Set(Property property, const Variant& value) override;

 private:
  PictureRef picture_;
  bool stretch_ = false;
  int border_style_ = 0;
};

// Its place on the form is the box around its two points.
class Line : public Control {
 public:
  using Control::Control;
  ControlKind Kind() const override { return ControlKind::Line; }
  Twips X1() const { return x1_; }
  Twips Y1() const { return y1_; }
  Twips X2() const { return x2_; }
  Twips Y2() const { return y2_; }
  bool Rises() const { return (x1_ <= x2_) != (y1_ <= y2_); }  // to the right
  void SetPoints(Twips x1, Twips y1, Twips x2, Twips y2);
  Color BorderColor() const { return border_color_; }
  void SetBorderColor(Color value);
  int BorderWidth() const { return border_width_; }
  void SetBorderWidth(int value);
  void SetX1(Twips value) { SetPoints(value, y1_, x2_, y2_); }
  void SetY1(Twips value) { SetPoints(x1_, value, x2_, y2_); }
  void SetX2(Twips value) { SetPoints(x1_, y1_, value, y2_); }
  void SetY2(Twips value) { SetPoints(x1_, y1_, x2_, value); }
  Variant Get(Property property) const override;
  void Set(Property property, const Variant& value) override;

 private:
  Twips x1_ = 0, y1_ = 0, x2_ = 0, y2_ = 0;
  Color border_color_ = kWindowText;
  int border_width_ = 1;
};

enum class ShapeKind : int { Rectangle = 0, Square = 1, Oval = 2, Circle = 3, RoundedRectangle = 4, RoundedSquare = 5 };

class Shape : public Control {
 public:
  using Control::Control;
  ControlKind Kind() const override { return ControlKind::Shape; }
  ShapeKind ShapeOf() const { return shape_; }
  void SetShape(ShapeKind value);
  bool IsSquare() const;
  std::optional<Color> ShownFill() const;  // nothing where what lies behind shows
  Color BorderColor() const { return border_color_; }
  void SetBorderColor(Color value);
  Color FillColor() const { return fill_color_; }
  void SetFillColor(Color value);
  int FillStyle() const { return fill_style_; }  // 0 solid, 1 none
  void SetFillStyle(int value);
  int BorderStyle() const { return border_style_; }  // 0 none, 1 solid
  void SetBorderStyle(int value);
  int BorderWidth() const { return border_width_; }
  void SetBorderWidth(int value);
  int BackStyle() const { return back_style_; }  // 0 transparent, 1 opaque
  void SetBackStyle(int value);
  Variant Get(Property property) const override;
  void Set(Property property, const Variant& value) override;

 private:
  ShapeKind shape_ = ShapeKind::Rectangle;
  Color border_color_ = kWindowText, fill_color_ = 0;
  int fill_style_ = 1, border_style_ = 1, border_width_ = 1, back_style_ = 0;
};

}  // namespace corvane::forms
