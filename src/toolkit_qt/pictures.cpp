#include "toolkit_qt/pictures.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>
#include <algorithm>
#include <map>
#include <memory>
#include <vector>

namespace corvane::toolkit_qt {
namespace {

struct Decoded {
  std::weak_ptr<const forms::Picture> owner;
  std::unique_ptr<QSvgRenderer> drawing;  // of a vector picture
  QImage pixels;                          // of any other, at its own size
  std::vector<QImage> scaled;             // the one asked for last is at the end
};

constexpr size_t kSizesKept = 4;

bool LooksLikeSvg(const QByteArray& bytes) {
  const QByteArray start = bytes.left(1024).trimmed();
  return start.startsWith('<') && bytes.contains("<svg");
}

std::unique_ptr<Decoded> Decode(const forms::PictureRef& picture) {
  const QByteArray bytes(picture->bytes.data(), static_cast<qsizetype>(picture->bytes.size()));
  auto decoded = std::make_unique<Decoded>();
  decoded->owner = picture;
  if (LooksLikeSvg(bytes)) {
    decoded->drawing = std::make_unique<QSvgRenderer>(bytes);
    if (!decoded->drawing->isValid()) decoded->drawing.reset();
  } else {
    decoded->pixels = QImage::fromData(bytes);
  }
  return decoded;
}

using Store = std::map<const forms::Picture*, std::unique_ptr<Decoded>>;

// Pictures are few and long-lived; those that are gone are swept when another comes.
void Sweep(Store& store) {
  std::erase_if(store, [](const auto& entry) { return entry.second->owner.expired(); });
}

Decoded& DecodedOf(const forms::PictureRef& picture) {
  static Store store;
  auto found = store.find(picture.get());
  if (found == store.end() || found->second->owner.expired()) {
    Sweep(store);
    found = store.insert_or_assign(picture.get(), Decode(picture)).first;
  }
  return *found->second;
}

QImage Draw(Decoded& decoded, QSize size) {
  if (decoded.drawing) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    decoded.drawing->setAspectRatioMode(Qt::KeepAspectRatio);
    decoded.drawing->render(&painter, QRectF(QPointF(), size));
    return image;
  }
  if (decoded.pixels.isNull()) return {};
  QImage image = decoded.pixels.size() == size
                     ? decoded.pixels
                     : decoded.pixels.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

class PictureIcon : public QIconEngine {
 public:
  explicit PictureIcon(forms::PictureRef picture) : picture_(std::move(picture)) {}
  QIconEngine* clone() const override { return new PictureIcon(picture_); }
  void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State state) override {
    const qreal scale = painter->device()->devicePixelRatioF();
    painter->drawPixmap(place, scaledPixmap(place.size() * scale, mode, state, scale));
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    return scaledPixmap(size, mode, state, 1);
  }
  // [size] in device pixels in Qt 6.4.
  QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal scale) override {
    QImage image = ImageOf(picture_, size);
    if (mode == QIcon::Disabled) Fade(image);
    QPixmap pixmap = QPixmap::fromImage(image);
    pixmap.setDevicePixelRatio(scale);
    return pixmap;
  }
  QSize actualSize(const QSize& size, QIcon::Mode, QIcon::State) override { return size; }
  bool isNull() override { return !picture_; }

 private:
  static constexpr int kFaded = 110;  // of 255
  static void Fade(QImage& image) {
    if (image.isNull()) return;
    QImage gray = image.convertToFormat(QImage::Format_Grayscale8).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&gray);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.drawImage(0, 0, image);
    painter.fillRect(gray.rect(), QColor(0, 0, 0, kFaded));
    painter.end();
    image = gray;
  }
  forms::PictureRef picture_;
};

}  // namespace

QSize SizeOf(const forms::PictureRef& picture) {
  if (!picture) return {};
  const Decoded& decoded = DecodedOf(picture);
  return decoded.drawing ? decoded.drawing->defaultSize() : decoded.pixels.size();
}

QImage ImageOf(const forms::PictureRef& picture, QSize size) {
  if (!picture || size.isEmpty()) return {};
  Decoded& decoded = DecodedOf(picture);
  auto& kept = decoded.scaled;
  const auto found =
      std::find_if(kept.begin(), kept.end(), [size](const QImage& image) { return image.size() == size; });
  if (found != kept.end()) {
    std::rotate(found, found + 1, kept.end());
    return kept.back();
  }
  const QImage image = Draw(decoded, size);
  if (image.isNull()) return image;
  if (kept.size() == kSizesKept) kept.erase(kept.begin());
  kept.push_back(image);
  return image;
}

QIcon IconOf(const forms::PictureRef& picture) {
  if (SizeOf(picture).isEmpty()) return {};
  return QIcon(new PictureIcon(picture));
}

}  // namespace corvane::toolkit_qt
