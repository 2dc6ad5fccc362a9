// Texts of the logic (bytes of the ANSI code page) and of the screen.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace corvane::toolkit_qt {

QString ShownText(std::string_view bytes);
std::string BytesOf(const QString& shown);

// Of a text of several lines: CR LF in bytes, one line feed on the screen.
QString ShownLines(std::string_view bytes);
std::string BytesOfLines(const QString& shown);

}  // namespace corvane::toolkit_qt
