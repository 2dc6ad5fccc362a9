#include "tests/stage/watch.h"

#include <atomic>
#include <cstdio>
#include <gtest/gtest.h>
#include <string>
#include <windows.h>

namespace corvane::stage {

namespace {

constexpr DWORD kLongestSilence = 120000;  // milliseconds

std::atomic<DWORD> last_sign;  // 0 between tests
std::string running;

class Names : public testing::EmptyTestEventListener {
  void OnTestStart(const testing::TestInfo& test) override {
    running = std::string(test.test_suite_name()) + "." + test.name();
    StillAlive();
  }
  void OnTestEnd(const testing::TestInfo&) override { last_sign = 0; }
};

[[noreturn]] void End(UINT status) {
  std::fflush(stdout);
  TerminateProcess(GetCurrentProcess(), status);
  for (;;) Sleep(1000);
}

DWORD WINAPI Look(void*) {
  for (;;) {
    Sleep(500);
    const DWORD since = last_sign;
    if (since == 0 || GetTickCount() - since < kLongestSilence) continue;
    std::printf("%s hangs\n", running.c_str());
    End(3);
  }
}

LONG WINAPI Crashed(EXCEPTION_POINTERS* what) {
  std::printf("%s crashed: %08lx at %p\n", running.c_str(), what->ExceptionRecord->ExceptionCode,
              what->ExceptionRecord->ExceptionAddress);
  End(4);
}

}  // namespace

void WatchTests() {
  testing::UnitTest::GetInstance()->listeners().Append(new Names);
  SetUnhandledExceptionFilter(&Crashed);
  CloseHandle(CreateThread(nullptr, 0, &Look, nullptr, 0, nullptr));
}

void StillAlive() {
  last_sign = GetTickCount();
}

}  // namespace corvane::stage
