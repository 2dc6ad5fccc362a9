// `corvane inspect`: what the system makes of a file. `lines`: as a list stores it; `flat`: as the script engine
// translates it.
#pragma once

#include <ostream>
#include <string>

namespace corvane::cli {

// Assigns the file's text to a fresh list with sGrid [mode] ("vb", "sql", "text" or any other) and ListRole
// [list_role], and writes each stored line as JSON: {"level":33,"text":"..."}, all marks in the text. [code_page]
// decides case and the way to UTF-8; 0 leaves the one in force. Returns 0.
int InspectLines(const std::string& file_bytes, const std::string& mode, int list_role, int code_page,
                 std::ostream& out);

// Takes the file's text as one piece of script code over many lines, cleans and translates it with fresh counters, and
// writes one line of JSON: {"flat":"...","messages":["..."]}, all marks in the flat program. Each error is answered
// with OK, so that the translation goes on. Returns 0.
int InspectFlat(const std::string& file_bytes, int code_page, std::ostream& out);

// Whether text of that Windows code page can be read.
bool IsKnownCodePage(int number);

}  // namespace corvane::cli
