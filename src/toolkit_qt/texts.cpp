#include "toolkit_qt/texts.h"

#include <algorithm>

#include "runtime/code_page.h"

namespace corvane::toolkit_qt {
namespace {

bool IsAscii(std::string_view bytes) {
  return std::none_of(bytes.begin(), bytes.end(), [](char byte) { return (byte & 0x80) != 0; });
}

}  // namespace

QString ShownText(std::string_view bytes) {
  if (IsAscii(bytes)) return QString::fromLatin1(bytes.data(), static_cast<qsizetype>(bytes.size()));
  return QString::fromStdString(runtime::AnsiCodePage().ToUtf8(bytes));
}

std::string BytesOf(const QString& shown) {
  const std::string utf8 = shown.toStdString();
  return IsAscii(utf8) ? utf8 : runtime::AnsiCodePage().FromUtf8(utf8);
}

QString ShownLines(std::string_view bytes) {
  QString shown = ShownText(bytes);
  return shown.replace("\r\n", "\n");
}

std::string BytesOfLines(const QString& shown) {
  QString lines = shown;
  return BytesOf(lines.replace('\n', "\r\n"));
}

}  // namespace corvane::toolkit_qt
