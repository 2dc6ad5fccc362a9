// Visual styles: there where the module asks for them and the system has them, and never needed.
#include <gtest/gtest.h>

#include "toolkit_win32/texts.h"
#include "toolkit_win32/toolkit.h"
#include "toolkit_win32/visual_styles.h"

namespace corvane::toolkit_win32 {
namespace {

// The file of the common controls that code in this place would get.
std::wstring CommonControls() {
  const HMODULE library = LoadLibraryW(L"comctl32.dll");
  wchar_t path[MAX_PATH];
  const std::wstring found(path, GetModuleFileNameW(library, path, MAX_PATH));
  FreeLibrary(library);
  return found;
}

TEST(VisualStyles, AreThoseOfTheModulesManifestWhileTheyAreUsed) {
  const VisualStyles styles(GetModuleHandleW(nullptr));
  ASSERT_TRUE(styles.AreThere());
  const VisualStyles::Use use(styles);
  EXPECT_NE(CommonControls().find(L"common-controls_6595b64144ccf1df_6.0."), std::wstring::npos)
      << ToUtf8(CommonControls());
}

TEST(VisualStyles, AreNotNeeded) {
  const VisualStyles styles(GetModuleHandleW(L"kernel32.dll"));
  const VisualStyles::Use use(styles);
  EXPECT_FALSE(styles.AreThere());
}

}  // namespace
}  // namespace corvane::toolkit_win32
