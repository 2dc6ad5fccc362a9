// The jumps to the designers.
#include "environment/observer.h"
#include "environment/project.h"
#include "tests/explorer/explorer_fixture.h"
#include "tests/support/counting_host.h"

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

TEST_F(GoToDesigner, AModuleIsNotEvenAskedForOne) {
  Open({Cls("clsItem", {"Dim a", ""}), Bas("modMain", {"Dim b", ""}), Frm("frmMain", {"Dim c", ""})});
  auto host = std::make_shared<CountingHost>(environment);
  form.VBInstance = host;
  form.Show();
  for (const char* name : {"clsItem", "modMain"}) {
    ChooseComponent(name);
    form.cmGo.Click();
    EXPECT_THAT(host->designers_asked, IsEmpty()) << name;
  }
  EXPECT_EQ(Messages().size(), 2u);
  ChooseComponent("frmMain");
  form.cmGo.Click();
  EXPECT_THAT(host->designers_asked, Contains("frmMain"));
  EXPECT_EQ(Messages().size(), 2u);
}

TEST_F(GoToDesigner, InTheGlobalsOfTheComponentThatTheRowNames) {
  OpenWindow(kShop);
  AddHit("frmMain", 1, 5, "Private Sub Form_Load()");
  form.lbxProc->UserSelect(form.lbxProc->NewIndex());
  form.cmGo.Click();
  EXPECT_TRUE(Component("frmMain")->HasOpenDesigner());
}

TEST_F(GoToDesigner, InAResultOfTheComponentThatTheRowNames) {
  OpenWindow(kShop);
  form.lbxComp->Clear();
  form.lbxProc->Clear();
  form.lbxComp->AddItem(explorer::kResult);
  form.lbxComp->Click = {};  // a search chooses the row without listing anything
  form.lbxComp->SetListIndex(0);
  AddHit("frmMain", 1, 5, "Private Sub Form_Load()");
  form.lbxProc->UserSelect(0);
  form.cmGo.Click();
  EXPECT_TRUE(Component("frmMain")->HasOpenDesigner());
  EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(GoToDesigner, OnceFromTheRowWhereThatIsAskedFor) {
  OpenWindow(kShop);
  ChooseComponent("modMain");
  AddHit("frmMain", 1, 5, "Private Sub Form_Load()");
  form.lbxProc->UserSelect(form.lbxProc->NewIndex());
  form.designerFromRow = true;
  form.cmGo.Click();
  EXPECT_TRUE(Component("frmMain")->HasOpenDesigner());
  EXPECT_THAT(Messages(), IsEmpty());
  form.cmGo.Click();
  EXPECT_EQ(Messages().size(), 1u);
}

TEST_F(GoToDesigner, ItsWindowIsShownAndTakesTheFocus) {
  struct : environment::Observer {
    std::vector<std::string> log;
    void DesignerShown(environment::Module& module, bool visible) override {
      log.push_back((visible ? "shown " : "hidden ") + module.Name());
    }
    void DesignerFocused(environment::Module& module) override { log.push_back("focused " + module.Name()); }
  } observer;
  OpenWindow(kShop);
  ChooseComponent("frmMain");
  environment->Observe(&observer);
  form.cmGo.Click();
  EXPECT_THAT(observer.log, Contains("shown frmMain"));
  ASSERT_FALSE(observer.log.empty());
  EXPECT_EQ(observer.log.back(), "focused frmMain");
  environment->Observe(nullptr);
}

}  // namespace
}  // namespace corvane::tests
