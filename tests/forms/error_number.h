// The error that an act ends with.
#pragma once

#include "runtime/error.h"

namespace corvane::forms {

// Its number; 0 when the act runs to its end.
template <class Act>
long NumberOf(Act&& act) {
  try {
    act();
  } catch (const runtime::Error& error) {
    return error.Number();
  }
  return 0;
}

}  // namespace corvane::forms
