// Text on the system's clipboard: bytes of the code page with CR LF. Other programs take it as plain text with LF; what
// this program put there comes back byte for byte, as long as the code page is the same.
#pragma once

#include <QMimeData>
#include <memory>
#include <optional>
#include <string>

namespace corvane::desk {

std::unique_ptr<QMimeData> MimeOfText(const std::string& text);
// What this program put there under the present code page; none for anything else.
std::optional<std::string> ExactTextOf(const QMimeData& data);
// The same, else the plain text: its line ends become CR LF, a character that the page does not hold "?".
std::string TextOf(const QMimeData& data);

}  // namespace corvane::desk
