// Keys and mouse buttons as Visual Basic numbers them.
#pragma once

#include <QKeyEvent>
#include <QMouseEvent>

namespace corvane::toolkit_qt {

int KeyCodeOf(const QKeyEvent& event);   // 0 for a key without a code
int KeyAsciiOf(const QKeyEvent& event);  // 0 for a key that is no character
int ShiftOf(Qt::KeyboardModifiers modifiers);
int ButtonOf(Qt::MouseButton button);     // 0 for others than the three
int ButtonsOf(Qt::MouseButtons buttons);  // held down together

}  // namespace corvane::toolkit_qt
