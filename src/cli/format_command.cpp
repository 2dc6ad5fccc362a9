#include "cli/format_command.h"

#include <algorithm>
#include <ostream>
#include <vector>

#include "cli/format_module.h"
#include "cli/shown_path.h"
#include "cli/unified_diff.h"
#include "environment/disk_files.h"
#include "environment/module_head.h"
#include "environment/module_kinds.h"
#include "environment/paths.h"
#include "environment/project.h"
#include "runtime/code_page.h"
#include "runtime/strings.h"

namespace corvane::cli {

namespace {

bool HasExtension(const std::string& path, std::string_view extension) {
  return runtime::UCase(runtime::Right(path, static_cast<long>(extension.size()))) == extension;
}

bool IsProject(const std::string& path) {
  return HasExtension(path, ".VBP") || HasExtension(path, ".VBG");
}

class Formatter {
 public:
  Formatter(const FormatOptions& options, host::Files& files, std::ostream& out, std::ostream& errors)
      : options_(options), files_(files), out_(out), errors_(errors) {}

  int Status() const { return problems_ || (options_.check && changed_files_ > 0) ? 1 : 0; }

  void FormatProject(const std::string& path) {
    const auto environment = environment::Environment::Create(files_, nullptr, {options_.code_page});
    try {
      environment->Open(environment::WindowsPath(path));
    } catch (const host::Error& error) {
      return Fail(path, error);
    }
    for (const environment::Problem& problem : environment->Problems()) TellProblem(problem);
    folder_ = environment::FolderOf(environment::WindowsPath(path));
    // What is wrong with a module was told with the project.
    for (const std::string& module : ModulesOf(*environment)) FormatFile(module, ShownInProject(module), true);
  }

  void FormatModuleFile(const std::string& path) {
    if (options_.code_page != 0) runtime::SetAnsiCodePage(options_.code_page);
    if (HasExtension(path, ".SQL"))
      return Fail(path, host::Error(runtime::kInvalidFileFormat, "no module of Visual Basic"));
    FormatFile(environment::WindowsPath(path), path, false);
  }

 private:
  // A module that several projects of a group share is one file.
  static std::vector<std::string> ModulesOf(const environment::Environment& environment) {
    std::vector<std::string> paths;
    for (const auto& project : environment.Projects())
      for (const auto& module : project->Modules()) {
        if (!environment::HasCode(module->Type())) continue;
        const auto same = [&](const std::string& path) { return environment::SamePath(path, module->Path()); };
        if (std::find_if(paths.begin(), paths.end(), same) == paths.end()) paths.push_back(module->Path());
      }
    return paths;
  }

  std::string ShownInProject(const std::string& path) const {
    return runtime::Replace(ShownName(environment::RelativePath(folder_, path)), "\\", "/");
  }

  void FormatFile(const std::string& path, const std::string& name, bool of_project) {
    try {
      const std::string bytes = files_.Read(path);
      const environment::ModuleHead head = ReadHead(bytes);
      if (!head.problems.empty()) return of_project ? void() : TellProblems(head, name);
      const FormattedModule formatted = FormatModule(bytes, head.code_start);
      if (formatted.bytes != bytes) ++changed_files_;
      if (options_.check || options_.write) return Report(path, name, formatted, bytes);
      if (!of_project) {
        out_ << formatted.bytes;
        return;
      }
      const runtime::CodePage& page = runtime::AnsiCodePage();
      out_ << UnifiedDiff(name, name, page.ToUtf8(bytes), page.ToUtf8(formatted.bytes));
    } catch (const host::Error& error) {
      Fail(name, error);
    }
  }

  // The marks of a conflict behind it are a problem too.
  static environment::ModuleHead ReadHead(const std::string& bytes) {
    if (bytes.find('\0') != std::string::npos) throw host::Error(runtime::kInvalidFileFormat, "holds a NUL byte");
    environment::ModuleHead head = environment::ReadModuleHead(bytes);
    environment::FindConflictMark(bytes, head.code_start, head.problems);
    return head;
  }

  void TellProblems(const environment::ModuleHead& head, const std::string& name) {
    for (environment::Problem problem : head.problems) {
      problem.file = name;
      TellProblem(problem);
    }
  }

  void Report(const std::string& path, const std::string& name, const FormattedModule& formatted,
              const std::string& bytes) {
    if (formatted.bytes == bytes) return;
    if (options_.write) files_.Write(path, formatted.bytes);
    out_ << name << ": " << formatted.changed_lines << (formatted.changed_lines == 1 ? " line" : " lines")
         << (options_.write ? " indented\n" : " to indent\n");
  }

  void TellProblem(const environment::Problem& problem) {
    problems_ = true;
    Tell(errors_, problem);
  }

  void Fail(const std::string& name, const host::Error& error) {
    problems_ = true;
    TellFailure(errors_, name, error);
  }

  const FormatOptions& options_;
  host::Files& files_;
  std::ostream& out_;
  std::ostream& errors_;
  std::string folder_;
  bool problems_ = false;
  long changed_files_ = 0;
};

}  // namespace

int RunFormatCommand(const std::string& path, const FormatOptions& options, host::Files& files, std::ostream& out,
                     std::ostream& errors) {
  Formatter formatter(options, files, out, errors);
  if (IsProject(path))
    formatter.FormatProject(path);
  else
    formatter.FormatModuleFile(path);
  return formatter.Status();
}

}  // namespace corvane::cli
