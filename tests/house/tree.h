// Tree – the project's own files, as the house rules read them.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace corvane::house {

struct SourceText {
  std::string path;  // from the root of the project, "src/codelist/painter.cpp"
  std::string room;  // "codelist"; empty outside src/ and tests/
  std::string text;
  bool IsHeader() const { return path.ends_with(".h"); }
};

// All C++ files below [folder] ("src", "tests"), in the order of their paths.
std::vector<SourceText> Sources(const std::string& folder);

// All files below [folder] whose names end in one of [endings].
std::vector<std::string> FilesBelow(const std::string& folder, const std::vector<std::string>& endings);

// The folders directly below [folder], by name.
std::vector<std::string> Folders(const std::string& folder);

std::string ReadText(const std::string& path);
bool Exists(const std::string& path);
std::vector<std::string> Lines(const std::string& text);

// The text without what stands in comments and string literals; line ends stay.
std::string WithoutComments(const std::string& text);

// The targets of #include "..." with their line numbers.
std::vector<std::pair<int, std::string>> OwnIncludes(const std::string& text);

}  // namespace corvane::house
