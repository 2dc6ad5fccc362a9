// OpenCodeModule: the host's CodeModule of an open module.
#pragma once

#include <memory>

#include "environment/open_module.h"

namespace corvane::environment {

class OpenCodeModule : public host::CodeModule {
 public:
  explicit OpenCodeModule(std::shared_ptr<OpenModule> module) : module_(std::move(module)) {}

  std::string Name() override { return module_->Name(); }
  long CountOfLines() override { return module_->Text().Count(); }
  long CountOfDeclarationLines() override { return module_->Procedures().DeclarationLines(); }
  std::string Lines(long start, long count) override;
  void InsertLines(long line, const std::string& text) override;
  void DeleteLines(long start, long count) override;
  void ReplaceLine(long line, const std::string& text) override;
  std::string ProcOfLine(long line, host::ProcKind& kind) override;
  long ProcStartLine(const std::string& name, host::ProcKind kind) override;
  long ProcBodyLine(const std::string& name, host::ProcKind kind) override;
  long ProcCountLines(const std::string& name, host::ProcKind kind) override;
  bool Find(const std::string& target, long& start_line, long& start_column, long& end_line, long& end_column,
            bool whole_word, bool match_case, bool pattern_search) override;
  host::Ref<host::CodePane> CodePane() override;

 private:
  void RequireLine(long line) const;                                             // Error 9
  const Procedure& Require(const std::string& name, host::ProcKind kind) const;  // Error 35
  std::shared_ptr<OpenModule> module_;
};

}  // namespace corvane::environment
