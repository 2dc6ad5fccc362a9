#include "desk/designer_window.h"

#include <QCloseEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <algorithm>
#include <cmath>

#include "desk/ansi_text.h"
#include "desk/control_painter.h"
#include "desk/control_values.h"
#include "desk/user_act.h"
#include "forms/types.h"

namespace corvane::desk {

namespace {

// Logical pixels.
constexpr double kMargin = 10, kTitleHeight = 26, kMenuHeight = 24, kMenuPadding = 9, kEdge = 4;
constexpr double kGrid = 8;
constexpr double kHandle = 6;
constexpr double kTwips = 15;
const QColor kTitleColor(0x3D, 0x6A, 0x9E), kHandleColor(0x1D, 0x4F, 0x91), kGridColor(0, 0, 0, 0x38);
const QColor kMdiColor(0x8F, 0x97, 0xA3);

double OnGrid(double pixels) {
  return std::round(pixels / kGrid) * kGrid;
}

// Adds to a number of a control; false where it cannot be set.
bool AddTo(host::Properties& properties, const char* name, double by) {
  if (by == 0) return true;
  return host::PassOverErrors([&] {
    const auto property = properties.Item(std::string(name));
    property->SetValue(runtime::ToNumber(property->Value()) + by);
  });
}

}  // namespace

DesignerCanvas::DesignerCanvas(std::shared_ptr<environment::Module> module, QWidget* parent)
    : QWidget(parent), module_(std::move(module)) {
  setFocusPolicy(Qt::StrongFocus);
  ReadAgain();
}

// What was selected stays so, by name; one that got another name is known by its place.
void DesignerCanvas::ReadAgain() {
  const Layout before = std::exchange(layout_, ReadLayout(*module_));
  const auto& now = layout_.controls;
  const auto place_now = [&](int at) {
    const PlacedControl& was = before.controls[at];
    const auto is_it = [&](const PlacedControl& control) {
      return control.name == was.name && control.index == was.index;
    };
    const auto found = std::find_if(now.begin(), now.end(), is_it);
    if (found != now.end()) return static_cast<int>(found - now.begin());
    return now.size() == before.controls.size() ? at : -1;
  };
  for (int& at : selected_) at = place_now(at);
  std::erase(selected_, -1);
  resize(sizeHint());
  updateGeometry();
  update();
  emit SelectionChanged();
}

void DesignerCanvas::Select(std::vector<int> controls) {
  selected_ = std::move(controls);
  std::vector<long> positions;
  for (const int at : selected_) positions.push_back(layout_.controls[at].position);
  host::PassOverErrors([&] { module_->UserSelectControls(positions); });
  update();
  emit SelectionChanged();
}

QPointF DesignerCanvas::Origin() const {
  const double title = layout_.has_title_bar ? kTitleHeight : 0, menu = layout_.HasMenuBar() ? kMenuHeight : 0;
  return {kMargin + kEdge, kMargin + (title > 0 ? title : kEdge) + menu};
}

QSize DesignerCanvas::sizeHint() const {
  const QPointF corner =
      Origin() + QPointF(layout_.client.width() + kEdge + kMargin, layout_.client.height() + kEdge + kMargin);
  return {static_cast<int>(std::ceil(corner.x())), static_cast<int>(std::ceil(corner.y()))};
}

QRectF DesignerCanvas::BoxOf(int control) const {
  if (control < 0) return {Origin(), layout_.client};
  return layout_.controls[control].on_form.translated(Origin());
}

QRectF DesignerCanvas::TitleBar() const {
  return {kMargin, kMargin, layout_.client.width() + 2 * kEdge, kTitleHeight};
}

QRectF DesignerCanvas::MenuBar() const {
  const double top = layout_.has_title_bar ? kMargin + kTitleHeight : kMargin + kEdge;
  return {kMargin + kEdge, top, layout_.client.width(), kMenuHeight};
}

std::vector<std::pair<int, QRectF>> DesignerCanvas::MenuTitles() const {
  std::vector<std::pair<int, QRectF>> titles;
  double x = MenuBar().left();
  for (const int at : layout_.Inside(-1)) {
    const PlacedControl& menu = layout_.controls[at];
    if (!menu.IsMenu()) continue;
    const double width =
        fontMetrics().boundingRect(QRect(), Qt::TextShowMnemonic, ToLabel(menu.caption)).width() + 2 * kMenuPadding;
    titles.emplace_back(at, QRectF(x, MenuBar().top(), width, kMenuHeight));
    x += width;
  }
  return titles;
}

void DesignerCanvas::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  PaintFrame(painter);
  painter.save();
  painter.setClipRect(BoxOf(-1));
  PaintGrid(painter);
  PaintInside(painter, -1);
  painter.restore();
  PaintHandles(painter);
}

void DesignerCanvas::PaintFrame(QPainter& painter) {
  const QRectF client = BoxOf(-1);
  const QRectF frame(QPointF(kMargin, kMargin), client.bottomRight() + QPointF(kEdge, kEdge));
  painter.fillRect(frame, palette().button());
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(frame.adjusted(0.5, 0.5, -0.5, -0.5));
  if (layout_.has_title_bar) {
    painter.fillRect(TitleBar(), kTitleColor);
    painter.setPen(Qt::white);
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    painter.drawText(TitleBar().adjusted(8, 0, -8, 0), Qt::AlignVCenter | Qt::AlignLeft, ToLabel(layout_.caption));
    painter.setFont(font());
  }
  if (!layout_.HasMenuBar()) return;
  painter.fillRect(MenuBar(), palette().window());
  painter.save();
  painter.setClipRect(MenuBar());
  for (const auto& [at, box] : MenuTitles()) {
    const bool visible = ControlValues(layout_.controls[at].properties).Flag("Visible", true);
    painter.setPen(palette().color(visible ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    painter.drawText(box, Qt::AlignCenter | Qt::TextShowMnemonic, ToLabel(layout_.controls[at].caption));
  }
  painter.restore();
}

void DesignerCanvas::PaintGrid(QPainter& painter) {
  const QRectF client = BoxOf(-1);
  const ControlValues values(layout_.properties);
  painter.fillRect(client, layout_.is_mdi ? kMdiColor : values.Color("BackColor", forms::kButtonFace));
  if (layout_.is_mdi) return;
  painter.setPen(kGridColor);
  const auto points = [](double length) { return static_cast<int>(std::ceil(length / kGrid)); };
  for (int row = 0; row < points(client.height()); ++row)
    for (int column = 0; column < points(client.width()); ++column)
      painter.drawPoint(QPointF(client.left() + column * kGrid, client.top() + row * kGrid));
}

void DesignerCanvas::PaintInside(QPainter& painter, int container) {
  ControlPainter controls(painter, *style(), palette());
  std::vector<int> order = layout_.FrontToBack(container);
  std::reverse(order.begin(), order.end());
  for (const int at : order) {
    QRectF box = BoxOf(at);
    const bool moves = dragging_ && std::find(selected_.begin(), selected_.end(), at) != selected_.end();
    if (moves) box.translate(drag_by_);
    controls.Paint(layout_.controls[at], box);
    if (layout_.Inside(at).empty()) continue;
    painter.save();
    if (moves) painter.translate(drag_by_);
    painter.setClipRect(ControlPainter::Inner(layout_.controls[at], BoxOf(at)), Qt::IntersectClip);
    PaintInside(painter, at);
    painter.restore();
  }
}

void DesignerCanvas::PaintHandles(QPainter& painter) {
  for (const int at : selected_) {
    if (layout_.controls[at].IsMenu()) continue;
    const QRectF box = BoxOf(at).translated(dragging_ ? drag_by_ : QPointF());
    painter.setPen(Qt::white);
    // The first one leads: the others follow its size, and their handles are hollow.
    painter.setBrush(at == selected_.front() ? QBrush(kHandleColor) : QBrush(Qt::white));
    if (at != selected_.front()) painter.setPen(kHandleColor);
    for (const double x : {box.left(), box.center().x(), box.right()})
      for (const double y : {box.top(), box.center().y(), box.bottom()})
        if (QPointF(x, y) != box.center()) painter.drawRect(QRectF(x - kHandle / 2, y - kHandle / 2, kHandle, kHandle));
  }
}

void DesignerCanvas::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  for (const auto& [at, box] : MenuTitles())
    if (box.contains(event->position())) {
      Select({at});
      return OpenMenu(at, mapToGlobal(box.bottomLeft().toPoint()));
    }
  const int hit = layout_.At(event->position() - Origin());
  if (hit < 0) return Select({});
  const auto place = std::find(selected_.begin(), selected_.end(), hit);
  if (event->modifiers() & (Qt::ControlModifier | Qt::ShiftModifier)) {
    std::vector<int> several = selected_;
    if (place == selected_.end())
      several.push_back(hit);
    else
      several.erase(several.begin() + (place - selected_.begin()));
    return Select(std::move(several));
  }
  if (place == selected_.end()) Select({hit});
  drag_from_ = event->position();
  drag_by_ = {};
}

void DesignerCanvas::mouseMoveEvent(QMouseEvent* event) {
  if (!(event->buttons() & Qt::LeftButton) || selected_.empty() || layout_.controls[selected_.front()].IsMenu()) return;
  const QPointF moved = event->position() - drag_from_;
  if (!dragging_ && moved.manhattanLength() < kGrid / 2) return;
  dragging_ = true;
  drag_by_ = {OnGrid(moved.x()), OnGrid(moved.y())};
  update();
}

void DesignerCanvas::mouseReleaseEvent(QMouseEvent*) {
  if (!std::exchange(dragging_, false)) return;
  Change(drag_by_.x(), drag_by_.y(), 0, 0);
  drag_by_ = {};
}

void DesignerCanvas::mouseDoubleClickEvent(QMouseEvent* event) {
  const int hit = layout_.At(event->position() - Origin());
  emit CodeWanted(hit < 0 ? QString() : ToLabel(layout_.controls[hit].name));
}

bool DesignerCanvas::event(QEvent* event) {
  bool taken = true;
  UserAct([&] { taken = TakeEvent(event); }, [&](const QString& why) { emit Told(why); });
  return taken;
}

bool DesignerCanvas::TakeEvent(QEvent* event) {
  // Tab is a key of the designer, not of the windows around it.
  if (event->type() == QEvent::KeyPress) {
    auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab) {
      SelectNext(key->key() == Qt::Key_Tab ? 1 : -1);
      return true;
    }
  }
  return QWidget::event(event);
}

void DesignerCanvas::keyPressEvent(QKeyEvent* event) {
  double dx = 0, dy = 0;
  switch (event->key()) {
    case Qt::Key_Left:
      dx = -1;
      break;
    case Qt::Key_Right:
      dx = 1;
      break;
    case Qt::Key_Up:
      dy = -1;
      break;
    case Qt::Key_Down:
      dy = 1;
      break;
    case Qt::Key_Escape:
      return Select({});
    default:
      return QWidget::keyPressEvent(event);
  }
  if (event->modifiers() & Qt::ControlModifier)
    Change(dx * kGrid, dy * kGrid, 0, 0);
  else if (event->modifiers() & Qt::ShiftModifier)
    Change(0, 0, dx * kGrid, dy * kGrid);
  else
    SelectNext(dx + dy > 0 ? 1 : -1);
}

void DesignerCanvas::SelectNext(int step) {
  std::vector<int> order;
  for (size_t at = 0; at < layout_.controls.size(); ++at)
    if (!layout_.controls[at].IsMenu()) order.push_back(static_cast<int>(at));
  if (order.empty()) return;
  const auto here = selected_.empty() ? order.end() : std::find(order.begin(), order.end(), selected_.front());
  const long count = static_cast<long>(order.size());
  const long from = here == order.end() ? (step > 0 ? -1 : count) : here - order.begin();
  Select({order[static_cast<size_t>((from + step + count) % count)]});
}

void DesignerCanvas::Change(double dx, double dy, double dw, double dh) {
  bool all = true;
  const std::vector<int> selected = selected_;
  std::vector<PlacedControl> controls;
  controls.reserve(selected.size());
  for (const int at : selected) controls.push_back(layout_.controls[at]);
  for (const PlacedControl& control : controls) {
    if (control.IsMenu()) continue;
    const double x = kTwips / control.unit_x, y = kTwips / control.unit_y;
    host::Properties& properties = *control.properties;
    if (control.class_name == "Line") {
      all &= AddTo(properties, "X1", dx * x) && AddTo(properties, "X2", (dx + dw) * x);
      all &= AddTo(properties, "Y1", dy * y) && AddTo(properties, "Y2", (dy + dh) * y);
      continue;
    }
    all &= AddTo(properties, "Left", dx * x) && AddTo(properties, "Top", dy * y);
    all &= AddTo(properties, "Width", dw * x) && AddTo(properties, "Height", dh * y);
  }
  ReadAgain();
  if (!all) emit Told(tr("Not every selected control could be moved."));
}

void DesignerCanvas::OpenMenu(int menu, const QPoint& at) {
  auto* shown = new QMenu(this);
  shown->setAttribute(Qt::WA_DeleteOnClose);
  FillMenu(*shown, menu);
  if (!shown->isEmpty()) shown->popup(at);
}

void DesignerCanvas::FillMenu(QMenu& shown, int menu) {
  for (const int at : layout_.Inside(menu)) {
    const PlacedControl& item = layout_.controls[at];
    const ControlValues values(item.properties);
    if (item.caption == "-") {
      shown.addSeparator();
    } else if (!layout_.Inside(at).empty()) {
      FillMenu(*shown.addMenu(ToLabel(item.caption)), at);
    } else {
      QAction* action = shown.addAction(ToLabel(item.caption));
      action->setCheckable(values.Flag("Checked"));
      action->setChecked(values.Flag("Checked"));
      ConnectAct(action, &QAction::triggered, this, [this, at] {
        Select({at});
        emit CodeWanted(ToLabel(layout_.controls[at].name));
      });
    }
  }
}

DesignerWindow::DesignerWindow(std::shared_ptr<environment::Module> module, QWidget* parent)
    : QScrollArea(parent), module_(module), canvas_(new DesignerCanvas(std::move(module))) {
  setFrameShape(NoFrame);
  setWidget(canvas_);
  setFocusProxy(canvas_);
  setBackgroundRole(QPalette::Base);
  canvas_->installEventFilter(this);
}

bool DesignerWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == canvas_ && event->type() == QEvent::FocusIn) emit Activated();
  return QScrollArea::eventFilter(watched, event);
}

void DesignerWindow::closeEvent(QCloseEvent* event) {
  event->accept();
  emit Closed();
}

}  // namespace corvane::desk
