// ListView: the rows of a list control, read from the control each time they are painted. It keeps no copy of them, so
// its cost is that of the rows in view, whatever the length of the list.
#pragma once

#include <QScrollBar>
#include <QWidget>

#include "forms/list_rows.h"

namespace corvane::toolkit_qt {

class ListView : public QWidget, public forms::ListRows {
 public:
  ListView(forms::ListControl& list, QWidget* parent);

  // Rows came, went or changed: shown at the next turn of the loop.
  void RowsChanged();
  int RowHeight() const;
  long RowsInView() const override;
  void FitScrollBar() override;
  void Repaint() override { update(); }
  long RowAt(const QPoint& place) const;  // -1 outside the rows

 protected:
  void paintEvent(QPaintEvent*) override;
  void resizeEvent(QResizeEvent*) override { FitScrollBar(); }
  void changeEvent(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  QRect RowsPlace() const;
  int BoxWidth() const;
  bool IsOnBox(const QPoint& place) const { return Boxes && place.x() < RowsPlace().left() + BoxWidth(); }
  void PaintRow(QPainter& painter, long row, const QRect& place);

  QScrollBar* bar_;
  bool stale_ = false;
};

}  // namespace corvane::toolkit_qt
