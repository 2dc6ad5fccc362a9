#include "toolkit_qt/toolkit.h"

#include <QApplication>
#include <QCursor>
#include <QWindow>

#include "toolkit_qt/fonts.h"
#include "toolkit_qt/form.h"
#include "toolkit_qt/menu.h"
#include "toolkit_qt/peer.h"
#include "toolkit_qt/peers.h"
#include "toolkit_qt/units.h"

namespace corvane::toolkit_qt {
namespace {

template <class Kind>
Kind& As(forms::Control& control) {
  return dynamic_cast<Kind&>(control);
}

}  // namespace

QtToolkit::QtToolkit() {
  QApplication::setStyle("Fusion");
  NameSubstitutes();
  QObject::connect(qApp, &QGuiApplication::focusWindowChanged, &context_, [this](QWindow* window) {
    if (!window || IsByCode()) return;
    for (forms::Form* form : ShownForms()) {
      const QWidget* shown = WindowOf(*form);
      if (!shown || shown->windowHandle() != window) continue;
      Guard([form] { form->UserActivate(true); });
      return;
    }
  });
}

std::unique_ptr<forms::FormPeer> QtToolkit::NewFormPeer(forms::Form& form) {
  return std::make_unique<FormWindowPeer>(*this, form);
}

std::unique_ptr<forms::Peer> QtToolkit::NewPeer(forms::Control& control) {
  using forms::ControlKind;
  switch (control.Kind()) {
    case ControlKind::Label:
      return NewLabelPeer(*this, As<forms::Label>(control));
    case ControlKind::TextBox:
      return NewTextBoxPeer(*this, As<forms::TextBox>(control));
    case ControlKind::CommandButton:
      return NewCommandButtonPeer(*this, As<forms::CommandButton>(control));
    case ControlKind::CheckBox:
      return NewCheckBoxPeer(*this, As<forms::CheckBox>(control));
    case ControlKind::OptionButton:
      return NewOptionButtonPeer(*this, As<forms::OptionButton>(control));
    case ControlKind::Frame:
      return NewFramePeer(*this, As<forms::Frame>(control));
    case ControlKind::ListBox:
      return NewListBoxPeer(*this, As<forms::ListBox>(control));
    case ControlKind::ComboBox:
      return NewComboBoxPeer(*this, As<forms::ComboBox>(control));
    case ControlKind::PictureBox:
      return NewPictureBoxPeer(*this, As<forms::PictureBox>(control));
    case ControlKind::Image:
      return NewImagePeer(*this, As<forms::Image>(control));
    case ControlKind::Line:
      return NewLinePeer(*this, As<forms::Line>(control));
    case ControlKind::Shape:
      return NewShapePeer(*this, As<forms::Shape>(control));
    case ControlKind::HScrollBar:
    case ControlKind::VScrollBar:
      return NewScrollBarPeer(*this, As<forms::ScrollBar>(control));
    case ControlKind::Timer:
      return NewTimerPeer(*this, As<forms::Timer>(control));
    case ControlKind::Toolbar:
      return NewToolbarPeer(*this, As<forms::Toolbar>(control));
    case ControlKind::Menu:
      return NewMenuPeer(As<forms::Menu>(control));
    case ControlKind::UserControl:
      return NewUserControlPeer(*this, As<forms::UserControl>(control));
    case ControlKind::Form:
    case ControlKind::ImageList:
      return nullptr;
  }
  return nullptr;
}

QWidget* QtToolkit::WindowOf(const forms::Form& form) const {
  auto* peer = dynamic_cast<FormWindowPeer*>(form.Peer());
  return peer ? peer->Window() : nullptr;
}

QWidget* QtToolkit::WidgetOf(const forms::Control& control) const {
  auto* peer = dynamic_cast<WidgetPeer*>(control.Peer());
  return peer ? peer->Widget() : nullptr;
}

forms::Rect QtToolkit::FrameOf(const forms::Form& form) {
  return FrameOfForm(form);
}

void QtToolkit::RunModal(forms::Form& form) {
  if (auto* peer = dynamic_cast<FormWindowPeer*>(form.Peer())) peer->RunModalLoop();
}

void QtToolkit::DoEvents() {
  QCoreApplication::processEvents();
}

void QtToolkit::PopupMenu(forms::Form& form, forms::Menu& menu, forms::Twips x, forms::Twips y) {
  auto* peer = dynamic_cast<FormWindowPeer*>(form.Peer());
  if (!peer || !peer->Surface()) return;
  forms::Menu* chosen = peer->Menus().ChooseFrom(menu, peer->Surface()->mapToGlobal(QPoint(Pixels(x), Pixels(y))));
  if (chosen) Guard([&] { chosen->UserClick(); });
}

forms::Control* QtToolkit::ControlUnderPointer() {
  return ControlShownBy(QApplication::widgetAt(QCursor::pos()));
}

double QtToolkit::ScaleFor(const QWidget& widget) const {
  return picture_scale_ > 0 ? picture_scale_ : widget.devicePixelRatioF();
}

}  // namespace corvane::toolkit_qt
