#include "script/run_code.h"

#include <algorithm>
#include <utility>

#include "runtime/strings.h"
#include "script/marks.h"
#include "script/within_memory.h"

namespace corvane::script {

namespace {

constexpr int kStatementsBeforeYield = 150;
constexpr size_t kShownOfLine = 60, kShownInDebug = 160;

struct Nesting {
  explicit Nesting(int& depth) : depth_(depth) { ++depth_; }
  ~Nesting() { --depth_; }
  int& depth_;
};

size_t SizeOf(const Cell& value) {
  const auto* text = std::get_if<Text>(&value);
  return text == nullptr ? 0 : text->Size();
}

}  // namespace

void CodeRun::Run(const std::string& text) {
  const Nesting nesting(engine_.nested_runs);
  state_.lvalueMode = false;
  if (engine_.nested_runs > kDeepestRun) {
    if (!state_.stopFlag) Report("Calls are nested too deep.");
    state_.stopFlag = true;
    return;
  }
  std::shared_ptr<FlatProgram> program;
  TranslatedPiece* const piece = std::exchange(engine_.piece, nullptr);
  if (!WithinMemory([&] { program = engine_.pieces.Translate(text); })) return OutOfMemory();
  if (piece != nullptr) *piece = {true, program, engine_.pieces.Reported()};
  if (program != nullptr) RunFlat(std::move(program));
}

// A failed call ends the piece without a message.
void CodeRun::RunFlat(std::shared_ptr<FlatProgram> program) {
  unread_ = whole_ = UnreadProgram(std::move(program));
  const bool fits = WithinMemory([&] {
    runtime::PassOverErrors([&] {
      if (state_.labelSearch > 0) SearchLabel();
      Loop();
    });
  });
  if (!fits) OutOfMemory();
}

void CodeRun::OutOfMemory() {
  Report(kOutOfMemory);
  state_.stopFlag = true;
}

void CodeRun::Loop() {
  while (!ended_ && !state_.stopFlag) {
    Yield();
    if (AtEnd()) return;
    unread_.ReadFront(state_.currentLine, kShownOfLine);
    ProgramItem& item = unread_.TakeItem(current_);
    if (item.kind == FlatItem::kLabel) {
      TakeLabel(item);
    } else if (item.kind == FlatItem::kOpenLabel) {
      Report("Syntax Error");
      state_.stopFlag = true;
    } else {
      TakeStatement(item);
    }
  }
}

// The only place where the user's acts come in, as one on a Stop button. Slow statements are not waited for: what they
// let in does not count for the others.
void CodeRun::Yield() {
  const bool many_runs = ++engine_.statements_unyielded > kMostUnyielded;
  const bool due = counter_ > kStatementsBeforeYield || many_runs;
  if (due || TakesLong()) {
    engine_.outside.services.Loop.DoEvents();
    engine_.yielded_at = engine_.outside.services.Loop.TickCount();
  }
  if (due) engine_.statements_unyielded = counter_ = 0;
  ++counter_;
}

// The clock is read now and then, and behind each statement that made a long text.
bool CodeRun::TakesLong() const {
  constexpr long kReadsClock = 8;
  constexpr size_t kLongText = 64u << 10;
  if (engine_.statements_unyielded % kReadsClock != 0 && SizeOf(state_.lastValue) < kLongText) return false;
  return engine_.outside.services.Loop.TickCount() - engine_.yielded_at > kLongestUnyielded;
}

bool CodeRun::AtEnd() {
  bool end = !unread_.Holds(2);
  if (!end) {
    unread_.CutSeparators();
    end = !unread_.Holds(2);
  }
  if (end && defining_) Report("End Sub not found.");
  return end;
}

void CodeRun::TakeLabel(const ProgramItem& label) {
  if (state_.planOn) state_.resultText.Append(std::string(label.text) + "  ");
  if (defining_) engine_.subs.Append(std::string(1, labelMark).append(label.text));
}

void CodeRun::TakeStatement(ProgramItem& statement) {
  if (statement.kind != FlatItem::kStatement || !statement.eq || !statement.paren)
    throw runtime::Error(runtime::kTypeMismatch);
  if (state_.planOn) {
    state_.resultText.Append(std::string(statement.text) + runtime::kCrLf);
    return;
  }
  if (state_.debugOn) {
    unread_.ReadFront(state_.currentLine, kShownInDebug);
    engine_.debugger.DebugStep(std::string(statement.text));
    if (state_.stopFlag) return;
  }
  Dispatch(statement);
  CheckLimits(statement);
}

// What a statement adds comes from its text, as new names and SUBs do, or through the last value.
void CodeRun::CheckLimits(const ProgramItem& statement) {
  constexpr size_t kByCharacter = 128, kStep = 16u << 20;
  if (std::max({SizeOf(state_.lastValue), state_.resultText.Size(), state_.printText.size()}) > engine_.longest_text) {
    Report("A text is too long.");
    state_.stopFlag = true;
  }
  engine_.unmeasured += SizeOf(state_.lastValue) + kByCharacter * statement.size;
  if (engine_.unmeasured < kStep || engine_.measured + engine_.unmeasured < engine_.most_memory) return;
  engine_.measured = MemoryHeld();
  engine_.unmeasured = 0;
  if (engine_.measured > engine_.most_memory) OutOfMemory();
}

size_t CodeRun::MemoryHeld() const {
  MemoryUse use;
  engine_.store.AddTo(use);
  engine_.arrays.AddTo(use);
  use.Add(state_.pushSlots);
  use.Add(engine_.subs.Size() + state_.formStore.capacity());
  return use.Total();
}

void CodeRun::Dispatch(ProgramItem& statement) {
  if (defining_) return CopyToDefinition(statement);
  for (;; ++statement.row) {
    const Row& row = kRows[statement.row];
    if (!row.Fits(statement)) continue;
    if (!row.in_sub_only || state_.subDepth >= 1) return (this->*row.act)(statement);
    break;
  }
  for (const Row* row = &kRows[statement.row + 1];; ++row)
    if (row->Fits(statement) && (!row->in_sub_only || state_.subDepth >= 1)) return (this->*row->act)(statement);
}

}  // namespace corvane::script
