// `corvane view FILE`: a file coloured by block level, for a terminal or as a page.
#pragma once

#include <ostream>
#include <string>

namespace corvane::cli {

// Analyses the file as Visual Basic, as Transact-SQL when [file_name] ends in ".sql", and writes it with a colour for
// each block level, comments grey, keywords bold; what stands in front of a module's code is left plain. [code_page]
// decides case and the way to UTF-8; 0 leaves the one in force. Returns 0.
int ViewFile(const std::string& file_bytes, const std::string& file_name, bool html, int code_page, std::ostream& out);

}  // namespace corvane::cli
