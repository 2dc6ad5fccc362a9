// The objects that CREATEOBJECT made, and calls of them by the names of their functions.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "script/outside.h"
#include "script/script_state.h"

namespace corvane::script {

class Expressions;

class ScriptObjects {
 public:
  ScriptObjects(ScriptState& state, ErrorReport& errors, Outside& outside)
      : state_(state), errors_(errors), outside_(outside) {}

  // Drops all objects, as the start of a run does.
  void Clear();

  // [arguments] is library, listSep, function. Returns the object's index, "0" after a failure.
  std::string CreateScriptObject(const std::string& arguments);
  std::string DbTaskCall(const std::string& command);

  // Place behind the key of [function] ("NAME(", upper case) in objectNames, from 1; 0 if there is none.
  long Find(std::string_view function) const;
  // Leaves the result in lastValue.
  std::string ObjectCall(long place, std::string_view arguments, Expressions& expressions);

  // objectNames: for each, labelMark, the function with its "(", the index in the table, labelMark.
  std::string objectNames;

 private:
  void TellFolder(ScriptObject& object);
  std::string IndexAt(long place) const;

  ScriptState& state_;
  ErrorReport& errors_;
  Outside& outside_;
  std::vector<std::shared_ptr<ScriptObject>> table_;  // objectTable; an index counts from 1
  std::shared_ptr<ScriptObject> dbObject_;
};

}  // namespace corvane::script
