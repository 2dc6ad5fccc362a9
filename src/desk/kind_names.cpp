#include "desk/kind_names.h"

namespace corvane::desk {

namespace {

using host::ComponentType;

struct Row {
  ComponentType type;
  KindNames names;
};

constexpr Row kKinds[] = {
    {ComponentType::StdModule, {"Module", ""}},
    {ComponentType::ClassModule, {"ClassModule", "Class"}},
    {ComponentType::VBForm, {"Form", "Form"}},
    {ComponentType::VBMDIForm, {"MDIForm", "MDIForm"}},
    {ComponentType::PropPage, {"PropertyPage", "PropertyPage"}},
    {ComponentType::UserControl, {"UserControl", "UserControl"}},
    {ComponentType::DocObject, {"UserDocument", "UserDocument"}},
};

}  // namespace

KindNames NamesOf(ComponentType type) {
  for (const Row& row : kKinds)
    if (row.type == type) return row.names;
  return {};
}

}  // namespace corvane::desk
