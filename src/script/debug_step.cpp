#include "script/debug_step.h"

#include <utility>

#include "runtime/strings.h"
#include "script/flat_to_text.h"
#include "script/numbers.h"

namespace corvane::script {

using runtime::kCrLf;

namespace {

constexpr int kRunsOut = -1;  // debugSkip: up to the return from the SUB
constexpr size_t kLongestEntryIgnored = 1;

std::vector<std::string> LinesOf(std::string_view text) {
  std::vector<std::string> lines;
  for (size_t end; (end = text.find(kCrLf)) != std::string_view::npos; text.remove_prefix(end + 2))
    lines.emplace_back(text.substr(0, end));
  if (!text.empty()) lines.emplace_back(text);
  return lines;
}

}  // namespace

void DebugStepper::Reset() {
  left_ = top_ = kFirstPlace;
}

void DebugStepper::DebugStep(const std::string& statement) {
  if (evaluating_) return;
  if (state_.debugSkip > 0) {
    --state_.debugSkip;
  } else if (state_.debugSkip == 0) {
    const std::string remembered = state_.currentLine;
    std::string watch = WatchedValues();
    DebugAnswer answer = Ask(statement, remembered, watch);
    while (!answer.expression.empty() && StaysHere(answer)) {
      watch += LineOf(answer.expression);
      answer = Ask(statement, remembered, watch);
    }
    Obey(answer);
    state_.currentLine = remembered;
  }
}

DebugAnswer DebugStepper::Ask(const std::string& statement, const std::string& behind, const std::string& watch) {
  DebugView view{{statement}, watch, left_, top_};
  for (std::string& line : LinesOf(FlatToText(behind))) view.lines.push_back(std::move(line));
  screen_.SetMousePointer(host::vbDefault);
  DebugAnswer answer = window_.Display(view);
  left_ = answer.left;
  top_ = answer.top;
  return answer;
}

bool DebugStepper::RunsOut(const DebugAnswer& answer) const {
  return answer.button == kRunOut && state_.subDepth >= 1;
}

bool DebugStepper::StaysHere(const DebugAnswer& answer) const {
  return answer.button != kRunOn && answer.button != kStopScript && !RunsOut(answer);
}

// A typed count goes before the place in the list.
void DebugStepper::Obey(const DebugAnswer& answer) {
  if (answer.button == kRunOn || answer.button == kStopScript) {
    state_.debugOn = false;
    state_.debugSkip = 0;
    if (answer.button == kStopScript) state_.stopFlag = true;
    return;
  }
  if (RunsOut(answer)) {
    state_.debugSkip = kRunsOut;
    return;
  }
  const auto count = NumberOf(answer.count);
  const double lines = count && *count > 1 ? *count : static_cast<double>(answer.selected);
  if (lines > 1 && lines < 1e9) state_.debugSkip = static_cast<int>(lines) - 1;
}

std::string DebugStepper::WatchedValues() {
  std::string entries = state_.debugWatch;
  if (!entries.empty() && entries.back() == ':') entries.pop_back();
  if (!entries.empty() && entries.back() == ')') entries.pop_back();
  std::string watched;
  while (!entries.empty()) {
    const size_t comma = entries.find(',');
    const std::string entry = entries.substr(0, comma);
    if (entry.size() > kLongestEntryIgnored) watched += LineOf(entry);
    entries.erase(0, comma == std::string::npos ? comma : comma + 1);
  }
  return watched;
}

// What would be an error elsewhere, as an unknown name, shows its text and stops nothing. A function in [entry] runs
// through without the window, and what the run goes on with stays.
std::string DebugStepper::LineOf(const std::string& entry) {
  const Cell last = std::exchange(state_.lastValue, std::string());
  const bool cond = state_.condFlag;
  evaluating_ = true;
  const std::vector<std::string> problems = errors_.Unreported([&] { expressions_.EvalExpression(entry); });
  const std::string value = problems.empty() ? TextOf(state_.lastValue) : problems.front();
  if (!problems.empty()) state_.stopFlag = false;
  evaluating_ = false;
  state_.condFlag = cond;
  state_.lastValue = last;
  return entry + " = " + value + kCrLf;
}

}  // namespace corvane::script
