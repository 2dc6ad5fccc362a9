// The program's own icons, drawn as SVG in data/icons and compiled in: as they are, or for Windows as .ico files of
// several sizes.
#pragma once

#include <cstddef>
#include <string_view>

#include "forms/types.h"

namespace corvane::forms {

struct EmbeddedFile {
  const char* name;
  const char* bytes;
  size_t size;
};

extern const EmbeddedFile kIconFiles[];  // ends with a null name

// The icon called [name] ("search"); Nothing if there is none.
PictureRef Icon(std::string_view name);

}  // namespace corvane::forms
