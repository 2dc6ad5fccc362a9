// Loading, opening, closing and unloading, again and again: nothing grows.
#include <algorithm>
#include <cstdlib>

#include "tests/stage/resources.h"
#include "tests/stage/story.h"
#include "tests/stage/watch.h"

namespace corvane::stage {
namespace {

constexpr int kWarmUp = 30, kCycles = 500;
constexpr long long kMostMemory = 1 << 20;  // bytes, in so many cycles
constexpr long long kFewPages = 1 << 17;    // bytes: what the system takes at a time

class Cycles : public Story {
 protected:
  // CORVANE_CYCLES tells another number.
  static int Number() {
    const char* told = std::getenv("CORVANE_CYCLES");
    return told ? std::atoi(told) : kCycles;
  }
  void Cycle() {
    StillAlive();
    ASSERT_EQ(host.StartUp(), S_OK);
    ASSERT_TRUE(environment->Bars().Click(FindOnBar("Standard", kButton)->id));
    ASSERT_NE(Explorer(), nullptr);
    PumpOnce();
    PostMessageW(Explorer(), WM_CLOSE, 0, 0);
    PumpOnce();
    ASSERT_EQ(host.ShutDown(), S_OK);
    PumpOnce();
  }
  void PumpOnce() {
    int turns = 0;
    window.PumpUntil([&] { return ++turns > 1 && GetQueueStatus(QS_ALLEVENTS & ~QS_TIMER) == 0; });
  }
};

// The library stays loaded, as it does in an environment that asks now and then for those that nobody uses.
//
// Under Wine 8 the process heap grows by one block of 1,024 bytes a cycle. It is Wine's: its GetClipboardData makes a
// buffer of that size for the answer of its server and keeps it, unused, where it has the same picture at hand already.
// A trace of the calls of the heap shows each such block being made inside GetClipboardData(CF_DIB), which the stage
// calls for PasteFace; no other block is left.
TEST_F(Cycles, NothingGrows) {
  ASSERT_GT(Number(), 0) << "CORVANE_CYCLES is no number";
  const long long most = kMostMemory * Number() / kCycles;
  OpenSmallProject();
  for (int i = 0; i < kWarmUp && !HasFailure(); ++i) Cycle();
  const Resources before = Resources::Now();
  for (int i = 0; i < Number() && !HasFailure(); ++i) Cycle();
  const Resources behind = Resources::Now();
  std::printf("before: %s\nbehind: %s\n", before.Text().c_str(), behind.Text().c_str());
  EXPECT_LE(behind.user, before.user);
  EXPECT_LE(behind.gdi, before.gdi);
  EXPECT_LE(behind.kernel, before.kernel);
  EXPECT_LE(behind.heap - before.heap, most);
  EXPECT_LE(behind.memory - before.memory, std::max(most, kFewPages));
  EXPECT_EQ(stage.ledger.objects, 0);
  EXPECT_EQ(stage.ledger.references, 0);
  EXPECT_EQ(stage.ledger.sinks, 0);
}

}  // namespace
}  // namespace corvane::stage
