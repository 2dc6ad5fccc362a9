// Paths and messages about files, as the user knows them, in UTF-8.
#pragma once

#include <iosfwd>
#include <string>
#include <string_view>

#include "environment/environment.h"

namespace corvane::cli {

// Text that may hold names of this machine: UTF-8 where it is valid, else the code page.
std::string ShownName(std::string_view bytes);
// "Z:\a\b" is how the logic calls /a/b. Other paths stay.
std::string ShownPath(const std::string& path);
// What [error] says beyond the name of the file itself.
std::string ReasonOf(const std::string& native, const host::Error& error);

// "file:line: reason" and a line end.
void Tell(std::ostream& errors, const environment::Problem& problem);
// The same for a file of this machine that could not be opened.
void TellFailure(std::ostream& errors, const std::string& native, const host::Error& error);

}  // namespace corvane::cli
