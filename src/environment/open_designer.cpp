// OpenModule: its designer, the designer's window, and the binary file beside the module.
#include <algorithm>
#include <utility>

#include "environment/observer.h"
#include "environment/open_environment.h"
#include "environment/open_module.h"
#include "environment/open_project.h"
#include "environment/paths.h"
#include "environment/statement.h"
#include "runtime/error.h"
#include "runtime/strings.h"

namespace corvane::environment {

// Made at the first need.
Designer& OpenModule::DesignerOf() {
  if (!designer_) {
    std::string part(text_.Head().substr(0, designer_end_));
    designer_ = std::make_unique<environment::Designer>(kind_->type, std::move(part), *this);
  }
  return *designer_;
}

void OpenModule::ReportDesigner() {
  if (!HasCode(kind_->type) || std::exchange(designer_reported_, true)) return;
  const std::vector<DesignerProblem>& problems = DesignerOf().Problems();
  if (problems.empty()) return;
  const std::string& file = path_.empty() ? name_ : path_;
  std::unordered_set<long> told = Environment().LinesReported(file);
  for (long line : ConflictMarkLines(text_.Head().substr(0, designer_end_))) told.insert(line);
  for (const DesignerProblem& problem : problems)
    if (told.insert(problem.line).second) Environment().Report({file, problem.line, problem.reason});
}

std::string OpenModule::HeadText() const {
  std::string_view head = text_.Head();
  if (!designer_) return std::string(head);
  return designer_->Write().append(head.substr(designer_end_));
}

host::Ref<host::VBForm> OpenModule::Designer() {
  if (!HasDesigner(kind_->type)) return nullptr;
  ReportDesigner();
  return DesignerOf().Form();
}

host::Ref<host::Properties> OpenModule::Properties() {
  if (!HasCode(kind_->type)) throw host::Error(runtime::kNoSuchMember);
  ReportDesigner();
  return DesignerOf().Properties();
}

void OpenModule::UserSelectControls(const std::vector<long>& positions) {
  if (HasDesigner(kind_->type)) DesignerOf().Select(positions);
}

void OpenModule::UserOpenDesigner(bool open) {
  designer_open_ = open && HasDesigner(kind_->type);
}

void OpenModule::ShowDesigner(bool open) {
  designer_open_ = open;
  if (Observer* observer = Environment().CurrentObserver()) observer->DesignerShown(*this, open);
}

WindowActs OpenModule::DesignerActs() {
  std::weak_ptr<OpenModule> weak = weak_from_this();
  auto with = [weak](auto act) {
    if (auto module = weak.lock()) act(*module);
  };
  WindowActs acts;
  acts.caption = [weak] {
    auto module = weak.lock();
    auto project = module ? module->project_.lock() : nullptr;
    return project ? project->Name() + " - " + module->name_ + " (Form)" : std::string();
  };
  acts.is_open = [weak] {
    auto module = weak.lock();
    return module && module->designer_open_;
  };
  acts.focus = [with] {
    with([](OpenModule& module) {
      if (!module.designer_open_) module.ShowDesigner(true);
      if (Observer* observer = module.Environment().CurrentObserver()) observer->DesignerFocused(module);
    });
  };
  acts.close = [with] { with([](OpenModule& module) { module.ShowDesigner(false); }); };
  acts.set_visible = [with](bool visible) { with([visible](OpenModule& module) { module.ShowDesigner(visible); }); };
  return acts;
}

host::Ref<host::Window> OpenModule::DesignerWindow() {
  if (!HasDesigner(kind_->type)) throw host::Error(runtime::kNoSuchMember);
  if (!designer_window_) designer_window_ = Environment().WindowsOf().Add(DesignerActs());
  if (!designer_open_) ShowDesigner(true);
  return designer_window_;
}

void OpenModule::DesignerChanged() {
  if (Observer* observer = Environment().CurrentObserver()) observer->DesignerChanged(*this);
  SetDirty();
}

std::string OpenModule::ModuleAttribute(const std::string& name) {
  std::string attributes(text_.Head().substr(designer_end_));
  for (std::string_view line : CutIntoLines(attributes)) {
    size_t equals = line.find('=');
    if (!IsAttributeLine(line) || equals == std::string_view::npos) continue;
    std::string_view rest = WithoutIndent(line.substr(9, equals - 9));
    if (StartsWithWord(rest, name)) return std::string(WithoutIndent(line.substr(equals + 1)));
  }
  return {};
}

std::string OpenModule::ReadSibling(const std::string& name) {
  auto project = project_.lock();
  if (!project || path_.empty()) throw host::Error(runtime::kFileNotFound);
  std::string path = JoinPath(FolderOf(path_), name);
  host::FileStamp stamp = IsAbsolutePath(path) ? Environment().FilesInUse().Stamp(path) : host::FileStamp();
  std::string bytes = project->ReadBeside(path_, name);
  siblings_read_[runtime::UCase(path)] = stamp;
  return bytes;
}

// Whether [path] is a file on disk other than the one that was read there.
bool OpenModule::IsForeignSibling(const std::string& path) const {
  auto read = siblings_read_.find(runtime::UCase(path));
  host::FileStamp now = Environment().FilesInUse().Stamp(path);
  return now.size != -1 && (read == siblings_read_.end() || read->second != now);
}

std::string OpenModule::NewSiblingName() {
  return (path_.empty() ? name_ : InCodePage(StemOf(path_))) + std::string(kind_->sibling);
}

// A light look at the head: `"Form1.frx":0000`. Each name once.
std::vector<std::string> OpenModule::SiblingNames() const {
  std::vector<std::string> names;
  if (!HasDesigner(kind_->type)) return names;
  std::string head = HeadText();
  for (size_t colon = head.find("\":"); colon != std::string::npos; colon = head.find("\":", colon + 1)) {
    if (colon == 0) continue;
    size_t open = head.rfind('"', colon - 1);
    if (open == std::string::npos) continue;
    std::string name = head.substr(open + 1, colon - open - 1);
    auto is_same = [&](const std::string& other) { return SamePath(other, name); };
    if (IsSiblingExtension(ExtensionOf(name)) && std::none_of(names.begin(), names.end(), is_same))
      names.push_back(std::move(name));
  }
  return names;
}

std::string OpenModule::SiblingName() const {
  std::vector<std::string> names = SiblingNames();
  return names.empty() ? std::string() : names.front();
}

bool OpenModule::UsesFile(const std::string& path) const {
  if (Path().empty()) return false;
  if (SamePath(path_, path)) return true;
  std::vector<std::string> names = SiblingNames();
  auto is_it = [&](const std::string& name) { return SamePath(JoinPath(FolderOf(path_), name), path); };
  return std::any_of(names.begin(), names.end(), is_it);
}

void OpenModule::WriteSiblings(const std::string& path) {
  if (!designer_) return;
  host::Files& files = Environment().FilesInUse();
  for (const DesignerSibling& sibling : designer_->Siblings()) {
    if (!sibling.changed) continue;
    std::string whole = JoinPath(FolderOf(path), sibling.name);
    files.Write(whole, sibling.bytes);
    siblings_read_[runtime::UCase(whole)] = files.Stamp(whole);
  }
}

std::vector<std::string> OpenModule::ChangedSiblings() const {
  std::vector<std::string> changed;
  if (!designer_ || path_.empty()) return changed;
  for (const DesignerSibling& sibling : designer_->Siblings()) {
    std::string whole = JoinPath(FolderOf(path_), sibling.name);
    if (sibling.changed && IsForeignSibling(whole)) changed.push_back(whole);
  }
  return changed;
}

void OpenModule::RequireUnchangedSiblings() const {
  for (const std::string& path : ChangedSiblings())
    throw host::Error(runtime::kPermissionDenied, FileNameOf(path) + ": changed on disk since it was read");
}

// What SaveAs to [path] calls the binary file: a new one beside the new file; that of a file which keeps its folder and
// name stays as it is named.
std::string OpenModule::SiblingNameAt(const std::string& path) const {
  std::string old_name = SiblingName();
  return old_name.empty() || SamePath(path, path_) ? old_name : InCodePage(StemOf(path)) + std::string(kind_->sibling);
}

void OpenModule::RequireOwnSibling(const std::string& path) const {
  std::string name = SiblingNameAt(path);
  if (name.empty()) return;
  std::string whole = JoinPath(FolderOf(path), name);
  bool is_unread = siblings_read_.count(runtime::UCase(whole)) == 0;
  if (is_unread && SamePath(whole, JoinPath(FolderOf(path_), SiblingName()))) return;  // it is read on the way
  if (!IsForeignSibling(whole)) return;
  if (is_unread)
    throw host::Error(runtime::kFileAlreadyExists, runtime::DescriptionOf(runtime::kFileAlreadyExists) + ": " + whole);
  throw host::Error(runtime::kPermissionDenied, name + ": changed on disk since it was read");
}

std::string OpenModule::MoveSibling(const std::string& path) {
  std::string old_name = SiblingName(), name = SiblingNameAt(path);
  if (old_name.empty()) return {};
  DesignerOf().MoveSibling(name);
  return old_name;
}

void OpenModule::MoveSiblingBack(const std::string& name) {
  if (!name.empty()) DesignerOf().MoveSibling(name);
}

}  // namespace corvane::environment
