// ResolveScriptPath: the one way in which the names of script files become paths.
#pragma once

#include <string>

#include "script/surroundings.h"

namespace corvane::script {

// [spec] is head+tail or a plain name. A head is $APPPATH, a name of the library's {COMMON} section, or $PATH; any
// other gives the empty text.
std::string ResolveScriptPath(const std::string& spec, Surroundings& around);

// The path of the file that a FILE: line names; empty for a name that is too short.
std::string IncludePath(const std::string& name, Surroundings& around);

}  // namespace corvane::script
