// The library in an environment that fails it: each call of a story in turn.
#include "com/errors.h"
#include "tests/stage/failing_story.h"

namespace corvane::stage {
namespace {

using testing::ElementsAreArray;
using testing::IsEmpty;
using Texts = std::vector<std::string>;

enum class Told { Nothing, ItsText, NoControl };

// The steps of a connection, by the call that ends each.
struct Step {
  const char* last;
  Told told;  // what the user is told where a call of it fails
};
constexpr Step kSteps[] = {
    {"Window.HWnd", Told::Nothing},
    {"CommandBarControls.Add", Told::NoControl},     // there is no button
    {"CommandBarControl.Caption", Told::Nothing},    // it is there, half made
    {"CommandBarControl.Caption", Told::NoControl},  // the menu item is whole or not at all
    {"VBE.Events", Told::Nothing},
    {"VBBuildEvents.Advise", Told::ItsText},
};

// For each call of a story what is told where it fails. Behind the connection that is nothing: neither the window, nor
// the start of a program, nor the disconnection tells what failed. What the window asks depends on what is open in the
// environment; a connection makes the same calls each time.
std::vector<Told> ToldOf(const Texts& calls) {
  std::vector<Told> told;
  auto step = std::begin(kSteps);
  for (const std::string& call : calls) {
    const bool in_connection = step != std::end(kSteps);
    // Without its name the default member of the bars is called.
    const bool has_other_way = call == "CommandBars.GetIDsOfNames";
    told.push_back(in_connection && !has_other_way ? step->told : Told::Nothing);
    if (in_connection && call == step->last) ++step;
  }
  EXPECT_EQ(step, std::end(kSteps)) << "the story does not connect";
  // Whether there are such events is asked first; then they are called all the same.
  const auto build = std::find(calls.begin(), calls.end(), "Events.VBBuildEvents") - calls.begin();
  if (build > 0) told[static_cast<size_t>(build - 1)] = Told::Nothing;
  return told;
}

std::string DescriptionOf(HRESULT code) {
  return com::ErrorOf(code).Description();
}

// What Visual Basic makes of a call that fails in this way.
std::string TextOf(const std::string& call, const Failure& failure) {
  const auto is = [&](const char* name) { return call.ends_with(name); };
  if (is(".ConnectionPointContainer") || is(".NextConnectionPoint")) return DescriptionOf(CONNECT_E_NOCONNECTION);
  if (!failure.IsError()) return DescriptionOf(failure.code);
  if (is(".GetIDsOfNames")) return DescriptionOf(E_OUTOFMEMORY);
  if (is(".EnumConnectionPoints") || is(".GetConnectionInterface") || is(".Advise")) return DescriptionOf(E_FAIL);
  return failure.text;
}

class FailingCalls : public FailingStory {
 protected:
  // Tells the story once for each call that it makes.
  void FailEachCall(const Failure& failure, const std::function<void()>& tell) {
    tell();
    stage.ledger.ClearCalls();
    stage.ledger.keeps_order = true;
    tell();
    stage.ledger.keeps_order = false;
    ASSERT_THAT(boxes.Take(), IsEmpty());
    const Texts calls = stage.ledger.order;
    const std::vector<Told> told = ToldOf(calls);
    long failed = 0, boxes_shown = 0;
    for (size_t i = 0; i < calls.size() && !HasFailure(); ++i) {
      stage.ledger.FailCall(static_cast<long>(i) + 1, failure);
      tell();
      const std::string call = stage.ledger.Failed();
      failed += !call.empty();
      Texts expected;
      if (told[i] == Told::ItsText) expected = {TextOf(call, failure)};
      if (told[i] == Told::NoControl) expected = {"Object variable or With block variable not set"};
      boxes_shown += static_cast<long>(expected.size());
      EXPECT_THAT(boxes.Take(), ElementsAreArray(expected)) << call << ", call " << i + 1;
      ExpectClean(call);
    }
    std::printf("%zu calls, %ld of them failed, %ld message boxes\n", calls.size(), failed, boxes_shown);
    EXPECT_GT(failed, static_cast<long>(calls.size()) * 9 / 10)
        << "some stories are shorter than the one without a failure";
  }
};

TEST_F(FailingCalls, EachOfAStoryFailsOnceWithAnError) {
  FailEachCall(Failure::Error(1004, "The environment refused"), [this] { Tell(); });
}

TEST_F(FailingCalls, EachOfAConnectionFailsOnceWithABareCode) {
  FailEachCall(Failure::Code(RPC_E_DISCONNECTED), [this] {
    StillAlive();
    EXPECT_EQ(host.StartUp(), S_OK);
    EXPECT_EQ(host.ShutDown(), S_OK);
  });
}

}  // namespace
}  // namespace corvane::stage
