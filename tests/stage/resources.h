// Resources: what this process holds of the system.
#pragma once

#include <string>

namespace corvane::stage {

struct Resources {
  long user = 0;         // windows, menus, icons and cursors, accelerator tables
  long gdi = 0;          // device contexts, bitmaps, brushes, pens, fonts, regions
  long kernel = 0;       // files, events, threads, keys
  long long heap = 0;    // bytes in use
  long long memory = 0;  // private bytes

  static Resources Now();
  std::string Text() const;
};

}  // namespace corvane::stage
