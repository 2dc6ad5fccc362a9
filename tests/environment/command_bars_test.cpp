#include "environment/command_bars.h"

#include <gtest/gtest.h>

#include "environment/windows.h"
#include "tests/environment/designer_fixture.h"

namespace corvane::environment {
namespace {

class PictureClipboard : public host::Clipboard {
 public:
  void Clear() override { picture = nullptr; }
  std::string GetText() override { return {}; }
  void SetText(const std::string&) override {}
  void SetData(const runtime::PictureRef& data) override { picture = data; }
  runtime::PictureRef GetData() override { return picture; }
  runtime::PictureRef picture;
};

struct CommandBarsTest : testing::Test {
  host::Ref<host::CommandBarControls> Controls(const std::string& bar) {
    return set->HostBars()->Item(bar)->Controls();
  }
  // The id of the last control of a bar.
  long LastId(const std::string& bar) { return set->Find(bar)->controls.back().id; }

  PictureClipboard clipboard;
  long changes = 0;
  std::shared_ptr<CommandBarSet> set = CommandBarSet::Create(&clipboard, [this] { ++changes; });
  EventSource events{set};
};

TEST_F(CommandBarsTest, TheBarsOfTheEnvironmentAreThere) {
  for (const char* name : {"Standard", "Menu Bar", "Add-Ins", "standard"})
    EXPECT_GT(Controls(name)->Count(), 0) << name;
  EXPECT_EQ(set->HostBars()->Item(1L)->Name(), "Menu Bar");
  EXPECT_EQ(Controls("Standard")->Item(1L)->Caption(), "Add &Project");
  EXPECT_EQ(Controls("Run")->Item("End")->Caption(), "&End");
  EXPECT_EQ(ErrorOf([&] { set->HostBars()->Item("Nothing"); }), 5);
  EXPECT_EQ(ErrorOf([&] { set->HostBars()->Item(99L); }), 5);
  EXPECT_EQ(ErrorOf([&] { Controls("Standard")->Item("Nothing"); }), 5);
  EXPECT_EQ(changes, 0);
}

TEST_F(CommandBarsTest, AControlIsAddedBeforeAnotherOrAtTheEnd) {
  const auto controls = Controls("Standard");
  const long count = controls->Count();
  const std::string last = controls->Item(count)->Caption();
  controls->Add(host::ControlType::Button, count)->SetCaption("ours");
  EXPECT_EQ(controls->Item(count)->Caption(), "ours");
  EXPECT_EQ(controls->Item(count + 1)->Caption(), last);
  controls->Add(host::ControlType::Button)->SetCaption("behind");
  EXPECT_EQ(controls->Item(controls->Count())->Caption(), "behind");
  EXPECT_EQ(ErrorOf([&] { controls->Add(host::ControlType::Button, 99); }), 5);
  EXPECT_EQ(changes, 4);
}

TEST_F(CommandBarsTest, AControlShowsWhatItIsTold) {
  const auto control = Controls("Standard")->Add(host::ControlType::Button);
  control->SetCaption("&Corvane");
  control->SetVisible(false);
  control->SetState(-1);
  control->SetStyle(host::ButtonStyle::Icon);
  const BarControl& data = set->Find("Standard")->controls.back();
  EXPECT_EQ(data.caption, "&Corvane");
  EXPECT_FALSE(data.visible);
  EXPECT_EQ(data.state, -1);
  EXPECT_EQ(data.style, 1);
}

TEST_F(CommandBarsTest, AFaceIsPastedFromTheClipboard) {
  const auto control = Controls("Standard")->Add(host::ControlType::Button);
  EXPECT_EQ(ErrorOf([&] { control->PasteFace(); }), 91);
  clipboard.SetData(std::make_shared<const runtime::Picture>(runtime::Picture{"BM"}));
  control->PasteFace();
  clipboard.Clear();
  EXPECT_EQ(set->Find("Standard")->controls.back().face->bytes, "BM");
}

TEST_F(CommandBarsTest, ADeletedControlIsGone) {
  const auto control = Controls("Add-Ins")->Add(host::ControlType::Button);
  const long id = LastId("Add-Ins"), count = Controls("Add-Ins")->Count();
  control->Delete();
  EXPECT_EQ(Controls("Add-Ins")->Count(), count - 1);
  EXPECT_EQ(ErrorOf([&] { control->SetCaption("x"); }), 91);
  EXPECT_EQ(ErrorOf([&] { control->Delete(); }), 91);
  EXPECT_EQ(ErrorOf([&] { events.CommandBarEvents(control); }), 91);
  EXPECT_FALSE(set->Click(id));
}

TEST_F(CommandBarsTest, AClickReachesTheHandlersOfItsControlAsLongAsTheyAreBound) {
  const auto button = Controls("Standard")->Add(host::ControlType::Button);
  button->SetCaption("ours");
  const long id = LastId("Standard");
  std::string heard;
  auto bound = events.CommandBarEvents(button)->OnClick(
      [&](const host::Ref<host::CommandBarControl>& control, bool& handled, bool&) {
        heard += control->Caption();
        handled = true;
      });
  EXPECT_TRUE(set->Click(id));
  EXPECT_FALSE(set->Click(Controls("Add-Ins")->Count() + 1000)) << "no such control";
  EXPECT_FALSE(set->Click(set->Find("Standard")->controls.front().id)) << "nobody handles it";
  EXPECT_EQ(heard, "ours");
  bound.reset();
  EXPECT_FALSE(set->Click(id));
  EXPECT_EQ(heard, "ours");
  EXPECT_EQ(ErrorOf([&] { events.CommandBarEvents(nullptr); }), 91);
}

TEST_F(CommandBarsTest, AHandlerMayDeleteItsControlAndUnbindItself) {
  const auto button = Controls("Standard")->Add(host::ControlType::Button);
  const long id = LastId("Standard");
  std::unique_ptr<host::Subscription> first, second;
  long calls = 0;
  first = events.CommandBarEvents(button)->OnClick([&](const auto& control, bool&, bool&) {
    ++calls;
    second.reset();
    first.reset();
    control->Delete();
  });
  second = events.CommandBarEvents(button)->OnClick([&](const auto&, bool&, bool&) { ++calls; });
  EXPECT_TRUE(set->Click(id));
  EXPECT_EQ(calls, 1);
}

TEST_F(CommandBarsTest, ASubscriptionOutlivesTheBars) {
  const auto button = Controls("Standard")->Add(host::ControlType::Button);
  auto bound = events.CommandBarEvents(button)->OnClick([](const auto&, bool&, bool&) {});
  button->Delete();
  bound.reset();
}

TEST_F(CommandBarsTest, TheEnvironmentsOwnBarsCanBeTakenAway) {
  set->RemoveBar("Standard");
  EXPECT_EQ(set->Find("Standard"), nullptr);
  EXPECT_EQ(ErrorOf([&] { set->HostBars()->Item("Standard"); }), 5);
  BarControl own;
  own.caption = "Back";
  set->AddOwn("Standard", own);
  EXPECT_EQ(Controls("Standard")->Item(1L)->Caption(), "Back");
}

TEST_F(CommandBarsTest, BuildEventsCanBeMissing) {
  long runs = 0;
  auto bound = events.VBBuildEvents()->OnEnterRunMode([&] { ++runs; });
  events.RaiseEnterRunMode();
  EXPECT_EQ(runs, 1);
  events.SetOffersBuildEvents(false);
  EXPECT_EQ(ErrorOf([&] { events.VBBuildEvents(); }), 438);
  bound.reset();
  events.RaiseEnterRunMode();
  EXPECT_EQ(runs, 1);
}

TEST(Windows, TheImmediateWindowIsThereEvenWhenClosed) {
  WindowList windows;
  std::string told;
  AddImmediateWindow(windows, [&](bool shown) { told += shown ? "+" : "-"; });
  const auto immediate = windows.Item("IMMEDIATE");
  EXPECT_EQ(immediate->Caption(), "Immediate");
  immediate->Close();
  windows.Item("Immediate")->SetFocus();
  immediate->SetVisible(false);
  EXPECT_EQ(told, "-+-");
  EXPECT_EQ(windows.Count(), 1);
  EXPECT_EQ(ErrorOf([&] { windows.Item("Locals"); }), 9);
}

TEST(Windows, OnlyOpenOnesAreListed) {
  WindowList windows;
  bool open = true;
  WindowActs acts;
  acts.caption = [] { return std::string("Form1 (Form)"); };
  acts.is_open = [&] { return open; };
  acts.close = [&] { open = false; };
  const auto window = windows.Add(acts);
  EXPECT_EQ(windows.Item("Form1 (Form)"), window);
  window->SetFocus();
  windows.Item(1L)->Close();
  EXPECT_EQ(windows.Count(), 0);
  windows.Remove(window);
  EXPECT_EQ(ErrorOf([&] { window->Caption(); }), 91);
  EXPECT_EQ(ErrorOf([&] { window->Close(); }), 91);
}

}  // namespace
}  // namespace corvane::environment
