// TranslateCode: a cleaned piece of code as a flat program.
#pragma once

#include <string>
#include <string_view>

#include "script/script_state.h"

namespace corvane::script {

// Takes [text], as PrepareSource gives it, and returns its flat program (see flat_items.h) with "::" at its end, unless
// a comment ran to the end of the text. Moves the counters of [state]; reports errors with its currentLine, and ends
// with what was made so far when one of them sets stopFlag.
std::string TranslateCode(std::string& text, ScriptState& state, ErrorReport& report);

// Words that are statements. The list is searched as a text: TOP: and FOR: are no labels either.
inline constexpr std::string_view kBareWords = "STOPEX:STOP:END CODE:EXIT:EXIT FOR:EXIT WHILE:DEBUG:STEP:";

}  // namespace corvane::script
