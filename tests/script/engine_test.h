// A run's stores, expressions and assignments with a faked world around them.
#pragma once

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "script/evaluator.h"
#include "script/marks.h"
#include "tests/script/fake_engine.h"
#include "tests/script/fake_outside.h"

namespace corvane::script {

using Texts = std::vector<std::string>;

// A cell as the tests write it: its type, if not text, and its text form; ";" for listSep.
inline std::string Shown(const Cell& cell) {
  static const char* const kTypes[] = {"integer ", "", "double ", "boolean "};
  std::string text = TextOf(cell);
  for (char& c : text)
    if (c == listSep) c = ';';
  return kTypes[cell.index()] + text;
}

struct EngineTest : testing::Test {
  ScriptState state;
  FakeErrors errors{state};
  FakeRunner runner;
  FakeOutside world{state};
  Evaluator engine{state, errors, runner, world.outside};

  std::string Value(const std::string& expression) {
    engine.expressions.EvalExpression(expression);
    return Shown(state.lastValue);
  }
  std::string Primary(std::string token) { return engine.primary.EvalPrimary(token); }
  // A statement as the execution loop hands it on: with its ":", and the column of its "=".
  void Assign(const std::string& statement) {
    engine.assignment.Assign(statement + ":", static_cast<long>(statement.find('=')) + 1);
  }
  bool AssignElement(const std::string& statement) {
    return engine.assignment.AssignElement(statement + ":", static_cast<long>(statement.find('(')) + 1);
  }
  void Dim(const std::string& names) { engine.assignment.DeclareVars("DIMM" + names + ":"); }
  // The messages since the last call.
  Texts Messages() { return std::exchange(errors.messages, {}); }
};

}  // namespace corvane::script
