#include "forms/headless_toolkit.h"

#include <gtest/gtest.h>
#include <set>
#include <stdexcept>

#include "tests/forms/error_number.h"
#include "tests/forms/sample_window.h"

namespace corvane::forms {
namespace {

struct Headless : testing::Test {
  HeadlessToolkit toolkit;
  SampleWindow window{toolkit};
};

TEST_F(Headless, PostedActsRunInTheNextDoEvents) {
  Log log;
  toolkit.Post([&] {
    log.push_back("first");
    toolkit.Post([&] { log.push_back("later"); });
  });
  toolkit.Post([&] { log.push_back("second"); });
  EXPECT_EQ(log, Log{});
  toolkit.DoEvents();
  EXPECT_EQ(log, (Log{"first", "second"}));
  EXPECT_TRUE(toolkit.HasPosted());
  toolkit.DoEvents();
  EXPECT_EQ(log.back(), "later");
}

TEST_F(Headless, GuardKeepsErrorsInAndTellsThem) {
  toolkit.Guard([] { throw Error(9); });
  toolkit.Guard([] { throw std::runtime_error("broken"); });
  toolkit.Guard([] { throw 1; });
  EXPECT_EQ(toolkit.Faults(), (Log{runtime::DescriptionOf(9), "broken", "unknown error"}));
  EXPECT_FALSE(toolkit.IsInAct());
}

TEST_F(Headless, EachActHasANumberOfItsOwnAndTheInnermostIsTheCurrentOne) {
  std::vector<long> acts;
  auto note = [&] { acts.push_back(toolkit.CurrentAct()); };
  toolkit.Guard([&] {
    note();
    toolkit.Guard([&] {
      note();
      throw Error(9);
    });
    note();
  });
  toolkit.Guard(note);
  ASSERT_EQ(acts.size(), 4u);
  EXPECT_EQ(acts[2], acts[0]);
  EXPECT_EQ((std::set<long>{0, acts[0], acts[1], acts[3]}.size()), 4u);
  EXPECT_EQ(toolkit.CurrentAct(), 0);
}

TEST_F(Headless, GuardSurvivesAFailingReport) {
  toolkit.OnFault = [](const std::string&) { throw Error(5); };
  toolkit.Guard([] { throw Error(9); });
  toolkit.OnFault = nullptr;
  toolkit.Guard([] { throw Error(9); });
  SUCCEED();
}

TEST_F(Headless, TimersTickAsTimePasses) {
  Timer fast(window, "fast"), slow(window, "slow");
  Log log;
  fast.Tick = [&] { log.push_back("fast " + std::to_string(toolkit.Now())); };
  slow.Tick = [&] { log.push_back("slow " + std::to_string(toolkit.Now())); };
  fast.SetInterval(10), slow.SetInterval(25);
  toolkit.Advance(100);
  EXPECT_EQ(log, Log{});  // not loaded
  window.Show();
  toolkit.Advance(30);
  EXPECT_EQ(log, (Log{"fast 110", "fast 120", "slow 125", "fast 130"}));
  log.clear();
  fast.SetEnabled(false);
  slow.SetInterval(0);
  toolkit.Advance(100);
  EXPECT_EQ(log, Log{});
}

TEST_F(Headless, TickRunsARunningTimerAtOnce) {
  Timer tmr(window, "tmr");
  int ticks = 0;
  tmr.Tick = [&] { ++ticks; };
  tmr.SetInterval(50);
  toolkit.Tick(tmr);
  EXPECT_EQ(ticks, 0);
  window.Show();
  toolkit.Tick(tmr);
  tmr.SetEnabled(false);
  toolkit.Tick(tmr);
  EXPECT_EQ(ticks, 1);
}

TEST_F(Headless, ATimerMayUnloadItsFormWhileTimePasses) {
  Timer tmr(window, "tmr");
  int ticks = 0;
  tmr.Tick = [&] {
    ++ticks;
    window.Unload();
  };
  tmr.SetInterval(10);
  window.Show();
  toolkit.Advance(100);
  EXPECT_EQ(ticks, 1);
}

TEST_F(Headless, ThePointerStandsWhereItIsPut) {
  window.Show();
  toolkit.SetControlUnderPointer(&window.lst);
  EXPECT_EQ(toolkit.ControlUnderPointer(), &window.lst);
  window.Unload();
  EXPECT_EQ(toolkit.ControlUnderPointer(), nullptr);
}

TEST_F(Headless, ModalActsServeInTheOrderGiven) {
  Log log;
  toolkit.OnModal("FRMSAMPLE", [&](Form& form) {
    log.push_back("first");
    form.Hide();
  });
  toolkit.OnModal("frmSample", [&](Form& form) {
    log.push_back("second");
    form.Hide();
  });
  window.ShowModal();
  window.ShowModal();
  EXPECT_EQ(log, (Log{"first", "second"}));
}

TEST_F(Headless, AnActMayPostWhatClosesTheForm) {
  toolkit.OnModal("frmSample", [&](Form& form) { toolkit.Post([&form] { form.Hide(); }); });
  window.ShowModal();
  EXPECT_EQ(toolkit.Faults(), Log{});
}

TEST_F(Headless, MetricsAreHalfAnEmAndOneFifthMore) {
  EXPECT_EQ(toolkit.Metrics().TextWidth("ab", Font{"Any", 10}), 200);
  EXPECT_EQ(toolkit.Metrics().TextHeight(Font{"Any", 10}), 240);
}

TEST_F(Headless, MenuBarsTakeRoom) {
  const Twips before = window.ScaleHeight();
  Menu menu(window, "mnu", "Menu");
  EXPECT_EQ(window.ScaleHeight(), before - kHeadlessMenuBar);
  menu.SetVisible(false);
  EXPECT_EQ(window.ScaleHeight(), before);
}

}  // namespace
}  // namespace corvane::forms
