// The library in an environment that fails it: each call of a story in turn.
#include "com/errors.h"
#include "tests/stage/failing_story.h"

namespace corvane::stage {
namespace {

using testing::ElementsAreArray;
using testing::IsEmpty;
using Texts = std::vector<std::string>;

enum class Told { Nothing, ItsText, NoControl, NoDesigner };

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

// Where the name of a collection's Item cannot be looked up, its default member is called.
bool HasOtherWay(const Texts& calls, size_t at) {
  return calls[at].ends_with(".GetIDsOfNames") && at + 1 < calls.size() && calls[at + 1].ends_with(".Item");
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
  enum class Which { All, InTheWindow };
  // Tells the story once for each call that it makes, or for each that the user's acts in the open window make.
  void FailEachCall(const Failure& failure, Which which, const std::function<void()>& tell) {
    tell();
    stage.ledger.ClearCalls();
    stage.ledger.keeps_order = true;
    tell();
    stage.ledger.keeps_order = false;
    ASSERT_THAT(boxes.Take(), IsEmpty());
    const Texts calls = stage.ledger.order;
    std::vector<Told> told = ToldOf(calls);
    for (size_t i = designer_calls_.first; i < designer_calls_.second; ++i)
      if (!HasOtherWay(calls, i)) told[i] = Told::NoDesigner;
    const auto [first, behind] = which == Which::All ? std::pair(size_t{0}, calls.size()) : in_window_;
    long failed = 0, boxes_shown = 0;
    for (size_t i = first; i < behind && !HasFailure(); ++i) {
      stage.ledger.FailCall(static_cast<long>(i) + 1, failure);
      tell();
      const std::string call = stage.ledger.Failed();
      failed += !call.empty();
      Texts expected;
      if (told[i] == Told::ItsText) expected = {TextOf(call, failure)};
      if (told[i] == Told::NoControl) expected = {"Object variable or With block variable not set"};
      if (told[i] == Told::NoDesigner) expected = {kNoDesigner};
      boxes_shown += static_cast<long>(expected.size());
      EXPECT_THAT(boxes.Take(), ElementsAreArray(expected)) << call << ", call " << i + 1;
      ExpectClean(call);
    }
    std::printf("%zu calls, %ld of them failed, %ld message boxes\n", behind - first, failed, boxes_shown);
    EXPECT_GT(failed, static_cast<long>(behind - first) * 9 / 10)
        << "some stories are shorter than the one without a failure";
  }
};

TEST_F(FailingCalls, EachOfAStoryFailsOnceWithAnError) {
  FailEachCall(Failure::Error(1004, "The environment refused"), Which::All, [this] { Tell(); });
}

TEST_F(FailingCalls, EachOfTheActsInTheWindowFailsOnceWithAnError) {
  FailEachCall(Failure::Error(1004, "The environment refused"), Which::InTheWindow, [this] { TellOfTheWindow(); });
  for (const char* call : {"VBComponent.DesignerWindow", "Window.Visible", "Window.SetFocus", "CodePane.SetSelection"})
    EXPECT_GT(stage.ledger.Calls(call), 0) << call;
}

TEST_F(FailingCalls, EachOfAConnectionFailsOnceWithABareCode) {
  FailEachCall(Failure::Code(RPC_E_DISCONNECTED), Which::All, [this] {
    StillAlive();
    EXPECT_EQ(host.StartUp(), S_OK);
    EXPECT_EQ(host.ShutDown(), S_OK);
  });
}

}  // namespace
}  // namespace corvane::stage
