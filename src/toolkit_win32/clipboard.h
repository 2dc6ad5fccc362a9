// The system's clipboard: texts as Unicode, pictures as device independent bitmaps.
#pragma once

#include <memory>

#include "host/services.h"

namespace corvane::toolkit_win32 {

// A clipboard that another program keeps open is asked for again for a while; then a call throws Error 521. A picture
// that is no bitmap cannot be decoded or an icon: Error 461.
std::unique_ptr<host::Clipboard> NewClipboard();

}  // namespace corvane::toolkit_win32
