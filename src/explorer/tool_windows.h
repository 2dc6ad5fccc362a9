// ToolWindows: the windows of the other tools as the explorer opens them. A tool that is not there has no function
// here, and its keys are disabled.
#pragma once

#include <functional>
#include <string>

#include "host/vbe.h"

namespace corvane::explorer {

// The library of scripts, and the window in which they are written.
class WizardLibrary {
 public:
  virtual ~WizardLibrary() = default;
  virtual bool IsWorkshopOpen() = 0;
  // Lists the wizards in a window of that title. Returns the row that was chosen, empty for none; [edit]: to be opened
  // in the workshop instead of being run.
  virtual std::string ChooseWizard(const std::string& title, const std::string& prompt, bool& edit) = 0;
  // Runs the script of that name; [entry] is where in it, empty for its start. Returns what it leaves: a text that
  // begins with "MENU{" waits for being pasted.
  virtual std::string Execute(const std::string& name, const host::Ref<host::VBE>& vbe, const std::string& entry) = 0;
  // Opens the workshop, on the script of that name if there is one; returns like Execute.
  virtual std::string Display(const host::Ref<host::VBE>& vbe, const std::string& name) = 0;
};

struct ToolWindows {
  WizardLibrary* library = nullptr;
  // The reference of what was copied of the component; empty when nothing was.
  std::function<std::string(const std::string& component)> CopyProperties;
  std::function<void(const std::string& component, const std::string& copied)> PasteProperties;
  // The position of the component in which to declare, 0 for none. Returns whether the user asked to go to the code.
  std::function<bool(long component, const host::Ref<host::VBE>& vbe)> DeclareVar;
  std::function<bool(const host::Ref<host::VBProject>& project)> ShowNotes;  // returns whether the explorer stays
  // [title] is that of the code view.
  std::function<void(const host::Ref<host::VBComponents>& components, const std::string& title)> ShowMap;
};

}  // namespace corvane::explorer
