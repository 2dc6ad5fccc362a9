#include "desk/picture_image.h"

#include <QGuiApplication>
#include <QPainter>
#include <QSvgRenderer>

namespace corvane::desk {

namespace {

constexpr QRgb kFaceBackground = qRgb(0xC0, 0xC0, 0xC0);

QByteArray BytesOf(const runtime::PictureRef& picture) {
  return picture ? QByteArray(picture->bytes.data(), static_cast<qsizetype>(picture->bytes.size())) : QByteArray();
}

bool IsSvg(const QByteArray& bytes) {
  return bytes.startsWith("<svg") || bytes.startsWith("<?xml");
}

QImage SvgImage(const QByteArray& bytes) {
  QSvgRenderer renderer(bytes);
  if (!renderer.isValid()) return {};
  QImage image(renderer.defaultSize(), QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  renderer.render(&painter);
  return image;
}

}  // namespace

QImage ImageOf(const runtime::PictureRef& picture) {
  const QByteArray bytes = BytesOf(picture);
  if (bytes.isEmpty()) return {};
  return IsSvg(bytes) ? SvgImage(bytes) : QImage::fromData(bytes);
}

QIcon FaceOf(const runtime::PictureRef& picture) {
  QImage image = ImageOf(picture).convertToFormat(QImage::Format_ARGB32);
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixel(x, y) == kFaceBackground) image.setPixel(x, y, 0);
  return image.isNull() ? QIcon() : QIcon(QPixmap::fromImage(image));
}

}  // namespace corvane::desk
