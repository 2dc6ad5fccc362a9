#include "desk/control_painter.h"

#include <QStyleOption>

#include "desk/ansi_text.h"
#include "desk/control_values.h"
#include "forms/types.h"
#include "toolkit_qt/pictures.h"

namespace corvane::desk {

namespace {

constexpr double kEdge = 1, kTextMargin = 3;  // pixels
constexpr double kArrowWidth = 18;
constexpr long kShownRows = 60;
const QColor kLineColor(0x8A, 0x93, 0xA0);

Qt::Alignment AlignmentOf(int alignment) {
  constexpr Qt::Alignment kAlignments[] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};
  return alignment >= 0 && alignment <= 2 ? kAlignments[alignment] : Qt::AlignLeft;
}

bool HasBorder(const PlacedControl& control, int otherwise) {
  return ControlValues(control.properties).Number("BorderStyle", otherwise) != 0;
}

}  // namespace

const ControlPainter::Kind ControlPainter::kKinds[] = {
    {"Label", &ControlPainter::Label},
    {"TextBox", &ControlPainter::TextBox},
    {"CommandButton", &ControlPainter::CommandButton},
    {"CheckBox", &ControlPainter::CheckBox},
    {"OptionButton", &ControlPainter::OptionButton},
    {"Frame", &ControlPainter::Frame},
    {"ListBox", &ControlPainter::ListBox},
    {"DirListBox", &ControlPainter::ListBox},
    {"FileListBox", &ControlPainter::ListBox},
    {"ComboBox", &ControlPainter::ComboBox},
    {"DriveListBox", &ControlPainter::ComboBox},
    {"PictureBox", &ControlPainter::PictureBox},
    {"Image", &ControlPainter::Image},
    {"Line", &ControlPainter::Line},
    {"Shape", &ControlPainter::Shape},
    {"HScrollBar", &ControlPainter::HScrollBar},
    {"VScrollBar", &ControlPainter::VScrollBar},
    {"Timer", &ControlPainter::Timer},
};

void ControlPainter::Paint(const PlacedControl& control, const QRectF& box) {
  Draw draw = &ControlPainter::Other;
  for (const Kind& kind : kKinds)
    if (control.class_name == kind.class_name) draw = kind.draw;
  painter_.save();
  painter_.setFont(ControlValues(control.properties).Font());
  (this->*draw)(control, box);
  painter_.restore();
}

QRectF ControlPainter::Inner(const PlacedControl& control, const QRectF& box) {
  const bool framed = control.class_name == "PictureBox" && HasBorder(control, 1);
  return framed ? box.adjusted(2 * kEdge, 2 * kEdge, -2 * kEdge, -2 * kEdge) : box;
}

void ControlPainter::Words(const PlacedControl& control, const QRectF& box, const QString& text, int alignment,
                           unsigned color) {
  painter_.save();
  painter_.setClipRect(box, Qt::IntersectClip);
  painter_.setPen(ControlValues(control.properties).Color("ForeColor", color));
  painter_.drawText(box, alignment, text);
  painter_.restore();
}

// A field with a thin edge, in its own colour.
void ControlPainter::Box(const PlacedControl& control, const QRectF& box, unsigned back) {
  painter_.fillRect(box, ControlValues(control.properties).Color("BackColor", back));
  painter_.setPen(kLineColor);
  painter_.setBrush(Qt::NoBrush);
  painter_.drawRect(box.adjusted(0.5, 0.5, -0.5, -0.5));
}

void ControlPainter::Label(const PlacedControl& control, const QRectF& box) {
  const ControlValues values(control.properties);
  if (values.Number("BackStyle", 1) != 0) painter_.fillRect(box, values.Color("BackColor", forms::kButtonFace));
  if (HasBorder(control, 0)) Box(control, box, forms::kButtonFace);
  const int alignment = static_cast<int>(AlignmentOf(static_cast<int>(values.Number("Alignment"))));
  Words(control, box, ToLabel(control.caption), alignment | Qt::AlignTop | Qt::TextWordWrap | Qt::TextShowMnemonic,
        forms::kButtonText);
}

void ControlPainter::TextBox(const PlacedControl& control, const QRectF& box) {
  const ControlValues values(control.properties);
  Box(control, box, forms::kWindowBackground);
  const bool lines = values.Flag("MultiLine");
  const int alignment = static_cast<int>(AlignmentOf(static_cast<int>(values.Number("Alignment")))) |
                        (lines ? Qt::AlignTop | Qt::TextWordWrap : Qt::AlignVCenter | Qt::TextSingleLine);
  Words(control, box.adjusted(kTextMargin, kEdge, -kTextMargin, -kEdge), ToLabel(values.Text("Text")), alignment,
        forms::kWindowText);
  if (lines && (static_cast<int>(values.Number("ScrollBars")) & 2))
    ScrollBar({box.right() - kArrowWidth, box.top() + kEdge, kArrowWidth - kEdge, box.height() - 2 * kEdge},
              Qt::Vertical);
}

void ControlPainter::CommandButton(const PlacedControl& control, const QRectF& box) {
  const ControlValues values(control.properties);
  QStyleOptionButton option;
  option.rect = box.toRect();
  option.palette = palette_;
  option.palette.setColor(QPalette::Button, values.Color("BackColor", forms::kButtonFace));
  option.state = QStyle::State_Raised | (values.Flag("Enabled", true) ? QStyle::State_Enabled : QStyle::State_None);
  style_.drawControl(QStyle::CE_PushButtonBevel, &option, &painter_);
  Words(control, box, ToLabel(control.caption), Qt::AlignCenter | Qt::TextWordWrap | Qt::TextShowMnemonic,
        forms::kButtonText);
  const auto picture = values.Number("Style") == 1 ? values.Picture("Picture") : nullptr;
  const QSize size = toolkit_qt::SizeOf(picture);
  if (!size.isEmpty())
    painter_.drawImage(QRectF(box.center() - QPointF(size.width() / 2.0, size.height() / 2.0), QSizeF(size)),
                       toolkit_qt::ImageOf(picture, size));
}

void ControlPainter::Indicator(const PlacedControl& control, const QRectF& box, QStyle::PrimitiveElement part,
                               bool on) {
  const ControlValues values(control.properties);
  painter_.fillRect(box, values.Color("BackColor", forms::kButtonFace));
  const bool radio = part == QStyle::PE_IndicatorRadioButton;
  const int side = style_.pixelMetric(radio ? QStyle::PM_ExclusiveIndicatorWidth : QStyle::PM_IndicatorWidth);
  const bool box_right = values.Number("Alignment") == 1;
  QStyleOptionButton option;
  option.palette = palette_;
  option.rect = QRectF(box_right ? box.right() - side : box.left(), box.center().y() - side / 2.0, side, side).toRect();
  option.state = QStyle::State_Enabled | (on ? QStyle::State_On : QStyle::State_Off);
  style_.drawPrimitive(part, &option, &painter_);
  const double gap = side + 4;
  Words(control, box.adjusted(box_right ? 0 : gap, 0, box_right ? -gap : 0, 0), ToLabel(control.caption),
        Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap | Qt::TextShowMnemonic, forms::kButtonText);
}

void ControlPainter::CheckBox(const PlacedControl& control, const QRectF& box) {
  Indicator(control, box, QStyle::PE_IndicatorCheckBox, ControlValues(control.properties).Number("Value") == 1);
}

void ControlPainter::OptionButton(const PlacedControl& control, const QRectF& box) {
  Indicator(control, box, QStyle::PE_IndicatorRadioButton, ControlValues(control.properties).Flag("Value"));
}

void ControlPainter::Frame(const PlacedControl& control, const QRectF& box) {
  const ControlValues values(control.properties);
  const QColor back = values.Color("BackColor", forms::kButtonFace);
  painter_.fillRect(box, back);
  if (!HasBorder(control, 1)) return;
  const QString caption = ToLabel(control.caption);
  const QFontMetricsF metrics(painter_.font());
  const double top = caption.isEmpty() ? 0 : metrics.height() / 2;
  painter_.setPen(kLineColor);
  painter_.drawRoundedRect(box.adjusted(0.5, top + 0.5, -0.5, -0.5), 2, 2);
  if (caption.isEmpty()) return;
  const QRectF title(box.left() + 8, box.top(),
                     metrics.boundingRect(QRectF(), Qt::TextShowMnemonic, caption).width() + 6, metrics.height());
  painter_.fillRect(title, back);
  Words(control, title, caption, Qt::AlignCenter | Qt::TextShowMnemonic, forms::kButtonText);
}

void ControlPainter::ListBox(const PlacedControl& control, const QRectF& box) {
  Box(control, box, forms::kWindowBackground);
  std::vector<std::string> rows = ControlValues(control.properties).List("List", kShownRows);
  if (rows.empty()) rows.push_back(control.name);
  const QFontMetricsF metrics(painter_.font());
  QRectF row(box.left() + kTextMargin, box.top() + 2, box.width() - 2 * kTextMargin, metrics.height());
  for (const std::string& text : rows) {
    if (row.bottom() > box.bottom()) break;
    Words(control, row, ToLabel(text), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, forms::kWindowText);
    row.translate(0, metrics.height());
  }
}

void ControlPainter::ComboBox(const PlacedControl& control, const QRectF& box) {
  const ControlValues values(control.properties);
  Box(control, box, forms::kWindowBackground);
  const QRectF arrow(box.right() - kArrowWidth, box.top() + kEdge, kArrowWidth - kEdge, box.height() - 2 * kEdge);
  const std::string text = values.Text("Text");
  Words(control, box.adjusted(kTextMargin, 0, -kArrowWidth, 0), ToLabel(text.empty() ? control.name : text),
        Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, forms::kWindowText);
  painter_.fillRect(arrow, palette_.button());
  QStyleOption option;
  option.rect = QRectF(arrow.center() - QPointF(4, 4), QSizeF(8, 8)).toRect();
  option.palette = palette_;
  option.state = QStyle::State_Enabled;
  style_.drawPrimitive(QStyle::PE_IndicatorArrowDown, &option, &painter_);
}

void ControlPainter::PictureBox(const PlacedControl& control, const QRectF& box) {
  const ControlValues values(control.properties);
  painter_.fillRect(box, values.Color("BackColor", forms::kButtonFace));
  const auto picture = values.Picture("Picture");
  const QSize size = toolkit_qt::SizeOf(picture);
  painter_.save();
  painter_.setClipRect(box, Qt::IntersectClip);
  if (!size.isEmpty())
    painter_.drawImage(QRectF(Inner(control, box).topLeft(), QSizeF(size)), toolkit_qt::ImageOf(picture, size));
  painter_.restore();
  if (!HasBorder(control, 1)) return;
  painter_.setPen(kLineColor);
  painter_.drawRect(box.adjusted(0.5, 0.5, -0.5, -0.5));
}

void ControlPainter::Image(const PlacedControl& control, const QRectF& box) {
  const ControlValues values(control.properties);
  const auto picture = values.Picture("Picture");
  const QSize own = toolkit_qt::SizeOf(picture);
  if (!own.isEmpty()) {
    const QSize shown = values.Flag("Stretch") ? box.size().toSize() : own;
    painter_.drawImage(QRectF(box.topLeft(), QSizeF(shown)), toolkit_qt::ImageOf(picture, shown));
  }
  if (!own.isEmpty() && !HasBorder(control, 0)) return;
  painter_.setPen(QPen(kLineColor, 1, HasBorder(control, 0) ? Qt::SolidLine : Qt::DashLine));
  painter_.setBrush(Qt::NoBrush);
  painter_.drawRect(box.adjusted(0.5, 0.5, -0.5, -0.5));
}

void ControlPainter::Line(const PlacedControl& control, const QRectF& box) {
  const ControlValues values(control.properties);
  painter_.setPen(QPen(values.Color("BorderColor", forms::kWindowText), values.Number("BorderWidth", 1)));
  const bool falls = (values.Number("X2") - values.Number("X1")) * (values.Number("Y2") - values.Number("Y1")) >= 0;
  falls ? painter_.drawLine(box.topLeft(), box.bottomRight()) : painter_.drawLine(box.bottomLeft(), box.topRight());
}

void ControlPainter::Shape(const PlacedControl& control, const QRectF& box) {
  const ControlValues values(control.properties);
  if (HasBorder(control, 1))
    painter_.setPen(QPen(values.Color("BorderColor", forms::kWindowText), values.Number("BorderWidth", 1)));
  else
    painter_.setPen(Qt::NoPen);
  const bool filled = values.Number("FillStyle", 1) == 0, opaque = values.Number("BackStyle") != 0;
  painter_.setBrush(filled ? QBrush(values.Color("FillColor", 0))
                           : (opaque ? QBrush(values.Color("BackColor", forms::kWindowBackground)) : QBrush()));
  const int shape = static_cast<int>(values.Number("Shape"));
  QRectF body = box.adjusted(0.5, 0.5, -0.5, -0.5);
  if (shape == 1 || shape == 3 || shape == 5) {
    const double side = std::min(body.width(), body.height());
    body = QRectF(body.center() - QPointF(side / 2, side / 2), QSizeF(side, side));
  }
  painter_.setRenderHint(QPainter::Antialiasing, shape >= 2);
  if (shape == 2 || shape == 3)
    painter_.drawEllipse(body);
  else if (shape >= 4)
    painter_.drawRoundedRect(body, 10, 10);
  else
    painter_.drawRect(body);
}

void ControlPainter::ScrollBar(const QRectF& box, Qt::Orientation orientation) {
  QStyleOptionSlider option;
  option.rect = box.toRect();
  option.palette = palette_;
  option.orientation = orientation;
  option.maximum = 10;
  option.pageStep = 5;
  option.subControls = QStyle::SC_All;
  option.state =
      QStyle::State_Enabled | (orientation == Qt::Horizontal ? QStyle::State_Horizontal : QStyle::State_None);
  style_.drawComplexControl(QStyle::CC_ScrollBar, &option, &painter_);
}

void ControlPainter::HScrollBar(const PlacedControl&, const QRectF& box) {
  ScrollBar(box, Qt::Horizontal);
}
void ControlPainter::VScrollBar(const PlacedControl&, const QRectF& box) {
  ScrollBar(box, Qt::Vertical);
}

// A control that is not seen at run time: a clock.
void ControlPainter::Timer(const PlacedControl& control, const QRectF& box) {
  Box(control, box, forms::kButtonFace);
  painter_.setRenderHint(QPainter::Antialiasing);
  const double radius = std::min(box.width(), box.height()) / 2 - 6;
  painter_.setPen(QPen(palette_.color(QPalette::Text), 1.5));
  painter_.setBrush(Qt::white);
  painter_.drawEllipse(box.center(), radius, radius);
  painter_.drawLine(box.center(), box.center() - QPointF(0, radius - 3));
  painter_.drawLine(box.center(), box.center() + QPointF(radius - 4, 0));
}

// A control of a library or of the project: its place, its name and its kind.
void ControlPainter::Other(const PlacedControl& control, const QRectF& box) {
  painter_.fillRect(box, QBrush(kLineColor.lighter(140), Qt::BDiagPattern));
  painter_.setPen(kLineColor);
  painter_.setBrush(Qt::NoBrush);
  painter_.drawRect(box.adjusted(0.5, 0.5, -0.5, -0.5));
  const QString text = ToLabel(control.name + " (" + control.class_name + ")");
  const QFontMetricsF metrics(painter_.font());
  const QSizeF size(metrics.horizontalAdvance(text) + 8, metrics.height() + 4);
  const QRectF plate = QRectF(box.center() - QPointF(size.width() / 2, size.height() / 2), size).intersected(box);
  painter_.fillRect(plate, palette_.base());
  painter_.setPen(palette_.color(QPalette::Text));
  painter_.drawText(plate, Qt::AlignCenter | Qt::TextSingleLine, text);
}

}  // namespace corvane::desk
