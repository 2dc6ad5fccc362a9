// GenerateProject: a Visual Basic project of any size, made from the modules of a small one by copying and renaming.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace corvane::bench {

struct GeneratedProject {
  std::string path;                // of the .vbp
  std::vector<std::string> files;  // the modules, designer parts included
  uint64_t bytes = 0;              // of the modules
  long lines = 0;                  // of the modules
};

// Copies the modules of [sample] (a .vbp) into [folder] again and again, with every module's name numbered wherever it
// stands as a word, until they have at least [lines] lines. Files that belong to a module (.frx) come with it.
GeneratedProject GenerateProject(const std::string& sample, const std::string& folder, long lines);

}  // namespace corvane::bench
