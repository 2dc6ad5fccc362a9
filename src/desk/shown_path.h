// Paths and messages about files, as the user knows them.
#pragma once

#include <QString>
#include <iosfwd>
#include <string>
#include <string_view>

#include "environment/environment.h"

namespace corvane::desk {

// Text that may hold names of this machine: UTF-8 where it is valid, else the code page.
QString ShownName(std::string_view bytes);
// "Z:\a\b" is how the logic calls /a/b. Other paths stay.
QString ShownPath(const std::string& path);

// "file:line: reason" and a line end, as UTF-8.
void Tell(std::ostream& errors, const environment::Problem& problem);
// The same for a file of this machine that could not be opened.
void TellFailure(std::ostream& errors, const std::string& native, const host::Error& error);
// What [error] says beyond the name of the file itself.
QString ReasonOf(const std::string& native, const host::Error& error);

}  // namespace corvane::desk
