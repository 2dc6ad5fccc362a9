// SoughtWord: a word that the project is searched for, as the code view asks for it: a procedure, or a declaration.
#pragma once

#include <string>
#include <string_view>

#include "host/code_module.h"

namespace corvane::explorer {

struct SoughtWord {
  bool declared = false;  // its declaration is sought, else its procedure
  bool dotted = false;
  std::string object;  // in front of the dot
  std::string name;    // upper-cased, with the blank in front or the bracket behind that tells it apart
  std::string bare;    // of a declaration, the name without brackets

  // Whether an upper-cased row of the procedures declares it.
  bool IsIn(std::string_view row) const;
  // The line of [module] that declares it, 0 if there is none. Declarations count in the declaration lines only.
  long LineIn(host::CodeModule& module) const;
};

// A text that begins with a blank asks for a declaration.
SoughtWord SoughtIn(std::string_view text);

// The type that [module] declares the variable [name] (upper-cased) as; empty text without such a declaration.
std::string TypeOfVariable(host::CodeModule& module, const std::string& name);

}  // namespace corvane::explorer
