#include "environment/open_code_module.h"

#include <algorithm>

#include "environment/doubtful_points.h"
#include "environment/module_find.h"
#include "runtime/error.h"

namespace corvane::environment {

using host::ProcKind;

void OpenCodeModule::RequireLine(long line) const {
  if (line < 1 || line > module_->Text().Count()) throw host::Error(runtime::kSubscriptOutOfRange);
}

std::string OpenCodeModule::Lines(long start, long count) {
  if (module_->Text().Count() == 0 && start == 1 && !doubtful::kLinesOfEmptyModuleFail) return {};
  RequireLine(start);
  return module_->Text().Lines(start, count);
}

void OpenCodeModule::InsertLines(long line, const std::string& text) {
  if (line < 1) throw host::Error(runtime::kSubscriptOutOfRange);
  long behind = module_->Text().Count() + 1;
  std::string padded = doubtful::kInsertBehindTheEndPads ? std::string(std::max(line - behind, 0L), '\n') + text : text;
  module_->Change(std::min(line, behind), 0, &padded, false);
}

void OpenCodeModule::DeleteLines(long start, long count) {
  RequireLine(start);
  long rest = module_->Text().Count() - start + 1;
  if (count < 0 || (count > rest && doubtful::kDeletePastTheEndFails)) throw host::Error(runtime::kSubscriptOutOfRange);
  if (count > 0) module_->Change(start, std::min(count, rest), nullptr, false);
}

void OpenCodeModule::ReplaceLine(long line, const std::string& text) {
  RequireLine(line);
  module_->Change(line, 1, &text, false);
}

std::string OpenCodeModule::ProcOfLine(long line, ProcKind& kind) {
  RequireLine(line);
  const Procedure* procedure = module_->Procedures().At(line);
  kind = procedure == nullptr ? ProcKind::Proc : procedure->kind;
  return procedure == nullptr ? std::string() : std::string(module_->Procedures().NameOf(*procedure));
}

const Procedure& OpenCodeModule::Require(const std::string& name, ProcKind kind) const {
  const Procedure* procedure = module_->Procedures().Find(name, kind);
  if (procedure == nullptr) throw host::Error(runtime::kProcedureNotDefined);
  return *procedure;
}

long OpenCodeModule::ProcStartLine(const std::string& name, ProcKind kind) {
  return Require(name, kind).start;
}
long OpenCodeModule::ProcBodyLine(const std::string& name, ProcKind kind) {
  return Require(name, kind).body;
}

long OpenCodeModule::ProcCountLines(const std::string& name, ProcKind kind) {
  return module_->Procedures().LineCountOf(Require(name, kind));
}

bool OpenCodeModule::Find(const std::string& target, long& start_line, long& start_column, long& end_line,
                          long& end_column, bool whole_word, bool match_case, bool pattern_search) {
  if (match_case && pattern_search && doubtful::kCaseAndPatternFail) throw host::Error(runtime::kInvalidProcedureCall);
  if (start_line < 1) throw host::Error(runtime::kSubscriptOutOfRange);
  if (doubtful::kFindBehindTheEndFails) RequireLine(start_line);
  FoundPlace place;
  FindRequest request{target, start_line, start_column, end_line, end_column, whole_word, match_case, pattern_search};
  if (!module_->FindIn(request, place)) return false;
  start_line = end_line = place.line;
  start_column = place.column;
  end_column = place.column + place.length;
  return true;
}

host::Ref<host::CodePane> OpenCodeModule::CodePane() {
  Pane& pane = module_->PaneOf();
  pane.OpenOnDemand();
  return pane.shared_from_this();
}

}  // namespace corvane::environment
