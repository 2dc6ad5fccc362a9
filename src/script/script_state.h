// ScriptState: what the layers of the engine share of a run: the fields of the frmLib object.
#pragma once

#include <string>
#include <vector>

#include "script/cell.h"

namespace corvane::script {

// The translator's counters. They live across the pieces of one block.
struct Counters {
  int ifDepth = 0;    // open IFs
  int loopDepth = 0;  // open FORs and WHILEs
  int loopId = 0;     // number of the outermost loop
  int selectId = 0;   // nesting number of the SELECT; negative while a CASE of it is open
  bool operator==(const Counters&) const = default;
};

struct ScriptState {
  bool stopFlag = false;    // leave all loops at the next check
  std::string currentLine;  // flat text at the statement under execution, shown in error boxes
  bool lvalueMode = false;  // a name that is not found is no error
  Cell lastValue;           // value of the last expression
  bool notFlag = false;     // a NOT is pending
  Text resultText;          // what the script produces
  std::string printText;    // what PRINT collected
  bool condFlag = true;     // of the last IF or CASE
  int subDepth = 0;         // depth of calls; 0 at the top
  Counters counters;
  std::string labelTarget;  // a jump under way
  int labelSearch = 0;      // what happens when a piece does not hold it: 0 to 3
  bool debugOn = false, planOn = false, wizardMode = false, restartFlag = false;
  std::string nextScript;  // what RUN names; the expression that it was called in may go on to change lastValue
  std::string debugWatch;
  int debugSkip = 0;
  std::string scriptFile;    // path of the file last included
  std::string scriptParams;  // parameters between scripts
  bool dialogActive = false;
  std::string dialogValues, savedDialogValues, indexValue;
  std::string formStore;        // kept FORM blocks: for each labelMark, its name, labelMark, its text, listSep
  std::vector<Cell> pushSlots;  // values of SELECT CASE, by nesting number
};

// The one error box of the language.
class ErrorReport {
 public:
  virtual ~ErrorReport() = default;
  virtual void ReportError(const std::string& message) = 0;
};

// What expressions and commands ask of the execution loop.
class CodeRunner {
 public:
  virtual ~CodeRunner() = default;
  // Cleans, translates and runs a piece; effects go to the state.
  virtual void RunCode(std::string text) = 0;
};

}  // namespace corvane::script
