#include "cli/data_folder.h"

#include <cstdlib>

namespace corvane::cli {

namespace fs = std::filesystem;

fs::path ProgramFolder() {
  std::error_code ignored;
  return fs::read_symlink("/proc/self/exe", ignored).parent_path();
}

fs::path DataFolder() {
  std::error_code ignored;
  if (const char* named = std::getenv("CORVANE_DATA"); named && *named) return fs::absolute(named, ignored);
  fs::path folder = ProgramFolder();
  for (const char* place : {"../data", "../../data", "../share/corvane"}) {
    fs::path candidate = (folder / place).lexically_normal();
    if (fs::exists(candidate / "corvane.bmp", ignored)) return candidate;
  }
  return folder;
}

}  // namespace corvane::cli
