// A project file is written as it was read; an edit of one component leaves the other lines.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "environment/project_file.h"

using namespace corvane::environment;

namespace {

void Require(bool law) {
  if (!law) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::string bytes(reinterpret_cast<const char*>(data), size);
  ProjectFile file(bytes);
  Require(file.Write() == bytes);
  if (!file.Refusal().empty()) return 0;
  for (const ComponentLine& line : file.Components()) {
    Require(file.LineNumberOf(line.id) > 0);
    file.RenameComponent(line.id, line.name);
    file.SetPath(line.id, line.path);
  }
  Require(file.Write() == bytes);
  long added = file.AddComponent(KindOf(corvane::host::ComponentType::StdModule), "Added", "Added.bas");
  Require(file.Write().size() > bytes.size());
  file.RemoveLine(added);
  Require(file.Write().size() >= bytes.size());
  return 0;
}
