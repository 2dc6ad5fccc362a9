#include "toolkit_win32/edit_keys.h"

#include <string>

namespace corvane::toolkit_win32 {
namespace {

constexpr WPARAM kControlA = 1, kControlBackspace = 127;

bool IsBlank(wchar_t character) {
  return character == L' ' || character == L'\t';
}
bool EndsLine(wchar_t character) {
  return character == L'\r' || character == L'\n';
}

// Where the word before [caret] begins, blanks behind it counted in. An end of a line is one of its own.
size_t WordBefore(const std::wstring& text, size_t caret) {
  size_t at = caret;
  while (at > 0 && EndsLine(text[at - 1]) && caret - at < 2) --at;
  if (at < caret) return at;
  while (at > 0 && IsBlank(text[at - 1])) --at;
  while (at > 0 && !IsBlank(text[at - 1]) && !EndsLine(text[at - 1])) --at;
  return at;
}

void TakeWord(HWND edit) {
  if (GetWindowLongPtrW(edit, GWL_STYLE) & ES_READONLY) return;
  DWORD from = 0, to = 0;
  SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
  if (from == to) {
    std::wstring text(static_cast<size_t>(GetWindowTextLengthW(edit)), L'\0');
    text.resize(static_cast<size_t>(GetWindowTextW(edit, text.data(), static_cast<int>(text.size()) + 1)));
    if (to > text.size()) return;
    SendMessageW(edit, EM_SETSEL, WordBefore(text, to), static_cast<LPARAM>(to));
  }
  SendMessageW(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L""));
}

}  // namespace

bool UseEditKey(HWND edit, WPARAM character) {
  if (character == kControlBackspace) {
    TakeWord(edit);
    return true;
  }
  if (character != kControlA) return false;
  SendMessageW(edit, EM_SETSEL, 0, -1);
  return true;
}

}  // namespace corvane::toolkit_win32
