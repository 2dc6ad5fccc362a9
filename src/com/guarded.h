// Guarded: what keeps exceptions inside a method that COM calls.
#pragma once

#include <new>

#include "com/errors.h"

namespace corvane::com {

// Runs [action], which returns nothing or a code. An exception becomes the code that tells it.
template <class Action>
HRESULT Guarded(Action&& action) noexcept {
  try {
    if constexpr (std::is_void_v<decltype(action())>) {
      action();
      return S_OK;
    } else {
      return action();
    }
  } catch (const host::Error& error) {
    return CodeOf(error);
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (...) {
    return E_UNEXPECTED;
  }
}

}  // namespace corvane::com
