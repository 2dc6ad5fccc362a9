#include "cli/headless_run.h"

#include <csignal>
#include <ostream>

#include "cli/shown_path.h"
#include "runtime/code_page.h"
#include "script/marks.h"

namespace corvane::cli {

namespace {

volatile std::sig_atomic_t interrupted = 0;

std::string Parameters(const ScriptOptions& options) {
  const bool begins_empty = !options.parameters.empty() && options.parameters.front().empty();
  std::string joined(begins_empty, script::labelMark);  // GETPARAMS passes over one mark at the front
  for (const std::string& parameter : options.parameters) {
    if (&parameter != &options.parameters.front()) joined += script::listSep;
    joined += runtime::AnsiCodePage().FromUtf8(parameter);
  }
  return joined;
}

}  // namespace

Interrupts::Interrupts() : before_(std::signal(SIGINT, [](int) { interrupted = 1; })) {
  interrupted = 0;
}

Interrupts::~Interrupts() {
  std::signal(SIGINT, before_);
}

bool Interrupts::Came() {
  return interrupted != 0;
}

void ScriptLoop::DoEvents() {
  if (interrupted && lib != nullptr) lib->StopMe();
}

uint32_t ScriptLoop::TickCount() {
  return MillisecondsSinceStart();
}

bool OpenProject(ScriptProject& project, const ScriptOptions& options, std::ostream& errors) {
  if (options.project.empty()) return true;
  try {
    project.Open(options.project, errors);
  } catch (const host::Error& error) {
    TellFailure(errors, options.project, error);
    return false;
  }
  if (options.component.empty()) return true;
  const std::string name = runtime::AnsiCodePage().FromUtf8(options.component);
  if (host::PassOverErrors([&] { project.Select(name); })) return true;
  errors << options.project << ": there is no component " << options.component << '\n';
  return false;
}

HeadlessRun::HeadlessRun(const host::Services& given, const ScriptProject& project, const ScriptOptions& options,
                         std::ostream& errors)
    : boxes(errors, options.json, {options.answers.begin(), options.answers.end()}, given.App.Title),
      services{given.Clipboard, boxes,          given.Settings, given.App, given.Screen, loop,
               given.Files,     given.Pictures, given.Printer},
      access(project.Environment(), services) {
  lib.Errors().SetBox([this](const auto& message, const auto& flat) { return boxes.ErrorBox(message, flat); });
  lib.ShowPlan(options.plan);
  lib.Parts().state.scriptParams = Parameters(options);
  loop.lib = &lib;
}

}  // namespace corvane::cli
