// A second component from the current one: the environment does not hold two of one name, so the present one becomes
// the clone, and comes back from the file it was saved in.
#include <vector>

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

// The binary file that stands beside a component's own, by the extension of that.
struct FileBeside {
  const char* extension;
  const char* beside;
};
constexpr FileBeside kFilesBeside[] = {{"frm", "frx"}, {"ctl", "ctx"}, {"pag", "pgx"},
                                       {"dob", "dox"}, {"dsr", "dsx"}, {"dsr", "dca"}};

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

// The first file that a component saved as [stem] and [extension] would overwrite; empty text if there is none.
std::string FileInTheWay(host::Files& files, const std::string& stem, const std::string& extension) {
  std::vector<std::string> written = {stem + extension};
  for (const FileBeside& pair : kFilesBeside)
    if (LCase(extension) == pair.extension) written.push_back(stem + pair.beside);
  for (const std::string& path : written)
    if (files.Attributes(path) != host::kNoSuchFile) return path;
  return {};
}

std::string WhereTheFirstIs(const std::string& file) {
  return "\r\nThe first Component is no longer in the Project. Its file is " + file;
}

// After a save that failed: the next one of the project would write the new name into the old file.
std::string WhatIsLeft(const std::string& oldName, const std::string& name, const std::string& file) {
  return "\r\nThe Component's name is \"" + name + "\" now, but its file is still " + file + "\r\nGive it the name \"" +
         oldName + "\" again before you save the Project.";
}

}  // namespace

// What the key and its entry do.
void frmAddIn::CloneCurrent() {
  pendingComponent.clear();
  ComponentAction(ComponentAct::Clone);
  if (Len(pendingComponent) < kShortestFile) return;
  std::string file = std::exchange(pendingComponent, {});
  Ref<host::VBComponent> first;
  try {
    first = ActiveComponents(VBInstance)->AddFile(file);
    Object(first).SaveAs(file);
  } catch (const host::Error& error) {
    SayNotCloned(kCanNot + error.Description() + (first ? std::string() : WhereTheFirstIs(file)));
  }
  FillComponentList();
}

void frmAddIn::CloneComponent(host::VBComponent& component, const std::string& name) {
  const std::string file = FileOf(component), project = ActiveProject(VBInstance)->FileName();
  if (file.empty()) return SayNotCloned(kNotAvailable);
  if (IsReadOnly(file)) return SayNotCloned(kFileReadOnly);
  // Its own name is in use as well: the clone would take the place of the first component.
  if (FindComponentIndex(VBInstance, name) != 0) return SayNotCloned(kCanNot + ("\"" + name + "\" is in use already."));
  const std::string oldName = component.Name();
  bool isRenamed = false;
  try {
    component.SaveAs(file);
    if (IsReadOnly(project)) return SayNotCloned(kProjectReadOnly);
    const std::string stem = FolderOf(project) + name + ".", extension = ExtensionOf(file);
    // No other file may be lost, and nothing is renamed before that is sure.
    const std::string inTheWay = FileInTheWay(services.Files, stem, extension);
    if (!inTheWay.empty()) return SayNotCloned(kCanNot + inTheWay + " already exists.");
    Object(component.Properties()).Item("Name")->SetValue(name);
    isRenamed = true;
    component.SaveAs(stem + extension);
  } catch (const host::Error& error) {
    if (!isRenamed) return SayWhyNotCloned(error);
    return SayNotCloned(kCanNot + error.Description() + WhatIsLeft(oldName, name, file));
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
