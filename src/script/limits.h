// How large the texts of a script may grow. What would be larger is an error before it is made.
#pragma once

#include <cstddef>

#include "runtime/error.h"

namespace corvane::script {

inline constexpr size_t kLongestText = 64u << 20;  // characters
inline constexpr size_t kMostMemory = 512u << 20;  // bytes, over all variables, arrays and SUBs

inline runtime::Error TooLong() {
  constexpr long kOutOfStringSpace = 14;
  return {kOutOfStringSpace, "Out of string space"};
}

}  // namespace corvane::script
