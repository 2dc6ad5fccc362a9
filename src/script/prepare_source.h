// PrepareSource: cleans a piece of code before it is translated.
#pragma once

#include <string>
#include <string_view>

#include "script/script_state.h"

namespace corvane::script {

// Takes off "'" comments that a lineMark ends, and blanks beside operators and brackets; strings and "=[[" literals
// stay. The result ends in ":". Reports a literal that is not closed.
std::string PrepareSource(std::string_view text, ErrorReport& report);

}  // namespace corvane::script
