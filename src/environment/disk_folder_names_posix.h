// FolderNames: the names in folders of this machine, found without regard to case.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace corvane::environment {

// The names in [folder] ("" is the current one), in their order; none where it cannot be read.
std::vector<std::string> NamesIn(const std::string& folder);

// A name on disk as bytes of the code page; as it is where it holds what the page does not.
std::string NameFromDisk(const std::string& name);

class FolderNames {
 public:
  // The first name in [folder] that is [name] but for its case, taken as it is or from UTF-8; null if there is none.
  // A folder is read again once it has changed.
  const std::string* Find(const std::string& folder, std::string_view name);

 private:
  struct Table {
    int64_t changed = -1;  // nanoseconds, the folder's own time; -1: not to be relied on
    int code_page = 0;
    std::vector<std::string> names;
    std::unordered_map<std::string, size_t> by_upper;
  };
  static Table Read(const std::string& folder, int64_t changed);
  std::unordered_map<std::string, Table> tables_;  // by folder
};

}  // namespace corvane::environment
