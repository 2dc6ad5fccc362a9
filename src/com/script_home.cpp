#include "com/script_home.h"

#include "com/objects.h"
#include "com/script_library.h"
#include "com/script_machine.h"
#include "script/frm_lib.h"
#include "script/project_access.h"
#include "script/script_text.h"
#include "script/windowless.h"

namespace corvane::com {

struct ScriptHome::Parts {
  Parts(const host::Ref<host::VBE>& vbe, host::Services& services)
      : access(vbe, services), workshop(services), libraries(Argument(vbe)), around{services, access,
                                                                                    workshop, libraries,
                                                                                    machine,  access,
                                                                                    workshop, forms,
                                                                                    debug,    result,
                                                                                    machine,  param_exchange} {}

  script::ProjectAccess access;
  script::WorkshopTexts workshop;
  ScriptLibraries libraries;
  ScriptMachine machine;
  script::PassedForms forms;
  script::NoDebugWindow debug;
  script::NoResultWindow result;
  std::string param_exchange;
  script::Surroundings around;
  script::frmLib lib{around};
};

ScriptHome::ScriptHome(host::Ref<host::VBE> vbe, host::Services& services)
    : parts_(std::make_unique<Parts>(vbe, services)) {}

ScriptHome::~ScriptHome() = default;

std::string ScriptHome::Run(const std::string& script) {
  if (running_) return {};
  struct WhileRunning {
    explicit WhileRunning(bool& flag) : flag(flag) { flag = true; }
    ~WhileRunning() { flag = false; }
    bool& flag;
  } const running(running_);
  parts_->lib.RunScriptText(script::WithLineEnds(script));
  return parts_->lib.ResultText();
}

void ScriptHome::Stop() {
  parts_->lib.StopMe();
}

script::frmLib& ScriptHome::Lib() {
  return parts_->lib;
}

}  // namespace corvane::com
