// Who may use whom. A room includes rooms below it and nothing else; the logic knows no toolkit, no COM, no system.
#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <regex>
#include <set>

#include "tests/house/tree.h"

namespace corvane::house {
namespace {

using Rooms = std::set<std::string>;

// From the ground up. A room that is not named here must be added here first.
const std::map<std::string, Rooms> kMayInclude = {
    {"runtime", {}},
    {"host", {"runtime"}},
    {"forms", {"runtime"}},
    {"codelist", {"runtime", "host", "forms"}},
    {"script", {"runtime", "host"}},
    {"workshop", {"runtime", "host", "forms", "codelist"}},
    {"explorer", {"runtime", "host", "forms", "codelist", "workshop"}},
    {"addin", {"runtime", "host", "forms", "codelist", "workshop", "explorer"}},
    {"environment", {"runtime", "host"}},
    {"cli", {"runtime", "host", "forms", "codelist", "script", "workshop", "explorer", "environment"}},
    {"toolkit_qt", {"runtime", "forms"}},
    {"toolkit_win32", {"runtime", "host", "forms"}},
    {"com", {"runtime", "host", "forms", "codelist", "script", "workshop", "explorer", "addin", "toolkit_win32"}},
    {"desk",
     {"runtime", "host", "forms", "codelist", "workshop", "explorer", "addin", "environment", "cli", "toolkit_qt"}},
};

const Rooms kLogic = {"runtime", "host", "forms", "codelist", "script", "workshop", "explorer", "addin", "environment"};

TEST(Rooms, EachIsInTheTableOfWhoMayIncludeWhom) {
  for (const auto& room : Folders("src")) EXPECT_TRUE(kMayInclude.contains(room)) << "src/" << room;
}

TEST(Rooms, NoneIncludesUpwardOrSideways) {
  for (const auto& source : Sources("src")) {
    const auto allowed = kMayInclude.find(source.room);
    if (allowed == kMayInclude.end()) continue;
    for (const auto& [line, target] : OwnIncludes(source.text)) {
      const std::string room = target.substr(0, target.find('/'));
      EXPECT_TRUE(room == source.room || allowed->second.contains(room))
          << source.path << ":" << line << ": " << source.room << " must not include \"" << target << "\"";
    }
  }
}

TEST(Rooms, IncludePathsStartAtSrc) {
  for (const auto& source : Sources("src"))
    for (const auto& [line, target] : OwnIncludes(source.text))
      EXPECT_TRUE(Exists("src/" + target) || target.ends_with(".moc"))
          << source.path << ":" << line << ": \"" << target << "\" is no file below src/";
}

TEST(Rooms, TheLogicNamesNoToolkitNoComAndNoSystem) {
  const std::regex forbidden(
      R"(#\s*include\s*<Q\w+|\bQ[A-Z][a-z]\w*|windows\.h|\b(HWND|HRESULT|IDispatch|BSTR|LRESULT|WPARAM)\b)"
      R"(|<(unistd|sys/\w+|dlfcn|pthread)\.h>)");
  for (const auto& source : Sources("src")) {
    // The disk is the environment's trade, the tables of code pages are the runtime's: there, in the files named after
    // them, the system is allowed.
    if (!kLogic.contains(source.room) || source.path.starts_with("src/environment/disk_")) continue;
    if (source.path.starts_with("src/runtime/code_page_tables_")) continue;
    const std::string code = WithoutComments(source.text);
    std::smatch match;
    EXPECT_FALSE(std::regex_search(code, match, forbidden)) << source.path << " names " << match.str();
  }
}

TEST(Rooms, TheCommandLineNamesNoToolkit) {
  const std::regex forbidden(R"(#\s*include\s*<Q\w+|\bQ[A-Z][a-z]\w*)");
  for (const auto& source : Sources("src")) {
    if (source.room != "cli") continue;
    const std::string code = WithoutComments(source.text);
    std::smatch match;
    EXPECT_FALSE(std::regex_search(code, match, forbidden)) << source.path << " names " << match.str();
  }
}

TEST(Rooms, TheLogicReachesFilesClockAndSettingsThroughTheHostAlone) {
  const std::regex forbidden(
      R"(<fstream>|<filesystem>|\bstd::(ifstream|ofstream|fstream|filesystem)\b|\b(fopen|getenv|system|popen)\s*\()"
      R"(|system_clock|\btime\s*\(\s*(nullptr|NULL|0|&)|<iostream>|\bstd::c(out|err|in)\b|\bprintf\s*\()");
  for (const auto& source : Sources("src")) {
    if (!kLogic.contains(source.room) || source.path.starts_with("src/environment/disk_")) continue;
    const std::string code = WithoutComments(source.text);
    std::smatch match;
    EXPECT_FALSE(std::regex_search(code, match, forbidden)) << source.path << " uses " << match.str();
  }
}

// A catch (...) that throws on is clean-up; the two guards at the edge of the logic are where a fault ends.
TEST(Rooms, TheLogicPassesOverErrorsByNameOnly) {
  const std::regex bare(R"(catch\s*\(\s*\.\.\.\s*\)\s*\{(?![^{}]*\bthrow;))");
  for (const auto& source : Sources("src")) {
    const bool guard = source.path.starts_with("src/runtime/error") || source.path == "src/forms/toolkit.cpp";
    if (!kLogic.contains(source.room) || guard) continue;
    EXPECT_FALSE(std::regex_search(WithoutComments(source.text), bare)) << source.path << ": bare catch (...)";
  }
}

TEST(Rooms, EachHasAReadmeOfTwentyLinesAtMost) {
  for (const auto& room : Folders("src")) {
    const std::string path = "src/" + room + "/README.md";
    EXPECT_TRUE(Exists(path)) << path;
    EXPECT_LE(Lines(ReadText(path)).size(), 20u) << path;
  }
}

TEST(Rooms, TheEntriesOfCMakeAreThoseOfTheTable) {
  const std::regex entry(R"(corvane_room\((\w+))");
  const std::string cmake = ReadText("src/CMakeLists.txt");
  Rooms named;
  for (std::sregex_iterator it(cmake.begin(), cmake.end(), entry), end; it != end; ++it) named.insert((*it)[1]);
  for (const auto& room : named) EXPECT_TRUE(kMayInclude.contains(room)) << room;
  for (const auto& [room, below] : kMayInclude) EXPECT_TRUE(named.contains(room)) << room;
}

}  // namespace
}  // namespace corvane::house
