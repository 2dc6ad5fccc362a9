// ScrollBarView: Qt's scroll bar with a flat face. The style's own is painted with gradients along its whole length
// each time its value changes, which costs as much as the code beside it.
#pragma once

#include <QScrollBar>
#include <QStyle>

namespace corvane::toolkit_qt {

class ScrollBarView : public QScrollBar {
 public:
  using QScrollBar::QScrollBar;

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  void PaintButton(QPainter& painter, const QStyleOptionSlider& option, QStyle::SubControl part) const;
};

}  // namespace corvane::toolkit_qt
