// CheckScript: the places of a script where the odd rules of the language make it do what its author hardly meant.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::script {

struct OddPlace {
  long line = 0;      // of the script, from 1
  std::string does;   // what happens there
  std::string write;  // how to write what was meant
};

// Those of the CODE{ block of [script], whose lines end in CR LF, in the order of the script. Nothing is run, and what
// the script includes is not read. Nothing at all where it has no CODE{ block.
std::optional<std::vector<OddPlace>> CheckScript(std::string_view script);

}  // namespace corvane::script
