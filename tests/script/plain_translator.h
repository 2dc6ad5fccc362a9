// The plain form of cleaning and translating: one text, copied at each step, and calls of itself. The engine's own
// form is compared with it.
#pragma once

#include <string>

#include "script/script_state.h"

namespace corvane::script {

std::string PlainPrepareSource(std::string text, ErrorReport& report);
std::string PlainTranslateCode(std::string& text, ScriptState& state, ErrorReport& report);

}  // namespace corvane::script
