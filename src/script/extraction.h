// ExtractSubExpression: takes the next part that must be done first out of an expression.
#pragma once

#include <string>
#include <string_view>

#include "script/script_state.h"

namespace corvane::script {

// What stands for a part that was taken out.
inline constexpr std::string_view kTakenOut = "{}";

// Returns the part; [text] keeps kTakenOut in its place, or is empty if the part is all of it. The part is empty and
// [text] as it was where an operator has no two operands. A bracket that is not closed is reported and empties both.
std::string ExtractSubExpression(std::string& text, ErrorReport& errors);

}  // namespace corvane::script
