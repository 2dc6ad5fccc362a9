// Saving, and the questions about files.
#include <QFileDialog>
#include <QScopedValueRollback>
#include <QStatusBar>
#include <set>

#include "desk/ansi_text.h"
#include "desk/bulleted.h"
#include "desk/main_window.h"
#include "desk/project_tree.h"
#include "desk/property_list.h"
#include "desk/shown_path.h"
#include "environment/disk_files.h"
#include "environment/paths.h"
#include "runtime/strings.h"

namespace corvane::desk {

using environment::ChangedFile;
using environment::FileInTheWay;
using environment::Module;
using environment::OnDiskChange;
using environment::Project;
using runtime::kCrLf;

namespace {

// For message boxes.
std::string Shown(const std::string& path) {
  return FromLabel(ShownPath(path));
}

// What saving [module] would replace although somebody else changed it.
std::vector<std::string> ForeignFilesOf(const Module& module) {
  std::vector<std::string> files = module.ChangedSiblings();
  if (module.ChangedOnDisk()) files.insert(files.begin(), module.Path());
  return files;
}

// A related document is only named by its project.
bool IsReadHere(Module& module) {
  return module.Type() != host::ComponentType::RelatedDocument && !module.Path().empty();
}

// The dialog asks before a file is replaced, of the very name that was chosen.
FileInTheWay RuleFor(const std::string& chosen) {
  const std::string native = environment::NativePath(chosen);
  return environment::WindowsPath(native) == chosen ? FileInTheWay::Replace : FileInTheWay::Refuse;
}

const char* ExtensionOf(host::ComponentType type) {
  switch (type) {
    case host::ComponentType::StdModule:
      return ".bas";
    case host::ComponentType::ClassModule:
      return ".cls";
    case host::ComponentType::PropPage:
      return ".pag";
    case host::ComponentType::UserControl:
      return ".ctl";
    case host::ComponentType::DocObject:
      return ".dob";
    case host::ComponentType::ActiveXDesigner:
      return ".dsr";
    default:
      return ".frm";
  }
}

}  // namespace

std::vector<std::string> MainWindow::UnsavedFiles() const {
  std::vector<std::string> files;
  for (const auto& project : environment_->Projects()) {
    for (const auto& module : project->Modules())
      if (module->IsDirty()) files.push_back(module->Path().empty() ? module->Name() : Shown(module->Path()));
    if (project->IsDirty()) files.push_back(Shown(project->FileName()));
  }
  // Projects may share a file: it is named once.
  std::set<std::string> named;
  std::erase_if(files, [&](const std::string& file) { return !named.insert(file).second; });
  return files;
}

std::string MainWindow::AskForFile(Module& module) {
  const std::string folder = environment::FolderOf(module.ProjectOf()->FileName());
  const QString extension = ExtensionOf(module.Type());
  QFileDialog dialog(this, tr("Save %1 As").arg(ToLabel(module.Name())));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(extension.mid(1));
  if (!folder.empty()) dialog.setDirectory(QString::fromStdString(environment::NativePath(folder)));
  dialog.selectFile(ToLabel(module.Name()) + extension);
  if (dialog.exec() != QDialog::Accepted) return {};
  return environment::WindowsPath(dialog.selectedFiles().value(0).toStdString());
}

bool MainWindow::MayReplace(const std::string& file) {
  const std::string question = Shown(file) + kCrLf + "was changed on disk by another program since it was read here." +
                               kCrLf + kCrLf + "Replace that file by what is on this desk?";
  return prompts_.MsgBox(question, host::vbYesNo | host::vbExclamation | host::vbDefaultButton2) == host::vbYes;
}

bool MainWindow::SaveModule(const std::shared_ptr<Module>& module) {
  properties_->TakeTyped();
  if (!module || asking_) return false;
  const QScopedValueRollback<bool> asking(asking_, true);
  const bool is_new = module->Path().empty();
  const std::string path = is_new ? AskForFile(*module) : module->Path();
  if (path.empty()) return false;
  try {
    const std::vector<std::string> foreign = ForeignFilesOf(*module);
    for (const std::string& file : foreign)
      if (!MayReplace(file)) return false;
    if (is_new)
      module->ProjectOf()->SaveAs(*module, path, RuleFor(path));
    else
      module->ProjectOf()->Save(*module, foreign.empty() ? OnDiskChange::Refuse : OnDiskChange::Overwrite);
    statusBar()->showMessage(tr("%1 is saved.").arg(ShownPath(module->Path())));
    return true;
  } catch (const std::exception& error) {
    return NotSaved(path, error);
  }
}

bool MainWindow::SaveProjectFile(Project& project) {
  if (asking_) return false;
  const QScopedValueRollback<bool> asking(asking_, true);
  try {
    const bool foreign = project.ChangedOnDisk();
    if (foreign && !MayReplace(project.FileName())) return false;
    project.SaveProjectFile(foreign ? OnDiskChange::Overwrite : OnDiskChange::Refuse);
    return true;
  } catch (const std::exception& error) {
    return NotSaved(project.FileName(), error);
  }
}

bool MainWindow::NotSaved(const std::string& file, const std::exception& error) {
  prompts_.MsgBox(Shown(file) + kCrLf + "was not saved: " + error.what(), host::vbExclamation);
  return false;
}

void MainWindow::SaveActive() {
  SaveModule(ActiveModule() ? ActiveModule() : tree_->Current());
}

// What needs a question is saved one by one; the environment saves the rest, project files last.
bool MainWindow::SaveAll() {
  properties_->TakeTyped();
  for (const auto& project : environment_->Projects()) {
    for (const auto& module : project->Modules())
      if (module->IsDirty() && (module->Path().empty() || !ForeignFilesOf(*module).empty()))
        if (!SaveModule(module)) return false;
    if (project->IsDirty() && project->ChangedOnDisk() && !SaveProjectFile(*project)) return false;
  }
  const std::vector<environment::Problem> problems = environment_->SaveAll();
  if (problems.empty()) {
    statusBar()->showMessage(tr("Everything is saved."));
    return true;
  }
  std::vector<std::string> lines;
  lines.reserve(problems.size());
  for (const environment::Problem& problem : problems) lines.push_back(Shown(problem.file) + ": " + problem.reason);
  prompts_.MsgBox("Not saved:" + Bulleted(lines), host::vbExclamation);
  return false;
}

bool MainWindow::MayLeave() {
  properties_->TakeTyped();
  if (!environment_->IsDirty()) return true;
  if (asking_) return false;
  long answer = host::vbCancel;
  {
    const QScopedValueRollback<bool> asking(asking_, true);
    answer = prompts_.MsgBox("Save the changes to these files?" + (kCrLf + Bulleted(UnsavedFiles())),
                             host::vbYesNoCancel | host::vbExclamation);
  }
  return answer == host::vbNo || (answer == host::vbYes && SaveAll());
}

bool MainWindow::AskAboutProjects() {
  std::vector<std::string> changed;
  for (const auto& project : environment_->Projects()) {
    const std::string file = project->FileName();
    if (!project->ChangedOnDisk())
      told_projects_.erase(file);
    else if (told_projects_.insert(file).second)
      changed.push_back(Shown(file));
  }
  if (changed.empty()) return false;
  const QScopedValueRollback<bool> asking(asking_, true);
  return prompts_.MsgBox(
             "Another program changed on disk:" + Bulleted(changed) + kCrLf + kCrLf + "Read the project again?",
             host::vbYesNo | host::vbQuestion) == host::vbYes;
}

bool MainWindow::MayTakeTheirs(const std::string& file) {
  const QScopedValueRollback<bool> asking(asking_, true);
  const std::string question = Shown(file) + kCrLf +
                               "was changed on disk by another program, and it was edited on this desk too." + kCrLf +
                               kCrLf + "Read the file again? What was edited here is lost then.";
  return prompts_.MsgBox(question, host::vbYesNo | host::vbExclamation | host::vbDefaultButton2) == host::vbYes;
}

bool MainWindow::ReadModuleAgain(Module& module) {
  try {
    module.ReadAgain();
    return true;
  } catch (const std::exception& error) {
    const QScopedValueRollback<bool> asking(asking_, true);
    prompts_.MsgBox(Shown(module.Path()) + kCrLf + "was changed on disk by another program and cannot be read again: " +
                        error.what() + kCrLf + kCrLf + "What is on this desk stays as it is.",
                    host::vbExclamation);
    return false;
  }
}

void MainWindow::CheckModule(Module& module, QStringList& read) {
  const std::vector<ChangedFile> changed = module.FilesChangedOnDisk();
  if (changed.empty() || told_changes_.value(&module) == changed) {
    if (changed.empty()) told_changes_.remove(&module);
    return;
  }
  told_changes_.insert(&module, changed);
  if (module.IsDirty() && !MayTakeTheirs(changed.front().path)) return;
  if (!ReadModuleAgain(module)) return;
  told_changes_.remove(&module);
  for (const ChangedFile& file : changed) read << ShownPath(file.path);
}

void MainWindow::CheckDisk() {
  if (asking_) return;
  if (AskAboutProjects()) {
    if (MayLeave()) emit ReadAgainWanted();
    return;
  }
  QStringList read;
  for (const auto& project : environment_->Projects())
    for (const auto& module : project->Modules())
      if (IsReadHere(*module)) CheckModule(*module, read);
  read.removeDuplicates();
  if (read.size() == 1)
    Told(tr("%1 was changed by another program and was read again.").arg(read.front()));
  else if (!read.isEmpty())
    Told(tr("%1 files were changed by another program and were read again.").arg(read.size()));
}

}  // namespace corvane::desk
