// The wheel of the mouse, and the scroll bars it turns.
#pragma once

#include <algorithm>
#include <cstdlib>

#include "forms/scroll_bar.h"
#include "toolkit_win32/win.h"

namespace corvane::toolkit_win32 {

inline bool IsWheel(UINT message) {
  return message == WM_MOUSEWHEEL || message == WM_MOUSEHWHEEL;
}

// Gathers turns of less than a notch.
class Wheel {
 public:
  // Notches towards the end of what is scrolled: down, or to the right.
  int NotchesOf(UINT message, WPARAM turn) {
    turned_ += message == WM_MOUSEHWHEEL ? GET_WHEEL_DELTA_WPARAM(turn) : -GET_WHEEL_DELTA_WPARAM(turn);
    const int notches = turned_ / WHEEL_DELTA;
    turned_ -= notches * WHEEL_DELTA;
    return notches;
  }

 private:
  int turned_ = 0;
};

// Where so many notches take the bar. The user chooses how many lines a notch is, or a page.
inline long ValueAfter(const forms::ScrollBar& bar, int notches) {
  UINT lines = 3;
  SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
  const long step = lines == WHEEL_PAGESCROLL ? bar.LargeChange() : static_cast<long>(lines) * bar.SmallChange();
  const long way = bar.Min() <= bar.Max() ? notches : -notches;
  return std::clamp(bar.Value() + way * step, std::min(bar.Min(), bar.Max()), std::max(bar.Min(), bar.Max()));
}

}  // namespace corvane::toolkit_win32
