// The desk's text is UTF-16, the logic's is bytes of the ANSI code page. Every byte has its own character here, so that
// a line that passes through a code pane comes back as it was.
#pragma once

#include <QString>
#include <optional>
#include <string>
#include <string_view>

namespace corvane::desk {

// For showing: bytes the code page does not define become private-use characters, control characters (but the tab)
// their pictures, so that each stays one visible character of one line.
QString ToShown(std::string_view bytes);
// Back from what ToShown gives, and from what the user typed; nothing when a character is not in the code page.
std::optional<std::string> ToBytes(const QString& shown);
// Whether the user may bring [typed] into a text: all its characters are in the code page, line ends and tabs too.
bool IsInCodePage(const QString& typed);

// For captions and messages: CR LF stays a line end, undefined bytes are shown as a replacement character.
QString ToLabel(std::string_view bytes);
// From names and answers the user typed: what the code page lacks becomes "?".
std::string FromLabel(const QString& text);

}  // namespace corvane::desk
