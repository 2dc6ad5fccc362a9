#include "environment/disk_folder_names_posix.h"

#include <algorithm>
#include <ctime>
#include <dirent.h>
#include <sys/stat.h>

#include "runtime/code_page.h"

namespace corvane::environment {

namespace {

constexpr int64_t kSecond = 1'000'000'000;  // in nanoseconds

// A folder that was changed this shortly before it was read may change again without another time to show for it: the
// coarsest file system counts in steps of two seconds.
constexpr int64_t kStepOfTime = 2 * kSecond;

int64_t Nanoseconds(const timespec& time) {
  return int64_t{time.tv_sec} * kSecond + time.tv_nsec;
}

int64_t ChangeOf(const std::string& folder) {
  struct stat info;
  return ::stat(folder.empty() ? "." : folder.c_str(), &info) == 0 ? Nanoseconds(info.st_mtim) : -1;
}

int64_t Now() {
  timespec now{};
  ::clock_gettime(CLOCK_REALTIME, &now);
  return Nanoseconds(now);
}

}  // namespace

std::vector<std::string> NamesIn(const std::string& folder) {
  std::vector<std::string> names;
  DIR* open = ::opendir(folder.empty() ? "." : folder.c_str());
  if (open == nullptr) return names;
  while (dirent* entry = ::readdir(open)) names.emplace_back(entry->d_name);
  ::closedir(open);
  std::sort(names.begin(), names.end());
  return names;
}

std::string NameFromDisk(const std::string& name) {
  std::string bytes;
  return runtime::AnsiCodePage().FromUtf8(name, bytes) ? bytes : name;
}

FolderNames::Table FolderNames::Read(const std::string& folder, int64_t changed) {
  const runtime::CodePage& page = runtime::AnsiCodePage();
  Table table;
  table.changed = Now() - changed > kStepOfTime ? changed : -1;
  table.code_page = page.Number();
  table.names = NamesIn(folder);
  for (size_t at = 0; at < table.names.size(); ++at) {
    table.by_upper.emplace(page.ToUpper(table.names[at]), at);
    table.by_upper.emplace(page.ToUpper(NameFromDisk(table.names[at])), at);
  }
  return table;
}

const std::string* FolderNames::Find(const std::string& folder, std::string_view name) {
  const int64_t changed = ChangeOf(folder);
  if (changed == -1) return nullptr;
  const runtime::CodePage& page = runtime::AnsiCodePage();
  Table& table = tables_[folder];
  if (table.changed != changed || table.code_page != page.Number()) table = Read(folder, changed);
  const auto found = table.by_upper.find(page.ToUpper(name));
  return found == table.by_upper.end() ? nullptr : &table.names[found->second];
}

}  // namespace corvane::environment
