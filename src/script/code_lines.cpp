#include "script/code_lines.h"

#include "runtime/strings.h"

namespace corvane::script {

std::optional<std::string> WithoutComment(std::string_view line) {
  const std::string text = runtime::LTrim(line);
  if (text.starts_with('\'') || runtime::BeginsWith(runtime::UCase(text.substr(0, 4)), "REM ")) return std::nullopt;
  const size_t mark = line.find('\'');
  if (mark == std::string_view::npos) return std::string(line);
  const std::string_view before = line.substr(0, mark);
  const bool in_text = runtime::Holds(before, "\"") || runtime::Holds(before, "=[[");
  return std::string(in_text ? line : before);
}

bool LiteralIsOpen(std::string_view code, bool open) {
  for (;;) {
    const std::string_view mark = open ? "]]" : "=[[";
    const size_t place = code.find(mark);
    if (place == std::string_view::npos) return open;
    code.remove_prefix(place + mark.size());
    open = !open;
  }
}

std::string WithLineEnds(std::string text) {
  if (runtime::Holds(text, "\r")) return text;
  return runtime::Replace(text, "\n", runtime::kCrLf);
}

}  // namespace corvane::script
