// OpenEnvironment: opening project files and groups from disk.
#include <algorithm>

#include "environment/group_file.h"
#include "environment/lookup.h"
#include "environment/open_environment.h"
#include "environment/open_project.h"
#include "environment/paths.h"
#include "environment/statement.h"
#include "runtime/code_page.h"
#include "runtime/error.h"

namespace corvane::environment {

std::string ReasonOf(const runtime::Error& error) {
  switch (error.Number()) {
    case runtime::kFileNotFound:
    case runtime::kPathNotFound:
      return "file not found";
    case runtime::kPermissionDenied:
      return "no permission to read the file";
    case runtime::kPathFileAccessError:
      return "a file that cannot be read";
    default:
      return error.Description();
  }
}

void OpenEnvironment::Open(const std::string& path) {
  int page_before = runtime::AnsiCodePage().Number();
  try {
    OpenFile(path);
  } catch (const host::Error&) {
    // Another environment may live on that page.
    runtime::SetAnsiCodePage(page_before);
    throw;
  }
}

void OpenEnvironment::OpenFile(const std::string& path) {
  auto is_open = [&](const auto& project) { return SamePath(project->PathAsRead(), path); };
  bool same_group = !projects_.empty() && SamePath(group_path_, path);
  if (same_group || std::any_of(projects_.begin(), projects_.end(), is_open))
    throw host::Error(runtime::kFileAlreadyExists, "it is open already");
  // What an earlier environment guessed for its projects says nothing about these.
  if (options_.code_page == 0 && projects_.empty()) runtime::SetAnsiCodePage(kUsualCodePage);
  std::string bytes = files_.Read(path);
  if (GroupFile::IsGroup(bytes))
    OpenGroup(path, bytes);
  else
    active_ = AddProject(path, bytes, {});
}

void OpenEnvironment::OpenGroup(const std::string& path, const std::string& bytes) {
  GroupFile group(bytes);
  group_path_ = path;
  for (const Problem& problem : group.Problems()) Report({path, problem.line, problem.reason});
  std::shared_ptr<OpenProject> first, startup;
  for (const GroupFile::ProjectLine& line : group.Projects()) {
    std::shared_ptr<OpenProject> project = OpenInGroup(path, line);
    if (project && !first) first = project;
    if (project && line.startup) startup = project;
  }
  if (startup || first) active_ = startup ? startup : first;
}

std::shared_ptr<OpenProject> OpenEnvironment::OpenInGroup(const std::string& group,
                                                          const GroupFile::ProjectLine& line) {
  auto refuse = [&](const std::string& reason) {
    Report({group, line.line, line.path + ": " + reason});
    return nullptr;
  };
  std::string path = JoinPath(FolderOf(group), line.path);
  if (SamePath(path, group)) return refuse("the group names itself");
  for (const auto& project : projects_)
    if (SamePath(project->PathAsRead(), path)) return refuse("named twice in the group");
  try {
    std::string bytes = files_.Read(path);
    if (GroupFile::IsGroup(bytes)) return refuse("a group inside a group");
    std::shared_ptr<OpenProject> project = AddProject(path, bytes, {});
    for (const auto& other : projects_)
      if (other != project && SameName(other->Name(), project->Name()))
        refuse("its name " + project->Name() + " is that of another project of the group");
    return project;
  } catch (const host::Error& error) {
    return refuse(error.Number() == runtime::kInvalidFileFormat ? error.Description() : ReasonOf(error));
  }
}

}  // namespace corvane::environment
