// A folder of a test's own, gone with it.
#pragma once

#include <string>

#include "toolkit_win32/texts.h"
#include "toolkit_win32/win.h"

namespace corvane::toolkit_win32 {

class ScratchFolder {
 public:
  explicit ScratchFolder(const std::wstring& name = L"files") {
    wchar_t temporary[MAX_PATH];
    GetTempPathW(MAX_PATH, temporary);
    folder_ = temporary + (L"corvane-" + std::to_wstring(GetCurrentProcessId()) + L"-" + name);
    CreateDirectoryW(folder_.c_str(), nullptr);
  }
  ~ScratchFolder() { Remove(folder_); }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  const std::wstring& Wide() const { return folder_; }
  std::wstring Wide(const std::wstring& name) const { return folder_ + L"\\" + name; }
  // As the logic has it.
  std::string Path(const std::string& name) const { return BytesOf(folder_) + "\\" + name; }

  void Put(const std::wstring& name, const std::string& bytes) const {
    const HANDLE file =
        CreateFileW(Wide(name).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    DWORD written = 0;
    WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    CloseHandle(file);
  }
  std::string Bytes(const std::wstring& name) const {
    const HANDLE file =
        CreateFileW(Wide(name).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    std::string bytes(GetFileSize(file, nullptr), '\0');
    DWORD got = 0;
    ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &got, nullptr);
    CloseHandle(file);
    return bytes;
  }
  int Count() const {
    int count = 0;
    ForEach(folder_, [&](const WIN32_FIND_DATAW&) { ++count; });
    return count;
  }

 private:
  template <class Visit>
  static void ForEach(const std::wstring& folder, Visit&& visit) {
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileW((folder + L"\\*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return;
    do {
      const std::wstring name = found.cFileName;
      if (name != L"." && name != L"..") visit(found);
    } while (FindNextFileW(search, &found));
    FindClose(search);
  }
  static void Remove(const std::wstring& folder) {
    ForEach(folder, [&](const WIN32_FIND_DATAW& found) {
      const std::wstring path = folder + L"\\" + found.cFileName;
      SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
      found.dwFileAttributes& FILE_ATTRIBUTE_DIRECTORY ? Remove(path) : static_cast<void>(DeleteFileW(path.c_str()));
    });
    RemoveDirectoryW(folder.c_str());
  }
  std::wstring folder_;
};

}  // namespace corvane::toolkit_win32
