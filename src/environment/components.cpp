// OpenProject: its components as a collection; adding, removing and renaming them.
#include <algorithm>

#include "environment/lookup.h"
#include "environment/new_module.h"
#include "environment/observer.h"
#include "environment/open_environment.h"
#include "environment/open_project.h"
#include "environment/paths.h"
#include "environment/prefetch.h"
#include "environment/statement.h"
#include "runtime/error.h"

namespace corvane::environment {

class OpenProject::Components : public host::VBComponents {
 public:
  explicit Components(std::shared_ptr<OpenProject> project) : project_(std::move(project)) {}

  long Count() override { return static_cast<long>(project_->modules_.size()); }
  host::Ref<host::VBComponent> Item(const host::Index& index) override {
    const long* position = std::get_if<long>(&index);
    if (position == nullptr) return ByName(std::get<std::string>(index));
    if (*position < 1 || *position > Count()) throw host::Error(runtime::kSubscriptOutOfRange);
    PrefetchBehind(static_cast<size_t>(*position));
    return project_->modules_[static_cast<size_t>(*position - 1)];
  }
  host::Ref<host::VBComponent> Add(host::ComponentType type) override { return project_->Add(type); }
  host::Ref<host::VBComponent> AddFile(const std::string& path) override { return project_->AddFile(path); }
  void Remove(const host::Ref<host::VBComponent>& component) override { project_->Remove(component); }
  host::Ref<host::VBE> VBE() override { return project_->Environment().shared_from_this(); }

 private:
  host::Ref<host::VBComponent> ByName(const std::string& name) const {
    for (const auto& module : project_->modules_)
      if (SameName(module->Name(), name)) return module;
    throw host::Error(runtime::kSubscriptOutOfRange);
  }

  // Who asks for one component asks for the next ones, as a rule, and then for their code.
  void PrefetchBehind(size_t position) const {
    const auto& modules = project_->modules_;
    if (position + 1 < modules.size()) Prefetch(modules[position + 1].get(), sizeof(OpenModule));
    if (position < modules.size()) modules[position]->Text().PrefetchStart();
  }

  std::shared_ptr<OpenProject> project_;
};

host::Ref<host::VBComponents> OpenProject::VBComponents() {
  return std::make_shared<Components>(shared_from_this());
}

// There is no library here that could be loaded: a control can be added where one of its class is already.
void OpenProject::AddToolboxProgID(const std::string& prog_id, const std::string&) {
  throw host::Error(runtime::kCannotCreateObject, "the library of " + prog_id + " cannot be loaded");
}

bool OpenProject::HasName(const std::string& name, const OpenModule* but) const {
  auto has_it = [&](const auto& module) { return module.get() != but && SameName(module->Name(), name); };
  return std::any_of(modules_.begin(), modules_.end(), has_it);
}

void OpenProject::RequireFreeName(const std::string& name, const OpenModule* but) const {
  if (HasName(name, but)) throw host::Error(runtime::kNameInUse);
}

void OpenProject::WasRenamed(OpenModule& module, const std::string& old_name) {
  file_.RenameComponent(module.ProjectLine(), module.Name());
  file_.RenameInSettings(old_name, module.Name());
  SetDirty();
  NotifyComponents();
}

void OpenProject::NotifyComponents() {
  if (Observer* observer = Environment().CurrentObserver()) observer->ComponentsChanged();
}

std::string OpenProject::NewName(const ModuleKind& kind) const {
  for (long number = 1;; ++number) {
    std::string name = std::string(kind.base_name) + std::to_string(number);
    auto has_it = [&](const auto& module) { return SameName(module->Name(), name); };
    if (std::none_of(modules_.begin(), modules_.end(), has_it)) return name;
  }
}

std::shared_ptr<OpenModule> OpenProject::Add(host::ComponentType type) {
  const ModuleKind& kind = KindOf(type);
  auto is_mdi = [](const auto& module) { return module->Type() == host::ComponentType::VBMDIForm; };
  bool second_mdi = type == host::ComponentType::VBMDIForm && std::any_of(modules_.begin(), modules_.end(), is_mdi);
  if (kind.base_name.empty() || second_mdi) throw host::Error(runtime::kInvalidProcedureCall);
  OpenModule::Source source;
  source.kind = &kind;
  source.name = NewName(kind);
  source.bytes = NewModuleText(type, source.name);
  source.head = ReadModuleHead(source.bytes);
  auto module = std::make_shared<OpenModule>(*this, std::move(source));
  modules_.push_back(module);
  module->SetDirty();
  NotifyComponents();
  return module;
}

std::shared_ptr<OpenModule> OpenProject::AddFile(const std::string& path) {
  OpenModule::Source source;
  source.path = WholePath(path);
  source.kind = KindOfExtension(ExtensionOf(path));
  if (source.kind == nullptr) source.kind = &KindOf(host::ComponentType::RelatedDocument);
  source.stamp = Environment().FilesInUse().Stamp(source.path);
  source.bytes = Environment().FilesInUse().Read(source.path);
  TakeHead(source, {});
  CollectNamesInUse();
  RequireFreeName(source.name, nullptr);
  if (std::string reason = Refusal(source); !reason.empty()) throw host::Error(runtime::kInvalidFileFormat, reason);
  for (const Problem& problem : source.head.problems) Environment().Report({source.path, problem.line, problem.reason});
  auto module = std::make_shared<OpenModule>(*this, std::move(source));
  modules_.push_back(module);
  ListInFile(*module);
  NotifyComponents();
  return module;
}

void OpenProject::Remove(const host::Ref<host::VBComponent>& component) {
  auto found = std::find(modules_.begin(), modules_.end(), std::dynamic_pointer_cast<OpenModule>(component));
  if (found == modules_.end()) throw host::Error(runtime::kInvalidProcedureCall);
  std::shared_ptr<OpenModule> module = *found;
  module->CloseWindows();
  modules_.erase(found);
  if (module->ProjectLine() != 0) {
    file_.RemoveLine(module->ProjectLine());
    SetDirty();
  }
  module->Detach();
  Environment().Forget(*module);
  NotifyComponents();
}

}  // namespace corvane::environment
