#include "com/registry_edit.h"

#include "com/errors.h"

namespace corvane::com {

namespace {

// With the system's own code, and not the number that Visual Basic has for it: it goes back to the system.
void CheckStatus(LSTATUS status) {
  const HRESULT code = HRESULT_FROM_WIN32(static_cast<DWORD>(status));
  if (FAILED(code)) throw host::Error(static_cast<long>(code), ErrorOf(code).Description());
}

// An open key.
class Key {
 public:
  Key(HKEY root, const std::wstring& path, REGSAM access)
      : status_(RegOpenKeyExW(root, path.c_str(), 0, access, &key_)) {}
  Key(const Key&) = delete;
  Key& operator=(const Key&) = delete;
  ~Key() {
    if (key_) RegCloseKey(key_);
  }
  LSTATUS Status() const { return status_; }
  HKEY Get() const { return key_; }

 private:
  HKEY key_ = nullptr;
  LSTATUS status_;
};

struct OldValue {
  bool there = false;
  DWORD type = REG_NONE;
  std::vector<BYTE> data;
};

OldValue ReadValue(HKEY key, const wchar_t* name) {
  OldValue old;
  DWORD size = 0;
  if (RegQueryValueExW(key, name, nullptr, nullptr, nullptr, &size) != ERROR_SUCCESS) return old;
  old.data.resize(size);
  old.there = RegQueryValueExW(key, name, nullptr, &old.type, old.data.data(), &size) == ERROR_SUCCESS;
  return old;
}

void PutBack(HKEY root, const std::wstring& path, const std::wstring& name, const OldValue& old) {
  const Key key(root, path, KEY_SET_VALUE);
  if (!key.Get()) return;
  if (old.there)
    RegSetValueExW(key.Get(), name.c_str(), 0, old.type, old.data.data(), static_cast<DWORD>(old.data.size()));
  else
    RegDeleteValueW(key.Get(), name.c_str());
}

bool IsEmpty(HKEY root, const std::wstring& path) {
  const Key key(root, path, KEY_QUERY_VALUE);
  DWORD keys = 0, values = 0;
  return key.Get() &&
         RegQueryInfoKeyW(key.Get(), nullptr, nullptr, nullptr, &keys, nullptr, nullptr, &values, nullptr, nullptr,
                          nullptr, nullptr) == ERROR_SUCCESS &&
         keys == 0 && values == 0;
}

std::wstring Above(const std::wstring& path) {
  const size_t end = path.rfind(L'\\');
  return end == std::wstring::npos ? std::wstring() : path.substr(0, end);
}

}  // namespace

RegistryEdit::~RegistryEdit() {
  for (auto step = undo_.rbegin(); step != undo_.rend(); ++step) (*step)();
}

// One after the other, to know which of them are new.
void RegistryEdit::MakeKey(HKEY root, const std::wstring& key) {
  for (size_t end = key.find(L'\\');; end = key.find(L'\\', end + 1)) {
    const std::wstring path = key.substr(0, end);
    HKEY made = nullptr;
    DWORD happened = 0;
    CheckStatus(RegCreateKeyExW(root, path.c_str(), 0, nullptr, 0, KEY_READ, nullptr, &made, &happened));
    RegCloseKey(made);
    if (happened == REG_CREATED_NEW_KEY) undo_.push_back([=] { RegDeleteKeyW(root, path.c_str()); });
    if (end == std::wstring::npos) return;
  }
}

void RegistryEdit::Set(HKEY root, const std::wstring& key, const wchar_t* name, DWORD type, const void* data,
                       DWORD size) {
  MakeKey(root, key);
  const Key open(root, key, KEY_QUERY_VALUE | KEY_SET_VALUE);
  CheckStatus(open.Status());
  const OldValue old = ReadValue(open.Get(), name);
  CheckStatus(RegSetValueExW(open.Get(), name, 0, type, static_cast<const BYTE*>(data), size));
  undo_.push_back([=, name = std::wstring(name)] { PutBack(root, key, name, old); });
}

void RegistryEdit::SetText(HKEY root, const std::wstring& key, const wchar_t* name, const std::wstring& text) {
  Set(root, key, name, REG_SZ, text.c_str(), static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

void RegistryEdit::SetNumber(HKEY root, const std::wstring& key, const wchar_t* name, DWORD number) {
  Set(root, key, name, REG_DWORD, &number, sizeof number);
}

bool RegistryEdit::Has(HKEY root, const std::wstring& key, const wchar_t* name) {
  const Key open(root, key, KEY_QUERY_VALUE);
  return open.Get() && ReadValue(open.Get(), name).there;
}

bool HasKey(HKEY root, const std::wstring& key, REGSAM view) {
  return Key(root, key, KEY_QUERY_VALUE | view).Get() != nullptr;
}

LSTATUS RemoveKey(HKEY root, const std::wstring& key, const std::wstring& keep) {
  const LSTATUS status = RegDeleteTreeW(root, key.c_str());
  if (status != ERROR_SUCCESS && status != ERROR_FILE_NOT_FOUND) return status;
  for (std::wstring above = Above(key); above.size() > keep.size() && IsEmpty(root, above); above = Above(above))
    if (RegDeleteKeyW(root, above.c_str()) != ERROR_SUCCESS) break;
  return ERROR_SUCCESS;
}

}  // namespace corvane::com
