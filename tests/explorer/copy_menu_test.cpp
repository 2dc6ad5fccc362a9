// Code and lists through the clipboard, and the clip book that shows what went.
#include "tests/explorer/explorer_fixture.h"

namespace corvane::tests {
namespace {

class CopyMenu : public ExplorerTest {
 protected:
  CopyMenu() {
    OpenWindow({
        Bas("modMain", {"Option Explicit", "Public Total As Long", "", "Public Sub Main()", "    Total = 1", "End Sub",
                        "", "Public Sub Done()", "End Sub"}),
        Frm("frmMain", {"Option Explicit", "Private a As Long"}),
    });
    ChooseComponent("modMain");
    ChooseProcedure("Main");
  }
  void Choose(const std::string& caption) {
    toolkit.OnPopup(caption);
    form.lbxProc->UserKeyDown(93, 0);
    EXPECT_THAT(toolkit.Faults(), IsEmpty());
  }
  static constexpr char kMain[] = "Public Sub Main()\r\n    Total = 1\r\nEnd Sub\r\n";
};

TEST_F(CopyMenu, CopyProcedureTakesTheTextOfTheCodeView) {
  services.clipboard.text = "before";
  Choose("Copy Procedure");
  EXPECT_EQ(services.clipboard.text, kMain);
  EXPECT_EQ(services.clipboard.clears, 1);
  EXPECT_EQ(form.txtClip.Text(), kMain);
}

TEST_F(CopyMenu, AddProcedureAddsItToWhatTheClipboardHolds) {
  services.clipboard.text = "before";
  Choose("Add Procedure");
  EXPECT_EQ(services.clipboard.text, std::string("before\r\n") + kMain);
  EXPECT_EQ(form.txtClip.Text(), services.clipboard.text);
}

TEST_F(CopyMenu, AddProcedureBeginsWithALineEndWhereTheClipboardIsEmpty) {
  Choose("Add Procedure");
  EXPECT_EQ(services.clipboard.text, std::string("\r\n") + kMain);
}

TEST_F(CopyMenu, ProceduresGatherOneBehindTheOther) {
  Choose("Copy Procedure");
  ChooseProcedure("Done");
  Choose("Add Procedure");
  EXPECT_EQ(services.clipboard.text, std::string(kMain) + "\r\nPublic Sub Done()\r\nEnd Sub\r\n");
}

TEST_F(CopyMenu, CopyWholePlbTakesWhatTheRowsShow) {
  AddHit("frmMain", 2, 2, "Private a As Long");
  std::string shown;
  for (const std::string& row : Procedures()) shown += (row == "Declarations" ? " " : "") + row + "\r\n";
  Choose("Copy whole PLB");
  EXPECT_EQ(services.clipboard.text, shown);
  EXPECT_THAT(services.clipboard.text, HasSubstr("frmMain:    001   Private a As Long\r\n"));
  EXPECT_THAT(services.clipboard.text, Not(HasSubstr("+|")));
  EXPECT_EQ(form.txtClip.Text(), shown);
}

TEST_F(CopyMenu, ARowIsCutAtItsFirstRunOfThirteenBlanks) {
  form.lbxProc->Clear();
  form.lbxProc->AddItem("a" + std::string(12, ' ') + "b" + std::string(13, ' ') + "c");
  form.lbxProc->AddItem("d  ");
  form.lbxProc->SetItemData(0, 1);
  form.lbxProc->SetListIndex(0);
  Choose("Copy whole PLB");
  EXPECT_EQ(services.clipboard.text, "a" + std::string(12, ' ') + "b\r\nd  \r\n");
}

TEST_F(CopyMenu, ABookmarksPlaceIsNotCopied) {
  form.lbxProc->Clear();
  form.lbxProc->AddItem("01  " + explorer::BookmarkRow("Total = 1", "modMain", 5));
  form.lbxProc->SetItemData(0, 1);
  form.lbxProc->SetListIndex(0);
  Choose("Copy whole PLB");
  EXPECT_EQ(services.clipboard.text, "01  Total = 1\r\n");
}

TEST_F(CopyMenu, AClipboardThatRefusesLosesNothing) {
  services.clipboard.text = "theirs";
  form.txtClip.SetText("shown");
  services.clipboard.fail_with = 521;
  for (const char* caption : {"Copy Procedure", "Add Procedure", "Copy whole PLB"}) Choose(caption);
  EXPECT_EQ(services.clipboard.text, "theirs");
  EXPECT_EQ(form.txtClip.Text(), "shown");
  EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(CopyMenu, NothingReadsTheClipBookBack) {
  form.txtClip.SetText("typed");
  Choose("Copy Procedure");
  form.txtClip.SetText("typed over it");
  Choose("Add Procedure");
  EXPECT_EQ(services.clipboard.text, std::string(kMain) + "\r\n" + kMain);
}

}  // namespace
}  // namespace corvane::tests
