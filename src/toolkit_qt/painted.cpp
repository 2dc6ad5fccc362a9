#include "toolkit_qt/painted.h"

#include <algorithm>
#include <cmath>

#include "toolkit_qt/colors.h"
#include "toolkit_qt/pictures.h"

namespace corvane::toolkit_qt {

void PaintedWidget::paintEvent(QPaintEvent*) {
  if (!OnPaint) return;
  QPainter painter(this);
  OnPaint(painter);
}

// In whole pixels of the display, inside [place]: at other scales the edges of widgets fall between them.
void PaintSunkenFrame(QPainter& painter, const QRect& place) {
  const QTransform to_device = painter.deviceTransform();
  const QRectF shown = to_device.mapRect(QRectF(place));
  const double line = std::max(1.0, std::round(to_device.m11()));
  const double left = std::ceil(shown.left()), top = std::ceil(shown.top());
  const double width = std::floor(shown.right()) - left, height = std::floor(shown.bottom()) - top;
  const QTransform back = to_device.inverted();
  const QColor color = ShownColor(forms::kButtonShadow);
  for (const QRectF& side : {QRectF(left, top, width, line), QRectF(left, top + height - line, width, line),
                             QRectF(left, top, line, height), QRectF(left + width - line, top, line, height)})
    painter.fillRect(back.mapRect(side), color);
}

void PaintShownPicture(QPainter& painter, const forms::PictureRef& picture, const QRect& place) {
  const double scale = painter.device()->devicePixelRatioF();
  const QImage image = ImageOf(picture, (QSizeF(place.size()) * scale).toSize());
  if (!image.isNull()) painter.drawImage(QRectF(place), image, QRectF(image.rect()));
}

}  // namespace corvane::toolkit_qt
