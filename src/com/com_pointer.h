// A counted reference to a COM object.
#pragma once

#include "com/com_api.h"
#include "toolkit_win32/com_pointer.h"

namespace corvane::com {

using toolkit_win32::ComPointer;

}  // namespace corvane::com
