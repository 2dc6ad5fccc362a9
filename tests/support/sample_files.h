// A folder of the samples as files in memory, so that its project opens the same on every system.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>

#include "environment/memory_files.h"
#include "tests/support/golden.h"

namespace corvane::tests {

// Puts each file of samples/[folder] below "Z:\samples\[folder]"; names must be ASCII. Throws where one cannot be read.
inline void PutSample(const std::string& folder, environment::MemoryFiles& files) {
  const auto root = std::filesystem::path(CORVANE_SOURCE_DIR) / "samples";
  for (const auto& entry : std::filesystem::recursive_directory_iterator(root / folder)) {
    if (!entry.is_regular_file()) continue;
    std::string name = entry.path().lexically_relative(root).generic_string();
    for (char& c : name)
      if (c == '/') c = '\\';
    const auto bytes = golden::ReadFile(entry.path());
    if (!bytes) throw std::runtime_error("cannot read " + entry.path().string());
    files.Put("Z:\\samples\\" + name, *bytes);
  }
}

}  // namespace corvane::tests
