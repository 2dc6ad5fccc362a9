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

TEST_F(ShippedLibrary, AnErrorHandlerIsOfferedToTheProcedureAtTheCursor) {
  Select("modFormat");
  const host::Ref<host::CodePane> pane = Code("modFormat")->CodePane();
  const long line = Code("modFormat")->ProcBodyLine("ParseBin", host::ProcKind::Proc) + 10;
  pane->Show();
  pane->SetSelection({line, 1, line, 1});
  world.services.prompts.inputs = {"ParseBin"};
  lib.Execute("{ERRHANDLER}");
  ASSERT_EQ(world.services.prompts.input_boxes.size(), 1u);
  EXPECT_EQ(world.services.prompts.input_boxes[0].default_text, "ParseBin");
  EXPECT_EQ(Errors(), Lines());
  EXPECT_NE(SaveAll().at("modFormat.bas").find("    On Error GoTo ParseBin_Error\r\n"), std::string::npos);
}

TEST_F(ShippedLibrary, TheSameMessageGetsOneConstantAndAnotherOfItsNameASecond) {
  Code("modApi")->InsertLines(
      1000,
      "Sub Say()\r\n  MsgBox \"Is \"\"it\"\" ok?\"\r\n  MsgBox (\"no\")\r\n"
      "  x = MsgBox(\"Is \"\"it\"\" ok?\", 4)\r\n  ' MsgBox \"none\"\r\n  MsgBox \"Is it ok\"\r\nEnd Sub");
  Select("modApi");
  lib.Execute("{MESSAGES}");
  EXPECT_EQ(Errors(), Lines());
  const std::string saved = SaveAll().at("modApi.bas");
  EXPECT_NE(saved.find("Option Explicit\r\n"
                       "Private Const MSG_IS_IT_OK As String = \"Is \"\"it\"\" ok?\"\r\n"
                       "Private Const MSG_NO As String = \"no\"\r\n"
                       "Private Const MSG_IS_IT_OK_2 As String = \"Is it ok\"\r\n"),
            std::string::npos);
  EXPECT_NE(saved.find("Sub Say()\r\n  MsgBox MSG_IS_IT_OK\r\n  MsgBox (MSG_NO)\r\n"
                       "  x = MsgBox(MSG_IS_IT_OK, 4)\r\n  ' MsgBox \"none\"\r\n  MsgBox MSG_IS_IT_OK_2\r\nEnd Sub"),
            std::string::npos);
}

TEST_F(ShippedLibrary, SqlOnTheClipboardBecomesAString) {
  world.services.clipboard.text = "SELECT Name FROM Articles WHERE Number = :sNumber AND Price > :price";
  world.services.prompts.answers = {host::vbCancel};
  lib.Execute("{SQLSTRING}");
  EXPECT_EQ(Errors(), Lines());
  const std::string source =
      "sSQL = \"SELECT Name FROM Articles WHERE Number = '\" & sNumber & \"' AND Price > \" & price";
  EXPECT_EQ(world.services.clipboard.text, source);
  lib.Execute("{SQLSTRING}");
  EXPECT_EQ(world.services.clipboard.text, "SELECT Name FROM Articles WHERE Number = 'sNumber' AND Price > price");
}

TEST_F(ShippedLibrary, TheShortListNamesWizardsOfTheMenu) {
  const Lines menu = Menu(), list = LinesOf("PopupLst.txt");
  EXPECT_GE(list.size(), 3u);
  for (const std::string& line : list) EXPECT_NE(std::find(menu.begin(), menu.end(), "++" + line), menu.end()) << line;
}

}  // namespace
}  // namespace corvane::script
