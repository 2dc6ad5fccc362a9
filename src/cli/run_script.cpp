#include "cli/run_script.h"

#include <ostream>

#include "cli/headless_run.h"
#include "environment/disk_files.h"
#include "runtime/code_page.h"
#include "script/script_text.h"

namespace corvane::cli {

namespace {

// False where a file was not written that should have been. What a script that was stopped left half done is not saved.
bool TellAndSave(ScriptProject& project, const ScriptOptions& options, std::ostream& errors) {
  if (options.project.empty()) return true;
  const bool collected = project.Collect(errors);
  if (!options.quiet) project.TellChanges(errors);
  if (!options.save || !collected) return collected;
  if (!Interrupts::Came()) return project.Save(errors);
  errors << "interrupted: nothing was saved\n";
  return false;
}

}  // namespace

int RunScriptFile(const std::string& file_bytes, const ScriptOptions& options, std::ostream& out,
                  std::ostream& errors) {
  if (options.code_page != 0) runtime::SetAnsiCodePage(options.code_page);
  PlainServices plain;
  const host::Services given = plain;
  if (!options.library.empty()) given.App.Path = environment::WindowsPath(options.library);
  ScriptProject project(given.Files, options.code_page);
  if (!OpenProject(project, options, errors)) return 1;
  HeadlessRun run(given, project, options, errors);
  const Interrupts interrupts;
  try {
    run.lib.RunScriptText(script::WithLineEnds(file_bytes));
  } catch (const WrongAnswer& wrong) {
    errors << wrong.what() << '\n';
    return 2;
  }
  out << run.lib.ResultText() << std::flush;
  const bool written = TellAndSave(project, options, errors);
  return written && !run.boxes.ErrorCameUp() ? 0 : 1;
}

}  // namespace corvane::cli
