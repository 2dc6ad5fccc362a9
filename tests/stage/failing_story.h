// FailingStory: a story that is told again and again, with another call of it failing each time.
#pragma once

#include "tests/stage/story.h"
#include "tests/stage/watch.h"

namespace corvane::stage {

class FailingStory : public Story {
 protected:
  static constexpr char kNoDesigner[] = "Current component has not a designer.\r\nDesigner is not available.";
  static constexpr DWORD kLongestFarewell = 1000;  // milliseconds

  FailingStory() { OpenSmallProject(); }

  // From the start of the environment to its end: the window is opened, minimised by run mode, opened again.
  void Tell() {
    StillAlive();
    EXPECT_EQ(host.StartUp(), S_OK);
    Click("Standard", kButton);
    ChooseEachComponent();
    environment->EnterRunMode();
    Click("Add-Ins", kMenuItem);
    EXPECT_EQ(host.ShutDown(), S_OK);
    window.Settle();
  }
  // What the user does in the open window: to the designer, to a line of code, lists the project anew, leaves.
  void TellOfTheWindow() {
    StillAlive();
    EXPECT_EQ(host.StartUp(), S_OK);
    Click("Standard", kButton);
    in_window_.first = stage.ledger.order.size();
    GoToTheDesigner();
    DoubleClickInTheCode();
    if (HWND list = Procedures()) Press(list, {VK_F5});
    if (HWND list = Procedures()) Press(list, {VK_ESCAPE});
    EXPECT_EQ(Explorer(), nullptr) << "left by Esc";
    in_window_.second = stage.ledger.order.size();
    EXPECT_EQ(host.ShutDown(), S_OK);
    window.Settle();
  }
  // The user walks down the list of components, looks at a procedure and goes to its code.
  void ChooseEachComponent() {
    if (!Explorer()) return;
    if (HWND list = Components()) Press(list, {VK_HOME, VK_DOWN, VK_DOWN, VK_DOWN});
    if (HWND list = Procedures()) Press(list, {VK_HOME, VK_DOWN, VK_RETURN});
  }

  // The designer of the form, where the form is listed. Where it does not open, a box tells so.
  void GoToTheDesigner() {
    if (HWND list = Components()) Press(list, {VK_HOME, VK_DOWN});
    designer_calls_.first = stage.ledger.order.size();
    if (DesignerButton() && CaptionOf(Components()) == "frmMain") {
      PostClick(DesignerButton());
      window.Settle();
    }
    designer_calls_.second = stage.ledger.order.size();
  }
  // On the second row of a procedure.
  void DoubleClickInTheCode() {
    constexpr int kSecondRow = 24;  // pixels
    if (HWND list = Procedures()) Press(list, {VK_HOME, VK_DOWN});
    if (HWND code = CodeView()) PostDoubleClick(code, 60, kSecondRow);
    window.Settle();
  }
  // Calls from 0 up to the one behind them, where the order of the calls is kept: those of going to the designer, and
  // all from the open window to Esc.
  std::pair<size_t, size_t> designer_calls_, in_window_;

  // What is left when a call failed: nothing, but what the failed call itself kept.
  void ExpectClean(const std::string& failed) {
    const bool kept_sink = failed.find("Unadvise") != std::string::npos;
    Ledger& ledger = stage.ledger;
    ledger.Heal();
    window.PumpUntil([&] { return ledger.objects == 0; }, kLongestFarewell);
    EXPECT_EQ(ledger.Left(), "") << failed;
    EXPECT_EQ(ledger.references, 0) << failed;
    EXPECT_EQ(ledger.sinks, 0) << failed;
    EXPECT_LE(ledger.dropped_sinks, kept_sink ? 1 : 0) << failed;
    EXPECT_EQ(ledger.sink_failures, 0) << failed;
    EXPECT_THAT(ShownWindows(window.Handle()), testing::IsEmpty()) << failed;
    EXPECT_TRUE(IsWindowEnabled(window.Handle())) << failed;
    EXPECT_THAT(ledger.faults, testing::IsEmpty()) << failed;
    ledger.dropped_sinks = 0;
    ledger.faults.clear();
    RemoveLeftControls();
  }
  // A control whose Delete failed is still there.
  void RemoveLeftControls() {
    for (const char* bar : {"Standard", "Add-Ins"})
      for (const char* caption : {kButton, kMenuItem, ""})
        if (FindOnBar(bar, caption)) {
          const auto controls = environment->CommandBars()->Item(bar)->Controls();
          for (long i = controls->Count(); i >= 1; --i)
            if (controls->Item(i)->Caption() == caption) controls->Item(i)->Delete();
        }
  }
};

}  // namespace corvane::stage
