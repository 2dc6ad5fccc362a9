// The program's own icons, drawn as SVG in data/icons and compiled in.
#pragma once

#include <string_view>

#include "forms/types.h"

namespace corvane::forms {

struct EmbeddedFile {
  const char* name;
  const char* bytes;
};

extern const EmbeddedFile kIconFiles[];  // ends with a null name

// The icon called [name] ("search"); Nothing if there is none.
PictureRef Icon(std::string_view name);

}  // namespace corvane::forms
