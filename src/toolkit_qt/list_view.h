// ListView: the rows of a list control, read from the control each time they are painted. It keeps no copy of them, so
// its cost is that of the rows in view, whatever the length of the list.
#pragma once

#include <QScrollBar>
#include <QWidget>
#include <functional>

#include "forms/lists.h"

namespace corvane::toolkit_qt {

class ListView : public QWidget {
 public:
  ListView(forms::ListControl& list, QWidget* parent);
  // The control is gone or loses its widgets: nothing is read or told any more.
  void Leave() { list_ = nullptr; }

  // What the rows carry besides their text.
  bool Boxes = false;
  std::function<bool(long row)> IsMarked = [](long) { return false; };  // ticked, or selected among many

  // The user's acts.
  std::function<void(long row)> OnChoose;
  std::function<void(long row)> OnToggle;
  std::function<void(long row)> OnExtend;  // Shift
  std::function<void(long top_row)> OnScroll;
  bool ToggleOnClick = false;  // simple multi-selection
  bool Extends = false;        // extended multi-selection

  // Rows came, went or changed: shown at the next turn of the loop.
  void RowsChanged();
  void Follow(long row);  // scrolls it into view
  void ScrollTo(long row);
  long TopRow() const { return top_; }
  int RowHeight() const;
  long RowsInView() const;
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
  long Count() const { return list_ ? list_->ListCount() : 0; }
  QRect RowsPlace() const;
  int BoxWidth() const;
  bool IsOnBox(const QPoint& place) const { return Boxes && place.x() < RowsPlace().left() + BoxWidth(); }
  void FitScrollBar();
  void PaintRow(QPainter& painter, long row, const QRect& place);
  bool IsShownSelected(long row) const;
  long RowOfKey(int key) const;  // -1 when the key moves nothing
  long RowBeginningWith(QChar letter) const;

  forms::ListControl* list_;
  QScrollBar* bar_;
  long top_ = 0;
  long pressed_ = -1;  // the row under the held button
  bool stale_ = false;
};

}  // namespace corvane::toolkit_qt
