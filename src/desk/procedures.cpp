#include "desk/procedures.h"

#include <algorithm>
#include <set>

#include "desk/kind_names.h"
#include "runtime/strings.h"

namespace corvane::desk {

namespace {

const char* KindSuffix(host::ProcKind kind) {
  switch (kind) {
    case host::ProcKind::Get:
      return " [PropertyGet]";
    case host::ProcKind::Let:
      return " [PropertyLet]";
    case host::ProcKind::Set:
      return " [PropertySet]";
    default:
      return "";
  }
}

}  // namespace

std::string Procedure::Object() const {
  const size_t underscore = name.rfind('_');
  return underscore == std::string::npos || underscore == 0 ? std::string() : name.substr(0, underscore);
}

std::string Procedure::Title(bool without_object) const {
  const std::string object = Object();
  return (without_object && !object.empty() ? name.substr(object.size() + 1) : name) + KindSuffix(kind);
}

std::vector<Procedure> ProceduresOf(host::CodeModule& module) {
  std::vector<Procedure> found;
  host::PassOverErrors([&] {
    const long count = module.CountOfLines();
    for (long line = module.CountOfDeclarationLines() + 1; line <= count;) {
      Procedure procedure;
      procedure.name = module.ProcOfLine(line, procedure.kind);
      if (procedure.name.empty()) {
        ++line;
        continue;
      }
      procedure.start = module.ProcStartLine(procedure.name, procedure.kind);
      procedure.body = module.ProcBodyLine(procedure.name, procedure.kind);
      procedure.end = procedure.start + module.ProcCountLines(procedure.name, procedure.kind) - 1;
      // Of two procedures of one name the first answers for both.
      if (procedure.end < line) {
        ++line;
        continue;
      }
      line = procedure.end + 1;
      found.push_back(std::move(procedure));
    }
  });
  return found;
}

std::vector<std::string> ObjectsOf(host::VBComponent& component) {
  std::set<std::string> names;
  host::PassOverErrors([&] {
    if (const host::Ref<host::VBForm> form = component.Designer()) {
      const auto controls = form->VBControls();
      for (const auto& control : host::Each(*controls))
        host::PassOverErrors([&] { names.insert(runtime::ToText(control->Properties()->Item("Name")->Value())); });
    }
  });
  std::vector<std::string> objects(names.begin(), names.end());
  std::sort(objects.begin(), objects.end(),
            [](const auto& a, const auto& b) { return runtime::UCase(a) < runtime::UCase(b); });
  if (const std::string own(NamesOf(component.Type()).own_object); !own.empty()) objects.insert(objects.begin(), own);
  return objects;
}

}  // namespace corvane::desk
