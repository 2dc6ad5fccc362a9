#include "explorer/project_access.h"
#include "runtime/strings.h"

namespace corvane::explorer {

using host::Ref;

Ref<host::VBProject> ActiveProject(const Ref<host::VBE>& vbe) {
  Ref<host::VBProject> project = Object(vbe).ActiveVBProject();
  Object(project);
  return project;
}

Ref<host::VBComponents> ActiveComponents(const Ref<host::VBE>& vbe) {
  return ActiveProject(vbe)->VBComponents();
}

Ref<host::CodeModule> ActiveModule(const Ref<host::VBE>& vbe) {
  Ref<host::CodePane> pane = Object(vbe).ActiveCodePane();
  return pane ? pane->CodeModule() : nullptr;
}

long FindComponentIndex(const Ref<host::VBE>& vbe, std::string_view name) {
  std::string wanted = runtime::UCase(name);
  Ref<host::VBComponents> components = ActiveComponents(vbe);
  long index = 0;
  for (Ref<host::VBComponent> component : host::Each(*components)) {
    ++index;
    if (HasCode(*component) && runtime::UCase(component->Name()) == wanted) return index;
  }
  return 0;
}

Ref<host::VBComponent> FindComponent(const Ref<host::VBE>& vbe, std::string_view name, long* index) {
  Ref<host::VBComponents> components = ActiveComponents(vbe);
  long position = 0;
  for (Ref<host::VBComponent> component : host::Each(*components)) {
    ++position;
    if (!HasCode(*component) || component->Name() != name) continue;
    if (index) *index = position;
    return component;
  }
  return nullptr;
}

}  // namespace corvane::explorer
