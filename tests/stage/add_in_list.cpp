#include "tests/stage/add_in_list.h"

#include "tests/stage/texts.h"

namespace corvane::stage {

namespace {

constexpr wchar_t kList[] = L"Software\\Microsoft\\Visual Basic\\6.0\\Addins";

std::string TextAt(HKEY list, const std::wstring& key, const wchar_t* name) {
  wchar_t text[256];
  DWORD size = sizeof(text);
  return RegGetValueW(list, key.c_str(), name, RRF_RT_REG_SZ, nullptr, text, &size) == 0 ? Ansi(text) : "";
}

DWORD NumberAt(HKEY list, const std::wstring& key, const wchar_t* name) {
  DWORD number = 0, size = sizeof(number);
  RegGetValueW(list, key.c_str(), name, RRF_RT_REG_DWORD, nullptr, &number, &size);
  return number;
}

}  // namespace

std::vector<ListedAddIn> ListedAddIns() {
  std::vector<ListedAddIn> listed;
  HKEY list = nullptr;
  if (RegOpenKeyExW(HKEY_CURRENT_USER, kList, 0, KEY_READ, &list) != ERROR_SUCCESS) return listed;
  wchar_t key[256];
  for (DWORD i = 0, size = 256; RegEnumKeyExW(list, i, key, &size, nullptr, nullptr, nullptr, nullptr) == 0;
       ++i, size = 256)
    listed.push_back({key, TextAt(list, key, L"FriendlyName"), TextAt(list, key, L"Description"),
                      NumberAt(list, key, L"LoadBehavior"), NumberAt(list, key, L"CommandLineSafe")});
  RegCloseKey(list);
  return listed;
}

std::optional<ListedAddIn> FindListed(const std::string& name) {
  for (const ListedAddIn& add_in : ListedAddIns())
    if (add_in.name == name) return add_in;
  return std::nullopt;
}

void ChooseLoading(const ListedAddIn& add_in, DWORD load_behavior) {
  RegSetKeyValueW(HKEY_CURRENT_USER, (std::wstring(kList) + L"\\" + add_in.prog_id).c_str(), L"LoadBehavior", REG_DWORD,
                  &load_behavior, sizeof(load_behavior));
}

void RemoveFromList(const ListedAddIn& add_in) {
  RegDeleteTreeW(HKEY_CURRENT_USER, (std::wstring(kList) + L"\\" + add_in.prog_id).c_str());
}

}  // namespace corvane::stage
