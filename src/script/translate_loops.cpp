#include "runtime/strings.h"
#include "script/for_statement.h"
#include "script/translation.h"

namespace corvane::script {

namespace {

// As "1_2", the numbers in the labels of a loop.
std::string LoopNumbers(int depth, int loop) {
  return std::to_string(depth) + "_" + std::to_string(loop);
}

}  // namespace

std::string Translation::LoopLabel(int depth) const {
  return "_F" + LoopNumbers(depth, Count().loopId);
}

std::string Translation::TestLabel() const {
  return "_F_" + LoopNumbers(Count().loopDepth, Count().loopId);
}

bool Translation::ExitLoop() {
  if (Count().loopDepth >= 1) EmitJump("GOTF " + LoopLabel(Count().loopDepth - 1));
  return true;
}

bool Translation::Continue() {
  if (Count().loopDepth >= 1) Push("GOTB " + LoopLabel(Count().loopDepth) + ":");
  return true;
}

// Whatever closes it and whatever stands behind NEXT, the innermost loop is closed.
bool Translation::EndLoop() {
  const int depth = Count().loopDepth;
  if (depth < 1) {
    Report(runtime::Left(statement_.text, 5) + " without For or While operators");
    return true;
  }
  Push("GOTB " + LoopLabel(depth) + ":END IF:" + LoopLabel(depth - 1) + ":");
  Count().loopDepth = depth - 1;
  return true;
}

void Translation::OpenLoop() {
  if (++Count().loopDepth == 1) ++Count().loopId;
}

bool Translation::While() {
  const std::string condition = runtime::Mid(statement_.text, 7, static_cast<long>(statement_.text.size()) - 7);
  if (condition.empty()) {
    Report("Syntax Error Use: While Expression...Wend");
    return true;
  }
  OpenLoop();
  Push(LoopLabel(Count().loopDepth) + ":IF " + condition + " THEN:");
  return true;
}

// Whether the loop goes down is seen by the text of the step alone, and "=>" is no comparison: the test is then true
// until the variable is 0, whatever the limit.
bool Translation::For() {
  const auto parts = ReadFor(statement_.text);
  if (!parts) {
    Report("Syntax Error Use:For i=1 to 12 [step=-1]");
    return true;
  }
  OpenLoop();
  const std::string& variable = parts->variable;
  const std::string comparison = runtime::BeginsWith(parts->step, "-") ? "=>" : "<=";
  const std::string test = TestLabel();
  Push(parts->init + ":GOTF " + test + ":" + LoopLabel(Count().loopDepth) + ":" +  //
       variable + "=" + variable + "+STEP(" + parts->step + "):" + test + ":" +    //
       "IF " + variable + comparison + parts->limit + " THEN:");
  return true;
}

}  // namespace corvane::script
