// PendingFiles: files that are read from the disk and written to memory, until they are committed.
#pragma once

#include <string>
#include <vector>

#include "host/services.h"

namespace corvane::cli {

class PendingFiles : public host::Files {
 public:
  explicit PendingFiles(host::Files& disk) : disk_(disk) {}

  struct Change {
    std::string path, bytes;
    bool is_new = false;  // no such file on the disk
  };
  // In the order in which they were written first.
  const std::vector<Change>& Changes() const { return changes_; }
  // The bytes of the file on the disk; empty where there is none.
  std::string OnDisk(const Change& change) const;
  void Commit(const Change& change) { disk_.Write(change.path, change.bytes); }

  std::string Read(const std::string& path) override;
  void Write(const std::string& path, std::string_view bytes) override;
  uint32_t Attributes(const std::string& path) override;
  host::FileStamp Stamp(const std::string& path) override;
  std::vector<std::string> List(const std::string& folder, const std::string& pattern) override;

 private:
  Change* Find(const std::string& path);

  host::Files& disk_;
  std::vector<Change> changes_;
};

}  // namespace corvane::cli
