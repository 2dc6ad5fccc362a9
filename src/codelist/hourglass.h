// Hourglass: the pointer that tells that work goes on, for as long as it lives.
#pragma once

#include "host/services.h"

namespace corvane::codelist {

class Hourglass {
 public:
  explicit Hourglass(host::Screen& screen) : screen_(screen), before_(screen.MousePointer()) {
    screen.SetMousePointer(host::vbHourglass);
  }
  ~Hourglass() { screen_.SetMousePointer(before_); }
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;

 private:
  host::Screen& screen_;
  int before_;
};

}  // namespace corvane::codelist
