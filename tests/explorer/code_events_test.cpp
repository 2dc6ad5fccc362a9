// What the code view asks of the window.
#include "tests/explorer/explorer_fixture.h"

namespace corvane::tests {
namespace {

class CodeEvents : public ExplorerTest {
 protected:
  CodeEvents() {
    OpenWindow({
        Frm("frmMain", {"Option Explicit", "", "", "Private Sub Form_Load()", "    Beep", "End Sub"}),
        Bas("modMain", {"Public Total As Long", "", "", "Public Sub Main()", "End Sub"}),
    });
  }
  void ShowResults(const std::vector<std::string>& rows) {
    form.txtCode.Clear();
    form.lblSub.SetCaption(explorer::kSearchResult);
    form.txtCode.NoAnalyse = true;
    for (const std::string& row : rows) form.txtCode.AddItem(row);
    form.txtCode.NoAnalyse = false;
  }
  void DoubleClick(long row) {
    form.txtCode.SetStrPos(row);
    form.txtCode.DblClick();
  }
};

TEST_F(CodeEvents, ADoubleClickOnAHitInThePropertiesShowsItsDesigner) {
  ShowResults({"ModuleName = \2frmMain", "  Component = /+\\/+\\Text1/-\\/-\\  /+\\Text = a/-\\", " "});
  DoubleClick(2);
  EXPECT_TRUE(Component("frmMain")->HasOpenDesigner());
  EXPECT_EQ(environment->ActiveCodePane(), nullptr);
}

TEST_F(CodeEvents, AHitBelongsToTheNextModuleNameAboveIt) {
  ShowResults({"ModuleName = \2frmGone", " ", "ModuleName = \2frmMain", "  /+\\Caption = a/-\\"});
  DoubleClick(1);
  EXPECT_FALSE(Component("frmMain")->HasOpenDesigner());
  DoubleClick(4);
  EXPECT_TRUE(Component("frmMain")->HasOpenDesigner());
  EXPECT_THAT(Messages(), IsEmpty());
  EXPECT_THAT(toolkit.Faults(), IsEmpty());
}

TEST_F(CodeEvents, AHitWithoutAModuleNameLeadsNowhere) {
  ShowResults({"  /+\\Caption = a/-\\"});
  DoubleClick(1);
  EXPECT_FALSE(Component("frmMain")->HasOpenDesigner());
  EXPECT_THAT(toolkit.Faults(), IsEmpty());
}

TEST_F(CodeEvents, ASearchThatNamesItsScopeIsRun) {
  for (const char scope : {'\2', '\3'}) {
    std::string sought;
    long asked = 0;
    form.cbSearch.Click = [&] {
      sought = form.cmbSearch.Text();
      asked = form.searchScope;
    };
    form.txtCode.Search(std::string(1, scope) + "Total");
    EXPECT_EQ(sought, "Total");
    EXPECT_EQ(asked, scope);
    EXPECT_EQ(form.searchScope, 0) << "for that search only";
  }
}

TEST_F(CodeEvents, ASearchThatFailsLeavesNoScope) {
  form.cbSearch.Click = [] { throw runtime::Error(5); };
  form.txtCode.Search("\3Total");
  EXPECT_EQ(form.searchScope, 0);
}

TEST_F(CodeEvents, ASearchWithoutAScopeShowsTheClipboard) {
  bool ran = false;
  form.cbSearch.Click = [&] { ran = true; };
  services.clipboard.text = "Total";
  form.txtCode.Search("Total");
  EXPECT_EQ(form.txtClip.Text(), "Total");
  EXPECT_FALSE(ran);
}

TEST_F(CodeEvents, TheClipBookShowsTheClipboard) {
  services.clipboard.text = "copied";
  form.txtCode.ClipBook();
  EXPECT_EQ(form.txtClip.Text(), "copied");
}

TEST_F(CodeEvents, AClipboardThatRefusesLeavesTheClipBook) {
  form.txtClip.SetText("before");
  services.clipboard.fail_with = 521;
  form.txtCode.ClipBook();
  form.txtCode.Search("Total");
  EXPECT_EQ(form.txtClip.Text(), "before");
  EXPECT_THAT(toolkit.Faults(), IsEmpty());
}

TEST_F(CodeEvents, ColoursAreSwitchedWithTheRowKept) {
  ChooseComponent("modMain");
  ChooseProcedure("Main()");
  form.txtCode.SetStrPos(2);
  form.txtCode.ColorOnOff(2);
  EXPECT_EQ(form.txtCode.ListIndex(), 2);
  EXPECT_EQ(form.lblSub.Caption(), "Public Sub Main()");
}

TEST_F(CodeEvents, ProjectTitleOfTheMenuSearchesTheWholeProject) {
  std::string sought;
  form.cbSearch.Click = [&] { sought = form.cmbSearch.Text(); };
  form.optFndSel.SetValue(true);
  form.mnuIDETitle.Click();
  EXPECT_EQ(sought, "Project Title");
  EXPECT_TRUE(form.optFndAll.Value());
}

TEST_F(CodeEvents, TheCurrentWordOfTheMenuGoesIntoTheSearchBox) {
  Caret("modMain", 1, 9);
  form.mnuIDESearch.Click();
  EXPECT_EQ(form.cmbSearch.Text(), "Total");
  EXPECT_TRUE(form.cmbSearch.HasFocus());
}

}  // namespace
}  // namespace corvane::tests
