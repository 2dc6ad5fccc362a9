// MemoryFiles: host::Files that holds its files in memory, for tests: faults can be set for each path. Every folder
// exists.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "host/services.h"

namespace corvane::environment {

class MemoryFiles : public host::Files {
 public:
  void Put(const std::string& path, std::string bytes);
  void Remove(const std::string& path);
  void MakeFolder(const std::string& path);
  void FailReads(const std::string& path, long error);    // 0 heals it
  void FailWrites(const std::string& path, long error);   // as a full disk (61) or a read-only folder (70) would
  void SetReadOnly(const std::string& path, bool value);  // of a file that is there; writing it is Error 70
  long writes = 0;                                        // files written since the start

  std::string Read(const std::string& path) override;
  void Write(const std::string& path, std::string_view bytes) override;
  uint32_t Attributes(const std::string& path) override;
  host::FileStamp Stamp(const std::string& path) override;
  std::vector<std::string> List(const std::string& folder, const std::string& pattern) override;

 private:
  struct File {
    std::string path, bytes;
    int64_t modified = 0;
    bool folder = false, read_only = false;
    long read_error = 0;
  };
  File* Find(const std::string& path);
  std::map<std::string, File> files_;         // by upper-cased path
  std::map<std::string, long> write_errors_;  // by upper-cased path
  int64_t clock_ = 1;
};

}  // namespace corvane::environment
