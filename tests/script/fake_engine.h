// Stand-ins of the engine's neighbours for tests: they record what was asked.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "script/script_state.h"

namespace corvane::script {

// Answers each error box with OK, or with Cancel, which stops the run.
class FakeErrors : public ErrorReport {
 public:
  explicit FakeErrors(ScriptState& state) : state_(state) {}
  void ReportError(const std::string& message) override {
    messages.push_back(message);
    if (cancel) state_.stopFlag = true;
  }
  std::vector<std::string> messages;
  bool cancel = false;

 private:
  ScriptState& state_;
};

class FakeRunner : public CodeRunner {
 public:
  void RunCode(std::string text) override {
    ran.push_back(text);
    if (on_run) on_run(text);
  }
  std::vector<std::string> ran;
  std::function<void(const std::string&)> on_run;
};

}  // namespace corvane::script
