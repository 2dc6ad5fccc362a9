// Jumps: a label is searched in what is unread, or from the start of the program or of the SUB that runs.
#include "runtime/strings.h"
#include "script/marks.h"
#include "script/run_code.h"

namespace corvane::script {

namespace {

// What the block reader does when a piece does not hold the label.
enum LabelSearch : int { kNone = 0, kGoOn = 1, kRestart = 2, kRestartAtEnd = 3 };

constexpr size_t kJump = 5;  // "GOTF " and the like
constexpr size_t kGo = 3;

}  // namespace

// Not found, the block reader goes on to search; inside a SUB there is nothing else to search.
void CodeRun::SearchLabel() {
  if (!unread_.CutBehind(state_.labelTarget)) return LabelNotFound();
  state_.labelTarget.clear();
  state_.labelSearch = kNone;
  engine_.label_found = true;
}

void CodeRun::LabelNotFound() {
  if (state_.labelSearch > kNone) return End();
  Report("There is not exists End if or Next operator");
}

const std::string& CodeRun::Target(ProgramItem& statement, size_t column, std::string_view before) {
  if (statement.target.empty())
    statement.target.append(before).append(1, labelMark).append(statement.text.substr(column));
  return statement.target;
}

void CodeRun::JumpForward(ProgramItem& statement) {
  state_.labelTarget = Target(statement, kJump);
  if (state_.subDepth == 0) state_.labelSearch = kGoOn;
  SearchLabel();
}

void CodeRun::JumpBackward(ProgramItem& statement) {
  state_.labelTarget = Target(statement, kJump);
  SearchBackward(kRestart);
}

void CodeRun::JumpToEndIf(ProgramItem& statement) {
  state_.labelTarget = Target(statement, kJump, "END IF:");
  if (state_.subDepth == 0) state_.labelSearch = kGoOn;
  SearchLabel();
}

void CodeRun::JumpUnlessTrue(ProgramItem& statement) {
  if (state_.condFlag) return;
  state_.labelSearch = kNone;
  state_.labelTarget = Target(statement, kGo);
  if (state_.subDepth == 0) state_.labelSearch = kGoOn;
  SearchLabel();
}

void CodeRun::GoTo(ProgramItem& statement) {
  constexpr size_t kShortestTarget = 3;
  if (statement.target.empty()) statement.target = labelMark + runtime::UCase(statement.text.substr(kJump));
  state_.labelTarget = statement.target;
  if (state_.labelTarget.size() < kShortestTarget) return Report("GoTo Operator Error");
  const size_t end = state_.subDepth > 0 ? unread_.Find(std::string(kEndSub)) : FlatProgram::kNowhere;
  if (unread_.Find(state_.labelTarget, end) != FlatProgram::kNowhere) return SearchLabel();
  SearchBackward(kRestartAtEnd);
}

// Inside a SUB its body starts again, and the rest of the caller's text stays in place.
void CodeRun::SearchBackward(int search_at_top) {
  if (state_.subDepth == 0) {
    unread_ = whole_;
    state_.labelSearch = search_at_top;
    return SearchLabel();
  }
  if (engine_.subs.callChain.empty()) return Report("Script Error");
  const long sub_start = engine_.subs.callChain.back();
  unread_.CutBehind(std::string(kEndSub));
  if (!LoadBody(sub_start)) return;
  if (engine_.subs.BodyAt(sub_start)->Find(state_.labelTarget, 0) == FlatProgram::kNowhere) return LabelNotFound();
  SearchLabel();
}

}  // namespace corvane::script
