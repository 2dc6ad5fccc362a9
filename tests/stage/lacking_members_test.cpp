// The library in an environment whose members are missing, answer Nothing, or always fail.
#include "tests/stage/failing_story.h"

namespace corvane::stage {
namespace {

class LackingMembers : public FailingStory {};

TEST_F(LackingMembers, EachMemberIsMissingOnce) {
  Tell();
  const auto calls = stage.ledger.ByName();
  for (const auto& [name, count] : calls) {
    stage.ledger.Lack(name);
    Tell();
    ExpectClean(name);
    if (HasFailure()) return;
  }
}

TEST_F(LackingMembers, EachCallIsAnsweredWithNothingOnce) {
  Tell();
  const auto calls = stage.ledger.ByName();
  for (const auto& [name, count] : calls) {
    stage.ledger.AnswerNothing(name);
    Tell();
    ExpectClean(name);
    if (HasFailure()) return;
  }
}

TEST_F(LackingMembers, EachCallFailsForGood) {
  Tell();
  const auto calls = stage.ledger.ByName();
  for (const auto& [name, count] : calls) {
    stage.ledger.FailEvery(name, Failure::Error(91, "Object variable or With block variable not set"));
    Tell();
    // Those that fail for good may keep both sinks.
    stage.ledger.dropped_sinks = 0;
    ExpectClean(name);
    if (HasFailure()) return;
  }
}

}  // namespace
}  // namespace corvane::stage
