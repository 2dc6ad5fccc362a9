// PictureBox: a surface to draw on, and a container. Drawing goes to the toolkit's canvas; before the form is loaded it
// goes nowhere, and the metrics are the toolkit's. Coordinates are twips. What was drawn stays (AutoRedraw).
#pragma once

#include "forms/control.h"

namespace corvane::forms {

class PictureBox : public Control, public Container {
 public:
  using Control::Control;
  ControlKind Kind() const override { return ControlKind::PictureBox; }
  bool CanTakeFocus() const override { return true; }
  Form& FormOfContainer() override { return FormOf(); }
  Control* AsControl() override { return this; }

  PictureRef Picture() const { return picture_; }
  void SetPicture(PictureRef value);
  int BorderStyle() const { return border_style_; }  // 0 none, 1 a frame
  void SetBorderStyle(int value);
  // Inside the border.
  Twips ScaleWidth() const;
  Twips ScaleHeight() const;

  // Where the next text is printed. Cls puts it to 0, 0; a text without line advance moves it behind the text.
  Twips CurrentX() const { return current_x_; }
  Twips CurrentY() const { return current_y_; }
  void SetCurrentX(Twips value) { current_x_ = value; }
  void SetCurrentY(Twips value) { current_y_ = value; }

  void Cls();
  void Print(std::string_view text);      // without line advance, in ForeColor and Font
  void PrintLine(std::string_view text);  // the next text stands at X 0 of the next line
  // The same as Print at a place of its own: nothing is measured, and the place of the next text stays.
  void PrintAt(Twips x, Twips y, std::string_view text) {
    if (forms::Canvas* canvas = CanvasOf()) canvas->Text(x, y, text, font_, fore_color_);
  }
  // Each of these four moves CurrentX and CurrentY to its last point, a circle to its centre.
  void FillBox(Twips x1, Twips y1, Twips x2, Twips y2, Color color);   // Line (x1, y1)-(x2, y2), color, BF
  void FrameBox(Twips x1, Twips y1, Twips x2, Twips y2, Color color);  // ..., B
  void DrawLine(Twips x1, Twips y1, Twips x2, Twips y2, Color color);
  void Circle(Twips x, Twips y, Twips radius, Color outline);  // filled with FillColor when FillStyle is 0
  void PaintPicture(const PictureRef& picture, Twips x, Twips y, Twips width, Twips height);
  void Refresh();
  Twips TextWidth(std::string_view text) const;
  Twips TextHeight(std::string_view text) const;  // of all its lines

  Color FillColor() const { return fill_color_; }
  void SetFillColor(Color value) { fill_color_ = value; }
  int FillStyle() const { return fill_style_; }  // 0 solid, 1 none
  void SetFillStyle(int value) { fill_style_ = value; }
  void SetFontBold(bool value) { font_.Bold = value; }
  void SetFontUnderline(bool value) { font_.Underline = value; }
  void SetForeColor(Color value) override { fore_color_ = value; }  // of what is drawn next
  void SetFont(const forms::Font& value) override { font_ = value; }

  Event<> Resize;
  Event<> Change;  // another Picture was assigned
  Event<> Paint;   // the surface was made or has a new size: draw again
  Variant Get(Property property) const override;
  void Set(Property property, const Variant& value) override;

 protected:
  void OnResize() override;
  void OnLoaded() override;

 private:
  forms::Canvas* CanvasOf() const;
  PictureRef picture_;
  int border_style_ = 1;
  Twips current_x_ = 0, current_y_ = 0;
  Color fill_color_ = 0;
  int fill_style_ = 1;
};

}  // namespace corvane::forms
