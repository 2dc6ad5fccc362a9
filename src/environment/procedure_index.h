// ProcedureIndex: where the procedures of a module's text start and end. Built in one pass; stale when the text
// changes.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "environment/module_text.h"
#include "host/code_module.h"

namespace corvane::environment {

struct Procedure {
  uint32_t start = 0;  // lines count from 1
  uint32_t body = 0;
  uint32_t name_line = 0, name_at = 0;  // line and offset of the name
  uint16_t name_length = 0;
  host::ProcKind kind = host::ProcKind::Proc;
};

class ProcedureIndex {
 public:
  explicit ProcedureIndex(const ModuleText& text);

  long DeclarationLines() const { return declaration_lines_; }
  const std::vector<Procedure>& Procedures() const { return procedures_; }

  // The procedure that holds [line]; null in the declarations.
  const Procedure* At(long line) const;
  // By name, without case: the first one; null if there is none.
  const Procedure* Find(std::string_view name, host::ProcKind kind) const;
  std::string_view NameOf(const Procedure& procedure) const;
  long LineCountOf(const Procedure& procedure) const;

 private:
  struct ByName {
    uint64_t hash = 0;
    uint32_t position = 0;
  };
  uint64_t HashOf(std::string_view name, host::ProcKind kind) const;
  const ModuleText* text_;
  std::vector<Procedure> procedures_;
  mutable std::vector<ByName> by_name_;  // built by the first Find
  long declaration_lines_ = 0;
};

}  // namespace corvane::environment
