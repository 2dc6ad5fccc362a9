// The statements of a script as its author wrote them: with their lines, before anything is rewritten.
#pragma once

#include <string>
#include <vector>

#include "script/code_pieces.h"
#include "script/statement_scan.h"

namespace corvane::script {

struct SourceStatement {
  long line = 0;                // where it begins
  long lost_line = 0;           // of what stood before the comment in front of it, which is dropped with the comment
  Statement statement;          // cleaned
  std::string upper;            // its text in upper case, double quotes in place of strings and literals; of a one-line
                                // IF up to its THEN
  bool more_on_line = false;    // another statement stands behind its ":" in the same line
  size_t piece = 0;             // number of the piece of code that it stands in
  bool is_one_line_if = false;  // the statement behind its THEN comes next
};

std::vector<SourceStatement> SourceStatements(const std::vector<CodePiece>& pieces);

}  // namespace corvane::script
