// MainWindow: the desk. Project tree, code panes, designers, property list, Immediate window, the bars of the
// environment. It shows one environment, passes the user's acts to it, and follows what the add-in does in it.
#pragma once

#include <QHash>
#include <QMainWindow>
#include <functional>
#include <memory>
#include <set>

#include "environment/command_bar_model.h"
#include "environment/environment.h"
#include "environment/module.h"
#include "environment/observer.h"
#include "environment/project.h"

class QDockWidget;
class QLabel;
class QMdiArea;
class QMdiSubWindow;
class QPlainTextEdit;
class QTreeWidget;

namespace corvane::desk {

class CodePane;
class DesignerWindow;
class FindDialog;
class ProjectTree;
class PropertyList;

class MainWindow : public QMainWindow, public environment::Observer {
  Q_OBJECT

 public:
  // What is on the bars now is the environment's own; what comes later is an add-in's.
  MainWindow(std::shared_ptr<environment::Environment> environment, host::Prompts& prompts);
  ~MainWindow() override;

  environment::Environment& EnvironmentOf() { return *environment_; }
  CodePane* OpenCode(const std::shared_ptr<environment::Module>& module);
  DesignerWindow* OpenDesigner(const std::shared_ptr<environment::Module>& module);
  CodePane* PaneOf(const environment::Module& module) const;
  DesignerWindow* DesignerOf(const environment::Module& module) const;
  std::shared_ptr<environment::Module> ActiveModule() const;

  // A command of the menus by its name in the table ("save-all"); null if there is none.
  QAction* Command(const QString& name) const { return commands_.value(name); }
  // The button or menu item that shows a control of the bars.
  QAction* ActionOf(long control) const { return controls_.value(control); }
  ProjectTree& Tree() { return *tree_; }
  PropertyList& Properties() { return *properties_; }
  QTreeWidget& ProblemList() { return *problems_; }

  // The number of the act that runs in a window of the add-in, 0 for none; may be left empty.
  std::function<long()> CurrentAct;
  // For the status bar.
  void Told(const QString& message);
  // The project was opened: fills everything, and shows the problems when there are any.
  void ShowProject();
  // Each asks what must be asked. False when something was not saved.
  bool SaveModule(const std::shared_ptr<environment::Module>& module);
  bool SaveAll();
  // Whether the project may be left: asks when something is unsaved, and saves.
  bool MayLeave();
  // Looks for files that somebody else changed. Those that were not edited here are read again; of others, and of
  // project files, it asks, once for each change.
  void CheckDisk();

 signals:
  void OpenWanted(const QString& path);  // empty: to be asked for
  void AddProjectWanted();
  void ReadAgainWanted();
  void AddInManagerWanted();
  void Left();  // the window was closed for good

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  struct CommandRow;
  static const CommandRow kCommands[];

  void LinesChanged(environment::Module& module, long start, long removed, long inserted) override;
  void PaneShown(environment::Module& module) override;
  void PaneClosed(environment::Module& module) override;
  void SelectionSet(environment::Module& module) override;
  void DesignerShown(environment::Module& module, bool visible) override;
  void DesignerFocused(environment::Module& module) override;
  void DesignerChanged(environment::Module& module) override;
  void ModuleReadAgain(environment::Module& module) override;
  void ComponentsChanged() override;
  void ImmediateChanged(bool shown) override;
  void MainWindowFocused() override;
  void CommandBarsChanged() override;
  void DirtyChanged() override;
  void ProblemsChanged() override;

  void BuildCommands();
  void BuildDocks();
  void BuildStatus();
  QDockWidget* AddDock(const QString& title, const char* name, QWidget* inside, Qt::DockWidgetArea area);
  void FillBars();
  void ClearStandardBar();
  void FillStandardBar();
  void FillAddInsMenu();
  QAction* NewControlAction(const environment::BarControl& control, QObject* owner);
  void UpdateCommands();
  void ShowTitle();
  void ShowWindowTitles();
  void ShowStatus();
  void ShowProperties();
  void ShowProblems();
  void RaiseProblems();
  void FollowProblems();
  void WorkOn(const std::shared_ptr<environment::Project>& project);
  void ShowSelectedComponent(const std::shared_ptr<environment::Module>& module);
  QString TitleOf(environment::Module& module) const;
  QMdiSubWindow* Show(QWidget& inside, const QString& title, const QString& icon);
  std::shared_ptr<environment::Module> Shared(environment::Module& module) const;
  std::string AskForFile(environment::Module& module);  // a path; empty: none was chosen
  // Asks about a file that somebody else changed.
  bool MayReplace(const std::string& file);
  bool MayTakeTheirs(const std::string& file);
  bool AskAboutProjects();  // true: everything is to be read again
  void CheckModule(environment::Module& module, QStringList& read);
  bool ReadModuleAgain(environment::Module& module);
  bool SaveProjectFile(environment::Project& project);
  bool NotSaved(const std::string& file, const std::exception& error);  // tells it; false
  std::vector<std::string> UnsavedFiles() const;

  void OpenProject();
  void SaveActive();
  void SaveEverything() { SaveAll(); }
  void Exit() { close(); }
  void Undo();
  void Redo();
  void Cut();
  void Copy();
  void Paste();
  void SelectAll();
  bool InFocus(const char* slot);  // false: what has the focus has no such command
  CodePane* ActivePane() const;
  void Find();
  void FindNext();
  void ViewCode();
  void ViewObject();
  void ViewProject();
  void ViewProperties();
  void ViewImmediate();
  void ViewProblems();
  void Start();
  void Tabs();
  void Cascade();
  void Tile();
  void CloseWindow();
  void About();

  std::shared_ptr<environment::Environment> environment_;
  host::Prompts& prompts_;
  QMdiArea* area_;
  ProjectTree* tree_ = nullptr;
  PropertyList* properties_ = nullptr;
  QPlainTextEdit* immediate_ = nullptr;
  QTreeWidget* problems_ = nullptr;
  QDockWidget *project_dock_ = nullptr, *property_dock_ = nullptr, *immediate_dock_ = nullptr, *problem_dock_ = nullptr;
  QToolBar* standard_ = nullptr;
  QMenu *add_ins_ = nullptr, *windows_ = nullptr;
  QLabel *place_ = nullptr, *code_page_ = nullptr;
  FindDialog* find_ = nullptr;
  QHash<QString, QAction*> commands_;
  QHash<long, QAction*> controls_;
  std::set<long> own_controls_;
  QHash<const environment::Module*, CodePane*> panes_;
  QHash<const environment::Module*, DesignerWindow*> designers_;
  std::set<std::string> told_projects_;  // project files that were told to have changed
  // The changes on disk that were told and not taken, by the module.
  QHash<const environment::Module*, std::vector<environment::ChangedFile>> told_changes_;
  bool asking_ = false;            // a question is open: no other one
  bool problems_changed_ = false;  // since they were shown
};

}  // namespace corvane::desk
