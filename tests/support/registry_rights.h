// What everybody may do with a key of the registry, in the words of the system's own language of such rights.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>
// Behind it, as it needs it.
#include <sddl.h>

namespace corvane::tests {

inline constexpr wchar_t kEverything[] = L"D:(A;;KA;;;WD)", kNoValuesRead[] = L"D:(D;;0x1;;;WD)(A;;KA;;;WD)",
                         kNoValuesSet[] = L"D:(D;;0x2;;;WD)(A;;KA;;;WD)",
                         kNoLookInside[] = L"D:(D;;0x8;;;WD)(A;;KA;;;WD)";

inline void Allow(HKEY root, const wchar_t* path, const wchar_t* who_may_what) {
  PSECURITY_DESCRIPTOR rights = nullptr;
  ASSERT_TRUE(ConvertStringSecurityDescriptorToSecurityDescriptorW(who_may_what, SDDL_REVISION_1, &rights, nullptr));
  HKEY key = nullptr;
  ASSERT_EQ(RegOpenKeyExW(root, path, 0, WRITE_DAC, &key), ERROR_SUCCESS);
  EXPECT_EQ(RegSetKeySecurity(key, DACL_SECURITY_INFORMATION, rights), ERROR_SUCCESS);
  RegCloseKey(key);
  LocalFree(rights);
}

}  // namespace corvane::tests
