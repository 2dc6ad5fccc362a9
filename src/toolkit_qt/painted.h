// A widget that its peer paints, and what several kinds paint alike.
#pragma once

#include <QPainter>
#include <QWidget>
#include <functional>

#include "forms/types.h"
#include "toolkit_qt/peer.h"

namespace corvane::toolkit_qt {

class PaintedWidget : public QWidget {
 public:
  explicit PaintedWidget(QWidget* parent) : QWidget(parent) {}
  std::function<void(QPainter&)> OnPaint;

 protected:
  void paintEvent(QPaintEvent*) override;
  // Mouse events end here: the container behind is another control.
  void mousePressEvent(QMouseEvent*) override {}
  void mouseReleaseEvent(QMouseEvent*) override {}
  void mouseDoubleClickEvent(QMouseEvent*) override {}
  void mouseMoveEvent(QMouseEvent*) override {}
};

// Logical pixels that a sunken border takes on each side.
inline constexpr int kBorder = 2;
void PaintSunkenFrame(QPainter& painter, const QRect& place);

// At the resolution of what [painter] paints on.
void PaintShownPicture(QPainter& painter, const forms::PictureRef& picture, const QRect& place);

}  // namespace corvane::toolkit_qt
