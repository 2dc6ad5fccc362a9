// Documents name what exists; icons are drawn by one hand.
#include <algorithm>
#include <gtest/gtest.h>
#include <regex>
#include <set>

#include "tests/house/tree.h"

namespace corvane::house {
namespace {

std::vector<std::string> Documents() {
  std::vector<std::string> paths = {"README.md", "ARCHITECTURE.md", "CONTRIBUTING.md"};
  for (const char* folder : {"docs", "src"})
    for (auto& path : FilesBelow(folder, {".md"})) paths.push_back(std::move(path));
  return paths;
}

// Words in backticks that look like paths of this tree: `src/forms/`, `environment/module.h`, `scripts/run`.
std::vector<std::pair<int, std::string>> NamedPaths(const std::string& text) {
  static const std::regex kQuoted(R"(`([A-Za-z_.][\w.-]*/[\w./-]*)`)");
  std::vector<std::pair<int, std::string>> found;
  int number = 0;
  for (const auto& line : Lines(text)) {
    ++number;
    for (std::sregex_iterator it(line.begin(), line.end(), kQuoted), end; it != end; ++it)
      found.emplace_back(number, (*it)[1]);
  }
  return found;
}

TEST(Documents, NameOnlyPathsThatExist) {
  for (const auto& document : Documents()) {
    ASSERT_TRUE(Exists(document)) << document;
    for (const auto& [line, path] : NamedPaths(ReadText(document))) {
      if (path.starts_with("build/")) continue;  // made by the build
      EXPECT_TRUE(Exists(path) || Exists("src/" + path)) << document << ":" << line << ": `" << path << "`";
    }
  }
}

TEST(Documents, LinkToFilesThatExist) {
  static const std::regex kLink(R"(\]\(([^)#:]+)(#[^)]*)?\))");
  for (const auto& document : Documents()) {
    const std::string text = ReadText(document);
    const auto folder = document.substr(0, document.find_last_of('/') + 1);
    for (std::sregex_iterator it(text.begin(), text.end(), kLink), end; it != end; ++it)
      EXPECT_TRUE(Exists(folder + (*it)[1].str())) << document << ": " << (*it)[1];
  }
}

TEST(Documents, TheReadmeIsShort) {
  EXPECT_LE(Lines(ReadText("README.md")).size(), 80u);
}

TEST(Documents, TheArchitectureHasALineForEveryRoom) {
  const std::string text = ReadText("ARCHITECTURE.md");
  for (const auto& room : Folders("src")) EXPECT_NE(text.find("`" + room + "/`"), std::string::npos) << room;
}

TEST(Icons, AreDrawnOnOneGridInOnePalette) {
  static const std::set<std::string> kPalette = {"none", "#39475a", "#2473bf", "#cfe4f8", "#ffffff", "#c26a1b"};
  static const std::regex kPaint(R"re((?:stroke|fill)="([^"]+)")re");
  const auto icons = FilesBelow("data/icons", {".svg"});
  EXPECT_GT(icons.size(), 40u);
  for (const auto& path : icons) {
    const std::string text = ReadText(path);
    EXPECT_NE(text.find("viewBox=\"0 0 16 16\""), std::string::npos) << path;
    for (std::sregex_iterator it(text.begin(), text.end(), kPaint), end; it != end; ++it)
      EXPECT_TRUE(kPalette.contains((*it)[1])) << path << ": " << (*it)[1];
  }
}

// Icons are asked for by Icon("name") or by a row of a table: of buttons, whose name stands in front of their flags, or
// of commands, where it stands in front of the key and the handler, or of tools, behind key and tip.
TEST(Icons, ThatTheSourcesAskForAreThere) {
  static const std::regex kAsked(R"re(Icon\(\s*"([a-z0-9-]+)"\)|, "([a-z0-9-]+)", (?:true|false)\b)re"
                                 R"re(|"([a-z0-9-]+)",\s+"[^"]*",\s+&\w+::)re"
                                 R"re(|\{"\w+", "[^"]*", "([a-z0-9-]+)", (?:&|nullptr))re");
  size_t found = 0;
  for (const auto& source : Sources("src"))
    for (std::sregex_iterator it(source.text.begin(), source.text.end(), kAsked), end; it != end; ++it, ++found) {
      const std::string name = (*it)[1].str() + (*it)[2].str() + (*it)[3].str() + (*it)[4].str();
      EXPECT_TRUE(Exists("data/icons/" + name + ".svg")) << source.path << ": " << name;
    }
  EXPECT_GT(found, 20u) << "the pattern no longer finds them";
}

}  // namespace
}  // namespace corvane::house
