#include "cli/script_command.h"

#include <ostream>

#include "cli/headless_run.h"
#include "cli/shown_path.h"
#include "environment/disk_files.h"
#include "runtime/code_page.h"
#include "script/script_check.h"
#include "script/script_path.h"
#include "script/script_text.h"

namespace corvane::cli {

namespace {

script::ReadInclude IncludesOf(HeadlessRun& run) {
  return [&run](const std::string& name) -> std::optional<script::IncludedFile> {
    script::IncludedFile file;
    const bool read = runtime::PassOverErrors([&] {
      const std::string path = script::IncludePath(name, run.around);
      file = {ShownPath(path), script::WithLineEnds(run.services.Files.Read(path))};
    });
    return read ? std::optional(file) : std::nullopt;
  };
}

// 1 where there is nothing that could run.
int TellNoCode(const script::ScriptSource& source, const std::string& script, std::ostream& errors) {
  if (source.failed_include) {
    const auto& [file, line] = *source.failed_include;
    errors << (file.empty() ? script : file) << ':' << line << ": the file cannot be included\n";
    return 1;
  }
  if (source.has_dialog) {
    errors << script << ": there is no CODE{ block to check\n";
    return 0;
  }
  errors << script << ":1: there is no CODE{ block\n";
  return 1;
}

}  // namespace

int CheckScriptFile(const std::string& file_bytes, const std::string& path, const ScriptOptions& options,
                    std::ostream& out, std::ostream& errors) {
  if (options.code_page != 0) runtime::SetAnsiCodePage(options.code_page);
  PlainServices plain;
  const host::Services given = plain;
  if (!options.library.empty()) given.App.Path = environment::WindowsPath(options.library);
  ScriptProject project(given.Files, options.code_page);
  if (!OpenProject(project, options, errors)) return 1;
  HeadlessRun run(given, project, options, errors);
  const script::ScriptSource source = script::ReadScriptSource(script::WithLineEnds(file_bytes), IncludesOf(run));
  const std::string name = ShownName(path);
  if (!source.has_block) return TellNoCode(source, name, errors);
  const auto places = script::CheckScript(source);
  for (const script::OddPlace& place : places)
    out << (place.at.file.empty() ? name : place.at.file) << ':' << place.at.line << ": " << place.does
        << "; write: " << place.write << '\n';
  return places.empty() ? 0 : 1;
}

}  // namespace corvane::cli
