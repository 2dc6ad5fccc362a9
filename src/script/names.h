// What a token without brackets stands for: a number, a predefined name, a variable, a control of a dialog.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "script/dialog_values.h"
#include "script/outside.h"
#include "script/script_state.h"
#include "script/variable_store.h"

namespace corvane::script {

struct NameUse {
  ScriptState& state;
  Outside& outside;
};

struct PredefinedName {
  std::string_view name;  // upper case
  std::string_view help;
  std::string (*value)(NameUse&);
};

// Those that hide a variable, in the order of their look-up, and those that a variable hides.
std::span<const PredefinedName> NamesBeforeVariables();
std::span<const PredefinedName> NamesBehindVariables();

class Names {
 public:
  Names(ScriptState& state, VariableStore& store, ErrorReport& errors, Outside& outside)
      : state_(state), store_(store), errors_(errors), use_{state, outside} {}

  std::string Value(const std::string& token);

 private:
  std::string Named(const std::string& token);
  std::optional<ControlValue> ReadDialogs(const std::string& name);
  std::string PropertyOf(const std::string& token, const std::string& upper);

  ScriptState& state_;
  VariableStore& store_;
  ErrorReport& errors_;
  NameUse use_;
};

// Whether [upper] is one of the names that hide a variable.
bool HidesVariables(std::string_view upper);

}  // namespace corvane::script
