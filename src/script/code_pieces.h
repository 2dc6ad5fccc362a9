// The pieces of code in a script text, each with the lines it comes from.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace corvane::script {

struct CodePiece {
  std::string code;         // as the block reader gives it, without the ":" at its end
  std::vector<long> lines;  // number in the script of its first line and of the one behind each lineMark, from 1
};

// Those of the CODE{ block that a run of the script runs, in their order; the lines end in CR LF. [has_block] is
// whether there is one.
std::vector<CodePiece> CodePieces(std::string_view script, bool& has_block);

}  // namespace corvane::script
