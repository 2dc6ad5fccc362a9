// ClickPlace: what of a line lies under the pointer: a position in its text as it is read, and the block level there.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "forms/types.h"

namespace corvane::codelist {

struct ClickPlace {
  std::string text;     // the line without its level marks and without the marks of bold
  size_t position = 1;  // of the character, from 1; one behind the last when the pointer is behind the text
  long level = 0;
};

using WidthOf = std::function<forms::Twips(std::string_view)>;

// [stored] is a line with its marks, [level] the level at its start, [x] the distance of the pointer, in twips, from
// the place where the text begins. The widths must not fall from a text to a longer one that begins with it.
ClickPlace PlaceAt(std::string_view stored, long level, forms::Twips x, const WidthOf& width);

}  // namespace corvane::codelist
