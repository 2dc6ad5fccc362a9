#include "cli/run_script.h"

#include <csignal>
#include <ostream>

#include "cli/plain_services.h"
#include "cli/script_boxes.h"
#include "cli/script_project.h"
#include "cli/script_surroundings.h"
#include "cli/shown_path.h"
#include "environment/disk_files.h"
#include "runtime/code_page.h"
#include "script/frm_lib.h"
#include "script/marks.h"
#include "script/project_access.h"
#include "script/script_text.h"
#include "script/windowless.h"

namespace corvane::cli {

namespace {

volatile std::sig_atomic_t interrupted = 0;

// Ctrl+C for as long as it lives.
class Interrupts {
 public:
  Interrupts() : before_(std::signal(SIGINT, [](int) { interrupted = 1; })) { interrupted = 0; }
  ~Interrupts() { std::signal(SIGINT, before_); }

 private:
  void (*before_)(int);
};

class ScriptLoop : public host::EventLoop {
 public:
  script::frmLib* lib = nullptr;

  void DoEvents() override {
    if (interrupted && lib != nullptr) lib->StopMe();
  }
  void SendKeys(const std::string&) override {}
  uint32_t TickCount() override { return MillisecondsSinceStart(); }
};

std::string Parameters(const ScriptOptions& options) {
  const bool begins_empty = !options.parameters.empty() && options.parameters.front().empty();
  std::string joined(begins_empty, script::labelMark);  // GETPARAMS passes over one mark at the front
  for (const std::string& parameter : options.parameters) {
    if (&parameter != &options.parameters.front()) joined += script::listSep;
    joined += runtime::AnsiCodePage().FromUtf8(parameter);
  }
  return joined;
}

// False, with a line on [errors], where it cannot be opened.
bool OpenProject(ScriptProject& project, const ScriptOptions& options, std::ostream& errors) {
  if (options.project.empty()) return true;
  try {
    project.Open(options.project, errors);
  } catch (const host::Error& error) {
    TellFailure(errors, options.project, error);
    return false;
  }
  if (options.component.empty()) return true;
  const std::string name = runtime::AnsiCodePage().FromUtf8(options.component);
  if (host::PassOverErrors([&] { project.Select(name); })) return true;
  errors << options.project << ": there is no component " << options.component << '\n';
  return false;
}

// False where a file was not written that should have been. What a script that was stopped left half done is not saved.
bool TellAndSave(ScriptProject& project, const ScriptOptions& options, std::ostream& errors) {
  if (options.project.empty()) return true;
  const bool collected = project.Collect(errors);
  if (!options.quiet) project.TellChanges(errors);
  if (!options.save || !collected) return collected;
  if (!interrupted) return project.Save(errors);
  errors << "interrupted: nothing was saved\n";
  return false;
}

// A run with all that stands around it on the command line.
struct HeadlessRun {
  HeadlessRun(const host::Services& given, const ScriptProject& project, const ScriptOptions& options,
              std::ostream& errors)
      : boxes(errors, options.json, {options.answers.begin(), options.answers.end()}, given.App.Title),
        services{given.Clipboard, boxes,          given.Settings, given.App, given.Screen, loop,
                 given.Files,     given.Pictures, given.Printer},
        access(project.Environment(), services) {
    lib.Errors().SetBox([this](const auto& message, const auto& flat) { return boxes.ErrorBox(message, flat); });
    lib.ShowPlan(options.plan);
    lib.Parts().state.scriptParams = Parameters(options);
    loop.lib = &lib;
  }

  ScriptLoop loop;
  ScriptBoxes boxes;
  host::Services services;
  script::ProjectAccess access;
  script::WorkshopTexts workshop{services};
  NoObjects objects;
  LocalClock clock;
  script::PassedForms forms;
  script::NoDebugWindow debug;
  script::NoResultWindow result;
  DeletingPlatform platform{boxes};
  std::string param_exchange;
  script::Surroundings around{services, access, workshop, objects, clock,    access,
                              workshop, forms,  debug,    result,  platform, param_exchange};
  script::frmLib lib{around};
};

}  // namespace

int RunScriptFile(const std::string& file_bytes, const ScriptOptions& options, std::ostream& out,
                  std::ostream& errors) {
  if (options.code_page != 0) runtime::SetAnsiCodePage(options.code_page);
  PlainServices plain;
  const host::Services given = plain;
  if (!options.library.empty()) given.App.Path = environment::WindowsPath(options.library);
  ScriptProject project(given.Files, options.code_page);
  if (!OpenProject(project, options, errors)) return 1;
  HeadlessRun run(given, project, options, errors);
  const Interrupts interrupts;
  try {
    run.lib.RunScriptText(script::WithLineEnds(file_bytes));
  } catch (const WrongAnswer& wrong) {
    errors << wrong.what() << '\n';
    return 2;
  }
  out << run.lib.ResultText() << std::flush;
  const bool written = TellAndSave(project, options, errors);
  return written && !run.boxes.ErrorCameUp() ? 0 : 1;
}

}  // namespace corvane::cli
