// PictureBox with its canvas, and UserControl: both are surfaces for other controls.
#include "forms/picture_box.h"

#include <QApplication>
#include <QPaintEvent>
#include <QWheelEvent>

#include "forms/scroll_bar.h"
#include "forms/user_control.h"
#include "toolkit_qt/canvas.h"
#include "toolkit_qt/colors.h"
#include "toolkit_qt/painted.h"
#include "toolkit_qt/peers.h"
#include "toolkit_qt/toolkit.h"
#include "toolkit_qt/units.h"

namespace corvane::toolkit_qt {
namespace {

// The scroll bar that stands beside [control] and works along [way]; null if there is none.
QWidget* ScrollBarBeside(const QtToolkit& toolkit, forms::Control& control, forms::ControlKind way) {
  for (forms::Control* sibling : control.ContainerOf().Controls()) {
    if (sibling->Kind() == way && sibling->IsShown() && sibling->IsActive()) return toolkit.WidgetOf(*sibling);
  }
  return nullptr;
}

class SurfaceWidget : public PaintedWidget {
 public:
  using PaintedWidget::PaintedWidget;
  std::function<void(QPainter&, const QRect&)> OnExpose;
  std::function<QWidget*(bool sideways)> ScrollBar;

 protected:
  void paintEvent(QPaintEvent* event) override {
    if (!OnExpose) return;
    QPainter painter(this);
    OnExpose(painter, event->rect());
  }
  // The wheel scrolls what the control's own scroll bar scrolls.
  void wheelEvent(QWheelEvent* event) override {
    const QPoint turn = event->angleDelta();
    QWidget* bar = ScrollBar ? ScrollBar(std::abs(turn.x()) > std::abs(turn.y())) : nullptr;
    bar ? static_cast<void>(QApplication::sendEvent(bar, event)) : event->ignore();
  }
};

class PictureBoxPeer : public ControlPeer {
 public:
  PictureBoxPeer(QtToolkit& toolkit, forms::PictureBox& box)
      : ControlPeer(toolkit, box),
        box_(box),
        frame_(new PaintedWidget(InsideOf(box.ContainerOf()))),
        surface_(new SurfaceWidget(frame_)),
        canvas_(*surface_) {
    SetWidget(frame_, Input::Mouse::Untold);
    input_->Watch(*surface_, *surface_, Input::Mouse::ActsLast);
    frame_->setFocusProxy(surface_);
    surface_->setFocusPolicy(Qt::ClickFocus);
    surface_->setAttribute(Qt::WA_OpaquePaintEvent);
    frame_->OnPaint = [this](QPainter& painter) {
      if (box_.BorderStyle() == 1) PaintSunkenFrame(painter, frame_->rect());
    };
    surface_->OnExpose = [this](QPainter& painter, const QRect& place) {
      canvas_.ShowOn(painter, place);
      if (canvas_.Scale() != toolkit_.ScaleFor(*surface_)) RedrawForScreen();
    };
    surface_->ScrollBar = [this](bool sideways) {
      return ScrollBarBeside(toolkit_, box_,
                             sideways ? forms::ControlKind::HScrollBar : forms::ControlKind::VScrollBar);
    };
  }
  ~PictureBoxPeer() override {
    if (!Widget()) return;
    frame_->OnPaint = nullptr;
    surface_->OnExpose = nullptr;
    surface_->ScrollBar = nullptr;
  }

  QWidget* Inside() const override { return surface_; }
  forms::Canvas* Canvas() override { return &canvas_; }

 protected:
  QWidget* FocusTarget() const override { return surface_; }
  void ShowPlace() override {
    ControlPeer::ShowPlace();
    const int border = box_.BorderStyle() == 1 ? kBorder : 0;
    surface_->setGeometry(frame_->rect().adjusted(border, border, -border, -border));
    canvas_.Fit(surface_->size(), toolkit_.ScaleFor(*surface_), box_.BackColor());
  }
  void ShowOwn(forms::Property property) override {
    if (property == forms::Property::BorderStyle) ShowPlace();
    if (property != forms::Property::All && property != forms::Property::Picture) return;
    canvas_.SetBackground(box_.Picture());
    canvas_.Clear(box_.BackColor());
  }
  void ShowColors() override {}

 private:
  // The window came to a screen of another resolution.
  void RedrawForScreen() {
    QMetaObject::invokeMethod(
        input_.get(),
        [this] {
          Changed(forms::Property::Width);
          Report([this] { box_.Paint(); });
        },
        Qt::QueuedConnection);
  }
  forms::PictureBox& box_;
  PaintedWidget* frame_;
  SurfaceWidget* surface_;
  QtCanvas canvas_;
};

class UserControlPeer : public ControlPeer {
 public:
  UserControlPeer(QtToolkit& toolkit, forms::UserControl& control) : ControlPeer(toolkit, control) {
    auto* widget = new PaintedWidget(InsideOf(control.ContainerOf()));
    widget->setAutoFillBackground(true);
    SetWidget(widget, Input::Mouse::ActsLast);
  }
};

}  // namespace

NewPeer NewPictureBoxPeer(QtToolkit& toolkit, forms::PictureBox& box) {
  return std::make_unique<PictureBoxPeer>(toolkit, box);
}

NewPeer NewUserControlPeer(QtToolkit& toolkit, forms::UserControl& control) {
  return std::make_unique<UserControlPeer>(toolkit, control);
}

}  // namespace corvane::toolkit_qt
