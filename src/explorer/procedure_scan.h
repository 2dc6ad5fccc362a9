// The procedure index of a module: which of its lines are rows. Needs no window.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "host/code_module.h"

namespace corvane::explorer {

enum class ProcedureKind { All, Subs, Functions, Properties, Events };
enum class Visibility { All, Public, Private, Static };

struct ProcedureFilter {
  ProcedureKind kind = ProcedureKind::All;
  Visibility visibility = Visibility::All;
  std::string name = {};  // in any case; empty for none. With one, only Private is looked at of the visibilities.
};

// Takes the number of a line that is a row, and its text.
using ProcedureSink = std::function<void(long line, const std::string& text)>;

// Hands the rows of [module] to [found], in line order. The scan knows substrings of upper-cased lines, not the
// language; what it finds and misses by that is part of it. Costs one call of the host for each line it looks at and
// three for each row; the body of a procedure that is a row is not looked at, unless there is a name filter.
void ScanProcedures(host::CodeModule& module, const ProcedureFilter& filter, const ProcedureSink& found);

// Upper-cased lines. A sub with an underscore in its name is taken for an event handler.
bool IsPlainSub(std::string_view text);
bool IsEventSub(std::string_view text);

}  // namespace corvane::explorer
