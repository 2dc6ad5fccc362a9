// RunDesk: the desk as a program: its windows until the last one is closed, or pictures of them.
#pragma once

#include <iosfwd>
#include <string>

namespace corvane::desk {

struct RunOptions {
  std::string project;      // empty: an empty desk
  int code_page = 0;        // 0: guessed
  int connect_mode = -1;    // -1: as the Add-In Manager says
  bool explorer = false;    // opened at once
  std::string tour;         // folder for the pictures of the tour; empty: windows
  std::string screenshots;  // folder for pictures of all windows
  std::string suffix;       // of the names of these pictures
};

// The exit status. Without a display only the two kinds of pictures work; the other way is told on [errors].
int RunDesk(const RunOptions& options, int argc, char** argv, std::ostream& out, std::ostream& errors);

}  // namespace corvane::desk
