// ProcedureIndex: where the procedures of a module's text start and end. Built in one pass; stale when the text
// changes, but for edits that it can follow.
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
  bool behind_end = false;  // starts directly behind the end of the one above; else at its header
  host::ProcKind kind = host::ProcKind::Proc;
};

class ProcedureIndex {
 public:
  explicit ProcedureIndex(const ModuleText& text);

  // To be called before [count] lines from [start] are replaced by [lines]. Whether the index holds for the new text:
  // so it does when these lines stand behind the first header and neither begin, end nor enclose anything.
  bool Follow(long start, long count, const std::vector<std::string_view>& lines);

  long DeclarationLines() const { return declaration_lines_; }
  const std::vector<Procedure>& Procedures() const { return procedures_; }

  // The procedure that holds [line]; null in the declarations.
  const Procedure* At(long line) const;
  // By name, without case: the first one; null if there is none.
  const Procedure* Find(std::string_view name, host::ProcKind kind) const;
  std::string_view NameOf(const Procedure& procedure) const;
  long LineCountOf(const Procedure& procedure) const;

 private:
  bool IsBehindFirstHeader(long line) const;
  void Shift(long start, int64_t by);
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
