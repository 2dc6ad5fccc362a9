// RunDesk: the desk as a program: its windows until the last one is closed, or pictures of them.
#pragma once

#include <iosfwd>

#include "cli/desk_options.h"

namespace corvane::desk {

// The exit status. Without a display only the two kinds of pictures work; the other way is told on [errors].
int RunDesk(const cli::DeskOptions& options, int argc, char** argv, std::ostream& out, std::ostream& errors);

}  // namespace corvane::desk
