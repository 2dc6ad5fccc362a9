// The order in which a sorted list box shows its rows.
#pragma once

#include <string_view>

namespace corvane::runtime {

// Below 0, 0 or above 0: blanks, then tabs, then symbols, digits, letters; without case, accented letters by the code
// page's upper case. Texts that differ in case only are equal.
int CompareAsListed(std::string_view left, std::string_view right);

}  // namespace corvane::runtime
