// What the add-in asks of the environment, counted: calls by name, searches of names included.
#include <algorithm>

#include "com/objects.h"
#include "explorer/procedure_scan.h"
#include "tests/stage/story.h"
#include "tests/support/sources.h"

namespace corvane::stage {
namespace {

using tests::Bas;
using tests::Code;

Code CodeOf(long count) {
  Code code = {"Option Explicit"};
  for (long i = 1; i <= count; ++i)
    for (const std::string& line :
         {std::string(), "Private Sub Do" + std::to_string(i) + "()", std::string("  x = 1"), std::string("End Sub")})
      code.push_back(line);
  return code;
}

class HostCalls : public testing::Test {
 protected:
  // Scans a module of [count] procedures; the ledger has what was asked of it.
  void Scan(long count) {
    environment->OpenFromModules("Shop", {Bas("modMain", CodeOf(count))});
    const auto module = com::Wrap<host::VBE>(com::Value(stage.Root().Get()))
                            ->ActiveVBProject()
                            ->VBComponents()
                            ->Item("modMain")
                            ->CodeModule();
    stage.ledger.ClearCalls();
    long found = 0;
    explorer::ScanProcedures(*module, {}, [&](long, const std::string&) { ++found; });
    EXPECT_EQ(found, count);
  }
  long Calls(const char* member) { return stage.ledger.Calls(std::string("CodeModule.") + member); }

  environment::MemoryFiles files;
  std::shared_ptr<environment::Environment> environment = environment::Environment::Create(files);
  Stage stage{environment};
};

// Three lines and three questions for each procedure; each name is searched once.
TEST_F(HostCalls, AScanAsksSixTimesForEachProcedure) {
  for (long count : {1L, 20L, 500L}) {
    Scan(count);
    EXPECT_EQ(Calls("Lines"), 3 * count);
    EXPECT_EQ(Calls("ProcOfLine"), count);
    EXPECT_EQ(Calls("ProcStartLine"), count);
    EXPECT_EQ(Calls("ProcCountLines"), count);
    EXPECT_EQ(Calls("GetIDsOfNames"), 6);
    EXPECT_EQ(stage.ledger.Calls(), 6 * count + 2 + 6);
  }
}

class CallsOfAStory : public Story {};

TEST_F(CallsOfAStory, ConnectingIsQuickAndAsksForItsControlsAlone) {
  // The quickest of some: others use the machine too. The first reads the library from the disk.
  double milliseconds = 1e9;
  for (int turn = 0; turn < 4; ++turn) {
    if (turn > 0) {
      ASSERT_EQ(host.ShutDown(), S_OK);
    }
    stage.ledger.ClearCalls();
    LARGE_INTEGER frequency, before, behind;
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&before);
    ASSERT_EQ(host.StartUp(), S_OK);
    QueryPerformanceCounter(&behind);
    const double ticks = static_cast<double>(behind.QuadPart - before.QuadPart);
    milliseconds = std::min(milliseconds, 1000.0 * ticks / static_cast<double>(frequency.QuadPart));
  }
  std::printf("connected in %.1f ms with %ld calls\n", milliseconds, stage.ledger.Calls());
  EXPECT_LE(milliseconds, 50.0);
  EXPECT_EQ(stage.ledger.Calls("VBE.ActiveVBProject"), 0) << "there is none yet when the environment starts";
  EXPECT_EQ(stage.ledger.Calls(), 58);
}

// Where nothing is selected in the environment, all components are listed: six calls for each procedure, and those for
// each component. A project of twice the size is asked twice as often.
constexpr int kOfOpening = 13, kOfAProcedure = 6, kOfAComponent = 21;
long CallsFor(long components, long procedures) {
  return kOfOpening + components * (procedures * kOfAProcedure + kOfAComponent);
}

TEST_F(CallsOfAStory, OpeningTheExplorerAsksForEachProcedureOnce) {
  long calls[2];
  for (int i = 0; i < 2; ++i) {
    std::vector<environment::SourceFile> modules;
    for (int j = 0; j < 20 * (i + 1); ++j) modules.push_back(Bas("mod" + std::to_string(100 + j), CodeOf(50)));
    environment->OpenFromModules("Project" + std::to_string(i), modules);
    ASSERT_EQ(host.StartUp(), S_OK);
    stage.ledger.ClearCalls();
    ASSERT_TRUE(Click("Standard", kButton));
    calls[i] = stage.ledger.Calls();
    ASSERT_EQ(host.ShutDown(), S_OK);
  }
  std::printf("the explorer opened with %ld calls for 20 components, %ld for 40\n", calls[0], calls[1]);
  EXPECT_EQ(calls[0], CallsFor(20, 50));
  EXPECT_EQ(calls[1], CallsFor(40, 50));
}

// All in standard modules, the only ones whose procedures are listed at once.
TEST_F(CallsOfAStory, AMillionLinesAreOpenedWithAsManyCallsAsTheyHaveProcedures) {
  constexpr long kModules = 1000, kProcedures = 50, kLines = 20;
  Code code = {"Option Explicit"};
  for (long i = 1; i <= kProcedures; ++i) {
    code.push_back("");
    code.push_back("Private Sub Do" + std::to_string(i) + "()");
    for (long line = 3; line < kLines; ++line) code.push_back("  x = x + " + std::to_string(line));
    code.push_back("End Sub");
  }
  std::vector<environment::SourceFile> modules;
  for (long i = 0; i < kModules; ++i) modules.push_back(Bas("mod" + std::to_string(1000 + i), code));
  environment->OpenFromModules("Large", modules);
  ASSERT_EQ(host.StartUp(), S_OK);
  stage.ledger.ClearCalls();
  const DWORD before = GetTickCount();
  ASSERT_TRUE(environment->Bars().Click(FindOnBar("Standard", kButton)->id));
  const DWORD took = GetTickCount() - before;
  const long calls = stage.ledger.Calls();
  std::printf("%ld lines: the explorer opened in %lu ms with %ld calls\n", kModules * (1 + kProcedures * kLines), took,
              calls);
  EXPECT_EQ(calls, CallsFor(kModules, kProcedures));
  EXPECT_EQ(RowsOf(Procedures()).size(), 1u + kModules * kProcedures);
}

}  // namespace
}  // namespace corvane::stage
