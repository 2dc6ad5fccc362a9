// SORT: the lines of a text in the order of the workshop's sorted list.
#pragma once

#include <string>
#include <string_view>

#include "script/workshop.h"

namespace corvane::script {

// By the text behind [key] in each line, as far as a blank or comma, numbers by their value; by the whole line where
// it has no key. [order] that starts with "DES" is descending. Each line of the result ends in a line end.
std::string SortLines(Workshop& workshop, std::string_view text, std::string_view key, std::string_view order);

}  // namespace corvane::script
