// The jumps to the designers.
#include "tests/explorer/explorer_fixture.h"

namespace corvane::tests {
namespace {

class GoToDesigner : public ExplorerTest {
 protected:
  const Sources kShop = {
      Frm("frmMain", {"Option Explicit", "", "", "", "Private Sub Form_Load()", "    Fill", "End Sub"}),
      Bas("modMain", {"Public Total As Long", "Public Count As Long", "", "Public Sub Main()", "End Sub"}),
  };
};

TEST_F(GoToDesigner, OfTheChosenComponent) {
  OpenWindow(kShop);
  ChooseComponent("frmMain");
  EXPECT_FALSE(Component("frmMain")->HasOpenDesigner());
  form.cmGo.Click();
  EXPECT_TRUE(Component("frmMain")->HasOpenDesigner());
  EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(GoToDesigner, OfTheModuleInTheCodePane) {
  Open(kShop);
  Caret("frmMain", 6);
  OpenWindow();
  form.cmGo.Click();
  EXPECT_TRUE(Component("frmMain")->HasOpenDesigner());
}

TEST_F(GoToDesigner, AComponentWithoutDesignerGivesTheMessage) {
  const std::string message = "Current component has not a designer.\r\nDesigner is not available.";
  OpenWindow(kShop);
  form.cmGo.Click();
  EXPECT_THAT(Messages(), ElementsAre(message));
  ChooseComponent("modMain");
  form.cmGo.Click();
  EXPECT_THAT(Messages(), ElementsAre(message, message));
}

TEST_F(GoToDesigner, InTheGlobalsOfTheComponentThatTheRowNames) {
  OpenWindow(kShop);
  AddHit("frmMain", 1, 5, "Private Sub Form_Load()");
  form.lbxProc->UserSelect(form.lbxProc->NewIndex());
  form.cmGo.Click();
  EXPECT_TRUE(Component("frmMain")->HasOpenDesigner());
}

}  // namespace
}  // namespace corvane::tests
