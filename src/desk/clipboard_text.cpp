#include "desk/clipboard_text.h"

#include "desk/ansi_text.h"
#include "runtime/code_page.h"

namespace corvane::desk {

namespace {

// The bytes mean something in their code page only.
QString ExactFormat() {
  return QString("application/x-corvane-text-%1").arg(runtime::AnsiCodePage().Number());
}

}  // namespace

std::unique_ptr<QMimeData> MimeOfText(const std::string& text) {
  auto data = std::make_unique<QMimeData>();
  data->setText(ToLabel(text).replace("\r\n", "\n"));
  data->setData(ExactFormat(), QByteArray(text.data(), static_cast<qsizetype>(text.size())));
  return data;
}

std::optional<std::string> ExactTextOf(const QMimeData& data) {
  if (!data.hasFormat(ExactFormat())) return std::nullopt;
  return data.data(ExactFormat()).toStdString();
}

std::string TextOf(const QMimeData& data) {
  if (auto exact = ExactTextOf(data)) return *exact;
  QString text = data.text();
  text.replace("\r\n", "\n").replace('\r', '\n');
  return FromLabel(text.replace('\n', "\r\n"));
}

}  // namespace corvane::desk
