// Windows of others on the same desktop are not taken for ours, whatever hangs on them.
#include <thread>

#include "tests/toolkit_win32/window_fixture.h"
#include "toolkit_win32/window.h"

namespace corvane::toolkit_win32 {
namespace {

class ForeignWindow : public WindowTest {};

TEST_F(ForeignWindow, OursIsOursOnItsOwnThreadAlone) {
  Show();
  const HWND ours = WindowOf(form);
  EXPECT_NE(WindowAround(ours), nullptr);
  Window* found_elsewhere = WindowAround(ours);
  std::thread([&] { found_elsewhere = WindowAround(ours); }).join();
  EXPECT_EQ(found_elsewhere, nullptr);
}

}  // namespace
}  // namespace corvane::toolkit_win32
