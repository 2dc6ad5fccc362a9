// Registration: what the system and the environment must know of the library to load it.
#pragma once

#include <string>

#include "com/com_api.h"

namespace corvane::com {

// For whom the class is registered. The environment's list of add-ins is each user's own in both cases.
enum class Scope {
  User,     // needs no administrator; an environment that runs elevated does not see it
  Machine,  // needs one
};

// [library] is the full path of the library. All or nothing: a registry that refuses is left as it was. A user's choice
// of when the add-in is loaded stays.
HRESULT Register(Scope scope, const std::wstring& library) noexcept;
// Removes all that Register made, but what it shares with a registration that remains: for the other scope, or of the
// library for programs of the other width. Tells the first thing that could not be removed.
HRESULT Unregister(Scope scope) noexcept;

// The line of the environment's list alone, for another user of a machine on which the class is registered.
HRESULT RegisterEntry() noexcept;
HRESULT UnregisterEntry() noexcept;

}  // namespace corvane::com
