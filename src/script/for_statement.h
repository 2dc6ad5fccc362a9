// The parts of a FOR statement: FOR variable=start TO limit STEP step.
#pragma once

#include <optional>
#include <string>

namespace corvane::script {

struct ForParts {
  std::string init;      // variable=start
  std::string variable;  // trimmed
  std::string limit;     // trimmed
  std::string step;      // trimmed, as written; "1" without STEP
};

// [statement] begins with "FOR " and ends in ":". Nothing if a part is missing.
std::optional<ForParts> ReadFor(const std::string& statement);

}  // namespace corvane::script
