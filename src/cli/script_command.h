// `corvane script --check`: what a script hardly does as its author meant.
#pragma once

#include <iosfwd>
#include <string>

#include "cli/run_script.h"

namespace corvane::cli {

// Lists the places of a script, and of what it includes, where the odd rules of its language do what its author hardly
// meant, a line each on [out]: "file:line: what it does; write: how to write it". [path] is the file's name as the user
// gave it. Returns 1 if there is any; also, with a line on [errors], where the text has no code and no dialog, or a
// file cannot be included; else 0.
int CheckScriptFile(const std::string& file_bytes, const std::string& path, const ScriptOptions& options,
                    std::ostream& out, std::ostream& errors);

}  // namespace corvane::cli
