// SUBs: their definition, their call, their return.
#include "runtime/strings.h"
#include "script/marks.h"
#include "script/run_code.h"

namespace corvane::script {

namespace {

constexpr char kCallingSubError[] = "Calling Sub Error.";
constexpr int kRunsOut = -1;

std::string BetweenBrackets(std::string_view text, size_t close) {
  const size_t open = text.find('(');
  if (close == std::string_view::npos || close < open) throw runtime::Error(runtime::kInvalidProcedureCall);
  return std::string(text.substr(open + 1, close - open - 1));
}

}  // namespace

void CodeRun::BeginDefinition(ProgramItem& statement) {
  constexpr size_t kSub = 4;
  if (state_.subDepth > 0) return;
  const std::string_view header = std::string_view(statement.upper).substr(kSub, statement.upper.size() - kSub - 1);
  const size_t bracket = header.find('(');
  if (bracket == std::string_view::npos || bracket == 0) return Report("Sub Declaration error.");
  engine_.subs.Define(header);
  defining_ = true;
}

void CodeRun::CopyToDefinition(const ProgramItem& statement) {
  if (runtime::BeginsWith(statement.upper, "SUB ")) Report("Sub Declaration without previous End Sub.");
  std::string flat;
  AppendStatement(flat, *statement.eq, *statement.paren, statement.text);
  engine_.subs.Append(flat);
  if (!runtime::Holds(statement.upper, "END SUB")) return;
  defining_ = false;
  if (state_.counters.ifDepth != 0) Report("End If operator is not found.");
  if (state_.counters.loopDepth != 0) Report("Next or Wend operators are not found.");
  whole_ = unread_;
}

// The SUB must have been run over before.
void CodeRun::Call(ProgramItem& statement) {
  constexpr size_t kCall = 5;
  const size_t bracket = statement.upper.find('(');
  const long offset =
      bracket == std::string::npos ? 0 : engine_.subs.OffsetOf(statement.upper.substr(kCall, bracket + 1 - kCall));
  bool entered = false;
  const bool done = offset != 0 && runtime::PassOverErrors([&] { entered = EnterSub(statement, offset); });
  if (!done) return Report(kCallingSubError);
  if (!entered) return;
  engine_.subs.callChain.push_back(offset);
  LoadBody(offset);
}

// Evaluates the values and hands them over. Throws where that fails; false where it stopped the script.
bool CodeRun::EnterSub(const ProgramItem& statement, long offset) {
  const SubStore::Saved before{engine_.store.Text().size(), engine_.store.varCount()};
  const auto header = engine_.subs.HeaderAt(offset);
  if (!header) throw runtime::Error(runtime::kInvalidProcedureCall);
  const std::string formals = BetweenBrackets(*header, header->find(')')) + ',';
  const std::string actuals = BetweenBrackets(statement.text, statement.text.rfind(')')) + ',';
  std::string values;
  if (formals != ",") {
    engine_.expressions.EvalExpression(actuals);
    if (state_.stopFlag) return false;
    values = TextOf(state_.lastValue) + listSep;
  }
  if (state_.subDepth >= kDeepestCall) {
    Report("Calls are nested too deep.");
    state_.stopFlag = true;
    return false;
  }
  ++state_.subDepth;
  engine_.subs.saved.resize(static_cast<size_t>(state_.subDepth) + 1);
  engine_.subs.saved.back() = before;
  if (PassValues(statement, formals, std::move(values))) return true;
  LeaveCall();
  throw runtime::Error(runtime::kInvalidProcedureCall);
}

// False if there are fewer values than formals. Surplus values are ignored.
bool CodeRun::PassValues(const ProgramItem& statement, std::string formals, std::string values) {
  for (size_t comma; formals.size() >= 2 && (comma = formals.find(',')) != std::string::npos && comma >= 1;) {
    const std::string name = runtime::Trim(formals.substr(0, comma));
    formals.erase(0, comma + 1);
    engine_.assignment.DeclareVars("DIMM" + name);
    const size_t end = values.find(listSep);
    if (end == std::string::npos) return false;
    const long cell = engine_.store.CellForStoring(name, state_.subDepth);
    if (cell < 1) {
      Report(std::string(statement.text) + " Error operation");
    } else {
      engine_.store.Store(cell, Text(values.substr(0, end)));
    }
    values.erase(0, end + 1);
  }
  return true;
}

// The locals are gone with it.
void CodeRun::LeaveCall() {
  const SubStore::Saved& saved = engine_.subs.saved[static_cast<size_t>(state_.subDepth)];
  engine_.store.CutTo(saved.storeLen, saved.varCount);
  --state_.subDepth;
}

bool CodeRun::LoadBody(long offset) {
  if (auto body = engine_.subs.BodyAt(offset)) {
    unread_.Push(std::move(body));
    return true;
  }
  Report(engine_.subs.HeaderAt(offset) ? "Sub definition Error" : "Unknown Sub");
  return false;
}

void CodeRun::ReturnFromSub(ProgramItem&) {
  LeaveCall();
  if (state_.debugSkip == kRunsOut) state_.debugSkip = 0;
  if (!engine_.subs.callChain.empty()) engine_.subs.callChain.pop_back();
}

void CodeRun::ExitSub(ProgramItem&) {
  CutToEndSub();
}

}  // namespace corvane::script
