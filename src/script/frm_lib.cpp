#include "script/frm_lib.h"

#include <algorithm>

#include "runtime/strings.h"
#include "script/block_reader.h"
#include "script/library_file.h"
#include "script/marks.h"
#include "script/run_code.h"
#include "script/script_path.h"
#include "script/within_memory.h"

namespace corvane::script {

using runtime::BeginsWith;
using runtime::kCrLf;
using runtime::UCase;

namespace {

constexpr size_t kOpener = 5;  // "FORM{" and the like
constexpr char kEmptyScript[] =
    "May be current script file is empty.\r\nUse Form{...} or CODE{...} blocks for execution.";
constexpr char kShowError[] = "Show function Error. Use Form{} script as parameter.";

template <class T>
struct SetWhile {
  T& value;
  explicit SetWhile(T& value, T set) : value(value) { value = set; }
  ~SetWhile() { value = T(); }
};

}  // namespace

frmLib::frmLib(Surroundings& around)
    : around_(around),
      errors_(state_, around.services),
      outside_{around.services, around.ide, *this, around.workshop, around.objects, around.clock},
      evaluator_(state_, errors_, *this, outside_),
      pieces_(state_, errors_),
      debugger_(state_, errors_, evaluator_.expressions, around.debug, around.services.Screen),
      commands_(around, *this),
      engine_{state_,
              errors_,
              outside_,
              evaluator_.store,
              evaluator_.expressions,
              evaluator_.assignment,
              evaluator_.arrays,
              subs_,
              pieces_,
              debugger_,
              around.result,
              commands_} {}

frmLib::~frmLib() = default;

// It starts with the parameters that are on their way.
void frmLib::RunInside(const std::string& file) {
  const auto lib = std::make_unique<frmLib>(around_);
  lib->state_.scriptParams = around_.paramExchange;
  lib->depth_ = depth_ + 1;
  lib->engine_.nested_runs = engine_.nested_runs;
  lib->engine_.most_memory = std::max(engine_.most_memory / 2, kLongestText);
  lib->errors_.ShareBox(errors_);
  const SetWhile reached(inner_, lib.get());
  lib->Execute(std::string(1, labelMark) + file);
}

std::string frmLib::Execute(const std::string& title, const std::string& entry) {
  constexpr size_t kLongestIgnored = 5;
  if (running_) return {};
  state_.resultText = {};
  menu_text_.clear();
  const bool parameters = BeginsWith(title, std::string(1, paramMark));
  const std::string& passed = parameters ? title.substr(1) : entry;
  if (parameters || !entry.empty()) state_.scriptParams = around_.paramExchange = passed;
  const std::string script = parameters ? std::string() : LibraryScript(title);
  if (script.size() > kLongestIgnored) {
    const SetWhile from_library(from_library_, true);
    RunScriptText(script);
  }
  if (state_.resultText.Size() >= 2) {
    around_.services.Clipboard.Clear();
    around_.services.Clipboard.SetText(ResultText());
    return "Good thing";
  }
  return menu_text_.size() > kLongestIgnored ? menu_text_ : std::string();
}

std::string frmLib::LibraryScript(const std::string& title) {
  if (BeginsWith(title, std::string(1, labelMark))) return "FILE:" + title.substr(1) + kCrLf + '}' + kCrLf;
  try {
    return LibraryItem(title, around_.services);
  } catch (const runtime::Error& error) {
    around_.services.Prompts.MsgBox(error.Description());
    return {};
  }
}

void frmLib::RunScriptText(const std::string& script) {
  if (running_) return;
  const SetWhile running(running_, true);
  stop_asked_ = false;
  for (std::string next = script; RunOnce(next);) {
    around_.services.Loop.DoEvents();
    if (stop_asked_) return;
  }
}

// What comes from outside stays: the parameters, and the last value, which may name this script.
void frmLib::Reset() {
  around_.services.Screen.SetMousePointer(host::vbHourglass);
  engine_.yielded_at = around_.services.Loop.TickCount();
  engine_.unmeasured = engine_.measured = 0;
  ScriptState fresh;
  fresh.wizardMode = from_library_;
  fresh.planOn = plan_;
  fresh.scriptParams = std::move(state_.scriptParams);
  fresh.lastValue = std::move(state_.lastValue);
  state_ = std::move(fresh);
  debugger_.Reset();
  subs_.Clear();
  evaluator_.Clear();
  for (const std::string& constant : CommonConstants(around_.services)) evaluator_.store.AppendConstant(constant);
  around_.services.Screen.SetMousePointer(host::vbDefault);
}

bool frmLib::RunOnce(std::string& script) {
  Reset();
  script += kCrLf;
  if (UCase(script.substr(0, kOpener)) == "MENU{") {
    menu_text_ = runtime::Trim(script);
    return false;
  }
  if (!WithinMemory([&] { ReadAndShow(std::move(script)); })) {
    state_.restartFlag = false;
    state_.printText = {};
    errors_.ReportError(kOutOfMemory);
  }
  if (!state_.restartFlag) return false;
  script = runtime::Trim(state_.nextScript);
  if (!BeginsWith(UCase(script), "FILE:")) script.insert(0, "FILE:");
  return true;
}

void frmLib::ReadAndShow(std::string script) {
  BlockReader reader(engine_, around_, *this, *this);
  try {
    reader.Read(std::move(script), true);
  } catch (const runtime::Error& error) {
    state_.restartFlag = false;
    around_.services.Prompts.MsgBox(error.Description());
  }
  ShowEnd(reader.MetBlock() || reader.Failed());
}

void frmLib::ShowEnd(bool met_block) {
  host::Prompts& prompts = around_.services.Prompts;
  if (!met_block) prompts.MsgBox(kEmptyScript);
  if (state_.printText.size() > 1) prompts.MsgBox(state_.printText, host::vbOKOnly, "Print Box");
  if (!state_.wizardMode) around_.window.ShowResult(ResultText());
}

void frmLib::RunDialog(const std::string& form, bool show) {
  const bool is_block = UCase(form.substr(0, kOpener)) == "FORM{";
  const std::string block = is_block ? form + kCrLf : FormNamed(form);
  const bool ran =
      !block.empty() && runtime::PassOverErrors([&] { BlockReader(engine_, around_, *this, *this).Read(block, show); });
  if (!ran) errors_.ReportError(kShowError);
}

// The text of the kept block; empty if there is none of that name.
std::string frmLib::FormNamed(const std::string& name) const {
  const std::string key = labelMark + UCase(name) + labelMark;
  const size_t place = UCase(state_.formStore).find(key);
  if (place == std::string::npos) return {};
  const size_t begin = place + key.size();
  const size_t end = state_.formStore.find(listSep, begin);
  return state_.formStore.substr(begin, end == std::string::npos ? end : end - begin);
}

void frmLib::StopMe() {
  state_.stopFlag = stop_asked_ = true;
  if (inner_ != nullptr) inner_->StopMe();
}

std::string frmLib::ResolveScriptPath(const std::string& spec) {
  return script::ResolveScriptPath(spec, around_);
}

void frmLib::RunCode(std::string text) {
  CodeRun(engine_).Run(text);
}

}  // namespace corvane::script
