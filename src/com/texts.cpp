#include "com/texts.h"

#include <new>

namespace corvane::com {

std::string TextOf(BSTR text) {
  return ToAnsi(std::wstring_view(text ? text : L"", SysStringLen(text)));
}

BSTR NewBstr(std::string_view ansi) {
  const std::wstring wide = ToWide(ansi);
  BSTR text = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
  if (!text) throw std::bad_alloc();
  return text;
}

}  // namespace corvane::com
