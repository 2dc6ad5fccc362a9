// CountingModule: a code module that counts what the logic asks of it.
#pragma once

#include <map>
#include <string>

#include "host/code_module.h"

namespace corvane::tests {

class CountingModule : public host::CodeModule {
 public:
  explicit CountingModule(host::Ref<host::CodeModule> module) : module_(std::move(module)) {}

  std::map<std::string, long> calls;  // by member
  long fail_procedure_calls = 0;      // Error number of ProcOfLine and its kin while it is not 0

  long Total() const {
    long total = 0;
    for (const auto& [name, count] : calls) total += count;
    return total;
  }

  std::string Name() override { return Count("Name"), module_->Name(); }
  long CountOfLines() override { return Count("CountOfLines"), module_->CountOfLines(); }
  long CountOfDeclarationLines() override {
    return Count("CountOfDeclarationLines"), module_->CountOfDeclarationLines();
  }
  std::string Lines(long start, long count) override { return Count("Lines"), module_->Lines(start, count); }
  void InsertLines(long line, const std::string& text) override {
    Count("InsertLines");
    module_->InsertLines(line, text);
  }
  void DeleteLines(long start, long count) override {
    Count("DeleteLines");
    module_->DeleteLines(start, count);
  }
  void ReplaceLine(long line, const std::string& text) override {
    Count("ReplaceLine");
    module_->ReplaceLine(line, text);
  }
  std::string ProcOfLine(long line, host::ProcKind& kind) override {
    return CountProcedure("ProcOfLine"), module_->ProcOfLine(line, kind);
  }
  long ProcStartLine(const std::string& name, host::ProcKind kind) override {
    return CountProcedure("ProcStartLine"), module_->ProcStartLine(name, kind);
  }
  long ProcBodyLine(const std::string& name, host::ProcKind kind) override {
    return CountProcedure("ProcBodyLine"), module_->ProcBodyLine(name, kind);
  }
  long ProcCountLines(const std::string& name, host::ProcKind kind) override {
    return CountProcedure("ProcCountLines"), module_->ProcCountLines(name, kind);
  }
  bool Find(const std::string& target, long& start_line, long& start_column, long& end_line, long& end_column,
            bool whole_word, bool match_case, bool pattern_search) override {
    Count("Find");
    return module_->Find(target, start_line, start_column, end_line, end_column, whole_word, match_case,
                         pattern_search);
  }
  host::Ref<host::CodePane> CodePane() override { return Count("CodePane"), module_->CodePane(); }

 private:
  void Count(const std::string& name) { ++calls[name]; }
  void CountProcedure(const std::string& name) {
    Count(name);
    if (fail_procedure_calls != 0) throw host::Error(fail_procedure_calls);
  }
  host::Ref<host::CodeModule> module_;
};

}  // namespace corvane::tests
