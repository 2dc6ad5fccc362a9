// `corvane check`: reads a project or group whole, writes every file of it to memory and compares.
#pragma once

#include <iosfwd>
#include <string>

#include "host/services.h"

namespace corvane::cli {

enum CheckStatus : int { kUnderstood = 0, kNotUnderstood = 1, kBytesWouldChange = 3 };

// [path] is one of this machine; [code_page] 0 lets it be guessed. What was not understood goes to [errors] as
// "file:line: reason", a line each, and so does a file that would be written other than it was read; the last line on
// [out] counts the files.
CheckStatus RunCheckCommand(const std::string& path, int code_page, host::Files& files, std::ostream& out,
                            std::ostream& errors);

}  // namespace corvane::cli
