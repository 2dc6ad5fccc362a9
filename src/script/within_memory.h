// WithinMemory: an action that may ask for more memory than there is.
#pragma once

#include <new>
#include <stdexcept>

namespace corvane::script {

inline constexpr char kOutOfMemory[] = "Out of memory.";

// False if the memory did not suffice, or if a text would be longer than texts can be.
template <class Action>
bool WithinMemory(Action&& action) {
  try {
    action();
    return true;
  } catch (const std::bad_alloc&) {
    return false;
  } catch (const std::length_error&) {
    return false;
  }
}

}  // namespace corvane::script
