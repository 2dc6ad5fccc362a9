#include "cli/script_surroundings.h"

#include <ctime>
#include <filesystem>

#include "environment/disk_files.h"
#include "runtime/dates.h"

namespace corvane::cli {

double DeletingPlatform::Shell(const std::string& program) {
  boxes_.ErrorBox("SHELL starts no program on the command line: " + program, {});
  throw runtime::Error(runtime::kFileNotFound);
}

// It tells no failure where there are windows either.
void DeletingPlatform::Open(const std::string& file) {
  boxes_.MsgBox("EXECUTE opens no file on the command line: " + file, host::vbExclamation, {});
}

void DeletingPlatform::Kill(const std::string& path) {
  std::error_code problem;
  if (std::filesystem::remove(environment::NativePath(path), problem)) return;
  throw runtime::Error(problem ? runtime::kPathFileAccessError : runtime::kFileNotFound);
}

double LocalClock::Now() {
  const std::time_t now = std::time(nullptr);
  const std::tm& local = *std::localtime(&now);
  runtime::DateParts parts;
  parts.year = local.tm_year + 1900L;
  parts.month = local.tm_mon + 1;
  parts.day = local.tm_mday;
  parts.hour = local.tm_hour;
  parts.minute = local.tm_min;
  parts.second = local.tm_sec;
  return runtime::DateOf(parts);
}

}  // namespace corvane::cli
