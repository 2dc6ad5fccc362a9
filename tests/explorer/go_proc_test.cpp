// A word of the code view that is looked for in the project.
#include "codelist/reading_commands.h"
#include "tests/explorer/explorer_fixture.h"

namespace corvane::tests {
namespace {

class GoProc : public ExplorerTest {
 protected:
  const Sources kShop = {
      Frm("frmMain", {"Option Explicit",
                      "Private mStore As clsStore",
                      "Public WithEvents Timer As clsTimer",
                      "",
                      "Private Sub Form_Load()",
                      "    Dim n As Long",
                      "    Set Basket = New clsBasket",
                      "    Basket.Fill 1",
                      "    mStore.Fill n",
                      "    Depot.Count",
                      "    Total = Rate(n)",
                      "    Main",
                      "    Helper",
                      "    Nowhere",
                      "End Sub",
                      "",
                      "Private Sub Helper()",
                      "    Beep",
                      "    Beep",
                      "End Sub"}),
      Bas("modMain",
          {"Option Explicit", "Public Total As Long", "Public Const Most = 9", "Public Depot As New clsDepot",
           "Public Declare Sub Sleep Lib \"shop\" (ByVal ms As Long)", "", "Public Sub Main()", "    Beep", "End Sub",
           "", "Public Function Rate(ByVal a As Long) As Long", "    Rate = 1", "End Function"}),
      Cls("clsStore",
          {"Option Explicit", "Private mCount As Long", "", "Public Sub Fill(ByVal n As Long)", "    Beep", "End Sub"}),
      Cls("clsBasket",
          {"Option Explicit", "Private mCount As Long", "", "Public Sub Fill(ByVal n As Long)", "    Beep", "End Sub"}),
      Cls("clsDepot", {"Option Explicit", "Private mCount As Long", "", "Public Property Get Count() As Long",
                       "    Beep", "End Property"}),
      Cls("clsTimer", {"Option Explicit", "Private mTicks As Long", "", "Public Sub Helper()", "    Beep", "End Sub"}),
  };
  void Read(const std::string& component, const std::string& procedure) {
    ChooseComponent(component);
    ChooseProcedure(procedure);
  }
  // Component and title of what is shown.
  std::string View() {
    const long index = form.GoToCode();
    if (index < 1) return "";
    return environment->ActiveVBProject()->VBComponents()->Item(index)->Name() + " " + form.lblSub.Caption();
  }
  std::string SelectedRow() const { return explorer::ShownText(form.lbxProc->Text()); }
};

TEST_F(GoProc, AProcedureOfTheModuleInView) {
  OpenWindow(kShop);
  Read("frmMain", "Form_Load");
  form.txtCode.GoProc("Helper");
  EXPECT_EQ(View(), "frmMain Private Sub Helper()");
  EXPECT_EQ(SelectedRow(), "Private Sub Helper()");
}

TEST_F(GoProc, AProcedureOfAStandardModuleIsListedWithItsName) {
  OpenWindow(kShop);
  Read("frmMain", "Form_Load");
  const long rows = form.lbxProc->ListCount();
  form.txtCode.GoProc("Main");
  EXPECT_EQ(View(), "modMain Public Sub Main()");
  EXPECT_EQ(SelectedRow(), "modMain:    001   Public Sub Main()");
  EXPECT_EQ(form.lbxProc->ItemData(form.lbxProc->ListIndex()), 7);
  EXPECT_EQ(form.lbxProc->ListCount(), rows + 1);
  EXPECT_EQ(form.lbxComp->Text(), "frmMain") << "the list stays that of the component";
}

TEST_F(GoProc, AnotherModulesProcedureOfTheNameInViewIsNotTaken) {
  OpenWindow(kShop);
  Read("clsTimer", "Helper()");
  form.txtCode.GoProc("Helper");
  EXPECT_EQ(View(), "clsTimer Public Sub Helper()");
}

TEST_F(GoProc, AClassInFrontOfTheDot) {
  OpenWindow(kShop);
  Read("frmMain", "Form_Load");
  form.txtCode.GoProc("CLSBASKET.Fill");
  EXPECT_EQ(View(), "clsBasket Public Sub Fill(ByVal n As Long)");
}

TEST_F(GoProc, AVariableOfTheModuleInFrontOfTheDot) {
  OpenWindow(kShop);
  Read("frmMain", "Form_Load");
  form.txtCode.GoProc("MSTORE.Fill");
  EXPECT_EQ(View(), "clsStore Public Sub Fill(ByVal n As Long)");
}

TEST_F(GoProc, AVariableOfAStandardModuleInFrontOfTheDot) {
  OpenWindow(kShop);
  Read("frmMain", "Form_Load");
  form.txtCode.GoProc("DEPOT.Count");
  EXPECT_EQ(View(), "clsDepot Public Property Get Count() As Long");
}

TEST_F(GoProc, AnUnknownObjectIsTheComponentOfTheRow) {
  OpenWindow(kShop);
  Read("frmMain", "Form_Load");
  form.txtCode.GoProc("WHOEVER.Helper");
  EXPECT_EQ(View(), "frmMain Private Sub Helper()");
}

TEST_F(GoProc, WithoutARowAnUnknownObjectIsTheActiveModule) {
  OpenWindow(kShop);
  Caret("clsStore", 4);
  ChooseComponent("frmMain");
  form.txtCode.GoProc("WHOEVER.Fill");
  EXPECT_EQ(View(), "clsStore Public Sub Fill(ByVal n As Long)");
}

TEST_F(GoProc, DeclarationsOfAllForms) {
  OpenWindow(kShop);
  const struct {
    const char *word, *row;
  } kCases[] = {
      {" TOTAL", "modMain:    001   Public Total As Long"},
      {" MOST", "modMain:    001   Public Const Most = 9"},
      {" SLEEP", "modMain:    001   Public Declare Sub Sleep Lib \"shop\" (ByVal ms As Long)"},
      {" RATE()", "Public Function Rate(ByVal a As Long) As Long"},
      {" MSTORE", "frmMain:    001   Private mStore As clsStore"},
  };
  for (const auto& c : kCases) {
    form.tlbr.UserButtonClick(form.tlbr.PositionOf("Refresh"));
    if (c.row[0] == 'P') {
      Read("modMain", "Main()");
    } else {
      Read("frmMain", "Form_Load");
    }
    form.txtCode.GoProc(c.word);
    EXPECT_EQ(SelectedRow(), c.row) << c.word;
  }
}

TEST_F(GoProc, TheDeclarationsLineIsStoodOn) {
  OpenWindow(kShop);
  Read("frmMain", "Form_Load");
  form.txtCode.GoProc(" DEPOT");
  EXPECT_EQ(form.txtCode.List(form.txtCode.ListIndex()), "Public Depot As New clsDepot");
}

TEST_F(GoProc, AWordThatIsNowhereEndsWithoutAMessage) {
  OpenWindow(kShop);
  Read("frmMain", "Form_Load");
  const std::vector<std::string> rows = Rows(*form.lbxProc), code = CodeRows();
  for (const char* word : {"Nowhere", " NOWHERE", " NOWHERE()", "NOBODY.Nowhere"}) {
    form.txtCode.GoProc(word);
    EXPECT_EQ(Rows(*form.lbxProc), rows) << word;
    EXPECT_EQ(CodeRows(), code) << word;
  }
  EXPECT_THAT(Messages(), IsEmpty());
  EXPECT_THAT(toolkit.Faults(), IsEmpty());
}

TEST_F(GoProc, ClassesAreNotLookedThroughForABareWord) {
  OpenWindow(kShop);
  Read("frmMain", "Form_Load");
  form.txtCode.GoProc("Fill");
  EXPECT_EQ(View(), "frmMain Private Sub Form_Load()");
}

TEST_F(GoProc, AVariableOfAnotherClassIsNotTheObject) {
  OpenWindow(kShop);
  Read("clsTimer", "Helper()");
  form.txtCode.GoProc("MSTORE.Fill");
  EXPECT_EQ(View(), "clsTimer Public Sub Helper()");
}

TEST_F(GoProc, WithoutAComponentInViewTheRowsAreLookedThrough) {
  OpenWindow(kShop);
  form.txtCode.SetStrPos(1);
  ASSERT_EQ(form.GoToCode(), 0) << "on a title";
  form.txtCode.GoProc("Main");
  EXPECT_EQ(View(), "modMain Public Sub Main()");
  form.tlbr.UserButtonClick(form.tlbr.PositionOf("Refresh"));
  form.txtCode.SetStrPos(1);
  const long rows = form.lbxProc->ListCount();
  form.txtCode.GoProc("Nowhere");
  EXPECT_EQ(form.lbxProc->ListCount(), rows);
}

TEST_F(GoProc, ThePlaceThatIsLeftIsRememberedBeforeTheYield) {
  OpenWindow(kShop);
  Read("frmMain", "Form_Load");
  form.txtCode.CodeLostFocus(-1);
  long remembered = -1;
  services.loop.on_do_events = [&] {
    if (remembered < 0) remembered = form.points.Count();
  };
  form.txtCode.GoProc("Helper");
  services.loop.on_do_events = nullptr;
  EXPECT_EQ(remembered, 1);
}

TEST_F(GoProc, TheListBeforeItIsCopied) {
  OpenWindow(kShop);
  Read("frmMain", "Form_Load");
  form.txtCode.GoProc("Main");
  ASSERT_TRUE(form.cmdPrev.Enabled());
  form.cmdPrev.Click();
  EXPECT_EQ(SelectedRow(), "Private Sub Form_Load()");
  EXPECT_THAT(Procedures(), Not(Contains(HasSubstr("Sub Main()"))));
  form.cmdNext.Click();
  EXPECT_EQ(SelectedRow(), "modMain:    001   Public Sub Main()");
}

TEST_F(GoProc, FromTheCurrentCodeTheModeIsTheProject) {
  Open(kShop);
  Caret("frmMain", 8);
  OpenWindow();
  form.optCurMod.UserClick();
  form.txtCode.GoProc("Main");
  EXPECT_EQ(View(), "modMain Public Sub Main()");
  EXPECT_TRUE(form.optProj.Value());
  EXPECT_FALSE(form.optCurMod.Value());
}

TEST_F(GoProc, FromTheGlobalsTheTitlesModuleIsSearched) {
  OpenWindow(kShop);
  form.txtCode.SetStrPos(4);
  form.txtCode.GoProc("Main");
  EXPECT_EQ(View(), "modMain Public Sub Main()");
}

TEST_F(GoProc, ALostProjectIsPassedOver) {
  OpenWindow(kShop);
  Read("frmMain", "Form_Load");
  form.VBInstance = environment::Environment::Create(services.files);  // no project is open
  form.txtCode.GoProc("Main");
  EXPECT_THAT(toolkit.Faults(), IsEmpty());
}

TEST_F(GoProc, AListingDuringTheYieldHasItsWay) {
  OpenWindow(kShop);
  Read("frmMain", "Form_Load");
  bool done = false;
  services.loop.on_do_events = [&] {
    if (!std::exchange(done, true)) form.axClasses.Click();
  };
  form.txtCode.GoProc("Main");
  services.loop.on_do_events = nullptr;
  EXPECT_EQ(form.lbxComp->Text(), "clsBasket");
}

TEST_F(GoProc, GotoProcFollowsAnAssignmentIntoItsClass) {
  OpenWindow(kShop);
  Read("frmMain", "Form_Load");
  ChooseOnWord("Basket.Fill 1", "Basket.Fill", "Goto Proc \"Basket.Fill\"");
  EXPECT_EQ(View(), "clsBasket Public Sub Fill(ByVal n As Long)");
}

TEST_F(GoProc, GotoProcFollowsADeclarationIntoItsClass) {
  OpenWindow(kShop);
  Read("frmMain", "Form_Load");
  ChooseOnWord("mStore.Fill n", "mStore.Fill", "Goto Proc \"mStore.Fill\"");
  EXPECT_EQ(View(), "clsStore Public Sub Fill(ByVal n As Long)");
}

TEST_F(GoProc, GotoDeclarationLooksInTheCodeAboveFirst) {
  OpenWindow(kShop);
  Read("frmMain", "Form_Load");
  ChooseOnWord("Total = Rate(n)", "(n", "Goto \"n\" Declaration");
  EXPECT_EQ(View(), "frmMain Private Sub Form_Load()");
}

TEST_F(GoProc, GotoDeclarationGoesToTheOtherModuleAndBack) {
  OpenWindow(kShop);
  Read("frmMain", "Form_Load");
  ChooseOnWord("Total = Rate(n)", "Total", "Goto \"Total\" Declaration");
  EXPECT_EQ(SelectedRow(), "modMain:    001   Public Total As Long");
  form.tlbr.UserButtonClick(form.tlbr.PositionOf("Previous"));
  EXPECT_EQ(View(), "frmMain Private Sub Form_Load()");
  EXPECT_THAT(form.txtCode.List(form.txtCode.ListIndex()), HasSubstr("Total = Rate(n)"));
}

TEST_F(GoProc, TheMenuOffersItsSearches) {
  OpenWindow(kShop);
  Read("frmMain", "Form_Load");
  ChooseOnWord("Total = Rate(n)", "Rate", "");
  using enum codelist::ListEntry;
  for (codelist::ListEntry entry : {mnuSearch, mnuSearchLocal, mnuSearchAll, mnuGoProc, mnuDeclare, mnuHistory})
    EXPECT_TRUE(form.txtCode.Reading().menu[entry].Enabled()) << form.txtCode.Reading().menu[entry].Caption();
  EXPECT_FALSE(form.txtCode.Reading().menu[mnuDBFind].Enabled());
}

TEST_F(GoProc, SaveIntoHistoryFromTheMenu) {
  OpenWindow(kShop);
  Read("frmMain", "Form_Load");
  ChooseOnWord("Total = Rate(n)", "Rate", "Save into History");
  ChooseComponent("modMain");
  ASSERT_EQ(form.points.Count(), 1);
  EXPECT_EQ(form.points.Caption(0), "frmMain:        Total = Rate(n)      ... Private Sub Form_Load()");
}

}  // namespace
}  // namespace corvane::tests
