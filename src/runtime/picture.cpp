#include "runtime/picture.h"

#include <algorithm>

namespace corvane::runtime {

bool IsPicture(std::string_view bytes) {
  using namespace std::string_view_literals;
  constexpr std::string_view kStarts[] = {"BM"sv,       "GIF8"sv, "\x89PNG"sv, "\xFF\xD8\xFF"sv,    "\0\0\1\0"sv,
                                          "\0\0\2\0"sv, "<svg"sv, "<?xml"sv,   "\xD7\xCD\xC6\x9A"sv};
  return std::any_of(std::begin(kStarts), std::end(kStarts),
                     [&](std::string_view start) { return bytes.starts_with(start); });
}

}  // namespace corvane::runtime
