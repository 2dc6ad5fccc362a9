#include "desk/desk.h"

#include <QCoreApplication>
#include <QFileDialog>

#include "desk/ansi_text.h"
#include "desk/bulleted.h"
#include "desk/shown_path.h"
#include "desk/user_act.h"
#include "environment/command_bar_model.h"
#include "environment/disk_files.h"
#include "runtime/code_page.h"
#include "runtime/strings.h"

namespace corvane::desk {

namespace {

constexpr char kAddInsSection[] = "Add-Ins";

QString AskForProject(QWidget* parent, const QString& title) {
  return QFileDialog::getOpenFileName(parent, title, {},
                                      QObject::tr("Visual Basic projects (*.vbp *.vbg *.VBP *.VBG)"));
}

// Of the problems from that one on.
std::vector<std::string> ReasonsFrom(const environment::Environment& environment, size_t first) {
  std::vector<std::string> reasons;
  for (size_t at = first; at < environment.Problems().size(); ++at) {
    const environment::Problem& problem = environment.Problems()[at];
    const std::string line = problem.line > 0 ? "line " + std::to_string(problem.line) + ": " : std::string();
    reasons.push_back(line + FromLabel(ShownName(problem.reason)));
  }
  return reasons;
}

}  // namespace

Desk::Desk(host::Services services, DeskOptions options) : services_(services), options_(options) {
  toolkit_.OnFault = [this](const std::string& what) { Told(ToLabel(what)); };
  Begin(NewEnvironment());
  if (connect_) connect_->AddinInstance_OnStartupComplete();
}

Desk::~Desk() {
  End();
}

std::shared_ptr<environment::Environment> Desk::NewEnvironment() {
  return environment::Environment::Create(services_.Files, &services_.Clipboard, {options_.code_page});
}

void Desk::Begin(std::shared_ptr<environment::Environment> environment) {
  environment_ = std::move(environment);
  if (environment_->CodePage()) runtime::SetAnsiCodePage(environment_->CodePage());
  window_ = std::make_unique<MainWindow>(environment_, services_.Prompts);
  window_->CurrentAct = [this] { return toolkit_.CurrentAct(); };
  toolkit_.SetParentWindow(window_.get());
  ConnectAct(window_.get(), &MainWindow::OpenWanted, this, &Desk::Open, Qt::QueuedConnection);
  ConnectAct(window_.get(), &MainWindow::AddProjectWanted, this, [this] { AddProject({}); });
  ConnectAct(
      window_.get(), &MainWindow::ReadAgainWanted, this, [this] { Replace(path_, added_); }, Qt::QueuedConnection);
  ConnectAct(window_.get(), &MainWindow::AddInManagerWanted, this, &Desk::ManageAddIns);
  ConnectAct(window_.get(), &MainWindow::Left, this, [this] { Disconnect(addin::DisconnectMode::HostShutdown); });
  if (options_.show_window) window_->show();
  if (options_.connect_mode >= 0)
    Connect(static_cast<addin::ConnectMode>(options_.connect_mode));
  else if (LoadsAtStartup())
    Connect(addin::ConnectMode::Startup);
}

void Desk::End() {
  Disconnect(addin::DisconnectMode::HostShutdown);
  toolkit_.SetParentWindow(nullptr);
  window_.reset();
  environment_.reset();
}

void Desk::Told(const QString& message) {
  if (window_) window_->Told(message);
}

// A group of which nothing opens is no more than a file that cannot be read.
bool Desk::TryOpen(environment::Environment& environment, const QString& path) {
  const size_t projects = environment.Projects().size(), problems = environment.Problems().size();
  std::string reason;
  try {
    environment.Open(environment::WindowsPath(path.toStdString()));
    if (environment.Projects().size() > projects) return true;
    reason = "no project in it can be read" + Bulleted(ReasonsFrom(environment, problems));
  } catch (const host::Error& error) {
    reason = FromLabel(ReasonOf(path.toStdString(), error));
  }
  services_.Prompts.MsgBox(FromLabel(path) + runtime::kCrLf + "cannot be opened: " + reason, host::vbExclamation);
  return false;
}

// The first project comes onto the desk that is there; one that takes its place gets a desk of its own, once it was
// read.
bool Desk::Open(const QString& path) {
  const QString chosen = path.isEmpty() ? AskForProject(window_.get(), tr("Open Project")) : path;
  if (chosen.isEmpty() || !window_->MayLeave()) return false;
  if (environment_->Projects().empty()) {
    if (!TryOpen(*environment_, chosen)) {
      // What was found wrong in it is nothing that is open here.
      if (!environment_->Problems().empty()) Show(NewEnvironment());
      return false;
    }
    path_ = chosen;
    Opened();
    return true;
  }
  return Replace(chosen);
}

// What is open stays, on its code page, unless all of [path] and [added] can be read.
bool Desk::Replace(const QString& path, const QStringList& added) {
  const int page_before = runtime::AnsiCodePage().Number();
  auto next = NewEnvironment();
  for (const QString& each : QStringList{path} + added)
    if (!TryOpen(*next, each)) {
      runtime::SetAnsiCodePage(page_before);
      return false;
    }
  path_ = path;
  added_ = added;
  Show(std::move(next));
  return true;
}

void Desk::Show(std::shared_ptr<environment::Environment> environment) {
  const QByteArray geometry = window_->saveGeometry();
  End();
  Begin(std::move(environment));
  window_->restoreGeometry(geometry);
  Opened();
}

void Desk::Opened() {
  runtime::SetAnsiCodePage(environment_->CodePage());
  window_->ShowProject();
  if (connect_) connect_->AddinInstance_OnStartupComplete();
}

bool Desk::AddProject(const QString& path) {
  const QString chosen = path.isEmpty() ? AskForProject(window_.get(), tr("Add Project")) : path;
  if (chosen.isEmpty() || !TryOpen(*environment_, chosen)) return false;
  if (path_.isEmpty())
    path_ = chosen;
  else
    added_ << chosen;
  Opened();
  return true;
}

void Desk::Connect(addin::ConnectMode mode) {
  if (connect_) return;
  if (!toolkit_.IsInAct()) disconnected_.clear();
  connect_ = std::make_unique<addin::Connect>(services_, toolkit_);
  connect_->AddinInstance_OnConnection(environment_, mode);
}

void Desk::Disconnect(addin::DisconnectMode mode) {
  if (!connect_) return;
  if (mode == addin::DisconnectMode::HostShutdown) connect_->AddinInstance_OnBeginShutdown();
  connect_->AddinInstance_OnDisconnection(mode);
  if (toolkit_.IsInAct()) disconnected_.push_back(std::move(connect_));
  connect_.reset();
}

AddInState Desk::State() const {
  return {IsConnected(), LoadsAtStartup()};
}

bool Desk::LoadsAtStartup() const {
  return services_.Settings.GetSetting(services_.App.Title, kAddInsSection, addin::kProgId, "1") == "1";
}

void Desk::Apply(const AddInState& state) {
  services_.Settings.SaveSetting(services_.App.Title, kAddInsSection, addin::kProgId, state.at_startup ? "1" : "0");
  if (state.loaded && !IsConnected()) Connect(addin::ConnectMode::AfterStartup);
  if (!state.loaded && IsConnected()) Disconnect(addin::DisconnectMode::UserClosed);
}

void Desk::ManageAddIns() {
  AddInManager dialog(State(), window_.get());
  if (dialog.exec() == QDialog::Accepted) Apply(dialog.State());
}

bool Desk::ClickButton() {
  const environment::Bar* bar = environment_->Bars().Find("Standard");
  if (!bar) return false;
  for (const environment::BarControl& control : bar->controls)
    if (control.caption == addin::kFriendlyName) return environment_->Bars().Click(control.id);
  return false;
}

QWidget* Desk::ExplorerWindow() const {
  explorer::frmAddIn* form = connect_ ? connect_->mfrmAddIn() : nullptr;
  return form ? toolkit_.WindowOf(*form) : nullptr;
}

}  // namespace corvane::desk
