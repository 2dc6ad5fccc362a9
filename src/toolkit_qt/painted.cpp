#include "toolkit_qt/painted.h"

#include "toolkit_qt/colors.h"
#include "toolkit_qt/pictures.h"

namespace corvane::toolkit_qt {

void PaintedWidget::paintEvent(QPaintEvent*) {
  if (!OnPaint) return;
  QPainter painter(this);
  OnPaint(painter);
}

void PaintSunkenFrame(QPainter& painter, const QRect& place) {
  const QColor line = ShownColor(forms::kButtonShadow);
  painter.fillRect(QRect(place.left(), place.top(), place.width(), 1), line);
  painter.fillRect(QRect(place.left(), place.bottom(), place.width(), 1), line);
  painter.fillRect(QRect(place.left(), place.top(), 1, place.height()), line);
  painter.fillRect(QRect(place.right(), place.top(), 1, place.height()), line);
}

void PaintShownPicture(QPainter& painter, const forms::PictureRef& picture, const QRect& place) {
  const double scale = painter.device()->devicePixelRatioF();
  const QImage& image = ImageOf(picture, (QSizeF(place.size()) * scale).toSize());
  if (!image.isNull()) painter.drawImage(QRectF(place), image, QRectF(image.rect()));
}

}  // namespace corvane::toolkit_qt
