// Message and input boxes. They belong to the active window of this thread, a form or one of the environment's, and
// keep the others from input.
#pragma once

#include <memory>

#include "host/services.h"

namespace corvane::toolkit_win32 {

class Win32Toolkit;

std::unique_ptr<host::Prompts> NewPrompts(const host::App& app, const Win32Toolkit& toolkit);

}  // namespace corvane::toolkit_win32
