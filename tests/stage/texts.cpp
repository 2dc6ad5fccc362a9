#include "tests/stage/texts.h"

#include "runtime/code_page.h"

namespace corvane::stage {

std::wstring Wide(std::string_view ansi) {
  const std::string utf8 = runtime::AnsiCodePage().ToUtf8(ansi);
  const int size = static_cast<int>(utf8.size());
  std::wstring wide(static_cast<size_t>(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0)), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, wide.data(), static_cast<int>(wide.size()));
  return wide;
}

std::string Ansi(std::wstring_view wide) {
  const int size = static_cast<int>(wide.size());
  const int needed = WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, nullptr, 0, nullptr, nullptr);
  std::string utf8(static_cast<size_t>(needed), '\0');
  WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, utf8.data(), needed, nullptr, nullptr);
  return runtime::AnsiCodePage().FromUtf8(utf8);
}

BSTR NewBstr(std::string_view ansi) {
  const std::wstring wide = Wide(ansi);
  return SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
}

std::string FromBstr(BSTR text) {
  return text ? Ansi({text, SysStringLen(text)}) : std::string();
}

}  // namespace corvane::stage
