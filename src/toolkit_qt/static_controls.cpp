// Label, Frame, Image, Line, Shape: they paint themselves from their control.
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "toolkit_qt/colors.h"
#include "toolkit_qt/fonts.h"
#include "toolkit_qt/painted.h"
#include "toolkit_qt/peers.h"
#include "toolkit_qt/pictures.h"
#include "toolkit_qt/texts.h"
#include "toolkit_qt/units.h"

namespace corvane::toolkit_qt {
namespace {

int FlagsOf(forms::Alignment alignment) {
  switch (alignment) {
    case forms::Alignment::Right:
      return Qt::AlignRight;
    case forms::Alignment::Center:
      return Qt::AlignHCenter;
    default:
      return Qt::AlignLeft;
  }
}

void Fill(QPainter& painter, const QRect& place, forms::Color color) {
  painter.fillRect(place, ShownColor(color));
}

QColor TextColorOf(const forms::Control& control) {
  return ShownColor(control.IsActive() ? control.ForeColor() : static_cast<forms::Color>(forms::kGrayText));
}

void PaintLabel(const forms::Label& label, QPainter& painter, QRect place) {
  if (label.BackStyle() == 1) Fill(painter, place, label.BackColor());
  if (label.BorderStyle() == 1) {
    PaintSunkenFrame(painter, place);
    place.adjust(kBorder, kBorder, -kBorder, -kBorder);
  }
  int flags = Qt::AlignTop | FlagsOf(label.Alignment());
  if (label.UseMnemonic()) flags |= Qt::TextShowMnemonic;
  if (label.Wraps()) flags |= Qt::TextWordWrap;
  painter.setFont(ShownFont(label.Font()));
  painter.setPen(TextColorOf(label));
  painter.drawText(place, flags, ShownLines(label.Caption()));
}

// The frame runs through the middle of its caption.
void PaintFrame(const forms::Frame& frame, QPainter& painter, QRect place) {
  constexpr int kCaptionLeft = 8, kGap = 3;
  Fill(painter, place, frame.BackColor());
  if (frame.BorderStyle() == 0) return;
  const QFont font = ShownFont(frame.Font());
  const QFontMetrics metrics(font);
  const QString caption = ShownText(frame.Caption());
  const int width = metrics.size(Qt::TextShowMnemonic, caption).width();
  const QRect box = place.adjusted(0, metrics.height() / 2, -1, -1);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(ShownColor(forms::kButtonShadow));
  painter.drawRoundedRect(QRectF(box).translated(0.5, 0.5).adjusted(0, 0, -0.5, -0.5), 2, 2);
  if (caption.isEmpty()) return;
  const QRect text(kCaptionLeft, 0, width, metrics.height());
  Fill(painter, text.adjusted(-kGap, 0, kGap, 0), frame.BackColor());
  painter.setFont(font);
  painter.setPen(TextColorOf(frame));
  painter.drawText(text, Qt::AlignLeft | Qt::AlignTop | Qt::TextShowMnemonic, caption);
}

void PaintImage(const forms::Image& image, QPainter& painter, QRect place) {
  if (image.BorderStyle() == 1) {
    PaintSunkenFrame(painter, place);
    place.adjust(kBorder, kBorder, -kBorder, -kBorder);
  }
  const QRect shown(place.topLeft(), image.Stretch() ? place.size() : SizeOf(image.Picture()));
  PaintShownPicture(painter, image.Picture(), shown);
}

void PaintLine(const forms::Line& line, QPainter& painter, const QRect& place) {
  const int width = std::max(1, line.BorderWidth());
  const QPointF inside(width / 2.0, width / 2.0);
  const QRectF box = QRectF(place).adjusted(inside.x(), inside.y(), -inside.x(), -inside.y());
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(ShownColor(line.BorderColor()), width, Qt::SolidLine, Qt::FlatCap));
  if (place.width() == width || place.height() == width) {
    painter.fillRect(place, ShownColor(line.BorderColor()));
  } else if (line.Rises()) {
    painter.drawLine(box.bottomLeft(), box.topRight());
  } else {
    painter.drawLine(box.topLeft(), box.bottomRight());
  }
}

QRectF Squared(const QRectF& box) {
  const double side = std::min(box.width(), box.height());
  return {box.center().x() - side / 2, box.center().y() - side / 2, side, side};
}

void PaintShape(const forms::Shape& shape, QPainter& painter, const QRect& place) {
  using forms::ShapeKind;
  const bool bordered = shape.BorderStyle() != 0;
  const double pen = bordered ? std::max(1, shape.BorderWidth()) : 0;
  QRectF box = QRectF(place).adjusted(pen / 2, pen / 2, -pen / 2, -pen / 2);
  const ShapeKind kind = shape.ShapeOf();
  if (shape.IsSquare()) box = Squared(box);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(bordered ? QPen(ShownColor(shape.BorderColor()), pen) : QPen(Qt::NoPen));
  if (const auto fill = shape.ShownFill()) painter.setBrush(ShownColor(*fill));
  const double corner = std::min(box.width(), box.height()) / 6;
  switch (kind) {
    case ShapeKind::Oval:
    case ShapeKind::Circle:
      painter.drawEllipse(box);
      break;
    case ShapeKind::RoundedRectangle:
    case ShapeKind::RoundedSquare:
      painter.drawRoundedRect(box, corner, corner);
      break;
    default:
      painter.drawRect(box);
      break;
  }
}

template <class Kind>
class PaintedPeer : public ControlPeer {
 public:
  PaintedPeer(QtToolkit& toolkit, Kind& control, void (*paint)(const Kind&, QPainter&, QRect), Input::Mouse mouse)
      : ControlPeer(toolkit, control) {
    auto* widget = new PaintedWidget(InsideOf(control.ContainerOf()));
    painted_ = widget;
    widget->OnPaint = [&control, paint, widget](QPainter& painter) { paint(control, painter, widget->rect()); };
    SetWidget(widget, mouse);
  }
  ~PaintedPeer() override {
    if (Widget()) painted_->OnPaint = nullptr;
  }

 protected:
  // The caption is painted, and told to those who do not see it.
  void ShowOwn(forms::Property) override {
    if constexpr (requires(const Kind& kind) { kind.Caption(); }) {
      Widget()->setAccessibleName(ShownText(dynamic_cast<const Kind&>(control_).Caption()));
    }
    Widget()->update();
  }

 private:
  PaintedWidget* painted_;
};

void PaintLineBox(const forms::Line& line, QPainter& painter, QRect place) {
  PaintLine(line, painter, place);
}
void PaintShapeBox(const forms::Shape& shape, QPainter& painter, QRect place) {
  PaintShape(shape, painter, place);
}

// Lies behind the controls and takes no mouse.
class DrawnPeer {
 public:
  static void PutBehind(QWidget* widget) {
    widget->setAttribute(Qt::WA_TransparentForMouseEvents);
    widget->lower();
  }
};

class LinePeer : public PaintedPeer<forms::Line> {
 public:
  LinePeer(QtToolkit& toolkit, forms::Line& line)
      : PaintedPeer(toolkit, line, PaintLineBox, Input::Mouse::Untold), line_(line) {
    DrawnPeer::PutBehind(Widget());
  }

 protected:
  QRect ShownPlace() const override {
    const int width = std::max(1, line_.BorderWidth());
    const QPoint from(Pixels(std::min(line_.X1(), line_.X2())), Pixels(std::min(line_.Y1(), line_.Y2())));
    const QPoint to(Pixels(std::max(line_.X1(), line_.X2())), Pixels(std::max(line_.Y1(), line_.Y2())));
    const QSize size(std::max(to.x() - from.x(), width), std::max(to.y() - from.y(), width));
    return {from, size};
  }
  void ShowOwn(forms::Property property) override {
    ShowPlace();
    PaintedPeer::ShowOwn(property);
  }

 private:
  const forms::Line& line_;
};

class ShapePeer : public PaintedPeer<forms::Shape> {
 public:
  ShapePeer(QtToolkit& toolkit, forms::Shape& shape)
      : PaintedPeer(toolkit, shape, PaintShapeBox, Input::Mouse::Untold) {
    DrawnPeer::PutBehind(Widget());
  }
};

class ImagePeer : public PaintedPeer<forms::Image> {
 public:
  ImagePeer(QtToolkit& toolkit, forms::Image& image)
      : PaintedPeer(toolkit, image, PaintImage, Input::Mouse::ActsLast) {}
};

}  // namespace

NewPeer NewLabelPeer(QtToolkit& toolkit, forms::Label& label) {
  return std::make_unique<PaintedPeer<forms::Label>>(toolkit, label, PaintLabel, Input::Mouse::ActsLast);
}

NewPeer NewFramePeer(QtToolkit& toolkit, forms::Frame& frame) {
  return std::make_unique<PaintedPeer<forms::Frame>>(toolkit, frame, PaintFrame, Input::Mouse::ActsLast);
}

NewPeer NewImagePeer(QtToolkit& toolkit, forms::Image& image) {
  return std::make_unique<ImagePeer>(toolkit, image);
}
NewPeer NewLinePeer(QtToolkit& toolkit, forms::Line& line) {
  return std::make_unique<LinePeer>(toolkit, line);
}
NewPeer NewShapePeer(QtToolkit& toolkit, forms::Shape& shape) {
  return std::make_unique<ShapePeer>(toolkit, shape);
}

}  // namespace corvane::toolkit_qt
