#include "cli/run_script.h"

#include <csignal>
#include <ostream>

#include "cli/plain_services.h"
#include "cli/script_boxes.h"
#include "cli/script_surroundings.h"
#include "environment/disk_files.h"
#include "runtime/code_page.h"
#include "script/frm_lib.h"
#include "script/marks.h"
#include "script/script_text.h"

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
  std::string joined;
  for (const std::string& parameter : options.parameters) {
    if (&parameter != &options.parameters.front()) joined += script::listSep;
    joined += runtime::AnsiCodePage().FromUtf8(parameter);
  }
  return joined;
}

}  // namespace

int RunScriptFile(const std::string& file_bytes, const ScriptOptions& options, std::ostream& out,
                  std::ostream& errors) {
  if (options.code_page != 0) runtime::SetAnsiCodePage(options.code_page);
  PlainServices plain;
  const host::Services given = plain;
  if (!options.library.empty()) given.App.Path = environment::WindowsPath(options.library);
  ScriptLoop loop;
  ScriptBoxes boxes(errors, options.json, {options.answers.begin(), options.answers.end()}, given.App.Title);
  host::Services services{given.Clipboard, boxes, given.Settings, given.App,
                          given.Screen,    loop,  given.Files,    given.Pictures};
  NoProject project;
  WorkshopTexts workshop(services);
  NoObjects objects;
  LocalClock clock;
  PassedForms forms;
  NoDebugWindow debug;
  NoResultWindow result;
  DeletingPlatform platform;
  std::string param_exchange;
  script::Surroundings around{services, project, workshop, objects, clock,    project,
                              workshop, forms,   debug,    result,  platform, param_exchange};
  script::frmLib lib(around);
  lib.Errors().SetBox([&](const auto& message, const auto& flat) { return boxes.ErrorBox(message, flat); });
  lib.ShowPlan(options.plan);
  lib.Parts().state.scriptParams = Parameters(options);
  loop.lib = &lib;
  const Interrupts interrupts;
  lib.RunScriptText(script::WithLineEnds(file_bytes));
  out << lib.ResultText();
  return boxes.ErrorCameUp() ? 1 : 0;
}

}  // namespace corvane::cli
