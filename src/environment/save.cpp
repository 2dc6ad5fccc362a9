// Saving: each file is written as a whole or stays as it was; a file that somebody else changed is refused.
#include <algorithm>

#include "environment/observer.h"
#include "environment/open_environment.h"
#include "environment/open_project.h"
#include "environment/paths.h"
#include "runtime/error.h"

namespace corvane::environment {

namespace {

void RequirePath(const std::string& path) {
  if (path.empty()) throw host::Error(runtime::kPathFileAccessError, "never saved: it has no file yet");
}

void RequireUnchanged(bool changed) {
  if (changed) throw host::Error(runtime::kPermissionDenied, "changed on disk since it was read");
}

void RequireNoFile(host::Files& files, const std::string& path) {
  if (files.Attributes(path) != host::kNoSuchFile)
    throw host::Error(runtime::kFileAlreadyExists, runtime::DescriptionOf(runtime::kFileAlreadyExists) + ": " + path);
}

}  // namespace

// The binary files first: they only grow, so that the old text stays right whatever happens in between.
void OpenProject::WriteModule(OpenModule& module, const std::string& path) {
  if (!HasCode(module.Type())) return;
  host::Files& files = Environment().FilesInUse();
  module.WriteSiblings(path);
  std::string text = module.WriteToText();
  files.Write(path, text);
  module.TakeSaved(path, files.Stamp(path));
  Environment().FileWasSaved(module, text);
  if (Observer* observer = Environment().CurrentObserver()) observer->DirtyChanged();
}

void OpenProject::Save(Module& module, OnDiskChange rule) {
  auto& open = dynamic_cast<OpenModule&>(module);
  RequirePath(open.Path());
  if (rule == OnDiskChange::Refuse) {
    RequireUnchanged(open.ChangedOnDisk());
    open.RequireUnchangedSiblings();
  }
  WriteModule(open, open.Path());
}

std::string OpenProject::WholePath(const std::string& path) const {
  std::string whole = JoinPath(FolderOf(path_), path);
  if (IsAbsolutePath(whole)) return whole;
  throw host::Error(runtime::kPathNotFound, "a relative path, and the project has no folder: it was never saved");
}

bool OpenProject::UsesFile(const std::string& path, const OpenModule* but) const {
  auto uses_it = [&](const auto& module) { return module.get() != but && module->UsesFile(path); };
  if (SamePath(path_, path) || std::any_of(modules_.begin(), modules_.end(), uses_it)) return true;
  std::vector<ComponentLine> lines = file_.Components();
  auto names_it = [&](const ComponentLine& line) {
    bool is_own = but != nullptr && line.id == but->ProjectLine();
    return !is_own && SamePath(JoinPath(FolderOf(path_), line.path), path);
  };
  return std::any_of(lines.begin(), lines.end(), names_it);
}

bool OpenEnvironment::UsesFile(const std::string& path, const OpenModule* but) const {
  auto uses_it = [&](const auto& project) { return project->UsesFile(path, but); };
  return SamePath(group_path_, path) || std::any_of(projects_.begin(), projects_.end(), uses_it);
}

// What [module] would write when it is saved as [path] must belong to nobody else. Its own files it may share with
// another project.
void OpenProject::RequireFreeFiles(const OpenModule& module, const std::string& path) const {
  bool keeps_path = SamePath(path, module.Path());
  bool is_taken = !keeps_path && Environment().UsesFile(path, nullptr);
  std::string name = module.SiblingNameAt(path), sibling = name.empty() ? name : JoinPath(FolderOf(path), name);
  if (!name.empty() && !module.UsesFile(sibling)) is_taken |= Environment().UsesFile(sibling, &module);
  if (is_taken || (!name.empty() && SamePath(sibling, path))) throw host::Error(runtime::kFileAlreadyExists);
  RequireUnchanged(keeps_path && module.ChangedOnDisk());
}

void OpenProject::SaveAs(Module& of, const std::string& path, FileInTheWay rule) {
  auto& module = dynamic_cast<OpenModule&>(of);
  std::string whole = WholePath(path);
  RequireFreeFiles(module, whole);
  if (rule == FileInTheWay::Refuse && !SamePath(whole, module.Path())) RequireNoFile(Environment().FilesInUse(), whole);
  if (!HasCode(module.Type())) throw host::Error(runtime::kNoSuchMember);
  module.RequireOwnSibling(whole);
  std::string old_sibling = module.MoveSibling(whole);
  try {
    WriteModule(module, whole);
  } catch (const host::Error&) {
    module.MoveSiblingBack(old_sibling);
    throw;
  }
  ListInFile(module);
  NotifyComponents();
}

// The project file names the module by its path, from its own folder where it can, and in the code page, as all its
// text stands.
void OpenProject::ListInFile(OpenModule& module) {
  std::string path = RelativePath(InCodePage(FolderOf(path_)), InCodePage(module.Path()));
  if (file_.LineNumberOf(module.ProjectLine()) == 0)
    module.SetProjectLine(file_.AddComponent(module.Kind(), module.Name(), path));
  else
    file_.SetPath(module.ProjectLine(), path);
  SetDirty();
}

bool OpenProject::ChangedOnDisk() const {
  // A file that is gone may be written again, as a module's.
  host::FileStamp now = path_.empty() ? stamp_ : Environment().FilesInUse().Stamp(path_);
  return now.size != -1 && now != stamp_;
}

void OpenProject::SaveProjectFile(OnDiskChange rule) {
  RequirePath(path_);
  host::Files& files = Environment().FilesInUse();
  RequireUnchanged(rule == OnDiskChange::Refuse && ChangedOnDisk());
  files.Write(path_, file_.Write());
  stamp_ = files.Stamp(path_);
  dirty_ = false;
  if (Observer* observer = Environment().CurrentObserver()) observer->DirtyChanged();
}

void OpenEnvironment::FileWasSaved(const OpenModule& module, const std::string& saved) {
  for (const auto& project : projects_)
    for (const auto& other : project->OpenModules())
      if (other.get() != &module && !other->IsDirty() && SamePath(other->Path(), module.Path()))
        other->Reload(project->SourceOf(*other, saved, files_.Stamp(module.Path())));
}

std::vector<Problem> OpenEnvironment::SaveAll() {
  std::vector<Problem> failed;
  auto attempt = [&](const std::string& file, auto save) {
    try {
      save();
    } catch (const host::Error& error) {
      failed.push_back({file, 0, error.Description()});
    }
  };
  for (const auto& project : projects_) {
    for (const auto& module : project->OpenModules())
      if (module->IsDirty())
        attempt(module->Path().empty() ? module->Name() : module->Path(),
                [&] { project->Save(*module, OnDiskChange::Refuse); });
    if (project->IsDirty()) attempt(project->PathAsRead(), [&] { project->SaveProjectFile(OnDiskChange::Refuse); });
  }
  return failed;
}

}  // namespace corvane::environment
