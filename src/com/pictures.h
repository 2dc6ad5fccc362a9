// Pictures of COM and pictures of the logic, which are the bytes of their file.
#pragma once

#include "com/com_pointer.h"
#include "runtime/picture.h"

namespace corvane::com {

// Error 481 for bytes that the system cannot show.
ComPointer<IPictureDisp> NewPicture(const runtime::Picture& picture);
// Nothing for a picture without an image.
runtime::PictureRef BytesOf(IPicture& picture);

}  // namespace corvane::com
