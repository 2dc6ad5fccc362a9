#include "toolkit_win32/file_names.h"

#include <algorithm>

#include "runtime/code_page.h"
#include "toolkit_win32/texts.h"
#include "toolkit_win32/win.h"

namespace corvane::toolkit_win32 {
namespace {

constexpr size_t kLongestPlainPath = 247;  // characters: of a folder that a file of 8.3 still fits in

bool IsAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char byte) { return (byte & 0x80) == 0; });
}

// Empty where [bytes] are no UTF-8.
std::wstring FromValidUtf8(std::string_view bytes) {
  const int size = static_cast<int>(bytes.size());
  std::wstring text(bytes.size(), L'\0');
  const int length = MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, bytes.data(), size, text.data(), size);
  text.resize(static_cast<size_t>(std::max(0, length)));
  return text;
}

std::string NameFromSystem(std::wstring_view name) {
  std::string bytes = BytesOf(name);
  return ShownText(bytes) == name ? bytes : ToUtf8(name);
}

bool Exists(const std::wstring& path) {
  return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

// Behind the name in [path] that begins at [at]. Bytes beyond ASCII that are UTF-8 up to the next ASCII character are
// stepped over at once: the second byte of a character of the page may look like "\".
size_t EndOfName(std::string_view path, size_t at) {
  while (at < path.size() && path[at] != '\\' && path[at] != '/') {
    size_t end = at;
    while (end < path.size() && (path[end] & 0x80) != 0) ++end;
    const bool lead = runtime::AnsiCodePage().IsLead(static_cast<unsigned char>(path[at]));
    at = end > at && !FromValidUtf8(path.substr(at, end - at)).empty() ? end
                                                                       : std::min(path.size(), at + (lead ? 2 : 1));
  }
  return at;
}

std::wstring WithNames(std::string_view path) {
  std::wstring result;
  for (size_t at = 0; at < path.size();) {
    const size_t end = EndOfName(path, at);
    const std::string_view name = path.substr(at, end - at);
    const std::wstring in_utf8 = IsAscii(name) ? std::wstring() : FromValidUtf8(name), in_page = ShownText(name);
    const bool is_page = in_utf8.empty() || (!Exists(result + in_utf8) && Exists(result + in_page));
    result += is_page ? in_page : in_utf8;
    if (end < path.size()) result += L'\\';
    at = end + 1;
  }
  return result;
}

std::wstring Whole(const std::wstring& path) {
  const DWORD room = GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
  std::wstring whole(room, L'\0');
  const DWORD length = GetFullPathNameW(path.c_str(), room, whole.data(), nullptr);
  whole.resize(length < room ? length : 0);
  return whole.empty() ? path : whole;
}

}  // namespace

std::string PathFromSystem(std::wstring_view path) {
  std::string result;
  while (true) {
    const size_t slash = path.find(L'\\');
    result += NameFromSystem(path.substr(0, slash));
    if (slash == std::wstring_view::npos) return result;
    result += '\\';
    path.remove_prefix(slash + 1);
  }
}

std::wstring PathForSystem(std::string_view path) {
  const std::wstring whole = Whole(IsAscii(path) ? ShownText(path) : WithNames(path));
  if (whole.size() <= kLongestPlainPath || whole.starts_with(L"\\\\?\\")) return whole;
  return whole.starts_with(L"\\\\") ? L"\\\\?\\UNC" + whole.substr(1) : L"\\\\?\\" + whole;
}

}  // namespace corvane::toolkit_win32
