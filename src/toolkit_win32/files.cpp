#include "toolkit_win32/files.h"

#include <algorithm>
#include <unordered_map>

#include "toolkit_win32/file_names.h"
#include "toolkit_win32/texts.h"
#include "toolkit_win32/win.h"

namespace corvane::toolkit_win32 {
namespace {

constexpr int64_t kLargestFile = 0x7FFFFFFF;     // bytes: texts count theirs in 31 bits
constexpr int64_t kTick = 100;                   // nanoseconds to the tick of a file's time
constexpr DWORD kMostAtOnce = 16 * 1024 * 1024;  // bytes
constexpr int kTemporaryNames = 100;

enum class Doing { Reading, Writing };

[[noreturn]] void Fail(DWORD error, Doing doing) {
  switch (error) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_INVALID_NAME:
      throw runtime::Error(doing == Doing::Reading ? runtime::kFileNotFound : runtime::kPathNotFound);
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_NOT_READY:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_BAD_PATHNAME:
      throw runtime::Error(runtime::kPathNotFound);
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_WRITE_PROTECT:
    case ERROR_USER_MAPPED_FILE:
      throw runtime::Error(runtime::kPermissionDenied);
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
      throw runtime::Error(runtime::kDiskFull);
    default:
      throw runtime::Error(runtime::kPathFileAccessError);
  }
}

// An open file; closed at the end of its life.
class Handle {
 public:
  explicit Handle(HANDLE handle) : handle_(handle) {}
  ~Handle() { Close(); }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
  HANDLE Get() const { return handle_; }
  void Close() {
    if (IsOpen()) CloseHandle(handle_);
    handle_ = INVALID_HANDLE_VALUE;
  }

 private:
  HANDLE handle_;
};

HANDLE OpenToRead(const std::wstring& path) {
  return CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                     OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
}

bool IsFolder(DWORD attributes) {
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// A link stands for its file.
std::wstring LinkedFile(const std::wstring& path) {
  constexpr DWORD kRoom = 32768;  // characters: no path is longer
  Handle file(OpenToRead(path));
  std::wstring target(kRoom, L'\0');
  const DWORD length = file.IsOpen() ? GetFinalPathNameByHandleW(file.Get(), target.data(), kRoom, 0) : 0;
  target.resize(length < kRoom ? length : 0);
  return target.empty() ? path : target;
}

// Writes, flushes and closes. Returns the system's error, 0 for none.
DWORD Fill(Handle& file, std::string_view bytes) {
  while (!bytes.empty()) {
    DWORD written = 0;
    const DWORD part = static_cast<DWORD>(std::min<size_t>(bytes.size(), kMostAtOnce));
    if (!WriteFile(file.Get(), bytes.data(), part, &written, nullptr)) return GetLastError();
    bytes.remove_prefix(written);
  }
  const DWORD error = FlushFileBuffers(file.Get()) ? 0 : GetLastError();
  file.Close();
  return error;
}

// Before anything is written: whether the file lets itself be replaced.
void RequireReplaceable(const std::wstring& path) {
  const Handle file(CreateFileW(path.c_str(), GENERIC_WRITE | DELETE,
                                FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!file.IsOpen()) Fail(GetLastError(), Doing::Writing);
}

// The old file's rights and times of making go over to the new one, where the disk can do that.
DWORD TakePlace(const std::wstring& temporary, const std::wstring& path, bool exists) {
  if (exists &&
      ReplaceFileW(path.c_str(), temporary.c_str(), nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr))
    return 0;
  const bool moved = MoveFileExW(temporary.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
  return moved ? 0 : GetLastError();
}

bool SameLetter(wchar_t a, wchar_t b) {
  return CompareStringOrdinal(&a, 1, &b, 1, TRUE) == CSTR_EQUAL;
}

// Without case: * is any text, ? one character. On a mismatch the last * takes one character more.
bool FitsWildcard(std::wstring_view name, std::wstring_view pattern) {
  if (pattern == L"*.*") return true;
  size_t at = 0, want = 0, star = std::wstring_view::npos, star_at = 0;
  while (at < name.size()) {
    if (want < pattern.size() && pattern[want] == L'*') {
      star = want++;
      star_at = at;
    } else if (want < pattern.size() && (pattern[want] == L'?' || SameLetter(pattern[want], name[at]))) {
      ++want, ++at;
    } else if (star != std::wstring_view::npos) {
      want = star + 1;
      at = ++star_at;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of(L'*', want) == std::wstring_view::npos;
}

class SystemFiles : public host::Files {
 public:
  std::string Read(const std::string& path) override {
    const std::wstring place = PathForSystem(path);
    if (IsFolder(GetFileAttributesW(place.c_str()))) throw runtime::Error(runtime::kPathFileAccessError);
    Handle file(OpenToRead(place));
    if (!file.IsOpen()) Fail(GetLastError(), Doing::Reading);
    LARGE_INTEGER size{};
    const bool is_file = GetFileType(file.Get()) == FILE_TYPE_DISK && GetFileSizeEx(file.Get(), &size);
    if (!is_file) throw runtime::Error(runtime::kPathFileAccessError, "No file, but a device");
    if (size.QuadPart > kLargestFile) throw runtime::Error(runtime::kPathFileAccessError, "a file of 2 GB or more");
    std::string bytes(static_cast<size_t>(size.QuadPart), '\0');
    size_t got = 0;
    for (DWORD part = 1; got < bytes.size() && part > 0; got += part) {
      const DWORD wanted = static_cast<DWORD>(std::min<size_t>(bytes.size() - got, kMostAtOnce));
      if (!ReadFile(file.Get(), bytes.data() + got, wanted, &part, nullptr)) Fail(GetLastError(), Doing::Reading);
    }
    bytes.resize(got);
    places_[path] = place;
    return bytes;
  }

  // The new file stands whole and flushed beside the old one before it takes its name. A link is followed to its file.
  void Write(const std::string& path, std::string_view bytes) override {
    const std::wstring named = PlaceOf(path);
    const DWORD attributes = GetFileAttributesW(named.c_str());
    const bool exists = attributes != INVALID_FILE_ATTRIBUTES;
    if (IsFolder(attributes)) throw runtime::Error(runtime::kPathFileAccessError);
    if (exists && (attributes & FILE_ATTRIBUTE_READONLY) != 0) throw runtime::Error(runtime::kPermissionDenied);
    if (exists) RequireReplaceable(named);
    const bool linked = exists && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    const std::wstring place = linked ? LinkedFile(named) : named;
    std::wstring temporary;
    Handle file(NewFileBeside(place, temporary));
    DWORD error = Fill(file, bytes);
    if (error == 0) error = TakePlace(temporary, place, exists);
    if (error != 0) {
      file.Close();
      DeleteFileW(temporary.c_str());
      Fail(error, Doing::Writing);
    }
    places_[path] = named;
  }

  uint32_t Attributes(const std::string& path) override { return GetFileAttributesW(PlaceOf(path).c_str()); }

  host::FileStamp Stamp(const std::string& path) override {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (!GetFileAttributesExW(PlaceOf(path).c_str(), GetFileExInfoStandard, &data)) return {};
    const auto joined = [](DWORD high, DWORD low) { return int64_t{high} << 32 | low; };
    return {joined(data.nFileSizeHigh, data.nFileSizeLow),
            joined(data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime) * kTick};
  }

  std::vector<std::string> List(const std::string& folder, const std::string& pattern) override {
    std::vector<std::string> names;
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileW((PathForSystem(folder + "\\") + L"*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return names;
    const std::wstring wanted = ShownText(pattern);
    do {
      const bool is_file = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
      if (is_file && FitsWildcard(found.cFileName, wanted)) names.push_back(PathFromSystem(found.cFileName));
    } while (FindNextFileW(search, &found));
    FindClose(search);
    std::sort(names.begin(), names.end());
    return names;
  }

 private:
  // Where a file was read from is where it is written, though another code page would find its name elsewhere by now.
  std::wstring PlaceOf(const std::string& path) {
    const auto known = places_.find(path);
    const bool is_there =
        known != places_.end() && GetFileAttributesW(known->second.c_str()) != INVALID_FILE_ATTRIBUTES;
    return is_there ? known->second : PathForSystem(path);
  }

  static HANDLE NewFileBeside(const std::wstring& path, std::wstring& name) {
    for (int number = 0; number < kTemporaryNames; ++number) {
      name = path + L"." + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(number);
      const HANDLE file =
          CreateFileW(name.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
      if (file != INVALID_HANDLE_VALUE) return file;
      if (GetLastError() != ERROR_FILE_EXISTS) Fail(GetLastError(), Doing::Writing);
    }
    throw runtime::Error(runtime::kPathFileAccessError);
  }

  std::unordered_map<std::string, std::wstring> places_;  // of files read and written
};

}  // namespace

std::unique_ptr<host::Files> NewFiles() {
  return std::make_unique<SystemFiles>();
}

}  // namespace corvane::toolkit_win32
