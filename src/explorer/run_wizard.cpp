// Wizards: scripts of the library that are run from here.
#include "explorer/frm_add_in.h"
#include "explorer/project_access.h"
#include "explorer/wizard_reference.h"
#include "runtime/strings.h"

namespace corvane::explorer {

using namespace runtime;

namespace {

constexpr char kWorkshopOpen[] = "Close Weaver Workshop window and then run script";
constexpr char kMenuBlock[] = "MENU{";
constexpr long kShortestKey = 2, kShortestMenu = 6;

}  // namespace

void frmAddIn::RunWizard(const std::string& key) {
  if (tools.library->IsWorkshopOpen()) {
    services.Prompts.MsgBox(kWorkshopOpen, host::vbExclamation);
    return;
  }
  WizardReference wizard;
  bool edit = false;
  if (Len(key) >= kShortestKey)
    wizard = ReferenceOfKey(key);
  else
    wizard = ReferenceOfRow(tools.library->ChooseWizard("Start Wizard", "Choose Wizard for executing", edit));
  if (wizard.name.empty()) return;
  const std::string result = edit ? tools.library->Display(VBInstance, wizard.name)
                                  : tools.library->Execute(wizard.name, VBInstance, wizard.entry);
  if (!KeepMenu(result) && !edit) Leave();
}

// A text that begins with a menu waits for being pasted, and the explorer stays for that.
bool frmAddIn::KeepMenu(const std::string& result) {
  if (Len(result) < kShortestMenu || !BeginsWith(UCase(result), kMenuBlock)) return false;
  copiedDesigner = result;
  return true;
}

void frmAddIn::StartWizard() {
  RunWizard({});
}

void frmAddIn::OpenWorkshop() {
  KeepMenu(tools.library->Display(VBInstance, {}));
}

}  // namespace corvane::explorer
