#include "cli/pending_files.h"

#include <algorithm>

#include "environment/paths.h"
#include "environment/wildcard.h"
#include "runtime/error.h"

namespace corvane::cli {

std::string PendingFiles::OnDisk(const Change& change) const {
  return change.is_new ? std::string() : disk_.Read(change.path);
}

PendingFiles::Change* PendingFiles::Find(const std::string& path) {
  const auto found = std::find_if(changes_.begin(), changes_.end(),
                                  [&](const Change& change) { return environment::SamePath(change.path, path); });
  return found == changes_.end() ? nullptr : &*found;
}

std::string PendingFiles::Read(const std::string& path) {
  const Change* change = Find(path);
  return change ? change->bytes : disk_.Read(path);
}

void PendingFiles::Write(const std::string& path, std::string_view bytes) {
  Change* change = Find(path);
  if (!change) {
    changes_.push_back({path, {}, disk_.Attributes(path) == host::kNoSuchFile});
    change = &changes_.back();
  }
  change->bytes = bytes;
}

uint32_t PendingFiles::Attributes(const std::string& path) {
  const Change* change = Find(path);
  return change && change->is_new ? 0 : disk_.Attributes(path);
}

// A pending file has the time of the one on the disk: nobody else writes to it here.
host::FileStamp PendingFiles::Stamp(const std::string& path) {
  host::FileStamp stamp = disk_.Stamp(path);
  if (const Change* change = Find(path)) stamp.size = static_cast<int64_t>(change->bytes.size());
  return stamp;
}

std::vector<std::string> PendingFiles::List(const std::string& folder, const std::string& pattern) {
  std::vector<std::string> names = disk_.List(folder, pattern);
  for (const Change& change : changes_) {
    const std::string name = environment::FileNameOf(change.path);
    const std::string beside = folder.empty() || folder.back() == '\\' ? folder : folder + '\\';
    if (change.is_new && environment::SamePath(environment::FolderOf(change.path), beside) &&
        environment::FitsWildcard(name, pattern))
      names.push_back(name);
  }
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace corvane::cli
