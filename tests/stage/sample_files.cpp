#include "tests/stage/sample_files.h"

#include <fstream>
#include <sstream>
#include <windows.h>

#include "tests/stage/installed_library.h"

namespace corvane::stage {

void ReadSample(environment::MemoryFiles& files, const std::string& name) {
  const std::string folder = SourcePath("samples\\" + name);
  WIN32_FIND_DATAA found;
  const HANDLE search = FindFirstFileA((folder + "\\*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return;
  do {
    if (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) continue;
    std::ostringstream bytes;
    bytes << std::ifstream(folder + "\\" + found.cFileName, std::ios::binary).rdbuf();
    files.Put("C:\\Projects\\" + name + "\\" + found.cFileName, bytes.str());
  } while (FindNextFileA(search, &found));
  FindClose(search);
}

}  // namespace corvane::stage
