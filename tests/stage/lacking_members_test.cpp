// The library in an environment whose members are missing, answer Nothing, or always fail.
#include <map>

#include "com/errors.h"
#include "tests/stage/failing_story.h"

namespace corvane::stage {
namespace {

class LackingMembers : public FailingStory {
 protected:
  // What is told in place of the connection's end, by the call that is spoilt.
  using Boxes = std::map<std::string, std::string>;
  using Texts = std::vector<std::string>;
  // Tells the story once for each call of it, which [spoil] spoils. [told]: all that is told in it.
  void SpoilEach(bool members_alone, const Boxes& told, const std::function<void(const std::string& name)>& spoil) {
    Tell();
    auto calls = stage.ledger.ByName();
    stage.ledger.ClearCalls();
    Tell();
    // From now on code is open in the environment, and some are not asked for any more.
    const auto calls_again = stage.ledger.ByName();
    calls.insert(calls_again.begin(), calls_again.end());
    long turns = 0, asked = 0;
    for (const auto& [name, count] : calls) {
      if (members_alone && IsOfComItself(name)) continue;
      ++turns;
      stage.ledger.spoilt = 0;
      spoil(name);
      Tell();
      asked += stage.ledger.spoilt > 0;
      EXPECT_TRUE(stage.ledger.spoilt > 0 || calls_again.count(name) == 0) << name << " was not asked for";
      const auto box = told.find(name);
      const auto expected = box == told.end() ? Texts() : Texts{box->second};
      EXPECT_EQ(boxes.Take(), expected) << name;
      // Both sinks may be kept by a call that fails for good.
      if (name == "CommandBarEvents.Unadvise") stage.ledger.dropped_sinks = 0;
      ExpectClean(name);
      if (HasFailure()) return;
    }
    std::printf("%ld of %zu calls were spoilt, %ld of them asked for\n", turns, calls.size(), asked);
    EXPECT_GT(asked, turns * 3 / 4);
  }
  // What every object answers, or every one with events: it is no member that can be missing.
  static bool IsOfComItself(const std::string& name) {
    for (const char* call : {".GetIDsOfNames", ".ConnectionPointContainer", ".EnumConnectionPoints",
                             ".NextConnectionPoint", ".GetConnectionInterface", ".Advise", ".Unadvise"})
      if (name.ends_with(call)) return true;
    return false;
  }
};

constexpr char kNothingThere[] = "Object variable or With block variable not set",
               kNoSuchMember[] = "Object doesn't support this property or method",
               kNoEvents[] = "Object or class does not support the set of events", kNoMemory[] = "Out of memory",
               kNoWay[] = "The environment refused";

TEST_F(LackingMembers, EachMemberIsMissingOnce) {
  SpoilEach(true,
            {
                {"VBE.CommandBars", kNothingThere},
                {"CommandBars.Item", kNothingThere},
                {"CommandBar.Controls", kNothingThere},
                {"CommandBarControls.Count", kNothingThere},
                {"CommandBarControls.Add", kNothingThere},
                {"CommandBarControl.Caption", kNothingThere},
                {"VBE.Events", kNoSuchMember},
                {"Events.CommandBarEvents", kNoSuchMember},
            },
            [this](const std::string& name) { stage.ledger.Lack(name); });
}

TEST_F(LackingMembers, EachCallIsAnsweredWithNothingOnce) {
  SpoilEach(true,
            {
                {"VBE.CommandBars", kNothingThere},
                {"CommandBars.Item", kNothingThere},
                {"CommandBar.Controls", kNothingThere},
                {"CommandBarControls.Count", kNothingThere},
                {"CommandBarControls.Add", kNothingThere},
                {"VBE.Events", kNothingThere},
            },
            [this](const std::string& name) { stage.ledger.AnswerNothing(name); });
}

TEST_F(LackingMembers, EachCallFailsForGood) {
  const std::string failed = com::ErrorOf(E_FAIL).Description();
  SpoilEach(false,
            {
                {"VBE.GetIDsOfNames", kNoMemory},
                {"VBE.CommandBars", kNothingThere},
                {"CommandBars.Item", kNothingThere},
                {"CommandBar.GetIDsOfNames", kNothingThere},
                {"CommandBar.Controls", kNothingThere},
                {"CommandBarControls.GetIDsOfNames", kNothingThere},
                {"CommandBarControls.Count", kNothingThere},
                {"CommandBarControls.Add", kNothingThere},
                {"CommandBarControl.GetIDsOfNames", kNothingThere},
                {"CommandBarControl.Caption", kNothingThere},
                {"VBE.Events", kNoWay},
                {"Events.GetIDsOfNames", kNoMemory},
                {"Events.CommandBarEvents", kNoWay},
                {"Events.VBBuildEvents", kNoWay},
                {"CommandBarEvents.ConnectionPointContainer", kNoEvents},
                {"CommandBarEvents.EnumConnectionPoints", failed},
                {"CommandBarEvents.NextConnectionPoint", kNoEvents},
                {"CommandBarEvents.GetConnectionInterface", failed},
                {"CommandBarEvents.Advise", failed},
                {"VBBuildEvents.ConnectionPointContainer", kNoEvents},
                {"VBBuildEvents.EnumConnectionPoints", failed},
                {"VBBuildEvents.NextConnectionPoint", kNoEvents},
                {"VBBuildEvents.GetConnectionInterface", failed},
                {"VBBuildEvents.Advise", failed},
            },
            [this](const std::string& name) { stage.ledger.FailEvery(name, Failure::Error(1004, kNoWay)); });
}

}  // namespace
}  // namespace corvane::stage
