#include "script/arguments.h"

#include "script/marks.h"

namespace corvane::script {

std::vector<std::string> SplitArguments(std::string_view list) {
  std::vector<std::string> parts;
  for (;;) {
    const size_t end = list.find(listSep);
    parts.emplace_back(list.substr(0, end));
    if (end == std::string_view::npos) return parts;
    list.remove_prefix(end + 1);
  }
}

size_t LengthOfExprPart(std::string_view text, bool at_plus) {
  int depth = 0;
  bool quoted = false;
  for (size_t at = 0; at < text.size(); ++at) {
    const char c = text[at];
    if (c == '"') quoted = !quoted;
    if (quoted) continue;
    if (c == '(') ++depth;
    if (c == ')' && --depth < 0) return at;
    if (depth == 0 && (c == ':' || c == ',' || (at_plus && (c == '&' || c == '+')))) return at;
  }
  return text.size();
}

std::string NextExprPart(std::string& text, bool at_plus) {
  const size_t end = LengthOfExprPart(text, at_plus);
  std::string part = text.substr(0, end);
  text.erase(0, end + 1);
  return part;
}

}  // namespace corvane::script
