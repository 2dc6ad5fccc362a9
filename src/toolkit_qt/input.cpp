#include "toolkit_qt/input.h"

#include <QPointer>
#include <utility>

#include "forms/form.h"
#include "toolkit_qt/form.h"
#include "toolkit_qt/keys.h"
#include "toolkit_qt/toolkit.h"
#include "toolkit_qt/units.h"

namespace corvane::toolkit_qt {

namespace {

// A key that a widget leaves alone goes on to what holds it: that one was not meant.
bool HasKeys(const QWidget& widget) {
  return widget.window()->focusWidget() == &widget;
}

}  // namespace

void Input::Watch(QWidget& widget, QWidget& base, Mouse mouse) {
  base_ = &base;
  mouse_ = mouse;
  widget.setMouseTracking(mouse != Mouse::Untold);
  widget.installEventFilter(this);
}

bool Input::eventFilter(QObject* watched, QEvent* event) {
  auto& widget = *static_cast<QWidget*>(watched);
  switch (event->type()) {
    case QEvent::ShortcutOverride:  // keys go the logic's way first
      event->accept();
      return true;
    case QEvent::KeyPress:
      return HasKeys(widget) && KeyPressed(*static_cast<QKeyEvent*>(event));
    case QEvent::KeyRelease:
      if (HasKeys(widget)) KeyReleased(*static_cast<QKeyEvent*>(event));
      return false;
    case QEvent::FocusIn:
      FocusCame();
      return false;
    default:
      break;
  }
  if (mouse_ == Mouse::Untold) return false;
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return MousePressed(*static_cast<QMouseEvent*>(event), widget);
    case QEvent::MouseButtonRelease:
      return MouseReleased(*static_cast<QMouseEvent*>(event), widget);
    case QEvent::MouseMove:
      MouseMoved(*static_cast<QMouseEvent*>(event), widget);
      return false;
    default:
      return false;
  }
}

bool Input::Tell(const std::function<void()>& act) {
  const QPointer<Input> self(this);
  bool done = false;
  toolkit_.Guard([&] {
    act();
    done = true;
  });
  return self && done;
}

bool Input::KeyPressed(const QKeyEvent& event) {
  const int code = KeyCodeOf(event), shift = ShiftOf(event.modifiers()), character = KeyAsciiOf(event);
  const QPointer<Input> self(this);
  bool used = false;
  const bool done = Tell([&] {
    if (code != 0) used = control_.FormOf().UserKey(code, shift);
    if (code != 0 && !used && self) used = OpenMenuByKey(control_.FormOf(), code, shift);
    if (used || !self || character == 0) return;
    used = control_.UserKeyPress(character);
  });
  return used || !done;
}

void Input::KeyReleased(const QKeyEvent& event) {
  if (event.isAutoRepeat()) return;
  if (const int code = KeyCodeOf(event)) Tell([&] { control_.UserKeyUp(code, ShiftOf(event.modifiers())); });
}

bool Input::MousePressed(const QMouseEvent& event, const QWidget& widget) {
  const int button = ButtonOf(event.button());
  if (button == 0) return false;
  if (std::exchange(refused_, false)) return true;
  const Place place = PlaceOf(event, widget);
  const QPointer<Input> self(this);
  bool taken = true;
  held_ |= button;
  const bool done = Tell([&] {
    if (event.type() == QEvent::MouseButtonDblClick && button == forms::vbLeftButton) {
      control_.UserDblClick();
    } else {
      taken = control_.UserMouseDown(button, ShiftOf(event.modifiers()), place.x, place.y);
    }
  });
  if (self && !taken) held_ &= ~button;
  return !done || !taken;
}

bool Input::MouseReleased(QMouseEvent& event, QWidget& widget) {
  const int button = ButtonOf(event.button());
  if (button == 0) return false;
  const Place place = PlaceOf(event, widget);
  const QPointer<Input> self(this);
  const bool told = (held_ & button) != 0;
  held_ &= ~button;
  const bool qt_first = mouse_ == Mouse::ReleasesLast;
  if (qt_first) static_cast<QObject&>(widget).event(&event);
  if (!self) return true;
  const bool alive = !told || Tell([&] { control_.UserMouseUp(button, ShiftOf(event.modifiers()), place.x, place.y); });
  return qt_first || !alive;
}

void Input::MouseMoved(const QMouseEvent& event, const QWidget& widget) {
  const Place place = PlaceOf(event, widget);
  Tell([&] { control_.UserMouseMove(ButtonsOf(event.buttons()), ShiftOf(event.modifiers()), place.x, place.y); });
}

void Input::FocusCame() {
  refused_ = false;
  if (toolkit_.IsByCode() || control_.HasFocus()) return;
  const QPointer<Input> self(this);
  Tell([&] {
    control_.UserFocus();
    if (self) refused_ = control_.CanTakeFocus() && control_.FormOf().IsActiveForm() && !control_.HasFocus();
  });
}

Input::Place Input::PlaceOf(const QMouseEvent& event, const QWidget& widget) const {
  const QPointF place = &widget == base_ ? event.position() : widget.mapTo(base_, event.position());
  return {TwipsOf(place.x()), TwipsOf(place.y())};
}

}  // namespace corvane::toolkit_qt
