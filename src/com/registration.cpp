#include "com/registration.h"

#include <vector>

#include "addin/connect.h"
#include "com/add_in.h"
#include "com/guarded.h"
#include "com/registry_edit.h"
#include "com/texts.h"

namespace corvane::com {

namespace {

constexpr wchar_t kClasses[] = L"Software\\Classes", kVendors[] = L"Software\\Microsoft";
constexpr DWORD kLoadAtStartup = 1, kMayShowMessages = 0;

HKEY RootOf(Scope scope) {
  return scope == Scope::Machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
}

std::wstring ClassId() {
  wchar_t text[40];
  StringFromGUID2(kClassOfAddIn, text, ARRAYSIZE(text));
  return text;
}

std::wstring KeyOfClass() {
  return std::wstring(kClasses) + L"\\CLSID\\" + ClassId();
}

std::wstring KeyOfProgId() {
  return std::wstring(kClasses) + L"\\" + ToWide(addin::kProgId);
}

// The environment's root is told with the name of the user's part of the registry in front.
std::wstring KeyOfAddIn() {
  const std::string_view root = addin::kRegistryRoot;
  return ToWide(root.substr(root.find('\\') + 1)) + L"\\Addins\\" + ToWide(addin::kProgId);
}

void RegisterClass(RegistryEdit& edit, HKEY root, const std::wstring& library) {
  const std::wstring id = KeyOfClass(), prog_id = KeyOfProgId();
  edit.SetText(root, id, L"", ToWide(addin::kProjectDescription));
  edit.SetText(root, id + L"\\InprocServer32", L"", library);
  edit.SetText(root, id + L"\\InprocServer32", L"ThreadingModel", L"Apartment");
  edit.SetText(root, id + L"\\ProgID", L"", ToWide(addin::kProgId));
  edit.SetText(root, id + L"\\Programmable", L"", L"");
  edit.SetText(root, prog_id, L"", ToWide(addin::kProjectDescription));
  edit.SetText(root, prog_id + L"\\CLSID", L"", ClassId());
}

void RegisterAddIn(RegistryEdit& edit) {
  const std::wstring key = KeyOfAddIn();
  edit.SetText(HKEY_CURRENT_USER, key, L"FriendlyName", ToWide(addin::kFriendlyName));
  edit.SetText(HKEY_CURRENT_USER, key, L"Description", ToWide(addin::kDescription));
  edit.SetNumber(HKEY_CURRENT_USER, key, L"CommandLineSafe", kMayShowMessages);
  if (!edit.Has(HKEY_CURRENT_USER, key, L"LoadBehavior"))
    edit.SetNumber(HKEY_CURRENT_USER, key, L"LoadBehavior", kLoadAtStartup);
}

// The classes of 64-bit and of 32-bit programs stand apart; all else that is registered is one for both.
bool HasClass(HKEY root) {
  return HasKey(root, KeyOfClass(), KEY_WOW64_64KEY) || HasKey(root, KeyOfClass(), KEY_WOW64_32KEY);
}

HRESULT ResultOf(LSTATUS status) {
  return HRESULT_FROM_WIN32(static_cast<DWORD>(status));
}

}  // namespace

HRESULT Register(Scope scope, const std::wstring& library) noexcept {
  return Guarded([&] {
    RegistryEdit edit;
    RegisterClass(edit, RootOf(scope), library);
    RegisterAddIn(edit);
    edit.Keep();
  });
}

HRESULT RegisterEntry() noexcept {
  return Guarded([] {
    RegistryEdit edit;
    RegisterAddIn(edit);
    edit.Keep();
  });
}

HRESULT UnregisterEntry() noexcept {
  return Guarded([] { return ResultOf(RemoveKey(HKEY_CURRENT_USER, KeyOfAddIn(), kVendors)); });
}

HRESULT Unregister(Scope scope) noexcept {
  return Guarded([&] {
    const HKEY root = RootOf(scope);
    std::vector<LSTATUS> statuses = {RemoveKey(root, KeyOfClass(), kClasses)};
    if (!HasClass(root)) statuses.push_back(RemoveKey(root, KeyOfProgId(), kClasses));
    if (!HasClass(HKEY_CURRENT_USER) && !HasClass(HKEY_LOCAL_MACHINE))
      statuses.push_back(RemoveKey(HKEY_CURRENT_USER, KeyOfAddIn(), kVendors));
    for (const LSTATUS status : statuses)
      if (status != ERROR_SUCCESS) return ResultOf(status);
    return S_OK;
  });
}

}  // namespace corvane::com
