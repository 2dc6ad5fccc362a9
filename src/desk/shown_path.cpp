#include "desk/shown_path.h"

#include <QStringDecoder>
#include <ostream>

#include "desk/ansi_text.h"
#include "environment/disk_files.h"

namespace corvane::desk {

QString ShownName(std::string_view bytes) {
  QStringDecoder utf8(QStringDecoder::Utf8);
  const QString text = utf8(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
  return utf8.hasError() ? ToLabel(bytes) : text;
}

QString ShownPath(const std::string& path) {
  return ShownName(path.starts_with("Z:\\") ? environment::NativePath(path) : path);
}

void Tell(std::ostream& errors, const environment::Problem& problem) {
  errors << ShownPath(problem.file).toStdString() << ':';
  if (problem.line > 0) errors << problem.line << ':';
  errors << ' ' << ShownName(problem.reason).toStdString() << '\n';
}

void TellFailure(std::ostream& errors, const std::string& native, const host::Error& error) {
  errors << native << ": " << ReasonOf(native, error).toStdString() << '\n';
}

QString ReasonOf(const std::string& native, const host::Error& error) {
  const std::string text = error.Description(), own_name = environment::WindowsPath(native) + ": ";
  return ShownName(text.starts_with(own_name) ? text.substr(own_name.size()) : text);
}

}  // namespace corvane::desk
