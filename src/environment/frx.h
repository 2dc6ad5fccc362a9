// The records of a designer's binary sibling (.frx, .ctx, .pgx, .dox, .dsx), found by their byte offsets. Numbers are
// little-endian. A record that does not lie wholly inside the file, or is none of its kind, is nothing.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::environment::frx {

// A picture's image file; empty text for a record of no picture. ActiveX pictures (with a class before) are read too.
std::optional<std::string> ReadPicture(std::string_view file, size_t offset);
// The items of List or ItemData.
std::optional<std::vector<std::string>> ReadList(std::string_view file, size_t offset);
// A text referred to without $ (the Text of a multi-line text box).
std::optional<std::string> ReadText(std::string_view file, size_t offset);
// A text referred to with $.
std::optional<std::string> ReadLongText(std::string_view file, size_t offset);

// Records to append. Error 380 for what no record can hold: 65,536 items or more, an item or text that is too long.
std::string PictureRecord(std::string_view image);
std::string ListRecord(const std::vector<std::string>& items);
std::string TextRecord(std::string_view text);
std::string LongTextRecord(std::string_view text);

}  // namespace corvane::environment::frx
