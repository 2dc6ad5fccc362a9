#include "com/module_use.h"

#include <atomic>

#include "com/errors.h"

namespace corvane::com {

namespace {

std::atomic<long> uses = 0;
std::atomic<bool> pinned = false;

HMODULE ThisModule() {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<LPCWSTR>(&uses), &module);
  return module;
}

}  // namespace

void ModuleUse::Add() {
  ++uses;
}

void ModuleUse::Remove() {
  --uses;
}

long ModuleUse::Count() {
  return uses;
}

void ModuleUse::Pin() {
  if (pinned.exchange(true)) return;
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN,
                     reinterpret_cast<LPCWSTR>(&uses), &module);
}

bool ModuleUse::MayBeUnloaded() {
  return uses == 0 && !pinned;
}

std::wstring ModulePath() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(ThisModule(), path.data(), static_cast<DWORD>(path.size()));
    if (length == 0) throw ErrorOf(HRESULT_FROM_WIN32(GetLastError()));
    if (length < path.size()) return path.substr(0, length);
    path.resize(path.size() * 2);
  }
}

}  // namespace corvane::com
