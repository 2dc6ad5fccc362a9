// The designers that the user keeps at hand.
#include "explorer/favorite_designers.h"

#include "tests/explorer/explorer_fixture.h"

namespace corvane::tests {
namespace {

using explorer::FavoriteDesigners;

TEST(FavoriteDesigners, TheNewestIsNotAddedAgain) {
  FavoriteDesigners designers;
  for (const char* name : {"frmMain", "frmMain", "frmOther", "frmMain"}) designers.Add(name);
  EXPECT_THAT(designers.Names(), ElementsAre("frmMain", "frmOther", "frmMain"));
}

TEST(FavoriteDesigners, TheFifteenthDropsTheFirst) {
  FavoriteDesigners designers;
  for (int number = 1; number <= 15; ++number) designers.Add("frm" + std::to_string(number));
  ASSERT_EQ(designers.Names().size(), 14u);
  EXPECT_EQ(designers.Names().front(), "frm2");
  EXPECT_EQ(designers.Names().back(), "frm15");
}

class DesignerList : public ExplorerTest {
 protected:
  void Shop() {
    OpenWindow({
        Bas("modMain",
            {"Option Explicit", "Public Total As Long", "", "Public Sub Main()", "    Total = 1", "End Sub"}),
        Frm("frmMain", {"Option Explicit", "Private a As Long", "", "Private Sub Form_Load()", "    a = 1", "End Sub"}),
        Ctl("ucBin", {"Option Explicit", "Private b As Long"}),
    });
  }
  void Entry(int entry) { form.tlbr.UserButtonMenuClick(form.tlbr.PositionOf("Favorites"), entry); }
  void Add(const std::string& component) {
    ChooseComponent(component);
    Entry(4);
  }
  std::vector<std::string> Names() const { return form.favoriteDesigners.Names(); }
};

TEST_F(DesignerList, WithoutAnyAMessageTellsHowToAddOne) {
  Shop();
  const auto code = CodeRows();
  Entry(3);
  EXPECT_THAT(Messages(), ElementsAre("Use Favorites DropDown menu to add Designer to the list.\r\n"
                                      "There is an empty Favorite Designers list."));
  EXPECT_EQ(CodeRows(), code);
}

TEST_F(DesignerList, TheChosenComponentIsAdded) {
  Shop();
  Add("frmMain");
  Add("ucBin");
  EXPECT_THAT(Names(), ElementsAre("frmMain", "ucBin"));
  EXPECT_THAT(Messages(), IsEmpty());
  EXPECT_THAT(services.prompts.input_boxes, IsEmpty());
}

TEST_F(DesignerList, InTheListOfTheProjectTheModuleOfTheCodePaneIsAdded) {
  Shop();
  Caret("frmMain", 1);
  Entry(4);
  EXPECT_THAT(Names(), ElementsAre("frmMain"));
}

TEST_F(DesignerList, AmongResultsTheComponentInFrontOfTheColonIsAdded) {
  Shop();
  form.cmbSearch.SetText("b As Long");
  form.cbSearch.Click();
  ASSERT_THAT(Components(), ElementsAre(explorer::kResult));
  Entry(4);
  EXPECT_THAT(Names(), ElementsAre("ucBin"));
}

TEST_F(DesignerList, WithoutAComponentNothingIsAdded) {
  Shop();
  Entry(4);
  EXPECT_THAT(Names(), IsEmpty());
  EXPECT_THAT(Messages(), ElementsAre("Current component has not a designer.\r\nDesigner is not available."));
}

TEST_F(DesignerList, EachIsARowWithABlankOneBetween) {
  Shop();
  Add("frmMain");
  Add("ucBin");
  Entry(3);
  EXPECT_THAT(CodeRows(), ElementsAre("ModuleName = frmMain", " ", "ModuleName = ucBin"));
  EXPECT_EQ(form.lblSub.Caption(), "    < Search Result >");
  EXPECT_EQ(form.txtCode.ListIndex(), 1);
  EXPECT_TRUE(form.txtCode.HasFocus() || form.txtCode.pic.HasFocus());
}

TEST_F(DesignerList, TheButtonBesideTheKindsListsThemToo) {
  Shop();
  Add("frmMain");
  form.axLastComp.Click();
  EXPECT_THAT(CodeRows(), ElementsAre("ModuleName = frmMain"));
}

TEST_F(DesignerList, AKeyListsThemWhereverTheFocusIs) {
  Shop();
  Add("frmMain");
  int key = forms::vbKey0 + 6;
  form.KeyDown(key, forms::vbAltMask);
  EXPECT_THAT(CodeRows(), ElementsAre("ModuleName = frmMain"));
}

TEST_F(DesignerList, ADoubleClickOpensTheDesigner) {
  Shop();
  Add("frmMain");
  Add("ucBin");
  Entry(3);
  ASSERT_FALSE(Component("ucBin")->HasOpenDesigner());
  form.txtCode.SetStrPos(3);
  form.txtCode.DblClick();
  EXPECT_TRUE(Component("ucBin")->HasOpenDesigner());
  EXPECT_FALSE(Component("frmMain")->HasOpenDesigner());
}

TEST_F(DesignerList, OneThatIsGoneOpensNothing) {
  Shop();
  form.AddFavoriteDesigner("frmGone");
  Entry(3);
  form.txtCode.DblClick();
  EXPECT_THAT(toolkit.Faults(), IsEmpty());
  EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(DesignerList, AddingFromTheListAddsTheComponentOfTheRow) {
  Shop();
  Add("frmMain");
  Add("ucBin");
  Entry(3);
  form.txtCode.SetStrPos(1);
  Entry(4);
  EXPECT_THAT(Names(), ElementsAre("frmMain", "ucBin", "frmMain"));
}

TEST_F(DesignerList, TheCodeThatItReplacesIsAPointOfTheHistory) {
  Shop();
  Add("frmMain");
  ChooseComponent("modMain");
  ChooseProcedure("Main");
  Entry(3);
  form.tlbr.UserButtonClick(form.tlbr.PositionOf("Previous"));
  EXPECT_EQ(form.lblSub.Caption(), "Public Sub Main()");
}

TEST_F(DesignerList, FromTheMiddleOfTheHistoryTheWayOnStays) {
  Shop();
  Add("frmMain");
  for (const char* procedure : {"modMain", "frmMain"}) {
    ChooseComponent(procedure);
    form.lbxProc->UserSelect(form.lbxProc->ListCount() - 1);
    form.txtCode.DblClick();
  }
  form.tlbr.UserButtonClick(form.tlbr.PositionOf("First"));
  const long points = form.points.Count(), index = form.points.Index();
  ASSERT_TRUE(form.points.HasHigher());
  Entry(3);
  EXPECT_EQ(form.points.Count(), points);
  EXPECT_EQ(form.points.Index(), index);
}

TEST_F(DesignerList, UnloadingForgetsThem) {
  Shop();
  Add("frmMain");
  form.tlbr.UserButtonClick(form.tlbr.PositionOf("pExit"));
  EXPECT_THAT(Names(), IsEmpty());
}

}  // namespace
}  // namespace corvane::tests
