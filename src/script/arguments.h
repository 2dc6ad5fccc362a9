// The parts of argument lists and of expressions in a row.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace corvane::script {

// What stands between the separators of an evaluated list; one part without any.
std::vector<std::string> SplitArguments(std::string_view list);

// Takes the first expression off [text] with what ends it: ":" or "," at bracket depth 0, a ")" below it, and with
// [at_plus] an "&" or "+" at depth 0, all outside double quotes.
std::string NextExprPart(std::string& text, bool at_plus);
// Length of that expression, without what ends it.
size_t LengthOfExprPart(std::string_view text, bool at_plus);

}  // namespace corvane::script
