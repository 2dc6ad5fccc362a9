#include "cli/script_project.h"

#include <ostream>

#include "cli/shown_path.h"
#include "cli/unified_diff.h"
#include "environment/disk_files.h"
#include "environment/module_kinds.h"
#include "environment/paths.h"
#include "environment/project.h"
#include "runtime/code_page.h"
#include "runtime/strings.h"

namespace corvane::cli {

ScriptProject::ScriptProject(host::Files& disk, int code_page)
    : files_(disk), environment_(environment::Environment::Create(files_, nullptr, {code_page})) {}

void ScriptProject::Open(const std::string& path, std::ostream& errors) {
  const std::string windows = environment::WindowsPath(path);
  environment_->Open(windows);
  folder_ = environment::FolderOf(windows);
  runtime::SetAnsiCodePage(environment_->CodePage());
  for (const environment::Problem& problem : environment_->Problems()) Tell(errors, problem);
  if (environment_->Projects().empty())
    throw host::Error(runtime::kInvalidFileFormat, "no project in the group could be opened");
}

void ScriptProject::Select(const std::string& component) {
  environment_->SelectComponent(environment_->ActiveVBProject()->VBComponents()->Item(component));
}

// A component that the script made gets a file of its name beside its project. One that is there already is somebody
// else's.
bool ScriptProject::NameNewFiles(std::ostream& errors) {
  bool all = true;
  for (const auto& project : environment_->Projects())
    for (const auto& module : project->Modules()) {
      if (!module->Path().empty() || !environment::HasCode(module->Type())) continue;
      const std::string path = environment::FolderOf(project->FileName()) + module->Name() +
                               std::string(environment::KindOf(module->Type()).extension);
      try {
        if (files_.Attributes(path) != host::kNoSuchFile) throw host::Error(runtime::kFileAlreadyExists);
        module->SaveAs(path);
      } catch (const host::Error& error) {
        errors << ShownPath(path) << ": " << cli::ShownName(error.Description()) << '\n';
        all = false;
      }
    }
  return all;
}

bool ScriptProject::Collect(std::ostream& errors) {
  if (!NameNewFiles(errors)) return false;
  const std::vector<environment::Problem> problems = environment_->SaveAll();
  for (const environment::Problem& problem : problems) Tell(errors, problem);
  return problems.empty();
}

std::string ScriptProject::ShownName(const std::string& path) const {
  return runtime::Replace(cli::ShownName(environment::RelativePath(folder_, path)), "\\", "/");
}

void ScriptProject::TellChanges(std::ostream& out) const {
  for (const PendingFiles::Change& change : files_.Changes()) {
    const std::string name = ShownName(change.path);
    const runtime::CodePage& page = runtime::AnsiCodePage();
    out << UnifiedDiff(change.is_new ? "/dev/null" : name, name, page.ToUtf8(files_.OnDisk(change)),
                       page.ToUtf8(change.bytes));
  }
}

bool ScriptProject::Save(std::ostream& errors) {
  for (const PendingFiles::Change& change : files_.Changes()) {
    try {
      files_.Commit(change);
    } catch (const host::Error& error) {
      TellFailure(errors, ShownPath(change.path), error);
      return false;
    }
  }
  return true;
}

}  // namespace corvane::cli
