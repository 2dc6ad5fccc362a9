// ScriptProject: the project that a script on the command line works on. What the script changes stays in memory until
// it is saved.
#pragma once

#include <iosfwd>
#include <memory>
#include <string>

#include "cli/pending_files.h"
#include "environment/environment.h"

namespace corvane::cli {

class ScriptProject {
 public:
  ScriptProject(host::Files& disk, int code_page);

  // [path] is one of this machine. Throws host::Error where it cannot be opened; what is not understood of it is told
  // on [errors].
  void Open(const std::string& path, std::ostream& errors);
  // The component that is "Me". Throws Error 9 where there is none of that name.
  void Select(const std::string& component);
  const std::shared_ptr<environment::Environment>& Environment() const { return environment_; }

  // What to save, put into memory. False, with lines on [errors], where a file could not be written.
  bool Collect(std::ostream& errors);
  // The differences between the files on the disk and those in memory, in UTF-8.
  void TellChanges(std::ostream& out) const;
  // Writes them to the disk. False, with a line on [errors], where one cannot be written; those behind it stay.
  bool Save(std::ostream& errors);

 private:
  bool NameNewFiles(std::ostream& errors);
  std::string ShownName(const std::string& path) const;

  PendingFiles files_;
  std::shared_ptr<environment::Environment> environment_;
  std::string folder_;  // of what was opened
};

}  // namespace corvane::cli
