// For message boxes that name files or reasons one by one.
#pragma once

#include <string>
#include <vector>

namespace corvane::desk {

// One on each line, behind a line end; of a long list the first ones and how many more there are.
std::string Bulleted(const std::vector<std::string>& items);

}  // namespace corvane::desk
