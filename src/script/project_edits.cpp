// ProjectAccess: changing the code of a component.
#include <algorithm>

#include "runtime/strings.h"
#include "script/arguments.h"
#include "script/function_table.h"
#include "script/numbers.h"
#include "script/project_access.h"
#include "script/script_state.h"

namespace corvane::script {

using host::Ref;

namespace {

// Below the first line it goes in front of all, beyond the last one behind all.
void InsertAt(host::CodeModule& module, long line, const std::string& text) {
  module.InsertLines(std::clamp(line, 1L, module.CountOfLines() + 1), text);
}

// A number of lines that a Long does not hold is the nearest one that it does.
long LinesOf(const std::string& text) {
  constexpr double kFewest = -2147483647.0, kMost = 2147483647.0;
  const double number = NumberOf(text).value_or(0);
  if (number < kFewest || number > kMost) return static_cast<long>(std::clamp(number, kFewest, kMost));
  return LongOf(text);
}

std::string Syntax(const char* use) {
  return std::string("Syntax error. Use ") + use + " syntax";
}

}  // namespace

void ProjectAccess::InsertCode(ErrorReport& errors, const std::string& arguments) {
  const Parts parts = SplitArguments(arguments);
  if (parts.size() < 3 || !IsNumeric(parts[2])) return errors.ReportError(Syntax("InsertCode(Me,Str,nLin)"));
  if (const Ref<host::CodeModule> module = Module(errors, parts[0])) InsertAt(*module, LinesOf(parts[2]), parts[1]);
}

Ref<host::CodePane> ProjectAccess::OpenPaneOf(host::CodeModule& module) const {
  for (const Ref<host::CodePane>& pane : host::Each(targets_.Environment().CodePanes()))
    if (pane->CodeModule()->Name() == module.Name()) return pane;
  return nullptr;
}

// Without a line the place of the cursor, where there is one.
void ProjectAccess::WriteResult(ErrorReport& errors, const std::string& arguments, std::string_view result) {
  const Parts parts = SplitArguments(arguments);
  const Ref<host::CodeModule> module = Module(errors, parts[0]);
  if (!module) return;
  long line = module->CountOfLines() + 1;
  if (parts.size() > 1 && !parts[1].empty()) {
    line = LinesOf(parts[1]);
  } else if (const Ref<host::CodePane> pane = OpenPaneOf(*module)) {
    line = pane->GetSelection().start_line;
  }
  InsertAt(*module, line, std::string(result) + runtime::kCrLf);
}

void ProjectAccess::DeleteCode(ErrorReport& errors, const std::string& arguments) {
  const Parts parts = SplitArguments(arguments);
  const bool counted = parts.size() > 2 && !parts[2].empty();
  if (parts.size() < 2 || !IsNumeric(parts[1]) || (counted && !IsNumeric(parts[2])))
    return errors.ReportError(Syntax("DeleteCode(Me,nLin,nCount)"));
  const Ref<host::CodeModule> module = Module(errors, parts[0]);
  if (!module) return;
  const long first = LongOf(parts[1]);
  const long count = std::min(counted ? LinesOf(parts[2]) : 1, module->CountOfLines() - first + 1);
  if (count > 0) module->DeleteLines(first, count);
}

void ProjectAccess::ReplaceLine(ErrorReport& errors, const std::string& arguments) {
  const Parts parts = SplitArguments(arguments);
  if (parts.size() < 3) return errors.ReportError(Syntax("ReplaceLine(Me,nLin,Str)"));
  const Ref<host::CodeModule> module = Module(errors, parts[0]);
  if (!module) return;
  const long line = IsNumeric(parts[1]) ? LongOf(parts[1]) : LineOfText(*module, parts[1]);
  if (line > 0) module->ReplaceLine(line, parts[2]);
}

// In the lines of the selection, or in all where nothing is selected.
void ProjectAccess::Replace(ErrorReport& errors, const std::string& old_text, const std::string& new_text) {
  const Ref<host::CodeModule> module = Module(errors, {});
  if (!module || old_text.empty()) return;
  long first = 1, last = module->CountOfLines();
  if (const Ref<host::CodePane> pane = OpenPaneOf(*module)) {
    const host::Selection at = pane->GetSelection();
    const bool empty = at.start_line == at.end_line && at.start_column == at.end_column;
    if (!empty) first = at.start_line, last = std::min(last, at.end_line);
  }
  for (long line = last; line >= first; --line) {  // upwards, as a line may become several
    const std::string before = module->Lines(line, 1), after = runtime::Replace(before, old_text, new_text);
    if (after != before) module->ReplaceLine(line, after);
  }
}

}  // namespace corvane::script
