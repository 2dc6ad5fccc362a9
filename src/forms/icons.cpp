#include "forms/icons.h"

#include <memory>

namespace corvane::forms {

PictureRef Icon(std::string_view name) {
  for (const EmbeddedFile* file = kIconFiles; file->name; ++file) {
    if (name == file->name) return std::make_shared<Picture>(Picture{std::string(file->bytes, file->size)});
  }
  return nullptr;
}

}  // namespace corvane::forms
