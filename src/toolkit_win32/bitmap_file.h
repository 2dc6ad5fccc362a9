// Packed bitmaps, as the clipboard has them (a header, the palette, the pixels), and the files that hold them.
#pragma once

#include <string>
#include <string_view>

#include "runtime/picture.h"

namespace corvane::toolkit_win32 {

class PictureStore;

// Of a bitmap file, byte for byte; empty for a picture that is none.
std::string PackedBitmapOf(const runtime::PictureRef& picture);
// Of a picture of any kind, on a white ground; empty for one that cannot be decoded.
std::string PaintedBitmapOf(PictureStore& pictures, const runtime::PictureRef& picture);
// Nothing for bytes that are no packed bitmap.
runtime::PictureRef PictureOfPacked(std::string_view packed);

}  // namespace corvane::toolkit_win32
