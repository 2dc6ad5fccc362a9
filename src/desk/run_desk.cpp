#include "desk/run_desk.h"

#include <QApplication>
#include <QDir>
#include <QTimer>
#include <iostream>

#include "cli/plain_services.h"
#include "desk/desk.h"
#include "desk/qt_services.h"
#include "desk/tour.h"

namespace corvane::desk {

namespace {

bool HasDisplay() {
  return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
         qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

// What Qt says about the platform without a screen is no news to who asked for pictures.
void DropPlatformNotes(QtMsgType type, const QMessageLogContext&, const QString& text) {
  const bool note =
      text.startsWith("This plugin does not support") || text.startsWith("QStandardPaths: XDG_RUNTIME_DIR");
  if (type != QtDebugMsg && !note) std::cerr << text.toStdString() << '\n';
}

int DrawPictures(const cli::DeskOptions& options, std::ostream& out) {
  QtServices services;
  cli::PlainServices plain;
  TourPrompts prompts(static_cast<host::Services>(plain).Prompts, services.Prompts());
  const host::Services shared = services;
  Desk desk({shared.Clipboard, prompts, shared.Settings, shared.App, shared.Screen, shared.Loop, shared.Files,
             shared.Pictures, shared.Printer},
            {options.code_page, static_cast<int>(addin::ConnectMode::Startup), true});
  if (!options.project.empty() && !desk.Open(QString::fromStdString(options.project))) return 1;
  if (!options.tour.empty())
    return RunTour(desk, QString::fromStdString(options.tour), out) && prompts.told == 0 ? 0 : 1;
  const QString folder = QString::fromStdString(options.screenshots), suffix = QString::fromStdString(options.suffix);
  const bool drawn = TakeScreenshots(desk, folder, suffix, out);
  return TakeBoxPictures(desk, prompts, folder, suffix, out) && drawn && prompts.told == 0 ? 0 : 1;
}

int ShowWindows(const cli::DeskOptions& options) {
  QtServices services;
  Desk desk(services, {options.code_page, options.connect_mode, true});
  services.Printer().printed = [&desk](const PrintTarget& target) {
    const QString where = target.file.isEmpty() ? target.printer : QDir::toNativeSeparators(target.file);
    desk.Told(QObject::tr("Printed to %1.").arg(where));
  };
  if (!options.project.empty()) desk.Open(QString::fromStdString(options.project));
  if (options.explorer) desk.ClickButton();
  return QApplication::exec();
}

}  // namespace

int RunDesk(const cli::DeskOptions& options, int argc, char** argv, std::ostream& out, std::ostream& errors) {
  const bool pictures = !options.tour.empty() || !options.screenshots.empty();
  if (pictures && !HasDisplay()) qputenv("QT_QPA_PLATFORM", "offscreen");
  if (!HasDisplay()) {
    errors << "corvane: there is no display (neither DISPLAY nor WAYLAND_DISPLAY is set); "
              "--offscreen-tour FOLDER draws the windows into pictures, `corvane --help` names the commands\n";
    return 1;
  }
  if (pictures) qInstallMessageHandler(DropPlatformNotes);
  QApplication application(argc, argv);
  QApplication::setApplicationName("Corvane");
  QApplication::setDesktopFileName("corvane");
  return pictures ? DrawPictures(options, out) : ShowWindows(options);
}

}  // namespace corvane::desk
