// What the command line asks of the desk.
#pragma once

#include <string>

namespace corvane::cli {

struct DeskOptions {
  std::string project;      // empty: an empty desk
  int code_page = 0;        // 0: guessed
  int connect_mode = -1;    // -1: as the Add-In Manager says
  bool explorer = false;    // opened at once
  std::string tour;         // folder for the pictures of the tour; empty: windows
  std::string screenshots;  // folder for pictures of all windows
  std::string suffix;       // of the names of these pictures
};

}  // namespace corvane::cli
