// LineDifferences: which lines of a module another text of it replaces.
#pragma once

#include <vector>

#include "environment/module_text.h"

namespace corvane::environment {

// [removed] lines of the old text from [start] are [inserted] lines of the new one from [first]. Lines from 1; either
// count may be 0, not both.
struct LineDifference {
  long start = 1, removed = 0;
  long first = 1, inserted = 0;
};

// In the order of the lines. Lines that stand once in both texts are kept where they keep their order, so that a place
// between two changes stays; where the texts have little in common it is one difference.
std::vector<LineDifference> DifferencesOf(const ModuleText& old_text, const ModuleText& new_text);

}  // namespace corvane::environment
