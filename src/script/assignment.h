// Assignment to variables, properties and elements of arrays, and the declaration of names.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "script/arrays.h"
#include "script/expressions.h"
#include "script/known_assignment.h"
#include "script/outside.h"
#include "script/plan_cache.h"
#include "script/script_state.h"
#include "script/variable_store.h"

namespace corvane::script {

class Assignment {
 public:
  Assignment(ScriptState& state, VariableStore& store, Arrays& arrays, ErrorReport& errors, Expressions& expressions,
             Primary& primary, Outside& outside)
      : state_(state),
        store_(store),
        arrays_(arrays),
        errors_(errors),
        expressions_(expressions),
        primary_(primary),
        outside_(outside) {}

  // [statement] ends in ":"; its "=" stands at column [eq] (2 or more, from 1).
  // One met again goes a shorter way.
  void Assign(std::string_view statement, long eq);
  // The plain form, which the other is compared with.
  void AssignLiterally(const std::string& statement, long eq);

  // Stores into an element if [statement] is name(index)=value with an array of that name, its "(" at column [paren]
  // (from 1). False if it is not: then it is a command.
  bool AssignElement(const std::string& statement, long paren);

  // "DIM " or "DIMM" and names with "," between them; a ":" may end them.
  void DeclareVars(const std::string& text);

 private:
  struct Target;
  class Appending;
  Target FindTarget(std::string name);
  std::string PropertyAddress(const std::string& name);
  // False if there is nothing to store.
  bool Evaluate(const std::string& right);
  void Store(const Target& target);
  void Declare(std::string name);

  const KnownAssignment* Known(std::string_view statement, long eq);
  bool AssignKnown(const KnownAssignment& known);

  ScriptState& state_;
  VariableStore& store_;
  Arrays& arrays_;
  ErrorReport& errors_;
  Expressions& expressions_;
  Primary& primary_;
  Outside& outside_;
  ByText<std::optional<KnownAssignment>> known_;
  MetBefore met_before_;
  int running_ = 0;  // known assignments under way, in one another
};

}  // namespace corvane::script
