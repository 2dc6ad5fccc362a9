#include "toolkit_qt/list_view.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyleOptionButton>
#include <algorithm>

#include "toolkit_qt/fonts.h"
#include "toolkit_qt/keys.h"
#include "toolkit_qt/painted.h"
#include "toolkit_qt/scroll_bar_view.h"
#include "toolkit_qt/texts.h"

namespace corvane::toolkit_qt {
namespace {

constexpr int kFrame = 1, kIndent = 2;
constexpr qsizetype kShownBytes = 1024;  // of a row: more never fits a screen
constexpr int kBox = 13;

}  // namespace

ListView::ListView(forms::ListControl& list, QWidget* parent)
    : QWidget(parent), ListRows(list), bar_(new ScrollBarView(Qt::Vertical, this)) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  bar_->setFocusPolicy(Qt::NoFocus);
  bar_->setCursor(Qt::ArrowCursor);
  bar_->setContextMenuPolicy(Qt::NoContextMenu);
  connect(bar_, &QScrollBar::valueChanged, this, [this](int value) { ScrollByUser(value); });
}

int ListView::RowHeight() const {
  const int text = LineHeight(font());
  return Boxes ? std::max(text, kBox + 2) : text;
}

QRect ListView::RowsPlace() const {
  const int bar = bar_->isHidden() ? 0 : bar_->width();
  return rect().adjusted(kFrame, kFrame, -kFrame - bar, -kFrame);
}

int ListView::BoxWidth() const {
  return Boxes ? kBox + 2 * kIndent : 0;
}

long ListView::RowsInView() const {
  return std::max(1, (height() - 2 * kFrame) / RowHeight());
}

long ListView::RowAt(const QPoint& place) const {
  const QRect rows = RowsPlace();
  if (place.y() < rows.top() || place.y() > rows.bottom()) return -1;
  const long row = TopRow() + (place.y() - rows.top()) / RowHeight();
  return row < Count() ? row : -1;
}

void ListView::RowsChanged() {
  if (stale_) return;
  stale_ = true;
  QMetaObject::invokeMethod(
      this, [this] { FitScrollBar(); }, Qt::QueuedConnection);
}

void ListView::FitScrollBar() {
  stale_ = false;
  const QSignalBlocker quiet(bar_);
  const long last_top = LastTop();
  const int width = bar_->sizeHint().width();
  bar_->setVisible(last_top > 0);
  bar_->setGeometry(this->width() - kFrame - width, kFrame, width, height() - 2 * kFrame);
  bar_->setRange(0, static_cast<int>(last_top));
  bar_->setPageStep(static_cast<int>(RowsInView()));
  KeepInRange();
  bar_->setValue(static_cast<int>(TopRow()));
  update();
}

void ListView::changeEvent(QEvent* event) {
  if (event->type() == QEvent::FontChange) FitScrollBar();
  QWidget::changeEvent(event);
}

void ListView::paintEvent(QPaintEvent*) {
  if (stale_) FitScrollBar();
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(isEnabled() ? QPalette::Normal : QPalette::Disabled, QPalette::Base));
  PaintSunkenFrame(painter, rect());
  const QRect rows = RowsPlace();
  painter.setClipRect(rows);
  const long end = std::min(Count(), TopRow() + RowsInView() + 1);
  for (long row = TopRow(); row < end; ++row) {
    const int y = rows.top() + static_cast<int>(row - TopRow()) * RowHeight();
    PaintRow(painter, row, {rows.left(), y, rows.width(), RowHeight()});
  }
}

void ListView::PaintRow(QPainter& painter, long row, const QRect& place) {
  const auto group = isEnabled() ? QPalette::Normal : QPalette::Disabled;
  const bool selected = IsShownSelected(row);
  const QRect text = place.adjusted(BoxWidth(), 0, 0, 0);
  if (selected) painter.fillRect(text, palette().color(group, QPalette::Highlight));
  if (Boxes) {
    QStyleOptionButton box;
    box.initFrom(this);
    box.rect = QRect(place.left() + kIndent, place.top() + (place.height() - kBox) / 2, kBox, kBox);
    box.state |= IsMarked(row) ? QStyle::State_On : QStyle::State_Off;
    style()->drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &box, &painter, this);
  }
  painter.setPen(palette().color(group, selected ? QPalette::HighlightedText : QPalette::Text));
  const std::string& bytes = list_->Rows().At(row).text;
  painter.drawText(text.adjusted(kIndent, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                   ShownText(std::string_view(bytes).substr(0, kShownBytes)));
  if (Many() && hasFocus() && row == list_->ListIndex()) {
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.rect = text;
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
  }
}

void ListView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) Press(RowAt(event->position().toPoint()));
}

// The second of two quick clicks chooses nothing, but it ticks.
void ListView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (ToggleOnClick || IsOnBox(event->position().toPoint())) mousePressEvent(event);
}

void ListView::mouseMoveEvent(QMouseEvent* event) {
  if (event->buttons() & Qt::LeftButton) DragTo(RowAt(event->position().toPoint()));
}

void ListView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) Release(IsOnBox(event->position().toPoint()), ShiftOf(event->modifiers()));
}

void ListView::keyPressEvent(QKeyEvent* event) {
  const int shift = ShiftOf(event->modifiers());
  if (KeyDown(KeyCodeOf(*event), shift)) return;
  const bool types = !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
  if (!types || !Typed(BytesOf(event->text()), shift)) event->ignore();
}

void ListView::wheelEvent(QWheelEvent* event) {
  QApplication::sendEvent(bar_, event);
}

}  // namespace corvane::toolkit_qt
