// GetParamsInto: the parameters of a script as its variables.
#pragma once

#include <string>

#include "script/script_state.h"
#include "script/variable_store.h"

namespace corvane::script {

// The variables of [names], with "," between them, take the fields of scriptParams in order. A name that is no
// variable uses its field up.
void GetParamsInto(const std::string& names, const ScriptState& state, VariableStore& store);

}  // namespace corvane::script
