#include "environment/group_file.h"

#include "environment/lookup.h"
#include "environment/statement.h"

namespace corvane::environment {

namespace {

std::string_view Trimmed(std::string_view text) {
  size_t first = text.find_first_not_of(" \t\r\n");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
}

}  // namespace

bool GroupFile::IsGroup(std::string_view bytes) {
  return StartsWithWord(bytes, "vbgroup");
}

GroupFile::GroupFile(std::string_view bytes) {
  for (size_t from = 0; from < bytes.size();) {
    size_t feed = bytes.find('\n', from);
    size_t next = feed == std::string_view::npos ? bytes.size() : feed + 1;
    lines_.emplace_back(bytes.substr(from, next - from));
    from = next;
    auto number = static_cast<long>(lines_.size());
    std::string_view line = Trimmed(lines_.back());
    if (line.empty() || number == 1) continue;
    size_t equals = line.find('=');
    std::string_view key = Trimmed(line.substr(0, equals));
    bool startup = SameName(key, "StartupProject");
    if (equals == std::string_view::npos || (!startup && !SameName(key, "Project")))
      problems_.push_back({{}, number, "neither Project nor StartupProject"});
    else
      projects_.push_back({number, std::string(Trimmed(line.substr(equals + 1))), startup});
  }
}

std::string GroupFile::Write() const {
  std::string out;
  for (const std::string& line : lines_) out += line;
  return out;
}

}  // namespace corvane::environment
