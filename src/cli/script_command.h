// `corvane script`: scripts on the command line.
#pragma once

#include <iosfwd>
#include <string>

namespace corvane::cli {

// Lists the places of a script where the odd rules of its language do what its author hardly meant, a line each on
// [out]: "file:line: what it does; write: how to write it". [path] is the file's name as the user gave it; [code_page]
// decides case and the way to UTF-8; 0 leaves the one in force. Returns 1 if there is any; also, with a line on
// [errors], where the text has no code to check; else 0.
int CheckScriptFile(const std::string& file_bytes, const std::string& path, int code_page, std::ostream& out,
                    std::ostream& errors);

}  // namespace corvane::cli
