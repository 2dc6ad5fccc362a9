// The settings of the user, where Visual Basic's programs keep theirs in the registry:
// HKEY_CURRENT_USER\Software\VB and VBA Program Settings\<application>\<section>, a text value for each key.
#pragma once

#include <memory>

#include "host/services.h"

namespace corvane::toolkit_win32 {

// An empty application or section, and a registry that refuses to be written, are Error 5.
std::unique_ptr<host::Settings> NewSettings();

}  // namespace corvane::toolkit_win32
