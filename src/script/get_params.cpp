#include "script/get_params.h"

#include "runtime/strings.h"
#include "script/marks.h"

namespace corvane::script {

void GetParamsInto(const std::string& names, const ScriptState& state, VariableStore& store) {
  if (names.empty() || state.scriptParams.empty()) return;
  const std::string mark(1, labelMark);
  std::string fields = runtime::Replace(state.scriptParams, std::string(1, listSep), mark) + mark;
  if (fields[0] == labelMark) fields.erase(0, 1);
  for (size_t from = 0; from <= names.size();) {
    const size_t comma = std::min(names.find(',', from), names.size());
    const size_t end = fields.find(labelMark);
    if (end == std::string::npos) return;
    const std::string name = runtime::UCase(runtime::Trim(names.substr(from, comma - from)));
    const long cell = store.CellForStoring(name, state.subDepth);
    if (cell > 0) store.Store(cell, Text(fields.substr(0, end)));
    fields.erase(0, end + 1);
    from = comma + 1;
  }
}

}  // namespace corvane::script
