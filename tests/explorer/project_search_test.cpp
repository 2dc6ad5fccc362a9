// The search of the project: its box, its options, its hits among the procedures.
#include "tests/explorer/explorer_fixture.h"

namespace corvane::tests {
namespace {

class ProjectSearch : public ExplorerTest {
 protected:
  ProjectSearch() {
    Open({
        Frm("frmMain", {"Option Explicit", "", "", "Private Sub Form_Load()", "    Total = 1", "End Sub"}),
        Bas("modMain", {"Public Total As Long", "' Total of all", "", "Public Sub ShowTotal()", "    Beep",
                        "    Beep ' total", "End Sub"}),
        Cls("clsNet", {"Private m As Long", "", "", "Public Sub Pay()", "    m = 2", "End Sub"}),
    });
  }
  void AddSecondProject() {
    environment->OpenFromModules("Tools", {Bas("modTools", {"Dim total", "x = total", "End Sub"})});
    environment->ActivateProject(environment->Projects().front());
  }
  void SearchFor(const std::string& text) {
    form.cmbSearch.SetText(text);
    form.cbSearch.Click();
  }
  std::vector<std::string> History() const { return Rows(form.cmbSearch); }
};

TEST_F(ProjectSearch, HitsAreRowsOfTheProcedures) {
  OpenWindow();
  SearchFor("total");
  EXPECT_THAT(Procedures(), ElementsAre("frmMain:    001   Total = 1", "modMain:    001   Public Total As Long",
                                        "modMain:    002   Public Sub ShowTotal()", "modMain:    003   Beep ' total"));
  EXPECT_EQ(form.lbxProc->List(1), "modMain:    001   Public Total As Long" + std::string(160, ' ') + " +|2");
  EXPECT_EQ(form.lbxProc->ItemData(1), 1);
  EXPECT_THAT(Components(), ElementsAre(" Result"));
  EXPECT_EQ(form.lbxComp->ItemData(0), 0);
  EXPECT_EQ(form.lbxComp->ListIndex(), 0);
}

TEST_F(ProjectSearch, TheFirstHitIsChosenAndShowsItsCode) {
  OpenWindow();
  SearchFor("total");
  EXPECT_EQ(form.lbxProc->ListIndex(), 0);
  EXPECT_THAT(CodeRows(), Contains("Private Sub Form_Load()"));
  EXPECT_TRUE(form.lbxProc->HasFocus());
  EXPECT_FALSE(form.optProj.Value());
  EXPECT_FALSE(form.optCurMod.Value());
  EXPECT_EQ(services.screen.MousePointer(), host::vbDefault);
}

TEST_F(ProjectSearch, AHitLeadsToItsLine) {
  OpenWindow();
  SearchFor("m = 2");
  form.txtCode.DblClick();
  EXPECT_EQ(SelectionOf("clsNet").start_line, 5);
}

TEST_F(ProjectSearch, OptionsNarrowTheHits) {
  OpenWindow();
  form.chkComnt.SetValue(1);
  SearchFor("total of");
  EXPECT_THAT(Procedures(), ElementsAre("modMain:    001   ' Total of all"));
  form.chkSub.SetValue(1);
  SearchFor("total");
  EXPECT_THAT(Procedures(), ElementsAre("modMain:    001   Public Sub ShowTotal()"));
  form.chkWhole.SetValue(1);
  SearchFor("total");
  EXPECT_THAT(Procedures(), Not(Contains(HasSubstr("ShowTotal"))));
}

TEST_F(ProjectSearch, SubsAreAskedForOneSearch) {
  OpenWindow();
  form.chkSub.SetValue(1);
  SearchFor("total");
  EXPECT_EQ(form.chkSub.Value(), 0);
}

TEST_F(ProjectSearch, WithoutATextItSaysWhatToEnter) {
  OpenWindow();
  const auto before = Components();
  SearchFor("");
  EXPECT_THAT(Messages(), ElementsAre("You must enter String or choose Project Title\r\nfrom the ComboBox"));
  EXPECT_EQ(Components(), before);
  SearchFor("beep");  // the guard is clear
  EXPECT_THAT(Components(), ElementsAre(" Result"));
}

TEST_F(ProjectSearch, ASelectedModuleThatIsNoneIsNotAvailable) {
  OpenWindow();
  form.optFndSel.SetValue(true);
  SearchFor("total");
  EXPECT_THAT(Messages(), ElementsAre("Selected CodeModule is not available"));
  EXPECT_THAT(Components(), Contains("modMain"));
  form.optFndAll.SetValue(true);
  SearchFor("total");  // the guard is clear
  EXPECT_THAT(Components(), ElementsAre(" Result"));
}

TEST_F(ProjectSearch, TheSelectedModuleIsSearchedAlone) {
  OpenWindow();
  Caret("clsNet", 1);
  ChooseComponent("frmMain");
  form.optFndSel.SetValue(true);
  SearchFor("total");
  EXPECT_THAT(Procedures(), ElementsAre("frmMain:    001   Total = 1"));
  SearchFor("private");  // among results the row names the module
  EXPECT_THAT(Procedures(), ElementsAre("frmMain:    001   Private Sub Form_Load()"));
}

// Whatever it is narrowed to but the whole project, the pane is asked for first.
TEST_F(ProjectSearch, WithoutACodePaneOnlyTheWholeProjectIsFound) {
  OpenWindow();
  ChooseComponent("frmMain");
  form.optFndSel.SetValue(true);
  SearchFor("total");
  EXPECT_THAT(Procedures(), IsEmpty());
  EXPECT_THAT(Components(), ElementsAre("frmMain"));
  EXPECT_EQ(services.screen.MousePointer(), host::vbDefault);
}

TEST_F(ProjectSearch, TheCurrentModuleIsThatOfTheCodePane) {
  OpenWindow();
  Caret("modMain", 1);
  form.optFndCur.SetValue(true);
  SearchFor("total");
  EXPECT_THAT(Procedures(), Not(Contains(StartsWith("frmMain"))));
  EXPECT_THAT(Procedures(), Contains("modMain:    001   Public Total As Long"));
}

TEST_F(ProjectSearch, TheCodeViewAsksForTheWholeProjectWhateverIsChosen) {
  OpenWindow();
  ChooseComponent("clsNet");
  form.optFndSel.SetValue(true);
  form.txtCode.Search("\2total");
  EXPECT_THAT(Procedures(), Contains(StartsWith("frmMain")));
  EXPECT_THAT(Procedures(), Contains(StartsWith("modMain")));
}

TEST_F(ProjectSearch, TheCodeViewAsksForTheSelectedModule) {
  OpenWindow();
  Caret("clsNet", 1);
  ChooseComponent("frmMain");
  form.txtCode.Search("\3total");
  EXPECT_THAT(Procedures(), ElementsAre("frmMain:    001   Total = 1"));
}

TEST_F(ProjectSearch, FromTheGlobalsTheCodeViewAsksForTheActiveModule) {
  OpenWindow();
  Caret("frmMain", 1);
  form.txtCode.Search("\3total");
  EXPECT_THAT(Procedures(), ElementsAre("frmMain:    001   Total = 1"));
  EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(ProjectSearch, WithoutAHitTheComponentRowComesBackAlone) {
  OpenWindow();
  ChooseComponent("clsNet");
  SearchFor("nowhere at all");
  EXPECT_THAT(Components(), ElementsAre("clsNet"));
  EXPECT_EQ(form.lbxComp->ItemData(0), 3);
  EXPECT_THAT(Procedures(), IsEmpty());
  EXPECT_EQ(form.txtCode.ListCount(), 0);
  EXPECT_TRUE(form.optProj.Value());
}

TEST_F(ProjectSearch, TheListBeforeComesBack) {
  OpenWindow();
  ChooseComponent("clsNet");
  const auto listed = Procedures();
  SearchFor("total");
  form.cmdPrev.Click();
  EXPECT_EQ(Procedures(), listed);
  form.cmdNext.Click();
  EXPECT_THAT(Procedures(), Contains(StartsWith("frmMain:    001")));
}

TEST_F(ProjectSearch, RefreshListsTheProjectAgain) {
  OpenWindow();
  SearchFor("total");
  form.tlbr.UserButtonClick(form.tlbr.PositionOf("Refresh"));
  EXPECT_THAT(Components(), ElementsAre(" Project Globals", "clsNet", "frmMain", "modMain"));
}

TEST_F(ProjectSearch, FromTheCurrentCodeItGoesOverToTheProject) {
  OpenWindow();
  Caret("clsNet", 5);
  form.optCurMod.UserClick();
  form.optFndAll.SetValue(true);
  SearchFor("total");
  EXPECT_FALSE(form.optCurMod.Value());
  EXPECT_THAT(Procedures(), Contains(StartsWith("frmMain")));
}

TEST_F(ProjectSearch, AGroupIsSearchedWithTheNamesOfItsProjects) {
  AddSecondProject();
  OpenWindow();
  Caret("modMain", 1);
  form.optGroup.SetValue(true);
  SearchFor("total");
  EXPECT_THAT(Procedures(), Contains("_Shop.frmMain:    001   Total = 1"));
  EXPECT_THAT(Procedures(), Contains("_Tools.modTools:    001   Dim total"));
}

TEST_F(ProjectSearch, AGroupNeedsNoCodePane) {
  AddSecondProject();
  OpenWindow();
  form.optGroup.SetValue(true);
  SearchFor("total");
  EXPECT_THAT(Procedures(), Contains("_Tools.modTools:    001   Dim total"));
}

TEST_F(ProjectSearch, PositionsCountOnFromProjectToProject) {
  AddSecondProject();
  OpenWindow();
  Caret("modMain", 1);
  form.optGroup.SetValue(true);
  SearchFor("dim total");
  EXPECT_EQ(form.lbxProc->List(0), "_Tools.modTools:    001   Dim total" + std::string(160, ' ') + " +|4");
}

TEST_F(ProjectSearch, AGroupOfOneIsTheWholeProject) {
  OpenWindow();
  form.optGroup.SetValue(true);
  SearchFor("m = 2");
  EXPECT_TRUE(form.optFndAll.Value());
  EXPECT_THAT(Procedures(), ElementsAre("clsNet:    001   m = 2"));
}

TEST_F(ProjectSearch, AnotherProjectIsNotSearchedWithoutTheGroup) {
  AddSecondProject();
  OpenWindow();
  SearchFor("dim total");
  EXPECT_THAT(Procedures(), IsEmpty());
}

TEST_F(ProjectSearch, TheLatestTextsStandBehindProjectTitle) {
  OpenWindow();
  SearchFor("one");
  SearchFor("two");
  SearchFor("one");
  EXPECT_THAT(History(), ElementsAre("Project Title", "two", "one"));
  EXPECT_EQ(form.cmbSearch.Text(), "one");
  SearchFor("ONE");  // another text
  EXPECT_THAT(History(), ElementsAre("Project Title", "ONE", "two", "one"));
}

TEST_F(ProjectSearch, ATextOfOneCharacterIsNotRemembered) {
  OpenWindow();
  SearchFor("m");
  EXPECT_THAT(History(), ElementsAre("Project Title"));
  EXPECT_THAT(Procedures(), Not(IsEmpty()));
}

TEST_F(ProjectSearch, TheEighthTextDropsTheOldest) {
  OpenWindow();
  for (const char* text : {"t1", "t2", "t3", "t4", "t5", "t6", "t7", "t8"}) SearchFor(text);
  EXPECT_THAT(History(), ElementsAre("Project Title", "t8", "t7", "t6", "t5", "t4", "t3", "t2"));
}

TEST_F(ProjectSearch, EnterSearchesAndEscLeaves) {
  OpenWindow();
  form.cmbSearch.SetText("m = 2");
  int key = forms::vbKeyReturn;
  form.cmbSearch.KeyPress(key);
  EXPECT_EQ(key, 0);
  EXPECT_THAT(Procedures(), ElementsAre("clsNet:    001   m = 2"));
  key = forms::vbKeyEscape;
  form.cmbSearch.KeyPress(key);
  EXPECT_FALSE(form.Visible());
}

TEST_F(ProjectSearch, AChosenTextIsForTheWholeProject) {
  OpenWindow();
  form.optFndCur.SetValue(true);
  form.cmbSearch.UserSelect(0);
  EXPECT_TRUE(form.optFndAll.Value());
}

TEST_F(ProjectSearch, AModuleOfAHitIsSearchedForFromItsMenu) {
  OpenWindow();
  AddHit("clsNet", 3, 5, "m = 2");
  form.lbxProc->SetListIndex(RowOf(Procedures(), "clsNet:"));
  form.mnuSearchMod.UserClick();
  EXPECT_EQ(form.cmbSearch.Text(), "clsNet");
  EXPECT_EQ(form.chkWhole.Value(), 1);
  EXPECT_TRUE(form.optFndAll.Value());
}

TEST_F(ProjectSearch, TheSearchGoesOnBehindAModuleThatFails) {
  OpenWindow();
  Component("frmMain")->CodeModule();
  environment->ActiveVBProject()->VBComponents()->Remove(Component("frmMain"));
  SearchFor("total");
  EXPECT_THAT(Procedures(), Contains(StartsWith("modMain:    001")));
}

TEST_F(ProjectSearch, AProjectThatIsGoneLeavesNoGuardSet) {
  OpenWindow();
  form.VBInstance = nullptr;
  SearchFor("total");
  EXPECT_THAT(Procedures(), IsEmpty());
  form.VBInstance = environment;
  SearchFor("total");
  EXPECT_THAT(Procedures(), Not(IsEmpty()));
}

}  // namespace
}  // namespace corvane::tests
