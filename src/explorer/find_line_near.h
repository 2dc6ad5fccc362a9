#pragma once

#include <string>
#include <string_view>

#include "host/code_module.h"

namespace corvane::explorer {

// The line of [module] that holds [text], looked for forward and then backward from [line] after edits have moved it;
// [line] itself (without its sign) when none is found. [text] may be a row with label, number and tail: only the code
// in it is compared, trimmed. [title] is the title of the code view. A negative [line] asks for a search of 200 lines
// each way. Otherwise a text that is no header is looked for inside the procedure of the line and within ten lines; one
// whose header is the title inside that procedure.
long FindLineNear(host::CodeModule& module, long line, std::string_view text, std::string_view title);

// The code in a row: behind a label and a number column of three digits, in front of the tail; trimmed.
std::string CodeOfRow(std::string_view text);

}  // namespace corvane::explorer
