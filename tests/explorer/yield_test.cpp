// What the user does while a listing lets events through has its way: the listing it interrupts ends there.
#include "tests/explorer/explorer_fixture.h"

namespace corvane::tests {
namespace {

class DuringAYield : public ExplorerTest {
 protected:
  DuringAYield() {
    Code lines;
    for (int line = 0; line < 200; ++line) lines.push_back("Private m" + std::to_string(line));
    for (const char* line : {"", "Sub Long1()", "End Sub"}) lines.push_back(line);
    OpenWindow({
        Frm("frmMain",
            {"Option Explicit", "", "Private Sub Form_Load()", "    Fill", "End Sub", "", "Sub Fill()", "End Sub"}),
        Bas("modMain", {"Public Total As Long", "", "Public Sub Main()", "End Sub"}),
        Cls("clsItem", {"Private mName", "", "Property Get Name()", "End Property"}),
        Cls("clsLong", lines),
        MdiFrm("frmDesk", {"Option Explicit", "", "Sub Tile()", "End Sub"}),
    });
  }
  // The first yield of [choice] runs [act].
  void Interrupt(const std::function<void()>& choice, const std::function<void()>& act) {
    bool done = false;
    services.loop.on_do_events = [&] {
      if (!std::exchange(done, true)) act();
    };
    choice();
    services.loop.on_do_events = nullptr;
    EXPECT_TRUE(done);
    EXPECT_FALSE(form.txtCode.NoAnalyse);
  }
  void InterruptTheLongClass(const std::function<void()>& act) {
    Interrupt([this] { ChooseComponent("clsLong"); }, act);
  }
  void ExpectTheListsToAnswer() {
    form.axAllComp.Click();
    ChooseComponent("clsItem");
    EXPECT_THAT(CodeRows(), ElementsAre("Private mName"));
  }
};

TEST_F(DuringAYield, AKindButtonHasItsWay) {
  InterruptTheLongClass([this] { form.axForms.Click(); });
  EXPECT_THAT(Components(), ElementsAre(" Project Globals", "frmDesk", "frmMain"));
  EXPECT_EQ(form.lbxComp->Text(), "frmDesk");
  EXPECT_THAT(Procedures(), ElementsAre("Declarations", "Sub Tile()"));
  EXPECT_THAT(CodeRows(), ElementsAre("Option Explicit"));
  ExpectTheListsToAnswer();
}

TEST_F(DuringAYield, TheNameFilterHasItsWay) {
  InterruptTheLongClass([this] {
    form.txtFind.SetText("item");
    Press(form.txtFind, forms::vbKeyReturn);
  });
  EXPECT_THAT(Components(), ElementsAre(" Project Globals", "clsItem"));
  EXPECT_THAT(Procedures(), ElementsAre("Declarations", "Property Get Name()"));
  EXPECT_THAT(CodeRows(), ElementsAre("Private mName"));
  EXPECT_TRUE(form.lbxComp->HasFocus());
  ExpectTheListsToAnswer();
}

TEST_F(DuringAYield, RefreshHasItsWay) {
  InterruptTheLongClass([this] { form.tlbr.UserButtonClick(form.tlbr.PositionOf("Refresh")); });
  EXPECT_EQ(Components().size(), 6u);
  EXPECT_EQ(form.lbxComp->ListIndex(), 0);
  EXPECT_THAT(Procedures(), ElementsAre("Declarations", "Public Sub Main()"));
  EXPECT_THAT(CodeRows(), Contains("Public Total As Long"));
  ExpectTheListsToAnswer();
}

TEST_F(DuringAYield, TheCurrentCodeHasItsWayAndIsAnalysed) {
  Caret("frmMain", 4);
  InterruptTheLongClass([this] { form.optCurMod.UserClick(); });
  EXPECT_THAT(Components(), ElementsAre("frmMain"));
  EXPECT_THAT(Procedures(),
              ElementsAre("Declarations", "A current line:    Fill", "Private Sub Form_Load()", "Sub Fill()"));
  EXPECT_THAT(CodeRows(), ElementsAre("Private Sub Form_Load()", "    Fill", "End Sub")) << "raw it would go on";
}

TEST_F(DuringAYield, TheOtherPairIsLeftToItself) {
  InterruptTheLongClass([this] { form.optSecond.UserClick(); });
  EXPECT_TRUE(form.lbxProc == &form.lbxProc2);
  EXPECT_THAT(Procedures(), IsEmpty());
  EXPECT_THAT(CodeRows(), IsEmpty());
  ExpectTheListsToAnswer();
}

TEST_F(DuringAYield, AKindButtonEndsTheListingOfTheProject) {
  Interrupt([this] { form.lbxComp->UserSelect(0); }, [this] { form.axClasses.Click(); });
  EXPECT_THAT(Components(), ElementsAre(" Project Globals", "clsItem", "clsLong"));
  EXPECT_EQ(form.lbxComp->Text(), "clsItem");
  EXPECT_THAT(Procedures(), ElementsAre("Declarations", "Property Get Name()"));
}

TEST_F(DuringAYield, AKindButtonEndsTheListingOfTheCurrentCode) {
  Caret("frmMain", 4);
  Interrupt([this] { form.optCurMod.UserClick(); }, [this] { form.axClasses.Click(); });
  EXPECT_THAT(Components(), ElementsAre(" Project Globals", "clsItem", "clsLong"));
  EXPECT_TRUE(form.lbxProc->HasFocus());
}

TEST_F(DuringAYield, AKindButtonEndsTheFirstListing) {
  form.Unload();
  form.LoadForm();
  Interrupt([this] { form.Activate(); }, [this] { form.axClasses.Click(); });
  EXPECT_THAT(Components(), ElementsAre(" Project Globals", "clsItem", "clsLong"));
  EXPECT_EQ(form.lbxComp->Text(), "clsItem");
}

TEST_F(DuringAYield, AChosenComponentWaitsForTheListing) {
  InterruptTheLongClass([this] { ChooseComponent("clsItem"); });
  EXPECT_THAT(Procedures(), ElementsAre("Declarations", "Sub Long1()"));
  EXPECT_EQ(CodeRows().size(), 200u);
}

TEST_F(DuringAYield, ARowChosenWhileATextSettlesKeepsItsPlace) {
  ChooseComponent("modMain");
  AddHit("modMain", 2, 4, "End Sub");
  Interrupt([this] { form.lbxProc->UserSelect(RowOf(Procedures(), "Main()")); },
            [this] { form.lbxProc->UserSelect(RowOf(Procedures(), "modMain:")); });
  EXPECT_EQ(form.txtCode.ListIndex(), 2);
}

}  // namespace
}  // namespace corvane::tests
