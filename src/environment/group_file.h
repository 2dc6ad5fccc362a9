// GroupFile: the lines of a .vbg, read only.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "environment/environment.h"

namespace corvane::environment {

class GroupFile {
 public:
  struct ProjectLine {
    long line = 0;  // from 1
    std::string path;
    bool startup = false;
  };
  explicit GroupFile(std::string_view bytes);

  static bool IsGroup(std::string_view bytes);  // begins with VBGROUP
  const std::vector<ProjectLine>& Projects() const { return projects_; }
  const std::vector<Problem>& Problems() const { return problems_; }  // without a file name
  std::string Write() const;

 private:
  std::vector<std::string> lines_;  // with their line ends
  std::vector<ProjectLine> projects_;
  std::vector<Problem> problems_;
};

}  // namespace corvane::environment
