// DesignerWindow: a form's controls where they stand. The user selects them, moves and sizes them, opens menus and goes
// to their code.
//
// Keys as in the environment: Tab and the arrow keys select the next or the previous control, Ctrl+arrow moves the
// selected ones by a step of the grid, Shift+arrow sizes them.
#pragma once

#include <QScrollArea>
#include <memory>
#include <vector>

#include "desk/designer_layout.h"

namespace corvane::desk {

class DesignerCanvas : public QWidget {
  Q_OBJECT

 public:
  explicit DesignerCanvas(std::shared_ptr<environment::Module> module, QWidget* parent = nullptr);
  void ReadAgain();
  const Layout& LayoutOf() const { return layout_; }
  // Places in LayoutOf().controls, the first selected one first.
  const std::vector<int>& Selected() const { return selected_; }
  void Select(std::vector<int> controls);
  // Where a control is drawn, in the widget; the client area for -1.
  QRectF BoxOf(int control) const;
  QSize sizeHint() const override;

 signals:
  void SelectionChanged();
  void CodeWanted(const QString& object);
  void Told(const QString& message);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool TakeEvent(QEvent* event);
  QPointF Origin() const;  // of the client area
  QRectF TitleBar() const;
  QRectF MenuBar() const;
  std::vector<std::pair<int, QRectF>> MenuTitles() const;
  void PaintFrame(QPainter& painter);
  void PaintGrid(QPainter& painter);
  void PaintInside(QPainter& painter, int container);
  void PaintHandles(QPainter& painter);
  void OpenMenu(int menu, const QPoint& at);
  void FillMenu(class QMenu& shown, int menu);
  void SelectNext(int step);
  // Pixels; only what the property list of a control offers is set.
  void Change(double dx, double dy, double dw, double dh);

  std::shared_ptr<environment::Module> module_;
  Layout layout_;
  std::vector<int> selected_;
  QPointF drag_from_, drag_by_;
  bool dragging_ = false;
};

class DesignerWindow : public QScrollArea {
  Q_OBJECT

 public:
  explicit DesignerWindow(std::shared_ptr<environment::Module> module, QWidget* parent = nullptr);
  const std::shared_ptr<environment::Module>& ModuleOf() const { return module_; }
  DesignerCanvas& Canvas() { return *canvas_; }

 signals:
  void Activated();
  void Closed();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  std::shared_ptr<environment::Module> module_;
  DesignerCanvas* canvas_;
};

}  // namespace corvane::desk
