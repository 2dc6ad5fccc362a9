#include "desk/check_command.h"

#include <ostream>

#include "environment/disk_files.h"
#include "environment/environment.h"
#include "environment/project.h"
#include "runtime/code_page.h"

namespace corvane::desk {

namespace {

// "Z:\a\b" is how the logic calls a file of this machine; who reads a message calls it /a/b.
std::string Shown(const std::string& path) {
  return path.starts_with("Z:\\") ? environment::NativePath(path) : runtime::AnsiCodePage().ToUtf8(path);
}

void Tell(std::ostream& errors, const environment::Problem& problem) {
  errors << Shown(problem.file) << ':';
  if (problem.line > 0) errors << problem.line << ':';
  errors << ' ' << runtime::AnsiCodePage().ToUtf8(problem.reason) << '\n';
}

// Returns the number of files that would change.
long TellChanges(std::ostream& errors, const std::vector<environment::CheckedFile>& files) {
  long changes = 0;
  for (const environment::CheckedFile& file : files) {
    if (file.identical) continue;
    ++changes;
    errors << Shown(file.path) << ": would be written otherwise from byte " << file.first_difference << " on\n";
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
    errors << path << ": " << runtime::AnsiCodePage().ToUtf8(error.Description()) << '\n';
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

}  // namespace corvane::desk
