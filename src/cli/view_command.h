// `corvane view FILE`: a file coloured by block level, for a terminal or as a page.
#pragma once

#include <ostream>
#include <string>

namespace corvane::cli {

struct ViewOptions {
  std::string file_name;
  bool html = false;
  bool fold = false;  // of the code, only lines that hold a keyword, and the outermost ones
  int code_page = 0;  // decides case and the way to UTF-8; 0 leaves the one in force
};

// Analyses the file as Visual Basic, as Transact-SQL when its name ends in ".sql", and writes it with a colour for each
// block level, comments grey, keywords bold; what stands in front of a module's code is left plain. Returns 0.
int ViewFile(const std::string& file_bytes, const ViewOptions& options, std::ostream& out);

}  // namespace corvane::cli
