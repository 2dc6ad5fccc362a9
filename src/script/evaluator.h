// Evaluator: the stores of a run, its expressions and its assignments, put together.
#pragma once

#include "script/arrays.h"
#include "script/assignment.h"
#include "script/built_ins.h"
#include "script/expressions.h"
#include "script/outside.h"
#include "script/script_objects.h"
#include "script/script_state.h"
#include "script/variable_store.h"

namespace corvane::script {

class Evaluator {
 public:
  Evaluator(ScriptState& state, ErrorReport& errors, CodeRunner& runner, Outside& outside)
      : arrays(state, errors),
        objects(state, errors, outside),
        primary(state, store, arrays, objects, errors, runner, outside),
        expressions(state, errors, primary),
        assignment(state, store, arrays, errors, expressions, primary, outside) {
    primary.UseExpressions(expressions);
  }

  // As at the start of a run.
  void Clear() {
    store.Clear();
    arrays.Clear();
    objects.Clear();
  }

  VariableStore store;
  Arrays arrays;
  ScriptObjects objects;
  BuiltIns primary;
  Expressions expressions;
  Assignment assignment;
};

}  // namespace corvane::script
