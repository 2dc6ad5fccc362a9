// Scripts read block by block: templates, pieces of code, includes, the library's constants, the end of a run.
#include "script/block_reader.h"

#include "script/script_path.h"
#include "tests/script/lib_test.h"

namespace corvane::script {
namespace {

struct Template {
  const char* name;
  const char* script;
  const char* output;
};

class Templates : public LibTest, public testing::WithParamInterface<Template> {};

TEST_P(Templates, PutOut) {
  EXPECT_EQ(RunScript(GetParam().script), GetParam().output);
  EXPECT_EQ(Boxes(), Lines());
}

INSTANTIATE_TEST_SUITE_P(
    , Templates,
    testing::Values(
        Template{"TextGoesOutAsItStands", "CODE{\na b\n  c\n}\n", "a b\n  c\n"},
        Template{"TheOpenerInAnyCaseAndIndented", "  code{ x\na\n}\n", "a\n"},
        Template{"TextBetweenBlocksIsIgnored", "before\nCODE{\na\n}\nbehind\n", "a\n"},
        Template{"OnlyOneCodeBlockRuns", "CODE{\na\n}\nCODE{\nb\n}\n", "a\n"},
        Template{"ValuesInALine", "CODE{\na<%=1%>b<%=2%>c\n}\n", "a1b2c\n"},
        Template{"APieceOfOneLineLeavesOneLineEnd", "CODE{\n<%dim a1%>\n}\n", "\n"},
        Template{"APieceOfManyLinesLeavesNone", "CODE{\n<%\ndim a1\n%>\n}\n", ""},
        Template{"BehindAPieceOfManyLinesTheRestIsTrimmed", "CODE{\n<%\n=1\n%>   rest  \n}\n", "1rest\n"},
        Template{"APieceBehindAPieceOfManyLines", "CODE{\n<%\n=1\n%> a<%=2%> b\n}\n", "1a2 b\n"},
        Template{"RemAloneIsDropped", "CODE{\nREM\nrem note\n  Rem  x\nREMARK\n}\n", "REMARK\n"},
        Template{"RemInCode", "CODE{\n<%\nREM =1\n  rem =2\n=3\n%>\n}\n", "3"},
        Template{"QuoteLinesInCode", "CODE{\n<%\n'=1\n   ' =2\n=3\n%>\n}\n", "3"},
        Template{"AQuoteCutsTheLine", "CODE{\n<%\n=1 'note\n=2\n%>\n}\n", "12"},
        Template{"AQuoteBehindAStringIsLeftToTheCleaning", "CODE{\n<%\n=\"a\" 'note\n=2\n%>\n}\n", "a2"},
        Template{"AQuoteInAStringIsText", "CODE{\n<%\n=\"it's\"\n%>\n}\n", "it's"},
        Template{"AQuoteInALiteralIsText", "CODE{\n<%\ndim t1\nt1=[[it's\n'me]]\n=t1\n%>\n}\n", "it's\n'me"},
        Template{"TheMarkBehindACommentIsCutOffWithIt", "CODE{\n<%\n=1 ' %>\n=2\n%>\n}\n", "12"},
        Template{"TheMarkInAStringEndsThePiece", "CODE{\n<%=\"a%>b\n}\n", "0b\n"},
        Template{"ABraceStaysTextWhileALiteralFollows", "CODE{\n}\na\n<%\ndim t1\nt1=[[x]]\n%>\n}\nb\n", "}\na\n"},
        Template{"ABraceNotInTheFirstColumnIsText", "CODE{\n }\n}\n", " }\n"},
        Template{"ABraceInsideALiteralIsText", "CODE{\n<%\ndim t1\nt1=[[a\n}\nb]]\n=t1\n%>\n}\n", "a\n}\nb"},
        Template{"ABraceInOpenCodeEndsPieceAndBlock", "CODE{\n<%\n=1\n}\n=2\n%>\n", "1"},
        Template{"CodeWithoutItsEndRunsAtTheEndOfTheText", "CODE{\n<%\n=1\n=2\n", "12"},
        Template{"AnUnclosedBlockPutsOutOneEmptyLineMore", "CODE{\na\n", "a\n\n"},
        Template{"ATabInCodeEndsAStatement", "CODE{\n<%=1\t=2%>\n}\n", "12\n"},
        Template{"ATabInATemplateIsText", "CODE{\na\tb\n}\n", "a\tb\n"},
        Template{"AContinuedLine", "CODE{\n<%\n=\"a\" & _\n\"b\"\n%>\n}\n", "ab"},
        Template{"CodeAndTextOverPieces", "CODE{\n<%if 1=1 then%>\nyes\n<%else%>\nno\n<%end if%>\n}\n", "\nyes\n\n"}),
    [](const auto& info) { return info.param.name; });

using BlockReaderTest = LibTest;

TEST_F(BlockReaderTest, AScriptWithoutABlockIsToldToBeEmpty) {
  RunScript("some text\n");
  EXPECT_EQ(Boxes(), Lines{"May be current script file is empty.\nUse Form{...} or CODE{...} blocks for execution."});
}

TEST_F(BlockReaderTest, AnIncludeIsReadInPlace) {
  world.services.files.Put("C:\\Corvane\\WorkShop\\part.txt", "CODE{\r\nincluded\r\n}");
  EXPECT_EQ(RunScript("file: part.txt\nCODE{\nb\n}\n"), "included\n");
  EXPECT_EQ(lib.Parts().state.scriptFile, "C:\\Corvane\\WorkShop\\part.txt");
}

TEST_F(BlockReaderTest, AFilesLinesMayEndInLfAndItMayHaveAMark) {
  for (const char* file : {"\xEF\xBB\xBF"
                           "CODE{\r\n<%=1%>\r\n}\r\n",
                           "CODE{\r\n<%\r\ndim aa\naa=1\r\n=aa\n%>\r\n}\n", "CODE{\n<%=1%>\r\n}"}) {
    world.services.files.Put("D:\\x\\part.txt", file);
    EXPECT_EQ(runtime::Replace(RunScript("FILE:D:\\x\\part.txt\n"), "\n", ""), "1") << file;
  }
  EXPECT_EQ(Boxes(), Lines());
}

TEST_F(BlockReaderTest, AScriptInMemoryStaysAsItIs) {
  lib.RunScriptText("CODE{\r\na\nb\r\n}\r\n");
  EXPECT_EQ(lib.ResultText(), "a\nb\r\n");
}

TEST_F(BlockReaderTest, TheWaitCursorIsGoneWhenTheScriptBegins) {
  RunScript("CODE{\n}\n");
  ASSERT_GE(world.services.screen.pointers.size(), 2u);
  EXPECT_EQ(world.services.screen.pointers[0], host::vbHourglass);
  EXPECT_EQ(world.services.screen.pointers[1], host::vbDefault);
}

TEST_F(BlockReaderTest, AnIncludeByItsWholePath) {
  world.services.files.Put("D:\\x\\part.txt", "CODE{\r\nincluded\r\n}\r\n");
  EXPECT_EQ(RunScript("FILE:D:\\x\\part.txt\n"), "included\n");
}

TEST_F(BlockReaderTest, AnIncludeBesideTheProject) {
  world.services.files.Put("C:\\Code\\part.txt", "CODE{\r\nincluded\r\n}\r\n");
  EXPECT_EQ(RunScript("FILE:$AppPath + part.txt\n"), "included\n");
}

TEST_F(BlockReaderTest, AFileWithBareLineFeedsIsRead) {
  world.services.files.Put("D:\\x\\part.txt", "CODE{\nincluded\n}\n");
  EXPECT_EQ(RunScript("FILE:D:\\x\\part.txt\n"), "included\n");
}

constexpr char kNoFile[] = "Script file doesn't exists in specified directory.\nMay be you have not saved Project yet.";

TEST_F(BlockReaderTest, AnIncludeThatIsMissingEndsTheRun) {
  EXPECT_EQ(RunScript("FILE:C:\\none.txt\nCODE{\na\n}\n"), "");
  EXPECT_EQ(Boxes(), Lines{kNoFile});
}

TEST_F(BlockReaderTest, AnIncludeOfOneLetterEndsTheRun) {
  RunScript("FILE: x\nCODE{\na\n}\n");
  EXPECT_EQ(Boxes(), Lines{kNoFile});
}

TEST_F(BlockReaderTest, AnIncludeOfAnUnsavedProjectEndsTheRun) {
  world.ide.file = "";
  world.services.files.Put("part.txt", "CODE{\r\nincluded\r\n}\r\n");
  EXPECT_EQ(RunScript("FILE:$AppPath+part.txt\n"), "");
  EXPECT_EQ(Boxes(), Lines{kNoFile});
}

TEST_F(BlockReaderTest, AMissingScriptOfRunClearsTheRestart) {
  RunScript("CODE{\n<%run(\"C:\\none.txt\")%>\n}\n");
  EXPECT_EQ(Boxes(), Lines{kNoFile});
}

TEST_F(BlockReaderTest, AnIncludeThatIncludesItselfEndsTheRunWithAMessage) {
  world.services.files.Put("C:\\me.txt", "FILE:C:\\me.txt\r\n");
  RunScript("FILE:C:\\me.txt\n");
  EXPECT_EQ(Errors(), Lines{"Script files include one another without end: C:\\me.txt"});
}

TEST_F(BlockReaderTest, AMenuIsKeptAndNotRun) {
  RunScript("Menu{\nA\n}\n");
  EXPECT_EQ(Readable(lib.MenuText()), "Menu{\nA\n}\n\n");
  EXPECT_EQ(Boxes(), Lines());
  EXPECT_EQ(world.window.calls, Lines());
}

TEST_F(BlockReaderTest, PlusLinesAndOthersInFrontOfTheCommonSectionArePassedOver) {
  world.services.files.Put("C:\\Corvane\\LibCode.txt",
                           "+Menu{x}\r\n+{COMMON}\r\n$zero=0\r\nother\r\n {common} \r\n$One=1\r\n  $two = b "
                           "\r\nno=3\r\n$=4\r\n}\r\n$five=5\r\n");
  EXPECT_EQ(RunScript("CODE{\n<%=$one%>\n}\n"), "1\n");
  EXPECT_EQ(Readable(lib.Parts().store.Text()), "<(_$ONE=1<(_$TWO = b ");
}

TEST_F(BlockReaderTest, TheCommonSectionEndsAtALineThatBeginsWithABrace) {
  world.services.files.Put("C:\\Corvane\\LibCode.txt", "{COMMON}\r\n$AA=x}\r\n$BB=2\r\n  } \r\n$CC=3\r\n");
  RunScript("CODE{\n}\n");
  EXPECT_EQ(lib.Parts().store.Text(), "<(_$AA=x}<(_$BB=2");
}

TEST_F(BlockReaderTest, AConstantCannotBeAssignedTo) {
  world.services.files.Put("C:\\Corvane\\LibCode.txt", "{COMMON}\r\n$AA=1\r\n}\r\n");
  EXPECT_EQ(RunCode("dim $aa\n$aa=5\n=$aa"), "1");
  EXPECT_EQ(Errors(), Lines{"$aa=5: Unknown Variable"});
}

TEST_F(BlockReaderTest, ALibraryThatIsMissingIsNoError) {
  EXPECT_EQ(RunScript("CODE{\na\n}\n"), "a\n");
  EXPECT_EQ(Boxes(), Lines());
}

TEST_F(BlockReaderTest, FormsAreHandedOnOneByOneAndACodeBlockMayFollow) {
  EXPECT_EQ(RunScript("FORM{ a\nline\n}\nForm{\n  }\nCODE{\nx\n}\n"), "x\n");
  EXPECT_EQ(world.forms.blocks, (Lines{"FORM{ a|line", "Form{"}));
}

TEST_F(BlockReaderTest, ACancelledFormEndsTheRun) {
  world.forms.answers = {"0"};
  EXPECT_EQ(RunScript("FORM{\n}\nCODE{\nx\n}\n"), "");
  EXPECT_EQ(Boxes(), Lines());
}

TEST_F(BlockReaderTest, ThePrintBoxComesAtTheEnd) {
  RunCode("print(1)\nprint(2)");
  ASSERT_EQ(world.services.prompts.messages.size(), 1u);
  EXPECT_EQ(world.services.prompts.messages[0].title, "Print Box");
  EXPECT_EQ(Boxes(), Lines{"1\n2\n"});
}

TEST_F(BlockReaderTest, TheResultGoesToTheWorkshop) {
  RunScript("CODE{\na\n}\n");
  EXPECT_EQ(world.window.calls, Lines{"result a\n"});
}

TEST_F(BlockReaderTest, RunDiscardsEverything) {
  world.services.files.Put("C:\\next.txt", "CODE{\r\n<%=old%>.\r\n}\r\n");
  EXPECT_EQ(RunScript("CODE{\nfirst\n<%\ndim old\nold=1\nsub s1()\nend sub\nrun(\"C:\\next.txt\")\n%>\n}\n"), ".\n");
  EXPECT_EQ(Errors(), Lines{"Variable old is not found"});
}

TEST_F(BlockReaderTest, RunMayNameTheFileWithItsKeyword) {
  world.services.files.Put("C:\\next.txt", "CODE{\r\nnext\r\n}\r\n");
  EXPECT_EQ(RunScript("CODE{\n<%run(\" File:C:\\next.txt \")%>\n}\n"), "next\n");
}

TEST_F(BlockReaderTest, ARunSetsTheStateBack) {
  RunCode("debug\ndim aa\n=1\nshowplan()");
  EXPECT_EQ(RunCode("dim aa\n=aa"), "0");
  EXPECT_FALSE(lib.Parts().state.planOn);
  EXPECT_EQ(lib.Parts().store.varCount(), 1);
}

TEST_F(BlockReaderTest, TheParametersStayOverARun) {
  lib.Parts().state.scriptParams = "kept";
  EXPECT_EQ(RunCode("=getparams()"), "kept");
}

// Execute: items of the library, files, parameters.
class Execute : public LibTest {
 protected:
  Execute() {
    world.services.files.Put(
        "C:\\Corvane\\LibCode.txt",
        "+{ONE}\r\nCODE{\r\nwrong\r\n}\r\n{ONE}\r\nCODE{\r\nfirst\r\n}\r\n{two}\r\nMENU{\r\nA,B\r\n}\r\n");
  }
};

TEST_F(Execute, AnItemsResultIsPutOnTheClipboard) {
  EXPECT_EQ(lib.Execute("{ONE}"), "Good thing");
  EXPECT_EQ(world.services.clipboard.text, "first\r\n");
  EXPECT_EQ(world.window.calls, Lines());
}

TEST_F(Execute, TheTitleMayStandAtColumnTwo) {
  EXPECT_EQ(lib.Execute("ONE}"), "Good thing");
}

TEST_F(Execute, AResultOfOneCharacterIsNotPutOnTheClipboard) {
  world.services.files.Put("C:\\Corvane\\LibCode.txt",
                           "{ONE}\r\nCODE{\r\n<%\r\n=1\r\n%>\r\n}\r\n{TWO}\r\nCODE{\r\n<%\r\n=12\r\n%>\r\n}\r\n");
  EXPECT_EQ(lib.Execute("{ONE}"), "");
  EXPECT_EQ(world.services.clipboard.clears, 0);
  EXPECT_EQ(lib.Execute("{TWO}"), "Good thing");
  EXPECT_EQ(world.services.clipboard.text, "12");
}

TEST_F(Execute, AnItemOfFiveCharactersDoesNotRun) {
  world.services.files.Put("C:\\Corvane\\LibCode.txt", "{FIVE}\r\nabc\r\n{SIX}\r\nabcd\r\n");
  lib.Execute("{FIVE}");
  EXPECT_EQ(Boxes(), Lines());
  lib.Execute("{SIX}");
  EXPECT_EQ(Boxes().size(), 1u);
}

TEST_F(Execute, AMenuIsGivenBack) {
  EXPECT_EQ(Readable(lib.Execute("{TWO}")), "MENU{\nA,B\n}\n\n");
}

TEST_F(Execute, AnUnknownTitleDoesNothing) {
  EXPECT_EQ(lib.Execute("{THREE}"), "");
  EXPECT_EQ(Boxes(), Lines());
}

TEST_F(Execute, AMissingLibraryIsTold) {
  world.services.files.Remove("C:\\Corvane\\LibCode.txt");
  EXPECT_EQ(lib.Execute("{ONE}"), "");
  EXPECT_EQ(Boxes().size(), 1u);
}

TEST_F(Execute, ParametersAreKeptAndNothingRuns) {
  EXPECT_EQ(lib.Execute("\3a\1b"), "");
  EXPECT_EQ(lib.Parts().state.scriptParams, "a\1b");
  EXPECT_EQ(world.paramExchange, "a\1b");
}

TEST_F(Execute, AnEntryIsTheScriptsParameter) {
  world.services.files.Put("C:\\a.txt", "CODE{\r\n<%=getparams()%>\r\n}\r\n");
  lib.Execute("\1C:\\a.txt", "here");
  EXPECT_EQ(Readable(lib.ResultText()), "here\n");
}

// ResolveScriptPath.
struct PathCase {
  const char* name;
  const char* spec;
  const char* path;
};
class ScriptPaths : public LibTest, public testing::WithParamInterface<PathCase> {};

TEST_P(ScriptPaths, Resolve) {
  world.window.library = "{COMMON}\r\n$Pics=C:\\Pics\\\r\n$END=x}\r\n$LATE=C:\\late\\\r\n}\r\n";
  EXPECT_EQ(lib.ResolveScriptPath(GetParam().spec), GetParam().path);
}

INSTANTIATE_TEST_SUITE_P(, ScriptPaths,
                         testing::Values(PathCase{"PlainName", "a.txt", "C:\\Corvane\\WorkShop\\a.txt"},
                                         PathCase{"WholePath", "D:\\a.txt", "D:\\a.txt"},
                                         PathCase{"ServerPath", "\\\\s\\a.txt", "\\\\s\\a.txt"},
                                         PathCase{"OfTheProject", "$AppPath + a.txt", "C:\\Code\\a.txt"},
                                         PathCase{"OfTheProjectWithColon", "$AppPath:+a.txt", "C:\\Code\\a.txt"},
                                         PathCase{"OfTheProgram", "$path+a.txt", "C:\\Corvane\\WorkShop\\a.txt"},
                                         PathCase{"OfAConstant", "$pics+a.bmp", "C:\\Pics\\a.bmp"},
                                         PathCase{"AConstantBehindABraceAtALineEndIsNotSeen", "$late+a.bmp", ""},
                                         PathCase{"AnyOtherHead", "$what+a.txt", ""}),
                         [](const auto& info) { return info.param.name; });

TEST_F(BlockReaderTest, WithoutACommonSectionAHeadIsPartOfTheName) {
  EXPECT_EQ(lib.ResolveScriptPath("$PATH+a.txt"), "C:\\Corvane\\WorkShop\\$PATH+a.txt");
}

}  // namespace
}  // namespace corvane::script
