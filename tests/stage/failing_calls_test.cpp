// The library in an environment that fails it: each call of a story in turn.
#include <set>

#include "tests/stage/failing_story.h"

namespace corvane::stage {
namespace {

using testing::IsEmpty;

class FailingCalls : public FailingStory {
 protected:
  // Tells the story once for each call that it makes.
  void FailEachCall(const Failure& failure, const std::function<void()>& tell) {
    tell();
    stage.ledger.ClearCalls();
    tell();
    const long calls = stage.ledger.Calls();
    ASSERT_THAT(boxes.Boxes(), IsEmpty());
    long failed = 0;
    for (long nth = 1; nth <= calls && !HasFailure(); ++nth) {
      stage.ledger.FailCall(nth, failure);
      tell();
      failed += !stage.ledger.Failed().empty();
      ExpectClean(stage.ledger.Failed());
    }
    std::printf("%ld calls, %ld of them failed, %zu message boxes\n", calls, failed, boxes.Boxes().size());
    EXPECT_GT(failed, calls * 9 / 10) << "some stories are shorter than the one without a failure";
  }
  std::set<std::string> Texts() const { return {boxes.Boxes().begin(), boxes.Boxes().end()}; }
};

TEST_F(FailingCalls, EachOfAStoryFailsOnceWithAnError) {
  FailEachCall(Failure::Error(1004, "The environment refused"), [this] { Tell(); });
  EXPECT_EQ(Texts().count("The environment refused"), 1u);
  EXPECT_EQ(Texts().count(""), 0u) << "no box is empty";
}

TEST_F(FailingCalls, EachOfAConnectionFailsOnceWithABareCode) {
  FailEachCall(Failure::Code(RPC_E_DISCONNECTED), [this] {
    StillAlive();
    EXPECT_EQ(host.StartUp(), S_OK);
    EXPECT_EQ(host.ShutDown(), S_OK);
  });
  EXPECT_EQ(Texts().count(""), 0u);
}

}  // namespace
}  // namespace corvane::stage
