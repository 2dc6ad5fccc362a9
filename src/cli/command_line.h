// The command line of Corvane: which command with which options, and how a command ends.
#pragma once

#include <iosfwd>

#include "cli/desk_options.h"

namespace corvane::cli {

// What a command line without a command does. Returns the exit status.
using OpenDesk = int (*)(const DeskOptions& options, int argc, char** argv, std::ostream& out, std::ostream& errors);

// 0 done, 1 a problem of the input (a line each on [errors]: file, line, what is wrong) or an output that cannot be
// written, 2 wrong usage; `check` also 3.
int RunCommandLine(int argc, char** argv, OpenDesk open_desk, std::ostream& out, std::ostream& errors);

}  // namespace corvane::cli
