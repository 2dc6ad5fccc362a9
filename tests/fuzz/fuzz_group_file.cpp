// A group file is written as it was read.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "environment/group_file.h"

using corvane::environment::GroupFile;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::string bytes(reinterpret_cast<const char*>(data), size);
  GroupFile file(bytes);
  if (file.Write() != bytes) std::abort();
  for (const GroupFile::ProjectLine& line : file.Projects())
    if (line.line < 1) std::abort();
  return 0;
}
