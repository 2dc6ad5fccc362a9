#include "desk/ansi_text.h"

#include "runtime/code_page.h"

namespace corvane::desk {

namespace {

constexpr char16_t kUndefinedByte = 0xF700;   // + byte: a byte without a character
constexpr char16_t kControlPicture = 0x2400;  // + byte: a control character

bool IsHiddenControl(unsigned char byte) {
  return byte < 0x20 && byte != '\t';
}

QString Decode(std::string_view bytes) {
  const std::string utf8 = runtime::AnsiCodePage().ToUtf8(bytes);
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

bool IsPlainAscii(std::string_view bytes) {
  for (unsigned char byte : bytes)
    if (byte >= 0x80 || IsHiddenControl(byte)) return false;
  return true;
}

QString Undefined(unsigned char byte) {
  return QChar(static_cast<char16_t>(kUndefinedByte + byte));
}

// The byte behind a character that stands for one; -1 for any other.
int ByteShownAs(char16_t character) {
  if (character >= kUndefinedByte + 0x80 && character <= kUndefinedByte + 0xFF) return character - kUndefinedByte;
  if (character >= kControlPicture && character < kControlPicture + 0x20) return character - kControlPicture;
  return -1;
}

bool AppendEncoded(const QString& text, std::string& bytes) {
  std::string part;
  if (!runtime::AnsiCodePage().FromUtf8(text.toStdString(), part)) return false;
  bytes += part;
  return true;
}

}  // namespace

QString ToShown(std::string_view bytes) {
  if (IsPlainAscii(bytes)) return QString::fromLatin1(bytes.data(), static_cast<qsizetype>(bytes.size()));
  const runtime::CodePage& page = runtime::AnsiCodePage();
  QString shown;
  for (size_t at = 0; at < bytes.size();) {
    const auto byte = static_cast<unsigned char>(bytes[at]);
    if (IsHiddenControl(byte)) {
      shown += QChar(static_cast<char16_t>(kControlPicture + byte));
      ++at;
      continue;
    }
    const size_t length = page.IsLead(byte) && at + 1 < bytes.size() ? 2 : 1;
    const std::string_view character = bytes.substr(at, length);
    const QString decoded = Decode(character);
    const bool defined = !decoded.contains(QChar::ReplacementCharacter) && ToBytes(decoded) == character;
    shown += defined ? decoded : Undefined(byte);
    at += defined ? length : 1;
  }
  return shown;
}

std::optional<std::string> ToBytes(const QString& shown) {
  std::string bytes;
  QString pending;
  for (const QChar character : shown) {
    const int byte = ByteShownAs(character.unicode());
    if (byte < 0) {
      pending += character;
      continue;
    }
    if (!AppendEncoded(pending, bytes)) return std::nullopt;
    pending.clear();
    bytes += static_cast<char>(byte);
  }
  if (!AppendEncoded(pending, bytes)) return std::nullopt;
  return bytes;
}

bool IsInCodePage(const QString& typed) {
  for (const QChar character : typed)
    if (ByteShownAs(character.unicode()) >= 0) return false;
  std::string bytes;
  return runtime::AnsiCodePage().FromUtf8(typed.toStdString(), bytes);
}

QString ToLabel(std::string_view bytes) {
  return Decode(bytes);
}

std::string FromLabel(const QString& text) {
  return runtime::AnsiCodePage().FromUtf8(text.toStdString());
}

}  // namespace corvane::desk
