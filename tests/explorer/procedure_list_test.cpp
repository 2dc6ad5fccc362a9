// The list of procedures in the window: its filters, its keys.
#include "environment/observer.h"
#include "tests/explorer/explorer_fixture.h"
#include "tests/support/counting_host.h"

namespace corvane::tests {
namespace {

class ProcedureList : public ExplorerTest {
 protected:
  const Sources kShop = {
      Bas("modMain", {"Public Total As Long", "", "Public Sub Main()", "End Sub", "", "Private Sub Tidy()", "End Sub",
                      "", "Private Sub cmd_Click()", "End Sub", "", "Public Function Sum(a_b)", "End Function", "",
                      "Public Property Get Size()", "End Property", "", "Static Sub Count()", "End Sub"}),
      Frm("frmMain", {"Option Explicit", "", "Private Sub Form_Load()", "End Sub", "", "Public Sub Fill()", "End Sub"}),
      Frm("frmOther", {"Option Explicit", "", "Private Sub Form_Load()", "End Sub"}),
  };
  std::vector<std::string> Listed() const {
    std::vector<std::string> rows = Procedures();
    rows.erase(rows.begin());
    return rows;
  }
  CountingHost& OpenCounting(const Sources& sources) {
    Open(sources);
    counting = std::make_shared<CountingHost>(environment);
    form.VBInstance = counting;
    form.Show();
    return *counting;
  }
  void ExpectAReadyWindow() {
    EXPECT_EQ(services.screen.MousePointer(), host::vbDefault);
    EXPECT_TRUE(form.lbxProc->Visible());
    EXPECT_THAT(toolkit.Faults(), IsEmpty());
    EXPECT_THAT(Messages(), IsEmpty());
    form.lbxProc->UserSelect(1);
    EXPECT_EQ(form.lblSub.Caption(), Procedures()[1]) << "a click is answered";
  }

  std::shared_ptr<CountingHost> counting;
};

TEST_F(ProcedureList, EachFilterOfTheGlobals) {
  const struct {
    const char* option;
    std::vector<std::string> rows;
  } kCases[] = {
      {"optProcSub", {"Private Sub Tidy()", "Public Sub Main()", "Static Sub Count()"}},
      {"optProcFunc", {"Public Function Sum(a_b)"}},
      {"optProcProp", {"Public Property Get Size()"}},
      {"optProcEvent", {"Private Sub cmd_Click()"}},
      {"optProcAll",
       {"Private Sub cmd_Click()", "Private Sub Tidy()", "Public Function Sum(a_b)", "Public Property Get Size()",
        "Public Sub Main()", "Static Sub Count()"}},
      {"optProcPubl", {"Public Function Sum(a_b)", "Public Property Get Size()", "Public Sub Main()"}},
      {"optProcPriv", {"Private Sub cmd_Click()", "Private Sub Tidy()"}},
      {"optProcStat", {"Static Sub Count()"}},
      {"optAllProc",
       {"Private Sub cmd_Click()", "Private Sub Tidy()", "Public Function Sum(a_b)", "Public Property Get Size()",
        "Public Sub Main()", "Static Sub Count()"}},
  };
  OpenWindow(kShop);
  for (const auto& c : kCases) {
    ClickOn(*static_cast<forms::OptionButton*>(form.Find(c.option)));
    EXPECT_EQ(Listed(), c.rows) << c.option;
    EXPECT_TRUE(static_cast<forms::OptionButton*>(form.Find(c.option))->Value()) << c.option;
  }
}

TEST_F(ProcedureList, EventsChooseAllVisibilities) {
  OpenWindow(kShop);
  ClickOn(form.optProcPubl);
  ClickOn(form.optProcEvent);
  EXPECT_TRUE(form.optAllProc.Value());
  EXPECT_THAT(Listed(), ElementsAre("Private Sub cmd_Click()"));
}

TEST_F(ProcedureList, EventsListOnceThoughTheyChooseAllVisibilities) {
  CountingHost& host = OpenCounting(kShop);
  auto scans = [&](forms::OptionButton& option) {
    host.Module("modMain").calls.clear();
    ClickOn(option);
    return host.Module("modMain").calls["ProcOfLine"];
  };
  ClickOn(form.optProcSub);
  const long once = scans(form.optProcEvent);
  ASSERT_EQ(once, 1);
  ClickOn(form.optProcSub);
  ClickOn(form.optProcPubl);
  EXPECT_EQ(scans(form.optProcEvent), once);
  EXPECT_TRUE(form.optAllProc.Value());
  EXPECT_TRUE(form.optProcEvent.Value());
}

TEST_F(ProcedureList, AllVisibilitiesChooseAllEntriesUnlessEventsAreShown) {
  OpenWindow(kShop);
  ClickOn(form.optProcFunc);
  ClickOn(form.optProcPubl);
  ClickOn(form.optAllProc);
  EXPECT_TRUE(form.optProcAll.Value());
  ClickOn(form.optProcEvent);
  ClickOn(form.optProcPriv);
  ClickOn(form.optAllProc);
  EXPECT_TRUE(form.optProcEvent.Value());
}

TEST_F(ProcedureList, ASecondPressOnTheChosenFilterListsAgain) {
  OpenWindow(kShop);
  ClickOn(form.optProcFunc);
  Module("modMain").InsertLines(12, "Public Function New1()\r\nEnd Function");
  ClickOn(form.optProcFunc);
  EXPECT_THAT(Listed(), ElementsAre("Public Function New1()", "Public Function Sum(a_b)"));
}

TEST_F(ProcedureList, AFilterClickOnAChosenComponentTakesTheFilterBack) {
  OpenWindow(kShop);
  ChooseComponent("frmMain");
  ClickOn(form.optProcEvent);
  EXPECT_TRUE(form.optProcAll.Value());
  EXPECT_THAT(Listed(), ElementsAre("Private Sub Form_Load()", "Public Sub Fill()"));
}

TEST_F(ProcedureList, TheNameFilterServesOneScan) {
  OpenWindow(kShop);
  ChooseComponent("modMain");
  form.txtFproc.SetText("su");
  Press(form.txtFproc, forms::vbKeyReturn);
  EXPECT_EQ(form.txtFproc.Text(), "");
  EXPECT_THAT(Listed(), Contains("Public Function Sum(a_b)"));
  EXPECT_THAT(Listed(), Not(Contains("Public Property Get Size()")));
  Press(form.txtFproc, forms::vbKeyReturn);
  EXPECT_EQ(Listed().size(), 6u);
}

TEST_F(ProcedureList, InTheGlobalsTheNameFilterServesTheFirstModuleAlone) {
  OpenWindow({Bas("modA", {"Public a", "", "Sub Pay()", "End Sub", "Sub Other()", "End Sub"}),
              Bas("modB", {"Public b", "", "Sub Work()", "End Sub"})});
  form.txtFproc.SetText("pay");
  Press(form.txtFproc, forms::vbKeyReturn);
  EXPECT_THAT(Listed(), ElementsAre("Sub Pay()", "Sub Work()"));
}

TEST_F(ProcedureList, ARowWithALabelShowsItsNumberInThreeDigits) {
  OpenWindow(kShop);
  ChooseComponent("modMain");
  form.AddProcedureRow(Module("modMain"), 3, "modMain", 7);
  EXPECT_THAT(Rows(*form.lbxProc), Contains("modMain:    007   Public Sub Main()" + explorer::TailOf(1)));
  EXPECT_EQ(form.lbxProc->ItemData(form.lbxProc->NewIndex()), 3);
}

TEST_F(ProcedureList, ALabelOfOneLetterIsNotShown) {
  OpenWindow(kShop);
  ChooseComponent("modMain");
  form.AddProcedureRow(Module("modMain"), 3, "m", 7);
  EXPECT_EQ(form.lbxProc->List(form.lbxProc->NewIndex()), "Public Sub Main()" + explorer::TailOf(1));
}

TEST_F(ProcedureList, AScanThatFailsLeavesTheRowsItHasFound) {
  CountingHost& host = OpenCounting(kShop);
  host.Module("modMain").fail_lines_from = 11;
  ChooseComponent("modMain");
  EXPECT_THAT(Listed(), ElementsAre("Private Sub cmd_Click()", "Private Sub Tidy()", "Public Sub Main()"));
  host.Module("modMain").fail_lines_from = 0;
  ExpectAReadyWindow();
}

TEST_F(ProcedureList, InTheGlobalsAScanThatFailsIsOfItsModuleAlone) {
  CountingHost& host = OpenCounting({Bas("modA", {"Public a", "", "Sub Pay()", "End Sub", "Sub Other()", "End Sub"}),
                                     Bas("modB", {"Public b", "", "", "Sub Work()", "End Sub"})});
  host.Module("modA").fail_lines_from = 4;
  form.lbxComp->UserSelect(0);
  EXPECT_THAT(Listed(), ElementsAre("Sub Pay()", "Sub Work()"));
  EXPECT_THAT(Components(), ElementsAre(" Project Globals", "modA", "modB"));
  host.Module("modA").fail_lines_from = 0;
  ExpectAReadyWindow();
}

TEST_F(ProcedureList, AModuleOfFewerThanTwoLinesGivesTheDeclarationsRowAlone) {
  OpenWindow({Frm("frmA", {"Dim a", ""}), Frm("frmB", {"Dim b", ""})});
  ChooseComponent("frmA");
  Module("frmA").DeleteLines(1, 2);
  ChooseComponent("frmA");
  EXPECT_THAT(Procedures(), ElementsAre("Declarations"));
  EXPECT_THAT(CodeRows(), IsEmpty());
}

TEST_F(ProcedureList, HeadersIndentedByTabsStandBehindTheDeclarations) {
  OpenWindow({Frm("frmA", {"Dim a", "", "\tPublic Sub One()", "\tEnd Sub", "\t\tPublic Sub Two()", "\t\tEnd Sub"}),
              Frm("frmB", {"Dim b", ""})});
  ChooseComponent("frmA");
  EXPECT_THAT(Procedures(), ElementsAre("Declarations", "\t\tPublic Sub Two()", "\tPublic Sub One()"));
  form.lbxProc->UserSelect(2);
  EXPECT_THAT(CodeRows(), Contains(HasSubstr("Sub One()")));
  form.lbxProc->UserSelect(0);
  EXPECT_THAT(CodeRows(), ElementsAre("Dim a"));
  Caret("frmA", 1);
  form.optCurMod.UserClick();
  EXPECT_THAT(form.lbxProc->List(0), StartsWith("  Declarations"));
}

TEST_F(ProcedureList, ADoubleClickGoesToTheStartOfTheProcedure) {
  OpenWindow(kShop);
  ChooseComponent("frmMain");
  ChooseProcedure("Fill");
  form.lbxProc->UserDblClick();
  EXPECT_EQ(environment->ActiveCodePane()->CodeModule()->Name(), "frmMain");
  EXPECT_EQ(SelectionOf("frmMain"), (host::Selection{6, 1, 6, 1}));
}

TEST_F(ProcedureList, ADoubleClickDoesNotAskWhereTheCodeViewStands) {
  OpenWindow(kShop);
  ChooseComponent("frmMain");
  ChooseProcedure("Fill");
  form.txtCode.SetStrPos(2);
  form.lbxProc->UserDblClick();
  EXPECT_EQ(SelectionOf("frmMain"), (host::Selection{6, 1, 6, 1}));
}

TEST_F(ProcedureList, EnterActsAsADoubleClick) {
  OpenWindow(kShop);
  ChooseComponent("frmMain");
  ChooseProcedure("Fill");
  Press(*form.lbxProc, forms::vbKeyReturn);
  EXPECT_EQ(SelectionOf("frmMain"), (host::Selection{6, 1, 6, 1}));
}

TEST_F(ProcedureList, ADoubleClickOnTheDeclarationsOfTheGlobalsGoesNowhere) {
  OpenWindow(kShop);
  form.lbxProc->UserDblClick();
  EXPECT_EQ(environment->ActiveCodePane(), nullptr);
  EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(ProcedureList, ADoubleClickOnTheDeclarationsOfAComponentGoesToItsFirstLine) {
  OpenWindow(kShop);
  Caret("frmMain", 6, 3);
  Caret("modMain", 3);
  ChooseComponent("frmMain");
  form.lbxProc->UserDblClick();
  EXPECT_EQ(environment->ActiveCodePane()->CodeModule()->Name(), "frmMain");
  EXPECT_EQ(SelectionOf("frmMain"), (host::Selection{1, 1, 1, 1}));
}

TEST_F(ProcedureList, EscHidesTheWindowAndKeepsItsLists) {
  OpenWindow(kShop);
  ChooseComponent("frmMain");
  Press(*form.lbxProc, forms::vbKeyEscape);
  EXPECT_FALSE(form.Visible());
  EXPECT_TRUE(form.IsLoaded());
  form.Show();
  EXPECT_THAT(Listed(), ElementsAre("Private Sub Form_Load()", "Public Sub Fill()"));
}

TEST_F(ProcedureList, EscHidesTheWindowAndThenGivesTheFocusToTheMainWindow) {
  struct : environment::Observer {
    std::function<void()> focused;
    void MainWindowFocused() override { focused(); }
  } observer;
  std::vector<bool> visible;
  observer.focused = [&] { visible.push_back(form.Visible()); };
  OpenWindow(kShop);
  environment->Observe(&observer);
  Press(*form.lbxProc, 'x');
  EXPECT_THAT(visible, IsEmpty());
  Press(*form.lbxProc, forms::vbKeyEscape);
  EXPECT_THAT(visible, ElementsAre(false));
  environment->Observe(nullptr);
}

}  // namespace
}  // namespace corvane::tests
