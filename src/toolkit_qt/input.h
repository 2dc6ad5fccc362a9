// Input: what Qt tells the widgets of a control, reported to the control as the user's acts. It also is the context of
// a peer's connections: with it they end, whatever Qt still has to tell.
#pragma once

#include <QKeyEvent>
#include <QMouseEvent>
#include <QObject>
#include <QWidget>

#include "forms/control.h"

namespace corvane::toolkit_qt {

class QtToolkit;

class Input : public QObject {
 public:
  Input(QtToolkit& toolkit, forms::Control& control) : toolkit_(toolkit), control_(control) {}

  enum class Mouse {
    Untold,       // the kind has no mouse events
    ActsLast,     // the control is told of the button, then Qt acts
    ReleasesLast  // what Qt makes of the release (a click, a selection) is reported before MouseUp
  };
  // [base]: the widget that positions are told in.
  void Watch(QWidget& widget, QWidget& base, Mouse mouse);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool KeyPressed(const QKeyEvent& event);
  void KeyReleased(const QKeyEvent& event);
  bool MousePressed(const QMouseEvent& event, const QWidget& widget);
  bool MouseReleased(QMouseEvent& event, QWidget& widget);
  void MouseMoved(const QMouseEvent& event, const QWidget& widget);
  void FocusCame();
  // Runs [act]; false when the control lost its widgets in it or it failed: then Qt does nothing more.
  bool Tell(const std::function<void()>& act);
  struct Place {
    forms::Twips x, y;
  };
  Place PlaceOf(const QMouseEvent& event, const QWidget& widget) const;

  QtToolkit& toolkit_;
  forms::Control& control_;
  QWidget* base_ = nullptr;
  int held_ = 0;          // the buttons whose press was told and whose release was not
  bool refused_ = false;  // the focus that came last was not let go by who had it
  Mouse mouse_ = Mouse::Untold;
};

}  // namespace corvane::toolkit_qt
