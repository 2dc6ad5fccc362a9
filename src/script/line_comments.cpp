#include "script/line_comments.h"

#include <algorithm>

#include "runtime/strings.h"
#include "script/marks.h"

namespace corvane::script {

namespace {

using std::string_view;

bool IsComment(string_view line) {
  const std::string start = runtime::UCase(runtime::LTrim(line).substr(0, 4));
  return start == "REM " || runtime::BeginsWith(start, "'");
}

// Where a double quote or a literal stands before it, a "'" may be text.
string_view WithoutComment(string_view line) {
  const size_t comment = line.find('\'');
  if (comment == string_view::npos) return line;
  const string_view before = line.substr(0, comment);
  return runtime::Holds(before, "\"") || runtime::Holds(before, "=[[") ? line : before;
}

}  // namespace

std::optional<string_view> LineComments::CodeOf(string_view line) {
  if (!literal_open_) {
    if (IsComment(line)) return std::nullopt;
    line = WithoutComment(line);
  }
  Heed(line);
  return line;
}

void LineComments::Heed(string_view line) {
  for (size_t at = 0;; at += 2) {
    at = line.find(literal_open_ ? "]]" : "=[[", at);
    if (at == string_view::npos) return;
    literal_open_ = !literal_open_;
  }
}

std::string CodeOfLines(string_view text) {
  LineComments comments;
  const size_t first = std::min(text.find(runtime::kCrLf), text.size());
  std::string code(text.substr(0, first));
  comments.Begin(code);
  for (text.remove_prefix(first); !text.empty();) {
    text.remove_prefix(2);
    const size_t end = std::min(text.find(runtime::kCrLf), text.size());
    if (const auto line = comments.CodeOf(text.substr(0, end))) (code += lineMark) += *line;
    text.remove_prefix(end);
  }
  return code + ':';
}

}  // namespace corvane::script
