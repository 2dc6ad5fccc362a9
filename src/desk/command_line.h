// The command line of `corvane`: which command with which options, and how a command ends.
#pragma once

#include <iosfwd>

namespace corvane::desk {

// 0 done, 1 a problem of the input (a line each on [errors]: file, line, what is wrong) or an output that cannot be
// written, 2 wrong usage; `check` also 3.
int RunCommandLine(int argc, char** argv, std::ostream& out, std::ostream& errors);

}  // namespace corvane::desk
