// FindInText: the search of a code module.
#pragma once

#include <string>

#include "environment/module_text.h"

namespace corvane::environment {

struct FindRequest {
  std::string target;
  long start_line = 1, start_column = 1;
  long end_line = -1, end_column = -1;  // -1: the end
  bool whole_word = false, match_case = false, pattern = false;
};

struct FoundPlace {
  long line = 0, column = 0, length = 0;  // columns count from 1
};

// Whether there is a hit in the range; [place] is the first one. A hit lies within one line.
bool FindInText(const ModuleText& text, const FindRequest& request, FoundPlace& place);

}  // namespace corvane::environment
