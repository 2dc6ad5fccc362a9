#include "environment/new_module.h"

#include "environment/designer_form.h"

namespace corvane::environment {

namespace {

// What a new component says of itself to others.
struct Attributes {
  host::ComponentType type;
  const char *creatable, *predeclared;
};

constexpr Attributes kAttributes[] = {
    {host::ComponentType::ClassModule, "True", "False"}, {host::ComponentType::VBForm, "False", "True"},
    {host::ComponentType::VBMDIForm, "False", "True"},   {host::ComponentType::UserControl, "True", "False"},
    {host::ComponentType::PropPage, "True", "False"},    {host::ComponentType::DocObject, "True", "False"},
};

}  // namespace

std::string NewModuleText(host::ComponentType type, const std::string& name) {
  std::string text = NewDesignerText(type, name) + "Attribute VB_Name = \"" + name + "\"\r\n";
  for (const Attributes& row : kAttributes) {
    if (row.type != type) continue;
    text += "Attribute VB_GlobalNameSpace = False\r\n";
    text += std::string("Attribute VB_Creatable = ") + row.creatable + "\r\n";
    text += std::string("Attribute VB_PredeclaredId = ") + row.predeclared + "\r\n";
    text += "Attribute VB_Exposed = False\r\n";
  }
  return text;
}

}  // namespace corvane::environment
