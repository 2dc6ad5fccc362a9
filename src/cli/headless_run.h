// HeadlessRun: the engine of scripts with all that stands around it on the command line.
#pragma once

#include <iosfwd>
#include <string>

#include "cli/plain_services.h"
#include "cli/run_script.h"
#include "cli/script_boxes.h"
#include "cli/script_project.h"
#include "cli/script_surroundings.h"
#include "script/frm_lib.h"
#include "script/project_access.h"
#include "script/windowless.h"

namespace corvane::cli {

// Whether Ctrl+C was pressed since the last of these was made.
class Interrupts {
 public:
  Interrupts();
  ~Interrupts();
  static bool Came();

 private:
  void (*before_)(int);
};

class ScriptLoop : public host::EventLoop {
 public:
  script::frmLib* lib = nullptr;

  void DoEvents() override;
  void SendKeys(const std::string&) override {}
  uint32_t TickCount() override;
};

// Opens the project of [options], if it names one, and selects its component. False, with a line on [errors], where
// that fails.
bool OpenProject(ScriptProject& project, const ScriptOptions& options, std::ostream& errors);

struct HeadlessRun {
  HeadlessRun(const host::Services& given, const ScriptProject& project, const ScriptOptions& options,
              std::ostream& errors);

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

}  // namespace corvane::cli
