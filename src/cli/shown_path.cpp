#include "cli/shown_path.h"

#include <ostream>

#include "environment/disk_files.h"
#include "environment/paths.h"
#include "runtime/code_page.h"

namespace corvane::cli {

std::string ShownName(std::string_view bytes) {
  return environment::IsUtf8(bytes) ? std::string(bytes) : runtime::AnsiCodePage().ToUtf8(bytes);
}

std::string ShownPath(const std::string& path) {
  return ShownName(path.starts_with("Z:\\") ? environment::NativePath(path) : path);
}

std::string ReasonOf(const std::string& native, const host::Error& error) {
  const std::string text = error.Description(), own_name = environment::WindowsPath(native) + ": ";
  return ShownName(text.starts_with(own_name) ? text.substr(own_name.size()) : text);
}

void Tell(std::ostream& errors, const environment::Problem& problem) {
  errors << ShownPath(problem.file) << ':';
  if (problem.line > 0) errors << problem.line << ':';
  errors << ' ' << ShownName(problem.reason) << '\n';
}

void TellFailure(std::ostream& errors, const std::string& native, const host::Error& error) {
  errors << native << ": " << ReasonOf(native, error) << '\n';
}

}  // namespace corvane::cli
