// Packed bitmaps, as the clipboard has them (a header, the palette, the pixels), and the files that hold them.
#pragma once

#include <string>
#include <string_view>

#include "runtime/picture.h"

namespace corvane::toolkit_win32 {

// Throws Error 461 for a picture that is no bitmap file.
std::string PackedBitmapOf(const runtime::PictureRef& picture);
// Nothing for bytes that are no packed bitmap.
runtime::PictureRef PictureOfPacked(std::string_view packed);

}  // namespace corvane::toolkit_win32
