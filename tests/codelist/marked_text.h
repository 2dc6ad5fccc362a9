// Marked lines in tests: "\2" is written as "^" and a level mark as "{" (up) or "}" (down), so that a line reads well:
// "^If{ a }^Then{ b}". Lines of tests hold none of these characters themselves.
#pragma once

#include <string>

#include "codelist/line_analysis.h"
#include "runtime/strings.h"

namespace corvane::codelist {

inline std::string Readable(std::string_view marked) {
  std::string text = runtime::Replace(runtime::Replace(marked, "/+\\", "{"), "/-\\", "}");
  return runtime::Replace(runtime::Replace(text, "\x02", "^"), "\x06", "~");
}

inline std::string Analysed(Language language, AnalysisState& state, std::string_view line) {
  LineBuffer buffer;
  state.endOfProc = false;
  return Readable(AnalyseLine(language, state, line, buffer));
}

inline std::string Vb(std::string_view line) {
  AnalysisState state;
  return Analysed(Language::Vb, state, line);
}

inline std::string Sql(std::string_view line) {
  AnalysisState state;
  return Analysed(Language::Sql, state, line);
}

}  // namespace corvane::codelist
