// The library that comes with Corvane: its menu, its blocks, its files, run as a wizard runs them.
#include <filesystem>
#include <set>

#include "script/library_file.h"
#include "tests/script/project_fixture.h"
#include "tests/support/golden.h"

namespace corvane::script {
namespace {

namespace fs = std::filesystem;

class ShippedLibrary : public ProjectTest {
 protected:
  void SetUp() override {
    ProjectTest::SetUp();
    const fs::path data = fs::path(CORVANE_SOURCE_DIR) / "data";
    for (const auto& entry : fs::recursive_directory_iterator(data)) {
      if (entry.path().extension() != ".txt") continue;
      const std::string name = fs::relative(entry.path(), data).generic_string();
      world.services.files.Put("C:\\Corvane\\" + runtime::Replace(name, "/", "\\"),
                               tests::golden::ReadFile(entry.path()).value());
    }
    world.window.library = Text("LibCode.txt");
  }

  std::string Text(const std::string& name) { return world.services.files.Read("C:\\Corvane\\" + name); }

  Lines LinesOf(const std::string& name) {
    ScriptText text(Text(name));
    Lines lines;
    while (const auto line = text.NextLine()) lines.emplace_back(*line);
    return lines;
  }
  Lines Menu() {
    Lines lines = LinesOf("LibCode.txt");
    lines.erase(std::find_if(lines.begin(), lines.end(), [](const auto& line) { return !line.starts_with('+'); }),
                lines.end());
    return lines;
  }
  // "{NAME}" of the lines of the menu that name a block.
  std::multiset<std::string> Named() {
    std::multiset<std::string> names;
    for (const std::string& line : Menu())
      if (const size_t at = line.find('{'); at != std::string::npos)
        names.insert(line.substr(at, line.find('}') + 1 - at));
    return names;
  }
};

TEST_F(ShippedLibrary, ItsMenuNamesEachBlockOnce) {
  std::multiset<std::string> blocks;
  for (const std::string& line : LinesOf("LibCode.txt"))
    if (line.starts_with('{') && line != "{COMMON}") blocks.insert(line);
  EXPECT_EQ(Named(), blocks);
  EXPECT_EQ(blocks.size(), 12u);
}

TEST_F(ShippedLibrary, APlusStandsOnlyInFrontOfAMenuLine) {
  for (const std::string& line : Menu()) EXPECT_EQ(line.find_last_of('+') + 1, line.find_first_not_of('+')) << line;
}

TEST_F(ShippedLibrary, AnAuthorIsAConstant) {
  EXPECT_EQ(CommonConstants(around.services), (std::vector<std::string>{"$AUTHOR="}));
}

TEST_F(ShippedLibrary, EachScriptIsInAFileThatIsThereAndEachFileInTheLibrary) {
  std::set<std::string> named;
  for (const std::string& line : LinesOf("LibCode.txt"))
    if (line.starts_with("FILE:")) named.insert(line.substr(5));
  const auto files = world.services.files.List("C:\\Corvane\\WorkShop\\", "*.txt");
  EXPECT_EQ(named, std::set<std::string>(files.begin(), files.end()));
  EXPECT_EQ(named.size(), 10u);
}

TEST_F(ShippedLibrary, EachWizardRunsWithoutAnError) {
  long wizards = 0;
  for (const std::string& line : Menu()) {
    if (!line.ends_with("}!")) continue;
    ++wizards;
    Select("clsMovement");
    lib.Execute(line.substr(line.find('{'), line.find('}') + 1 - line.find('{')));
    EXPECT_EQ(Errors(), Lines()) << line;
  }
  EXPECT_EQ(wizards, 10);
}

TEST_F(ShippedLibrary, AWizardPutsItsResultOnTheClipboard) {
  EXPECT_EQ(lib.Execute("{EXPLICIT}"), "Good thing");
  EXPECT_EQ(world.services.clipboard.text, "Every component has Option Explicit.\r\n");
}

TEST_F(ShippedLibrary, AWizardChangesTheProject) {
  Select("clsMovement");
  lib.Execute("{PROPERTIES}");
  const Saved saved = SaveAll();
  ASSERT_EQ(saved.size(), 1u);
  EXPECT_NE(saved.at("clsMovement.cls").find("Public Property Get FromBin() As String\r\n    FromBin = mFromBin\r\n"),
            std::string::npos);
}

TEST_F(ShippedLibrary, TheShortListNamesWizardsOfTheMenu) {
  const Lines menu = Menu(), list = LinesOf("PopupLst.txt");
  EXPECT_GE(list.size(), 3u);
  for (const std::string& line : list) EXPECT_NE(std::find(menu.begin(), menu.end(), "++" + line), menu.end()) << line;
}

}  // namespace
}  // namespace corvane::script
