// The modes: the whole project, the code of the active pane, the selected row.
#include "tests/explorer/explorer_fixture.h"

namespace corvane::tests {
namespace {

class CurrentCode : public ExplorerTest {
 protected:
  const Sources kShop = {
      Frm("frmMain", {"Option Explicit", "", "Private Sub Form_Load()", "    Fill", "End Sub", "", "Sub Fill()",
                      "    Total = 1", "End Sub"}),
      Bas("modMain", {"Public Total As Long", "", "Public Sub Main()", "End Sub"}),
  };
};

TEST_F(CurrentCode, OpeningWithACodePaneShowsItsModuleAndProcedure) {
  Open(kShop);
  Caret("frmMain", 8);
  OpenWindow();
  EXPECT_TRUE(form.optCurMod.Value());
  EXPECT_TRUE(form.optFndSel.Value());
  EXPECT_THAT(Components(), ElementsAre("frmMain"));
  EXPECT_EQ(form.lbxComp->ItemData(0), 0);
  EXPECT_THAT(Procedures(),
              ElementsAre("Declarations", "A current line:    Total = 1", "Private Sub Form_Load()", "Sub Fill()"));
  EXPECT_EQ(form.lbxProc->ListIndex(), 1);
  EXPECT_THAT(CodeRows(), ElementsAre("Sub Fill()", "    Total = 1", "End Sub"));
  EXPECT_EQ(form.txtCode.ListIndex(), 2);
  EXPECT_TRUE(form.txtCode.HasFocus());
}

TEST_F(CurrentCode, TheFirstRowCarriesTheComponent) {
  Open(kShop);
  Caret("modMain", 1);
  OpenWindow();
  EXPECT_EQ(form.lbxProc->List(0), "  Declarations" + std::string(200, ' ') + " +|2");
  EXPECT_EQ(form.lbxProc->ItemData(0), 1);
}

TEST_F(CurrentCode, ACaretInTheDeclarationsSelectsTheFirstRow) {
  Open(kShop);
  Caret("frmMain", 1);
  OpenWindow();
  EXPECT_EQ(form.lbxProc->ListIndex(), 0);
  EXPECT_EQ(form.txtCode.List(1), "Option Explicit");
}

TEST_F(CurrentCode, WithoutACodePaneItTellsSoAndChoosesTheProject) {
  OpenWindow(kShop);
  form.optCurMod.UserClick();
  EXPECT_THAT(Messages(), ElementsAre("Use this option when Code Pane is opened.\r\n"
                                      "Code Module is not available now."));
  EXPECT_TRUE(form.optProj.Value());
  EXPECT_FALSE(form.optCurMod.Value());
  ChooseComponent("frmMain");
  EXPECT_THAT(CodeRows(), ElementsAre("Option Explicit"));
}

TEST_F(CurrentCode, WithoutACodePaneTheListsStayAsTheyAre) {
  OpenWindow(kShop);
  ChooseComponent("frmMain");
  ChooseProcedure("Fill()");
  const auto rows = Rows(*form.lbxProc);
  Module("frmMain").InsertLines(10, "Sub Later()\r\nEnd Sub");
  form.optCurMod.UserClick();
  EXPECT_EQ(Messages().size(), 1u);
  EXPECT_TRUE(form.optProj.Value());
  EXPECT_EQ(form.lbxComp->Text(), "frmMain");
  EXPECT_EQ(Rows(*form.lbxProc), rows);
  EXPECT_EQ(form.lblSub.Caption(), "Sub Fill()");
}

TEST_F(CurrentCode, TheProjectOptionWorksAfterTheMessage) {
  OpenWindow(kShop);
  form.optCurMod.UserClick();
  Caret("modMain", 3);
  form.optCurMod.UserClick();
  EXPECT_THAT(Components(), ElementsAre("modMain"));
  form.optProj.UserClick();
  EXPECT_THAT(Components(), ElementsAre(" Project Globals", "frmMain", "modMain"));
  EXPECT_TRUE(form.optFndAll.Value());
}

TEST_F(CurrentCode, AFilterListsTheModuleOfTheActivePaneAgain) {
  Open(kShop);
  Caret("frmMain", 8);
  OpenWindow();
  ClickOn(form.optProcEvent);
  EXPECT_THAT(Procedures(), ElementsAre("Declarations", "Private Sub Form_Load()"));
  EXPECT_TRUE(form.optProcEvent.Value());
  Caret("modMain", 3);
  ClickOn(form.optProcAll);
  EXPECT_THAT(Procedures(), ElementsAre("Declarations", "Public Sub Main()"));
}

TEST_F(CurrentCode, AFilterChangesNothingWhenNoPaneIsOpenAnyMore) {
  Open(kShop);
  Caret("frmMain", 8);
  OpenWindow();
  const auto rows = Rows(*form.lbxProc), code = CodeRows();
  for (host::Ref<host::CodePane> pane : host::Each(environment->CodePanes())) pane->Window()->Close();
  ASSERT_EQ(environment->ActiveCodePane(), nullptr);
  ClickOn(form.optProcEvent);
  EXPECT_EQ(Rows(*form.lbxProc), rows);
  EXPECT_EQ(CodeRows(), code);
  EXPECT_THAT(Messages(), IsEmpty());
  EXPECT_THAT(toolkit.Faults(), IsEmpty());
}

TEST_F(CurrentCode, AFilterGivesTheFocusToTheProcedures) {
  Open(kShop);
  Caret("frmMain", 8);
  OpenWindow();
  form.txtFind.SetFocus();
  ClickOn(form.optProcEvent);
  EXPECT_TRUE(form.lbxProc->HasFocus());
}

TEST_F(CurrentCode, TheListPaintsBeforeItsCodeIsLoaded) {
  OpenWindow(kShop);
  Caret("frmMain", 8);
  long paints = 0;
  services.loop.on_do_events = [&] { paints += form.lbxProc->Visible() && form.txtCode.ListCount() == 0; };
  form.optCurMod.UserClick();
  EXPECT_EQ(paints, 1);
  EXPECT_THAT(CodeRows(), ElementsAre("Sub Fill()", "    Total = 1", "End Sub"));
  const auto before = CodeRows();
  paints = 0;
  services.loop.on_do_events = [&] { paints += Procedures().size() == 2 && CodeRows() == before; };
  ClickOn(form.optProcEvent);
  services.loop.on_do_events = nullptr;
  EXPECT_EQ(paints, 1);
  EXPECT_NE(CodeRows(), before);
}

TEST_F(CurrentCode, WhatWasListedIsKeptForTheKeyBack) {
  OpenWindow(kShop);
  ChooseComponent("frmMain");
  Caret("modMain", 3);
  form.optCurMod.UserClick();
  ASSERT_THAT(Components(), ElementsAre("modMain"));
  form.cmdPrev.Click();
  EXPECT_EQ(form.lbxComp->Text(), "frmMain");
  EXPECT_THAT(Procedures(), ElementsAre("Declarations", "Private Sub Form_Load()", "Sub Fill()"));
}

TEST_F(CurrentCode, TheProjectItselfIsNotKeptForTheKeyBack) {
  OpenWindow(kShop);
  Caret("modMain", 3);
  form.optCurMod.UserClick();
  EXPECT_FALSE(form.cmdPrev.Enabled());
}

TEST_F(CurrentCode, ChoosingItAgainUnsetsTheFilters) {
  Open(kShop);
  Caret("frmMain", 8);
  OpenWindow();
  ClickOn(form.optProcEvent);
  form.optProj.UserClick();
  form.optCurMod.UserClick();
  EXPECT_TRUE(form.optProcAll.Value());
  EXPECT_TRUE(form.optAllProc.Value());
}

TEST_F(CurrentCode, AModuleThatIsNotOfTheActiveProjectIsNamedAlone) {
  Open(kShop);
  Caret("frmMain", 4);
  environment->OpenFromModules("Tools", {Bas("modTools", {"Public a", "Public b"})});
  environment->ActivateProject(environment->Projects().back());
  OpenWindow();
  EXPECT_THAT(Components(), ElementsAre("frmMain"));
  EXPECT_THAT(Procedures(), ElementsAre("Declarations"));
  EXPECT_EQ(form.lbxProc->List(0), "  Declarations" + std::string(200, ' ') + " +|0");
}

class SelectedMode : public CurrentCode {};

TEST_F(SelectedMode, TheLabelOfARowIsAModuleThatIsListedAndOpened) {
  OpenWindow(kShop);
  AddHit("frmMain", 1, 7, "Sub Fill()");
  ChooseProcedure("frmMain:");
  form.optSelMod.UserClick();
  EXPECT_THAT(Components(), ElementsAre(" Project Globals", "frmMain"));
  EXPECT_EQ(form.lbxComp->Text(), "frmMain");
  EXPECT_EQ(form.cmbSearch.Text(), "frmMain");
  EXPECT_THAT(Procedures(), ElementsAre("Declarations", "Private Sub Form_Load()", "Sub Fill()"));
}

TEST_F(SelectedMode, TheNameGoesThroughTheFilterOfSubstrings) {
  OpenWindow({Frm("Form1", {"Dim a", ""}), Frm("Form10", {"Dim b", ""}), Bas("modA", {"Dim c", ""})});
  AddHit("Form1", 1, 1, "Dim a");
  ChooseProcedure("Form1:");
  form.optSelMod.UserClick();
  EXPECT_THAT(Components(), ElementsAre(" Project Globals", "Form1", "Form10"));
}

TEST_F(SelectedMode, ALabelWithABlankIsNoModule) {
  Open(kShop);
  Caret("frmMain", 8);
  OpenWindow();
  ChooseProcedure("A current line:");
  form.optSelMod.UserClick();
  EXPECT_THAT(Components(), ElementsAre(" Project Globals", "frmMain", "modMain"));
  EXPECT_EQ(form.cmbSearch.Text(), "frmMain");
}

TEST_F(SelectedMode, WithoutALabelTheListIsFilledAgainWithAllEntries) {
  OpenWindow(kShop);
  ClickOn(form.optProcFunc);
  EXPECT_THAT(Procedures(), ElementsAre("Declarations"));
  form.optSelMod.UserClick();
  EXPECT_TRUE(form.optProcAll.Value());
  EXPECT_THAT(Procedures(), ElementsAre("Declarations", "Public Sub Main()"));
}

}  // namespace
}  // namespace corvane::tests
