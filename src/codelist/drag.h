// Drag: the user's hand drawing a selection, from the press to the release. A direction is 1 down, -1 up, 0 none yet.
#pragma once

#include <cstdint>

#include "forms/types.h"

namespace corvane::codelist {

using forms::Twips;

struct Drag {
  bool running = false;
  uint32_t pressed = 0;    // tick count of the press
  long row = 0, line = 0;  // of the last step
  long direction = 0;      // of the last step
  long scrolling = 0;      // while the pointer is outside the surface
  Twips x = 0;             // of the pointer
};

}  // namespace corvane::codelist
