// NewModuleText: the file of a component that was just made.
#pragma once

#include <string>

#include "host/project.h"

namespace corvane::environment {

// With CR LF, and no line of code.
std::string NewModuleText(host::ComponentType type, const std::string& name);

}  // namespace corvane::environment
