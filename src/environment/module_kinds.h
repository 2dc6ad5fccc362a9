// ModuleKinds: the kinds of components, with their keys in project files, extensions and root classes.
#pragma once

#include <span>
#include <string_view>

#include "host/project.h"

namespace corvane::environment {

struct ModuleKind {
  host::ComponentType type;
  std::string_view key;         // in a .vbp
  std::string_view extension;   // of its file
  std::string_view root_class;  // of its designer part; empty where it has none
  std::string_view sibling;     // extension of the binary file beside it
  std::string_view base_name;   // of a new one: "Form1"
  bool named_in_project;        // "Module=Name; path", else "Form=path"
};

std::span<const ModuleKind> ModuleKinds();
const ModuleKind& KindOf(host::ComponentType type);  // Error 5 for a kind that no project has
// Null where there is none. Without case; a form may turn out to be an MDI form by its root class.
const ModuleKind* KindOfKey(std::string_view key);
const ModuleKind* KindOfExtension(std::string_view extension);  // ".frm"
const ModuleKind* KindOfRootClass(std::string_view root_class);
bool IsSiblingExtension(std::string_view extension);  // ".frx" and the like

inline bool HasCode(host::ComponentType type) {
  return type != host::ComponentType::RelatedDocument;
}
inline bool HasDesigner(host::ComponentType type) {
  return type != host::ComponentType::StdModule && type != host::ComponentType::ClassModule && HasCode(type);
}

}  // namespace corvane::environment
