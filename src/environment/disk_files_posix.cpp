#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <unordered_map>
#include <utility>
#include <vector>

#include "environment/disk_files.h"
#include "environment/disk_folder_names_posix.h"
#include "environment/paths.h"
#include "environment/wildcard.h"
#include "runtime/code_page.h"
#include "runtime/error.h"
#include "runtime/strings.h"

namespace corvane::environment {

namespace {

constexpr off_t kLargestFile = 0x7FFFFFFF;  // bytes: texts count theirs in 31 bits

// The names of a Windows path, "Z:" in front left out. A drive other than Z: and a share have no place on this machine:
// their paths stay as they are and are not found.
struct Names {
  bool has_place = true;
  bool absolute = false;
  std::vector<std::string> names;
};

Names Split(const std::string& windows) {
  Names result;
  size_t at = 0;
  if (windows.size() >= 2 && windows[1] == ':') {
    result.has_place = windows[0] == 'Z' || windows[0] == 'z';
    at = 2;
  } else if (windows.compare(0, 2, "\\\\") == 0) {
    result.has_place = false;
  }
  result.absolute = at < windows.size() && (windows[at] == '\\' || windows[at] == '/');
  std::string name;
  while (at < windows.size()) {
    const size_t next = BehindCharacter(windows, at);
    if (windows[at] != '\\' && windows[at] != '/') {
      name += windows.substr(at, next - at);
    } else if (!name.empty()) {
      result.names.push_back(std::exchange(name, {}));
    }
    at = next;
  }
  if (!name.empty()) result.names.push_back(std::move(name));
  return result;
}

bool Exists(const std::string& path) {
  struct stat info;
  return ::lstat(path.c_str(), &info) == 0;
}

// Finds the names of paths on disk; what was found without regard to case is remembered as long as it exists.
class NameFinder {
 public:
  // The path of these names. The folder of the last one stays known: most files of a project lie side by side.
  std::string Find(const Names& split, const std::string& windows) {
    is_plain_ = false;
    if (split.names.empty()) return split.absolute ? "/" : ".";
    if (windows.size() >= PATH_MAX) return runtime::Replace(windows, "\\", "/");  // nothing can be there
    std::string start =
        windows.ends_with(split.names.back()) ? windows.substr(0, windows.size() - split.names.back().size()) : windows;
    if (start == last_start_ && start.size() < windows.size()) {
      std::string path = last_folder_ + split.names.back();
      if (IsThere(path)) return path;
    }
    std::string folder = split.absolute ? "/" : "";
    for (size_t i = 0; i + 1 < split.names.size(); ++i) folder = Find(folder, split.names[i]) + "/";
    last_start_ = start;
    last_folder_ = folder;
    return Find(folder, split.names.back());
  }

  // The path of [name] in [folder] (ending in "/" or empty); where there is none yet, the name in UTF-8.
  std::string Find(const std::string& folder, const std::string& name) {
    std::string exact = folder + name;
    if (IsThere(exact)) return exact;
    std::string utf8 = folder + runtime::AnsiCodePage().ToUtf8(name);
    if (utf8 != exact && IsThere(utf8)) return utf8;
    if (const auto known = known_.find(utf8); known != known_.end() && IsThere(known->second)) return known->second;
    if (const std::string* other = names_.Find(folder, name)) return known_[utf8] = folder + *other;
    return IsNameOfUtf8(name) ? exact : utf8;
  }

  // What was seen of the file found last; null where it is no plain file, or was only seen in its folder.
  const struct stat* PlainFile() const { return is_plain_ ? &info_ : nullptr; }

 private:
  bool IsThere(const std::string& path) {
    const bool there = ::lstat(path.c_str(), &info_) == 0;
    is_plain_ = there && S_ISREG(info_.st_mode);
    return there;
  }

  struct stat info_ {};
  bool is_plain_ = false;
  FolderNames names_;
  std::unordered_map<std::string, std::string> known_;
  std::string last_start_, last_folder_;
};

[[noreturn]] void Fail(int error, bool reading) {
  long number = runtime::kPathFileAccessError;
  if (error == ENOENT) number = reading ? runtime::kFileNotFound : runtime::kPathNotFound;
  if (error == ENOTDIR) number = runtime::kPathNotFound;
  if (error == EACCES || error == EPERM || error == EROFS) number = runtime::kPermissionDenied;
  if (error == ENOSPC || error == EDQUOT || error == EFBIG) number = runtime::kDiskFull;
  throw runtime::Error(number);
}

// An open file; closed at the end of its life.
class Handle {
 public:
  explicit Handle(int number) : number_(number) {}
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() {
    if (number_ >= 0) ::close(number_);
  }
  int Get() const { return number_; }

 private:
  int number_;
};

class DiskFiles : public host::Files {
 public:
  std::string Read(const std::string& path) override {
    std::string native = Resolve(path);
    if (native.empty()) throw runtime::Error(runtime::kPathNotFound, "No such drive or share on this machine");
    struct stat info;
    // Opening alone may wait for good (a pipe) or do something (a device).
    if (finder_.PlainFile() == nullptr && ::stat(native.c_str(), &info) == 0) RequireRegular(info);
    Handle file(::open(native.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (file.Get() < 0 || ::fstat(file.Get(), &info) != 0) Fail(errno == ENOENT ? MissingPart(native) : errno, true);
    RequireRegular(info);
    if (info.st_size > kLargestFile) throw runtime::Error(runtime::kPathFileAccessError, "a file of 2 GB or more");
    std::string bytes(static_cast<size_t>(info.st_size), '\0');
    size_t got = 0;
    while (got < bytes.size()) {
      ssize_t part = ::read(file.Get(), bytes.data() + got, bytes.size() - got);
      if (part < 0 && errno == EINTR) continue;
      if (part < 0) Fail(errno, true);
      if (part == 0) break;
      got += static_cast<size_t>(part);
    }
    bytes.resize(got);
    places_[path] = native;
    return bytes;
  }

  // The new file stands whole and flushed beside the old one before it takes its name. A link is followed to its file.
  void Write(const std::string& path, std::string_view bytes) override {
    const std::string place = PlaceOf(path);
    if (place.empty()) throw runtime::Error(runtime::kPathNotFound, "No such drive or share on this machine");
    std::string native = place;
    if (char* real = ::realpath(native.c_str(), nullptr)) {
      native = real;
      std::free(real);
    }
    struct stat old;
    bool exists = ::stat(native.c_str(), &old) == 0;
    if (exists) RequireRegular(old);
    if (exists && ::access(native.c_str(), W_OK) != 0) Fail(EACCES, false);
    std::string temporary = native + ".XXXXXX";
    Handle file(::mkostemp(temporary.data(), O_CLOEXEC));
    if (file.Get() < 0) Fail(errno, false);
    int error = Fill(file.Get(), bytes);
    if (error == 0 && ::fchmod(file.Get(), exists ? old.st_mode & 07777 : NewFileMode()) != 0) error = errno;
    // Somebody else's file keeps its owner where this user may give it.
    if (error == 0 && exists && ::fchown(file.Get(), old.st_uid, old.st_gid) != 0) errno = 0;
    if (error == 0 && ::fsync(file.Get()) != 0) error = errno;
    if (error == 0 && ::rename(temporary.c_str(), native.c_str()) != 0) error = errno;
    if (error != 0) {
      ::unlink(temporary.c_str());
      Fail(error, false);
    }
    places_[path] = place;
    FlushFolder(native);
  }

  // By the code page of now alone: whether a name is there in a code page tells which one it was written in.
  uint32_t Attributes(const std::string& path) override {
    std::string native = Resolve(path);
    struct stat info;
    if (native.empty() || ::stat(native.c_str(), &info) != 0) return host::kNoSuchFile;
    if (S_ISDIR(info.st_mode)) return host::kDirectory;
    return ::access(native.c_str(), W_OK) == 0 ? 0u : uint32_t{host::kReadOnly};
  }

  host::FileStamp Stamp(const std::string& path) override {
    std::string native = PlaceOf(path);
    if (native.empty()) return {};
    if (const struct stat* seen = places_.count(path) ? nullptr : finder_.PlainFile()) return StampOf(*seen);
    struct stat info;
    return ::stat(native.c_str(), &info) == 0 ? StampOf(info) : host::FileStamp();
  }

  std::vector<std::string> List(const std::string& folder, const std::string& pattern) override {
    std::vector<std::string> names;
    std::string native = Resolve(folder);
    if (native.empty()) return names;
    native += '/';
    for (const std::string& name : NamesIn(native)) {
      struct stat info;
      if (::stat((native + name).c_str(), &info) != 0 || !S_ISREG(info.st_mode)) continue;
      if (std::string bytes = NameFromDisk(name); FitsWildcard(bytes, pattern)) names.push_back(bytes);
    }
    return names;
  }

 private:
  static host::FileStamp StampOf(const struct stat& info) {
    return {info.st_size, int64_t{info.st_mtim.tv_sec} * 1000000000 + info.st_mtim.tv_nsec};
  }

  // This machine's path; empty where there is none.
  std::string Resolve(const std::string& windows) {
    Names split = Split(windows);
    return split.has_place ? finder_.Find(split, windows) : std::string();
  }

  // Where a file was read from is where it is written, though another code page would find its name elsewhere by now.
  // One that was renamed since in its case alone is found again.
  std::string PlaceOf(const std::string& windows) {
    auto known = places_.find(windows);
    if (known != places_.end() && Exists(known->second)) return known->second;
    std::string found = Resolve(windows);
    return known == places_.end() || Exists(found) ? found : known->second;
  }

  static void RequireRegular(const struct stat& info) {
    if (!S_ISREG(info.st_mode))
      throw runtime::Error(runtime::kPathFileAccessError, "No file, but a folder or a device");
  }

  // ENOENT of a file in a folder that is there, ENOTDIR where the folder is missing too.
  static int MissingPart(const std::string& native) {
    size_t slash = native.rfind('/');
    return slash == std::string::npos || slash == 0 || Exists(native.substr(0, slash)) ? ENOENT : ENOTDIR;
  }

  static int Fill(int file, std::string_view bytes) {
    while (!bytes.empty()) {
      ssize_t part = ::write(file, bytes.data(), bytes.size());
      if (part < 0 && errno == EINTR) continue;
      if (part < 0) return errno;
      bytes.remove_prefix(static_cast<size_t>(part));
    }
    return 0;
  }

  static mode_t NewFileMode() {
    mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
  }

  static void FlushFolder(const std::string& native) {
    Handle folder(::open(native.substr(0, native.rfind('/') + 1).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.Get() >= 0) ::fsync(folder.Get());
  }

  NameFinder finder_;
  std::unordered_map<std::string, std::string> places_;  // of files read and written: native by Windows paths
};

}  // namespace

std::unique_ptr<host::Files> NewDiskFiles() {
  return std::make_unique<DiskFiles>();
}

std::string WindowsPath(const std::string& native) {
  std::string whole = native;
  if (native.empty() || native[0] != '/') {
    char* folder = ::getcwd(nullptr, 0);
    whole = std::string(folder == nullptr ? "" : folder) + "/" + native;
    std::free(folder);
  }
  std::vector<std::string> names;
  for (size_t at = 0; at < whole.size();) {
    size_t slash = std::min(whole.find('/', at), whole.size());
    std::string name = whole.substr(at, slash - at);
    at = slash + 1;
    if (name == ".." && !names.empty()) names.pop_back();
    if (!name.empty() && name != "." && name != "..") names.push_back(name);
  }
  std::string windows = "Z:";
  for (const std::string& name : names) windows += "\\" + name;
  return windows.size() == 2 ? "Z:\\" : windows;
}

std::string NativePath(const std::string& windows) {
  Names split = Split(windows);
  return split.has_place ? NameFinder().Find(split, windows) : windows;
}

}  // namespace corvane::environment
