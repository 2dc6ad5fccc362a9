// CreateObject: a new object of a class that is named by its ProgID, as Visual Basic makes it.
#pragma once

#include <string>

#include "com/dispatch.h"

namespace corvane::com {

// Error 429 for a class that is not there or cannot be made.
Dispatch CreateObject(const std::string& prog_id);

}  // namespace corvane::com
