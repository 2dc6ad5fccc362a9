// What the formatter, the commenting commands and the printer make of a line. [stored] is a line with its marks,
// [level] the level at its start.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace corvane::codelist {

// Steps of indent. After the eleventh level it begins again at the left edge, as the colours do.
long IndentOf(std::string_view stored, long level);

bool IsCommentLine(std::string_view stored);

// Blanks, two a step; none for a comment line, which keeps its place.
std::optional<size_t> FormattedIndent(std::string_view stored, long level);
// The line with that indent.
std::optional<std::string> Formatted(std::string_view stored, long level);

std::string Commented(std::string_view clean);
// None for what is no comment line, or prose or decoration rather than code that was commented out.
std::optional<std::string> Uncommented(std::string_view clean);

// Four blanks a step.
std::string Printed(std::string_view stored, long level);

}  // namespace corvane::codelist
