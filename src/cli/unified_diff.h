// UnifiedDiff: how two texts differ, line by line, as the tools that apply such differences read it.
#pragma once

#include <string>
#include <string_view>

namespace corvane::cli {

// "--- old_name", "+++ new_name" and the stretches that differ, each with three lines around it; empty for equal texts.
// Lines end in LF and are put out as they are, a CR too. Bytes that hold a NUL are told to differ in one line.
// Time grows with the number of lines times the number of lines that differ; texts with more than a few thousand of
// those are compared less closely between the lines they begin and end with alike.
std::string UnifiedDiff(std::string_view old_name, std::string_view new_name, std::string_view old_text,
                        std::string_view new_text);

}  // namespace corvane::cli
