// A module file is written as it was read, whatever is in it; its procedures cover its lines.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "environment/designer_part.h"
#include "environment/module_head.h"
#include "environment/module_text.h"
#include "environment/procedure_index.h"

using namespace corvane::environment;

namespace {

void Require(bool law) {
  if (!law) std::abort();
}

void RequireCover(const ModuleText& text) {
  ProcedureIndex index(text);
  long lines = index.DeclarationLines();
  for (const Procedure& procedure : index.Procedures()) {
    Require(procedure.start <= procedure.body && procedure.name_line >= procedure.body);
    Require(index.Find(index.NameOf(procedure), procedure.kind) != nullptr);
    lines += index.LineCountOf(procedure);
  }
  Require(lines == text.Count());
}

// A name that is read can be changed, and is read back.
void RequireNewName(const std::string& bytes, const ModuleHead& head) {
  std::string attributes = bytes.substr(head.designer_end, head.code_start - head.designer_end);
  std::string renamed = HeadWithName(attributes, "Renamed");
  Require(HeadWithName(renamed, "Renamed") == renamed);
  if (head.name.empty()) return;
  std::string anew = bytes.substr(0, head.designer_end) + renamed + bytes.substr(head.code_start);
  Require(ReadModuleHead(anew).name == "Renamed");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::string bytes(reinterpret_cast<const char*>(data), size);
  ModuleHead head = ReadModuleHead(bytes);
  Require(head.designer_end <= head.code_start && head.code_start <= size);
  ModuleText text(bytes, head.code_start);
  Require(text.Write() == bytes);
  Require(DesignerPart(bytes.substr(0, head.designer_end)).Write() == bytes.substr(0, head.designer_end));
  RequireCover(text);
  RequireNewName(bytes, head);

  // An edit and its contrary: what remains is what was there, but for attributes that may have gone.
  if (text.Count() == 0) return 0;
  std::string shown = text.Lines(1, text.Count());
  long line = static_cast<long>(size) % text.Count() + 1;
  text.Replace(line, 0, {"Sub Inserted()", "End Sub"}, true);
  RequireCover(text);
  text.Replace(line, 2, {}, true);
  Require(text.Lines(1, text.Count()) == shown);
  Require(text.Write() == bytes);
  return 0;
}
