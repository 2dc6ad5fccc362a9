// A window on Qt's offscreen platform, and what a user does to it.
#pragma once

#include <QApplication>
#include <QWidget>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "forms/controls.h"
#include "tests/toolkit_qt/hand.h"
#include "toolkit_qt/toolkit.h"

namespace corvane::toolkit_qt {

class WindowTest : public ::testing::Test {
 protected:
  WindowTest() {
    toolkit.OnFault = [this](const std::string& what) { faults.push_back(what); };
    form.Move(300, 300, 6000, 4500);
  }
  ~WindowTest() override {
    form.Unload();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  void Show() {
    form.Show();
    QCoreApplication::processEvents();
  }

  QWidget& WidgetOf(const forms::Control& control) { return *toolkit.WidgetOf(control); }

  void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString& text = {}) {
    SendKey(toolkit.WindowOf(form), key, modifiers, text);
  }
  void Type(const QString& text) { SendText(toolkit.WindowOf(form), text); }
  void Click(QWidget& widget, QPoint place, Qt::MouseButton button = Qt::LeftButton,
             Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    SendClick(widget, place, button, modifiers);
  }
  void Click(QWidget& widget) { Click(widget, widget.rect().center()); }

  std::vector<std::string> faults;
  std::vector<std::string> told;  // what handlers noted
  QtToolkit toolkit;
  forms::Form form{toolkit, "frmTest"};
};

}  // namespace corvane::toolkit_qt
