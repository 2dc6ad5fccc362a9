// The caret's lines become bookmarks, and the list leads back to them.
#include "tests/explorer/explorer_fixture.h"

namespace corvane::tests {
namespace {

class BookmarkList : public ExplorerTest {
 protected:
  BookmarkList() {
    OpenWindow({
        Bas("modMain",
            {"Option Explicit", "Public Total As Long", "", "Public Sub Main()", "    Total = 1", "    Total = 2",
             "    Total = 3", "End Sub", "", "Public Sub Done()", "    Total = 0", "End Sub"}),
        Frm("frmMain", {"Option Explicit", "Private a As Long", "", "Private Sub Form_Load()", "    a = 1", "    a = 2",
                        "End Sub"}),
        Cls("clsBasket", {"Option Explicit", "Private b As Long", "", "Public Sub Fill()", "    b = 1", "End Sub"}),
    });
  }
  void Key() { form.tlbr.UserButtonClick(form.tlbr.PositionOf("BookMarks")); }
  void Entry(int entry) { form.tlbr.UserButtonMenuClick(form.tlbr.PositionOf("BookMarks"), entry); }
  void Mark(const std::string& module, long line) {
    Caret(module, line);
    Entry(2);
  }
  std::string Here() const { return form.txtCode.List(form.txtCode.ListIndex()); }
};

TEST_F(BookmarkList, TheLineOfTheCaretBecomesABookmark) {
  Mark("modMain", 6);
  ASSERT_EQ(form.bookmarks.Count(), 1);
  EXPECT_EQ(form.bookmarks.Row(0), explorer::BookmarkRow("    Total = 2", "modMain", 6));
  EXPECT_EQ(form.Label5.Caption(), "    Total = 2");
  EXPECT_EQ(form.caretModule, "modMain");
  EXPECT_EQ(form.caretLine, 6);
}

TEST_F(BookmarkList, WithoutACodePaneNothingIsRemembered) {
  Entry(2);
  EXPECT_EQ(form.bookmarks.Count(), 0);
  EXPECT_EQ(form.Label5.Caption(), "");
}

TEST_F(BookmarkList, ABlankLineBecomesNone) {
  Mark("modMain", 3);
  EXPECT_EQ(form.bookmarks.Count(), 0);
  Module("modMain").ReplaceLine(3, "    ");
  Mark("modMain", 3);
  EXPECT_EQ(form.bookmarks.Count(), 0);
}

TEST_F(BookmarkList, WithoutAnyTheListsStayAsTheyAre) {
  ChooseComponent("modMain");
  const auto rows = Rows(*form.lbxProc);
  Key();
  EXPECT_EQ(Rows(*form.lbxProc), rows);
  EXPECT_EQ(form.lbxComp->Text(), "modMain");
}

TEST_F(BookmarkList, TheNewestComesFirstAndNumbersGoOnFromTheComponents) {
  Mark("modMain", 5);
  Mark("frmMain", 6);
  ASSERT_EQ(form.lbxComp->ListCount(), 4);
  Key();
  EXPECT_THAT(Components(), ElementsAre(" Result"));
  EXPECT_EQ(form.lbxComp->ItemData(0), 0);
  const auto rows = Rows(*form.lbxProc);
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_THAT(rows[0], StartsWith("05  a = 2" + std::string(150, ' ')));
  EXPECT_EQ(rows[1], "06  " + explorer::BookmarkRow("Total = 1", "modMain", 5));
  EXPECT_EQ(form.lbxProc->ItemData(1), 0);
}

TEST_F(BookmarkList, BothTheKeyAndItsFirstEntryListThem) {
  Mark("modMain", 5);
  Entry(1);
  EXPECT_THAT(Components(), ElementsAre(" Result"));
}

TEST_F(BookmarkList, TheFirstRowIsChosenAndItsLineShown) {
  Mark("modMain", 6);
  Key();
  EXPECT_EQ(form.lbxProc->ListIndex(), 0);
  EXPECT_EQ(form.lbxProc->ItemData(0), 6);
  EXPECT_EQ(form.lblSub.Caption(), "Public Sub Main()");
  EXPECT_EQ(Here(), "    Total = 2");
  EXPECT_TRUE(form.lbxProc->HasFocus());
}

TEST_F(BookmarkList, ARowThatWasChosenIsOneLikeTheOthers) {
  Mark("modMain", 6);
  Key();
  EXPECT_EQ(explorer::ComponentInTail(form.lbxProc->List(0)), 1);
  EXPECT_FALSE(explorer::IsBookmark(form.lbxProc->List(0)));
  EXPECT_THAT(form.lbxProc->List(0), StartsWith("05  Total = 2   "));
}

TEST_F(BookmarkList, NeitherModeIsChosenWhileItIsShown) {
  Mark("modMain", 6);
  form.optCurMod.UserClick();
  ASSERT_TRUE(form.optCurMod.Value());
  Key();
  EXPECT_FALSE(form.optCurMod.Value());
  EXPECT_FALSE(form.optProj.Value());
}

TEST_F(BookmarkList, ADoubleClickGoesToTheLine) {
  Mark("modMain", 6);
  Mark("frmMain", 5);
  Caret("clsBasket", 1);
  Key();
  form.lbxProc->UserSelect(1);
  form.lbxProc->DblClick();
  EXPECT_EQ(environment->ActiveCodePane()->CodeModule()->Name(), "modMain");
  EXPECT_EQ(SelectionOf("modMain").start_line, 6);
}

TEST_F(BookmarkList, ThePlaceThatTheLatestJumpLeftIsTheFirstRow) {
  Mark("modMain", 6);
  Caret("frmMain", 5);
  ChooseComponent("clsBasket");
  ChooseProcedure("Fill");
  form.txtCode.DblClick();
  Key();
  EXPECT_THAT(form.lbxProc->List(0), StartsWith("00  <Previous point>" + std::string(150, ' ')));
  EXPECT_EQ(form.lbxProc->ItemData(0), 5);
  EXPECT_EQ(Here(), "    a = 1") << "it is chosen, and its line shown";
  EXPECT_THAT(form.lbxProc->List(1), StartsWith("05  Total = 2"));
}

TEST_F(BookmarkList, ThePlaceThatTheLatestJumpLeftIsEnough) {
  Caret("frmMain", 5);
  ChooseComponent("clsBasket");
  ChooseProcedure("Fill");
  form.txtCode.DblClick();
  Key();
  EXPECT_EQ(form.lbxProc->ListCount(), 1);
}

TEST_F(BookmarkList, TheMenuOfTheAddInsButtonLeadsBackToThePreviousLine) {
  Mark("frmMain", 5);
  toolkit.OnPopup("Back to previous line");
  form.Display();
  EXPECT_THAT(toolkit.Faults(), IsEmpty());
  EXPECT_THAT(Components(), ElementsAre(" Result"));
  EXPECT_EQ(Here(), "    a = 1");
}

TEST_F(BookmarkList, OneWhoseModuleIsGoneChangesNothingInTheView) {
  Mark("clsBasket", 5);
  Mark("modMain", 5);
  auto components = environment->ActiveVBProject()->VBComponents();
  components->Remove(components->Item("clsBasket"));
  Key();
  ASSERT_EQ(Here(), "    Total = 1");
  const auto code = CodeRows();
  const std::string row = form.lbxProc->List(1);
  form.lbxProc->UserSelect(1);
  EXPECT_EQ(CodeRows(), code);
  EXPECT_EQ(form.lbxProc->List(1), row);
  EXPECT_EQ(form.lbxProc->ListCount(), 2);
  EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(BookmarkList, WhereAllModulesAreGoneTheCodeViewIsEmptyAndTheListCanBeLeft) {
  Mark("clsBasket", 5);
  auto components = environment->ActiveVBProject()->VBComponents();
  components->Remove(components->Item("clsBasket"));
  Key();
  EXPECT_EQ(form.txtCode.ListCount(), 0);
  EXPECT_THAT(toolkit.Faults(), IsEmpty());
  form.tlbr.UserButtonClick(form.tlbr.PositionOf("Refresh"));
  EXPECT_THAT(Components(), Contains("modMain"));
}

TEST_F(BookmarkList, OneBehindTheModulesEndShowsWhatThereIsAndLeavesTheListUsable) {
  Mark("modMain", 11);
  Module("modMain").DeleteLines(4, 9);
  Key();
  EXPECT_EQ(form.lbxProc->ListCount(), 1);
  EXPECT_TRUE(form.lbxProc->HasFocus());
  ChooseComponent(" Result");
  form.tlbr.UserButtonClick(form.tlbr.PositionOf("Refresh"));
  EXPECT_THAT(Components(), Contains("modMain"));
}

TEST_F(BookmarkList, ALineThatHoldsTheMarkOfABookmarkIsFound) {
  Module("modMain").ReplaceLine(5, "    Open \"C:\\a \\+\\b\tc\" For Input As #1");
  Mark("modMain", 5);
  Key();
  EXPECT_EQ(form.lbxProc->ItemData(0), 5);
  EXPECT_THAT(Here(), HasSubstr("For Input As #1"));
}

TEST_F(BookmarkList, TheListThatItReplacesComesBack) {
  Mark("frmMain", 5);
  ChooseComponent("modMain");
  const auto rows = Rows(*form.lbxProc);
  Key();
  ASSERT_TRUE(form.cmdPrev.Enabled());
  form.cmdPrev.Click();
  EXPECT_EQ(form.lbxComp->Text(), "modMain");
  EXPECT_EQ(Rows(*form.lbxProc), rows);
}

TEST_F(BookmarkList, TwoListsOfBookmarksAreTwoSnapshots) {
  Mark("frmMain", 5);
  Key();
  const auto first = Shown(*form.lbxProc);
  Mark("modMain", 5);
  Key();
  const auto second = Shown(*form.lbxProc);
  ChooseComponent(" Result");
  form.tlbr.UserButtonClick(form.tlbr.PositionOf("Refresh"));
  form.cmdPrev.Click();
  EXPECT_EQ(Shown(*form.lbxProc), second);
  form.cmdPrev.Click();
  EXPECT_EQ(Shown(*form.lbxProc), first);
}

TEST_F(BookmarkList, TheViewThatItReplacesIsAPointOfTheHistory) {
  Mark("frmMain", 5);
  ChooseComponent("clsBasket");
  ChooseProcedure("Fill");
  Key();
  ASSERT_EQ(Here(), "    a = 1");
  form.tlbr.UserButtonClick(form.tlbr.PositionOf("Previous"));
  EXPECT_EQ(form.lblSub.Caption(), "Public Sub Fill()");
}

TEST_F(BookmarkList, ItStaysInItsPairWhileTheOtherIsBrowsed) {
  Mark("frmMain", 5);
  Mark("modMain", 6);
  Key();
  form.lbxProc->UserSelect(1);
  const auto rows = Rows(*form.lbxProc);
  ClickOn(form.optSecond);
  form.tlbr.UserButtonClick(form.tlbr.PositionOf("Refresh"));
  ChooseComponent("clsBasket");
  ChooseProcedure("Fill");
  EXPECT_EQ(form.lblSub.Caption(), "Public Sub Fill()");
  ClickOn(form.optFirst);
  EXPECT_THAT(Components(), ElementsAre(" Result"));
  EXPECT_EQ(Rows(*form.lbxProc), rows);
  EXPECT_EQ(form.lbxProc->ListIndex(), 1);
  EXPECT_EQ(form.lblSub.Caption(), "Private Sub Form_Load()") << "the row leads to its code as before";
}

TEST_F(BookmarkList, UnloadingForgetsAll) {
  Mark("frmMain", 5);
  ChooseComponent("clsBasket");
  ChooseProcedure("Fill");
  form.txtCode.DblClick();
  form.tlbr.UserButtonClick(form.tlbr.PositionOf("pExit"));
  EXPECT_EQ(form.bookmarks.Count(), 0);
  EXPECT_EQ(form.previousPoint, "");
  EXPECT_EQ(form.caretModule, "");
  OpenWindow();
  const auto components = Components();
  Key();
  EXPECT_EQ(Components(), components) << "there is nothing to list";
}

TEST_F(BookmarkList, HidingForgetsNothing) {
  Mark("frmMain", 5);
  Press(*form.lbxProc, forms::vbKeyEscape);
  ASSERT_FALSE(form.Visible());
  OpenWindow();
  EXPECT_EQ(form.bookmarks.Count(), 1);
}

class DeclareKeys : public BookmarkList {
 protected:
  DeclareKeys() {
    explorer::ToolWindows tools;
    tools.DeclareVar = [this](long component, const host::Ref<host::VBE>& vbe) {
      asked.push_back(component);
      EXPECT_EQ(vbe, environment);
      return goes;
    };
    form.SetTools(tools);
  }
  void Pen() { form.tlbr.UserButtonClick(form.tlbr.PositionOf("Pen")); }
  std::vector<long> asked;
  bool goes = false;
};

TEST_F(DeclareKeys, WhoGoesToTheCodeFindsTheLineAmongTheBookmarks) {
  goes = true;
  Caret("frmMain", 5);
  Pen();
  EXPECT_THAT(asked, ElementsAre(2));
  ASSERT_EQ(form.bookmarks.Count(), 1);
  EXPECT_EQ(form.bookmarks.Row(0), explorer::BookmarkRow("    a = 1", "frmMain", 5));
  EXPECT_FALSE(form.Visible());
}

TEST_F(DeclareKeys, WhoStaysPutsNoBookmark) {
  Caret("frmMain", 5);
  Pen();
  EXPECT_EQ(form.bookmarks.Count(), 0);
  EXPECT_TRUE(form.Visible());
}

TEST_F(DeclareKeys, WithoutACodePaneTheWindowOpensAllTheSame) {
  Pen();
  EXPECT_THAT(asked, ElementsAre(0));
}

TEST_F(DeclareKeys, TheMenuDeclaresInTheModuleOfTheCodePane) {
  Caret("clsBasket", 5);
  toolkit.OnPopup("Declare variable");
  form.Display();
  EXPECT_THAT(asked, ElementsAre(3));
}

TEST_F(DeclareKeys, WithoutTheToolTheyAreDisabled) {
  form.SetTools({});
  EXPECT_FALSE(form.tlbr.Button(form.tlbr.PositionOf("Pen")).Enabled);
  form.mnuIDE.UserOpen();
  EXPECT_FALSE(form.mnuIDEDeclare.Enabled());
}

}  // namespace
}  // namespace corvane::tests
