// Draws controls as they look at design time, each in its own place.
#pragma once

#include <QPainter>
#include <QStyle>

#include "desk/designer_layout.h"

namespace corvane::desk {

class ControlPainter {
 public:
  ControlPainter(QPainter& painter, const QStyle& style, const QPalette& palette)
      : painter_(painter), style_(style), palette_(palette) {}

  // [box]: where the control stands for the painter.
  void Paint(const PlacedControl& control, const QRectF& box);
  // The area of [box] in which what the control holds is drawn.
  static QRectF Inner(const PlacedControl& control, const QRectF& box);

 private:
  using Draw = void (ControlPainter::*)(const PlacedControl&, const QRectF&);
  struct Kind {
    const char* class_name;
    Draw draw;
  };
  static const Kind kKinds[];

  void Label(const PlacedControl&, const QRectF&);
  void TextBox(const PlacedControl&, const QRectF&);
  void CommandButton(const PlacedControl&, const QRectF&);
  void CheckBox(const PlacedControl&, const QRectF&);
  void OptionButton(const PlacedControl&, const QRectF&);
  void Frame(const PlacedControl&, const QRectF&);
  void ListBox(const PlacedControl&, const QRectF&);
  void ComboBox(const PlacedControl&, const QRectF&);
  void PictureBox(const PlacedControl&, const QRectF&);
  void Image(const PlacedControl&, const QRectF&);
  void Line(const PlacedControl&, const QRectF&);
  void Shape(const PlacedControl&, const QRectF&);
  void HScrollBar(const PlacedControl&, const QRectF&);
  void VScrollBar(const PlacedControl&, const QRectF&);
  void Timer(const PlacedControl&, const QRectF&);
  void Other(const PlacedControl&, const QRectF&);

  void Box(const PlacedControl&, const QRectF&, unsigned back);
  void Indicator(const PlacedControl&, const QRectF&, QStyle::PrimitiveElement, bool on);
  void Words(const PlacedControl&, const QRectF&, const QString&, int alignment, unsigned color);
  void ScrollBar(const QRectF&, Qt::Orientation);

  QPainter& painter_;
  const QStyle& style_;
  const QPalette& palette_;
};

}  // namespace corvane::desk
