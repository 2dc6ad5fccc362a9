// BuiltIns: what one token of an expression stands for. EvalPrimary turns it into its value's text.
#pragma once

#include <string>
#include <string_view>

#include "script/arrays.h"
#include "script/expressions.h"
#include "script/function_table.h"
#include "script/names.h"
#include "script/outside.h"
#include "script/script_objects.h"
#include "script/script_state.h"
#include "script/variable_store.h"

namespace corvane::script {

class BuiltIns : public Primary {
 public:
  BuiltIns(ScriptState& state, VariableStore& store, Arrays& arrays, ScriptObjects& objects, ErrorReport& errors,
           CodeRunner& runner, Outside& outside);

  // Where the arguments of an object's call are evaluated.
  void UseExpressions(Expressions& expressions) { expressions_ = &expressions; }

  std::string EvalPrimary(std::string& token) override;
  bool EvalVariable(const NameReference& name, std::string& value) override;

 private:
  std::string ValueOf(std::string& token);
  std::string Argument(std::string text);
  std::string CallFunction(const FunctionRow& row, const std::string& rest);
  std::string CallWithParts(const FunctionRow& row, const std::string& rest);
  std::string CallNamed(const std::string& key, const std::string& rest);
  std::string CallOnArray(const FunctionRow& row, const std::string& rest);
  // The slot of the array of [key] ("NAME("); 0 if there is none.
  bool FindArray(const std::string& key, long& slot);

  ScriptState& state_;
  VariableStore& store_;
  Arrays& arrays_;
  ScriptObjects& objects_;
  ErrorReport& errors_;
  CodeRunner& runner_;
  Names names_;
  FunctionUse use_;
  Expressions* expressions_ = nullptr;
  int nesting_ = 0;  // calls of EvalPrimary in one another
};

}  // namespace corvane::script
