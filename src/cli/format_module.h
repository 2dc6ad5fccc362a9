// The formatter's indent over a whole module: nothing changes but blanks and tabs at the starts of lines.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace corvane::cli {

struct FormattedModule {
  std::string bytes;
  long changed_lines = 0;
};

// [bytes] is the file of a module, whose code starts at [code_start]. Each procedure begins at the outermost level.
// Lines that hold a comment or nothing stay as they are, and so do attributes, continued comments, line ends and
// the rest of every line.
FormattedModule FormatModule(std::string_view bytes, size_t code_start);

}  // namespace corvane::cli
