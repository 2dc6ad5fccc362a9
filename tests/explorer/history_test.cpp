// The walk through code points with the keys of the toolbar.
#include "tests/explorer/explorer_fixture.h"

namespace corvane::tests {
namespace {

using explorer::CodePoints;

class History : public ExplorerTest {
 protected:
  History() {
    OpenWindow({
        Frm("frmMain", {"Option Explicit", "Private a As Long", "", "Private Sub Form_Load()", "    Fill basket",
                        "    a = 1", "    a = 2", "End Sub", "", "Sub Fill()", "    a = 3", "    a = 4", "End Sub"}),
        Bas("modMain",
            {"Option Explicit", "Public Total As Long", "", "Public Sub Main()", "    Total = 1", "    Total = 2",
             "    Total = 3", "End Sub", "", "Public Sub Done()", "    Total = 0", "End Sub"}),
        Frm("frmOther", {"Option Explicit", "", "Private Sub Form_Load()", "    Beep", "    Beep", "End Sub"}),
    });
  }
  void Show(const std::string& component, const std::string& procedure) {
    ChooseComponent(component);
    ChooseProcedure(procedure);
  }
  // The user reads a procedure and goes to a row of it in the environment.
  void Visit(const std::string& component, const std::string& procedure, long row) {
    Show(component, procedure);
    form.txtCode.SetStrPos(row);
    form.txtCode.DblClick();
  }
  void Key(const std::string& key) { form.tlbr.UserButtonClick(form.tlbr.PositionOf(key)); }
  void Choose(int entry) { form.tlbr.UserButtonMenuClick(form.tlbr.PositionOf("History"), entry); }
  std::vector<std::string> Enabled() const {
    std::vector<std::string> keys;
    for (int position = 2; position <= 6; ++position)
      if (form.tlbr.Button(position).Enabled) keys.push_back(form.tlbr.Button(position).Key);
    return keys;
  }
  std::vector<std::string> Entries() const {
    std::vector<std::string> texts;
    for (const forms::ButtonMenu& menu : form.tlbr.Button(6).ButtonMenus) texts.push_back(menu.Text);
    return texts;
  }
  // Component, title and row of the code view.
  std::string View() {
    return environment->ActiveVBProject()->VBComponents()->Item(form.GoToCode())->Name() + " " + form.lblSub.Caption() +
           " " + std::to_string(form.txtCode.ListIndex());
  }
  void LeaveCode() {
    form.txtCode.pic.SetFocus();
    form.lbxProc->SetFocus();
  }
};

TEST_F(History, NothingIsRememberedAtFirst) {
  EXPECT_THAT(Enabled(), IsEmpty());
  Show("modMain", "Main()");
  Show("frmMain", "Fill()");
  EXPECT_THAT(Enabled(), IsEmpty()) << "looking is not remembered";
}

TEST_F(History, AJumpIsPushedAtTheNextNavigation) {
  Visit("modMain", "Main()", 3);
  EXPECT_THAT(Entries(), IsEmpty()) << "pending";
  ChooseComponent("frmMain");
  EXPECT_THAT(Entries(), ElementsAre("modMain:        Total = 2            ... Public Sub Main()"));
  EXPECT_THAT(Enabled(), ElementsAre("Previous", "First", "History"));
  EXPECT_EQ(form.points.At(0).line, 4) << "of the procedure's row";
  EXPECT_EQ(form.points.At(0).row, 3);
}

TEST_F(History, TheDropDownShowsTheNewestFirst) {
  Visit("modMain", "Main()", 1);
  Visit("modMain", "Done()", 2);
  Show("frmMain", "Fill()");
  EXPECT_THAT(Entries(), ElementsAre("modMain:    Public Sub Done()", "modMain:    Public Sub Main()"));
}

TEST_F(History, AnAmpersandOfTheCodeIsShownInTheDropDown) {
  Module("modMain").ReplaceLine(6, "    Text = a & b");
  Visit("modMain", "Main()", 3);
  Show("frmMain", "Fill()");
  const std::string entry = "modMain:        Text = a && b         ... Public Sub Main()";
  EXPECT_THAT(Entries(), ElementsAre(entry));
  toolkit.OnPopup("modMain:        Text = a & b         ... Public Sub Main()");
  form.lbxProc->UserKeyDown(forms::vbKeyA + 19, forms::vbCtrlMask);
  EXPECT_EQ(View(), "modMain Public Sub Main() 3") << "in the menu of the toolbar's keys too";
}

TEST_F(History, PreviousComesBackToTheRowThatWasLeft) {
  Visit("modMain", "Main()", 4);
  Show("frmMain", "Fill()");
  Key("Previous");
  EXPECT_EQ(View(), "modMain Public Sub Main() 4");
  EXPECT_THAT(Enabled(), ElementsAre("Next", "Last", "History"));
}

TEST_F(History, NextReturnsToTheViewThatWasLeft) {
  Visit("modMain", "Main()", 4);
  Show("frmMain", "Fill()");
  form.txtCode.SetStrPos(3);
  Key("Previous");
  Key("Next");
  EXPECT_EQ(View(), "frmMain Sub Fill() 3");
  EXPECT_THAT(Enabled(), ElementsAre("Previous", "First", "History"));
}

TEST_F(History, FirstAndLastGoToTheEnds) {
  Visit("modMain", "Main()", 4);
  Visit("modMain", "Done()", 2);
  Visit("frmMain", "Form_Load", 2);
  Show("frmMain", "Fill()");
  Key("First");
  EXPECT_EQ(View(), "modMain Public Sub Main() 4");
  EXPECT_THAT(Enabled(), ElementsAre("Next", "Last", "History"));
  Key("Next");
  EXPECT_EQ(View(), "modMain Public Sub Done() 2");
  EXPECT_THAT(Enabled(), ElementsAre("Previous", "Next", "First", "Last", "History"));
  Key("Last");
  EXPECT_EQ(View(), "frmMain Sub Fill() 1");
  EXPECT_EQ(form.points.Count(), 4);
}

TEST_F(History, PreviousPassesOverEntriesOfTheTitleInView) {
  Visit("modMain", "Main()", 4);
  Visit("frmMain", "Form_Load", 2);
  Show("frmOther", "Form_Load");
  Key("Previous");
  EXPECT_EQ(View(), "modMain Public Sub Main() 4");
}

TEST_F(History, AChoiceOfTheDropDownGoesToThatPoint) {
  Visit("modMain", "Main()", 4);
  Visit("modMain", "Done()", 2);
  Visit("frmMain", "Form_Load", 3);
  Show("frmMain", "Fill()");
  Choose(2);
  EXPECT_EQ(View(), "modMain Public Sub Done() 2");
  EXPECT_EQ(form.points.Index(), 1);
  EXPECT_EQ(Entries().size(), 4u) << "the view that was left is remembered";
}

TEST_F(History, OfAFullHistoryTheChosenPointIsGoneTo) {
  for (int i = 0; i < 15; ++i) {
    Visit("modMain", i % 2 ? "Main()" : "Done()", 2);
    Visit("frmMain", i % 2 ? "Fill()" : "Form_Load", 2);
  }
  Show("frmOther", "Form_Load");
  ASSERT_EQ(form.points.Count(), CodePoints::kMost);
  for (int entry : {14, 13}) {
    form.points.GoPastNewest();
    const std::string text = form.points.At(CodePoints::kMost - entry).text;
    Choose(entry);
    EXPECT_EQ(form.points.At(form.points.Index()).text, text) << entry;
  }
}

TEST_F(History, TheFifteenthPointDropsTheOldest) {
  for (int i = 0; i < 7; ++i) {
    Visit("modMain", "Main()", 2);
    Visit("frmMain", "Fill()", 2);
  }
  Visit("modMain", "Done()", 2);
  ChooseComponent("frmMain");
  EXPECT_EQ(Entries().size(), 14u);
  EXPECT_EQ(Entries().front(), "modMain:    Public Sub Done()");
  EXPECT_EQ(Entries().back(), "frmMain:    Sub Fill()");
}

TEST_F(History, TheSameProcedureVisitedTwiceUpdatesOneEntry) {
  Visit("modMain", "Main()", 3);
  Visit("modMain", "Main()", 5);
  ChooseComponent("frmMain");
  ASSERT_EQ(Entries().size(), 1u);
  EXPECT_EQ(form.points.At(0).row, 5);
}

TEST_F(History, LeavingTheCodeUpdatesTheRow) {
  Visit("modMain", "Main()", 3);
  form.txtCode.SetStrPos(5);
  LeaveCode();
  ASSERT_EQ(form.points.Count(), 1);
  EXPECT_EQ(form.points.At(0).row, 5);
  EXPECT_THAT(Enabled(), ElementsAre("Previous", "First", "History"));
}

TEST_F(History, LeavingCodeThatWasOnlyReadRemembersNothing) {
  Visit("modMain", "Main()", 3);
  Show("frmMain", "Fill()");
  LeaveCode();
  ASSERT_EQ(form.points.Count(), 1);
  EXPECT_EQ(form.points.At(0).row, 3) << "and no row of another view";
}

TEST_F(History, SaveIntoHistoryRemembersTheView) {
  Show("modMain", "Main()");
  form.txtCode.SetStrPos(4);
  form.txtCode.CodeLostFocus(-4);
  EXPECT_THAT(Entries(), IsEmpty());
  Show("frmMain", "Fill()");
  EXPECT_THAT(Entries(), ElementsAre("modMain:        Total = 3            ... Public Sub Main()"));
}

TEST_F(History, APointOutOfTheListIsListedAgainWithItsModule) {
  Visit("modMain", "Main()", 4);
  Show("frmMain", "Fill()");
  const long rows = form.lbxProc->ListCount();
  Key("Previous");
  EXPECT_EQ(form.lbxProc->ListCount(), rows + 1);
  EXPECT_EQ(explorer::ShownText(form.lbxProc->Text()), "modMain:    Public Sub Main()");
  Key("Next");
  Key("Previous");
  EXPECT_EQ(form.lbxProc->ListCount(), rows + 1) << "and found the next time";
}

TEST_F(History, ARowThatIsStillListedIsSelected) {
  Visit("modMain", "Main()", 4);
  ChooseProcedure("Done()");
  const std::vector<std::string> rows = Procedures();
  Key("Previous");
  EXPECT_EQ(Procedures(), rows);
  EXPECT_EQ(explorer::ShownText(form.lbxProc->Text()), "Public Sub Main()");
}

TEST_F(History, ARowOfALaterLineIsNotThePoint) {
  Visit("modMain", "Main()", 4);
  ChooseProcedure("Done()");
  form.points.GoPastNewest();
  const long main = RowOf(Procedures(), "Main()");
  form.lbxProc->SetItemData(main, 5);
  Key("Previous");
  EXPECT_EQ(explorer::ShownText(form.lbxProc->Text()), "modMain:    Public Sub Main()");
  EXPECT_EQ(form.lbxProc->ItemData(form.lbxProc->ListIndex()), 4);
}

TEST_F(History, APointOfTheDeclarationsOpensTheirModule) {
  ChooseComponent("modMain");
  form.txtCode.DblClick();
  Show("frmMain", "Fill()");
  EXPECT_THAT(Entries(), ElementsAre("modMain:     Declarations"));
  Key("Previous");
  EXPECT_THAT(CodeRows()[0], "Option Explicit");
  EXPECT_EQ(form.GoToCode(), 2);
}

TEST_F(History, APointOfTheGlobalsIsOfTheTitlesModule) {
  form.txtCode.SetStrPos(2);
  form.txtCode.DblClick();
  Show("frmMain", "Fill()");
  EXPECT_THAT(Entries(), ElementsAre("modMain:     Declarations"));
}

TEST_F(History, FromTheCurrentCodeItGoesToTheProject) {
  Visit("modMain", "Main()", 4);
  Caret("frmMain", 11);
  form.optCurMod.UserClick();
  ASSERT_TRUE(form.optCurMod.Value());
  Key("Previous");
  EXPECT_TRUE(form.optProj.Value());
  EXPECT_EQ(View(), "modMain Public Sub Main() 4");
  EXPECT_THAT(Components(), Contains("frmOther"));
}

TEST_F(History, TheCaretsRowIsRememberedWithoutItsLabel) {
  Caret("modMain", 6);
  form.optCurMod.UserClick();
  ASSERT_THAT(form.lbxProc->Text(), StartsWith("A current line:    "));
  form.txtCode.DblClick();
  form.optProj.UserClick();
  EXPECT_THAT(Entries(), ElementsAre("modMain:        Total = 2            ... Total = 2"));
}

TEST_F(History, ListingTheProjectRemembersTheView) {
  Show("modMain", "Main()");
  form.txtCode.SetStrPos(3);
  Key("Refresh");
  EXPECT_THAT(Entries(), ElementsAre("modMain:        Total = 2            ... Public Sub Main()"));
  EXPECT_THAT(Enabled(), ElementsAre("Previous", "First", "History"));
}

TEST_F(History, PointsSurviveARefill) {
  Visit("modMain", "Main()", 4);
  Key("Refresh");
  form.axForms.Click();
  EXPECT_THAT(Entries(), ElementsAre("modMain:        Total = 3            ... Public Sub Main()"));
  Key("Previous");
  EXPECT_EQ(View(), "modMain Public Sub Main() 4");
}

TEST_F(History, AListOfSearchResultsIsNoPoint) {
  Show("modMain", "Main()");
  form.lblSub.SetCaption(explorer::kSearchResult);
  EXPECT_FALSE(form.SavePendingPoint());
  EXPECT_THAT(Entries(), IsEmpty());
}

TEST_F(History, WithoutATitleNothingIsPushed) {
  Show("modMain", "Main()");
  form.lblSub.SetCaption("");
  EXPECT_FALSE(form.SavePendingPoint());
}

TEST_F(History, AStepIsNotItselfRemembered) {
  Visit("modMain", "Main()", 4);
  Visit("modMain", "Done()", 2);
  Show("frmMain", "Fill()");
  Key("Previous");
  Key("Previous");
  Key("Next");
  Key("Next");
  EXPECT_EQ(form.points.Count(), 3);
  EXPECT_EQ(View(), "frmMain Sub Fill() 1");
}

TEST_F(History, ChoosingAnotherRowLeavesTheHistory) {
  Visit("modMain", "Main()", 4);
  Show("frmMain", "Fill()");
  Key("Previous");
  Show("frmMain", "Form_Load");
  EXPECT_TRUE(form.points.IsPastNewest());
  EXPECT_THAT(Enabled(), ElementsAre("Previous", "First", "History"));
}

TEST_F(History, AComponentThatHasGoneStopsTheStep) {
  Visit("frmOther", "Form_Load", 3);
  Show("modMain", "Main()");
  auto components = environment->ActiveVBProject()->VBComponents();
  components->Remove(components->Item("frmOther"));
  Key("Previous");
  EXPECT_THAT(toolkit.Faults(), IsEmpty());
  EXPECT_THAT(Messages(), IsEmpty());
  Show("frmMain", "Fill()");
  EXPECT_EQ(View(), "frmMain Sub Fill() 1");
}

TEST_F(History, KeysOfTheKeyboard) {
  Visit("modMain", "Main()", 4);
  Visit("modMain", "Done()", 2);
  Show("frmMain", "Fill()");
  const auto press = [&](int key) { form.lbxProc->UserKeyDown(key, forms::vbAltMask); };
  press(forms::vbKeyLeft);
  EXPECT_EQ(View(), "modMain Public Sub Done() 2");
  press(forms::vbKeyHome);
  EXPECT_EQ(View(), "modMain Public Sub Main() 4");
  press(forms::vbKeyRight);
  EXPECT_EQ(View(), "modMain Public Sub Done() 2");
  press(forms::vbKeyEnd);
  EXPECT_EQ(View(), "frmMain Sub Fill() 1");
}

TEST_F(History, IsForgottenWithTheWindow) {
  Visit("modMain", "Main()", 4);
  Show("frmMain", "Fill()");
  Key("Previous");
  Key("pExit");
  OpenWindow();
  EXPECT_THAT(Enabled(), IsEmpty());
  EXPECT_THAT(Entries(), IsEmpty());
}

TEST_F(History, NeverWritesToAModule) {
  Visit("modMain", "Main()", 4);
  Show("frmMain", "Fill()");
  Key("Previous");
  form.cmdPrev.Click();
  EXPECT_FALSE(environment->IsDirty());
}

TEST_F(History, AMovedProcedureIsFoundAgain) {
  Visit("modMain", "Done()", 2);
  Show("frmMain", "Fill()");
  Module("modMain").InsertLines(4, "' a comment\r\n' and one more");
  Key("Previous");
  EXPECT_EQ(View(), "modMain Public Sub Done() 2");
  EXPECT_EQ(form.lbxProc->ItemData(form.lbxProc->ListIndex()), 12);
}

// What the user does in the yield of a step.
class HistoryDuringAStep : public History {
 protected:
  void StepBack(const std::function<void()>& act) {
    bool done = false;
    services.loop.on_do_events = [&] {
      if (!std::exchange(done, true)) act();
    };
    Key("Previous");
    services.loop.on_do_events = nullptr;
    EXPECT_TRUE(done);
  }
};

TEST_F(HistoryDuringAStep, AnotherStepIsNotTaken) {
  Visit("modMain", "Main()", 4);
  Visit("modMain", "Done()", 2);
  for (const char* key : {"Previous", "Next", "First", "Last"}) {
    Show("frmMain", "Fill()");
    StepBack([&] { Key(key); });
    EXPECT_EQ(View(), "modMain Public Sub Done() 2") << key;
  }
  Show("frmMain", "Fill()");
  StepBack([this] { Choose(static_cast<int>(Entries().size())); });
  EXPECT_EQ(View(), "modMain Public Sub Done() 2");
}

TEST_F(HistoryDuringAStep, NothingIsPushed) {
  Visit("modMain", "Main()", 4);
  Show("frmMain", "Fill()");
  StepBack([this] {
    form.txtCode.SetStrPos(3);
    form.txtCode.CodeLostFocus(-3);
    form.txtCode.CodeLostFocus(3);
  });
  EXPECT_EQ(form.points.Count(), 2);
  EXPECT_EQ(form.points.Index(), 0);
}

TEST_F(HistoryDuringAStep, TheWindowMayBeClosed) {
  Visit("modMain", "Main()", 4);
  Show("frmMain", "Fill()");
  StepBack([this] {
    form.Unload();
    OpenWindow();
  });
  EXPECT_THAT(toolkit.Faults(), IsEmpty());
  EXPECT_THAT(Enabled(), IsEmpty());
}

}  // namespace
}  // namespace corvane::tests
