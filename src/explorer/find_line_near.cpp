#include "explorer/find_line_near.h"

#include <cstdlib>

#include "explorer/rows.h"
#include "runtime/error.h"
#include "runtime/strings.h"

namespace corvane::explorer {

using namespace runtime;

namespace {

struct Bounds {
  long limit = 200;
  bool bounded = false;
  long stopAt = 0;
};

bool HoldsHeaderWord(std::string_view upper) {
  return BeginsWith(upper, "SUB ") || Holds(upper, "FUNCTION ") || Holds(upper, "PROPERTY ");
}

Bounds BoundsFor(host::CodeModule& module, long line, std::string_view text, std::string_view title) {
  Bounds bounds;
  host::ProcKind kind;
  std::string name = module.ProcOfLine(line, kind);
  if (Len(name) <= 1) return bounds;
  long body = module.ProcBodyLine(name, kind);
  if (Trim(module.Lines(body, 1)) == Trim(title)) {
    bounds.bounded = true;
    bounds.stopAt = body;
    return bounds;
  }
  std::string upper = UCase(text);
  // A column kept where lines are kept: it is only looked at when the search is bounded, and then it is 0.
  bounds.stopAt = InStr(upper, " SUB ");
  if (bounds.stopAt == 0 && !HoldsHeaderWord(upper)) {
    bounds.limit = 10;
    bounds.bounded = true;
  }
  return bounds;
}

bool EndsProcedure(const std::string& line) {
  std::string code = UCase(line.substr(0, line.find('\'')));
  return Holds(code, "END SUB") || Holds(code, "END FUNCTION") || Holds(code, "END PROPERTY");
}

long SearchForward(host::CodeModule& module, long line, long count, const std::string& needle, const Bounds& bounds) {
  long tries = 0;
  for (long i = line; i <= count; ++i) {
    ++tries;
    std::string text = module.Lines(i, 1);
    if (Trim(text) == needle) return i;
    if (tries > bounds.limit || (bounds.bounded && EndsProcedure(text))) break;
  }
  return 0;
}

long SearchBackward(host::CodeModule& module, long line, long count, const std::string& needle, const Bounds& bounds) {
  long tries = 0;
  for (long i = line - 1; i >= 1; --i) {
    ++tries;
    if (i <= count && Trim(module.Lines(i, 1)) == needle) return i;
    if (tries > bounds.limit || (bounds.bounded && i <= bounds.stopAt)) break;
  }
  return 0;
}

}  // namespace

std::string CodeOfRow(std::string_view text) {
  std::string needle = Trim(text);
  if (long mark = InStr(needle, kLabelEnd); mark > 0) {
    std::string rest = Mid(needle, mark + 5);
    if (Mid(rest, 4, 3) == "   ")
      needle = Mid(rest, 7);
    else if (long blank = InStr(needle, " "); blank > mark)
      needle = rest;
  }
  if (long tail = InStr(needle, Space(10) + kTailMark); tail > 0) needle = Left(needle, tail - 1);
  return Trim(needle);
}

long FindLineNear(host::CodeModule& module, long line, std::string_view text, std::string_view title) {
  Bounds bounds;
  // A line behind the module's end belongs to no procedure.
  if (line >= 0) PassOverErrors([&] { bounds = BoundsFor(module, line, text, title); });
  line = std::labs(line);
  std::string needle = CodeOfRow(text);
  long count = module.CountOfLines();
  if (long found = SearchForward(module, line, count, needle, bounds)) return found;
  if (long found = SearchBackward(module, line, count, needle, bounds)) return found;
  return line;
}

}  // namespace corvane::explorer
