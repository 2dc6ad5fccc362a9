// The system's clipboard: texts as Unicode, pictures as device independent bitmaps.
#pragma once

#include <memory>

#include "host/services.h"

namespace corvane::toolkit_win32 {

class PictureStore;

// A clipboard that another program keeps open is asked for again for a while; then a call throws Error 521. A picture
// that cannot be decoded is Error 461. [pictures] must outlive it.
std::unique_ptr<host::Clipboard> NewClipboard(PictureStore& pictures);

}  // namespace corvane::toolkit_win32
