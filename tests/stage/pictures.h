// Pictures of the logic as the system's picture objects, and back.
#pragma once

#include <unknwn.h>

#include "runtime/picture.h"

namespace corvane::stage {

// With one reference, the caller's; null for Nothing and for what the system cannot read.
IUnknown* NewPicture(const runtime::PictureRef& picture);
// The bytes of a picture object as a file holds them; Nothing for any other object.
runtime::PictureRef PictureOf(IUnknown* object);

}  // namespace corvane::stage
