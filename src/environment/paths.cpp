#include "environment/paths.h"

#include <algorithm>
#include <vector>

#include "environment/lookup.h"
#include "environment/statement.h"
#include "runtime/code_page.h"

namespace corvane::environment {

namespace {

constexpr size_t kLongestName = 255;  // bytes

unsigned char ByteAt(std::string_view text, size_t at) {
  return at < text.size() ? static_cast<unsigned char>(text[at]) : 0;
}

// Bytes of the UTF-8 character beyond ASCII at [at]; 0 where there is none.
size_t Utf8Length(std::string_view text, size_t at) {
  unsigned char first = ByteAt(text, at), second = ByteAt(text, at + 1);
  size_t length = first >= 0xC2 && first <= 0xDF   ? 2
                  : (first & 0xF0) == 0xE0         ? 3
                  : first >= 0xF0 && first <= 0xF4 ? 4
                                                   : 0;
  for (size_t i = 1; i < length; ++i)
    if ((ByteAt(text, at + i) & 0xC0) != 0x80) return 0;
  bool overlong = (first == 0xE0 && second < 0xA0) || (first == 0xF0 && second < 0x90);
  bool no_character = (first == 0xED && second > 0x9F) || (first == 0xF4 && second > 0x8F);
  return overlong || no_character ? 0 : length;
}

// Bytes of the longest character of a text of UTF-8, 1 of an empty one; 0 where it is none.
size_t LongestOfUtf8(std::string_view text) {
  size_t longest = 1;
  for (size_t at = 0, length; at < text.size(); at += length) {
    length = ByteAt(text, at) < 0x80 ? 1 : Utf8Length(text, at);
    if (length == 0) return 0;
    longest = std::max(longest, length);
  }
  return longest;
}

// The end of the characters beyond ASCII from [at] on; [at] itself where they are no UTF-8.
size_t EndOfUtf8(std::string_view text, size_t at) {
  size_t end = at;
  while (ByteAt(text, end) >= 0x80) {
    size_t length = Utf8Length(text, end);
    if (length == 0 || end - at > kLongestName) return at;
    end += length;
  }
  return end;
}

// A name of UTF-8 in the code page, where it comes back as it was and nobody takes it for UTF-8 again.
std::string NameInCodePage(std::string_view name) {
  const runtime::CodePage& page = runtime::AnsiCodePage();
  std::string bytes;
  bool is_held = IsNameOfUtf8(name) && page.FromUtf8(name, bytes) && page.ToUtf8(bytes) == name;
  return is_held && !IsNameOfUtf8(bytes) ? bytes : std::string(name);
}

// Whether the ends of two paths tell them apart, without a look at characters beyond ASCII.
bool EndsDiffer(std::string_view a, std::string_view b) {
  for (; !a.empty() && !b.empty(); a.remove_suffix(1), b.remove_suffix(1)) {
    if (static_cast<unsigned char>(a.back()) >= 0x80 || static_cast<unsigned char>(b.back()) >= 0x80) return false;
    if (!SameName(a.substr(a.size() - 1), b.substr(b.size() - 1))) return true;
  }
  return a.empty() != b.empty();
}

// The last "\" or "/"; npos where there is none.
size_t LastSlash(std::string_view path) {
  size_t last = std::string_view::npos;
  for (size_t i = 0; i < path.size(); i = BehindCharacter(path, i))
    if (path[i] == '\\' || path[i] == '/') last = i;
  return last;
}

// What ".." cannot leave: "C:\", "\\server\share\", "\", or nothing.
size_t RootLength(std::string_view path) {
  if (path.size() >= 2 && path[1] == ':') return path.size() > 2 && path[2] == '\\' ? 3 : 2;
  if (path.substr(0, 2) == "\\\\") {
    size_t share = path.find('\\', 2);
    size_t end = share == std::string_view::npos ? share : path.find('\\', share + 1);
    return end == std::string_view::npos ? path.size() : end + 1;
  }
  return !path.empty() && path[0] == '\\' ? 1 : 0;
}

std::string WithBackslashes(std::string_view path) {
  std::string result(path);
  for (size_t i = 0; i < result.size(); i = BehindCharacter(result, i))
    if (result[i] == '/') result[i] = '\\';
  return result;
}

std::vector<std::string> NamesIn(std::string_view path) {
  std::vector<std::string> names;
  for (std::string rest(path); !rest.empty();) {
    size_t slash = LastSlash(rest);
    std::string name = slash == std::string::npos ? rest : rest.substr(slash + 1);
    if (!name.empty()) names.push_back(name);
    rest.resize(slash == std::string::npos ? 0 : slash);
  }
  std::reverse(names.begin(), names.end());
  return names;
}

std::string Joined(std::string root, const std::vector<std::string>& names) {
  for (size_t i = 0; i < names.size(); ++i) {
    if (i > 0) root += '\\';
    root += names[i];
  }
  return root;
}

}  // namespace

size_t BehindCharacter(std::string_view path, size_t at) {
  if (size_t end = EndOfUtf8(path, at); end > at) return end;
  return at + (runtime::AnsiCodePage().IsLead(ByteAt(path, at)) ? 2 : 1);
}

bool IsUtf8(std::string_view text) {
  return LongestOfUtf8(text) > 0;
}

bool IsNameOfUtf8(std::string_view name) {
  return LongestOfUtf8(name) > (runtime::AnsiCodePage().IsDoubleByte() ? 2u : 1u);
}

std::string InCodePage(std::string_view path) {
  std::string result;
  for (size_t at = 0; at < path.size();) {
    size_t end = at;
    while (end < path.size() && path[end] != '\\' && path[end] != '/') end = BehindCharacter(path, end);
    end = std::min(end, path.size());
    result += NameInCodePage(path.substr(at, end - at));
    if (end < path.size()) result += path[end];
    at = end + 1;
  }
  return result;
}

std::string FolderOf(std::string_view path) {
  size_t slash = LastSlash(path);
  return slash == std::string_view::npos ? std::string() : std::string(path.substr(0, slash + 1));
}

std::string FileNameOf(std::string_view path) {
  size_t slash = LastSlash(path);
  return std::string(slash == std::string_view::npos ? path : path.substr(slash + 1));
}

std::string StemOf(std::string_view path) {
  std::string name = FileNameOf(path);
  return name.substr(0, name.rfind('.'));
}

std::string ExtensionOf(std::string_view path) {
  std::string name = FileNameOf(path);
  size_t dot = name.rfind('.');
  return dot == std::string::npos ? std::string() : name.substr(dot);
}

bool IsAbsolutePath(std::string_view path) {
  return (path.size() >= 2 && path[1] == ':') || (!path.empty() && (path[0] == '\\' || path[0] == '/'));
}

std::string JoinPath(std::string_view folder, std::string_view path) {
  std::string whole = WithBackslashes(path);
  if (!IsAbsolutePath(whole)) {
    whole = folder.empty() ? whole : WithBackslashes(folder) + "\\" + whole;
  } else if (whole[0] == '\\' && whole.substr(0, 2) != "\\\\" && folder.size() >= 2 && folder[1] == ':') {
    whole = std::string(folder.substr(0, 2)) + whole;
  }
  size_t root = RootLength(whole);
  std::vector<std::string> names;
  for (std::string& name : NamesIn(std::string_view(whole).substr(root))) {
    if (name == ".") continue;
    if (name == ".." && !names.empty() && names.back() != "..")
      names.pop_back();
    else if (name != ".." || root == 0)
      names.push_back(std::move(name));
  }
  return Joined(whole.substr(0, root), names);
}

std::string RelativePath(std::string_view folder, std::string_view path) {
  std::string from = WithBackslashes(folder), to = WithBackslashes(path);
  size_t from_root = RootLength(from), to_root = RootLength(to);
  if (!SamePath(from.substr(0, from_root), to.substr(0, to_root))) return to;
  std::vector<std::string> steps = NamesIn(std::string_view(from).substr(from_root));
  std::vector<std::string> names = NamesIn(std::string_view(to).substr(to_root));
  size_t common = 0;
  while (common < steps.size() && common + 1 < names.size() && SameName(steps[common], names[common])) ++common;
  std::vector<std::string> result(steps.size() - common, "..");
  result.insert(result.end(), names.begin() + static_cast<long>(common), names.end());
  return Joined({}, result);
}

bool SamePath(std::string_view a, std::string_view b) {
  return SameName(a, b) || (!EndsDiffer(a, b) && SameName(InCodePage(a), InCodePage(b)));
}

}  // namespace corvane::environment
