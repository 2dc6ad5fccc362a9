// Ways into the project that is open at this moment. Nothing is kept: each call asks the environment again.
#pragma once

#include <string>
#include <string_view>

#include "host/vbe.h"

namespace corvane::explorer {

// The object behind a reference; Error 91 for Nothing.
template <class T>
T& Object(const host::Ref<T>& reference) {
  if (!reference) throw host::Error(runtime::kObjectNotSet);
  return *reference;
}

host::Ref<host::VBProject> ActiveProject(const host::Ref<host::VBE>& vbe);        // Error 91 without a project
host::Ref<host::VBComponents> ActiveComponents(const host::Ref<host::VBE>& vbe);  // Error 91 without a project
// The module of the code pane with the focus; Nothing when no pane is open.
host::Ref<host::CodeModule> ActiveModule(const host::Ref<host::VBE>& vbe);

// Kind 10 has neither code nor designer: every walk over components passes it over, but counts it.
inline bool HasCode(host::VBComponent& component) {
  return component.Type() != host::ComponentType::RelatedDocument;
}

// The position of a module by its name without case; 0 if the active project has none of that name.
long FindComponentIndex(const host::Ref<host::VBE>& vbe, std::string_view name);
// The component of exactly that name, case included; Nothing if there is none. [index] takes its position.
host::Ref<host::VBComponent> FindComponent(const host::Ref<host::VBE>& vbe, std::string_view name,
                                           long* index = nullptr);

// The word at the caret of the active code pane, or what is selected there on one line; empty text without one.
std::string CurrentWord(const host::Ref<host::VBE>& vbe);

}  // namespace corvane::explorer
