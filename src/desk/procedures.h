// The procedures of a module, as the two combo boxes of a code pane list them.
#pragma once

#include <string>
#include <vector>

#include "host/project.h"

namespace corvane::desk {

struct Procedure {
  std::string name;
  host::ProcKind kind = host::ProcKind::Proc;
  long start = 0, body = 0, end = 0;  // first line with what stands above it, header, last line

  // "cmdSave" of "cmdSave_Click"; empty without an underscore.
  std::string Object() const;
  // "Click [PropertyGet]": the part behind the object, and what kind of property it is.
  std::string Title(bool without_object) const;
};

// In the order of their lines. What the module cannot tell is left out.
std::vector<Procedure> ProceduresOf(host::CodeModule& module);

// Objects whose events the module may handle: "Form" (or its like) and the designer's controls, by name; none for
// modules without a designer but "Class".
std::vector<std::string> ObjectsOf(host::VBComponent& component);

}  // namespace corvane::desk
