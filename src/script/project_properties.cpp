// ProjectAccess: the project and its components, their properties and those of their controls.
#include "runtime/strings.h"
#include "script/arguments.h"
#include "script/project_access.h"
#include "script/property_text.h"
#include "script/script_state.h"

namespace corvane::script {

using host::Ref;

namespace {

struct KindWord {
  long type;
  const char* word;
};
constexpr KindWord kKindWords[] = {
    {1, "StdModule"}, {2, "ClassModule"}, {3, "MSForm"},    {5, "VBForm"},           {6, "VBMDIForm"},
    {7, "PropPage"},  {8, "UserControl"}, {9, "DocObject"}, {10, "RelatedDocument"}, {11, "ActiveXDesigner"},
};

// The class of its designer without its library, or the word of its kind; a kind without a word has none.
std::string KindOf(host::VBComponent& component) {
  std::string designer;
  host::PassOverErrors([&] { designer = component.DesignerID(); });
  if (!designer.empty()) return designer.substr(designer.find('.') + 1);
  for (const KindWord& row : kKindWords)
    if (row.type == static_cast<long>(component.Type())) return row.word;
  return {};
}

constexpr char kSelected[] = "SELECTEDVBCONTROLS";

bool NamesControls(const std::string& word) {
  const std::string upper = runtime::UCase(word);
  return upper == kSelected || upper == "CONTROLS";
}

template <class Controls>
std::string ListOf(Controls& controls) {
  std::string list;
  for (const Ref<host::VBControl>& control : host::Each(controls))
    list += control->ClassName() + '.' + AddressNameOf(*control) + '|';
  return list;
}

}  // namespace

std::string ProjectAccess::ProjectName() {
  const auto project = targets_.Environment().ActiveVBProject();
  return project ? project->Name() : std::string();
}

std::string ProjectAccess::ProjectFileName() {
  const auto project = targets_.Environment().ActiveVBProject();
  return project ? project->FileName() : std::string();
}

std::string ProjectAccess::Components(const std::string& filter) {
  const auto project = targets_.Environment().ActiveVBProject();
  const bool only_selected = runtime::UCase(filter) == "ME";
  const Ref<host::VBComponent> selected = only_selected ? targets_.Selected() : nullptr;
  if (!project || (only_selected && !selected)) return {};
  std::string list;
  for (const Ref<host::VBComponent>& component : host::Each(project->VBComponents())) {
    if (component->Type() == host::ComponentType::RelatedDocument) continue;
    if (only_selected && component->Name() != selected->Name()) continue;
    list += KindOf(*component) + '.' + component->Name() + '|';
    if (only_selected) break;
  }
  return list;
}

Ref<host::Properties> ProjectAccess::PropertiesAt(ErrorReport& errors, const std::string& address) const {
  auto properties = targets_.PropertiesAt(address);
  if (!properties) errors.ReportError(std::string("Component does not exists.") + runtime::kCrLf + address);
  return properties;
}

std::string ProjectAccess::ControlList(const std::string& component, const std::string& which) const {
  const Ref<host::VBForm> designer = targets_.Designer(component);
  if (!designer) return {};
  return runtime::UCase(which) == kSelected ? ListOf(*designer->SelectedVBControls()) : ListOf(*designer->VBControls());
}

std::string ProjectAccess::GetProp(ErrorReport& errors, const std::string& address_and_property) {
  const Parts parts = SplitArguments(address_and_property);
  const IdeAddress address = AddressOf(parts[0]);
  const std::string property = parts.size() < 2 ? std::string() : parts[1];
  if (NamesControls(address.control)) return ControlList(address.component, address.control);
  if (NamesControls(property)) return ControlList(parts[0], property);  // as an expression takes Me.Controls apart
  const Ref<host::Properties> properties = PropertiesAt(errors, parts[0]);
  if (!properties) return {};
  if (property.empty()) return AllProperties(*properties);
  std::string value;
  if (host::PassOverErrors([&] { value = ValueText(*properties->Item(property)); })) return value;
  const host::Variant named = NamedValue(property);  // a property may be called by its number, too
  if (const long* number = std::get_if<long>(&named))
    host::PassOverErrors([&] { value = ValueText(*properties->Item(*number)); });
  return value;
}

void ProjectAccess::SetProp(ErrorReport& errors, const std::string& address, const std::string& value) {
  const long dot = runtime::InStrRev(address, ".");
  const Ref<host::Properties> properties = PropertiesAt(errors, runtime::Left(address, dot - 1));
  if (!properties) return;
  const std::string name = runtime::Mid(address, dot + 1);
  const auto assign = [&](const host::Variant& given) { properties->Item(name)->SetValue(given); };
  if (!host::PassOverErrors([&] { assign(value); })) host::PassOverErrors([&] { assign(NamedValue(value)); });
  services_.Loop.DoEvents();
}

std::string ProjectAccess::SetPicture(ErrorReport& errors, const std::string& arguments) {
  const Parts parts = SplitArguments(arguments);
  const Ref<host::Properties> properties = PropertiesAt(errors, parts[0]);
  if (!properties || parts.size() < 2) return "False";
  const host::Variant picture = services_.Pictures.LoadPicture(parts[1]);
  const Ref<host::Property> property = properties->Item("Picture");
  if (!host::PassOverErrors([&] { property->SetObject(picture); })) property->SetValue(picture);
  return "True";
}

}  // namespace corvane::script
