// Commands: the statements of the form KEYWORD(argument).
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "script/engine.h"
#include "script/surroundings.h"

namespace corvane::script {

class CodeRun;
class Commands;

// What a command works with.
struct CommandUse {
  Engine& engine;
  Surroundings& around;
  frmLib& lib;
  CodeRun& run;
  std::string value;  // of the argument, as text
};

struct CommandRow {
  std::string_view keyword;    // in upper case
  std::string_view arguments;  // as a reader sees them; those in brackets may be left out
  std::string_view help;
  // None for those whose argument is read in a way of its own.
  void (*act)(CommandUse& use);
};

// All of them, IF and assignments apart.
std::span<const CommandRow> CommandTable();

class Commands {
 public:
  Commands(Surroundings& around, frmLib& lib) : around_(around), lib_(lib) {}

  // [statement] ends in ":"; its "(" stands at column [paren], from 1.
  void Run(Engine& engine, const std::string& statement, long paren, CodeRun& run);

 private:
  bool RunSpecial(Engine& engine, const std::string& keyword, const std::string& statement);
  void RunWithTwo(Engine& engine, const std::string& keyword, const std::string& statement, std::string argument);

  Surroundings& around_;
  frmLib& lib_;
};

// The value of the SELECT CASE with that nesting number. Throws Error 13 for no number, 9 for one that is too high.
Cell& PushSlot(ScriptState& state, const std::string& slot);

}  // namespace corvane::script
