// FlatToText: a flat program as the lines that the user knows.
#pragma once

#include <string>
#include <string_view>

namespace corvane::script {

// Statements and labels, a line each with CR LF, each with its ":". Generated labels and the jumps to them are left
// out, but for those to an END IF. The listing ends where [flat] cannot be read.
std::string FlatToText(std::string_view flat);

}  // namespace corvane::script
