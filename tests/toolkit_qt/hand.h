// The user's hand on Qt's widgets: mouse and keyboard, as Qt's own events.
#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QWidget>

namespace corvane::toolkit_qt {

inline void SendMouse(QWidget& widget, QEvent::Type type, QPoint place, Qt::MouseButton button = Qt::LeftButton,
                      Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  const bool moves = type == QEvent::MouseMove;
  const bool held = !moves && type != QEvent::MouseButtonRelease;
  if (type == QEvent::MouseButtonPress && (widget.focusPolicy() & Qt::ClickFocus)) {
    widget.setFocus(Qt::MouseFocusReason);
  }
  QMouseEvent event(type, place, widget.mapToGlobal(place), moves ? Qt::NoButton : button,
                    held ? Qt::MouseButtons(button) : Qt::MouseButtons(), modifiers);
  QApplication::sendEvent(&widget, &event);
}

inline void SendClick(QWidget& widget, QPoint place, Qt::MouseButton button = Qt::LeftButton,
                      Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  const QPointer<QWidget> target(&widget);
  SendMouse(widget, QEvent::MouseButtonPress, place, button, modifiers);
  if (target) SendMouse(widget, QEvent::MouseButtonRelease, place, button, modifiers);
  QCoreApplication::processEvents();
}

// Down and up again, to what has the focus of [window] at each time.
inline void SendKey(const QPointer<QWidget>& window, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                    const QString& text = {}) {
  for (auto type : {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease}) {
    if (!window) return;
    QWidget* target = window->focusWidget() ? window->focusWidget() : window.data();
    QKeyEvent event(type, key, modifiers, text);
    QApplication::sendEvent(target, &event);
  }
  QCoreApplication::processEvents();
}

inline void SendText(const QPointer<QWidget>& window, const QString& text) {
  for (QChar each : text) SendKey(window, each.toUpper().unicode(), Qt::NoModifier, each);
}

}  // namespace corvane::toolkit_qt
