// Where the keyboard is while lists are filled.
#include "tests/explorer/explorer_fixture.h"

namespace corvane::tests {
namespace {

class KeyboardFocus : public ExplorerTest {
 protected:
  const Sources kShop = {
      Frm("frmMain", {"Option Explicit", "", "Private Sub Form_Load()", "End Sub"}),
      Bas("modMain", {"Public Total As Long", "", "Public Sub Main()", "End Sub"}),
      Cls("clsItem", {"Private a", "Private b"}),
  };
};

TEST_F(KeyboardFocus, TheProjectOptionGivesItToTheProcedures) {
  Open(kShop);
  Caret("frmMain", 4);
  OpenWindow();
  form.optProj.UserClick();
  EXPECT_TRUE(form.lbxProc->HasFocus());
}

TEST_F(KeyboardFocus, RefreshLeavesItInTheProcedures) {
  OpenWindow(kShop);
  form.lbxProc->SetFocus();
  form.lbxProc->UserKeyDown(forms::vbKeyF5, 0);
  EXPECT_TRUE(form.lbxProc->HasFocus());
}

TEST_F(KeyboardFocus, MovingUpToTheDeclarationsOfTheGlobalsLeavesItInTheProcedures) {
  OpenWindow(kShop);
  form.lbxProc->SetFocus();
  form.lbxProc->UserSelect(1);
  form.lbxProc->UserSelect(0);
  EXPECT_TRUE(form.lbxProc->HasFocus());
  EXPECT_THAT(CodeRows(), Contains("Public Total As Long"));
}

TEST_F(KeyboardFocus, AListingThatFailsLeavesItInTheProcedures) {
  form.VBInstance = environment;  // no project is open
  form.Show();
  form.lbxProc->SetFocus();
  form.lbxProc->UserKeyDown(forms::vbKeyF5, 0);
  EXPECT_TRUE(form.lbxProc->HasFocus());
}

TEST_F(KeyboardFocus, AListingTakesItFromNoOtherControl) {
  OpenWindow(kShop);
  form.lbxComp->SetFocus();
  form.lbxComp->UserSelect(0);
  EXPECT_TRUE(form.lbxComp->HasFocus());
  form.txtFproc.SetFocus();
  Press(form.txtFproc, forms::vbKeyReturn);
  EXPECT_TRUE(form.txtFproc.HasFocus());
}

TEST_F(KeyboardFocus, ReachingTheComponentsOffersTheChosenOneForSearch) {
  OpenWindow(kShop);
  ChooseComponent("clsItem");
  form.cmbSearch.SetText("other");
  form.lbxComp->SetFocus();
  EXPECT_EQ(form.cmbSearch.Text(), "clsItem");
  EXPECT_EQ(form.currentText, "clsItem");
  EXPECT_EQ(form.currentItemData, 3);
}

TEST_F(KeyboardFocus, ReachingTheComponentsAtTheGlobalsForgetsTheChosenOne) {
  OpenWindow(kShop);
  ChooseComponent("clsItem");
  form.lbxComp->SetFocus();
  ChooseComponent("Project Globals");
  form.currentText = "clsItem";
  form.currentItemData = 3;
  form.lbxProc->SetFocus();
  form.cmbSearch.SetText("other");
  form.lbxComp->SetFocus();
  EXPECT_EQ(form.cmbSearch.Text(), "other");
  EXPECT_EQ(form.currentText, "");
  EXPECT_EQ(form.currentItemData, 0);
}

}  // namespace
}  // namespace corvane::tests
