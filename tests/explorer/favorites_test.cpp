// Favourite lines: the mark in the source, and nothing else of it.
#include "tests/explorer/editing_fixture.h"

namespace corvane::tests {
namespace {

class Favorites : public EditingTest {
 protected:
  void Toggle() { Press("Favorites"); }
  // On the row of the code view that holds [text].
  void ToggleOn(const std::string& text) {
    form.txtCode.SetStrPos(RowOf(CodeRows(), text) + 1);
    Toggle();
  }
  // Opens a module of one procedure with that line in it, and stands on it.
  void OpenLine(const std::string& line) {
    OpenAnew({Bas("modLine", {"Option Explicit", "Private a As Long", "", "Public Sub Main()", line, "End Sub"})});
    ChooseComponent("modLine");
    ChooseProcedure("Public Sub Main()");
    form.txtCode.SetStrPos(2);
  }
  std::string Line() { return Module("modLine").Lines(5, 1); }
};

TEST_F(Favorites, TheMarkGoesBehindTheLineAndNothingElseOfTheFileChanges) {
  Show("modFormat", "Public Function BinText");
  ToggleOn("BinText = \"(none)\"");
  EXPECT_THAT(ChangedFiles(), ElementsAre("modFormat.bas"));
  EXPECT_EQ(File("modFormat.bas"), Edited("modFormat.bas", "BinText = \"(none)\"", "BinText = \"(none)\"  ''"));
  EXPECT_THAT(CodeRows(), Contains("        BinText = \"(none)\"  ''"));
  EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(Favorites, ASecondPressTakesTheMarkAwayAndTheFilesAreAsTheyWere) {
  Show("modFormat", "Public Function BinText");
  ToggleOn("BinText = \"(none)\"");
  EXPECT_THAT(ChangedFiles(), ElementsAre("modFormat.bas"));
  ToggleOn("BinText = \"(none)\"");
  EXPECT_THAT(ChangedFiles(), IsEmpty());
}

TEST_F(Favorites, TheEntryOfTheDropDownDoesTheSame) {
  Show("modFormat", "Public Function BinText");
  form.txtCode.SetStrPos(RowOf(CodeRows(), "BinText = \"(none)\"") + 1);
  form.tlbr.UserButtonMenuClick(form.tlbr.PositionOf("Favorites"), 2);
  EXPECT_THAT(CodeRows(), Contains("        BinText = \"(none)\"  ''"));
}

TEST_F(Favorites, ADeclarationIsMarkedInTheListOfAllGlobals) {
  form.lbxProc->UserSelect(0);
  ToggleOn("Public Const APP_TITLE");
  EXPECT_THAT(ChangedFiles(), ElementsAre("modMain.bas"));
  EXPECT_EQ(File("modMain.bas"), Edited("modMain.bas", "\"Stockroom\"\r\n", "\"Stockroom\"  ''\r\n"));
}

TEST_F(Favorites, WithoutARowNothingHappens) {
  form.txtCode.Clear();
  Toggle();
  EXPECT_THAT(ChangedFiles(), IsEmpty());
  EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(Favorites, ALineThatContinuesIsRefusedAndStays) {
  OpenLine("    a = 1 + _");
  Toggle();
  EXPECT_THAT(Messages(), ElementsAre("Can't include this string to the title. Choose another string."));
  EXPECT_EQ(Line(), "    a = 1 + _");
}

TEST_F(Favorites, ALineWithTheContinuationsTextInsideIsRefusedToo) {
  OpenLine("    MsgBox \"a _b\"");
  Toggle();
  EXPECT_THAT(Messages(), ElementsAre("Can't include this string to the title. Choose another string."));
  EXPECT_EQ(Line(), "    MsgBox \"a _b\"");
}

TEST_F(Favorites, OnlyTheFirstMarkOfALineCounts) {
  const struct {
    const char *line, *toggled;
  } kCases[] = {
      {"    a = 1", "    a = 1  ''"},
      {"    a = 1  ''", "    a = 1"},
      {"    a = 1''", "    a = 1"},
      {"    a = 1 ' one", "    a = 1 ' one  ''"},
      {"    b = \"''\"", "    b = \"''\""},          // in a text
      {"    b = \"''\"  ''", "    b = \"''\"  ''"},  // in the middle, and at the end
      {"    a = 1  '' one", "    a = 1  '' one"},    // behind a comment's start
      {"    a = 1  '''", "    a = 1  '''"},          // one apostrophe too many
      {"    ''", ""},
  };
  for (const auto& c : kCases) {
    OpenLine(c.line);
    Toggle();
    EXPECT_EQ(Line(), c.toggled) << c.line;
    EXPECT_THAT(Messages(), IsEmpty()) << c.line;
  }
}

TEST_F(Favorites, ALineThatWasChangedMeanwhileIsRefused) {
  OpenLine("    a = 1");
  Module("modLine").ReplaceLine(5, "    a = 2");
  Toggle();
  EXPECT_THAT(Messages(), ElementsAre("Can not Replace line because line was changed before"));
  EXPECT_EQ(Line(), "    a = 2");
}

TEST_F(Favorites, TheTitleOfAModuleIsRefused) {
  form.lbxProc->UserSelect(0);
  ToggleOn("Standart Module: modMain");
  EXPECT_THAT(Messages(), ElementsAre("Don't select \"Standart Module\" line. It's a title"));
  EXPECT_THAT(ChangedFiles(), IsEmpty());
}

TEST_F(Favorites, ARowBetweenResultsIsNoLineOfTheModule) {
  OpenAnew({Bas("modLine", {"Option Explicit", "Public Sub Main()", "", "", "", "", "End Sub"}),
            Frm("frmMain", {"Option Explicit", "Private a As Long"})});
  ChooseComponent("modLine");
  form.AddFavoriteDesigner("frmMain");
  form.AddFavoriteDesigner("frmOther");
  ChooseProcedure("Public Sub Main()");
  const std::string before = Module("modLine").Lines(1, 7);
  form.axLastComp.Click();
  for (long row = 1; row <= form.txtCode.ListCount(); ++row) {
    form.txtCode.SetStrPos(row);
    Toggle();
  }
  EXPECT_EQ(Module("modLine").Lines(1, 7), before);
  EXPECT_THAT(Messages(), ::testing::Each("Can't edit this line."));
}

TEST_F(Favorites, ShowFavoritesListsTheMarkedLinesOfTheWholeProject) {
  Show("modFormat", "Public Function BinText");
  ToggleOn("BinText = \"(none)\"");
  form.lbxComp->UserSelect(0);
  form.lbxProc->UserSelect(0);
  ToggleOn("Public Const APP_TITLE");
  form.optFndCur.SetValue(true);
  form.tlbr.UserButtonMenuClick(form.tlbr.PositionOf("Favorites"), 1);
  EXPECT_EQ(form.cmbSearch.Text(), "Project Title");
  EXPECT_TRUE(form.optFndAll.Value());
  EXPECT_THAT(Components(), ElementsAre(" Result"));
  EXPECT_THAT(Procedures(), Contains("modFormat:    001   BinText = \"(none)\"  ''"));
  EXPECT_THAT(Procedures(), Contains("modMain:    001   Public Const APP_TITLE As String = \"Stockroom\"  ''"));
}

TEST_F(Favorites, AHitOfTheListIsUnmarkedWhereItStands) {
  Show("modFormat", "Public Function BinText");
  ToggleOn("BinText = \"(none)\"");
  form.tlbr.UserButtonMenuClick(form.tlbr.PositionOf("Favorites"), 1);
  ChooseProcedure("BinText = \"(none)\"");
  ASSERT_THAT(form.txtCode.List(form.txtCode.ListIndex()), HasSubstr("BinText = \"(none)\"  ''"));
  Toggle();
  EXPECT_THAT(ChangedFiles(), IsEmpty());
  EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(Favorites, ALineWithAMarkInItsMiddleToo) {
  const char* kLines[] = {"    b = \"''\"  ''", "    b = \"''\"", "    a = 1  ''"};
  const bool listed[] = {true, false, true};
  for (int at = 0; at < 3; ++at) {
    OpenLine(kLines[at]);
    form.tlbr.UserButtonMenuClick(form.tlbr.PositionOf("Favorites"), 1);
    EXPECT_EQ(Components() == std::vector<std::string>{" Result"}, listed[at]) << kLines[at];
  }
}

TEST_F(Favorites, UnloadingLeavesThemInTheSource) {
  OpenLine("    a = 1");
  Toggle();
  Press("pExit");
  EXPECT_EQ(Line(), "    a = 1  ''");
}

TEST_F(Favorites, EveryLineOfTheSampleIsMarkedAndUnmarkedWithoutATrace) {
  long marked = 0;
  for (const char* name : {"modFormat", "frmArticles", "clsStore", "BinMap", "mdiMain", "RackPage"}) {
    ChooseComponent(name);
    for (long listed = 1; listed < form.lbxProc->ListCount(); ++listed) {
      form.lbxProc->UserSelect(listed);
      for (long row = 1; row <= form.txtCode.ListCount(); ++row) {
        if (form.txtCode.List(row).find("''") != std::string::npos) continue;
        form.txtCode.SetStrPos(row);
        Toggle();
        if (!form.txtCode.List(row).ends_with("  ''")) continue;
        ++marked;
        Toggle();
      }
    }
  }
  EXPECT_GT(marked, 500);
  EXPECT_THAT(ChangedFiles(), IsEmpty());
  for (const std::string& message : Messages())
    EXPECT_THAT(message,
                ::testing::AnyOf("Can't include this string to the title. Choose another string.",
                                 "Can not Replace line because line was changed before", "Can't edit this line."));
}

}  // namespace
}  // namespace corvane::tests
