// `corvane format`: the formatter's indent over a module, or over all modules of a project or group.
#pragma once

#include <iosfwd>
#include <string>

#include "host/services.h"

namespace corvane::cli {

struct FormatOptions {
  int code_page = 0;
  bool check = false;  // tell which files would change
  bool write = false;  // change them
};

// [path] is one of this machine: a .vbp or .vbg, else a module. Without an option the formatted module goes to [out],
// of a project what would change, as a difference that tools apply. Returns 0; 1 where --check finds something to
// change, or where something was not understood or not written, with a line on [errors]: such a file stays as it is.
int RunFormatCommand(const std::string& path, const FormatOptions& options, host::Files& files, std::ostream& out,
                     std::ostream& errors);

}  // namespace corvane::cli
