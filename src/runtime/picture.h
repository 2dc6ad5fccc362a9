// Picture: a loaded image file (BMP, ICO, PNG, GIF, JPEG, SVG) as its bytes; toolkits decode it when they show it.
#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace corvane::runtime {

struct Picture {
  std::string bytes;
};

using PictureRef = std::shared_ptr<const Picture>;

// Whether a file of [bytes] begins as one of these kinds does.
bool IsPicture(std::string_view bytes);

}  // namespace corvane::runtime
