// FindInText: the search of a code module.
#pragma once

#include <optional>
#include <string>

#include "environment/module_text.h"
#include "environment/text_search.h"

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

// Searches follow one another by the thousand with the same text: the last one stays prepared.
class Finder {
 public:
  // Whether there is a hit in the range; [place] is the first one. A hit lies within one line.
  bool Find(const ModuleText& text, const FindRequest& request, FoundPlace& place);

 private:
  std::optional<TextSearch> search_;
};

}  // namespace corvane::environment
