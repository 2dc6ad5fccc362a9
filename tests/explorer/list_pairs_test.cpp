#include "tests/explorer/explorer_fixture.h"

namespace corvane::tests {
namespace {

class ListPairs : public ExplorerTest {
 protected:
  const Sources kShop = {
      Frm("frmMain", {"Option Explicit", "", "", "", "Private Sub Form_Load()", "    Fill", "End Sub"}),
      Bas("modMain",
          {"Public Total As Long", "", "", "", "Public Sub Main()", "    Total = 1", "    Total = 2", "End Sub"}),
      Cls("clsItem", {"Private a", "Private b"}),
  };
};

TEST_F(ListPairs, TheSecondPairStandsInThePlaceOfTheFirst) {
  OpenWindow(kShop);
  EXPECT_EQ(form.lbxProc2.Place(), form.lbxProc1.Place());
  EXPECT_EQ(form.lbxComp2.Place(), form.lbxComp1.Place());
  form.optSecond.UserClick();
  EXPECT_FALSE(form.lbxComp1.Visible());
  EXPECT_FALSE(form.lbxProc1.Visible());
  EXPECT_TRUE(form.lbxComp2.Visible());
  EXPECT_TRUE(form.lbxProc2.Visible());
}

TEST_F(ListPairs, EachKeepsWhatWasListedInItLast) {
  OpenWindow(kShop);
  ChooseProcedure("Main()");
  form.txtCode.SetStrPos(3);
  form.optSecond.UserClick();
  EXPECT_THAT(Components(), IsEmpty());
  EXPECT_THAT(CodeRows(), IsEmpty());
  form.axClasses.Click();
  EXPECT_THAT(Components(), ElementsAre(" Project Globals", "clsItem"));
  form.optFirst.UserClick();
  EXPECT_THAT(Components(), ElementsAre(" Project Globals", "clsItem", "frmMain", "modMain"));
  EXPECT_EQ(form.txtCode.List(1), "Public Sub Main()");
  EXPECT_EQ(form.txtCode.ListIndex(), 3);
  EXPECT_TRUE(form.lbxProc == &form.lbxProc1);
}

TEST_F(ListPairs, EachKeepsItsMode) {
  Open(kShop);
  Caret("modMain", 6);
  OpenWindow();
  ASSERT_TRUE(form.optCurMod.Value());
  form.optSecond.UserClick();
  EXPECT_TRUE(form.optProj.Value());
  EXPECT_FALSE(form.optCurMod.Value());
  form.optFirst.UserClick();
  EXPECT_TRUE(form.optCurMod.Value());
  EXPECT_THAT(Components(), ElementsAre("modMain"));
  EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(ListPairs, TheProjectIsNotListedWhileItsModeIsRestored) {
  OpenWindow(kShop);
  ChooseComponent("modMain");
  ChooseProcedure("Main()");
  const auto rows = Rows(*form.lbxProc);
  form.optSecond.UserClick();
  Caret("clsItem", 1);
  form.optCurMod.UserClick();
  ASSERT_THAT(Components(), ElementsAre("clsItem"));
  ASSERT_TRUE(form.optFndSel.Value());
  Module("modMain").InsertLines(9, "Private Sub Later()\r\nEnd Sub");
  form.optFirst.UserClick();
  EXPECT_TRUE(form.optProj.Value());
  EXPECT_EQ(form.lbxComp->Text(), "modMain");
  EXPECT_EQ(Rows(*form.lbxProc), rows);
  EXPECT_EQ(form.lblSub.Caption(), "Public Sub Main()");
  EXPECT_TRUE(form.optFndSel.Value()) << "the user has not chosen the project";
}

TEST_F(ListPairs, TheListsPaintBeforeTheCodeIsLoaded) {
  OpenWindow(kShop);
  ChooseComponent("modMain");
  ChooseProcedure("Main()");
  form.optSecond.UserClick();
  long without_code = 0;
  services.loop.on_do_events = [&] {
    if (form.txtCode.ListCount() == 0 && form.lbxProc1.Visible() && !form.lbxProc2.Visible()) ++without_code;
  };
  form.optFirst.UserClick();
  services.loop.on_do_events = nullptr;
  EXPECT_EQ(without_code, 1);
  EXPECT_EQ(form.txtCode.List(1), "Public Sub Main()");
}

TEST_F(ListPairs, AWindowThatIsLoadedAgainForgetsTheirModes) {
  Open(kShop);
  Caret("modMain", 6);
  OpenWindow();
  form.optSecond.UserClick();
  form.optCurMod.UserClick();
  ASSERT_TRUE(form.optCurMod.Value());
  form.optFirst.UserClick();
  form.Unload();
  form.Show();
  form.optSecond.UserClick();
  EXPECT_TRUE(form.optProj.Value());
  EXPECT_FALSE(form.optCurMod.Value());
}

TEST_F(ListPairs, AWaitingComponentIsListedThroughTheFilters) {
  OpenWindow(kShop);
  ChooseComponent("modMain");
  form.optSecond.UserClick();
  ASSERT_EQ(form.pendingComponent, "modMain");
  ClickOn(form.optProcFunc);
  EXPECT_EQ(form.lbxComp->List(0), "modMain");
  EXPECT_TRUE(form.optProcFunc.Value());
  EXPECT_THAT(Procedures(), ElementsAre("Declarations"));
  ClickOn(form.optSecond);
  form.pendingComponent = "modMain";
  ClickOn(form.optProcSub);
  EXPECT_THAT(Procedures(), ElementsAre("Declarations", "Public Sub Main()"));
}

TEST_F(ListPairs, TheSecondPairIsOfferedTheComponentInView) {
  Open(kShop);
  Caret("modMain", 6);
  OpenWindow();
  form.optSecond.UserClick();
  EXPECT_EQ(form.pendingComponent, "modMain");
}

TEST_F(ListPairs, AWaitingComponentIsTakenByTheNextChoice) {
  OpenWindow(kShop);
  form.pendingComponent = "clsItem";
  ChooseComponent("Project Globals");
  EXPECT_EQ(form.lbxComp->List(0), "clsItem");
  EXPECT_EQ(form.lbxComp->Text(), "clsItem");
  EXPECT_THAT(CodeRows(), ElementsAre("Private a", "Private b"));
  EXPECT_EQ(form.pendingComponent, "");
}

TEST_F(ListPairs, AKindButtonOpensItsFirstComponentWhateverWaits) {
  OpenWindow(kShop);
  ChooseComponent("modMain");
  form.optSecond.UserClick();
  ASSERT_EQ(form.pendingComponent, "modMain");
  form.axClasses.Click();
  EXPECT_THAT(Components(), ElementsAre(" Project Globals", "clsItem"));
  EXPECT_EQ(form.lbxComp->Text(), "clsItem");
  EXPECT_THAT(CodeRows(), ElementsAre("Private a", "Private b"));
  EXPECT_EQ(form.pendingComponent, "");
}

TEST_F(ListPairs, TheFirstPairIsOfferedNothing) {
  OpenWindow(kShop);
  ChooseComponent("modMain");
  form.optSecond.UserClick();
  form.optFirst.UserClick();
  EXPECT_EQ(form.pendingComponent, "");
}

TEST_F(ListPairs, AWaitingComponentDoesNotOutliveTheWindow) {
  OpenWindow(kShop);
  ChooseComponent("modMain");
  form.optSecond.UserClick();
  form.Unload();
  EXPECT_EQ(form.pendingComponent, "");
  EXPECT_EQ(form.currentText, "");
  EXPECT_EQ(form.currentItemData, 0);
}

TEST_F(ListPairs, TheCurrentCodeIsNotListedWhileTheModeIsRestored) {
  Open(kShop);
  Caret("modMain", 6);
  OpenWindow();
  form.optSecond.UserClick();
  bool asked = false, shown = true;
  form.optCurMod.Click = [&] {
    asked = true;
    shown = form.CurrentModule();
  };
  Caret("clsItem", 1);
  form.optFirst.UserClick();
  EXPECT_TRUE(asked);
  EXPECT_FALSE(shown);
  EXPECT_THAT(Components(), ElementsAre("modMain"));
  EXPECT_TRUE(form.CurrentModule());
  EXPECT_THAT(Components(), ElementsAre("clsItem"));
}

TEST_F(ListPairs, AWaitingComponentThatTheProjectDoesNotHoldIsForgotten) {
  OpenWindow(kShop);
  form.pendingComponent = "clsGone";
  ChooseComponent("clsItem");
  EXPECT_THAT(CodeRows(), ElementsAre("Private a", "Private b"));
  EXPECT_EQ(form.pendingComponent, "");
}

}  // namespace
}  // namespace corvane::tests
