#include "codelist/formatter.h"

#include <algorithm>

#include "codelist/markup.h"
#include "runtime/strings.h"

namespace corvane::codelist {

namespace {

constexpr long kLevelsOfIndent = 11;
constexpr size_t kFormattedStep = 2, kPrintedStep = 4;  // blanks
constexpr char kComment = '\'';

std::string_view WithoutLeadingBlanks(std::string_view text) {
  return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

std::string Indented(std::string_view stored, size_t blanks) {
  return std::string(blanks, ' ') + runtime::LTrim(CleanText(stored));
}

// Code begins with a letter of the language, with a member of With, or goes on from the line above.
bool LooksLikeCode(std::string_view candidate) {
  const std::string trimmed = runtime::UCase(runtime::Trim(candidate));
  if (trimmed.empty()) return true;
  const char first = trimmed[0];
  return (first >= 'A' && first <= 'Z') || std::string_view(".'+&").find(first) != std::string_view::npos;
}

}  // namespace

long IndentOf(std::string_view stored, long level) {
  const std::string_view text = WithoutLeadingBlanks(stored);
  long indent = level % kLevelsOfIndent;
  if (runtime::BeginsWith(text, kLevelDown)) --indent;
  if (runtime::BeginsWith(text, kLevelUp)) ++indent;
  return std::max(indent, 0L);
}

bool IsCommentLine(std::string_view stored) {
  const std::string_view text = WithoutLeadingBlanks(stored);
  return !text.empty() && text[0] == kComment;
}

std::optional<size_t> FormattedIndent(std::string_view stored, long level) {
  if (IsCommentLine(stored)) return std::nullopt;
  return static_cast<size_t>(IndentOf(stored, level)) * kFormattedStep;
}

std::optional<std::string> Formatted(std::string_view stored, long level) {
  const auto blanks = FormattedIndent(stored, level);
  return blanks ? std::optional(Indented(stored, *blanks)) : std::nullopt;
}

std::string Commented(std::string_view clean) {
  return kComment + std::string(clean);
}

std::optional<std::string> Uncommented(std::string_view clean) {
  if (!IsCommentLine(clean)) return std::nullopt;
  const std::string_view candidate = clean.substr(clean.find(kComment) + 1);
  if (!LooksLikeCode(candidate)) return std::nullopt;
  return std::string(candidate);
}

std::string Printed(std::string_view stored, long level) {
  if (IsCommentLine(stored)) return runtime::Trim(stored);
  return Indented(stored, static_cast<size_t>(IndentOf(stored, level)) * kPrintedStep);
}

}  // namespace corvane::codelist
