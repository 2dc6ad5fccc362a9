// ProjectAccess: making and removing components and controls.
#include "runtime/strings.h"
#include "script/arguments.h"
#include "script/project_access.h"
#include "script/script_state.h"

namespace corvane::script {

using host::ComponentType;
using host::Ref;

namespace {

struct CreatedKind {
  const char* word;
  ComponentType type;
};
constexpr CreatedKind kCreated[] = {
    {"VBFORM", ComponentType::VBForm},       {"CLASSMODULE", ComponentType::ClassModule},
    {"DOCOBJECT", ComponentType::DocObject}, {"PROPPAGE", ComponentType::PropPage},
    {"STDMODULE", ComponentType::StdModule}, {"USERCONTROL", ComponentType::UserControl},
    {"VBMDIFORM", ComponentType::VBMDIForm},
};

const CreatedKind* FindKind(const std::string& class_name) {
  const std::string wanted = runtime::UCase(class_name);
  for (const CreatedKind& row : kCreated)
    if (wanted == row.word) return &row;
  return nullptr;
}

void SetName(const Ref<host::Properties>& properties, const std::string& name) {
  properties->Item("Name")->SetValue(name);
}

// A part whose name is refused is taken away again: nobody could say what it is called.
template <class Collection, class Part>
void NameOrRemove(Collection& collection, const Ref<Part>& made, const std::string& name) {
  try {
    SetName(made->Properties(), name);
  } catch (const host::Error&) {
    host::PassOverErrors([&] { collection.Remove(made); });
    throw;
  }
}

struct NewName {
  std::string own, container;  // no container: the form itself
};

// The container stands behind a separator, or before a ".".
NewName NewNameOf(const std::string& text) {
  const std::vector<std::string> parts = SplitArguments(text);
  if (parts.size() > 1) return {parts[0], parts[1]};
  const IdeAddress address = AddressOf(text);
  return {address.control, address.component};
}

void ReportNoProject(ErrorReport& errors, const std::string& wanted) {
  errors.ReportError(std::string("No project is open.") + runtime::kCrLf + wanted);
}

bool IsDesigned(const host::Ref<host::VBComponent>& component, const std::string& name) {
  return IsMe(name) || runtime::UCase(component->Name()) == runtime::UCase(name);
}

}  // namespace

void ProjectAccess::Create(ErrorReport& errors, const std::string& class_name, const std::string& name) {
  const Parts class_and_file = SplitArguments(class_name);
  if (runtime::Holds(class_and_file[0], "\\")) return CreateFromFile(errors, class_and_file[0]);
  const CreatedKind* kind = FindKind(class_and_file[0]);
  if (kind == nullptr) return CreateControl(errors, class_and_file, name);
  const auto project = targets_.Environment().ActiveVBProject();
  if (!project) return ReportNoProject(errors, class_name);
  const auto components = project->VBComponents();
  NameOrRemove(*components, components->Add(kind->type), SplitArguments(name)[0]);
}

void ProjectAccess::CreateFromFile(ErrorReport& errors, const std::string& path) {
  host::VBE& environment = targets_.Environment();
  if (runtime::Right(runtime::UCase(path), 4) == ".VBP") return environment.VBProjects()->AddFromFile(path);
  const auto project = environment.ActiveVBProject();
  if (!project) return ReportNoProject(errors, path);
  project->VBComponents()->AddFile(path);
}

// A class that the toolbox does not hold is put there first.
Ref<host::VBControl> ProjectAccess::NewControl(host::VBControls& controls, const Parts& class_and_file,
                                               const Ref<host::VBControl>& container) const {
  Ref<host::VBControl> made;
  const auto add = [&] { made = controls.Add(class_and_file[0], container); };
  if (host::PassOverErrors(add)) return made;
  host::PassOverErrors([&] {
    targets_.Environment().ActiveVBProject()->AddToolboxProgID(
        class_and_file[0], class_and_file.size() > 1 ? class_and_file[1] : std::string());
  });
  host::PassOverErrors(add);
  return made;
}

void ProjectAccess::CreateControl(ErrorReport& errors, const Parts& class_and_file, const std::string& name) {
  const NewName names = NewNameOf(name);
  Ref<host::VBControl> made;
  Ref<host::VBControls> controls;
  if (const Ref<host::VBForm> designer = targets_.Designer({})) {
    controls = designer->VBControls();
    const bool in_form = IsDesigned(targets_.Selected(), names.container);
    const Ref<host::VBControl> container = in_form ? nullptr : FindControl(*controls, names.container);
    if (in_form || container) made = NewControl(*controls, class_and_file, container);
  }
  if (!made) return errors.ReportError(std::string("Control does not created.") + runtime::kCrLf + class_and_file[0]);
  NameOrRemove(*controls, made, names.own);
}

void ProjectAccess::Remove(ErrorReport& errors, const std::string& text) {
  const IdeAddress address = AddressOf(text);
  const bool whole = runtime::UCase(address.component) == "ACTIVEVBPROJECT";
  const Ref<host::VBComponent> component =
      whole && !address.control.empty() ? targets_.Component(address.control) : nullptr;
  const Ref<host::VBControl> control = whole ? nullptr : targets_.Control(address);
  if (component) return targets_.Environment().ActiveVBProject()->VBComponents()->Remove(component);
  if (control) return targets_.Designer(address.component)->VBControls()->Remove(control);
  errors.ReportError(std::string("Component does not exists.") + runtime::kCrLf + text);
}

}  // namespace corvane::script
