#include "tests/house/tree.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <sstream>

namespace corvane::house {

namespace fs = std::filesystem;

namespace {

const fs::path kRoot = CORVANE_SOURCE_DIR;

std::string RoomOf(const std::string& path) {
  const auto start = path.find('/');
  const auto end = path.find('/', start + 1);
  return end == std::string::npos ? "" : path.substr(start + 1, end - start - 1);
}

}  // namespace

std::vector<std::string> FilesBelow(const std::string& folder, const std::vector<std::string>& endings) {
  std::vector<std::string> paths;
  if (!fs::exists(kRoot / folder)) return paths;
  for (const auto& entry : fs::recursive_directory_iterator(kRoot / folder)) {
    const std::string path = fs::relative(entry.path(), kRoot).generic_string();
    const auto fits = [&](const std::string& ending) { return path.ends_with(ending); };
    if (entry.is_regular_file() && std::any_of(endings.begin(), endings.end(), fits)) paths.push_back(path);
  }
  std::sort(paths.begin(), paths.end());
  return paths;
}

std::vector<SourceText> Sources(const std::string& folder) {
  std::vector<SourceText> sources;
  for (const auto& path : FilesBelow(folder, {".h", ".cpp"})) sources.push_back({path, RoomOf(path), ReadText(path)});
  return sources;
}

std::vector<std::string> Folders(const std::string& folder) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(kRoot / folder))
    if (entry.is_directory()) names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

std::string ReadText(const std::string& path) {
  std::ifstream in(kRoot / path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

bool Exists(const std::string& path) {
  return fs::exists(kRoot / path);
}

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

std::string WithoutComments(const std::string& text) {
  std::string kept;
  for (size_t i = 0; i < text.size();) {
    if (text.compare(i, 2, "//") == 0) {
      i = std::min(text.find('\n', i), text.size());
    } else if (text.compare(i, 2, "/*") == 0) {
      i = std::min(text.find("*/", i), text.size() - 2) + 2;
    } else if (text.compare(i, 2, "R\"") == 0) {
      const auto open = text.find('(', i);
      const std::string close = ")" + text.substr(i + 2, open - i - 2) + "\"";
      i = std::min(text.find(close, open), text.size() - close.size()) + close.size();
    } else if (text[i] == '"' ||
               (text[i] == '\'' && (i == 0 || !std::isalnum(static_cast<unsigned char>(text[i - 1]))))) {
      const char quote = text[i++];
      while (i < text.size() && text[i] != quote && text[i] != '\n') i += text[i] == '\\' ? 2 : 1;
      ++i;
      kept += quote;
      kept += quote;
    } else {
      kept += text[i++];
    }
  }
  return kept;
}

std::vector<std::pair<int, std::string>> OwnIncludes(const std::string& text) {
  static const std::regex kInclude(R"re(^\s*#\s*include\s+"([^"]+)")re");
  std::vector<std::pair<int, std::string>> found;
  int number = 0;
  for (const auto& line : Lines(text)) {
    ++number;
    std::smatch match;
    if (std::regex_search(line, match, kInclude)) found.emplace_back(number, match[1]);
  }
  return found;
}

}  // namespace corvane::house
