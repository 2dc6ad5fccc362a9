#include "toolkit_win32/texts.h"

#include <algorithm>

#include "runtime/code_page.h"
#include "toolkit_win32/win.h"

namespace corvane::toolkit_win32 {
namespace {

template <class Text>
bool IsAscii(const Text& text) {
  return std::none_of(text.begin(), text.end(), [](auto each) { return (each & ~0x7F) != 0; });
}

UINT PageNumber() {
  return static_cast<UINT>(runtime::AnsiCodePage().Number());
}

}  // namespace

int SystemCodePage() {
  DWORD of_language = 0;
  GetLocaleInfoW(LOCALE_SYSTEM_DEFAULT, LOCALE_IDEFAULTANSICODEPAGE | LOCALE_RETURN_NUMBER,
                 reinterpret_cast<LPWSTR>(&of_language), sizeof of_language / sizeof(wchar_t));
  return KnownCodePage(GetACP(), of_language);
}

int KnownCodePage(unsigned of_process, unsigned of_language) {
  const runtime::CodePage page(static_cast<int>(of_process));
  return static_cast<int>(page.Number() == static_cast<int>(of_process) ? of_process : of_language);
}

std::wstring FromUtf8(std::string_view utf8) {
  const int size = static_cast<int>(utf8.size());
  std::wstring shown(static_cast<size_t>(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0)), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, shown.data(), static_cast<int>(shown.size()));
  return shown;
}

std::string ToUtf8(std::wstring_view shown) {
  const int size = static_cast<int>(shown.size());
  const int needed = WideCharToMultiByte(CP_UTF8, 0, shown.data(), size, nullptr, 0, nullptr, nullptr);
  std::string utf8(static_cast<size_t>(needed), '\0');
  WideCharToMultiByte(CP_UTF8, 0, shown.data(), size, utf8.data(), needed, nullptr, nullptr);
  return utf8;
}

// By the system's own tables: a byte that the page leaves undefined comes back as it was.
std::wstring ShownText(std::string_view bytes) {
  if (IsAscii(bytes)) return {bytes.begin(), bytes.end()};
  const int size = static_cast<int>(bytes.size());
  std::wstring shown(bytes.size(), L'\0');
  shown.resize(static_cast<size_t>(MultiByteToWideChar(PageNumber(), 0, bytes.data(), size, shown.data(), size)));
  return shown;
}

std::string BytesOf(std::wstring_view shown) {
  if (IsAscii(shown)) {
    std::string bytes(shown.size(), '\0');
    std::transform(shown.begin(), shown.end(), bytes.begin(), [](wchar_t each) { return static_cast<char>(each); });
    return bytes;
  }
  const int length = static_cast<int>(shown.size());
  std::string bytes(shown.size() * 2, '\0');
  bytes.resize(static_cast<size_t>(WideCharToMultiByte(PageNumber(), WC_NO_BEST_FIT_CHARS, shown.data(), length,
                                                       bytes.data(), length * 2, "?", nullptr)));
  return bytes;
}

}  // namespace corvane::toolkit_win32
