// `corvane search`: the search of the explorer, in the code of a project or in the properties of its designers.
#pragma once

#include <iosfwd>
#include <string>

#include "explorer/search_module.h"

namespace corvane::environment {
class Environment;
}

namespace corvane::cli {

struct SearchOptions {
  explorer::ModuleSearch search;  // its text is the text sought in properties, too
  std::string module;             // only in the component of exactly this name; empty for all
  bool properties = false;        // of designers and their controls, in place of code
};

// Writes the hits in the active project to [out] as UTF-8, a line each, in the order of components and lines:
//   component, line, text                 separated by tabs, or
//   component, control, property, value   with `properties`; the control is empty for the component itself.
// Returns whether there is any. Throws host::Error without a project, Error 9 where no component has the name.
bool RunSearchCommand(environment::Environment& environment, const SearchOptions& options, std::ostream& out);

}  // namespace corvane::cli
