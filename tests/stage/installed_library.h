// InstalledLibrary: a copy of the library that was built, with its data, registered for this user as its own entry
// point does it.
#pragma once

#include <string>
#include <windows.h>

namespace corvane::stage {

class InstalledLibrary {
 public:
  // In a new folder of this name below the folder for such files.
  explicit InstalledLibrary(const std::wstring& name, bool with_data = true);
  // Unregisters it and removes the folder.
  ~InstalledLibrary();
  InstalledLibrary(const InstalledLibrary&) = delete;

  const std::wstring& Folder() const { return folder_; }
  std::wstring Path() const { return folder_ + L"\\corvane.dll"; }
  HRESULT Register();
  HRESULT Unregister();
  // Whether the process has it loaded.
  bool IsLoaded() const { return GetModuleHandleW(Path().c_str()) != nullptr; }

 private:
  HRESULT CallEntry(const char* entry) const;
  std::wstring folder_;
};

// The folder of this program.
std::wstring ProgramFolder();
// A file of the source tree, "samples\\stockroom\\Stockroom.vbp".
std::string SourcePath(const std::string& path);

}  // namespace corvane::stage
