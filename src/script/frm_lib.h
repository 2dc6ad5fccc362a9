// frmLib: the object that holds a whole run of the script language.
#pragma once

#include <memory>
#include <string>

#include "script/commands.h"
#include "script/debug_step.h"
#include "script/engine.h"
#include "script/evaluator.h"
#include "script/report_error.h"
#include "script/sub_store.h"
#include "script/surroundings.h"
#include "script/translated_pieces.h"

namespace corvane::script {

class frmLib : public CodeRunner, private Dialogs {
 public:
  explicit frmLib(Surroundings& around);
  ~frmLib() override;
  frmLib(const frmLib&) = delete;
  frmLib& operator=(const frmLib&) = delete;

  // Runs a file in an engine of its own, as SCRIPTRUN does. Its errors come in this one's box, and a stop reaches it.
  void RunInside(const std::string& file);
  int Depth() const { return depth_; }  // of engines in one another

  void Display() { around_.window.Display(); }
  // Runs the item of that title of the library. labelMark and a path run a file; paramMark and parameters are kept for
  // a script to come, and so is [entry]. "Good thing" when the result is on the clipboard, else the menu text.
  std::string Execute(const std::string& title, const std::string& entry = {});
  // Runs a script, and those that RUN starts after it. Does nothing while one runs.
  void RunScriptText(const std::string& script);
  // The same for a FORM block or the name of a kept one, from inside a run.
  void RunDialog(const std::string& form, bool show);
  void StopMe();
  // Whether runs begin as behind a SHOWPLAN.
  void ShowPlan(bool plan) { plan_ = plan; }
  std::string ResolveScriptPath(const std::string& spec);

  // One piece of code: the loop of the language.
  void RunCode(std::string text) override;

  std::string ResultText() const { return std::string(state_.resultText.Get()); }
  const std::string& MenuText() const { return menu_text_; }
  ErrorBoxes& Errors() { return errors_; }
  Engine& Parts() { return engine_; }
  Surroundings& Around() { return around_; }

 private:
  void Show(const std::string& form) override { RunDialog(form, true); }

  std::string LibraryScript(const std::string& title);
  void Reset();
  // Whether another script follows, which [script] is then.
  bool RunOnce(std::string& script);
  void ReadAndShow(std::string script);
  void ShowEnd(bool met_block);
  std::string FormNamed(const std::string& name) const;

  Surroundings& around_;
  ScriptState state_;
  ErrorBoxes errors_;
  Outside outside_;
  Evaluator evaluator_;
  SubStore subs_;
  TranslatedPieces pieces_;
  DebugStepper debugger_;
  Commands commands_;
  Engine engine_;
  std::string menu_text_;
  frmLib* inner_ = nullptr;  // while a script of RunInside runs
  int depth_ = 0;
  bool running_ = false, from_library_ = false, stop_asked_ = false, plan_ = false;
};

}  // namespace corvane::script
