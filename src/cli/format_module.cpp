#include "cli/format_module.h"

#include "codelist/formatter.h"
#include "codelist/line_analysis.h"
#include "codelist/markup.h"
#include "environment/statement.h"
#include "runtime/strings.h"

namespace corvane::cli {

namespace {

constexpr char kQuote = '"', kApostrophe = '\'';

// Whether [line] ends inside a comment: one that begins with an apostrophe, or with Rem where a statement may begin.
bool EndsInComment(std::string_view line) {
  bool quoted = false, at_statement = true;
  for (size_t at = 0; at < line.size(); ++at) {
    const char c = line[at];
    if (c == kQuote) quoted = !quoted;
    if (quoted) continue;
    if (c == kApostrophe) return true;
    if (at_statement && environment::StartsWithWord(line.substr(at), "rem")) return true;
    at_statement = c == ':' || (at_statement && (c == ' ' || c == '\t' || (c >= '0' && c <= '9')));
  }
  return false;
}

// Goes through the lines of a module as the formatter does, one procedure after the other.
class Indenter {
 public:
  // The line with the indent that it should have. [line] holds no line end.
  std::string Next(std::string_view line) {
    const std::string_view text = environment::WithoutIndent(line);
    const bool continued = std::exchange(continued_, environment::IsContinued(line));
    const bool inside_comment = continued && in_comment_;
    in_comment_ = inside_comment || EndsInComment(text);
    const bool attribute = !continued && environment::IsAttributeLine(text);
    if (text.empty() || attribute || inside_comment) return std::string(line);
    const auto indent = Pass(text);
    return indent ? std::string(*indent, ' ').append(text) : std::string(line);
  }

 private:
  // The blanks in front of [text]; none where it keeps its place. Its levels count for the lines behind it.
  std::optional<size_t> Pass(std::string_view text) {
    state_.endOfProc = false;
    const std::string_view stored = codelist::AnalyseLine(codelist::Language::Vb, state_, text, buffer_);
    const long level = std::exchange(level_, codelist::EncodeLevel(level_ + codelist::SumOfMarks(stored)));
    if (state_.endOfProc) level_ = codelist::BaseLevel;
    return codelist::FormattedIndent(stored, level);
  }

  codelist::AnalysisState state_;
  codelist::LineBuffer buffer_;
  long level_ = codelist::BaseLevel;
  bool continued_ = false, in_comment_ = false;  // the line before goes on here; and ends in a comment
};

}  // namespace

FormattedModule FormatModule(std::string_view bytes, size_t code_start) {
  FormattedModule result{std::string(bytes.substr(0, code_start)), 0};
  result.bytes.reserve(bytes.size() + bytes.size() / 8);
  Indenter indenter;
  for (size_t at = code_start; at < bytes.size();) {
    const size_t feed = std::min(bytes.find('\n', at), bytes.size());
    const size_t end = feed > at && feed < bytes.size() && bytes[feed - 1] == '\r' ? feed - 1 : feed;
    const size_t next = std::min(feed + 1, bytes.size());
    const std::string_view line = bytes.substr(at, end - at);
    const std::string formatted = indenter.Next(line);
    if (formatted != line) ++result.changed_lines;
    result.bytes.append(formatted).append(bytes.substr(end, next - end));
    at = next;
  }
  return result;
}

}  // namespace corvane::cli
