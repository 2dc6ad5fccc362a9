// A second component from the current one: the environment does not hold two of one name, so the present one becomes
// the clone, and comes back from the file it was saved in.
#include "explorer/frm_add_in.h"
#include "explorer/project_access.h"
#include "runtime/strings.h"

namespace corvane::explorer {

using namespace runtime;
using host::Ref;

namespace {

constexpr char kNotAvailable[] =
    "Can not clone current Component. Component's file is not available\r\n"
    "May be you have not saved the Project yet.";
constexpr char kFileReadOnly[] = "Can not clone current Component. Component's file is read only";
constexpr char kProjectReadOnly[] = "Can not clone current Component. Project's file is read only";
constexpr char kCanNot[] = "Can not clone current Component. ";
constexpr long kShortestFile = 3;

std::string FileOf(host::VBComponent& component) {
  std::string file;
  PassOverErrors([&] { file = component.FileNames(1); });
  return file;
}

std::string FolderOf(const std::string& path) {
  return runtime::Left(path, InStrRev(path, "\\"));
}

std::string ExtensionOf(const std::string& path) {
  return Mid(path, InStrRev(path, ".") + 1);
}

}  // namespace

// What the key and its entry do.
void frmAddIn::CloneCurrent() {
  pendingComponent.clear();
  ComponentAction(ComponentAct::Clone);
  if (Len(pendingComponent) < kShortestFile) return;
  std::string file = std::exchange(pendingComponent, {});
  try {
    Object(ActiveComponents(VBInstance)->AddFile(file)).SaveAs(file);
  } catch (const host::Error& error) {
    SayWhyNotCloned(error);
  }
  FillComponentList();
}

void frmAddIn::CloneComponent(host::VBComponent& component, const std::string& name) {
  const std::string file = FileOf(component), project = ActiveProject(VBInstance)->FileName();
  if (file.empty()) return SayNotCloned(kNotAvailable);
  if (IsReadOnly(file)) return SayNotCloned(kFileReadOnly);
  try {
    component.SaveAs(file);
    if (IsReadOnly(project)) return SayNotCloned(kProjectReadOnly);
    const std::string path = FolderOf(project) + name + "." + ExtensionOf(file);
    // No other file may be lost.
    if (services.Files.Attributes(path) != host::kNoSuchFile) return SayNotCloned(kCanNot + path + " already exists.");
    Object(component.Properties()).Item("Name")->SetValue(name);
    component.SaveAs(path);
  } catch (const host::Error& error) {
    return SayWhyNotCloned(error);
  }
  pendingComponent = file;
  PassOverErrors([&] { Object(component.DesignerWindow()).Close(); });
}

// A file that is not there has all attributes.
bool frmAddIn::IsReadOnly(const std::string& file) {
  return (services.Files.Attributes(file) & host::kReadOnly) != 0;
}

void frmAddIn::SayNotCloned(const std::string& message) {
  services.Prompts.MsgBox(message, host::vbExclamation);
}

void frmAddIn::SayWhyNotCloned(const host::Error& error) {
  SayNotCloned(kCanNot + error.Description());
}

}  // namespace corvane::explorer
