// Searches for a text of any length in one of any length. Their cost grows with both lengths together, whatever the
// texts hold.
#pragma once

#include <string_view>

namespace corvane::runtime {

// Offset from 0 of the first place of [find] in [text] at or behind [from]; npos if there is none. As
// std::string_view::find has it.
size_t FindFirst(std::string_view text, std::string_view find, size_t from = 0);

// Offset of the last place of [find] in [text]; npos if there is none.
size_t FindLast(std::string_view text, std::string_view find);

}  // namespace corvane::runtime
