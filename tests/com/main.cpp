// The program of the room's tests: COM is there, and a crash ends it with the test's name instead of a debugger.
#include <cstdio>
#include <gtest/gtest.h>

#include "com/com_api.h"

namespace {

LONG WINAPI Crashed(EXCEPTION_POINTERS* what) {
  const auto* test = testing::UnitTest::GetInstance()->current_test_info();
  std::printf("%s crashed: %08lx\n", test ? test->name() : "the program", what->ExceptionRecord->ExceptionCode);
  std::fflush(stdout);
  TerminateProcess(GetCurrentProcess(), 4);
  return EXCEPTION_EXECUTE_HANDLER;
}

}  // namespace

int main(int count, char** words) {
  testing::InitGoogleTest(&count, words);
  SetUnhandledExceptionFilter(&Crashed);
  OleInitialize(nullptr);
  const int failed = RUN_ALL_TESTS();
  OleUninitialize();
  return failed;
}
