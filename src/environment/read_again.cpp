// OpenModule: taking over what somebody else wrote into its files, with its windows, its selections and its place in
// the project as they are.
#include <algorithm>
#include <utility>

#include "environment/line_differences.h"
#include "environment/observer.h"
#include "environment/open_environment.h"
#include "environment/open_module.h"
#include "environment/open_project.h"
#include "environment/paths.h"
#include "runtime/error.h"

namespace corvane::environment {

std::vector<ChangedFile> OpenModule::FilesChangedOnDisk() const {
  std::vector<ChangedFile> changed;
  if (Path().empty() || !HasCode(kind_->type)) return changed;
  host::Files& files = Environment().FilesInUse();
  if (ChangedOnDisk()) changed.push_back({path_, files.Stamp(path_)});
  if (!designer_) return changed;
  for (const DesignerSibling& sibling : designer_->Siblings()) {
    std::string whole = JoinPath(FolderOf(path_), sibling.name);
    if (IsForeignSibling(whole)) changed.push_back({whole, files.Stamp(whole)});
  }
  return changed;
}

void OpenModule::ReadAgain() {
  auto project = project_.lock();
  if (!project || Path().empty()) throw host::Error(runtime::kPathFileAccessError, "never saved: it has no file yet");
  Source source = project->ReadFileAgain(*this);
  bool same = source.bytes == WriteToText();
  for (const ChangedFile& changed : FilesChangedOnDisk()) same &= SamePath(changed.path, path_);
  if (same)
    stamp_ = source.stamp;
  else
    Reload(std::move(source));
  if (std::exchange(dirty_, false))
    if (Observer* observer = Environment().CurrentObserver()) observer->DirtyChanged();
}

// The name that another program or another project gave it in its file.
void OpenModule::TakeName(const std::string& name) {
  auto project = project_.lock();
  if (!project || name.empty() || name == name_) return;
  if (project->HasName(name, this))
    return Environment().Report({path_, 0, "its name " + name + " is that of another component of " + project->Name()});
  std::string old_name = std::exchange(name_, name);
  project->WasRenamed(*this, old_name);
}

// The lines that differ are replaced one by one, the last ones first, so that who follows keeps its places; then the
// text is that of the file, with what it hides.
void OpenModule::TakeText(ModuleText text) {
  std::vector<LineDifference> differences = DifferencesOf(text_, text);
  for (auto each = differences.rbegin(); each != differences.rend(); ++each) {
    std::vector<std::string_view> lines;
    for (long line = each->first; line < each->first + each->inserted; ++line) lines.push_back(text.Line(line));
    Replace(each->start, each->removed, lines, false);
  }
  text.KeepLostOf(text_);
  text_ = std::move(text);
  procedures_.reset();
}

void OpenModule::Reload(Source source) {
  TakeText(ModuleText(std::move(source.bytes), source.head.code_start));
  if (designer_) designer_->Detach();
  designer_.reset();
  siblings_read_.clear();
  stamp_ = source.stamp;
  TakeHead(source.head);
  Environment().ForgetProblems(path_);
  for (const Problem& problem : source.head.problems) Environment().Report({path_, problem.line, problem.reason});
  if (std::exchange(designer_reported_, false)) ReportDesigner();
  TakeName(source.name);
  if (Observer* observer = Environment().CurrentObserver()) observer->ModuleReadAgain(*this);
}

OpenModule::Source OpenProject::SourceOf(OpenModule& module, std::string bytes, const host::FileStamp& stamp) const {
  OpenModule::Source source;
  source.kind = &module.Kind();
  source.path = module.PathAsRead();
  source.bytes = std::move(bytes);
  source.stamp = stamp;
  TakeHead(source, module.Name());
  return source;
}

// The stamp first: who writes in between is seen the next time.
OpenModule::Source OpenProject::ReadFileAgain(OpenModule& module) const {
  host::Files& files = Environment().FilesInUse();
  host::FileStamp stamp = files.Stamp(module.Path());
  OpenModule::Source source = SourceOf(module, files.Read(module.Path()), stamp);
  auto refuse = [](const std::string& reason) { throw host::Error(runtime::kInvalidFileFormat, reason); };
  if (std::string reason = TextRefusal(source); !reason.empty()) refuse(reason);
  if (source.head.cut_off) refuse("the file breaks off in its designer part");
  if (source.kind->type != module.Type()) refuse("it is a component of another kind now");
  if (HasName(source.name, &module)) refuse("its name " + source.name + " is that of another component");
  return source;
}

}  // namespace corvane::environment
