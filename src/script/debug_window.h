// DebugWindow: what the stepper shows before a statement, and what the user answers.
#pragma once

#include <string>
#include <vector>

namespace corvane::script {

struct DebugView {
  std::vector<std::string> lines;  // the statement to come, then those behind it; the first is selected
  std::string watch;               // entry = value, a line each
  float left = 0, top = 0;         // twips
};

enum DebugButton : long { kRunOn = 0, kStep = 1, kStopScript = 2, kRunOut = 3 };

struct DebugAnswer {
  long button = kRunOn;
  std::string expression = {};  // typed to be evaluated
  std::string count = {};       // typed as the number of lines to skip
  long selected = 1;            // the line selected in the list, from 1
  float left = 0, top = 0;
};

class DebugWindow {
 public:
  virtual ~DebugWindow() = default;
  // Modal.
  virtual DebugAnswer Display(const DebugView& view) = 0;
};

}  // namespace corvane::script
