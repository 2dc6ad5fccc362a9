#include "desk/data_folder.h"

#include <cstdlib>

namespace corvane::desk {

namespace fs = std::filesystem;

fs::path DataFolder() {
  std::error_code ignored;
  if (const char* named = std::getenv("CORVANE_DATA"); named && *named) return fs::absolute(named, ignored);
  const fs::path folder = fs::read_symlink("/proc/self/exe", ignored).parent_path();
  for (const char* place : {"../data", "../../data", "../share/corvane"}) {
    const fs::path candidate = (folder / place).lexically_normal();
    if (fs::exists(candidate / "corvane.bmp", ignored)) return candidate;
  }
  return folder;
}

}  // namespace corvane::desk
