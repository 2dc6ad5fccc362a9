// What every source file keeps to, so that no review has to say it.
#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <regex>
#include <set>

#include "tests/house/tree.h"

namespace corvane::house {
namespace {

// Files that are one table, or one thing that reads better whole, and why.
const std::map<std::string, const char*> kMayBeLong = {
    {"src/environment/control_class_tables.cpp", "the design-time properties of every control, one row each"},
    {"src/codelist/uc_list_box.h", "the list that shows all code: one control, its whole interface in one place"},
    {"src/explorer/frm_add_in.h", "the explorer: one window with many duties, its members by the file that has them"},
};

// The headers that define macros all the same, and why.
const std::map<std::string, const char*> kMayDefine = {
    {"src/toolkit_win32/win.h", "the switches that the headers of Windows ask for"},
};

std::vector<SourceText> All() {
  auto all = Sources("src");
  for (const char* folder : {"tests", "bench"})
    for (auto& source : Sources(folder)) all.push_back(std::move(source));
  return all;
}

TEST(Style, AFileIsOneIdea) {
  for (const auto& source : Sources("src")) {
    if (kMayBeLong.contains(source.path)) continue;
    const size_t limit = source.IsHeader() ? 250 : 600;
    EXPECT_LE(Lines(source.text).size(), limit) << source.path << " has grown: split it, or say above why it is long";
  }
}

TEST(Style, FilesThatMayBeLongAreThereAndAreLong) {
  for (const auto& [path, reason] : kMayBeLong) {
    if (!Exists(path)) continue;
    EXPECT_GT(Lines(ReadText(path)).size(), 250u) << path << " needs no exception any more (" << reason << ")";
  }
}

TEST(Style, AHeaderIsGuardedAndSaysWhatItIs) {
  for (const auto& source : All()) {
    if (!source.IsHeader()) continue;
    EXPECT_NE(source.text.find("// "), std::string::npos) << source.path << ": say what the header is";
    EXPECT_NE(source.text.find("#pragma once\n"), std::string::npos) << source.path;
    if (!kMayDefine.contains(source.path)) {
      EXPECT_EQ(WithoutComments(source.text).find("#define"), std::string::npos) << source.path << ": no macros";
    }
    EXPECT_EQ(WithoutComments(source.text).find("using namespace"), std::string::npos) << source.path;
  }
}

TEST(Style, TheNamespaceIsTheFolder) {
  for (const auto& source : Sources("src")) {
    const std::string space = "namespace corvane::" + source.room;
    if (!source.IsHeader() || source.text.find("\nnamespace ") == std::string::npos) continue;
    EXPECT_NE(source.text.find(space), std::string::npos) << source.path;
  }
}

TEST(Style, ASourceIncludesItsOwnHeaderFirst) {
  for (const auto& source : Sources("src")) {
    if (source.IsHeader()) continue;
    const std::string own = source.path.substr(4, source.path.size() - 4 - 4) + ".h";
    if (!Exists("src/" + own)) continue;
    const auto includes = OwnIncludes(source.text);
    ASSERT_FALSE(includes.empty()) << source.path;
    EXPECT_EQ(includes.front().second, own) << source.path;
  }
}

// Columns, not bytes: what follows the first byte of a character counts nothing.
size_t Columns(const std::string& line) {
  return std::count_if(line.begin(), line.end(), [](unsigned char byte) { return (byte & 0xC0) != 0x80; });
}

TEST(Style, ALineHasAtMost120Columns) {
  for (const auto& source : All()) {
    int number = 0;
    for (const auto& line : Lines(source.text)) {
      ++number;
      EXPECT_LE(Columns(line), 120u) << source.path << ":" << number << ": " << line;
    }
  }
}

TEST(Style, NothingIsLeftForLater) {
  // Put together, so that this file does not accuse itself.
  const std::regex note(std::string(R"(\b(TO)") + "DO|FIX" + "ME|X" + R"(XX|HA)" + R"(CK)\b)");
  auto paths = FilesBelow("src", {".h", ".cpp", ".txt", ".md"});
  for (const char* folder : {"tests", "bench", "docs", "scripts", "cmake", "packaging"})
    for (auto& path : FilesBelow(folder, {""})) paths.push_back(std::move(path));
  for (const char* file : {"README.md", "ARCHITECTURE.md", "CONTRIBUTING.md", "CMakeLists.txt", "Makefile"})
    paths.push_back(file);
  for (const auto& path : paths) {
    if (path.ends_with(".png")) continue;
    int number = 0;
    for (const auto& line : Lines(ReadText(path))) {
      ++number;
      EXPECT_FALSE(std::regex_search(line, note)) << path << ":" << number << ": " << line;
    }
  }
}

TEST(Style, ATestSuiteLivesInTheFolderOfItsRoom) {
  static const std::set<std::string> kAcrossRooms = {"house", "samples", "fuzz", "stage", "support", "win32_pictures"};
  const auto rooms = Folders("src");
  for (const auto& folder : Folders("tests")) {
    if (kAcrossRooms.contains(folder)) continue;
    EXPECT_NE(std::find(rooms.begin(), rooms.end(), folder), rooms.end()) << "tests/" << folder;
  }
}

}  // namespace
}  // namespace corvane::house
