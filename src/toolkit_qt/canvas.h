// QtCanvas: a picture box's surface: an image that keeps what was drawn, shown by its widget. It draws device pixels,
// so that edges are sharp at every scale.
#pragma once

#include <QImage>
#include <QPainter>
#include <QPointer>
#include <QWidget>
#include <memory>
#include <string>

#include "forms/canvas.h"

namespace corvane::toolkit_qt {

class QtTextMetrics : public forms::TextMetrics {
 public:
  forms::Twips TextWidth(std::string_view text, const forms::Font& font) override;
  forms::Twips TextHeight(const forms::Font& font) override;
};

class QtCanvas : public forms::Canvas {
 public:
  explicit QtCanvas(QWidget& shown_by) : widget_(&shown_by) {}
  ~QtCanvas() override { Close(); }

  // Gives the surface a size in logical pixels and a scale. What was drawn stays, new ground is [back].
  // True when anything differs.
  bool Fit(QSize size, double scale, forms::Color back);
  double Scale() const { return scale_; }
  // What Clear leaves on the ground, at its own size.
  void SetBackground(forms::PictureRef picture) { background_ = std::move(picture); }
  // Shows the part of the widget that [place] covers (logical pixels).
  void ShowOn(QPainter& painter, const QRect& place);
  const QImage& Picture();

  forms::Twips TextWidth(std::string_view text, const forms::Font& font) override;
  forms::Twips TextHeight(const forms::Font& font) override;
  void Clear(forms::Color back) override;
  void FillBox(const forms::Rect& box, forms::Color color) override;
  void FrameBox(const forms::Rect& box, forms::Color color) override;
  void Line(forms::Twips x1, forms::Twips y1, forms::Twips x2, forms::Twips y2, forms::Color color, int width) override;
  void Circle(forms::Twips x, forms::Twips y, forms::Twips radius, forms::Color outline, bool filled,
              forms::Color fill) override;
  void Text(forms::Twips x, forms::Twips y, std::string_view text, const forms::Font& font,
            forms::Color color) override;
  void PaintPicture(const forms::PictureRef& picture, const forms::Rect& place) override;
  void Refresh() override;

 private:
  QPainter& Painter();  // open from the first stroke to the next showing
  void Close();
  double Device(forms::Twips value) const { return value / forms::kTwipsPerPixel * scale_; }
  int Edge(forms::Twips value) const;
  int TextEdge(forms::Twips x, forms::Twips y, std::string_view text);
  QRect DeviceBox(const forms::Rect& box) const;
  void Touch(const QRect& changed);  // device pixels

  QPointer<QWidget> widget_;
  QImage image_;
  QPainter painter_;
  double scale_ = 1;
  std::shared_ptr<int> life_ = std::make_shared<int>();  // what is posted looks whether it is still there
  struct Print {
    forms::Twips x = 0, y = 0;
    int edge = 0;  // device pixels
    std::string text;
  } printed_;  // the last one
  QRect touched_;
  forms::PictureRef background_;
};

}  // namespace corvane::toolkit_qt
