// OpenEnvironment: the environment with what is open in it.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <unordered_set>
#include <vector>

#include "environment/code_pane.h"
#include "environment/command_bars.h"
#include "environment/environment.h"
#include "environment/group_file.h"
#include "environment/module_find.h"
#include "environment/windows.h"

namespace corvane::environment {

class OpenModule;
class OpenProject;

class OpenEnvironment : public Environment {
 public:
  OpenEnvironment(host::Files& files, Options options) : files_(files), options_(options) {}
  ~OpenEnvironment() override;
  void MakeWindows(host::Clipboard* clipboard);

  // host::VBE
  host::Ref<host::VBProjects> VBProjects() override;
  host::Ref<host::VBProject> ActiveVBProject() override;
  host::Ref<host::VBComponent> SelectedVBComponent() override { return selected_.lock(); }
  host::Ref<host::CodePane> ActiveCodePane() override { return panes_->Active(); }
  host::Ref<host::CodePanes> CodePanes() override { return panes_; }
  host::Ref<host::Windows> Windows() override { return windows_; }
  host::Ref<host::Window> MainWindow() override { return main_window_; }
  host::Ref<host::CommandBars> CommandBars() override { return bars_->HostBars(); }
  host::Ref<host::Events> Events() override { return events_; }

  // Environment
  void Open(const std::string& path) override;
  void OpenFromTexts(const std::string& path, const std::string& vbp, const std::vector<SourceFile>& sources) override;
  void OpenFromModules(const std::string& name, const std::vector<SourceFile>& sources) override;
  const std::vector<Problem>& Problems() const override { return problems_; }
  int CodePage() const override;
  std::vector<std::shared_ptr<Project>> Projects() const override;
  bool IsDirty() const override;
  std::vector<Problem> SaveAll() override;
  void SelectComponent(const host::Ref<host::VBComponent>& component) override { selected_ = component; }
  void ActivateProject(const std::shared_ptr<Project>& project) override;
  void EnterRunMode() override { events_->RaiseEnterRunMode(); }
  bool OffersBuildEvents() const override { return events_->OffersBuildEvents(); }
  void SetOffersBuildEvents(bool value) override { events_->SetOffersBuildEvents(value); }
  CommandBarModel& Bars() override { return *bars_; }
  void Observe(Observer* observer) override { observer_ = observer; }

  // For projects and modules.
  Observer* CurrentObserver() const { return observer_; }
  host::Files& FilesInUse() const { return files_; }
  Finder& FinderInUse() { return finder_; }
  PaneList& PanesOf() const { return *panes_; }
  WindowList& WindowsOf() const { return *windows_; }
  const std::vector<std::shared_ptr<OpenProject>>& OpenProjects() const { return projects_; }
  void Forget(const OpenModule& module);  // it was removed
  // A guess at the code page, 0 for none. The first one counts, unless the user chose.
  void TakeCodePageHint(int code_page);
  // [saved] was written by [module]: others that show the same file take it over, unless they were edited themselves;
  // those are refused when they are saved, as after any other change on disk.
  void FileWasSaved(const OpenModule& module, const std::string& saved);
  // Whether [path] is that of the group or of a file of what is open, those of [but] left out.
  bool UsesFile(const std::string& path, const OpenModule* but) const;
  const std::string& GroupPath() const { return group_path_; }
  // The lines of [file] of which something was reported already.
  std::unordered_set<long> LinesReported(const std::string& file) const;
  void ForgetProblems(const std::string& file);
  void Report(Problem problem);

 private:
  void OpenFile(const std::string& path);
  void OpenGroup(const std::string& path, const std::string& bytes);
  std::shared_ptr<OpenProject> OpenInGroup(const std::string& group, const GroupFile::ProjectLine& line);
  std::shared_ptr<OpenProject> AddProject(const std::string& path, const std::string& bytes,
                                          const std::vector<SourceFile>& sources);

  host::Files& files_;
  Options options_;
  Observer* observer_ = nullptr;
  Finder finder_;
  bool knows_code_page_ = false;
  std::string group_path_;  // empty without a group
  std::vector<Problem> problems_;
  std::vector<std::shared_ptr<OpenProject>> projects_;
  std::shared_ptr<OpenProject> active_;
  std::weak_ptr<host::VBComponent> selected_;
  std::shared_ptr<PaneList> panes_ = std::make_shared<PaneList>();
  std::shared_ptr<WindowList> windows_ = std::make_shared<WindowList>();
  std::shared_ptr<ActWindow> immediate_;
  std::shared_ptr<ActWindow> main_window_;
  std::shared_ptr<CommandBarSet> bars_;
  std::shared_ptr<EventSource> events_;
};

constexpr int kUsualCodePage = 1252;

// Why a file could not be read, in words.
std::string ReasonOf(const host::Error& error);

}  // namespace corvane::environment
