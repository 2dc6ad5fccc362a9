// ProjectAccess: reading the code of a component, and showing it.
#include <algorithm>

#include "runtime/strings.h"
#include "script/arguments.h"
#include "script/function_table.h"
#include "script/project_access.h"
#include "script/script_state.h"

namespace corvane::script {

using host::Ref;

namespace {

std::string PartAt(const std::vector<std::string>& parts, size_t place) {
  return place < parts.size() ? runtime::Trim(parts[place]) : std::string();
}

// Kinds in the order in which a name is looked for.
constexpr host::ProcKind kKinds[] = {host::ProcKind::Proc, host::ProcKind::Get, host::ProcKind::Let,
                                     host::ProcKind::Set};

host::ProcKind KindOfProcedure(host::CodeModule& module, const std::string& name) {
  for (const host::ProcKind kind : kKinds)
    if (host::PassOverErrors([&] { module.ProcBodyLine(name, kind); })) return kind;
  throw host::Error(runtime::kProcedureNotDefined);
}

}  // namespace

Ref<host::CodeModule> ProjectAccess::Module(ErrorReport& errors, const std::string& name) const {
  auto module = targets_.Module(runtime::Trim(name));
  if (!module)
    errors.ReportError(std::string("Component does not exists.") + runtime::kCrLf + (name.empty() ? "Me" : name));
  return module;
}

std::string ProjectAccess::ReadCode(ErrorReport& errors, const std::string& arguments) {
  const Parts parts = SplitArguments(arguments);
  const Ref<host::CodeModule> module = Module(errors, parts[0]);
  if (!module) return {};
  const std::string line = PartAt(parts, 1), count = PartAt(parts, 2);
  const long first = line.empty() ? 1 : LongOf(line), there = module->CountOfLines() - first + 1;
  const long wanted = count.empty() ? there : std::min(LongOf(count), there);
  return wanted < 1 ? std::string() : module->Lines(first, wanted);
}

std::string ProjectAccess::CodeLines(ErrorReport& errors, const std::string& arguments) {
  return ReadCode(errors, arguments);
}

std::string ProjectAccess::Declaration(ErrorReport& errors, const std::string& arguments) {
  const Ref<host::CodeModule> module = Module(errors, SplitArguments(arguments)[0]);
  const long count = module ? module->CountOfDeclarationLines() : 0;
  return count < 1 ? std::string() : module->Lines(1, count);
}

long ProjectAccess::LineOfText(host::CodeModule& module, const std::string& text) {
  long line = 1, column = 1, end_line = -1, end_column = -1;
  if (text.empty() || !module.Find(text, line, column, end_line, end_column, false, false, false)) return 0;
  return line;
}

std::string ProjectAccess::FindLine(ErrorReport& errors, const std::string& arguments) {
  const Parts parts = SplitArguments(arguments);
  const Ref<host::CodeModule> module = Module(errors, parts[0]);
  if (!module) return {};
  return runtime::CStr(parts.size() < 2 ? 0 : LineOfText(*module, parts[1]));
}

std::string ProjectAccess::ProcLines(ErrorReport& errors, const std::string& arguments) {
  const Parts parts = SplitArguments(arguments);
  const std::string name = PartAt(parts, 1);
  if (name.empty()) {
    errors.ReportError("There is not the name of procedure.");
    return {};
  }
  const Ref<host::CodeModule> module = Module(errors, parts[0]);
  if (!module) return {};
  const host::ProcKind kind = KindOfProcedure(*module, name);
  const long body = module->ProcBodyLine(name, kind), start = module->ProcStartLine(name, kind);
  return runtime::CStr(body) + '|' + runtime::CStr(module->ProcCountLines(name, kind) - (body - start));
}

std::string ProjectAccess::GetSelection(ErrorReport& errors, const std::string& component) {
  const Ref<host::CodeModule> module = Module(errors, SplitArguments(component)[0]);
  if (!module) return {};
  const host::Selection at = module->CodePane()->GetSelection();
  std::string text;
  for (const long place : {at.start_line, at.start_column, at.end_line, at.end_column})
    text += (text.empty() ? "" : "|") + runtime::CStr(place);
  return text;
}

bool ProjectAccess::GoCodeLine(ErrorReport& errors, const std::string& arguments) {
  const Parts parts = SplitArguments(arguments);
  const Ref<host::CodeModule> module = Module(errors, parts[0]);
  if (!module) return false;
  const std::string text = PartAt(parts, 1);
  const long line = std::max(1L, text.empty() ? 1 : LongOf(text));
  const Ref<host::CodePane> pane = module->CodePane();
  pane->Show();
  pane->SetSelection({line, 1, line, 1});
  return true;
}

void ProjectAccess::Open(ErrorReport& errors, const std::string& component) {
  if (const Ref<host::CodeModule> module = Module(errors, SplitArguments(component)[0])) module->CodePane()->Show();
}

}  // namespace corvane::script
