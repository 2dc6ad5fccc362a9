// host::Files on Windows.
#pragma once

#include <memory>

#include "host/services.h"

namespace corvane::toolkit_win32 {

std::unique_ptr<host::Files> NewFiles();

}  // namespace corvane::toolkit_win32
