// What a row of the procedures shows in the code view.
#include "environment/observer.h"
#include "tests/explorer/explorer_fixture.h"
#include "tests/support/counting_host.h"

namespace corvane::tests {
namespace {

class CodeView : public ExplorerTest {
 protected:
  // 60 lines: three declarations, then blank lines and procedures.
  Sources Shop() {
    Code lines = {"Option Explicit", "Private a As Long", "Private b As Long", ""};
    for (const char* line : {"Public Sub First()", "    If a Then", "        b = 1", "    End If", "End Sub", ""})
      lines.push_back(line);
    for (const char* line : {"' Adds.", "Public Function Sum() As Long", "    Sum = a + b", "End Function", ""})
      lines.push_back(line);
    while (lines.size() < 60) lines.push_back("' line " + std::to_string(lines.size() + 1));
    return {Bas("modMain", lines), Frm("frmMain", {"Dim x", ""})};
  }
  // Down to 60 above the frames, less what a row would need.
  bool ReachesTheFrames() const {
    forms::Twips left = form.Frame4.Top() - 60 - form.txtCode.Top() - form.txtCode.Height();
    return left >= 0 && left < form.txtCode.RowHeight();
  }
  // What the user does while the next text loads, or stands there for the first time.
  void DuringNextYield(std::function<void()> act) {
    services.loop.on_do_events = [this, act = std::move(act)] { std::exchange(services.loop.on_do_events, {}), act(); };
  }
  // A row for a line, as searches and bookmarks make them.
  long AddRowFor(const std::string& module, long line) {
    form.AddProcedureRow(Module(module), line);
    return form.lbxProc->NewIndex();
  }
  // Opens the module and a row of the list for one of its lines.
  void ShowLine(long line) {
    OpenWindow(Shop());
    ChooseComponent("modMain");
    form.lbxProc->UserSelect(AddRowFor("modMain", line));
  }
};

// 30 lines of declarations with a condition, a procedure of 30 lines with a condition, a short one.
class LongCodeView : public CodeView {
 protected:
  void SetUp() override {
    Code lines = {"#If Debugging Then", "Dim d", "#End If"};
    lines.resize(30, "Dim a");
    for (const char* line : {"Sub Lengthy()", "    If a Then"}) lines.push_back(line);
    lines.resize(58, "        a = 1");
    for (const char* line : {"    End If", "End Sub", "Sub Brief()", "    If a Then", "        a = 2", "    End If",
                             "End Sub", "Sub After()", "End Sub"})
      lines.push_back(line);
    OpenWindow({Bas("modMain", lines), Frm("frmMain", {"Dim x", ""})});
    ChooseComponent("modMain");
  }
};

TEST_F(CodeView, AProcedureIsShownWholeAndAnalysed) {
  OpenWindow(Shop());
  ChooseComponent("modMain");
  ChooseProcedure("First");
  EXPECT_THAT(CodeRows(), ElementsAre("Public Sub First()", "    If a Then", "        b = 1", "    End If", "End Sub"));
  EXPECT_EQ(form.txtCode.ListIndex(), 1);
  EXPECT_EQ(form.lblSub.Caption(), "Public Sub First()");
  EXPECT_EQ(form.txtCode.LineLevel(3) - form.txtCode.LineLevel(1), 1);
}

TEST_F(CodeView, ALineInsideAProcedureStandsOnItsRow) {
  ShowLine(7);
  EXPECT_EQ(form.txtCode.List(1), "Public Sub First()");
  EXPECT_EQ(form.txtCode.ListIndex(), 3);
  EXPECT_EQ(form.lblSub.Caption(), "Public Sub First()");
}

TEST_F(CodeView, TheDeclarationsRowShowsTheDeclarationsAsTheyAre) {
  OpenWindow(Shop());
  ChooseComponent("modMain");
  ChooseProcedure("First");
  ChooseProcedure("Declarations");
  EXPECT_THAT(CodeRows(), ElementsAre("Option Explicit", "Private a As Long", "Private b As Long"));
  EXPECT_EQ(form.txtCode.StoredText(2), "Private a As Long");
}

TEST_F(CodeView, ALineAtTwoOrThreeIsShownAsABlockFromTheFirstLine) {
  for (long line : {2, 3}) {
    ShowLine(line);
    EXPECT_EQ(form.txtCode.List(1), "Option Explicit");
    EXPECT_EQ(form.txtCode.ListIndex(), line);
  }
}

TEST_F(CodeView, ALineAtFortyIsShownFromThirtySeven) {
  Open({Bas("modMain", Code(60, "Dim a"))});
  Module("modMain").ReplaceLine(37, "Dim first");
  OpenWindow();
  form.AddProcedureRow(Module("modMain"), 40);
  form.lbxProc->UserSelect(form.lbxProc->NewIndex());
  EXPECT_EQ(form.txtCode.List(1), "Dim first");
  EXPECT_EQ(form.txtCode.ListIndex(), 4);
}

TEST_F(CodeView, ALineAtThirtyNineIsShownFromTheFirstLine) {
  Open({Bas("modMain", Code(60, "Dim a"))});
  Module("modMain").ReplaceLine(1, "Dim first");
  OpenWindow();
  form.AddProcedureRow(Module("modMain"), 39);
  form.lbxProc->UserSelect(form.lbxProc->NewIndex());
  EXPECT_EQ(form.txtCode.List(1), "Dim first");
  EXPECT_EQ(form.txtCode.ListIndex(), 39);
}

TEST_F(CodeView, ABlockHasAtMostTwoHundredAndFiftyLines) {
  Open({Bas("modMain", Code(400, "Dim a"))});
  OpenWindow();
  form.AddProcedureRow(Module("modMain"), 50);
  form.lbxProc->UserSelect(form.lbxProc->NewIndex());
  EXPECT_EQ(form.txtCode.ListCount(), 250);
}

TEST_F(CodeView, ABlockGoesPastOneEndOfAProcedure) {
  OpenWindow({Bas("modMain", {"Dim a", "Sub A()", "End Sub", "Sub B()", "End Sub", "Sub C()", "End Sub"}),
              Frm("frmMain", {"Dim x", ""})});
  ChooseComponent("modMain");
  ChooseProcedure("Sub A");
  EXPECT_THAT(CodeRows(), ElementsAre("Dim a", "Sub A()", "End Sub", "Sub B()", "End Sub"));
}

TEST_F(CodeView, AProcedureInFrontOfTheFourthLineIsShownAsABlockFromTheFirst) {
  OpenWindow({Bas("modMain", {"Dim a", "Sub Pay()", "End Sub", "Sub Other()", "End Sub"}),
              Bas("modMore", {"Dim b", "Dim c", "Sub Pay()", "End Sub", "Sub Other()", "End Sub"})});
  ChooseComponent("modMain");
  ChooseProcedure("Sub Pay");
  EXPECT_THAT(CodeRows(), ElementsAre("Dim a", "Sub Pay()", "End Sub", "Sub Other()", "End Sub"));
  EXPECT_EQ(form.txtCode.ListIndex(), 2);
  EXPECT_EQ(form.lblSub.Caption(), "Sub Pay()");
  ChooseProcedure("Sub Other");
  EXPECT_THAT(CodeRows(), ElementsAre("Sub Other()", "End Sub"));
  ChooseComponent("modMore");
  ChooseProcedure("Sub Pay");
  EXPECT_THAT(CodeRows(), ElementsAre("Dim b", "Dim c", "Sub Pay()", "End Sub", "Sub Other()", "End Sub"));
  EXPECT_EQ(form.txtCode.ListIndex(), 3);
}

TEST_F(CodeView, AProcedureWithANameOfOneLetterIsShownAsABlock) {
  OpenWindow({Bas("modMain", {"Dim x1", "Dim x2", "Dim x3", "", "Sub A()", "    x1 = 1", "End Sub"}),
              Frm("frmMain", {"Dim x", ""})});
  ChooseComponent("modMain");
  ChooseProcedure("Sub A");
  EXPECT_EQ(form.txtCode.List(1), "Dim x1");
  EXPECT_EQ(form.txtCode.ListIndex(), 5);
}

TEST_F(CodeView, ALineInFrontOfItsHeaderIsShownAsABlock) {
  ShowLine(11);
  EXPECT_EQ(form.txtCode.List(1), "Option Explicit");
  EXPECT_EQ(form.txtCode.ListIndex(), 11);
}

TEST_F(CodeView, ALineThatMovedWithinTwoHundredTriesIsFoundByItsText) {
  OpenWindow(Shop());
  ChooseComponent("modMain");
  std::string lines;
  for (int i = 0; i < 100; ++i) lines += "' moved\r\n";
  Module("modMain").InsertLines(4, lines + "' moved");
  ChooseProcedure("First");
  EXPECT_EQ(form.txtCode.List(1), "Public Sub First()");
  EXPECT_EQ(form.lbxProc->ItemData(form.lbxProc->ListIndex()), 5 + 101);
}

TEST_F(CodeView, AMovedLineKeepsItsNewNumberForTheJump) {
  OpenWindow(Shop());
  ChooseComponent("modMain");
  Module("modMain").InsertLines(1, "Private c As Long");
  ChooseProcedure("First");
  form.lbxProc->UserDblClick();
  EXPECT_EQ(SelectionOf("modMain").start_line, 6);
}

TEST_F(CodeView, AComponentThatHasGoneEndsTheClickAndLeavesTheRows) {
  OpenWindow(Shop());
  ChooseComponent("modMain");
  auto components = environment->ActiveVBProject()->VBComponents();
  components->Remove(components->Item("modMain"));
  components->Remove(components->Item("frmMain"));
  toolkit.Guard([&] { ChooseProcedure("First"); });
  EXPECT_EQ(form.lbxProc->ListCount(), 3);
}

TEST_F(CodeView, AProcedureAtTheEndOfItsModuleShowsWhatThereIs) {
  OpenWindow({Bas("modMain", {"Dim a", "Dim b", "", "Sub Last()", "End Sub"}), Frm("frmMain", {"Dim x", ""})});
  ChooseComponent("modMain");
  ChooseProcedure("Last");
  EXPECT_THAT(CodeRows(), ElementsAre("Sub Last()", "End Sub"));
}

TEST_F(CodeView, ARowOfTheGlobalsShowsTheProcedureOfItsModule) {
  OpenWindow(Shop());
  ChooseProcedure("Sum");
  EXPECT_THAT(CodeRows(), ElementsAre("Public Function Sum() As Long", "    Sum = a + b", "End Function"));
}

TEST_F(CodeView, TheDeclarationsRowOfTheGlobalsListsTheProjectAgain) {
  OpenWindow(Shop());
  ChooseProcedure("Sum");
  Module("frmMain").InsertLines(1, "Dim y");
  ChooseProcedure("Declarations");
  EXPECT_THAT(CodeRows(), Contains(HasSubstr("Standart Module: modMain")));
}

TEST_F(CodeView, ABookmarkRowIsFoundByItsModuleAndBecomesARowLikeTheOthers) {
  OpenWindow(Shop());
  form.lbxComp->Clear();
  form.lbxProc->Clear();
  form.lbxComp->AddItem(explorer::kResult);
  form.lbxProc->AddItem("00  " + explorer::BookmarkRow("b = 1", "modMain", 7));
  form.lbxProc->UserSelect(0);
  EXPECT_EQ(form.lbxProc->ItemData(0), 7);
  EXPECT_EQ(explorer::ComponentInTail(form.lbxProc->List(0)), 1);
  EXPECT_EQ(form.txtCode.ListIndex(), 3);
}

TEST_F(CodeView, ABookmarkWhoseModuleHasGoneChangesNothing) {
  OpenWindow(Shop());
  ChooseProcedure("Sum");
  std::vector<std::string> before = CodeRows();
  form.lbxComp->Clear();
  form.lbxProc->Clear();
  form.lbxComp->AddItem(explorer::kResult);
  form.lbxProc->AddItem(explorer::BookmarkRow("b = 1", "modGone", 7));
  form.lbxProc->UserSelect(0);
  EXPECT_EQ(CodeRows(), before);
}

TEST_F(CodeView, AHitOfAnotherProjectIsShownFromThatProject) {
  Open(Shop());
  environment->OpenFromModules("Tools", {Bas("modTools", {"Public a1", "Public a2", "", "", "Sub Mend()", "End Sub"})});
  environment->ActivateProject(environment->Projects().front());
  OpenWindow();
  form.lbxProc->AddItem("_Tools.modTools:    001   Sub Mend()" + explorer::TailOf(1));
  form.lbxProc->SetItemData(form.lbxProc->NewIndex(), 5);
  form.lbxProc->UserSelect(form.lbxProc->NewIndex());
  EXPECT_THAT(CodeRows(), ElementsAre("Sub Mend()", "End Sub"));
}

TEST_F(CodeView, MaxStretchesItOverTheListsAndMinTakesItBack) {
  OpenWindow(Shop());
  forms::Rect before = form.txtCode.Place();
  form.cmdMore.UserClick();
  EXPECT_EQ(form.cmdMore.Caption(), "Min");
  EXPECT_FALSE(form.cmGo.Visible());
  EXPECT_LT(form.txtCode.Top(), form.lbxComp1.Top());
  EXPECT_TRUE(ReachesTheFrames());
  EXPECT_TRUE(form.txtCode.HasFocus());
  form.cmdMore.UserClick();
  EXPECT_EQ(form.cmdMore.Caption(), "Max");
  EXPECT_TRUE(form.cmGo.Visible());
  EXPECT_EQ(form.txtCode.Place(), before);
}

TEST_F(CodeView, AMaximisedViewFollowsTheWindowAndComesBackInItsNewSize) {
  OpenWindow(Shop());
  form.cmdMore.UserClick();
  form.UserResize(11400, 10200);
  EXPECT_TRUE(ReachesTheFrames());
  form.cmdMore.UserClick();
  EXPECT_EQ(form.txtCode.Width(), 11400 - 260);
  EXPECT_TRUE(ReachesTheFrames());
}

TEST_F(CodeView, ColoursGoOffAndOnAndTheRowStays) {
  OpenWindow(Shop());
  ChooseComponent("modMain");
  ChooseProcedure("First");
  form.txtCode.SetStrPos(3);
  form.cmdColor.Click();
  EXPECT_TRUE(form.txtCode.ColorOff);
  EXPECT_EQ(form.cmdColor.Caption(), "On");
  EXPECT_EQ(form.txtCode.ListIndex(), 3);
  EXPECT_EQ(form.txtCode.LineLevel(3), form.txtCode.LineLevel(1));
  form.cmdColor.Click();
  EXPECT_FALSE(form.txtCode.ColorOff);
  EXPECT_EQ(form.cmdColor.Caption(), "Off");
  EXPECT_EQ(form.txtCode.ListIndex(), 3);
  EXPECT_EQ(form.txtCode.LineLevel(3) - form.txtCode.LineLevel(1), 1);
}

TEST_F(CodeView, SwitchingColoursOnInTheViewLoadsTheTextAgain) {
  OpenWindow(Shop());
  ChooseComponent("modMain");
  ChooseProcedure("First");
  form.txtCode.SetStrPos(3);
  form.txtCode.ToggleColor();
  form.txtCode.ToggleColor();
  EXPECT_EQ(form.txtCode.ListIndex(), 3);
  EXPECT_EQ(form.txtCode.LineLevel(3) - form.txtCode.LineLevel(1), 1);
}

TEST_F(CodeView, EscHidesItAndTheNextTextShowsItAgain) {
  OpenWindow(Shop());
  ChooseComponent("modMain");
  ChooseProcedure("First");
  form.txtCode.SetVisible(false);
  form.txtCode.EscapeClicked();
  ChooseProcedure("Sum");
  EXPECT_TRUE(form.txtCode.Visible());
}

TEST_F(CodeView, WhatTheViewCopiedStandsInTheClipBook) {
  OpenWindow(Shop());
  services.clipboard.text = "b = 1";
  form.txtCode.ClipBook();
  EXPECT_EQ(form.txtClip.Text(), "b = 1");
}

TEST_F(CodeView, MaxShowsAViewThatEscHasHidden) {
  OpenWindow(Shop());
  for (const char* caption : {"Min", "Max"}) {
    form.txtCode.SetVisible(false);
    form.cmdMore.UserClick();
    EXPECT_EQ(form.cmdMore.Caption(), caption);
    EXPECT_TRUE(form.txtCode.Visible());
    EXPECT_TRUE(form.txtCode.HasFocus());
  }
}

TEST_F(CodeView, WhatTheMaximisedViewCoversDoesNotTakeTheFocus) {
  OpenWindow(Shop());
  forms::Control* covered[] = {&form.lbxComp1, &form.txtFind,    &form.optFirst,   &form.lbxProc1,
                               &form.txtFproc, &form.optProcAll, &form.optAllProc, &form.optProcSub};
  form.cmdMore.UserClick();
  for (forms::Control* control : covered) {
    EXPECT_THROW(control->SetFocus(), runtime::Error) << control->Name();
    EXPECT_TRUE(form.txtCode.HasFocus()) << control->Name();
  }
  form.optProj.UserClick();
  EXPECT_FALSE(form.lbxProc1.HasFocus());
  form.cmdMore.UserClick();
  for (forms::Control* control : covered) {
    control->SetFocus();
    EXPECT_TRUE(control->HasFocus()) << control->Name();
  }
}

TEST_F(CodeView, AWindowThatWasClosedWithTheViewMaximisedComesUpWithItsLists) {
  OpenWindow(Shop());
  form.cmdMore.UserClick();
  form.Unload();
  form.Show();
  form.lbxComp1.SetFocus();
  EXPECT_TRUE(form.lbxComp1.HasFocus());
}

TEST_F(LongCodeView, AProcedureChosenWhileDeclarationsLoadIsAnalysed) {
  DuringNextYield([&] { ChooseProcedure("Sub Brief"); });
  ChooseProcedure("Declarations");
  EXPECT_THAT(CodeRows(), ElementsAre("Sub Brief()", "    If a Then", "        a = 2", "    End If", "End Sub"));
  EXPECT_EQ(form.txtCode.LineLevel(3) - form.txtCode.LineLevel(1), 1);
}

TEST_F(LongCodeView, AProcedureChosenWhileABlockLoadsEndsWithItsEnd) {
  long block = AddRowFor("modMain", 25);
  DuringNextYield([&] { ChooseProcedure("Sub Brief"); });
  form.lbxProc->UserSelect(block);
  EXPECT_EQ(form.txtCode.ListCount(), 5);
  EXPECT_EQ(form.lblSub.Caption(), "Sub Brief()");
}

TEST_F(LongCodeView, ABlockChosenWhileAProcedureLoadsPassesOneEnd) {
  long block = AddRowFor("modMain", 25);
  DuringNextYield([&] { form.lbxProc->UserSelect(block); });
  ChooseProcedure("Sub Lengthy");
  EXPECT_EQ(form.txtCode.ListCount(), 65);
  EXPECT_EQ(form.txtCode.ListIndex(), 25);
}

TEST_F(LongCodeView, DeclarationsChosenWhileAProcedureLoadsStayAsTheyAre) {
  DuringNextYield([&] { ChooseProcedure("Declarations"); });
  ChooseProcedure("Sub Lengthy");
  EXPECT_EQ(form.txtCode.ListCount(), 30);
  EXPECT_EQ(form.txtCode.StoredText(1), "#If Debugging Then");
  ChooseProcedure("Sub Brief");
  EXPECT_EQ(form.txtCode.LineLevel(3) - form.txtCode.LineLevel(1), 1);
}

TEST_F(LongCodeView, DeclarationsThatAreNoMoreEndTheTextThatLoads) {
  DuringNextYield([&] {
    Module("modMain").DeleteLines(1, 30);
    ChooseProcedure("Declarations");
  });
  ChooseProcedure("Sub Lengthy");
  EXPECT_EQ(form.txtCode.ListCount(), 0);
  EXPECT_EQ(form.lblSub.Caption(), "Declarations");
}

TEST_F(CodeView, ARowChosenWhileATextComesToStandKeepsItsOwnPlace) {
  OpenWindow(Shop());
  ChooseComponent("modMain");
  long inside = AddRowFor("modMain", 7);
  DuringNextYield([&] { form.lbxProc->UserSelect(inside); });
  ChooseProcedure("Sum");
  EXPECT_EQ(form.txtCode.List(1), "Public Sub First()");
  EXPECT_EQ(form.txtCode.ListIndex(), 3);
}

TEST_F(CodeView, ABookmarkWhoseLineMovedIsFoundByItsText) {
  OpenWindow(Shop());
  form.lbxComp->Clear();
  form.lbxProc->Clear();
  form.lbxComp->AddItem(explorer::kResult);
  form.lbxProc->AddItem(explorer::BookmarkRow("b = 1", "modMain", 7));
  Module("modMain").InsertLines(1, "Private c As Long");
  form.lbxProc->UserSelect(0);
  EXPECT_EQ(form.lbxProc->ItemData(0), 8);
  EXPECT_EQ(form.txtCode.ListIndex(), 3);
}

TEST_F(CodeView, TheTitleStaysWithItsTextWhenTheClickFails) {
  OpenWindow(Shop());
  ChooseComponent("modMain");
  ChooseProcedure("First");
  Module("modMain").DeleteLines(6, 55);
  toolkit.Guard([&] { ChooseProcedure("Sum"); });
  EXPECT_EQ(form.txtCode.List(1), "Public Sub First()");
  EXPECT_EQ(form.lblSub.Caption(), "Public Sub First()");
  EXPECT_THAT(toolkit.Faults(), ::testing::SizeIs(1));
}

TEST_F(CodeView, ItsTitleShowsAnAmpersandAsItIs) {
  EXPECT_FALSE(form.lblSub.UseMnemonic());
  EXPECT_FALSE(form.Label5.UseMnemonic());
}

TEST_F(CodeView, AListPairWithoutATextHasNoTitle) {
  OpenWindow(Shop());
  ChooseComponent("modMain");
  ChooseProcedure("First");
  form.optSecond.UserClick();
  EXPECT_EQ(form.txtCode.ListCount(), 0);
  EXPECT_EQ(form.lblSub.Caption(), "");
}

TEST_F(CodeView, AfterALineInsideAProcedureTheNextTextStandsOnItsFirstRow) {
  ShowLine(7);
  EXPECT_EQ(form.txtCode.ListIndex(), 3);
  form.tlbr.UserButtonClick(form.tlbr.PositionOf("Refresh"));
  EXPECT_EQ(form.txtCode.ListCount(), 4);
  EXPECT_EQ(form.txtCode.ListIndex(), 1);
}

TEST_F(CodeView, AProcedureIsAskedForWithFiveLinesMoreAShortOneWith550) {
  Open({Bas("modMain", {"Dim a1", "Dim a2", "Dim a3", "Dim a4", "Sub Three()", "    a1 = 1", "End Sub", "Sub Two()",
                        "End Sub", "Sub Open()"}),
        Frm("frmMain", {"Dim x", ""})});
  auto counting = std::make_shared<CountingHost>(environment);
  form.VBInstance = counting;
  form.Show();
  ChooseComponent("modMain");
  const struct {
    const char* row;
    long line, count;
  } kCases[] = {{"Sub Three", 5, 3 + 5}, {"Sub Two", 8, 550}, {"Sub Open", 10, 550}};
  for (const auto& c : kCases) {
    counting->Module("modMain").asked.clear();
    ChooseProcedure(c.row);
    EXPECT_THAT(counting->Module("modMain").asked, Contains(std::pair(c.line, c.count))) << c.row;
  }
}

// An environment that tells a header's line wrongly.
class MisplacedHeader : public CodeView {
 protected:
  void ShowLine(long line, long shift) {
    Open({Bas("modMain", {"Dim a1", "Sub First()", "End Sub", "", "' Settles a bill.", "", "Sub Pay()", "",
                          "    a1 = 1", "End Sub"}),
          Frm("frmMain", {"Dim x", ""})});
    auto host = std::make_shared<CountingHost>(environment);
    form.VBInstance = host;
    form.Show();
    ChooseComponent("modMain");
    host->Module("modMain").body_line_shift = shift;
    form.lbxProc->UserSelect(AddRowFor("modMain", line));
  }
};

TEST_F(MisplacedHeader, ARightOneStaysThoughABlankLineFollowsIt) {
  ShowLine(9, 0);
  EXPECT_THAT(CodeRows(), ElementsAre("Sub Pay()", "", "    a1 = 1", "End Sub"));
  EXPECT_EQ(form.txtCode.ListIndex(), 3);
}

TEST_F(MisplacedHeader, AnotherLineInFrontOfABlankOneGivesWayToThat) {
  ShowLine(9, -2);
  EXPECT_THAT(CodeRows(), ElementsAre("", "Sub Pay()", "", "    a1 = 1", "End Sub"));
  EXPECT_EQ(form.txtCode.ListIndex(), 4);
}

TEST_F(MisplacedHeader, AnotherLineInFrontOfALongerOneStays) {
  ShowLine(9, -1);
  EXPECT_THAT(CodeRows(), ElementsAre("", "Sub Pay()", "", "    a1 = 1", "End Sub"));
  EXPECT_EQ(form.txtCode.ListIndex(), 4);
}

TEST_F(MisplacedHeader, TheChosenLineIsNeverInFrontOfTheText) {
  ShowLine(5, -2);
  EXPECT_EQ(form.txtCode.List(1), "' Settles a bill.");
  EXPECT_EQ(form.txtCode.List(3), "Sub Pay()");
  EXPECT_EQ(form.txtCode.ListIndex(), 1);
}

TEST_F(CodeView, SwitchingColoursLoadsNothingIntoAnEmptyView) {
  OpenWindow({Frm("frmMain", {"Sub Fill()", "End Sub"}), Frm("frmOther", {"Sub Other()", "End Sub"})});
  ChooseComponent("frmMain");
  ASSERT_EQ(form.txtCode.ListIndex(), 0);
  Module("frmMain").InsertLines(1, "Dim a");
  form.cmdColor.Click();
  EXPECT_THAT(CodeRows(), IsEmpty());
  EXPECT_TRUE(form.txtCode.ColorOff);
}

TEST_F(CodeView, EscGivesTheFocusToTheMainWindow) {
  struct : environment::Observer {
    int focused = 0;
    void MainWindowFocused() override { ++focused; }
  } observer;
  OpenWindow(Shop());
  environment->Observe(&observer);
  form.txtCode.EscapeClicked();
  EXPECT_EQ(observer.focused, 1);
  environment->Observe(nullptr);
}

TEST_F(CodeView, AHitOfAProjectThatHasGoneIsShownFromTheActiveProject) {
  OpenWindow(Shop());
  form.lbxProc->AddItem("_Gone.modTools:    001   Public Sub First()" + explorer::TailOf(1));
  form.lbxProc->SetItemData(form.lbxProc->NewIndex(), 5);
  form.lbxProc->UserSelect(form.lbxProc->NewIndex());
  EXPECT_EQ(form.lblSub.Caption(), "Public Sub First()");
  EXPECT_EQ(form.txtCode.ListCount(), 5);
}

}  // namespace
}  // namespace corvane::tests
