#include "script/script_run.h"

#include "runtime/strings.h"
#include "script/frm_lib.h"
#include "script/marks.h"

namespace corvane::script {

namespace {

// Each takes a part of the stack.
constexpr int kDeepestScript = 8;

}  // namespace

void ScriptRun(CommandUse& use) {
  std::string& exchange = use.around.paramExchange;
  const std::string mark(1, labelMark), separator(1, listSep);
  exchange.clear();
  const size_t end = use.value.find(listSep);
  if (end != std::string::npos) exchange = runtime::Replace(use.value.substr(end) + mark, separator, mark);
  const std::string name = use.value.substr(0, end);
  if (use.lib.Depth() >= kDeepestScript) {
    use.engine.errors.ReportError("Scripts are nested too deep.");
    use.engine.state.stopFlag = true;
    return;
  }
  runtime::PassOverErrors([&] { use.lib.RunInside(name); });
  if (!exchange.empty()) {
    use.engine.state.scriptParams = exchange;
    exchange.clear();
  }
}

}  // namespace corvane::script
