// RegistryEdit: changes of the registry of which all are made or none.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "com/com_api.h"

namespace corvane::com {

// Keys on the way are made where they are missing. What fails throws the system's code as an Error, and unless Keep was
// called, everything is put back as it was.
class RegistryEdit {
 public:
  RegistryEdit() = default;
  RegistryEdit(const RegistryEdit&) = delete;
  RegistryEdit& operator=(const RegistryEdit&) = delete;
  ~RegistryEdit();

  void SetText(HKEY root, const std::wstring& key, const wchar_t* name, const std::wstring& text);
  void SetNumber(HKEY root, const std::wstring& key, const wchar_t* name, DWORD number);
  bool Has(HKEY root, const std::wstring& key, const wchar_t* name);
  void Keep() { undo_.clear(); }

 private:
  void MakeKey(HKEY root, const std::wstring& key);
  void Set(HKEY root, const std::wstring& key, const wchar_t* name, DWORD type, const void* data, DWORD size);
  std::vector<std::function<void()>> undo_;
};

// [view]: KEY_WOW64_64KEY or KEY_WOW64_32KEY. A key that may not be opened is not there.
bool HasKey(HKEY root, const std::wstring& key, REGSAM view);

// Removes [key] with all below it, and then those above it that are empty, up to [keep], which stays. A key that is not
// there is removed. Returns the system's code of what refused.
LSTATUS RemoveKey(HKEY root, const std::wstring& key, const std::wstring& keep);

}  // namespace corvane::com
