#include "toolkit_qt/list_view.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyleOptionButton>
#include <algorithm>

#include "toolkit_qt/fonts.h"
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
    : QWidget(parent), list_(&list), bar_(new ScrollBarView(Qt::Vertical, this)) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  bar_->setFocusPolicy(Qt::NoFocus);
  bar_->setCursor(Qt::ArrowCursor);
  bar_->setContextMenuPolicy(Qt::NoContextMenu);
  connect(bar_, &QScrollBar::valueChanged, this, [this](int value) {
    top_ = value;
    update();
    if (OnScroll) OnScroll(top_);
  });
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
  const long row = top_ + (place.y() - rows.top()) / RowHeight();
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
  const long last_top = std::max(0L, Count() - RowsInView());
  const int width = bar_->sizeHint().width();
  bar_->setVisible(last_top > 0);
  bar_->setGeometry(this->width() - kFrame - width, kFrame, width, height() - 2 * kFrame);
  bar_->setRange(0, static_cast<int>(last_top));
  bar_->setPageStep(static_cast<int>(RowsInView()));
  top_ = std::clamp(top_, 0L, last_top);
  bar_->setValue(static_cast<int>(top_));
  update();
}

void ListView::ScrollTo(long row) {
  top_ = std::max(0L, row);
  FitScrollBar();
}

void ListView::Follow(long row) {
  if (row < 0) return;
  if (row < top_) return ScrollTo(row);
  if (row >= top_ + RowsInView()) ScrollTo(row - RowsInView() + 1);
}

void ListView::changeEvent(QEvent* event) {
  if (event->type() == QEvent::FontChange) FitScrollBar();
  QWidget::changeEvent(event);
}

bool ListView::IsShownSelected(long row) const {
  const bool many = ToggleOnClick || Extends;
  if (many) return IsMarked(row);
  return row == (pressed_ >= 0 ? pressed_ : list_->ListIndex());
}

void ListView::paintEvent(QPaintEvent*) {
  if (stale_) FitScrollBar();
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(isEnabled() ? QPalette::Normal : QPalette::Disabled, QPalette::Base));
  PaintSunkenFrame(painter, rect());
  const QRect rows = RowsPlace();
  painter.setClipRect(rows);
  const long end = std::min(Count(), top_ + RowsInView() + 1);
  for (long row = top_; row < end; ++row) {
    const int y = rows.top() + static_cast<int>(row - top_) * RowHeight();
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
  const bool many = ToggleOnClick || Extends;
  if (many && hasFocus() && row == list_->ListIndex()) {
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.rect = text;
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
  }
}

void ListView::mousePressEvent(QMouseEvent* event) {
  if (!list_ || event->button() != Qt::LeftButton) return;
  pressed_ = RowAt(event->position().toPoint());
  update();
}

// The second of two quick clicks chooses nothing, but it ticks.
void ListView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (ToggleOnClick || IsOnBox(event->position().toPoint())) mousePressEvent(event);
}

void ListView::mouseMoveEvent(QMouseEvent* event) {
  if (!list_ || pressed_ < 0 || !(event->buttons() & Qt::LeftButton)) return;
  const long row = RowAt(event->position().toPoint());
  if (row < 0 || row == pressed_) return;
  pressed_ = row;
  update();
}

void ListView::mouseReleaseEvent(QMouseEvent* event) {
  const long row = std::exchange(pressed_, -1);
  update();
  if (!list_ || row < 0 || event->button() != Qt::LeftButton) return;
  const bool on_box = IsOnBox(event->position().toPoint());
  const auto held = event->modifiers();
  if (on_box || ToggleOnClick || (Extends && (held & Qt::ControlModifier))) {
    OnToggle(row);
  } else if (Extends && (held & Qt::ShiftModifier)) {
    OnExtend(row);
  } else {
    OnChoose(row);
  }
}

long ListView::RowBeginningWith(QChar letter) const {
  const long count = Count(), from = list_->ListIndex();
  for (long step = 1; step <= count; ++step) {
    const long row = (from + step + count) % count;
    const QString text = ShownText(std::string_view(list_->Rows().At(row).text).substr(0, 2));
    if (!text.isEmpty() && text[0].toUpper() == letter.toUpper()) return row;
  }
  return -1;
}

long ListView::RowOfKey(int key) const {
  const long now = list_->ListIndex(), page = std::max(1L, RowsInView() - 1), last = Count() - 1;
  switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Left:
      return std::max(0L, now - 1);
    case Qt::Key_Down:
    case Qt::Key_Right:
      return std::min(last, now + 1);
    case Qt::Key_PageUp:
      return std::max(0L, now - page);
    case Qt::Key_PageDown:
      return std::min(last, now + page);
    case Qt::Key_Home:
      return 0;
    case Qt::Key_End:
      return last;
    default:
      return -1;
  }
}

void ListView::keyPressEvent(QKeyEvent* event) {
  if (!list_ || Count() == 0) return event->ignore();
  long row = RowOfKey(event->key());
  if (event->key() == Qt::Key_Space && (Boxes || ToggleOnClick || Extends)) {
    if (list_->ListIndex() >= 0) OnToggle(list_->ListIndex());
    return;
  }
  const bool types = !event->text().isEmpty() && event->text()[0].isPrint() &&
                     !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
  if (row < 0 && types) row = RowBeginningWith(event->text()[0]);
  if (row < 0) return event->ignore();
  Follow(row);
  if (row == list_->ListIndex()) return;
  (event->modifiers() & Qt::ShiftModifier) && Extends ? OnExtend(row) : OnChoose(row);
}

void ListView::wheelEvent(QWheelEvent* event) {
  QApplication::sendEvent(bar_, event);
}

}  // namespace corvane::toolkit_qt
