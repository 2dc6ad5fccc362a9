// FavrList.txt: the wizards that the user keeps at hand, a line for each: "title{NAME}!entry". What stands in the title
// behind "[" is a comment.
#pragma once

#include <string_view>
#include <vector>

#include "forms/toolbar.h"

namespace corvane::explorer {

// Entries of a drop-down, with the whole line as the key. Other lines are passed over.
std::vector<forms::ButtonMenu> ReadFavoriteWizards(std::string_view file);

}  // namespace corvane::explorer
