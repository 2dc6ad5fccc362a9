// File name patterns as Dir takes them.
#pragma once

#include <string_view>

namespace corvane::environment {

// Whether [name] fits [pattern], without case: * is any text, ? one character. "*.*" fits names without a dot too.
bool FitsWildcard(std::string_view name, std::string_view pattern);

}  // namespace corvane::environment
