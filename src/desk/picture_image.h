// Pictures of the logic as Qt shows them.
#pragma once

#include <QIcon>
#include <QImage>

#include "runtime/picture.h"

namespace corvane::desk {

// Null for Nothing and for what Qt cannot decode.
QImage ImageOf(const runtime::PictureRef& picture);
// A button's face: the light grey that pasted faces have as their background is transparent.
QIcon FaceOf(const runtime::PictureRef& picture);

}  // namespace corvane::desk
