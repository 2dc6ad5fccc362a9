// Picture: a loaded image file (BMP, ICO, PNG, GIF, JPEG, SVG) as its bytes; toolkits decode it when they show it.
#pragma once

#include <memory>
#include <string>

namespace corvane::runtime {

struct Picture {
  std::string bytes;
};

using PictureRef = std::shared_ptr<const Picture>;

}  // namespace corvane::runtime
