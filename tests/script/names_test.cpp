#include "script/names.h"

#include "tests/script/engine_test.h"

namespace corvane::script {
namespace {

struct NamesTest : EngineTest {};

const std::string kEnd(1, valueEnd), kIndex(1, indexMark), kItem(1, itemMark);

TEST_F(NamesTest, PredefinedNamesHaveTheirValues) {
  state.resultText = "so far";
  state.scriptFile = "C:\\w\\a.txt";
  const struct {
    const char* name;
    const char* value;
  } cases[] = {
      {"true", "True"},
      {"Me", "Me"},
      {"FALSE", "False"},
      {"(", ""},
      {")", ""},
      {"vbCrLf", "\r\n"},
      {"wvCancel", "0"},
      {"wvNext", "2"},
      {"wvFin", "2"},
      {"wvPrev", "1"},
      {"$AppName", "Sample"},
      {"$AppPath", "C:\\Code"},
      {"result", "so far"},
      {"$CVPATH", "C:\\Corvane"},
      {"$ScriptName", "C:\\w\\a.txt"},
      {"$Path", "C:\\Corvane\\Workshop"},
  };
  for (const auto& c : cases) EXPECT_EQ(Primary(c.name), c.value) << c.name;
}

TEST_F(NamesTest, NotTurnsThePendingNegationOver) {
  EXPECT_EQ(Primary("NOT"), "");
  EXPECT_TRUE(state.notFlag);
  EXPECT_EQ(Primary("not"), "");
  EXPECT_FALSE(state.notFlag);
}

TEST_F(NamesTest, TheProjectPathWithoutAFolderIsTheWholeOfIt) {
  world.ide.file = "Sample.vbp";
  EXPECT_EQ(Primary("$APPPATH"), "Sample.vbp");
  world.ide.file = "";
  EXPECT_EQ(Primary("$APPPATH"), "");
}

TEST_F(NamesTest, ThoseUpToResultHideVariablesTheOthersAreHidden) {
  engine.store.AppendConstant("TRUE=mine");
  engine.store.AppendConstant("RESULT=mine");
  engine.store.AppendConstant("$PATH=mine");
  EXPECT_EQ(Primary("TRUE"), "True");
  EXPECT_EQ(Primary("RESULT"), "");
  EXPECT_EQ(Primary("$PATH"), "mine");
}

TEST_F(NamesTest, ForwardAndFinishAreTheSameNumber) {
  EXPECT_EQ(Primary("WVNEXT"), Primary("WVFIN"));
}

TEST_F(NamesTest, ANumericTokenIsNoName) {
  Dim("$5");
  EXPECT_EQ(Primary("$5"), "$5");
  EXPECT_EQ(Primary("1.50"), "1.50");
}

TEST_F(NamesTest, AConstantIsReadAndADimLeavesIt) {
  engine.store.AppendConstant("A=five");
  EXPECT_EQ(Primary("a"), "five");
  Dim("a");
  EXPECT_EQ(Primary("a"), "five");
  EXPECT_EQ(engine.store.varCount(), 0);
}

TEST_F(NamesTest, ABooleanVariableReadsAsItsWord) {
  Dim("t,n");
  Assign("t=5=5");
  EXPECT_EQ(Shown(engine.store.Value(1)), "boolean True");
  EXPECT_EQ(Primary("t"), "True");
  EXPECT_EQ(Primary("n"), "0");
}

TEST_F(NamesTest, ANameWithADotIsAProperty) {
  EXPECT_EQ(Primary("Form1.Text1.Caption"), "getprop Form1.Text1;Caption");
}

TEST_F(NamesTest, ControlsOfADialogAreReadBehindVariables) {
  state.savedDialogValues = "<(1|TEXT.TXTNAME=Ann" + kEnd + "COMB.CBO=two" + kIndex + "1" + kEnd + "MLIS.LST=sel" +
                            kIndex + "4" + kItem + "the item" + kEnd + "CHEC.CHK=True" + kEnd + "OTHR.OTH=x" + kEnd;
  EXPECT_EQ(Primary("txtName"), "Ann");
  EXPECT_EQ(Primary("chk"), "True");
  EXPECT_EQ(Primary("cbo"), "two");
  EXPECT_EQ(state.indexValue, "1");
  EXPECT_EQ(Primary("lst"), "sel");
  EXPECT_EQ(Primary("lst.Index"), "4");
  EXPECT_EQ(Primary("LST.ITEM"), "the item");
  EXPECT_EQ(Primary("cbo.index"), "1");
  EXPECT_EQ(Primary("other.index"), "getprop other;index");
  EXPECT_EQ(Messages(), Texts());
  EXPECT_EQ(Primary("oth"), "");
  EXPECT_EQ(Messages(), Texts{"Variable oth is not found"});
  Dim("txtName");
  EXPECT_EQ(Primary("txtName"), "0");
}

TEST_F(NamesTest, AnActiveDialogIsReadFirst) {
  state.savedDialogValues = "<(1|TEXT.T=old" + kEnd;
  state.dialogValues = "<(1|TEXT.T=new" + kEnd;
  EXPECT_EQ(Primary("t"), "old");
  state.dialogActive = true;
  EXPECT_EQ(Primary("t"), "new");
}

TEST_F(NamesTest, ADisabledEntryIsPassedOver) {
  state.savedDialogValues = std::string("<(1|TEXT.") + deadMark + "T=old" + kEnd + "<(2|TEXT.T=new" + kEnd;
  EXPECT_EQ(Primary("t"), "new");
}

TEST_F(NamesTest, AMarkOfTheStoreInADialogIsReportedAndCutWithOkAndWithCancel) {
  state.savedDialogValues = "<(1|TEXT.T=a<(b" + kEnd;
  EXPECT_EQ(Primary("t"), "a");
  EXPECT_EQ(Messages(), Texts{"a<(b contains wrong symbols '<(' "});
  errors.cancel = true;
  EXPECT_EQ(Primary("t"), "a");
  EXPECT_TRUE(state.stopFlag);
}

TEST_F(NamesTest, EachHasHelp) {
  for (const auto group : {NamesBeforeVariables(), NamesBehindVariables()})
    for (const PredefinedName& row : group) EXPECT_GT(row.help.size(), 5u) << row.name;
}

}  // namespace
}  // namespace corvane::script
