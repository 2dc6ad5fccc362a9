// DebugStep: the stepper of the language, called before each statement while debugOn is set.
#pragma once

#include <string>

#include "host/services.h"
#include "script/debug_window.h"
#include "script/expressions.h"
#include "script/report_error.h"
#include "script/script_state.h"

namespace corvane::script {

class DebugStepper {
 public:
  static constexpr float kFirstPlace = 2600;  // twips, for left and top

  DebugStepper(ScriptState& state, ErrorBoxes& errors, Expressions& expressions, DebugWindow& window,
               host::Screen& screen)
      : state_(state), errors_(errors), expressions_(expressions), window_(window), screen_(screen) {}

  // The window's place and its list are as they were when the program started.
  void Reset();
  // Shows [statement] and what currentLine holds behind it, and does what the user answers.
  void DebugStep(const std::string& statement);

 private:
  DebugAnswer Ask(const std::string& statement, const std::string& behind, const std::string& watch);
  void Obey(const DebugAnswer& answer);
  bool RunsOut(const DebugAnswer& answer) const;
  bool StaysHere(const DebugAnswer& answer) const;
  std::string WatchedValues();
  std::string LineOf(const std::string& entry);

  ScriptState& state_;
  ErrorBoxes& errors_;
  Expressions& expressions_;
  DebugWindow& window_;
  host::Screen& screen_;
  float left_ = kFirstPlace, top_ = kFirstPlace;
  bool evaluating_ = false;  // for the window
};

}  // namespace corvane::script
