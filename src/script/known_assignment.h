// An assignment to a variable that is met again: its parts, and where its names were found.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "script/cell.h"
#include "script/expression_plan.h"

namespace corvane::script {

struct KnownAssignment {
  long eq;               // column of the "=", from 1
  NameReference target;  // as assignment finds it
  bool to_result;        // it is RESULT, and no variable
  Text right;            // the right side with its ":"
  bool appends;          // V=V & ...: its last step joins texts to V, and runs no code
};

// V op= E written out as V = V op E; other statements stay as they are. [eq] follows the "=".
std::string WithOwnOperator(const std::string& statement, long& eq);

// Nothing for targets other than RESULT and plain names, for literals in brackets, and where there is no right side.
std::optional<KnownAssignment> KnownOf(const std::string& statement, long eq);

}  // namespace corvane::script
