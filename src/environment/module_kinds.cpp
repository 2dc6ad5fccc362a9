#include "environment/module_kinds.h"

#include "environment/lookup.h"
#include "environment/statement.h"
#include "runtime/error.h"

namespace corvane::environment {

namespace {

using host::ComponentType;

constexpr ModuleKind kKinds[] = {
    {ComponentType::VBForm, "Form", ".frm", "VB.Form", ".frx", "Form", false},
    {ComponentType::VBMDIForm, "Form", ".frm", "VB.MDIForm", ".frx", "MDIForm", false},
    {ComponentType::StdModule, "Module", ".bas", "", "", "Module", true},
    {ComponentType::ClassModule, "Class", ".cls", "", "", "Class", true},
    {ComponentType::UserControl, "UserControl", ".ctl", "VB.UserControl", ".ctx", "UserControl", false},
    {ComponentType::PropPage, "PropertyPage", ".pag", "VB.PropertyPage", ".pgx", "PropertyPage", false},
    {ComponentType::DocObject, "UserDocument", ".dob", "VB.UserDocument", ".dox", "UserDocument", false},
    {ComponentType::ActiveXDesigner, "Designer", ".dsr", "", ".dsx", "", false},
    {ComponentType::RelatedDocument, "RelatedDoc", "", "", "", "", false},
};

template <class Test>
const ModuleKind* First(Test test) {
  for (const ModuleKind& kind : kKinds)
    if (test(kind)) return &kind;
  return nullptr;
}

}  // namespace

std::span<const ModuleKind> ModuleKinds() {
  return kKinds;
}

const ModuleKind& KindOf(host::ComponentType type) {
  const ModuleKind* found = First([&](const ModuleKind& kind) { return kind.type == type; });
  if (found == nullptr) throw runtime::Error(runtime::kInvalidProcedureCall);
  return *found;
}

const ModuleKind* KindOfKey(std::string_view key) {
  return First([&](const ModuleKind& kind) { return SameName(kind.key, key); });
}

const ModuleKind* KindOfExtension(std::string_view extension) {
  if (extension.empty()) return nullptr;
  return First([&](const ModuleKind& kind) { return SameName(kind.extension, extension); });
}

const ModuleKind* KindOfRootClass(std::string_view root_class) {
  if (root_class.empty()) return nullptr;
  return First([&](const ModuleKind& kind) { return SameName(kind.root_class, root_class); });
}

bool IsSiblingExtension(std::string_view extension) {
  return !extension.empty() && First([&](const ModuleKind& kind) { return SameName(kind.sibling, extension); });
}

}  // namespace corvane::environment
