#include "cli/check_command.h"

#include <ostream>

#include "cli/shown_path.h"
#include "environment/disk_files.h"
#include "environment/environment.h"
#include "environment/project.h"

namespace corvane::cli {

namespace {

// Returns the number of files that would change.
long TellChanges(std::ostream& errors, const std::vector<environment::CheckedFile>& files) {
  long changes = 0;
  for (const environment::CheckedFile& file : files) {
    if (file.identical) continue;
    ++changes;
    errors << ShownPath(file.path) << ": would be written otherwise from byte " << file.first_difference << " on\n";
  }
  return changes;
}

}  // namespace

CheckStatus RunCheckCommand(const std::string& path, int code_page, host::Files& files, std::ostream& out,
                            std::ostream& errors) {
  auto environment = environment::Environment::Create(files, nullptr, {code_page});
  try {
    environment->Open(environment::WindowsPath(path));
  } catch (const host::Error& error) {
    TellFailure(errors, path, error);
    return kNotUnderstood;
  }
  std::vector<environment::CheckedFile> checked = environment::CheckFiles(*environment, files);
  for (const environment::Problem& problem : environment->Problems()) Tell(errors, problem);
  long changes = TellChanges(errors, checked);
  out << checked.size() << " files read and written, " << changes << " with a difference, "
      << environment->Problems().size() << " things not understood\n";
  if (changes > 0) return kBytesWouldChange;
  return environment->Problems().empty() ? kUnderstood : kNotUnderstood;
}

}  // namespace corvane::cli
