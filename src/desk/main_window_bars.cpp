// The menus and the standard toolbar: commands as a table, and the environment's command bars as they are now.
#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QShortcut>
#include <QStatusBar>
#include <QToolBar>

#include "desk/ansi_text.h"
#include "desk/code_pane.h"
#include "desk/designer_window.h"
#include "desk/find_dialog.h"
#include "desk/icons.h"
#include "desk/main_window.h"
#include "desk/picture_image.h"
#include "desk/project_tree.h"
#include "desk/user_act.h"
#include "host/command_bars.h"

namespace corvane::desk {

struct MainWindow::CommandRow {
  const char* menu;
  const char* name;  // null: a line between groups
  const char* text;
  const char* icon;
  const char* keys;
  void (MainWindow::*run)();
  const char* on_bar;  // caption of the control of the Standard bar that does the same
};

const MainWindow::CommandRow MainWindow::kCommands[] = {
    {"&File", "open", "&Open Project...", "open", "Ctrl+O", &MainWindow::OpenProject, "Open Project"},
    {"&File", "add-project", "A&dd Project...", "add-project", "", &MainWindow::AddProjectWanted, "Add Project"},
    {"&File", nullptr, nullptr, nullptr, nullptr, nullptr, nullptr},
    {"&File", "save", "&Save", "save", "Ctrl+S", &MainWindow::SaveActive, nullptr},
    {"&File", "save-all", "Save &All", "save-all", "Ctrl+Shift+S", &MainWindow::SaveEverything, "Save Project"},
    {"&File", nullptr, nullptr, nullptr, nullptr, nullptr, nullptr},
    {"&File", "exit", "E&xit", "exit", "Alt+Q", &MainWindow::Exit, nullptr},
    {"&Edit", "undo", "&Undo", "undo", "Ctrl+Z", &MainWindow::Undo, "Undo"},
    {"&Edit", "redo", "&Redo", "redo", "Ctrl+Y", &MainWindow::Redo, "Redo"},
    {"&Edit", nullptr, nullptr, nullptr, nullptr, nullptr, nullptr},
    {"&Edit", "cut", "Cu&t", "cut", "Ctrl+X", &MainWindow::Cut, "Cut"},
    {"&Edit", "copy", "&Copy", "copy", "Ctrl+C", &MainWindow::Copy, "Copy"},
    {"&Edit", "paste", "&Paste", "paste", "Ctrl+V", &MainWindow::Paste, "Paste"},
    {"&Edit", "select-all", "Select &All", "", "Ctrl+A", &MainWindow::SelectAll, nullptr},
    {"&Edit", nullptr, nullptr, nullptr, nullptr, nullptr, nullptr},
    {"&Edit", "find", "&Find...", "search", "Ctrl+F", &MainWindow::Find, "Find"},
    {"&Edit", "find-next", "Find &Next", "", "F3", &MainWindow::FindNext, nullptr},
    {"&View", "code", "&Code", "module", "F7", &MainWindow::ViewCode, nullptr},
    {"&View", "object", "O&bject", "form", "Shift+F7", &MainWindow::ViewObject, nullptr},
    {"&View", nullptr, nullptr, nullptr, nullptr, nullptr, nullptr},
    {"&View", "view-project", "&Project Explorer", "project", "Ctrl+R", &MainWindow::ViewProject, "Project Explorer"},
    {"&View", "view-properties", "Properties &Window", "propertypage", "F4", &MainWindow::ViewProperties,
     "Properties Window"},
    {"&View", "view-immediate", "&Immediate Window", "immediate", "Ctrl+G", &MainWindow::ViewImmediate, nullptr},
    {"&View", "view-problems", "What Was &Not Understood", "help", "", &MainWindow::ViewProblems, nullptr},
    {"&Run", "start", "&Start", "run", "F5", &MainWindow::Start, "Start"},
    {"&Window", "tabs", "Ta&bs", "", "", &MainWindow::Tabs, nullptr},
    {"&Window", "cascade", "&Cascade", "", "", &MainWindow::Cascade, nullptr},
    {"&Window", "tile", "&Tile", "", "", &MainWindow::Tile, nullptr},
    {"&Window", nullptr, nullptr, nullptr, nullptr, nullptr, nullptr},
    {"&Window", "close", "Clos&e Window", "close-windows", "Ctrl+F4", &MainWindow::CloseWindow, nullptr},
    {"&Help", "about", "&About Corvane", "about", "", &MainWindow::About, nullptr},
};

namespace {

constexpr char kMenus[][10] = {"&File", "&Edit", "&View", "&Run", "&Add-Ins", "&Window", "&Help"};
constexpr char kAddInManager[] = "Add-In Manager";
constexpr int kIconSize = 16;

// A caption without its access key and its points: "Sa&ve Project..." is "Save Project".
QString Plain(const std::string& caption) {
  return ToLabel(caption).remove('&').remove("...");
}

}  // namespace

void MainWindow::BuildCommands() {
  QHash<QString, QMenu*> menus;
  for (const char* title : kMenus) menus[title] = menuBar()->addMenu(tr(title));
  add_ins_ = menus["&Add-Ins"];
  windows_ = menus["&Window"];
  for (const CommandRow& row : kCommands) {
    QMenu* menu = menus[row.menu];
    if (!row.name) {
      menu->addSeparator();
      continue;
    }
    QAction* action = menu->addAction(NamedIcon(row.icon), tr(row.text));
    action->setShortcut(QKeySequence(row.keys));
    ConnectAct(action, &QAction::triggered, this, row.run);
    commands_.insert(row.name, action);
  }
  connect(new QShortcut(Qt::Key_F10, this), &QShortcut::activated, this,
          [this] { menuBar()->setActiveAction(menuBar()->actions().front()); });
  standard_ = addToolBar(tr("Standard"));
  standard_->setObjectName("Standard");
  standard_->setIconSize({kIconSize, kIconSize});
  standard_->setMovable(false);
}

void MainWindow::FillBars() {
  controls_.clear();
  FillStandardBar();
  FillAddInsMenu();
}

// A toolbar keeps the actions that are its own when it is cleared. One of them may be at work.
void MainWindow::ClearStandardBar() {
  const QList<QAction*> shown = standard_->actions();
  standard_->clear();
  for (QAction* action : shown)
    if (action->parent() == standard_) action->deleteLater();
}

// Of the environment's own controls those that the desk has a command for; all of an add-in's. The place of each among
// the others is the bar's.
void MainWindow::FillStandardBar() {
  ClearStandardBar();
  const environment::Bar* bar = environment_->Bars().Find("Standard");
  if (!bar) return;
  QString menu_before;
  for (const environment::BarControl& control : bar->controls) {
    if (!own_controls_.contains(control.id)) {
      if (!control.visible) continue;
      standard_->addAction(NewControlAction(control, standard_));
      continue;
    }
    for (const CommandRow& row : kCommands) {
      if (!row.on_bar || Plain(control.caption) != row.on_bar) continue;
      if (!menu_before.isEmpty() && menu_before != row.menu) standard_->addSeparator();
      menu_before = row.menu;
      standard_->addAction(commands_[row.name]);
    }
  }
}

void MainWindow::FillAddInsMenu() {
  add_ins_->clear();
  const environment::Bar* bar = environment_->Bars().Find("Add-Ins");
  if (!bar) return;
  for (const environment::BarControl& control : bar->controls) {
    if (own_controls_.contains(control.id) && Plain(control.caption) == kAddInManager) {
      connect(add_ins_->addAction(ToLabel(control.caption)), &QAction::triggered, this,
              &MainWindow::AddInManagerWanted);
      add_ins_->addSeparator();
    } else if (control.visible) {
      add_ins_->addAction(NewControlAction(control, add_ins_));
    }
  }
}

QAction* MainWindow::NewControlAction(const environment::BarControl& control, QObject* owner) {
  auto* action = new QAction(FaceOf(control.face), ToLabel(control.caption), owner);
  action->setToolTip(Plain(control.caption));
  action->setEnabled(control.enabled);
  action->setCheckable(control.state != 0);
  action->setChecked(control.state != 0);
  ConnectAct(action, &QAction::triggered, this, [this, id = control.id] { environment_->Bars().Click(id); });
  controls_.insert(control.id, action);
  return action;
}

// A click may change the bars while the clicked action is still at work.
void MainWindow::CommandBarsChanged() {
  ActLater(this, &MainWindow::FillBars);
}

void MainWindow::UpdateCommands() {
  CodePane* pane = ActivePane();
  const auto module = ActiveModule() ? ActiveModule() : tree_->Current();
  const QTextDocument* document = pane ? pane->Editor().document() : nullptr;
  commands_["undo"]->setEnabled(document && document->isUndoAvailable());
  commands_["redo"]->setEnabled(document && document->isRedoAvailable());
  commands_["find"]->setEnabled(pane);
  commands_["find-next"]->setEnabled(pane && find_ && !find_->Text().isEmpty());
  const bool has_code = module && module->Type() != host::ComponentType::RelatedDocument;
  commands_["save"]->setEnabled(has_code);
  commands_["code"]->setEnabled(has_code);
  commands_["object"]->setEnabled(module && HasDesigner(*module));
  commands_["close"]->setEnabled(area_->activeSubWindow());
  commands_["view-problems"]->setEnabled(!environment_->Problems().empty());
}

void MainWindow::OpenProject() {
  emit OpenWanted({});
}

CodePane* MainWindow::ActivePane() const {
  return qobject_cast<CodePane*>(area_->activeSubWindow() ? area_->activeSubWindow()->widget() : nullptr);
}

bool MainWindow::InFocus(const char* slot) {
  QWidget* focus = QApplication::focusWidget();
  if (!focus || focus->metaObject()->indexOfSlot(QByteArray(slot).append("()").constData()) < 0) return false;
  return QMetaObject::invokeMethod(focus, slot);
}

// The commands tell of the pane in front; the focus may be in a list.
void MainWindow::Undo() {
  if (CodePane* pane = ActivePane(); !InFocus("undo") && pane) pane->Editor().undo();
}
void MainWindow::Redo() {
  if (CodePane* pane = ActivePane(); !InFocus("redo") && pane) pane->Editor().redo();
}
void MainWindow::Cut() {
  InFocus("cut");
}
void MainWindow::Copy() {
  InFocus("copy");
}
void MainWindow::Paste() {
  InFocus("paste");
}
void MainWindow::SelectAll() {
  InFocus("selectAll");
}

void MainWindow::Find() {
  if (!find_) {
    find_ = new FindDialog(this);
    ConnectAct(find_, &FindDialog::FindWanted, this, &MainWindow::FindNext);
  }
  CodePane* pane = ActivePane();
  const QString selected = pane ? pane->Editor().textCursor().selectedText() : QString();
  find_->Ask(selected.contains(QChar::ParagraphSeparator) ? QString() : selected);
}

void MainWindow::FindNext() {
  CodePane* pane = ActivePane();
  if (!pane || !find_ || find_->Text().isEmpty()) return;
  if (!pane->FindNext(find_->Text(), find_->MatchesCase(), find_->MatchesWords()))
    statusBar()->showMessage(tr("\"%1\" was not found.").arg(find_->Text()));
  UpdateCommands();
}

void MainWindow::ViewCode() {
  if (const auto module = ActiveModule() ? ActiveModule() : tree_->Current()) OpenCode(module);
}

void MainWindow::ViewObject() {
  const auto module = ActiveModule() ? ActiveModule() : tree_->Current();
  if (module && HasDesigner(*module)) OpenDesigner(module);
}

void MainWindow::ViewProject() {
  project_dock_->show();
  project_dock_->raise();
  tree_->setFocus();
}

void MainWindow::ViewProperties() {
  property_dock_->show();
  property_dock_->raise();
  property_dock_->widget()->setFocus();
}

void MainWindow::ViewImmediate() {
  immediate_dock_->show();
  immediate_dock_->raise();
  immediate_->setFocus();
}

void MainWindow::ViewProblems() {
  ShowProblems();
  RaiseProblems();
}

// The add-in hears that the program starts; the desk itself runs none.
void MainWindow::Start() {
  environment_->EnterRunMode();
  statusBar()->showMessage(tr("Run mode was announced to the add-in. Programs themselves do not run on this desk."));
}

void MainWindow::Tabs() {
  area_->setViewMode(QMdiArea::TabbedView);
}

void MainWindow::Cascade() {
  area_->setViewMode(QMdiArea::SubWindowView);
  for (QMdiSubWindow* window : area_->subWindowList()) window->showNormal();
  area_->cascadeSubWindows();
}

void MainWindow::Tile() {
  area_->setViewMode(QMdiArea::SubWindowView);
  for (QMdiSubWindow* window : area_->subWindowList()) window->showNormal();
  area_->tileSubWindows();
}

void MainWindow::CloseWindow() {
  area_->closeActiveSubWindow();
}

void MainWindow::About() {
  QMessageBox box(QMessageBox::NoIcon, tr("About Corvane"),
                  tr("Corvane %1\n\nA project explorer for Visual Basic 6, on a desk of its own.").arg(CORVANE_VERSION),
                  QMessageBox::Ok, this);
  box.setIconPixmap(NamedIcon("corvane").pixmap(48, 48));
  box.exec();
}

}  // namespace corvane::desk
