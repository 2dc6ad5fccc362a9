#include "environment/open_module.h"

#include <algorithm>
#include <utility>

#include "environment/doubtful_points.h"
#include "environment/observer.h"
#include "environment/open_code_module.h"
#include "environment/open_environment.h"
#include "environment/open_project.h"
#include "environment/paths.h"
#include "environment/statement.h"
#include "runtime/code_page.h"
#include "runtime/error.h"

namespace corvane::environment {

namespace {

// A letter, then letters, digits and underscores; at most 40.
bool IsLegalName(const std::string& name) {
  auto is_word = [](char c) { return runtime::AnsiCodePage().IsWordByte(static_cast<unsigned char>(c)); };
  bool starts = !name.empty() && name[0] != '_' && !(name[0] >= '0' && name[0] <= '9');
  return starts && name.size() <= 40 && std::all_of(name.begin(), name.end(), is_word);
}

}  // namespace

OpenModule::OpenModule(OpenProject& project, Source source)
    : project_(project.weak_from_this()),
      kind_(source.kind),
      name_(std::move(source.name)),
      path_(std::move(source.path)),
      project_line_(source.project_line),
      stamp_(source.stamp) {
  if (!HasCode(kind_->type)) return;
  TakeHead(source.head);
  text_ = ModuleText(std::move(source.bytes), source.head.code_start);
}

OpenModule::~OpenModule() {
  Detach();
}

void OpenModule::CloseWindows() {
  if (HasPane()) pane_->Close();
  if (designer_open_) ShowDesigner(false);
}

void OpenModule::Detach() {
  if (pane_) pane_->Detach();
  pane_.reset();
  if (designer_) designer_->Detach();
  if (auto project = project_.lock(); designer_window_ && project && project->EnvironmentOf())
    project->EnvironmentOf()->WindowsOf().Remove(designer_window_);
  if (designer_window_) designer_window_->Detach();
  designer_window_.reset();
  project_.reset();
}

void OpenModule::TakeHead(const ModuleHead& head) {
  designer_end_ = head.designer_end;
  cut_off_ = head.cut_off;
  charsets_ = head.charsets;
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

bool OpenModule::FindIn(const FindRequest& request, FoundPlace& place) const {
  return Environment().FinderInUse().Find(text_, request, place);
}

host::Ref<host::CodeModule> OpenModule::CodeModule() {
  if (!HasCode(kind_->type)) throw host::Error(runtime::kNoSuchMember);
  return std::make_shared<OpenCodeModule>(shared_from_this());
}

void OpenModule::SetName(const std::string& name) {
  auto project = project_.lock();
  if (!project) throw host::Error(runtime::kObjectNotSet);
  if (name == name_) return;
  if (!IsLegalName(name)) throw host::Error(runtime::kInvalidPropertyValue);
  project->RequireFreeName(name, this);
  if (HasDesigner(kind_->type)) DesignerOf().SetRootName(name);
  if (HasCode(kind_->type)) RenameHead(name);
  std::string old_name = std::exchange(name_, name);
  SetDirty();
  project->WasRenamed(*this, old_name);
}

// The designer part keeps its own name; the attributes behind it are text.
void OpenModule::RenameHead(const std::string& name) {
  std::string head(text_.Head());
  text_.SetHead(head.substr(0, designer_end_) + HeadWithName(head.substr(designer_end_), name));
}

std::string OpenModule::Path() const {
  return IsAbsolutePath(path_) ? path_ : std::string();
}

long OpenModule::FileCount() {
  bool has_sibling = !Path().empty() && !SiblingName().empty();
  return has_sibling ? 2 : doubtful::kFileCountWithoutFrx;
}

std::string OpenModule::FileNames(long index) {
  if (index < 1 || index > FileCount()) throw host::Error(runtime::kSubscriptOutOfRange);
  return InCodePage(index == 1 || SiblingName().empty() ? Path() : JoinPath(FolderOf(path_), SiblingName()));
}

void OpenModule::SaveAs(const std::string& path) {
  auto project = project_.lock();
  if (!project) throw host::Error(runtime::kObjectNotSet);
  project->SaveAs(*this, path, FileInTheWay::Refuse);
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
  return text_.Write(HeadText());
}

void OpenModule::Change(long start, long count, const std::string* text, bool by_user) {
  if (cut_off_) throw host::Error(runtime::kPathFileAccessError, "the file breaks off in its designer part");
  std::vector<std::string_view> lines;
  if (text != nullptr) lines = CutIntoLines(*text);
  Replace(start, count, lines, by_user);
  SetDirty();
}

void OpenModule::Replace(long start, long count, const std::vector<std::string_view>& lines, bool by_user) {
  auto inserted = static_cast<long>(lines.size());
  if (procedures_ && !procedures_->Follow(start, count, lines)) procedures_.reset();
  text_.Replace(start, count, lines, by_user);
  if (pane_) pane_->LinesChanged(start, count, inserted);
  if (Observer* observer = Environment().CurrentObserver()) observer->LinesChanged(*this, start, count, inserted);
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
  if (designer_) designer_->SetClean();
}

bool OpenModule::ChangedOnDisk() const {
  // A file that is gone may be written again: nothing is lost by it.
  host::FileStamp now = Path().empty() ? stamp_ : Environment().FilesInUse().Stamp(path_);
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
