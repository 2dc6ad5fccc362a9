#include "codelist/reading_commands.h"
#include "list_fixture.h"

namespace corvane::codelist {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using ListText = ListTest;

TEST_F(ListText, StartsEmpty) {
  EXPECT_EQ(list.ListCount(), 0);
  EXPECT_EQ(list.ListIndex(), 0);
  EXPECT_EQ(list.Text(), "");
  EXPECT_EQ(list.getValue(), "");
  EXPECT_FALSE(list.GetEndState());
  EXPECT_EQ(list.hs.Max(), 10);
}

TEST_F(ListText, AnEmptyTextIsDoneWithBothBarsEnabled) {
  list.SetText("");
  EXPECT_THAT(events, ElementsAre("TextDone"));
  EXPECT_EQ(list.ListCount(), 0);
  EXPECT_TRUE(list.hs.Enabled());
  EXPECT_TRUE(list.vs.Enabled());
}

TEST_F(ListText, ReadingGivesALineEndBehindTheLastLineToo) {
  list.sGrid("TEXT");
  list.SetText("a\r\nb");
  EXPECT_EQ(list.Text(), "a\r\nb\r\n");
  EXPECT_EQ(list.ListCount(), 2);
}

TEST_F(ListText, OnlyCrLfEndsALine) {
  list.sGrid("TEXT");
  list.SetText("a\rb\nc\r\n\r\nd\r\n");
  EXPECT_EQ(list.ListCount(), 3);
  EXPECT_EQ(list.List(1), "a\rb\nc");
  EXPECT_EQ(list.List(2), "");
}

TEST_F(ListText, ATextSetDuringALoadWins) {
  list.sGrid("TEXT");
  services.loop.on_do_events = [this] {
    services.loop.on_do_events = nullptr;
    list.SetText("second\r\n");
    EXPECT_EQ(list.SetStrPos(5), 5) << "ignored while loading";
  };
  list.SetText(runtime::Replace(std::string(40, 'x'), "x", "first\r\n"));
  EXPECT_EQ(list.Text(), "second\r\n");
  EXPECT_THAT(events, ElementsAre("TextDone"));
}

TEST_F(ListText, AnEmptyTextSetDuringALoadIsLost) {
  list.sGrid("TEXT");
  services.loop.on_do_events = [this] { list.SetText(""); };
  list.SetText(runtime::Replace(std::string(40, 'x'), "x", "first\r\n"));
  EXPECT_EQ(list.ListCount(), 40);
}

TEST_F(ListText, AClearDuringALoadEndsItQuietly) {
  list.sGrid("TEXT");
  services.loop.on_do_events = [this] { list.Clear(); };
  list.SetText(runtime::Replace(std::string(40, 'x'), "x", "first\r\n"));
  EXPECT_EQ(list.ListCount(), 0);
  EXPECT_THAT(events, IsEmpty());
  EXPECT_TRUE(list.vs.Enabled());
}

TEST_F(ListText, AnErrorDuringALoadLeavesAListThatCanBeUsed) {
  list.sGrid("TEXT");
  services.loop.on_do_events = [] { throw runtime::Error(5); };
  EXPECT_THROW(list.SetText(runtime::Replace(std::string(40, 'x'), "x", "first\r\n")), runtime::Error);
  services.loop.on_do_events = nullptr;
  EXPECT_TRUE(list.hs.Enabled());
  EXPECT_TRUE(list.vs.Enabled());
  list.SetStrPos(2);
  EXPECT_EQ(list.ListIndex(), 2);
  list.SetText("second\r\n");
  EXPECT_EQ(list.Text(), "second\r\n");
  EXPECT_THAT(events, ElementsAre("TextDone"));
}

TEST_F(ListText, TheUserCannotDisturbALoad) {
  list.sGrid("VB");
  services.loop.on_do_events = [this] {
    ClickOn(5);
    Key(forms::vbKeyDown);
    window.other.SetFocus();
    list.SetFocus();
  };
  list.SetText(runtime::Replace(std::string(41, 'x'), "x", "do\r\n"));
  EXPECT_EQ(list.ListIndex(), 1);
  for (long line = 1; line <= 41; ++line) ASSERT_EQ(list.LineLevel(line), 32 + line);
}

TEST_F(ListText, ADragFromBeforeALoadDoesNotGoOnInIt) {
  Load(9);
  Press(2);
  services.loop.ticks += 300;
  services.loop.on_do_events = [this] {
    list.pic.UserMouseMove(forms::vbLeftButton, 0, 1000, YOf(5));
    list.pic.UserMouseMove(forms::vbLeftButton, 0, 1000, 5000);
    EXPECT_FALSE(list.tmr.Enabled());
  };
  Load(41);
  EXPECT_EQ(services.loop.yields, 2);
  EXPECT_EQ(list.ListIndex(), 1);
  EXPECT_THAT(SelectedLines(), IsEmpty());
}

TEST_F(ListText, AnEditBoxNeitherMovesALoadNorTellsAChangeInIt) {
  list.sGrid("TEXT");
  list.CodeLostFocus = {};
  services.loop.on_do_events = [this] {
    list.EditCodeline();
    list.txtEdit.UserEdit("x", 0, 0);
    list.txtEdit.UserKeyDown(forms::vbKeyDown, 0);
    list.txtEdit.UserKeyPress(forms::vbKeyReturn);
  };
  list.SetText(runtime::Replace(std::string(41, 'x'), "x", "a\r\n"));
  EXPECT_EQ(services.loop.yields, 2);
  EXPECT_EQ(list.ListIndex(), 1);
  EXPECT_EQ(list.CurrentRow(), 1);
  EXPECT_THAT(events, ElementsAre("TextDone"));
}

TEST_F(ListText, AClickDuringALoadIsTheControlsClickOnly) {
  list.sGrid("TEXT");
  services.loop.on_do_events = [this] { ClickOn(1); };
  list.SetText(runtime::Replace(std::string(25, 'x'), "x", "a\r\n"));
  EXPECT_THAT(events, ElementsAre("UcClick", "TextDone"));
}

TEST_F(ListText, ABranchIsNotToggledDuringALoad) {
  list.sGrid("TREE");
  // The box of level 34 stands behind the gutter and seven blanks.
  services.loop.on_do_events = [this] { ClickOn(1, 392 + 7 * 98 + 77); };
  list.SetText(runtime::Replace(std::string(15, 'x'), "x", "+a\r\n++b\r\n"));
  EXPECT_EQ(services.loop.yields, 1);
  for (long line = 2; line <= 30; line += 2) EXPECT_FALSE(list.IsLineVisible(line)) << line;
}

TEST_F(ListText, TheEventLoopRunsAfterEveryTwentyLines) {
  list.sGrid("TEXT");
  list.SetText(runtime::Replace(std::string(59, 'x'), "x", "a\r\n"));
  EXPECT_EQ(services.loop.yields, 2);
}

constexpr char kTwoProcedures[] = "Sub a()\r\n'End Sub\r\nx = \"End Sub\"\r\nEnd Sub\r\nSub b()\r\nEnd Sub\r\nlast";

TEST_F(ListText, ACodeViewStopsBehindTheFirstEndOfAProcedure) {
  list.sGrid("VB");
  list.SetText(kTwoProcedures);
  EXPECT_EQ(list.ListCount(), 4);
  EXPECT_EQ(list.List(4), "End Sub");
  EXPECT_TRUE(list.GetEndState());
}

TEST_F(ListText, AllProcTextLetsOneEndPass) {
  list.sGrid("VB");
  list.AllProcText(true);
  list.SetText(kTwoProcedures);
  EXPECT_EQ(list.ListCount(), 6) << "stops behind the second";
  list.SetText(kTwoProcedures);
  EXPECT_EQ(list.ListCount(), 4) << "the permission was used";
}

TEST_F(ListText, AnotherRoleLoadsPastTheEnd) {
  list.sGrid("VB");
  list.ListRole = kSourcePane;
  list.SetText(kTwoProcedures);
  EXPECT_EQ(list.ListCount(), 7);
}

TEST_F(ListText, WithoutColourALoadStopsInTextModeToo) {
  list.sGrid("TEXT");
  list.ColorOff = true;
  list.SetText("Send Subject\r\nx\r\n");
  EXPECT_EQ(list.ListCount(), 1);
}

TEST_F(ListText, WithoutAnalysisALoadNeverStops) {
  list.sGrid("VB");
  list.NoAnalyse = true;
  list.SetText("End Sub\r\nIf a Then\r\n");
  EXPECT_EQ(list.ListCount(), 2);
  EXPECT_EQ(Stored(2), "If a Then");
}

TEST_F(ListText, AModeIsChosenInAnyCase) {
  list.sGrid("vb");
  list.AddItem("if a");
  EXPECT_EQ(Stored(1), "^If{ a");
  list.sGrid("Sql");
  list.AddItem("select a");
  EXPECT_EQ(Stored(2), "^Select}{ a");
  list.sGrid("text");
  list.AddItem("if a");
  EXPECT_EQ(Stored(3), "if a");
}

TEST_F(ListText, AnyOtherModeIsAGridOfRawLines) {
  list.sGrid("|1000,2000");
  list.AddItem("if a|next");
  EXPECT_EQ(Stored(1), "if a|next");
  EXPECT_THAT(Levels(), ElementsAre(33));
}

TEST_F(ListText, WithoutAModeItemsAreRawAndTextsAreAnalysed) {
  list.AddItem("if a");
  EXPECT_EQ(Stored(1), "if a");
  list.SetText("if a\r\n");
  EXPECT_EQ(Stored(1), "^If{ a");
}

TEST_F(ListText, ChoosingAModeSwitchesColourOn) {
  list.ColorOff = true;
  list.sGrid("VB");
  EXPECT_FALSE(list.ColorOff);
}

TEST_F(ListText, SignsInFrontOfATreeItemAreItsDepth) {
  list.sGrid("TREE");
  list.AddItem("x");
  list.AddItem("+x");
  list.AddItem("+++x");
  EXPECT_EQ(list.List(3), "x");
  EXPECT_THAT(Levels(), ElementsAre(33, 34, 36));
  EXPECT_TRUE(list.IsLineVisible(1));
  EXPECT_TRUE(list.IsLineVisible(2));
  EXPECT_FALSE(list.IsLineVisible(3));
}

TEST_F(ListText, ATreeItemMakesTheListATree) {
  list.AddTreeItem("a", 33, false);
  list.AddItem("+b");
  EXPECT_EQ(list.List(2), "b");
  list.Clear();
  list.AddItem("+b");
  EXPECT_EQ(list.List(1), "+b") << "but only until it is cleared";
  list.sGrid("tree");
  list.Clear();
  list.AddItem("+b");
  EXPECT_EQ(list.List(1), "b");
}

TEST_F(ListText, TheLastPieceOfATreeTextIsAnalysed) {
  list.sGrid("TREE");
  list.SetText("++a\r\n+if b");
  EXPECT_EQ(Stored(2), "+if b");
  EXPECT_FALSE(list.IsLineVisible(2)) << "it takes the state of the entry before";
  list.SetText("a\r\nif b");
  EXPECT_EQ(Stored(2), "^If{ b");
}

TEST_F(ListText, ACaptionKeepsItsText) {
  list.sGrid("VB");
  list.AddItem("::End If");
  EXPECT_EQ(Stored(1), "::End If");
}

TEST_F(ListText, LinesOutsideTheListAreEmpty) {
  Load(2);
  EXPECT_EQ(list.List(0), "");
  EXPECT_EQ(list.List(3), "");
  EXPECT_EQ(list.List(-1), "");
}

TEST_F(ListText, LevelsFollowTheBlocks) {
  list.sGrid("VB");
  list.SetText(
      "Sub a()\r\nFor i = 1 To 2\r\nIf a Then\r\nb\r\nElse\r\nc\r\nEnd If\r\nIf a Then b\r\nNext\r\nEnd Sub\r\n");
  EXPECT_THAT(Levels(), ElementsAre(33, 33, 34, 35, 35, 35, 35, 34, 34, 33));
}

TEST_F(ListText, AnUnbalancedLineLeavesTheNextOutside) {
  list.sGrid("VB");
  list.SetText("Next\r\nx\r\n");
  EXPECT_THAT(Levels(), ElementsAre(33, 32));
  EXPECT_EQ(LevelColor(list.LineLevel(2)), forms::RGB(128, 0, 0));
}

TEST_F(ListText, ALevelBelowZeroIsStoredAbove200AndRunsOnFromThere) {
  list.sGrid("TEXT");
  list.SetText(runtime::Replace(std::string(34, 'x'), "x", "/-\\") + "\r\na/+\\\r\nb\r\n");
  EXPECT_THAT(Levels(), ElementsAre(33, 201, 202));
}

TEST_F(ListText, AnAppendBehindALoadHasTheLevelBehindTheCurrentLine) {
  list.sGrid("VB");
  list.SetText("If a Then\r\nb\r\nEnd If\r\n");
  list.AddItem("x");
  EXPECT_EQ(list.LineLevel(4), 34);
}

TEST_F(ListText, ReplacingTheCurrentLineCarriesItsLevelOn) {
  list.sGrid("VB");
  list.SetText("a\r\nb\r\nc\r\n");
  list.ReplaceItem(1, "if x then");
  EXPECT_EQ(Stored(1), "^If{ x }^Then{");
  EXPECT_THAT(Levels(), ElementsAre(33, 34, 34));
  list.SetStrPos(1);
  list.ReplaceItem(1, "x");
  EXPECT_THAT(Levels(), ElementsAre(33, 33, 33));
}

TEST_F(ListText, ReplacingKeepsSelectionAndFolding) {
  list.sGrid("VB");
  list.SetText("a\r\nb\r\nc\r\n");
  list.SetStrPos(2);
  list.ToggleSelect();
  list.SetStrPos(1);
  list.ReplaceItem(1, "do");
  EXPECT_THAT(SelectedLines(), ElementsAre(2));
  EXPECT_THAT(Levels(), ElementsAre(33, 34, 34));
}

TEST_F(ListText, ReplacingTheLastOrNoLineCarriesNothing) {
  list.sGrid("VB");
  list.SetText("a\r\nb\r\n");
  list.ReplaceItem(2, "do");
  list.ReplaceItem(0, "do");
  list.ReplaceItem(3, "do");
  EXPECT_THAT(Levels(), ElementsAre(33, 33));
  EXPECT_EQ(list.List(2), "Do ");
}

TEST_F(ListText, GetValueGivesTheSelectedLinesInOrder) {
  Load(3);
  list.SetStrPos(3);
  list.ToggleSelect();
  list.SetStrPos(1);
  list.ToggleSelect();
  EXPECT_EQ(list.getValue(), "1\r\n3\r\n");
}

TEST_F(ListText, GetValueWithNothingSelectedGivesTheCurrentLineWithoutALineEnd) {
  Load(3);
  list.SetStrPos(2);
  EXPECT_EQ(list.getValue(), "2");
}

TEST_F(ListText, ClearEmptiesEverything) {
  Load(3);
  list.SetStrPos(2);
  list.AddQuickItem(1);
  list.Clear();
  EXPECT_EQ(list.ListCount(), 0);
  EXPECT_EQ(list.ListIndex(), 0);
  EXPECT_EQ(list.TopLine(), 0);
  EXPECT_EQ(list.vs.Value(), 0);
  EXPECT_EQ(list.lbx.ListCount(), 0);
}

TEST_F(ListText, ABlockCommentEndsWithTheLoad) {
  list.sGrid("SQL");
  list.SetText("/* a\r\nb\r\n");
  EXPECT_EQ(Stored(2), "~b");
  list.AddItem("c");
  EXPECT_EQ(Stored(3), "c");
}

TEST_F(ListText, ALoadSetsTheBars) {
  Load(30);
  EXPECT_EQ(list.vs.Min(), 1);
  EXPECT_EQ(list.vs.Max(), 30);
  EXPECT_EQ(list.vs.LargeChange(), list.VisibleRows() + 1);
  EXPECT_EQ(list.hs.Max(), 120);
}

TEST_F(ListText, ALongAppendedLineWidensTheBar) {
  list.sGrid("TEXT");
  list.AddItem(std::string(200, 'x'));
  EXPECT_EQ(list.hs.Max(), 240);
  EXPECT_EQ(list.hs.LargeChange(), 4);
}

TEST_F(ListText, AnIconThatCannotBeReadAddsNone) {
  EXPECT_EQ(list.AddIcon("C:\\no.bmp"), 0);
  services.files.Write("C:\\yes.bmp", "BM");
  EXPECT_EQ(list.AddIcon("C:\\yes.bmp"), 1);
}

TEST_F(ListText, ColourIsSwitchedOffWithTheNextLoadAndOnByTheContainer) {
  Load(1);
  list.ToggleColor();
  EXPECT_FALSE(list.ColorOff) << "one line is not enough";
  Load(3);
  list.SetStrPos(2);
  EXPECT_EQ(list.ColorCaption(), "Set Color analyze Off");
  list.ToggleColor();
  EXPECT_TRUE(list.ColorOff);
  EXPECT_EQ(list.ColorCaption(), "Set Color analyze On");
  EXPECT_THAT(events, IsEmpty());
  list.ToggleColor();
  EXPECT_FALSE(list.ColorOff);
  EXPECT_EQ(list.ColorCaption(), "Set Color analyze Off");
  EXPECT_THAT(events, ElementsAre("ColorOnOff 2"));
}

TEST_F(ListText, PropertyWritesAreAnnounced) {
  list.SetBackColor(0x123456);
  list.HScroll(false);
  EXPECT_EQ(list.BackColor(), 0x123456u);
  EXPECT_FALSE(list.hs.Enabled());
  EXPECT_THAT(events, ElementsAre("PropertyChanged BackColor", "PropertyChanged HScroll"));
}

TEST_F(ListText, WholeAndLineByLineAreTheSame) {
  const char text[] = "Sub a()\r\n\tIf x Then 'y\r\nDo\r\nLoop\r\nElse\r\nEnd If\r\nEnd Sub\r\n";
  for (const char* mode : {"VB", "SQL", "TEXT", "TREE"}) {
    list.sGrid(mode);
    list.ListRole = kSourcePane;
    list.SetText(text);
    std::vector<std::string> whole;
    for (long line = 1; line <= list.ListCount(); ++line) whole.push_back(Stored(line));
    const std::vector<long> levels = Levels();
    list.Clear();
    for (std::string_view rest = text; !rest.empty(); rest.remove_prefix(rest.find("\r\n") + 2))
      list.AddItem(rest.substr(0, rest.find("\r\n")));
    for (long line = 1; line <= list.ListCount(); ++line) EXPECT_EQ(Stored(line), whole[static_cast<size_t>(line - 1)]);
    EXPECT_EQ(Levels(), levels) << mode;
  }
}

TEST_F(ListText, ReplacingAnotherLineComparesTheLevelBehindTheCurrentOne) {
  list.sGrid("VB");
  list.SetText("a\r\nIf b Then\r\nDo\r\nd\r\n");
  ASSERT_THAT(Levels(), ElementsAre(33, 33, 34, 35));
  list.ReplaceItem(2, "If b Then");
  EXPECT_THAT(Levels(), ElementsAre(33, 33, 33, 34)) << "the level behind line 1 counts, not the one behind line 2";
  list.ReplaceItem(2, "If b Then");
  EXPECT_THAT(Levels(), ElementsAre(33, 33, 34, 35)) << "and at once again the one behind the last line painted";
}

TEST_F(ListText, ALevelCarriedBelowZeroIsStoredAbove200) {
  Load(3);
  list.ReplaceItem(1, runtime::Replace(std::string(40, 'x'), "x", "/-\\"));
  EXPECT_THAT(Levels(), ElementsAre(33, 207, 207));
}

TEST_F(ListText, ACarriedLevelLeavesHiddenAndCollapsedLinesSo) {
  list.AddTreeItem("a", 33, false);
  list.AddTreeItem("b", 34, true);
  list.AddTreeItem("c", kCollapseStart | kBoundary | kHidden | 34, false);
  list.AddTreeItem("d", 35, false);
  list.ReplaceItem(1, "x");
  EXPECT_THAT(Levels(), ElementsAre(33, 35, 35, 36));
  EXPECT_FALSE(list.IsLineVisible(2));
  EXPECT_TRUE(list.IsLineVisible(3)) << "a boundary is shown although it is hidden";
  Canvas().Forget();
  list.pic.Paint();
  EXPECT_EQ(Drawn("circle").size(), 1u) << "and still the start of a collapsed stretch";
}

TEST_F(ListText, ThePermissionToPassAnEndWaitsForAnEnd) {
  const std::pair<const char*, std::function<void()>> kBetween[] = {
      {"Clear", [this] { list.Clear(); }},
      {"sGrid", [this] { list.sGrid("VB"); }},
      {"a load without an end", [this] { list.SetText("a\r\n"); }},
      {"an end in the last piece", [this] { list.SetText("a\r\nEnd Sub"); }},
      {"a load in another role", [this] {
         list.ListRole = kSourcePane;
         list.SetText(kTwoProcedures);
         list.ListRole = kCodeView;
       }}};
  list.sGrid("VB");
  for (const auto& [name, act] : kBetween) {
    list.AllProcText(true);
    act();
    list.SetText(kTwoProcedures);
    EXPECT_EQ(list.ListCount(), 6) << name;
  }
}

TEST_F(ListText, AnEndInTheLastPieceIsTold) {
  list.sGrid("VB");
  list.SetText("a\r\nEnd Sub");
  EXPECT_EQ(list.ListCount(), 2);
  EXPECT_TRUE(list.GetEndState());
}

TEST_F(ListText, TheEndIsThatOfTheLastAnalysedLine) {
  list.sGrid("VB");
  list.AddItem("End Sub");
  list.AddTreeItem("x", 33, false);
  EXPECT_TRUE(list.GetEndState()) << "a tree entry is not analysed";
  list.Clear();
  EXPECT_FALSE(list.GetEndState());
}

TEST_F(ListText, ACaseOfSqlOutlivesItsLoadButNotAClear) {
  list.sGrid("SQL");
  list.SetText("case a\r\n");
  list.AddItem("else b");
  EXPECT_EQ(Stored(2), "}^Else{ b");
  list.Clear();
  list.AddItem("else b");
  EXPECT_EQ(Stored(1), "^Else}{ b");
}

TEST_F(ListText, ChoosingAModeKeepsTheLinesAndAnOpenComment) {
  list.sGrid("SQL");
  list.AddItem("/* a");
  list.sGrid("VB");
  list.AddItem("x");
  EXPECT_EQ(list.ListCount(), 2);
  EXPECT_EQ(Stored(2), "~x");
}

TEST_F(ListText, EmptyLinesAndCaptionsInABlockCommentGetNoMark) {
  list.sGrid("SQL");
  list.SetText("/* a\r\n\r\n::b\r\nc\r\n");
  EXPECT_EQ(Stored(2), "");
  EXPECT_EQ(Stored(3), "::b");
  EXPECT_EQ(Stored(4), "~c");
}

TEST_F(ListText, ItsColourIsTheButtonFaceAtFirst) {
  EXPECT_EQ(list.BackColor(), 0x8000000Fu);
}

TEST_F(ListText, BothBarsAreDisabledDuringALoad) {
  list.sGrid("TEXT");
  services.loop.on_do_events = [this] {
    EXPECT_FALSE(list.hs.Enabled());
    EXPECT_FALSE(list.vs.Enabled());
  };
  list.SetText(runtime::Replace(std::string(25, 'x'), "x", "a\r\n"));
  EXPECT_EQ(services.loop.yields, 1);
  EXPECT_TRUE(list.hs.Enabled());
  EXPECT_TRUE(list.vs.Enabled());
}

TEST_F(ListText, SetStrPosDoesNothingDuringALoad) {
  list.sGrid("TEXT");
  services.loop.on_do_events = [this] { EXPECT_EQ(list.SetStrPos(5), 5); };
  list.SetText(runtime::Replace(std::string(25, 'x'), "x", "a\r\n"));
  EXPECT_EQ(services.loop.yields, 1);
  EXPECT_EQ(list.ListIndex(), 1);
  EXPECT_EQ(list.CurrentRow(), 1);
}

TEST_F(ListText, ALineReplacedWhileItIsCommentedOutLeavesTheLevelsBehindIt) {
  list.sGrid("VB");
  list.SetText("If a Then\r\nb\r\nEnd If\r\nc\r\n");
  list.ToggleSelect();
  list.UpdateString = [this](long line, const std::string& text) { list.ReplaceItem(line, text); };
  toolkit.OnPopup("Comment selected lines");
  Press(1, 1000, forms::vbRightButton);
  ReleaseAt(1, 1000, forms::vbRightButton);
  EXPECT_EQ(Stored(1), "'If a Then");
  EXPECT_THAT(Levels(), ElementsAre(33, 34, 34, 33)) << "until the container loads the text again";
}

TEST_F(ListText, TheRowsBelowAReplacedLineAreDrawnInTheirNewColour) {
  Load(15, "VB");
  list.SetStrPos(5);
  ASSERT_EQ(list.CurrentRow(), 3);
  Canvas().Forget();
  list.ReplaceItem(5, "do");
  std::vector<std::string> below = DrawnTexts();
  ASSERT_GT(below.size(), 7u);
  below.erase(below.begin(), below.end() - 7);
  for (long row = 4; row <= 10; ++row)
    EXPECT_EQ(below[static_cast<size_t>(row - 4)], "text 392 " + std::to_string((row - 1) * 234) + " \" " +
                                                       std::to_string(row + 2) + "\" Arial 9.75 #0000ff");
}

TEST_F(ListText, TheRowsBelowAReplacedLineAreThoseOfVisibleLines) {
  list.AddTreeItem("a", 33, false);
  list.AddTreeItem("b", 34, true);
  list.AddTreeItem(
      "\x03"
      "c",
      35, false);
  Canvas().Forget();
  list.ReplaceItem(1, "x");
  ASSERT_THAT(Levels(), ElementsAre(33, 35, 36));
  EXPECT_EQ(DrawnTexts().back(), "text 392 234 \"" + runtime::Space(37) + "c\" Arial 9.75 #ff0000");
}

TEST_F(ListText, ATreeIsDrawnFromItsFirstLineWhenItIsLoaded) {
  list.sGrid("TREE");
  Canvas().Forget();
  list.SetText(
      "\x03"
      "a\r\n++b\r\n\x03"
      "c\r\n");
  EXPECT_THAT(DrawnTexts(), testing::IsSupersetOf(
                                {"text 392 0 \" a\" Arial 9.75 #000000", "text 392 234 \" c\" Arial 9.75 #000000"}));
  EXPECT_EQ(list.ListIndex(), 1);
}

TEST_F(ListText, ClearStartsAgainAtTheBaseLevel) {
  list.sGrid("VB");
  list.AddItem("do");
  list.Clear();
  list.AddItem("x");
  EXPECT_THAT(Levels(), ElementsAre(33));
}

TEST_F(ListText, ClearStartsAgainAtTheFirstColumn) {
  Load(3);
  list.hs.SetValue(3);
  list.Clear();
  EXPECT_EQ(list.hs.Value(), 0);
  Canvas().Forget();
  list.AddItem("abc");
  EXPECT_THAT(DrawnTexts(), ElementsAre("text 392 0 \" abc\" Arial 9.75 #000000"));
}

TEST_F(ListText, ClearForgetsTheLineToGoBackTo) {
  const auto offers_previous = [this] {
    Press(1, 1000, forms::vbRightButton);
    ReleaseAt(1, 1000, forms::vbRightButton);
    return list.Reading().menu[ListEntry::mnuPrev].Enabled();
  };
  Load(9, "VB");
  list.SetStrPos(5);
  list.GoHome();
  EXPECT_TRUE(offers_previous());
  Load(9, "VB");
  EXPECT_FALSE(offers_previous());
}

TEST_F(ListText, ClearForgetsATextThatWaits) {
  list.sGrid("TEXT");
  services.loop.on_do_events = [this] {
    services.loop.on_do_events = nullptr;
    list.SetText("second\r\n");
    list.Clear();
  };
  list.SetText(runtime::Replace(std::string(25, 'x'), "x", "first\r\n"));
  EXPECT_EQ(list.ListCount(), 0);
  list.SetText("third\r\n");
  EXPECT_EQ(list.Text(), "third\r\n");
}

TEST_F(ListText, MarksInAGridLeaveTheLevel) {
  list.sGrid("|1000");
  list.AddItem("a/+\\|b");
  list.AddItem("c");
  EXPECT_THAT(Levels(), ElementsAre(33, 33));
  list.SetText("a/+\\|b\r\nc\r\n");
  list.AddItem("d");
  EXPECT_THAT(Levels(), ElementsAre(33, 33, 33));
}

}  // namespace
}  // namespace corvane::codelist
