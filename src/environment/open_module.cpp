#include "environment/open_module.h"

#include <utility>

#include "environment/doubtful_points.h"
#include "environment/observer.h"
#include "environment/open_code_module.h"
#include "environment/open_environment.h"
#include "environment/open_project.h"
#include "environment/statement.h"
#include "runtime/error.h"

namespace corvane::environment {

OpenModule::OpenModule(OpenProject& project, Source source)
    : project_(project.weak_from_this()),
      kind_(source.kind),
      name_(std::move(source.name)),
      path_(std::move(source.path)),
      project_line_(source.project_line),
      stamp_(source.stamp) {
  if (HasCode(kind_->type)) ReadSource(std::move(source.bytes), source.head);
}

OpenModule::~OpenModule() {
  Detach();
}

void OpenModule::Detach() {
  if (pane_) pane_->Detach();
  pane_.reset();
  project_.reset();
}

void OpenModule::ReadSource(std::string bytes, const ModuleHead& head) {
  designer_end_ = head.designer_end;
  charsets_ = head.charsets;
  text_ = ModuleText(std::move(bytes), head.code_start);
  procedures_.reset();
}

OpenEnvironment& OpenModule::Environment() const {
  auto project = project_.lock();
  auto environment = project ? project->EnvironmentOf() : nullptr;
  if (!environment) throw host::Error(runtime::kObjectNotSet);
  return *environment;
}

const ProcedureIndex& OpenModule::Procedures() const {
  if (!procedures_) procedures_.emplace(text_);
  return *procedures_;
}

host::Ref<host::CodeModule> OpenModule::CodeModule() {
  if (!HasCode(kind_->type)) throw host::Error(runtime::kNoSuchMember);
  return std::make_shared<OpenCodeModule>(shared_from_this());
}

host::Ref<host::VBForm> OpenModule::Designer() {
  return nullptr;
}
bool OpenModule::HasOpenDesigner() {
  return false;
}
host::Ref<host::Window> OpenModule::DesignerWindow() {
  throw host::Error(runtime::kNoSuchMember);
}
host::Ref<host::Properties> OpenModule::Properties() {
  throw host::Error(runtime::kNoSuchMember);
}
void OpenModule::UserOpenDesigner(bool) {}
void OpenModule::UserSelectControls(const std::vector<long>&) {}

void OpenModule::SetName(const std::string& name) {
  auto project = project_.lock();
  if (!project) throw host::Error(runtime::kObjectNotSet);
  if (name == name_) return;
  project->RequireFreeName(name, this);
  text_.SetHead(HeadWithName(text_.Head(), name));
  std::string old_name = std::exchange(name_, name);
  SetDirty();
  project->WasRenamed(*this, old_name);
}

long OpenModule::FileCount() {
  return doubtful::kFileCountWithoutFrx;
}

std::string OpenModule::FileNames(long index) {
  if (index < 1 || index > FileCount()) throw host::Error(runtime::kSubscriptOutOfRange);
  return path_;
}

void OpenModule::SaveAs(const std::string& path) {
  auto project = project_.lock();
  if (!project) throw host::Error(runtime::kObjectNotSet);
  project->SaveAs(*this, path);
}

host::Ref<host::VBE> OpenModule::VBE() {
  return Environment().shared_from_this();
}

std::shared_ptr<Project> OpenModule::ProjectOf() const {
  return project_.lock();
}

long OpenModule::Position() const {
  auto project = project_.lock();
  return project ? project->PositionOf(*this) : 0;
}

std::string OpenModule::WriteToText() const {
  return text_.Write();
}

void OpenModule::Change(long start, long count, const std::string* text, bool by_user) {
  std::vector<std::string_view> lines;
  if (text != nullptr) lines = CutIntoLines(*text);
  auto inserted = static_cast<long>(lines.size());
  text_.Replace(start, count, lines, by_user);
  procedures_.reset();
  if (pane_) pane_->LinesChanged(start, count, inserted);
  if (Observer* observer = Environment().CurrentObserver()) observer->LinesChanged(*this, start, count, inserted);
  SetDirty();
}

void OpenModule::ReplaceLines(long start, long count, const std::string& text) {
  bool valid = start >= 1 && count >= 0 && start + count - 1 <= text_.Count();
  if (!valid) throw host::Error(runtime::kSubscriptOutOfRange);
  Change(start, count, &text, true);
}

void OpenModule::SetDirty() {
  if (std::exchange(dirty_, true)) return;
  if (Observer* observer = Environment().CurrentObserver()) observer->DirtyChanged();
}

void OpenModule::TakeSaved(const std::string& path, const host::FileStamp& stamp) {
  path_ = path;
  stamp_ = stamp;
  dirty_ = false;
}

void OpenModule::Reload(std::string bytes, const host::FileStamp& stamp) {
  long old_count = text_.Count();
  ModuleHead head = ReadModuleHead(bytes);
  ReadSource(std::move(bytes), head);
  stamp_ = stamp;
  if (Observer* observer = Environment().CurrentObserver()) observer->LinesChanged(*this, 1, old_count, text_.Count());
}

bool OpenModule::ChangedOnDisk() const {
  // A file that is gone may be written again: nothing is lost by it.
  host::FileStamp now = path_.empty() ? stamp_ : Environment().FilesInUse().Stamp(path_);
  return now.size != -1 && now != stamp_;
}

Pane& OpenModule::PaneOf() {
  if (!pane_) pane_ = Pane::Create(Environment().PanesOf(), Environment().WindowsOf(), *this);
  return *pane_;
}

void OpenModule::UserSelection(const host::Selection& selection) {
  PaneOf().UserSelect(selection);
}
void OpenModule::UserActivatePane() {
  PaneOf().Activate();
}
void OpenModule::UserClosePane() {
  if (pane_) pane_->Close();
}
host::Selection OpenModule::PaneSelection() const {
  return pane_ ? pane_->Current() : host::Selection();
}

std::string OpenModule::PaneCaption() {
  auto project = project_.lock();
  return (project ? project->Name() : std::string()) + " - " + name_ + " (Code)";
}

void OpenModule::PaneWasShown() {
  if (Observer* observer = Environment().CurrentObserver()) observer->PaneShown(*this);
}
void OpenModule::PaneWasClosed() {
  if (Observer* observer = Environment().CurrentObserver()) observer->PaneClosed(*this);
}
void OpenModule::PaneSelectionSet() {
  if (Observer* observer = Environment().CurrentObserver()) observer->SelectionSet(*this);
}

}  // namespace corvane::environment
