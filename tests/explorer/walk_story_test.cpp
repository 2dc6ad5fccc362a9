// Whole walks through a real project: into code, to a declaration, to other lists, and back.
#include "tests/explorer/explorer_fixture.h"
#include "tests/support/sample_files.h"

namespace corvane::tests {
namespace {

class Walk : public ExplorerTest {
 protected:
  Walk() {
    PutSample("stockroom", files);
    environment = environment::Environment::Create(files, &services.clipboard);
    environment->Open("Z:\\samples\\stockroom\\Stockroom.vbp");
    OpenWindow();
  }
  ~Walk() override {
    EXPECT_THAT(toolkit.Faults(), IsEmpty());
    EXPECT_THAT(Messages(), IsEmpty());
    EXPECT_FALSE(environment->IsDirty()) << "reading changes nothing";
  }
  void Read(const std::string& component, const std::string& procedure) {
    ChooseComponent(component);
    ChooseProcedure(procedure);
  }
  void JumpFrom(const std::string& code) {
    form.txtCode.SetStrPos(RowOf(CodeRows(), code) + 1);
    form.txtCode.DblClick();
  }
  void Key(const std::string& key) { form.tlbr.UserButtonClick(form.tlbr.PositionOf(key)); }
  std::string Here() const { return form.txtCode.List(form.txtCode.ListIndex()); }
  std::string ActiveLine() {
    auto pane = environment->ActiveCodePane();
    return pane->CodeModule()->Name() + ": " + pane->CodeModule()->Lines(pane->GetSelection().start_line, 1);
  }

  environment::MemoryFiles files;
};

TEST_F(Walk, JumpInThreePlacesAndGoBackThroughThem) {
  Read("modMain", "Public Sub Main()");
  JumpFrom("Set Store = New clsStore");
  Read("clsStore", "Public Sub Clear()");
  form.txtCode.SetStrPos(3);
  form.txtCode.DblClick();
  const std::string cleared = Here();
  Read("frmArticles", "Private Sub Form_Load()");
  JumpFrom("Set mStore = Store");
  EXPECT_EQ(ActiveLine(), "frmArticles:     Set mStore = Store");

  Key("Previous");
  EXPECT_EQ(Here(), cleared);
  EXPECT_EQ(form.lblSub.Caption(), "Public Sub Clear()");
  Key("Previous");
  EXPECT_THAT(Here(), HasSubstr("Set Store = New clsStore"));
  Key("Last");
  EXPECT_THAT(Here(), HasSubstr("Set mStore = Store"));
  Key("First");
  EXPECT_THAT(Here(), HasSubstr("Set Store = New clsStore"));
  form.txtCode.DblClick();
  EXPECT_EQ(ActiveLine(), "modMain:     Set Store = New clsStore") << "and from there into the code pane again";
}

TEST_F(Walk, FollowAWordToItsDeclarationAndComeBack) {
  Read("frmArticles", "Private Sub Form_Load()");
  ChooseOnWord("Set mStore = Store", "= Store", "Goto \"Store\" Declaration");
  EXPECT_EQ(Here(), "Public Store As clsStore");
  EXPECT_EQ(explorer::ShownText(form.lbxProc->Text()), "modMain:    001   Public Store As clsStore");
  Key("Previous");
  EXPECT_THAT(Here(), HasSubstr("Set mStore = Store"));
  Key("Next");
  EXPECT_EQ(Here(), "Public Store As clsStore");
}

TEST_F(Walk, FollowAnObjectIntoItsClassAndTakeTheListsBack) {
  Read("modMain", "Public Sub Main()");
  const std::vector<std::string> rows = Rows(*form.lbxProc);
  ChooseOnWord("Store.Clear", "Store.Clear", "Goto Proc \"Store.Clear\"");
  EXPECT_EQ(form.lblSub.Caption(), "Public Sub Clear()");
  form.cmdPrev.Click();
  EXPECT_EQ(Rows(*form.lbxProc), rows);
  EXPECT_EQ(form.lblSub.Caption(), "Public Sub Main()");
  form.cmdNext.Click();
  EXPECT_EQ(form.lblSub.Caption(), "Public Sub Clear()");
}

TEST_F(Walk, BrowseComponentsAndTakeTheirListsBackOneByOne) {
  const std::vector<std::string> names = {"modMain", "clsStore", "frmArticles", "clsOrder"};
  std::vector<std::vector<std::string>> lists;
  for (const std::string& name : names) {
    ChooseComponent(name);
    form.lbxProc->UserSelect(1);
    lists.push_back(Rows(*form.lbxProc));
  }
  for (size_t at = names.size() - 1; at-- > 0;) {
    form.cmdPrev.Click();
    EXPECT_EQ(form.lbxComp->Text(), names[at]);
    EXPECT_EQ(Rows(*form.lbxProc), lists[at]);
    EXPECT_EQ(form.lbxProc->ListIndex(), 1);
    EXPECT_GT(form.txtCode.ListCount(), 0);
  }
  for (size_t at = 1; at < names.size(); ++at) {
    form.cmdNext.Click();
    EXPECT_EQ(form.lbxComp->Text(), names[at]);
  }
  form.cmdNext.Click();
  EXPECT_EQ(form.lbxComp->Text(), " Project Globals");
}

TEST_F(Walk, FromTheCaretThroughTheProjectAndBackToTheCaretsLine) {
  const long line = Module("clsStore").ProcBodyLine("FindSupplier", host::ProcKind::Proc) + 2;
  const std::string text = Module("clsStore").Lines(line, 1);
  Caret("clsStore", line);
  form.optCurMod.UserClick();
  EXPECT_EQ(Here(), text);
  form.txtCode.DblClick();
  form.optProj.UserClick();
  Read("modMain", "Public Sub Main()");
  Key("Previous");
  EXPECT_EQ(Here(), text);
  EXPECT_TRUE(form.optProj.Value());
}

TEST_F(Walk, EveryProcedureIsComeBackTo) {
  ChooseComponent("clsStore");
  std::vector<std::string> titles;
  for (long row = 1; row < form.lbxProc->ListCount() && titles.size() < 14; ++row) {
    form.lbxProc->UserSelect(row);
    form.txtCode.DblClick();
    if (!titles.empty() && titles.back() == form.lblSub.Caption()) continue;
    titles.push_back(form.lblSub.Caption());
  }
  for (size_t at = titles.size() - 1; at-- > 0;) {
    Key("Previous");
    EXPECT_EQ(form.lblSub.Caption(), titles[at]);
  }
  EXPECT_FALSE(form.tlbr.Button(2).Enabled);
}

}  // namespace
}  // namespace corvane::tests
