#include "desk/shown_path.h"

#include "cli/shown_path.h"

namespace corvane::desk {

QString ShownName(std::string_view bytes) {
  return QString::fromStdString(cli::ShownName(bytes));
}

QString ShownPath(const std::string& path) {
  return QString::fromStdString(cli::ShownPath(path));
}

QString ReasonOf(const std::string& native, const runtime::Error& error) {
  return QString::fromStdString(cli::ReasonOf(native, error));
}

}  // namespace corvane::desk
