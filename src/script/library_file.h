// LibCode.txt as a run reads it: the constants of its {COMMON} section, and its items.
#pragma once

#include <string>
#include <vector>

#include "host/services.h"

namespace corvane::script {

// The lines $NAME=value of the section, names in upper case. Empty where the file or the section cannot be read.
std::vector<std::string> CommonConstants(host::Services& services);

// The lines behind the one that holds [title] at its column 1 or 2, up to the next that begins with "{". Throws what
// reading the file throws.
std::string LibraryItem(const std::string& title, host::Services& services);

}  // namespace corvane::script
