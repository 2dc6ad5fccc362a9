// How scripts change the code of components. Each change is saved and its file compared.
#include "tests/script/project_fixture.h"

namespace corvane::script {
namespace {

using ProjectEdits = ProjectTest;

TEST_F(ProjectEdits, InsertCodePutsLinesInFrontOfALine) {
  RunCode("INSERTCODE(\"modCsv\",\"' one\"&VBCRLF&\"' two\",3)");
  EXPECT_EQ(SaveAll(),
            (Saved{{"modCsv.bas", With("modCsv.bas", "Private Module\n", "Private Module\n' one\n' two\n")}}));
}

TEST_F(ProjectEdits, InsertCodeAtLineZeroInsertsAtTheTop) {
  RunCode("INSERTCODE(\"modCsv\",\"' top\",0)");
  EXPECT_EQ(SaveAll(), (Saved{{"modCsv.bas", With("modCsv.bas", "Option Explicit", "' top\nOption Explicit")}}));
}

TEST_F(ProjectEdits, InsertCodeBelowZeroInsertsAtTheTop) {
  RunCode("nn=0\nINSERTCODE(\"modCsv\",\"' top\",\"-7\")");
  EXPECT_EQ(Code("modCsv")->Lines(1, 1), "' top");
}

TEST_F(ProjectEdits, InsertCodeBeyondTheEndInsertsBehindTheLastLine) {
  RunCode("INSERTCODE(\"modCsv\",\"' end\",5000)");
  EXPECT_EQ(SaveAll(), (Saved{{"modCsv.bas", Before("modCsv.bas") + "' end\r\n"}}));
}

TEST_F(ProjectEdits, ALineThatNoLongHoldsIsBeyondTheEndToo) {
  EXPECT_EQ(RunCode("INSERTCODE(\"modCsv\",\"' end\",99999999999)\n=1"), "1");
  EXPECT_EQ(SaveAll(), (Saved{{"modCsv.bas", Before("modCsv.bas") + "' end\r\n"}}));
  EXPECT_EQ(RunCode("INSERTCODE(\"modCsv\",\"' top\",\"-99999999999\")\n=1"), "1");
  EXPECT_EQ(Code("modCsv")->Lines(1, 1), "' top");
}

TEST_F(ProjectEdits, ACountThatNoLongHoldsIsClippedToo) {
  EXPECT_EQ(RunCode("DELETECODE(\"modCsv\",3,99999999999)\n=1"), "1");
  EXPECT_EQ(Code("modCsv")->CountOfLines(), 2);
}

TEST_F(ProjectEdits, InsertCodeIntoTheSelectedComponent) {
  Select("modCsv");
  RunCode("INSERTCODE(Me,\"' top\",1)");
  EXPECT_EQ(Code("modCsv")->Lines(1, 1), "' top");
}

TEST_F(ProjectEdits, InsertCodeWithAPartMissingIsTold) {
  for (const char* call :
       {"INSERTCODE(\"modCsv\",\"' top\")", "INSERTCODE(\"modCsv\")", "INSERTCODE(\"modCsv\",\"a\",\"b\")"}) {
    RunCode(call);
    EXPECT_EQ(Errors(), Lines{"Syntax error. Use InsertCode(Me,Str,nLin) syntax"}) << call;
  }
  EXPECT_EQ(SaveAll(), Saved());
}

TEST_F(ProjectEdits, InsertCodeIntoAMissingComponentIsTold) {
  RunCode("INSERTCODE(\"no\",\"a\",1)");
  EXPECT_EQ(Errors(), Lines{"Component does not exists.\nno"});
}

TEST_F(ProjectEdits, InsertCodeWithNothingSelectedIsTold) {
  RunCode("INSERTCODE(Me,\"a\",1)");
  EXPECT_EQ(Errors(), Lines{"Component does not exists.\nMe"});
}

TEST_F(ProjectEdits, WritePutsTheResultTextAtALine) {
  RunCode("=\"' made\"\nWRITE(\"modCsv\",1)");
  EXPECT_EQ(SaveAll(), (Saved{{"modCsv.bas", With("modCsv.bas", "Option Explicit", "' made\n\nOption Explicit")}}));
}

TEST_F(ProjectEdits, WriteOfNothingGoesToTheCursorOfTheSelectedComponent) {
  Select("modCsv");
  Code("modCsv")->CodePane()->SetSelection({2, 1, 2, 1});
  RunCode("=\"' made\"\nWRITE()");
  EXPECT_EQ(Code("modCsv")->Lines(1, 4), "Option Explicit\r\n' made\r\n\r\nOption Private Module");
}

TEST_F(ProjectEdits, WriteWithoutAPaneGoesBehindTheLastLine) {
  Select("modCsv");
  RunCode("=\"' made\"\nWRITE()");
  EXPECT_EQ(SaveAll(), (Saved{{"modCsv.bas", Before("modCsv.bas") + "' made\r\n\r\n"}}));
}

TEST_F(ProjectEdits, WriteWithNothingSelectedIsTold) {
  RunCode("WRITE()");
  EXPECT_EQ(Errors(), Lines{"Component does not exists.\nMe"});
}

TEST_F(ProjectEdits, DeleteCodeDeletesLines) {
  RunCode("DELETECODE(\"modCsv\",4,2)");
  EXPECT_EQ(SaveAll(),
            (Saved{{"modCsv.bas", With("modCsv.bas", "' Comma separated values, with any separator.\n\n", "")}}));
}

TEST_F(ProjectEdits, DeleteCodeClipsItsCount) {
  const long count = Code("modCsv")->CountOfLines();
  RunCode("DELETECODE(\"modCsv\"," + std::to_string(count) + ",100)");
  EXPECT_EQ(Code("modCsv")->CountOfLines(), count - 1);
  RunCode("DELETECODE(\"modCsv\"," + std::to_string(count + 5) + ",100)\n=1");
  EXPECT_EQ(Code("modCsv")->CountOfLines(), count - 1);
  EXPECT_EQ(lib.ResultText(), "1");
}

TEST_F(ProjectEdits, DeleteCodeWithoutACountDeletesOneLine) {
  RunCode("DELETECODE(\"modCsv\",1)");
  EXPECT_EQ(SaveAll(), (Saved{{"modCsv.bas", With("modCsv.bas", "Option Explicit\n", "")}}));
}

TEST_F(ProjectEdits, DeleteCodeWithoutALineIsTold) {
  RunCode("DELETECODE(\"modCsv\")");
  EXPECT_EQ(Errors(), Lines{"Syntax error. Use DeleteCode(Me,nLin,nCount) syntax"});
  EXPECT_EQ(SaveAll(), Saved());
}

TEST_F(ProjectEdits, DeleteCodeAtLineZeroEndsThePieceAndDeletesNothing) {
  EXPECT_EQ(RunCode("DELETECODE(\"modCsv\",0,3)\n=1"), "");
  EXPECT_EQ(SaveAll(), Saved());
}

TEST_F(ProjectEdits, ReplaceLineReplacesALineByItsNumber) {
  RunCode("REPLACELINE(\"modCsv\",2,\"' gone\")");
  EXPECT_EQ(SaveAll(), (Saved{{"modCsv.bas", With("modCsv.bas", "Option Private Module", "' gone")}}));
}

TEST_F(ProjectEdits, ReplaceLineFindsALineByItsText) {
  RunCode("REPLACELINE(\"modCsv\",\"private module\",\"' gone\")");
  EXPECT_EQ(SaveAll(), (Saved{{"modCsv.bas", With("modCsv.bas", "Option Private Module", "' gone")}}));
}

TEST_F(ProjectEdits, ReplaceLineOfATextThatIsNowhereDoesNothing) {
  EXPECT_EQ(RunCode("REPLACELINE(\"modCsv\",\"nowhere\",\"' gone\")\n=1"), "1");
  EXPECT_EQ(SaveAll(), Saved());
}

TEST_F(ProjectEdits, ReplaceLineWithAPartMissingIsTold) {
  RunCode("REPLACELINE(\"modCsv\",2)");
  EXPECT_EQ(Errors(), Lines{"Syntax error. Use ReplaceLine(Me,nLin,Str) syntax"});
}

TEST_F(ProjectEdits, ReplaceChangesTheSelectedLines) {
  Select("modCsv");
  Code("modCsv")->CodePane()->SetSelection({7, 1, 8, 5});
  RunCode("REPLACE(\"csv\",\"tab\")");
  EXPECT_EQ(
      SaveAll(),
      (Saved{{"modCsv.bas", With("modCsv.bas", "    csvField\n    csvQuoted\n", "    tabField\n    tabQuoted\n")}}));
}

TEST_F(ProjectEdits, ReplaceChangesAllLinesWhereNothingIsSelected) {
  Select("modCsv");
  RunCode("REPLACE(\"Option\",\"' Option\")");
  EXPECT_EQ(SaveAll(), (Saved{{"modCsv.bas", With("modCsv.bas", "Option Explicit\nOption Private",
                                                  "' Option Explicit\n' Option Private")}}));
}

TEST_F(ProjectEdits, ReplaceWithNothingSelectedInTheProjectIsTold) {
  RunCode("REPLACE(\"a\",\"b\")");
  EXPECT_EQ(Errors(), Lines{"Component does not exists.\nMe"});
}

TEST_F(ProjectEdits, HiddenAttributesAndTheDesignerPartStay) {
  RunCode("INSERTCODE(\"frmAbout\",\"' top\",1)");
  EXPECT_EQ(SaveAll(), (Saved{{"frmAbout.frm", With("frmAbout.frm", "Option Explicit", "' top\nOption Explicit")}}));
}

}  // namespace
}  // namespace corvane::script
