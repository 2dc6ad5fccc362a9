// The jumps into the environment.
#include "tests/explorer/explorer_fixture.h"

namespace corvane::tests {
namespace {

class GoTo : public ExplorerTest {
 protected:
  const Sources kShop = {
      Frm("frmMain", {"Option Explicit", "' the form", "Private a As Long", "", "Private Sub Form_Load()", "    Fill",
                      "    a = 1", "End Sub", "", "Sub Fill()", "    a = 2", "End Sub"}),
      Bas("modMain", {"Public Total As Long", "Public Count As Long", "", "Public Sub Main()", "End Sub"}),
      Bas("modMore", {"Public More As Long", "Public Most As Long"}),
  };
  // The user double-clicks a row of the code view.
  void GoFrom(long row) {
    form.txtCode.SetStrPos(row);
    form.txtCode.DblClick();
  }
  long LineIn(const std::string& module) {
    auto pane = environment->ActiveCodePane();
    if (!pane || pane->CodeModule()->Name() != module) return 0;
    return pane->GetSelection().start_line;
  }
};

TEST_F(GoTo, ADoubleClickStandsOnThatLineInTheCodePane) {
  OpenWindow(kShop);
  ChooseComponent("frmMain");
  ChooseProcedure("Fill()");
  GoFrom(2);
  EXPECT_EQ(LineIn("frmMain"), 11);
  EXPECT_EQ(SelectionOf("frmMain"), (host::Selection{11, 1, 11, 1}));
}

TEST_F(GoTo, FromTheDeclarationsOfAComponent) {
  OpenWindow(kShop);
  ChooseComponent("frmMain");
  for (long row = 1; row <= 3; ++row) {
    GoFrom(row);
    EXPECT_EQ(LineIn("frmMain"), row);
  }
}

TEST_F(GoTo, FromTheGlobalsTheLineCountsFromTheTitle) {
  OpenWindow(kShop);
  long title = RowOf(CodeRows(), "Standart Module: modMore") + 1;
  GoFrom(title + 2);
  EXPECT_EQ(LineIn("modMore"), 2);
  GoFrom(2);
  EXPECT_EQ(LineIn("modMain"), 1);
}

TEST_F(GoTo, ATitleLineGivesTheMessage) {
  OpenWindow(kShop);
  GoFrom(1);
  EXPECT_THAT(Messages(), ElementsAre("Don't select \"Standart Module\" line. It's a title"));
  EXPECT_EQ(environment->ActiveCodePane(), nullptr);
}

TEST_F(GoTo, ALineThatMovedIsFoundByItsText) {
  OpenWindow(kShop);
  ChooseComponent("frmMain");
  ChooseProcedure("Form_Load");
  Module("frmMain").InsertLines(6, "    Debug.Print a");
  GoFrom(3);
  EXPECT_EQ(LineIn("frmMain"), 8);
}

TEST_F(GoTo, ARowOfTheGlobalsGoesToItsOwnModule) {
  OpenWindow(kShop);
  ChooseProcedure("Main()");
  GoFrom(2);
  EXPECT_EQ(LineIn("modMain"), 5);
}

TEST_F(GoTo, WithNothingListedItGoesNowhere) {
  OpenWindow(kShop);
  form.lbxComp->Clear();
  form.lbxProc->Clear();
  form.txtCode.Clear();
  form.txtCode.DblClick();
  EXPECT_EQ(environment->ActiveCodePane(), nullptr);
}

TEST_F(GoTo, WithoutGoModeItOnlyTellsTheComponent) {
  OpenWindow(kShop);
  ChooseProcedure("Main()");
  EXPECT_EQ(form.GoToCode(), 2);
  EXPECT_EQ(environment->ActiveCodePane(), nullptr);
}

TEST_F(GoTo, ThePlaceThatWasLeftBecomesThePreviousPoint) {
  Open(kShop);
  Caret("modMain", 4);
  OpenWindow();
  form.optProj.UserClick();
  ChooseComponent("frmMain");
  ChooseProcedure("Fill()");
  GoFrom(1);
  EXPECT_EQ(form.previousPoint, "<Previous point>" + std::string(160, ' ') + "\\+\\modMain\t4");
}

// A block that begins with comments; all its lines may be alike, so that no text mends a wrong reckoning.
class GoFromBlock : public GoTo {
 protected:
  void ShowBlock(const Code& lines, long line) {
    OpenWindow({Bas("modMain", lines), Frm("frmMain", {"Dim x", ""})});
    ChooseComponent("modMain");
    form.AddProcedureRow(Module("modMain"), line);
    form.lbxProc->UserSelect(form.lbxProc->NewIndex());
    ASSERT_EQ(form.txtCode.ListIndex(), line);
  }
};

TEST_F(GoFromBlock, TheLineCountsFromTheFirstRowThatIsNoCommentAndNotBlank) {
  Code lines = {"' one", "", "   ", "Rem three", "REM"};
  lines.resize(60, "Dim a");
  ShowBlock(lines, 10);
  GoFrom(20);
  EXPECT_EQ(LineIn("modMain"), 10 + 20 - 6);
}

TEST_F(GoFromBlock, TheFirstRowWithCodeIsLookedForOnSixtyFiveRows) {
  const struct {
    size_t comments;
    long first;
  } kCases[] = {{64, 65}, {65, 1}};
  for (const auto& c : kCases) {
    form.Unload();
    Code lines(c.comments, "' note");
    lines.push_back("Dim a");
    lines.resize(200, "' note");
    ShowBlock(lines, 30);
    GoFrom(70);
    EXPECT_EQ(LineIn("modMain"), 30 + 70 - c.first) << c.comments;
  }
}

TEST_F(GoFromBlock, ARowAboveTheFirstWithCodeIsNotAboveTheModule) {
  Code lines(3, "' note");
  lines.resize(20, "Dim a");
  ShowBlock(lines, 1);
  GoFrom(1);
  EXPECT_EQ(LineIn("modMain"), 1);
}

TEST_F(GoFromBlock, ARowWithoutALineCountsFromTheFirst) {
  ShowBlock(Code(20, "Dim a"), 10);
  form.lbxProc->SetItemData(form.lbxProc->ListIndex(), 0);
  GoFrom(5);
  EXPECT_EQ(LineIn("modMain"), 5);
}

TEST_F(GoTo, ARowWithoutALineGoesToTheFirst) {
  OpenWindow(kShop);
  ChooseComponent("modMain");
  form.lbxProc->SetItemData(form.lbxProc->ListIndex(), 0);
  form.goMode = form.toProcStart = true;
  EXPECT_EQ(form.GoToCode(), 2);
  EXPECT_EQ(LineIn("modMain"), 1);
}

TEST_F(GoTo, ATitleThatNamesNoStandardModuleGoesNowhere) {
  OpenWindow(kShop);
  for (const char* name : {"frmMain", "modGone"}) {
    form.txtCode.SetText(explorer::TitleOfModule(name) + "\r\nPublic More As Long\r\n");
    GoFrom(2);
    EXPECT_EQ(environment->ActiveCodePane(), nullptr) << name;
  }
  form.txtCode.SetText(explorer::TitleOfModule("modMore") + "\r\nPublic More As Long\r\n");
  GoFrom(2);
  EXPECT_EQ(LineIn("modMore"), 1);
}

}  // namespace
}  // namespace corvane::tests
