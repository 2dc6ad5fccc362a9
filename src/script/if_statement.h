// The parts of an IF statement, as they are cut from its text.
#pragma once

#include <cstddef>
#include <string_view>

namespace corvane::script {

// Column of ")THEN", or else of " THEN", in a statement in upper case; 0 if there is none. Strings are not heeded.
long ThenColumn(std::string_view upper_statement);

// One-line IFs in one another. Each reads what is left of the line once more.
inline constexpr size_t kDeepestIf = 300;

}  // namespace corvane::script
