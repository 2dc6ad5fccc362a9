// Keywords: the statements that are not commands, as the language's reference tells them. The rows are those of the
// tables that act on them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace corvane::script {

struct Keyword {
  std::string name;        // in upper case; empty where no word begins the statement
  std::string_view shape;  // as it is written; what stands in [ ] may be left out
  std::string_view help;   // one line
};

// Those that become other statements before the code runs.
std::vector<Keyword> RewrittenKeywords();
// Those that the execution loop acts on, the jumps that the translator makes among them.
std::vector<Keyword> StatementKeywords();

// [start] is how a table tells that a statement begins: "IF(", "NEXT ", "STOP:".
Keyword KeywordOf(std::string_view start, std::string_view shape, std::string_view help);

}  // namespace corvane::script
