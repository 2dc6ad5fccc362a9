// Paths and messages about files, as the windows show them; see cli/shown_path.h.
#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "runtime/error.h"

namespace corvane::desk {

// Text that may hold names of this machine.
QString ShownName(std::string_view bytes);
QString ShownPath(const std::string& path);
// What [error] says beyond the name of the file itself.
QString ReasonOf(const std::string& native, const runtime::Error& error);

}  // namespace corvane::desk
