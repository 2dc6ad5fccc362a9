#include "desk/main_window.h"

#include <QAction>
#include <QCloseEvent>
#include <QDockWidget>
#include <QHeaderView>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QStatusBar>
#include <QTabBar>
#include <QTreeWidget>

#include "desk/ansi_text.h"
#include "desk/code_pane.h"
#include "desk/designer_window.h"
#include "desk/find_dialog.h"
#include "desk/icons.h"
#include "desk/kind_names.h"
#include "desk/project_tree.h"
#include "desk/property_list.h"
#include "desk/shown_path.h"
#include "desk/user_act.h"
#include "runtime/code_page.h"

namespace corvane::desk {

namespace {

// What Visual Basic calls a kind of component in the property list.
QString ClassOf(host::ComponentType type) {
  const std::string_view name = NamesOf(type).class_name;
  return QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size()));
}

QString HeadingOf(environment::Module& module) {
  return (ToLabel(module.Name()) + "  " + ClassOf(module.Type())).trimmed();
}

constexpr QSize kFirstSize(1240, 800);
constexpr int kSideWidth = 310, kBottomHeight = 120, kTreeHeight = 400, kListHeight = 300;
constexpr double kTwips = 15;

}  // namespace

MainWindow::MainWindow(std::shared_ptr<environment::Environment> environment, host::Prompts& prompts)
    : environment_(std::move(environment)), prompts_(prompts), area_(new QMdiArea(this)) {
  for (const environment::Bar& bar : environment_->Bars().Bars())
    for (const environment::BarControl& control : bar.controls) own_controls_.insert(control.id);
  setObjectName("desk");
  setWindowIcon(NamedIcon("corvane"));
  area_->setViewMode(QMdiArea::TabbedView);
  area_->setTabsClosable(true);
  area_->setTabsMovable(true);
  area_->setDocumentMode(true);
  if (auto* tabs = area_->findChild<QTabBar*>()) {
    tabs->setExpanding(false);
    tabs->setUsesScrollButtons(true);
  }
  area_->setBackground(palette().mid());
  setCentralWidget(area_);
  BuildDocks();
  BuildCommands();
  BuildStatus();
  FillBars();
  resize(kFirstSize);
  resizeDocks({project_dock_, property_dock_}, {kSideWidth, kSideWidth}, Qt::Horizontal);
  resizeDocks({project_dock_, property_dock_}, {kTreeHeight, kListHeight}, Qt::Vertical);
  resizeDocks({immediate_dock_, problem_dock_}, {kBottomHeight, kBottomHeight}, Qt::Vertical);
  ConnectAct(area_, &QMdiArea::subWindowActivated, this, [this] {
    UpdateCommands();
    ShowStatus();
    ShowProperties();
  });
  environment_->Observe(this);
  ShowProject();
}

// The panes go first: what they signal while they go is nobody's business any more.
MainWindow::~MainWindow() {
  environment_->Observe(nullptr);
  area_->disconnect(this);
  for (QMdiSubWindow* window : area_->subWindowList()) {
    if (window->widget()) window->widget()->disconnect(this);
    delete window;
  }
}

void MainWindow::BuildDocks() {
  tree_ = new ProjectTree(*environment_);
  properties_ = new PropertyList;
  immediate_ = new QPlainTextEdit;
  immediate_->setFont(CodeFont());
  immediate_->setFrameShape(QFrame::NoFrame);
  problems_ = new QTreeWidget;
  problems_->setHeaderLabels({tr("File"), tr("Line"), tr("Reason")});
  problems_->setRootIsDecorated(false);
  problems_->setUniformRowHeights(true);
  problems_->setFrameShape(QFrame::NoFrame);
  project_dock_ = AddDock(tr("Project"), "project", tree_, Qt::RightDockWidgetArea);
  property_dock_ = AddDock(tr("Properties"), "properties", properties_, Qt::RightDockWidgetArea);
  immediate_dock_ = AddDock(tr("Immediate"), "immediate", immediate_, Qt::BottomDockWidgetArea);
  problem_dock_ = AddDock(tr("What was not understood"), "problems", problems_, Qt::BottomDockWidgetArea);
  tabifyDockWidget(immediate_dock_, problem_dock_);
  immediate_dock_->raise();

  ConnectAct(tree_, &ProjectTree::CodeWanted, this, [this](const auto& module) { OpenCode(module); });
  ConnectAct(tree_, &ProjectTree::DesignerWanted, this, [this](const auto& module) { OpenDesigner(module); });
  ConnectAct(tree_, &ProjectTree::SaveWanted, this, [this](const auto& module) { SaveModule(module); });
  ConnectAct(tree_, &ProjectTree::Selected, this, [this](const auto& module) {
    environment_->SelectComponent(module);
    ShowProperties();
    UpdateCommands();
  });
  ConnectAct(tree_, &ProjectTree::ProjectWanted, this, &MainWindow::WorkOn);
  connect(tree_, &ProjectTree::Told, this, &MainWindow::Told);
  connect(properties_, &PropertyList::Told, this, &MainWindow::Told);
}

QDockWidget* MainWindow::AddDock(const QString& title, const char* name, QWidget* inside, Qt::DockWidgetArea area) {
  auto* dock = new QDockWidget(title, this);
  dock->setObjectName(name);
  dock->setWidget(inside);
  addDockWidget(area, dock);
  return dock;
}

void MainWindow::BuildStatus() {
  place_ = new QLabel(this);
  code_page_ = new QLabel(this);
  place_->setMinimumWidth(fontMetrics().horizontalAdvance("Line 65534, column 1023"));
  statusBar()->addPermanentWidget(place_);
  statusBar()->addPermanentWidget(code_page_);
}

void MainWindow::ShowProblems() {
  problems_changed_ = false;
  problems_->clear();
  for (const environment::Problem& problem : environment_->Problems()) {
    auto* item = new QTreeWidgetItem(
        problems_,
        {ShownPath(problem.file), problem.line ? QString::number(problem.line) : "", ShownName(problem.reason)});
    item->setIcon(0, NamedIcon("help"));
    item->setToolTip(2, ShownName(problem.reason));
  }
  problems_->resizeColumnToContents(0);
  problems_->resizeColumnToContents(1);
}

void MainWindow::RaiseProblems() {
  problem_dock_->show();
  problem_dock_->raise();
}

void MainWindow::ShowProject() {
  tree_->FillAgain();
  ShowWindowTitles();
  ShowProblems();
  problem_dock_->hide();
  if (problems_->topLevelItemCount() > 0) RaiseProblems();
  code_page_->setText(tr("Code page %1").arg(environment_->CodePage()));
  ShowTitle();
  ShowProperties();
  UpdateCommands();
}

void MainWindow::ShowTitle() {
  const auto project = environment_->ActiveVBProject();
  const QString name = project ? ToLabel(project->Name()) : QString();
  setWindowTitle((name.isEmpty() ? QString() : name + "[*] - ") + "Corvane");
  setWindowModified(environment_->IsDirty());
}

void MainWindow::Told(const QString& message) {
  statusBar()->showMessage(message);
}

// Where the cursor stands, or what the selected control measures.
void MainWindow::ShowStatus() {
  QWidget* inside = area_->activeSubWindow() ? area_->activeSubWindow()->widget() : nullptr;
  QString text;
  if (auto* pane = qobject_cast<CodePane*>(inside)) {
    const QTextCursor cursor = pane->Editor().textCursor();
    text = tr("Line %1, column %2").arg(cursor.blockNumber() + 1).arg(cursor.positionInBlock() + 1);
  } else if (auto* designer = qobject_cast<DesignerWindow*>(inside);
             designer && !designer->Canvas().Selected().empty()) {
    const PlacedControl& control = designer->Canvas().LayoutOf().controls[designer->Canvas().Selected().front()];
    const auto number = [](double pixels) { return QString::number(pixels * kTwips, 'f', 0); };
    if (!control.IsMenu())
      text = tr("%1, %2   %3 x %4")
                 .arg(number(control.place.x()), number(control.place.y()), number(control.place.width()),
                      number(control.place.height()));
  }
  place_->setText(text);
}

// Of the selected control, of the form in front, of the component chosen in the tree: the first there is.
void MainWindow::ShowProperties() {
  QWidget* inside = area_->activeSubWindow() ? area_->activeSubWindow()->widget() : nullptr;
  if (auto* designer = qobject_cast<DesignerWindow*>(inside)) {
    const DesignerCanvas& canvas = designer->Canvas();
    if (canvas.Selected().empty())
      return properties_->Show(HeadingOf(*designer->ModuleOf()), canvas.LayoutOf().properties);
    const PlacedControl& control = canvas.LayoutOf().controls[canvas.Selected().front()];
    const QString index = control.index < 0 ? QString() : QString("(%1)").arg(control.index);
    return properties_->Show(ToLabel(control.name) + index + "  " + ToLabel(control.class_name), control.properties);
  }
  auto module = ActiveModule();
  if (!module) module = tree_->Current();
  host::Ref<host::Properties> own;
  if (module) host::PassOverErrors([&] { own = module->Properties(); });
  properties_->Show(module ? HeadingOf(*module) : QString(), own);
}

void MainWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (!MayLeave()) return;
  event->accept();
  emit Left();
}

bool MainWindow::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate) ActLater(this, &MainWindow::CheckDisk);
  bool taken = true;
  UserAct([&] { taken = QMainWindow::event(event); }, [this](const QString& why) { Told(why); });
  return taken;
}

}  // namespace corvane::desk
