// Code panes and designers: opened by the user or by the add-in, and what the environment tells of them.
#include <QApplication>
#include <QDockWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPlainTextEdit>

#include "desk/ansi_text.h"
#include "desk/code_pane.h"
#include "desk/designer_window.h"
#include "desk/icons.h"
#include "desk/main_window.h"
#include "desk/project_tree.h"
#include "desk/property_list.h"
#include "desk/user_act.h"

namespace corvane::desk {

using environment::Module;

namespace {

constexpr QSize kWindowSize(760, 520);

QMdiSubWindow* FrameAround(QWidget* inside) {
  return qobject_cast<QMdiSubWindow*>(inside->parentWidget());
}

void Raise(QMdiArea* area, QWidget* inside) {
  QMdiSubWindow* frame = FrameAround(inside);
  if (!frame) return;
  frame->show();
  area->setActiveSubWindow(frame);
  inside->setFocus();
}

}  // namespace

std::shared_ptr<Module> MainWindow::Shared(Module& module) const {
  const auto project = module.ProjectOf();
  if (!project) return nullptr;
  for (const auto& each : project->Modules())
    if (each.get() == &module) return each;
  return nullptr;
}

CodePane* MainWindow::PaneOf(const Module& module) const {
  return panes_.value(&module);
}
DesignerWindow* MainWindow::DesignerOf(const Module& module) const {
  return designers_.value(&module);
}

std::shared_ptr<Module> MainWindow::ActiveModule() const {
  QWidget* inside = area_->activeSubWindow() ? area_->activeSubWindow()->widget() : nullptr;
  if (const auto* pane = qobject_cast<CodePane*>(inside)) return pane->ModuleOf();
  if (const auto* designer = qobject_cast<DesignerWindow*>(inside)) return designer->ModuleOf();
  return nullptr;
}

// Two projects may have a component of one name, or share one.
QString MainWindow::TitleOf(Module& module) const {
  const auto project = module.ProjectOf();
  const bool is_one_of_many = project && environment_->Projects().size() > 1;
  return (is_one_of_many ? ToLabel(project->Name()) + " - " : QString()) + ToLabel(module.Name());
}

QMdiSubWindow* MainWindow::Show(QWidget& inside, const QString& title, const QString& icon) {
  inside.setWindowTitle(title);
  QMdiSubWindow* frame = area_->addSubWindow(&inside);
  frame->setAttribute(Qt::WA_DeleteOnClose);
  frame->setWindowIcon(NamedIcon(icon));
  frame->resize(kWindowSize);
  Raise(area_, &inside);
  return frame;
}

CodePane* MainWindow::OpenCode(const std::shared_ptr<Module>& module) {
  if (!module || module->Type() == host::ComponentType::RelatedDocument) return nullptr;
  CodePane* pane = PaneOf(*module);
  if (pane) {
    Raise(area_, pane);
  } else {
    pane = new CodePane(module);
    panes_.insert(module.get(), pane);
    connect(pane, &CodePane::Told, this, &MainWindow::Told);
    ConnectAct(pane, &CodePane::Moved, this, &MainWindow::ShowStatus);
    ConnectAct(pane, &CodePane::Activated, this, [this, module] {
      module->UserActivatePane();
      ShowSelectedComponent(module);
    });
    ConnectAct(pane, &CodePane::Closed, this, [this, module] {
      panes_.remove(module.get());
      module->UserClosePane();
    });
    for (const auto& available : {&QPlainTextEdit::undoAvailable, &QPlainTextEdit::redoAvailable})
      ConnectAct(&pane->Editor(), available, this, &MainWindow::UpdateCommands);
    Show(*pane, TitleOf(*module) + tr(" (Code)"), IconNameOf(module->Type()));
    pane->SelectionSet();
  }
  module->UserActivatePane();
  ShowSelectedComponent(module);
  UpdateCommands();
  return pane;
}

DesignerWindow* MainWindow::OpenDesigner(const std::shared_ptr<Module>& module) {
  if (!module || !HasDesigner(*module)) return nullptr;
  DesignerWindow* designer = DesignerOf(*module);
  if (designer) {
    Raise(area_, designer);
  } else {
    designer = new DesignerWindow(module);
    designers_.insert(module.get(), designer);
    ConnectAct(designer, &DesignerWindow::Activated, this, [this, module] { ShowSelectedComponent(module); });
    ConnectAct(designer, &DesignerWindow::Closed, this, [this, module] {
      designers_.remove(module.get());
      module->UserOpenDesigner(false);
    });
    DesignerCanvas& canvas = designer->Canvas();
    connect(&canvas, &DesignerCanvas::Told, this, &MainWindow::Told);
    ConnectAct(&canvas, &DesignerCanvas::SelectionChanged, this, [this] {
      ShowProperties();
      ShowStatus();
    });
    ConnectAct(&canvas, &DesignerCanvas::CodeWanted, this, [this, module](const QString& object) {
      if (CodePane* pane = OpenCode(module)) pane->GoToObject(FromLabel(object));
    });
    Show(*designer, TitleOf(*module), IconNameOf(module->Type()));
  }
  module->UserOpenDesigner(true);
  ShowSelectedComponent(module);
  ShowProperties();
  UpdateCommands();
  return designer;
}

// The active project is the one that is worked on.
void MainWindow::WorkOn(const std::shared_ptr<environment::Project>& project) {
  if (!project || project == environment_->ActiveVBProject()) return;
  environment_->ActivateProject(project);
  tree_->ShowState();
  ShowTitle();
}

void MainWindow::ShowSelectedComponent(const std::shared_ptr<Module>& module) {
  WorkOn(module->ProjectOf());
  environment_->SelectComponent(module);
  tree_->ShowSelected(*module);
}

void MainWindow::LinesChanged(Module& module, long start, long removed, long inserted) {
  if (CodePane* pane = PaneOf(module)) pane->LinesChanged(start, removed, inserted, CurrentAct ? CurrentAct() : 0);
}

void MainWindow::PaneShown(Module& module) {
  if (const auto shared = Shared(module)) OpenCode(shared);
}

void MainWindow::PaneClosed(Module& module) {
  if (CodePane* pane = PaneOf(module))
    if (QMdiSubWindow* frame = FrameAround(pane)) frame->close();
}

void MainWindow::SelectionSet(Module& module) {
  if (CodePane* pane = PaneOf(module)) pane->SelectionSet();
}

void MainWindow::DesignerShown(Module& module, bool visible) {
  DesignerWindow* designer = DesignerOf(module);
  if (visible) {
    if (const auto shared = Shared(module); shared && !designer) OpenDesigner(shared);
  } else if (designer) {
    FrameAround(designer)->close();
  }
}

void MainWindow::DesignerFocused(Module& module) {
  if (const auto shared = Shared(module)) OpenDesigner(shared);
}

void MainWindow::DesignerChanged(Module& module) {
  if (DesignerWindow* designer = DesignerOf(module)) designer->Canvas().ReadAgain();
  if (CodePane* pane = PaneOf(module)) pane->ControlsChanged();
  properties_->ReadAgain();
}

// What the property list and the canvas hold of its designer is gone.
void MainWindow::ModuleReadAgain(Module& module) {
  if (DesignerWindow* designer = DesignerOf(module)) {
    DesignerCanvas& canvas = designer->Canvas();
    canvas.ReadAgain();
    canvas.Select(canvas.Selected());
  }
  if (CodePane* pane = PaneOf(module)) pane->ControlsChanged();
  ShowProperties();
  UpdateCommands();
}

void MainWindow::ShowWindowTitles() {
  for (CodePane* pane : panes_) pane->setWindowTitle(TitleOf(*pane->ModuleOf()) + tr(" (Code)"));
  for (DesignerWindow* designer : designers_) designer->setWindowTitle(TitleOf(*designer->ModuleOf()));
}

void MainWindow::ComponentsChanged() {
  tree_->FillAgain();
  std::set<const Module*> present;
  for (const auto& project : environment_->Projects())
    for (const auto& module : project->Modules()) present.insert(module.get());
  const auto close_lost = [&](const auto& windows) {
    for (auto* inside : windows.values())
      if (!present.contains(inside->ModuleOf().get())) FrameAround(inside)->close();
  };
  close_lost(panes_);
  close_lost(designers_);
  ShowWindowTitles();
  ShowTitle();
  ShowProperties();
  UpdateCommands();
}

void MainWindow::ImmediateChanged(bool shown) {
  immediate_dock_->setVisible(shown);
  if (!shown) return;
  // Keys that follow at once must go there, not into the window of the add-in that asked for it.
  activateWindow();
  QApplication::setActiveWindow(this);
  immediate_dock_->raise();
  immediate_->setFocus();
}

void MainWindow::MainWindowFocused() {
  raise();
  activateWindow();
}

// Many may be told at one go.
void MainWindow::ProblemsChanged() {
  if (!std::exchange(problems_changed_, true)) ActLater(this, &MainWindow::FollowProblems);
}

void MainWindow::FollowProblems() {
  const int before = problems_->topLevelItemCount();
  ShowProblems();
  if (problems_->topLevelItemCount() > before) RaiseProblems();
  UpdateCommands();
}

void MainWindow::DirtyChanged() {
  tree_->ShowState();
  ShowTitle();
}

}  // namespace corvane::desk
