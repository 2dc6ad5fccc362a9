// CheckScript: the places of a script where the odd rules of the language make it do what its author hardly meant.
#pragma once

#include <string>
#include <vector>

#include "script/code_pieces.h"

namespace corvane::script {

struct OddPlace {
  SourceLine at;
  std::string does;   // what happens there
  std::string write;  // how to write what was meant
};

// Those of the CODE{ block of [source], in its order. Nothing is run.
std::vector<OddPlace> CheckScript(const ScriptSource& source);

}  // namespace corvane::script
