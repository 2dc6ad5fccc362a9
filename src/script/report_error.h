// ErrorBoxes: ReportError, the one error box of the language.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "host/services.h"
#include "script/script_state.h"

namespace corvane::script {

inline constexpr char kBoxTitle[] = "Weaver";

class ErrorBoxes : public ErrorReport {
 public:
  // Shows [message] over the listing [flat] with OK and Cancel, and tells which was pressed.
  using Box = std::function<long(const std::string& message, const std::string& flat)>;

  ErrorBoxes(ScriptState& state, host::Services& services) : state_(state), services_(services) {}

  // Cancel sets stopFlag; OK sets debugOn, unless wizardMode.
  void ReportError(const std::string& message) override;

  // Takes the place of the message box.
  void SetBox(Box box) { box_ = std::move(box); }
  void ShareBox(const ErrorBoxes& other) { box_ = other.box_; }

  // How many were reported so far.
  long Reported() const { return reported_; }

  // Runs [work] and returns what it reports, which is not shown and stops nothing.
  std::vector<std::string> Unreported(const std::function<void()>& work);

 private:
  long Ask(const std::string& message, const std::string& flat);

  ScriptState& state_;
  host::Services& services_;
  Box box_;
  long reported_ = 0;
  std::vector<std::string>* unreported_ = nullptr;
};

}  // namespace corvane::script
