#include "environment/memory_files.h"

#include "environment/wildcard.h"
#include "runtime/code_page.h"
#include "runtime/error.h"

namespace corvane::environment {

namespace {

std::string KeyOf(const std::string& path) {
  return runtime::AnsiCodePage().ToUpper(path);
}

std::string WithoutEndingSlash(std::string path) {
  if (!path.empty() && path.back() == '\\') path.pop_back();
  return path;
}

}  // namespace

void MemoryFiles::Put(const std::string& path, std::string bytes) {
  File& file = files_[KeyOf(path)];
  file.path = path;
  file.bytes = std::move(bytes);
  file.modified = ++clock_;
}

void MemoryFiles::Remove(const std::string& path) {
  files_.erase(KeyOf(path));
}

void MemoryFiles::MakeFolder(const std::string& path) {
  Put(WithoutEndingSlash(path), {});
  Find(WithoutEndingSlash(path))->folder = true;
}

void MemoryFiles::FailReads(const std::string& path, long error) {
  File& file = files_[KeyOf(path)];
  if (file.path.empty()) file.path = path;
  file.read_error = error;
}

// A path that is no file yet fails too: the fault waits for the first write.
void MemoryFiles::FailWrites(const std::string& path, long error) {
  write_errors_[KeyOf(path)] = error;
}

void MemoryFiles::SetReadOnly(const std::string& path, bool value) {
  if (File* file = Find(path)) file->read_only = value;
}

MemoryFiles::File* MemoryFiles::Find(const std::string& path) {
  auto found = files_.find(KeyOf(path));
  return found == files_.end() ? nullptr : &found->second;
}

std::string MemoryFiles::Read(const std::string& path) {
  File* file = Find(path);
  if (file == nullptr) throw runtime::Error(runtime::kFileNotFound);
  if (file->read_error != 0) throw runtime::Error(file->read_error);
  if (file->folder) throw runtime::Error(runtime::kPathFileAccessError);
  return file->bytes;
}

void MemoryFiles::Write(const std::string& path, std::string_view bytes) {
  if (auto fault = write_errors_.find(KeyOf(path)); fault != write_errors_.end() && fault->second != 0)
    throw runtime::Error(fault->second);
  File* file = Find(path);
  if (file != nullptr && file->folder) throw runtime::Error(runtime::kPathFileAccessError);
  if (file != nullptr && file->read_only) throw runtime::Error(runtime::kPermissionDenied);
  std::string kept_spelling = file == nullptr ? path : file->path;
  Put(kept_spelling, std::string(bytes));
  ++writes;
}

uint32_t MemoryFiles::Attributes(const std::string& path) {
  File* file = Find(WithoutEndingSlash(path));
  if (file == nullptr) return host::kNoSuchFile;
  return (file->folder ? uint32_t{host::kDirectory} : 0) | (file->read_only ? uint32_t{host::kReadOnly} : 0);
}

host::FileStamp MemoryFiles::Stamp(const std::string& path) {
  File* file = Find(path);
  if (file == nullptr) return {};
  return {static_cast<int64_t>(file->bytes.size()), file->modified};
}

std::vector<std::string> MemoryFiles::List(const std::string& folder, const std::string& pattern) {
  std::vector<std::string> names;
  std::string start = KeyOf(WithoutEndingSlash(folder) + "\\");
  for (auto& [key, file] : files_) {
    if (file.folder || key.compare(0, start.size(), start) != 0) continue;
    std::string name = file.path.substr(start.size());
    if (name.find('\\') == std::string::npos && FitsWildcard(name, pattern)) names.push_back(name);
  }
  return names;
}

}  // namespace corvane::environment
