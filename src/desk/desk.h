// Desk: an environment with its window, and the add-in connected to it as Visual Basic 6 connects one: at startup
// before the project is open, by hand from the Add-In Manager, disconnected when it is unloaded or the desk is left.
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <memory>
#include <vector>

#include "addin/connect.h"
#include "desk/add_in_manager.h"
#include "desk/main_window.h"
#include "desk/qt_services.h"
#include "environment/environment.h"
#include "forms/toolkit.h"
#include "toolkit_qt/toolkit.h"

namespace corvane::desk {

struct DeskOptions {
  int code_page = 0;      // 0: guessed for each project
  int connect_mode = -1;  // -1: as the Add-In Manager says; else a ConnectMode, for trying them out
  bool show_window = true;
};

class Desk : public QObject {
  Q_OBJECT

 public:
  // Empty, with the add-in connected. [services] outlives it.
  Desk(host::Services services, DeskOptions options = {});
  ~Desk() override;

  // Opens a project in place of what is open; an empty path asks for one. Errors are told in a message box.
  bool Open(const QString& path);
  bool AddProject(const QString& path);
  // Puts an environment of the caller's on the desk, as opened.
  void Show(std::shared_ptr<environment::Environment> environment);
  std::shared_ptr<environment::Environment> NewEnvironment();

  MainWindow& Window() { return *window_; }
  environment::Environment& EnvironmentOf() { return *environment_; }
  toolkit_qt::QtToolkit& Toolkit() { return toolkit_; }
  host::Services& ServicesOf() { return services_; }

  bool IsConnected() const { return connect_ != nullptr; }
  addin::Connect* AddIn() { return connect_.get(); }
  void Connect(addin::ConnectMode mode);
  void Disconnect(addin::DisconnectMode mode);
  // What the Add-In Manager's OK does.
  void Apply(const AddInState& state);
  AddInState State() const;
  // The user clicks the add-in's button. False when there is none.
  bool ClickButton();
  // The explorer's window; null before it was opened.
  QWidget* ExplorerWindow() const;
  // For the status bar.
  void Told(const QString& message);

 private:
  void Begin(std::shared_ptr<environment::Environment> environment);
  void End();
  void Opened();
  bool Replace(const QString& path, const QStringList& added = {});
  bool TryOpen(environment::Environment& environment, const QString& path);
  void ManageAddIns();
  bool LoadsAtStartup() const;

  host::Services services_;
  DeskOptions options_;
  toolkit_qt::QtToolkit toolkit_;
  std::shared_ptr<environment::Environment> environment_;
  std::unique_ptr<MainWindow> window_;
  std::unique_ptr<addin::Connect> connect_;
  std::vector<std::unique_ptr<addin::Connect>> disconnected_;  // during an act of theirs, which goes on
  QString path_;                                               // of what was opened last
  QStringList added_;                                          // to that, in order
};

}  // namespace corvane::desk
