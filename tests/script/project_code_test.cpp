// What scripts read of the code of components, and how they show it.
#include "tests/script/project_fixture.h"

namespace corvane::script {
namespace {

using ProjectCode = ProjectTest;

TEST_F(ProjectCode, CodeLinesGivesLinesFromALineOn) {
  EXPECT_EQ(Value("CODELINES(\"modCsv\",1,2)"), "Option Explicit\nOption Private Module");
  EXPECT_EQ(Value("READCODE(\"modCsv\",1,2)"), "Option Explicit\nOption Private Module");
  EXPECT_EQ(Value("READCODE(\"modCsv\",6,1)"), "Public Enum CsvState");
}

TEST_F(ProjectCode, CodeLinesOfAComponentAloneIsAllOfIt) {
  const auto module = Code("modCsv");
  EXPECT_EQ(Value("CODELINES(\"modCsv\")"), Readable(module->Lines(1, module->CountOfLines())));
  EXPECT_EQ(Value("READCODE(\"modCsv\")"), Readable(module->Lines(1, module->CountOfLines())));
}

TEST_F(ProjectCode, ACountBeyondTheEndIsClipped) {
  const long count = Code("modCsv")->CountOfLines();
  EXPECT_EQ(Value("READCODE(\"modCsv\"," + std::to_string(count) + ",100)"), "End Function");
  EXPECT_EQ(Value("READCODE(\"modCsv\"," + std::to_string(count + 1) + ",1)"), "");
}

TEST_F(ProjectCode, ReadCodeOnlyReads) {
  RunCode("=READCODE(\"modCsv\",1,500)\n=READCODE(\"modCsv\",1,5)");
  EXPECT_EQ(SaveAll(), Saved());
}

TEST_F(ProjectCode, AnOmittedComponentIsTheSelectedOne) {
  Select("modCsv");
  EXPECT_EQ(Value("READCODE(Me,1,1)"), "Option Explicit");
  EXPECT_EQ(Value("READCODE(\"\",2,1)"), "Option Private Module");
  EXPECT_EQ(Value("DECLARATION()"), Value("DECLARATION(\"modCsv\")"));
}

TEST_F(ProjectCode, DeclarationGivesTheLinesInFrontOfTheFirstProcedure) {
  EXPECT_EQ(Value("DECLARATION(\"modCsv\")"),
            "Option Explicit\nOption Private Module\n\n' Comma separated values, with any separator.\n\n"
            "Public Enum CsvState\n    csvField\n    csvQuoted\n    csvQuoteInQuoted\nEnd Enum");
}

TEST_F(ProjectCode, FindLineGivesTheFirstLineThatHoldsTheText) {
  EXPECT_EQ(Value("FINDLINE(\"modCsv\",\"csvquoted\")"), "8");
  EXPECT_EQ(Value("FINDLINE(\"modCsv\",\"nowhere\")"), "0");
  EXPECT_EQ(Value("FINDLINE(\"modCsv\",\"\")"), "0");
  EXPECT_EQ(Value("FINDLINE(\"modCsv\")"), "0");
}

TEST_F(ProjectCode, ProcLinesGivesTheHeaderAndTheLengthFromThere) {
  EXPECT_EQ(Value("PROCLINES(\"modCsv\",\"CsvNumber\")"), "68|3");
  EXPECT_EQ(Code("modCsv")->Lines(68, 1), "Public Function CsvNumber(ByVal text As String) As Double");
  EXPECT_EQ(Code("modCsv")->Lines(70, 1), "End Function");
}

TEST_F(ProjectCode, ProcLinesFindsProperties) {
  const std::string lines = Value("PROCLINES(\"clsArticle\",\"Number\")");
  EXPECT_TRUE(runtime::Holds(lines, "|"));
  const long line = std::stol(lines);
  EXPECT_TRUE(runtime::Holds(Code("clsArticle")->Lines(line, 1), "Property")) << Code("clsArticle")->Lines(line, 1);
}

TEST_F(ProjectCode, ProcLinesOfAnUnknownProcedureIsEmpty) {
  EXPECT_EQ(Value("PROCLINES(\"modCsv\",\"Nowhere\")"), "");
  EXPECT_EQ(Errors(), Lines());
}

TEST_F(ProjectCode, ProcLinesWithoutAProcedureIsTold) {
  EXPECT_EQ(Value("PROCLINES(\"modCsv\")"), "");
  EXPECT_EQ(Errors(), Lines{"There is not the name of procedure."});
}

TEST_F(ProjectCode, GetSelectionGivesItsFourNumbers) {
  Code("modCsv")->CodePane()->SetSelection({6, 1, 7, 5});
  EXPECT_EQ(Value("GETSELECTION(\"modCsv\")"), "6|1|7|5");
}

TEST_F(ProjectCode, AMissingComponentIsTold) {
  for (const char* call : {"CODELINES(\"no\")", "READCODE(\"no\",1,1)", "DECLARATION(\"no\")", "FINDLINE(\"no\",\"x\")",
                           "PROCLINES(\"no\",\"x\")", "GETSELECTION(\"no\")"}) {
    EXPECT_EQ(Value(call), "") << call;
    EXPECT_EQ(Errors(), Lines{"Component does not exists.\nno"}) << call;
  }
}

TEST_F(ProjectCode, MeWithNothingSelectedIsTold) {
  EXPECT_EQ(Value("READCODE(Me,1,1)"), "");
  EXPECT_EQ(Errors(), Lines{"Component does not exists.\nMe"});
}

TEST_F(ProjectCode, ARelatedDocumentHasNoCode) {
  EXPECT_EQ(Value("READCODE(\"notes.txt\",1,1)"), "");
  EXPECT_EQ(Errors(), Lines{"Component does not exists.\nnotes.txt"});
}

TEST_F(ProjectCode, ALineThatIsNoNumberIsEmptyWithoutAMessage) {
  EXPECT_EQ(Value("READCODE(\"modCsv\",\"one\",1)"), "");
  EXPECT_EQ(Errors(), Lines());
}

TEST_F(ProjectCode, GoCodeLineShowsTheLineAndEndsTheRun) {
  EXPECT_EQ(RunCode("=1\nGOCODELINE(\"modCsv\",6)\n=2"), "1");
  ASSERT_TRUE(vbe->ActiveCodePane());
  EXPECT_EQ(vbe->ActiveCodePane()->CodeModule()->Name(), "modCsv");
  EXPECT_EQ(vbe->ActiveCodePane()->GetSelection(), (host::Selection{6, 1, 6, 1}));
}

TEST_F(ProjectCode, GoCodeLineBelowTheFirstLineIsTheFirst) {
  RunCode("GOCODELINE(\"modCsv\",0)");
  EXPECT_EQ(vbe->ActiveCodePane()->GetSelection(), (host::Selection{1, 1, 1, 1}));
}

TEST_F(ProjectCode, GoCodeLineOfAMissingComponentIsToldAndTheRunGoesOn) {
  EXPECT_EQ(RunCode("GOCODELINE(\"no\",6)\n=2"), "2");
  EXPECT_EQ(Errors(), Lines{"Component does not exists.\nno"});
}

TEST_F(ProjectCode, OpenShowsTheCodePane) {
  EXPECT_EQ(RunCode("OPEN(\"modMain\")\n=2"), "2");
  ASSERT_TRUE(vbe->ActiveCodePane());
  EXPECT_EQ(vbe->ActiveCodePane()->CodeModule()->Name(), "modMain");
}

TEST_F(ProjectCode, OpenOfAMissingComponentIsTold) {
  RunCode("OPEN(\"no\")");
  EXPECT_EQ(Errors(), Lines{"Component does not exists.\nno"});
}

}  // namespace
}  // namespace corvane::script
