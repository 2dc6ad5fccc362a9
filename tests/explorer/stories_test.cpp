// What a user does with a real project, from its files to a line in a code pane.
#include "tests/explorer/explorer_fixture.h"
#include "tests/support/sample_files.h"

namespace corvane::tests {
namespace {

class Story : public ExplorerTest {
 protected:
  Story() {
    PutSample("stockroom", files);
    environment = environment::Environment::Create(files, &services.clipboard);
    environment->Open("Z:\\samples\\stockroom\\Stockroom.vbp");
    OpenWindow();
  }

  environment::MemoryFiles files;
};

TEST_F(Story, ReadAProcedureAndJumpIntoItsCode) {
  EXPECT_THAT(form.Caption(), HasSubstr("Stockroom.vbp )"));
  EXPECT_GE(form.lbxComp->ListCount(), 15);
  ChooseComponent("modMain");
  EXPECT_THAT(CodeRows()[0], "Option Explicit");
  ChooseProcedure("Public Sub Main()");
  EXPECT_EQ(form.txtCode.List(1), "Public Sub Main()");
  EXPECT_EQ(form.txtCode.List(form.txtCode.ListCount()), "End Sub");
  long row = RowOf(CodeRows(), "Set Store = New clsStore") + 1;
  form.txtCode.SetStrPos(row);
  form.txtCode.DblClick();
  host::Ref<host::CodePane> pane = environment->ActiveCodePane();
  ASSERT_NE(pane, nullptr);
  EXPECT_EQ(pane->CodeModule()->Name(), "modMain");
  EXPECT_THAT(pane->CodeModule()->Lines(pane->GetSelection().start_line, 1), HasSubstr("Set Store = New clsStore"));
  EXPECT_FALSE(environment->IsDirty());
}

TEST_F(Story, EveryRowOfEveryComponentShowsItsOwnHeader) {
  for (long component = 1; component < form.lbxComp->ListCount(); ++component) {
    form.lbxComp->UserSelect(component);
    for (long row = 1; row < form.lbxProc->ListCount(); ++row) {
      form.lbxProc->UserSelect(row);
      std::string shown = explorer::ShownText(form.lbxProc->List(row));
      std::string header = form.txtCode.List(form.txtCode.ListIndex());
      EXPECT_EQ(header.substr(header.find_first_not_of(' ')), shown) << form.lbxComp->Text();
    }
  }
  EXPECT_THAT(toolkit.Faults(), IsEmpty());
}

TEST_F(Story, FilterTheGlobals) {
  size_t all = Procedures().size();
  ClickOn(form.optProcFunc);
  for (const std::string& row : Procedures()) {
    if (row != "Declarations") {
      EXPECT_THAT(row, HasSubstr("Function "));
    }
  }
  EXPECT_LT(Procedures().size(), all);
  ClickOn(form.optProcPriv);
  for (const std::string& row : Procedures()) {
    if (row != "Declarations") {
      EXPECT_THAT(row, HasSubstr("Private "));
    }
  }
  ClickOn(form.optAllProc);
  EXPECT_EQ(Procedures().size(), all);
}

TEST_F(Story, KeepOnePairWhileBrowsingInTheOther) {
  ChooseProcedure("Public Sub Main()");
  std::vector<std::string> code = CodeRows();
  form.optSecond.UserClick();
  form.axForms.Click();
  EXPECT_THAT(Components(), Contains("frmOrders"));
  form.optFirst.UserClick();
  EXPECT_EQ(CodeRows(), code);
}

TEST_F(Story, FollowTheCaretIntoTheCurrentCode) {
  Caret("clsStore", Module("clsStore").CountOfLines() - 2);
  form.optCurMod.UserClick();
  EXPECT_THAT(Components(), ElementsAre("clsStore"));
  EXPECT_THAT(form.lbxProc->Text(), StartsWith("A current line:    "));
  EXPECT_TRUE(form.txtCode.HasFocus());
}

TEST_F(Story, OpenTheDesignerOfAForm) {
  ChooseComponent("frmOrders");
  form.cmGo.Click();
  EXPECT_TRUE(Component("frmOrders")->HasOpenDesigner());
}

}  // namespace
}  // namespace corvane::tests
