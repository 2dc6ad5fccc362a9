// The program of the stage's tests. A test that hangs, as one does behind a box that nobody closes, is ended with its
// name.
#include <atomic>
#include <cstdio>
#include <gtest/gtest.h>
#include <ole2.h>
#include <string>
#include <windows.h>

namespace {

constexpr DWORD kLongestTest = 120000;  // milliseconds

std::atomic<DWORD> started;
std::string running;

class Watch : public testing::EmptyTestEventListener {
  void OnTestStart(const testing::TestInfo& test) override {
    running = std::string(test.test_suite_name()) + "." + test.name();
    started = GetTickCount();
  }
  void OnTestEnd(const testing::TestInfo&) override { started = 0; }
};

DWORD WINAPI Guard(void*) {
  for (;;) {
    Sleep(500);
    const DWORD since = started;
    if (since == 0 || GetTickCount() - since < kLongestTest) continue;
    std::printf("%s hangs\n", running.c_str());
    std::fflush(stdout);
    TerminateProcess(GetCurrentProcess(), 3);
  }
}

LONG WINAPI Crashed(EXCEPTION_POINTERS* what) {
  std::printf("%s crashed: %08lx at %p\n", running.c_str(), what->ExceptionRecord->ExceptionCode,
              what->ExceptionRecord->ExceptionAddress);
  std::fflush(stdout);
  TerminateProcess(GetCurrentProcess(), 4);
  return EXCEPTION_EXECUTE_HANDLER;
}

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  testing::UnitTest::GetInstance()->listeners().Append(new Watch);
  SetUnhandledExceptionFilter(&Crashed);
  OleInitialize(nullptr);
  CloseHandle(CreateThread(nullptr, 0, &Guard, nullptr, 0, nullptr));
  const int result = RUN_ALL_TESTS();
  OleUninitialize();
  return result;
}
