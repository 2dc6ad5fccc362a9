// The menu of a row of the procedures.
#include "tests/explorer/explorer_fixture.h"

namespace corvane::tests {
namespace {

class ProcedureMenu : public ExplorerTest {
 protected:
  const Sources kShop = {
      Frm("frmMain", {"Private Sub Form_Load()", "End Sub"}),
      Bas("modMain", {"Public total As Long", "Public Sub Ring(item As Long)", "End Sub",
                      "Public Property Get Sum() As Long", "End Property", "Public Function Tax(x)", "End Function"})};

  // The visible entries that the menu offered; disabled ones in brackets.
  std::vector<std::string> Offered(long row) {
    form.lbxProc->UserSelect(row);
    form.lbxProc->UserKeyDown(93, 0);
    return toolkit.Popups().empty() ? std::vector<std::string>() : toolkit.Popups().back();
  }
  void RightClick(forms::Twips y) { form.lbxProc->UserMouseDown(forms::vbRightButton, 0, 100, y); }
};

TEST_F(ProcedureMenu, OffersASearchAndACommentForAProcedure) {
  OpenWindow(kShop);
  ChooseComponent("modMain");
  std::vector<std::string> offered = Offered(RowOf(Procedures(), "Ring"));
  EXPECT_THAT(offered, Contains("Search Procedure"));
  EXPECT_THAT(offered, Contains(HasSubstr("Comment Procedure")));
  EXPECT_THAT(offered, Not(Contains(HasSubstr("Search CodeModule"))));
  EXPECT_THAT(offered, Not(Contains(HasSubstr("Goto Designer"))));
  EXPECT_TRUE(form.mnuSearch.Visible());
  EXPECT_TRUE(form.mnuComnt.Visible());
}

TEST_F(ProcedureMenu, OffersNeitherForADeclaration) {
  OpenWindow(kShop);
  ChooseComponent("modMain");
  std::vector<std::string> offered = Offered(0);
  EXPECT_THAT(offered, Not(Contains("Search Procedure")));
  EXPECT_THAT(offered, Not(Contains(HasSubstr("Comment Procedure"))));
  EXPECT_TRUE(form.mnuSearch.Visible()) << "behind the menu again";
}

TEST_F(ProcedureMenu, OffersModuleAndDesignerForTheLabelOfAHit) {
  OpenWindow(kShop);
  form.lbxProc->Clear();
  AddHit("frmMain", 1, 1, "Private Sub Form_Load()");
  std::vector<std::string> offered = Offered(0);
  EXPECT_THAT(offered, Contains(HasSubstr("Search CodeModule")));
  EXPECT_THAT(offered, Contains("Goto Designer"));
}

TEST_F(ProcedureMenu, ALabelWithABlankIsNone) {
  OpenWindow(kShop);
  form.lbxProc->Clear();
  AddHit("A current line", 1, 1, "Private Sub Form_Load()");
  EXPECT_THAT(Offered(0), Not(Contains("Goto Designer")));
}

TEST_F(ProcedureMenu, ARowOfOneCharacterHasNone) {
  OpenWindow(kShop);
  form.lbxProc->Clear();
  for (const char* row : {"w", "x"}) form.lbxProc->AddItem(row);
  EXPECT_THAT(Offered(1), IsEmpty());
}

TEST_F(ProcedureMenu, TheRightButtonChoosesTheRowByAFifthOfTheListsHeight) {
  OpenWindow(kShop);
  ChooseComponent("modMain");
  ASSERT_GE(form.lbxProc->ListCount(), 4);
  const forms::Twips height = form.lbxProc->Height();
  RightClick(height * 2 / 5 + 10);
  EXPECT_EQ(form.lbxProc->ListIndex(), 2);
  RightClick(height / 5 - 10);
  EXPECT_EQ(form.lbxProc->ListIndex(), 0);
  EXPECT_EQ(toolkit.Popups().size(), 2u);
}

TEST_F(ProcedureMenu, TheLeftButtonOpensNone) {
  OpenWindow(kShop);
  form.lbxProc->UserMouseDown(forms::vbLeftButton, 0, 100, 100);
  EXPECT_THAT(toolkit.Popups(), IsEmpty());
}

TEST_F(ProcedureMenu, SearchProcedurePutsItsNameIntoTheSearchBox) {
  const struct { const char *row, *name; } kCases[] = {{"Ring", "Ring"}, {"Get Sum", "Get Sum"}, {"Tax", "Tax"}};
  OpenWindow(kShop);
  ChooseComponent("modMain");
  for (const auto& c : kCases) {
    toolkit.OnPopup("Search Procedure");
    Offered(RowOf(Procedures(), c.row));
    EXPECT_EQ(form.cmbSearch.Text(), c.name);
  }
}

TEST_F(ProcedureMenu, GotoDesignerOpensTheDesignerOfTheRow) {
  OpenWindow(kShop);
  form.lbxProc->Clear();
  AddHit("frmMain", 1, 1, "Private Sub Form_Load()");
  toolkit.OnPopup("Goto Designer");
  Offered(0);
  EXPECT_TRUE(Component("frmMain")->HasOpenDesigner());
  EXPECT_THAT(Messages(), IsEmpty());
}

}  // namespace
}  // namespace corvane::tests
