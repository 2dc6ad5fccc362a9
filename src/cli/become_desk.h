// The desk is a program of its own beside this one, `corvane-desk`: who asks for a list does not wait for a toolkit.
#pragma once

#include <iosfwd>

#include "cli/desk_options.h"

namespace corvane::cli {

// Becomes that program with the same arguments, of which it reads the options anew. Returns only when there is none: 1,
// with a line on [errors].
int BecomeDesk(const DeskOptions& options, int argc, char** argv, std::ostream& out, std::ostream& errors);

}  // namespace corvane::cli
