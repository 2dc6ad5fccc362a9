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
  Text right;            // the right side with its ":"
  // V=V & ...: a name that begins the right side too, as reading finds it, and what is joined behind it.
  NameReference joined;
  std::vector<PlannedTerm> behind;
};

// V op= E written out as V = V op E; other statements stay as they are. [eq] follows the "=".
std::string WithOwnOperator(const std::string& statement, long& eq);

// Nothing for targets other than plain names, for literals in brackets, and where there is no right side.
std::optional<KnownAssignment> KnownOf(const std::string& statement, long eq);

}  // namespace corvane::script
