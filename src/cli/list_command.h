// `corvane list`: the components of a project, or the rows of their procedures as the explorer lists them.
#pragma once

#include <iosfwd>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "explorer/procedure_scan.h"

namespace corvane::environment {
class Environment;
}

namespace corvane::cli {

struct ListOptions {
  bool procedures = false;  // rows of procedures in place of components
  explorer::ProcedureFilter filter;
  bool json = false;  // JSON Lines
};

// The words of --kind and --visibility, in the order they are offered.
const std::vector<std::pair<std::string, explorer::ProcedureKind>>& KindWords();
const std::vector<std::pair<std::string, explorer::Visibility>>& VisibilityWords();

// Writes the active project to [out] as UTF-8, components in their order, a line each:
//   name, kind, lines, declaration lines, procedures   separated by tabs, or
//   component, line, text                              with `procedures`.
// A component is scanned as if it had been chosen with the filters. Throws host::Error without a project.
void RunListCommand(environment::Environment& environment, const ListOptions& options, std::ostream& out);

// Of a group: one line on [errors] with the name of the project that is listed and those of the others.
void TellOtherProjects(environment::Environment& environment, const std::string& path, std::ostream& errors);

}  // namespace corvane::cli
