#include "environment/open_project.h"

#include <algorithm>
#include <utility>

#include "environment/observer.h"
#include "environment/open_environment.h"
#include "environment/paths.h"
#include "environment/statement.h"
#include "runtime/error.h"

namespace corvane::environment {

OpenProject::OpenProject(OpenEnvironment& environment, std::string path, ProjectFile file, const host::FileStamp& stamp)
    : environment_(std::static_pointer_cast<OpenEnvironment>(environment.shared_from_this())),
      path_(std::move(path)),
      file_(std::move(file)),
      stamp_(stamp) {}

OpenProject::~OpenProject() {
  Close();
}

void OpenProject::Close() {
  for (const auto& module : modules_) module->Detach();
  environment_.reset();
}

OpenEnvironment& OpenProject::Environment() const {
  auto environment = environment_.lock();
  if (!environment) throw host::Error(runtime::kObjectNotSet);
  return *environment;
}

// As VB names a project whose file gives no name: after the file.
std::string OpenProject::Name() {
  std::string name = file_.Value("Name");
  return name.empty() ? StemOf(FileName()) : name;
}

// Who asks shows it as text of the code page.
std::string OpenProject::FileName() {
  return InCodePage(path_);
}

std::vector<std::shared_ptr<Module>> OpenProject::Modules() const {
  return {modules_.begin(), modules_.end()};
}

long OpenProject::PositionOf(const OpenModule& module) const {
  auto found =
      std::find_if(modules_.begin(), modules_.end(), [&](const auto& other) { return other.get() == &module; });
  return found == modules_.end() ? 0 : static_cast<long>(found - modules_.begin()) + 1;
}

void OpenProject::SetDirty() {
  if (std::exchange(dirty_, true)) return;
  if (Observer* observer = Environment().CurrentObserver()) observer->DirtyChanged();
}

}  // namespace corvane::environment
