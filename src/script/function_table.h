// The built-in functions as a table: key, arguments, what each does, and one line of help.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "script/expressions.h"
#include "script/outside.h"
#include "script/script_objects.h"
#include "script/script_state.h"

namespace corvane::script {

// What a function may use. An error that it throws leaves the empty text.
struct FunctionUse {
  ScriptState& state;
  ErrorReport& errors;
  Outside& outside;
  ScriptObjects& objects;
  Primary& primary;
};

// A function of one argument gets a whole list as it is, with listSep in it.
using OneArgument = std::string (*)(FunctionUse&, const std::string&);
using TwoArguments = std::string (*)(FunctionUse&, const std::string&, const std::string&);
using ThreeArguments = std::string (*)(FunctionUse&, const std::string&, const std::string&, const std::string&);

struct FunctionRow {
  std::string_view key;        // the name in upper case with its "("
  std::string_view arguments;  // as a reader sees them; those in brackets may be left out
  std::string_view help;
  OneArgument one = nullptr;
  TwoArguments two = nullptr;
  ThreeArguments three = nullptr;
  std::string_view other_count = "Bad parameters";  // the message for a number of arguments that has no form
  bool quiet_alone = false;                         // one argument alone gives the empty text without a message
  bool names_array = false;                         // the argument is the name of an array, not a value
};

// All rows, in the order in which the reference tells them.
std::span<const FunctionRow> TextFunctions();
std::span<const FunctionRow> NumberFunctions();
std::span<const FunctionRow> OutsideFunctions();

// The row of [key]; null if there is none.
const FunctionRow* FindFunction(std::string_view key);

// The argument as a number, rounded to even. Throws Error 13 or 6.
long LongOf(std::string_view text);
double DoubleOf(std::string_view text);

}  // namespace corvane::script
