// SCRIPTRUN: runs a script file in an engine of its own.
#pragma once

#include "script/commands.h"

namespace corvane::script {

// The value is the file's name, then parameters, with listSep in front of each. They go out through paramExchange, and
// what the other script puts there comes back as scriptParams. Errors are passed over.
void ScriptRun(CommandUse& use);

}  // namespace corvane::script
