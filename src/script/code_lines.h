// Lines of code that runs over many lines, as the block reader joins them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace corvane::script {

// The line without its comment; nothing for a line that is one. A "'" behind a string or a "=[[" is no comment here.
std::optional<std::string> WithoutComment(std::string_view line);

// Whether a "=[[" literal is open behind [code], if [open] tells whether one is before it.
bool LiteralIsOpen(std::string_view code, bool open);

// A text whose lines end in LF alone with CR LF; others as they are.
std::string WithLineEnds(std::string text);

}  // namespace corvane::script
