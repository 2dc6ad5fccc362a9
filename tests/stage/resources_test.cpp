// That the measures see what they shall see.
#include "tests/stage/resources.h"

#include <gtest/gtest.h>
#include <memory>
#include <vector>
#include <windows.h>

namespace corvane::stage {
namespace {

HWND NewWindow() {
  return CreateWindowW(L"STATIC", L"", 0, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
}

TEST(Resources, EachKindIsCounted) {
  const HWND first = NewWindow();  // the first one of a thread brings others of the system's own
  DestroyWindow(NewWindow());
  Resources::Now();
  const Resources before = Resources::Now();
  const HBITMAP bitmap = CreateBitmap(4, 4, 1, 1, nullptr);
  const HPEN pen = CreatePen(PS_SOLID, 2, 0x123456);
  const HMENU menu = CreateMenu();
  const HWND window = NewWindow();
  const HANDLE event = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  auto bytes = std::make_unique<std::vector<char>>(3000000, 'x');
  const Resources held = Resources::Now();
  EXPECT_EQ(held.gdi - before.gdi, 2);
  EXPECT_EQ(held.user - before.user, 2);
  EXPECT_EQ(held.kernel - before.kernel, 1);
  EXPECT_GE(held.heap - before.heap, 3000000);
  EXPECT_GE(held.memory - before.memory, 3000000);
  DeleteObject(bitmap);
  DeleteObject(pen);
  DestroyMenu(menu);
  DestroyWindow(window);
  CloseHandle(event);
  bytes.reset();
  const Resources after = Resources::Now();
  EXPECT_EQ(after.gdi, before.gdi);
  EXPECT_EQ(after.user, before.user);
  EXPECT_EQ(after.kernel, before.kernel);
  EXPECT_LT(after.heap - before.heap, 2000);
  DestroyWindow(first);
}

}  // namespace
}  // namespace corvane::stage
