#include "environment/open_environment.h"

#include <algorithm>
#include <utility>

#include "environment/lookup.h"
#include "environment/module_kinds.h"
#include "environment/observer.h"
#include "environment/open_project.h"
#include "environment/paths.h"
#include "environment/statement.h"
#include "runtime/code_page.h"
#include "runtime/error.h"

namespace corvane::environment {

namespace {

class ProjectList : public host::VBProjects {
 public:
  explicit ProjectList(std::shared_ptr<OpenEnvironment> environment)
      : environment_(environment), projects_(environment->OpenProjects()) {}
  long Count() override { return static_cast<long>(projects_.size()); }
  host::Ref<host::VBProject> Item(const host::Index& index) override {
    if (const long* position = std::get_if<long>(&index)) {
      if (*position >= 1 && *position <= Count()) return projects_[static_cast<size_t>(*position - 1)];
    } else {
      for (const auto& project : projects_)
        if (SameName(project->Name(), std::get<std::string>(index))) return project;
    }
    throw host::Error(runtime::kSubscriptOutOfRange);
  }
  void AddFromFile(const std::string& path) override {
    const std::shared_ptr<OpenEnvironment> environment = environment_.lock();
    if (!environment) throw host::Error(runtime::kObjectNotSet);
    environment->Open(path);
    projects_ = environment->OpenProjects();
  }

 private:
  std::weak_ptr<OpenEnvironment> environment_;
  std::vector<std::shared_ptr<OpenProject>> projects_;
};

// The project file that the environment would write for these modules.
std::string ProjectTextFor(const std::string& name, const std::vector<SourceFile>& sources) {
  std::string text = "Type=Exe\r\n";
  for (const SourceFile& source : sources) {
    if (IsSiblingExtension(ExtensionOf(source.path))) continue;
    const ModuleKind* kind = KindOfExtension(ExtensionOf(source.path));
    if (kind == nullptr)
      text += "RelatedDoc=" + source.path + "\r\n";
    else if (kind->named_in_project)
      text += std::string(kind->key) + "=" + StemOf(source.path) + "; " + source.path + "\r\n";
    else
      text += std::string(kind->key) + "=" + source.path + "\r\n";
  }
  return text + "Name=\"" + name + "\"\r\n";
}

}  // namespace

std::shared_ptr<Environment> Environment::Create(host::Files& files, host::Clipboard* clipboard, Options options) {
  auto environment = std::make_shared<OpenEnvironment>(files, options);
  environment->MakeWindows(clipboard);
  if (options.code_page != 0) runtime::SetAnsiCodePage(options.code_page);
  return environment;
}

OpenEnvironment::~OpenEnvironment() {
  observer_ = nullptr;
  for (const auto& project : projects_) project->Close();
  bars_->Detach();
  main_window_->Detach();
  immediate_->Detach();
}

void OpenEnvironment::MakeWindows(host::Clipboard* clipboard) {
  bars_ = CommandBarSet::Create(clipboard, [this] {
    if (observer_) observer_->CommandBarsChanged();
  });
  events_ = std::make_shared<EventSource>(bars_);
  immediate_ = AddImmediateWindow(*windows_, [this](bool shown) {
    if (observer_) observer_->ImmediateChanged(shown);
  });
  WindowActs main;
  main.caption = [this] {
    return active_ ? active_->Name() + " - Microsoft Visual Basic [design]" : std::string("Microsoft Visual Basic");
  };
  main.focus = [this] {
    if (observer_) observer_->MainWindowFocused();
  };
  main_window_ = std::make_shared<ActWindow>(std::move(main));
}

int OpenEnvironment::CodePage() const {
  return runtime::AnsiCodePage().Number();
}

host::Ref<host::VBProjects> OpenEnvironment::VBProjects() {
  return std::make_shared<ProjectList>(std::static_pointer_cast<OpenEnvironment>(shared_from_this()));
}
host::Ref<host::VBProject> OpenEnvironment::ActiveVBProject() {
  return active_;
}
std::vector<std::shared_ptr<Project>> OpenEnvironment::Projects() const {
  return {projects_.begin(), projects_.end()};
}

void OpenEnvironment::ActivateProject(const std::shared_ptr<Project>& project) {
  active_ = std::dynamic_pointer_cast<OpenProject>(project);
}

std::shared_ptr<OpenProject> OpenEnvironment::AddProject(const std::string& path, const std::string& bytes,
                                                         const std::vector<SourceFile>& sources) {
  ProjectFile file(bytes);
  if (!file.Refusal().empty()) throw host::Error(runtime::kInvalidFileFormat, file.Refusal());
  auto project = std::make_shared<OpenProject>(*this, path, std::move(file), files_.Stamp(path));
  projects_.push_back(project);
  project->ReadModules(sources);
  if (!active_) active_ = project;
  return project;
}

void OpenEnvironment::OpenFromTexts(const std::string& path, const std::string& vbp,
                                    const std::vector<SourceFile>& sources) {
  active_ = AddProject(path, vbp, sources);
}

void OpenEnvironment::OpenFromModules(const std::string& name, const std::vector<SourceFile>& sources) {
  OpenFromTexts("C:\\Test\\" + name + ".vbp", ProjectTextFor(name, sources), sources);
}

void OpenEnvironment::TakeCodePageHint(int code_page) {
  if (code_page == 0 || options_.code_page != 0 || std::exchange(knows_code_page_, true)) return;
  runtime::SetAnsiCodePage(code_page);
}

std::unordered_set<long> OpenEnvironment::LinesReported(const std::string& file) const {
  std::unordered_set<long> lines;
  for (const Problem& problem : problems_)
    if (SamePath(problem.file, file)) lines.insert(problem.line);
  return lines;
}

void OpenEnvironment::Report(Problem problem) {
  problems_.push_back(std::move(problem));
  if (observer_) observer_->ProblemsChanged();
}

void OpenEnvironment::ForgetProblems(const std::string& file) {
  auto is_of_file = [&](const Problem& problem) { return SamePath(problem.file, file); };
  if (std::erase_if(problems_, is_of_file) > 0 && observer_) observer_->ProblemsChanged();
}

void OpenEnvironment::Forget(const OpenModule& module) {
  if (selected_.lock().get() == &module) selected_.reset();
}

bool OpenEnvironment::IsDirty() const {
  for (const auto& project : projects_) {
    if (project->IsDirty()) return true;
    for (const auto& module : project->OpenModules())
      if (module->IsDirty()) return true;
  }
  return false;
}

}  // namespace corvane::environment
