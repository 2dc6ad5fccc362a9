// Any bytes as expressions and assignments: each line is evaluated in its plain form and by its plan, with variables
// that hold other lines; both must come to the same.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/error.h"
#include "runtime/strings.h"
#include "script/evaluator.h"
#include "tests/script/fake_engine.h"
#include "tests/script/fake_outside.h"

namespace {

using namespace corvane;
using namespace corvane::script;

constexpr size_t kLongest = 300;  // a statement has at most 999 characters
constexpr size_t kMostLines = 60;

void Require(bool holds) {
  if (!holds) std::abort();
}

struct Side {
  ScriptState state;
  FakeErrors errors{state};
  FakeRunner runner;
  FakeOutside world{state};
  Evaluator engine{state, errors, runner, world.outside};

  Side() {
    runner.on_run = [this](const std::string& code) { state.lastValue = code; };
    engine.assignment.DeclareVars("DIMMa,b,cc,arr():");
  }
};

bool IsSame(const Cell& left, const Cell& right) {
  return left.index() == right.index() && TextOf(left) == TextOf(right);
}

void Compare(Side& plain, Side& fast) {
  Require(IsSame(plain.state.lastValue, fast.state.lastValue));
  Require(plain.state.notFlag == fast.state.notFlag && plain.state.stopFlag == fast.state.stopFlag);
  Require(plain.state.resultText == fast.state.resultText && plain.errors.messages == fast.errors.messages);
  Require(plain.runner.ran == fast.runner.ran && plain.engine.store.Text() == fast.engine.store.Text());
  for (long cell = 1; cell <= plain.engine.store.varCount(); ++cell)
    Require(IsSame(plain.engine.store.Value(cell), fast.engine.store.Value(cell)));
  for (Side* side : {&plain, &fast}) side->state.stopFlag = side->state.notFlag = false;
}

std::vector<std::string> Lines(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty() && lines.size() < kMostLines) {
    const size_t end = std::min(text.find('\n'), text.size());
    // A text of hundreds of megabytes is no fault, but it takes its time.
    const std::string line(text.substr(0, std::min(end, kLongest)));
    if (!runtime::Holds(runtime::UCase(line), "SPACE")) lines.push_back(line);
    text.remove_prefix(std::min(text.size(), end + 1));
  }
  return lines;
}

// Texts that grow with each line are cut.
void Shorten(Side& side) {
  for (long cell = 1; cell <= side.engine.store.varCount(); ++cell)
    if (TextOf(side.engine.store.Value(cell)).size() > 4000) side.engine.store.Store(cell, std::string("short"));
}

void Evaluate(Side& plain, Side& fast, const std::string& line) {
  bool plain_result = true, fast_result = true;
  const bool plain_ran = runtime::PassOverErrors([&] { plain_result = plain.engine.expressions.EvalLiterally(line); });
  const bool fast_ran = runtime::PassOverErrors([&] { fast_result = fast.engine.expressions.EvalExpression(line); });
  Require(plain_ran == fast_ran && plain_result == fast_result);
  Compare(plain, fast);
}

void Assign(Side& plain, Side& fast, const std::string& line) {
  const size_t equals = line.find('=');
  if (equals == std::string::npos || equals == 0) return;
  const std::string statement = line + ":";
  const auto eq = static_cast<long>(equals) + 1;
  runtime::PassOverErrors([&] { plain.engine.assignment.AssignLiterally(statement, eq); });
  runtime::PassOverErrors([&] { fast.engine.assignment.Assign(statement, eq); });
  Compare(plain, fast);
}

void AssignElement(Side& plain, Side& fast, const std::string& line) {
  const auto paren = static_cast<long>(line.find('(') + 1);
  for (Side* side : {&plain, &fast})
    runtime::PassOverErrors([&] { side->engine.assignment.AssignElement(line + ":", paren); });
  Compare(plain, fast);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const auto lines = Lines(std::string_view(reinterpret_cast<const char*>(data), size));
  Side plain, fast;
  for (size_t i = 0; i < lines.size(); ++i) {
    for (Side* side : {&plain, &fast}) {
      side->engine.store.Store(1, lines[(i + 1) % lines.size()]);
      side->errors.cancel = i % 7 == 6;
    }
    for (int round = 0; round < 3; ++round) {
      Evaluate(plain, fast, lines[i]);
      Assign(plain, fast, lines[i]);
      Shorten(plain);
      Shorten(fast);
    }
    AssignElement(plain, fast, lines[i]);
  }
  return 0;
}
