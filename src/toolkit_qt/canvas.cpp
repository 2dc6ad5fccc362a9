#include "toolkit_qt/canvas.h"

#include <cmath>

#include "toolkit_qt/colors.h"
#include "toolkit_qt/glyphs.h"
#include "toolkit_qt/pictures.h"
#include "toolkit_qt/units.h"

namespace corvane::toolkit_qt {

forms::Twips QtTextMetrics::TextWidth(std::string_view text, const forms::Font& font) {
  return TwipsOf(GlyphFontOf(font, 1).Width(text));
}

forms::Twips QtTextMetrics::TextHeight(const forms::Font& font) {
  return TwipsOf(GlyphFontOf(font, 1).Height());
}

bool QtCanvas::Fit(QSize size, double scale, forms::Color back) {
  const QSize pixels(static_cast<int>(std::ceil(size.width() * scale)),
                     static_cast<int>(std::ceil(size.height() * scale)));
  if (pixels == image_.size() && scale == scale_) return false;
  Close();
  QImage fresh(pixels, QImage::Format_RGB32);
  if (!fresh.isNull()) {
    fresh.fill(ShownColor(back));
    if (scale == scale_ && !image_.isNull()) QPainter(&fresh).drawImage(0, 0, image_);
  }
  image_ = fresh;
  scale_ = scale;
  touched_ = QRect();
  return true;
}

void QtCanvas::ShowOn(QPainter& painter, const QRect& place) {
  Close();
  if (image_.isNull()) return;
  const QRectF source(place.x() * scale_, place.y() * scale_, place.width() * scale_, place.height() * scale_);
  if (painter.device()->devicePixelRatioF() != scale_) return painter.drawImage(QRectF(place), image_, source);
  painter.scale(1 / scale_, 1 / scale_);  // pixel for pixel: a plain copy
  const QRect pixels = source.toAlignedRect() & image_.rect();
  painter.drawImage(pixels.topLeft(), image_, pixels);
}

const QImage& QtCanvas::Picture() {
  Close();
  return image_;
}

QPainter& QtCanvas::Painter() {
  if (!painter_.isActive() && !image_.isNull()) painter_.begin(&image_);
  return painter_;
}

void QtCanvas::Close() {
  if (painter_.isActive()) painter_.end();
}

int QtCanvas::Edge(forms::Twips value) const {
  return static_cast<int>(std::floor(Device(value) + 0.5));
}

QRect QtCanvas::DeviceBox(const forms::Rect& box) const {
  const int left = Edge(box.left), top = Edge(box.top);
  return {left, top, Edge(box.left + box.width) - left, Edge(box.top + box.height) - top};
}

// The first stroke since the last showing asks for the next one, so that nothing drawn stays unseen. The widget may
// outlive the canvas, and the request with it.
void QtCanvas::Touch(const QRect& changed) {
  const QRect inside = changed & image_.rect();
  if (inside.isEmpty()) return;
  if (touched_.isEmpty() && widget_) {
    const auto show = [this, life = std::weak_ptr<int>(life_)] {
      if (!life.expired()) Refresh();
    };
    QMetaObject::invokeMethod(widget_, show, Qt::QueuedConnection);
  }
  touched_ |= inside;
}

forms::Twips QtCanvas::TextWidth(std::string_view text, const forms::Font& font) {
  return TwipsOf(GlyphFontOf(font, scale_).Width(text));
}

forms::Twips QtCanvas::TextHeight(const forms::Font& font) {
  return TwipsOf(GlyphFontOf(font, scale_).Height());
}

void QtCanvas::Clear(forms::Color back) {
  if (image_.isNull()) return;
  Painter().fillRect(image_.rect(), ShownColor(back));
  const QSize size = SizeOf(background_);
  if (!size.isEmpty()) PaintPicture(background_, {0, 0, TwipsOf(size.width()), TwipsOf(size.height())});
  Touch(image_.rect());
}

void QtCanvas::FillBox(const forms::Rect& box, forms::Color color) {
  if (image_.isNull()) return;
  const QRect place = DeviceBox(box);
  Painter().fillRect(place, ShownColor(color));
  Touch(place);
}

void QtCanvas::FrameBox(const forms::Rect& box, forms::Color color) {
  if (image_.isNull()) return;
  const QRect place = DeviceBox(box);
  const int line = std::max(1, static_cast<int>(std::lround(scale_)));
  const QColor shown = ShownColor(color);
  QPainter& painter = Painter();
  painter.fillRect(place.left(), place.top(), place.width(), line, shown);
  painter.fillRect(place.left(), place.bottom() + 1 - line, place.width(), line, shown);
  painter.fillRect(place.left(), place.top(), line, place.height(), shown);
  painter.fillRect(place.right() + 1 - line, place.top(), line, place.height(), shown);
  Touch(place);
}

// Upright and level lines are boxes of whole pixels; slanted ones are smoothed.
void QtCanvas::Line(forms::Twips x1, forms::Twips y1, forms::Twips x2, forms::Twips y2, forms::Color color, int width) {
  if (image_.isNull()) return;
  const int thick = std::max(1, static_cast<int>(std::lround(width * scale_)));
  const QPoint from(Edge(x1), Edge(y1)), to(Edge(x2), Edge(y2));
  const QRect box = QRect(QPoint(std::min(from.x(), to.x()), std::min(from.y(), to.y())),
                          QPoint(std::max(from.x(), to.x()), std::max(from.y(), to.y())));
  QPainter& painter = Painter();
  if (from.x() == to.x() || from.y() == to.y()) {
    const QRect bar(box.topLeft() - QPoint(thick / 2, thick / 2),
                    QSize(std::max(box.width() - 1, thick), std::max(box.height() - 1, thick)));
    const QRect place = from.x() == to.x() ? bar.translated(0, thick / 2) : bar.translated(thick / 2, 0);
    painter.fillRect(place, ShownColor(color));
    Touch(place);
    return;
  }
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(ShownColor(color), thick));
  painter.drawLine(QPointF(from) + QPointF(0.5, 0.5), QPointF(to) + QPointF(0.5, 0.5));
  painter.setRenderHint(QPainter::Antialiasing, false);
  Touch(box.adjusted(-thick, -thick, thick, thick));
}

void QtCanvas::Circle(forms::Twips x, forms::Twips y, forms::Twips radius, forms::Color outline, bool filled,
                      forms::Color fill) {
  if (image_.isNull()) return;
  QPainter& painter = Painter();
  const double reach = Device(radius);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(ShownColor(outline), std::max(1.0, scale_)));
  painter.setBrush(filled ? QBrush(ShownColor(fill)) : QBrush(Qt::NoBrush));
  painter.drawEllipse(QPointF(Device(x), Device(y)), reach, reach);
  painter.setBrush(Qt::NoBrush);
  painter.setRenderHint(QPainter::Antialiasing, false);
  Touch(QRectF(Device(x) - reach, Device(y) - reach, 2 * reach, 2 * reach).toAlignedRect().adjusted(-2, -2, 2, 2));
}

// Bold is the same text printed twice, half a pixel apart. At some scales both would fall on one device pixel here and
// not there: the second print then stands beside the first.
int QtCanvas::TextEdge(forms::Twips x, forms::Twips y, std::string_view text) {
  int edge = Edge(x);
  const forms::Twips step = x - printed_.x;
  const bool again = y == printed_.y && std::abs(step) < forms::kTwipsPerPixel && text == printed_.text;
  if (again && step != 0 && edge == printed_.edge) edge += step > 0 ? 1 : -1;
  printed_.x = x;
  printed_.y = y;
  printed_.edge = edge;
  printed_.text.assign(text);
  return edge;
}

void QtCanvas::Text(forms::Twips x, forms::Twips y, std::string_view text, const forms::Font& font,
                    forms::Color color) {
  if (image_.isNull() || text.empty()) return;
  const QPoint place(TextEdge(x, y, text), Edge(y));
  if (place.x() >= image_.width() || place.y() >= image_.height()) return;
  GlyphFont& glyphs = GlyphFontOf(font, scale_);
  glyphs.Draw(Painter(), place, text, ShownColor(color));
  // A glyph may lean over its own advance.
  const int margin = glyphs.Height();
  Touch(QRectF(place.x() - margin, place.y(), glyphs.Width(text) * scale_ + 2 * margin, glyphs.Height() * scale_ + 1)
            .toAlignedRect());
}

void QtCanvas::PaintPicture(const forms::PictureRef& picture, const forms::Rect& place) {
  if (image_.isNull()) return;
  const QRect box = DeviceBox(place);
  const QImage shown = ImageOf(picture, box.size());
  if (shown.isNull()) return;
  Painter().drawImage(box.topLeft(), shown);
  Touch(box);
}

void QtCanvas::Refresh() {
  if (touched_.isEmpty() || !widget_) return;
  const QRectF shown(touched_.x() / scale_, touched_.y() / scale_, touched_.width() / scale_,
                     touched_.height() / scale_);
  touched_ = QRect();
  widget_->update(shown.toAlignedRect());
}

}  // namespace corvane::toolkit_qt
