#include "toolkit_qt/scroll_bar_view.h"

#include <QPainter>
#include <QStyleOptionSlider>

namespace corvane::toolkit_qt {

void ScrollBarView::paintEvent(QPaintEvent*) {
  QStyleOptionSlider option;
  initStyleOption(&option);
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(QPalette::Window).darker(106));
  const bool moves = isEnabled() && minimum() < maximum();
  if (moves) PaintButton(painter, option, QStyle::SC_ScrollBarSlider);
  PaintButton(painter, option, QStyle::SC_ScrollBarSubLine);
  PaintButton(painter, option, QStyle::SC_ScrollBarAddLine);
}

void ScrollBarView::PaintButton(QPainter& painter, const QStyleOptionSlider& option, QStyle::SubControl part) const {
  const QRect place = style()->subControlRect(QStyle::CC_ScrollBar, &option, part, this);
  const bool used =
      (option.activeSubControls & part) && (option.state & (QStyle::State_Sunken | QStyle::State_MouseOver));
  const QColor face = palette().color(QPalette::Button), edge = palette().color(QPalette::Mid);
  painter.fillRect(place, edge);
  painter.fillRect(place.adjusted(1, 1, -1, -1), used ? face.darker(108) : face.lighter(103));
  if (part == QStyle::SC_ScrollBarSlider) return;
  const bool back = (part == QStyle::SC_ScrollBarSubLine) != option.upsideDown;
  QStyleOption arrow;
  arrow.initFrom(this);
  constexpr int kArrow = 8;
  arrow.rect = QRect(QPoint(), QSize(kArrow, kArrow));
  arrow.rect.moveCenter(place.center());
  const auto shape = option.orientation == Qt::Horizontal
                         ? (back ? QStyle::PE_IndicatorArrowLeft : QStyle::PE_IndicatorArrowRight)
                         : (back ? QStyle::PE_IndicatorArrowUp : QStyle::PE_IndicatorArrowDown);
  style()->drawPrimitive(shape, &arrow, &painter, this);
}

}  // namespace corvane::toolkit_qt
