#include "environment/paths.h"

#include <algorithm>
#include <vector>

#include "environment/lookup.h"
#include "environment/statement.h"
#include "runtime/code_page.h"

namespace corvane::environment {

namespace {

// The last "\" or "/"; npos where there is none. In a double-byte code page a second byte may look like "\".
size_t LastSlash(std::string_view path) {
  const runtime::CodePage& page = runtime::AnsiCodePage();
  size_t last = std::string_view::npos;
  for (size_t i = 0; i < path.size(); ++i) {
    if (page.IsLead(static_cast<unsigned char>(path[i])))
      ++i;
    else if (path[i] == '\\' || path[i] == '/')
      last = i;
  }
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
  const runtime::CodePage& page = runtime::AnsiCodePage();
  std::string result(path);
  for (size_t i = 0; i < result.size(); ++i) {
    if (page.IsLead(static_cast<unsigned char>(result[i])))
      ++i;
    else if (result[i] == '/')
      result[i] = '\\';
  }
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
  return SameName(a, b);
}

}  // namespace corvane::environment
