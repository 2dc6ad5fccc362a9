// The program of the stage's tests.
#include <gtest/gtest.h>
#include <ole2.h>
#include <windows.h>

#include "tests/stage/watch.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  corvane::stage::WatchTests();
  OleInitialize(nullptr);
  const int result = RUN_ALL_TESTS();
  OleUninitialize();
  return result;
}
