#include "tests/stage/installed_library.h"

#include <algorithm>
#include <objbase.h>
#include <vector>

namespace corvane::stage {

namespace {

std::wstring FilesFolder() {
  wchar_t path[MAX_PATH + 1];
  GetTempPathW(MAX_PATH, path);
  const std::wstring folder = std::wstring(path) + L"stage" + std::to_wstring(GetCurrentProcessId());
  CreateDirectoryW(folder.c_str(), nullptr);
  return folder;
}

std::wstring WideSource(const std::string& path) {
  const std::string narrow = SourcePath(path);
  return {narrow.begin(), narrow.end()};
}

void RemoveFolder(const std::wstring& folder) {
  WIN32_FIND_DATAW found;
  const HANDLE search = FindFirstFileW((folder + L"\\*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return;
  do {
    const std::wstring name = found.cFileName;
    if (name == L"." || name == L"..") continue;
    const std::wstring path = folder + L"\\" + name;
    (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) ? RemoveFolder(path) : void(DeleteFileW(path.c_str()));
  } while (FindNextFileW(search, &found));
  FindClose(search);
  RemoveDirectoryW(folder.c_str());
}

// Windows looks up classes among those of the user first. Wine 8 knows the machine's alone: there the user's are put
// among them.
constexpr wchar_t kClasses[] = L"Software\\Classes\\";
constexpr const wchar_t* kOurClasses[] = {L"corvane.Connect", L"CLSID\\{8C3B7E52-4D1F-4B7A-9E65-2F0C61A7D94B}"};

bool SeesClassesOfTheUser() {
  constexpr wchar_t kProbe[] = L"corvane.StageProbe", kAnyClass[] = L"{00020424-0000-0000-C000-000000000046}";
  const std::wstring key = std::wstring(kClasses) + kProbe;
  RegSetKeyValueW(HKEY_CURRENT_USER, (key + L"\\CLSID").c_str(), nullptr, REG_SZ, kAnyClass, sizeof(kAnyClass));
  CLSID found;
  const bool seen = SUCCEEDED(CLSIDFromProgID(kProbe, &found));
  RegDeleteTreeW(HKEY_CURRENT_USER, key.c_str());
  return seen;
}

void RemoveClasses() {
  for (const wchar_t* name : kOurClasses) RegDeleteTreeW(HKEY_LOCAL_MACHINE, (std::wstring(kClasses) + name).c_str());
}

void CopyClasses() {
  RemoveClasses();
  for (const wchar_t* name : kOurClasses) {
    const std::wstring path = std::wstring(kClasses) + name;
    HKEY from = nullptr, to = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, KEY_READ, &from) != ERROR_SUCCESS) continue;
    if (RegCreateKeyExW(HKEY_LOCAL_MACHINE, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &to, nullptr) == 0)
      RegCopyTreeW(from, nullptr, to);
    RegCloseKey(from);
    RegCloseKey(to);
  }
}

}  // namespace

std::wstring ProgramFolder() {
  std::vector<wchar_t> path(4096);
  GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
  const std::wstring program = path.data();
  return program.substr(0, program.rfind(L'\\'));
}

std::string SourcePath(const std::string& path) {
  std::string full = std::string(CORVANE_SOURCE_DIR) + "\\" + path;
  std::replace(full.begin(), full.end(), '/', '\\');
  return full;
}

InstalledLibrary::InstalledLibrary(const std::wstring& name, bool with_data) : folder_(FilesFolder() + L"\\" + name) {
  CreateDirectoryW(folder_.c_str(), nullptr);
  CopyFileW((ProgramFolder() + L"\\corvane.dll").c_str(), Path().c_str(), FALSE);
  if (!with_data) return;
  for (const char* file : {"corvane.bmp", "readme.txt"}) {
    const std::wstring to = folder_ + L"\\" + std::wstring(file, file + std::string_view(file).size());
    CopyFileW(WideSource(std::string("data\\") + file).c_str(), to.c_str(), FALSE);
  }
}

InstalledLibrary::~InstalledLibrary() {
  Unregister();
  RemoveFolder(folder_);
  RemoveDirectoryW(folder_.substr(0, folder_.rfind(L'\\')).c_str());
}

HRESULT InstalledLibrary::Register() {
  const HRESULT code = CallEntry("DllRegisterServer");
  if (!SeesClassesOfTheUser()) CopyClasses();
  return code;
}

HRESULT InstalledLibrary::Unregister() {
  if (!SeesClassesOfTheUser()) RemoveClasses();
  return CallEntry("DllUnregisterServer");
}

HRESULT InstalledLibrary::CallEntry(const char* entry) const {
  const HMODULE module = LoadLibraryW(Path().c_str());
  if (module == nullptr) return HRESULT_FROM_WIN32(GetLastError());
  const auto call =
      reinterpret_cast<HRESULT(STDMETHODCALLTYPE*)()>(reinterpret_cast<void*>(GetProcAddress(module, entry)));
  const HRESULT code = call ? call() : static_cast<HRESULT>(0x8002801C);  // SELFREG_E_CLASS and its kin
  FreeLibrary(module);
  return code;
}

}  // namespace corvane::stage
