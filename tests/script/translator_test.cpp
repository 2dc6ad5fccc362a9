#include "script/translator.h"

#include <gtest/gtest.h>

#include "tests/script/translated.h"

namespace corvane::script {
namespace {

using Items = std::vector<std::string>;

struct Case {
  const char* code;
  Items items;
};

void ExpectItems(const std::vector<Case>& cases) {
  for (const Case& one : cases) {
    const Translated translated(one.code);
    EXPECT_EQ(translated.Items(), one.items) << one.code;
    EXPECT_EQ(translated.Messages(), Items{}) << one.code;
  }
}

TEST(Translator, AForLoop) {
  ExpectItems({{"FOR i=1 TO 3\nBODY(1)\nNEXT",
                {"i=1:", "GOTF _F_1_1:", "¶_F1_1:", "i=i+STEP(1):", "¶_F_1_1:", "IF i<=3 THEN:", "GO _I1:", "BODY(1):",
                 "GOTB _F1_1:", "END IF:", "¶_I1:", "¶_F0_1:"}}});
}

TEST(Translator, AWhileLoop) {
  ExpectItems({{"WHILE c\nBODY(1)\nWEND",
                {"¶_F1_1:", "IF c THEN:", "GO _I1:", "BODY(1):", "GOTB _F1_1:", "END IF:", "¶_I1:", "¶_F0_1:"}}});
}

TEST(Translator, AnIfWithElseIfAndElse) {
  ExpectItems({{"IF a THEN\nx=1\nELSEIF b THEN\ny=1\nELSE\nz=1\nEND IF",
                {"IF a THEN:", "GO _I1:", "x=1:", "GOTN _I1:", "¶_I1:", "IF b THEN:", "GO _I1:", "y=1:", "GOTN _I1:",
                 "ELSE:", "¶_I1:", "z=1:", "END IF:", "¶_I1:"}}});
}

TEST(Translator, ASelect) {
  ExpectItems({{"SELECT CASE v\nCASE 1,2\na=1\nCASE 3\nb=1\nCASE ELSE\nc=1\nEND SELECT",
                {"PUSH(1,v):", "CASE 1,1,2:", "GO _S1:", "a=1:", "GOTN _S1:", "¶_S1:", "CASE 1,3:", "GO _S1:", "b=1:",
                 "GOTN _S1:", "¶_S1:", "c=1:", "END IF:", "¶_S1:"}}});
}

TEST(Translator, AFunctionIsASubWithAVariableOfItsName) {
  ExpectItems({{"FUNCTION f(a)\nb=1\nEND FUNCTION", {"SUB f(a):", "DIM F:", "b=1:", "CStr(F):", "END SUB:"}}});
}

TEST(Translator, TheFixedTextsCarryTheirHeaders) {
  EXPECT_EQ(Translated("END SUB").flat, "0000008END SUB:::");
  EXPECT_EQ(Translated("IF a THEN\nEND IF").flat, "0000010IF a THEN:-100007GO _I1:::0000007END IF:\1_I1:::");
  EXPECT_EQ(Translated("ELSE").flat, "-100009GOTN _I0:::0000005ELSE:\1_I0:::");
}

TEST(Translator, AnEmptyPieceYieldsTwoColons) {
  for (const char* code : {"", " ", ":", "\n:\n", "\n"}) EXPECT_EQ(Translated(code).flat, "::") << code;
  ScriptState state;
  RecordedErrors report(state);
  std::string nothing;
  EXPECT_EQ(TranslateCode(nothing, state, report), "::");
}

TEST(Translator, TakesTheTextItIsGiven) {
  ScriptState state;
  RecordedErrors report(state);
  std::string text = "x=1:";
  EXPECT_EQ(TranslateCode(text, state, report), "0200004x=1:::");
  EXPECT_EQ(text, "");
}

TEST(Translator, TwoStatementsOnALineAreTwo) {
  ExpectItems({{"A=1:B=2", {"A=1:", "B=2:"}}});
}

TEST(Translator, WhatStandsBehindAOneLineIfRunsAlways) {
  EXPECT_EQ(Translated("IF a THEN b=1:c=2").flat, "-100023IF a THEN 0200004b=1:::0200004c=2:::");
}

TEST(Translator, AOneLineIfHoldsItsFlatTail) {
  EXPECT_EQ(Translated("IF a THEN b=1").flat, "-100023IF a THEN 0200004b=1:::::");
  EXPECT_EQ(Translated("IF a THEN =\"x\"").flat, "-100023IF a THEN0100005=\"x\":::::");
  EXPECT_EQ(Translated("IF(a)THEN b=1").flat, "-103023IF(a)THEN 0200004b=1:::::");
}

TEST(Translator, AOneLineIfInAnotherIsTranslatedFirst) {
  EXPECT_EQ(Translated("IF a THEN IF b THEN c=1").flat, "-100042IF a THEN -100023IF b THEN 0200004c=1:::::::");
}

TEST(Translator, AOneLineIfLeavesTheDepthAlone) {
  EXPECT_EQ(Translated("IF a THEN b=1").Count().ifDepth, 0);
  EXPECT_EQ(Translated("IF a THEN\nb=1").Count().ifDepth, 1);
}

TEST(Translator, AWordOfOneLetterVanishes) {
  ExpectItems({{"x", {}}, {"x:y=1", {"y=1:"}}});
}

TEST(Translator, ABareWordIsALabel) {
  ExpectItems({{"LOOP1", {"¶LOOP1:"}}, {"Again", {"¶AGAIN:"}}, {"EndIf", {"¶ENDIF:"}}, {"SHOWPLAN", {"¶SHOWPLAN:"}}});
}

TEST(Translator, EndCodeIsAStatement) {
  EXPECT_EQ(Translated("END CODE").ItemsWithFields(), Items{"-1,00 END CODE:"});
}

// Their words are found as a text, so pieces of them are no labels either.
TEST(Translator, WordsThatAreStatementsAreNoLabels) {
  for (const std::string word :
       {"STOPEX", "STOP", "EXIT", "DEBUG", "STEP", "TOP", "OP", "FOR", "WHILE", "CODE", "BUG", "EX", "IT", "TEP"})
    EXPECT_EQ(Translated(word).ItemsWithFields(), Items{"00,00 " + word + ":"}) << word;
}

TEST(Translator, WhileAloneDoesNothing) {
  EXPECT_EQ(Translated("WHILE").ItemsWithFields(), Items{"00,00 WHILE:"});
  EXPECT_EQ(Translated("WHILE \nx=1").ItemsWithFields(), (Items{"-1,00 WHILE:", "02,00 x=1:"}));
  EXPECT_EQ(Translated("WHILE \nx=1").Messages(), Items{});
  EXPECT_EQ(Translated("WHILE").Count().loopDepth, 0);
}

TEST(Translator, KeepsTheColumnOfAnAssigningOperator) {
  EXPECT_EQ(Translated("y += 2").ItemsWithFields(), Items{"03,00 y+=2:"});
  for (const std::string op : {"+", "-", "*", "/", "&"})
    EXPECT_EQ(Translated("y " + op + "= 2").ItemsWithFields(), Items{"03,00 y" + op + "=2:"}) << op;
  EXPECT_EQ(Translated("y \\= 2").ItemsWithFields(), Items{"-1,00 y\\=2:"});
}

TEST(Translator, AnArrayElementHasItsBracketFirst) {
  EXPECT_EQ(Translated("A(1)=2").ItemsWithFields(), Items{"-1,02 A(1)=2:"});
}

TEST(Translator, TheFieldsOfAStatement) {
  const std::pair<const char*, const char*> cases[] = {
      {"x=1", "02,00 x=1:"},
      {"=x", "01,00 =x:"},
      {"x=f(1)", "02,00 x=f(1):"},
      {"PRINT(x=1)", "-1,06 PRINT(x=1):"},
      {"DIM a", "-1,00 DIM a:"},
      {"a-b=c(1)", "-1,00 a-b=c(1):"},
      {"a,b=1", "04,00 a,b=1:"},
      {"a++", "-1,00 a++:"},
      {"\"a=b\"=c", "06,00 \"a=b\"=c:"},
  };
  for (const auto& [code, item] : cases) EXPECT_EQ(Translated(code).ItemsWithFields(), Items{item}) << code;
}

TEST(Translator, ABracketOfVarAtTheStartIsNotCounted) {
  EXPECT_EQ(Translated("VAR(x)=1").ItemsWithFields(), Items{"07,00 VAR(x)=1:"});
  EXPECT_EQ(Translated("var((x)=1").ItemsWithFields(), Items{"08,00 var((x)=1:"});
  EXPECT_EQ(Translated("y=VAR((x)").Messages(), Items{"Brackets Error."});
  EXPECT_EQ(Translated("XVAR((x)=1").Messages(), Items{"Brackets Error."});
}

// There is nothing to jump to.
TEST(Translator, ABracketOfVarThatIsNotClosedIsCounted) {
  EXPECT_EQ(Translated("VAR(x=1").Messages(), Items{"Brackets Error."});
}

TEST(Translator, CaseWithABracketKeepsItsSpelling) {
  EXPECT_EQ(Translated("SELECT CASE v\nCASE(2)\nEND SELECT").ItemsWithFields(),
            (Items{"-1,05 PUSH(1,v):", "00,05 CASE(1,2):", "-1,00 GO _S1:", "00,00 END IF:", "¶_S1:"}));
}

TEST(Translator, TheWordCaseStaysAsWritten) {
  ExpectItems({{"select case v\ncase 1\nend select", {"PUSH(1,v):", "case 1,1:", "GO _S1:", "END IF:", "¶_S1:"}}});
}

TEST(Translator, TwoElseBranchesJumpToTheSameEnd) {
  ExpectItems(
      {{"IF a THEN\nELSE\nELSE\nEND IF",
        {"IF a THEN:", "GO _I1:", "GOTN _I1:", "ELSE:", "¶_I1:", "GOTN _I1:", "ELSE:", "¶_I1:", "END IF:", "¶_I1:"}}});
}

TEST(Translator, NestedIfsAreNumberedByTheirDepth) {
  ExpectItems({{"IF a THEN\nIF b THEN\nEND IF\nEND IF",
                {"IF a THEN:", "GO _I1:", "IF b THEN:", "GO _I2:", "END IF:", "¶_I2:", "END IF:", "¶_I1:"}}});
}

TEST(Translator, AFailingOuterCaseLandsBehindTheInnerEndSelect) {
  ExpectItems({{"SELECT CASE a\nCASE 1\nSELECT CASE b\nCASE 2\nEND SELECT\nCASE 3\nEND SELECT",
                {"PUSH(1,a):", "CASE 1,1:", "GO _S1:", "PUSH(2,b):", "CASE 2,2:", "GO _S2:", "END IF:", "¶_S2:",
                 "¶_S1:", "CASE 1,3:", "GO _S1:", "END IF:", "¶_S1:"}}});
}

TEST(Translator, CaseElseWithoutAnOpenCaseIsDropped) {
  ExpectItems({{"SELECT CASE v\nCASE ELSE\nx=1\nEND SELECT", {"PUSH(1,v):", "x=1:", "END IF:", "¶_S1:"}}});
}

TEST(Translator, NestedLoopsCountDepthAndOutermostLoops) {
  ExpectItems({{"WHILE a\nWHILE b\nWEND\nWEND\nWHILE c\nWEND",
                {"¶_F1_1:", "IF a THEN:", "GO _I1:", "¶_F2_1:",     "IF b THEN:", "GO _I2:", "GOTB _F2_1:",
                 "END IF:", "¶_I2:",      "¶_F1_1:", "GOTB _F1_1:", "END IF:",    "¶_I1:",   "¶_F0_1:",
                 "¶_F1_2:", "IF c THEN:", "GO _I1:", "GOTB _F1_2:", "END IF:",    "¶_I1:",   "¶_F0_2:"}}});
}

TEST(Translator, LoopsSideBySideInOneLoopHaveOneLabel) {
  const Items items = Translated("WHILE a\nWHILE b\nWEND\nWHILE c\nWEND\nWEND").Items();
  EXPECT_EQ(std::count(items.begin(), items.end(), "¶_F2_1:"), 2);
}

TEST(Translator, AnyCloserClosesAnyLoop) {
  const Items closed = {"¶_F1_1:", "IF c THEN:", "GO _I1:", "GOTB _F1_1:", "END IF:", "¶_I1:", "¶_F0_1:"};
  for (const char* closer : {"NEXT", "NEXT anything", "next i", "WEND", "LOOP"})
    EXPECT_EQ(Translated(std::string("WHILE c\n") + closer).Items(), closed) << closer;
}

TEST(Translator, LeavesAndGoesOnWithALoop) {
  ExpectItems({{"WHILE c\nEXIT FOR\nEXIT WHILE\nCONTINUE",
                {"¶_F1_1:", "IF c THEN:", "GO _I1:", "GOTF _F0_1:", "GOTF _F0_1:", "GOTB _F1_1:"}},
               {"EXIT FOR\nEXIT WHILE\nCONTINUE", {}}});
}

TEST(Translator, TheSignOfTheStepAsWrittenDecidesTheComparison) {
  const auto test = [](const std::string& code) { return Translated(code).Items().at(5); };
  EXPECT_EQ(test("FOR i=1 TO 3 STEP 2"), "IF i<=3 THEN:");
  EXPECT_EQ(test("FOR i=3 TO 1 STEP -1"), "IF i=>1 THEN:");
  EXPECT_EQ(test("FOR i=3 TO 1 STEP n"), "IF i<=1 THEN:");
  EXPECT_EQ(test("FOR i=3 TO 1 STEP=-1"), "IF i<=1 THEN:");
}

TEST(Translator, TheStepIsTakenAsWritten) {
  const auto step = [](const std::string& code) { return Translated(code).Items().at(3); };
  EXPECT_EQ(step("FOR i=1 TO 3 STEP 2"), "i=i+STEP(2):");
  EXPECT_EQ(step("FOR i=1 TO 3 STEP -1"), "i=i+STEP(-1):");
  EXPECT_EQ(step("FOR i=1 TO 3 STEP=-1"), "i=i+STEP(=-1):");
  EXPECT_EQ(step("for i=1 to 3 step n+1"), "i=i+STEP(n+1):");
}

TEST(Translator, AForIsCutAtTheFirstStepWhateverItBelongsTo) {
  EXPECT_EQ(Translated("FOR i=1 TO n STEPS 2").Items().at(3), "i=i+STEP(S 2):");
}

TEST(Translator, TheThenOfAnIfIsFoundInStringsToo) {
  EXPECT_EQ(Translated("IF a=\"x THEN y\" THEN b=1").flat, "-100029IF a=\"x THEN \1Y\" THEN B=1::::::");
}

TEST(Translator, AThenBehindABracketComesFirst) {
  EXPECT_EQ(Translated("IF a THEN IF(b)THEN c=1").flat, "-100033IF a THEN IF(b)THEN 0200004c=1:::::");
}

TEST(Translator, AnIfWithoutThenIsAStatement) {
  EXPECT_EQ(Translated("IF a=1").ItemsWithFields(), Items{"-1,00 IF a=1:"});
  EXPECT_EQ(Translated("IF THEN").ItemsWithFields(), Items{"-1,00 IF THEN:"});
}

TEST(Translator, AOneLineElseIfCountsItsBracketFromTheElseIf) {
  const Items items = Translated("IF a THEN\nELSEIF(b)THEN c=1\nEND IF").ItemsWithFields();
  EXPECT_EQ(items.at(4), "-1,07 IF(b)THEN 0200004c=1:::");
}

TEST(Translator, AnElseIfWithoutAnIfIsOfDepthZero) {
  ExpectItems({{"ELSEIF a THEN\nx=1", {"GOTN _I0:", "¶_I0:", "IF a THEN:", "GO _I0:", "x=1:"}}});
}

TEST(Translator, LeavesAFunctionFromAnIf) {
  ExpectItems({{"FUNCTION f(a)\nIF a THEN EXIT FUNCTION\nEND FUNCTION",
                {"SUB f(a):", "DIM F:", "IF a THEN:", "GO _I1:", "CSTR(F):", "EXIT SUB:", "END IF:", "¶_I1:",
                 "CStr(F):", "END SUB:"}}});
}

TEST(Translator, ASubGoesThroughAsItIs) {
  ExpectItems({{"SUB s(a,b)\nx=a\nEND SUB\nCALL s(1,2)", {"SUB s(a,b):", "x=a:", "END SUB:", "CALL s(1,2):"}}});
}

TEST(Translator, ALiteralStaysOneStatement) {
  const Translated translated("x=[[a:b(\n\"c]]\ny=1");
  EXPECT_EQ(translated.ItemsWithFields(), (Items{Piece("02,00 x=[[a:b(\n\"c]]:"), "02,00 y=1:"}));
  EXPECT_EQ(translated.Messages(), Items{});
}

TEST(Translator, ALiteralThatIsNotClosedIsNoJump) {
  EXPECT_EQ(Translated("x=[[a:y=1").Items(), (Items{"x=[[a:", "y=1:"}));
}

TEST(Translator, LinesAreContinuedBehindABlankPlusOrAmpersand) {
  ExpectItems({{"x=f(a,b _\n,c)", {"x=f(a,b,c):"}},
               {"x=\"a\"+_\n\"b\"", {"x=\"a\"+\"b\":"}},
               {"x=\"a\" & _\n\"b\"", {"x=\"a\"&\"b\":"}},
               {"CALL s(\"a\", _\n\"b\")", {"CALL s(\"a\",\"b\"):"}}});
}

TEST(Translator, TheCharacterBehindAContinuationIsLookedAt) {
  const Translated translated("f(\"a\", _\n\"b:c\")");
  EXPECT_EQ(translated.Items(), Items{"f(\"a\",\"b:c\"):"});
  EXPECT_EQ(translated.Messages(), Items{});
}

TEST(Translator, APlusThatContinuesIsAnOperator) {
  EXPECT_EQ(Translated("word+_\nmore").ItemsWithFields(), Items{"-1,00 word+more:"});
}

TEST(Translator, ACommentAtTheStartOfAStatementGoes) {
  ExpectItems({{"/* a: b\nc */x=1", {"x=1:"}}, {"/* a */\nx=1", {"x=1:"}}, {"/* a */:x=1", {"x=1:"}}});
}

TEST(Translator, ACommentTakesWhatStoodBeforeItInTheStatement) {
  EXPECT_EQ(Translated("y=2 /* a */x=1").ItemsWithFields(), Items{"02,00 x=1:"});
  EXPECT_EQ(Translated("yy=2 /* a */x=1").ItemsWithFields(), Items{"03,00 x=1:"});
}

TEST(Translator, ACommentThatRunsToTheEndTakesTheColonsAlong) {
  EXPECT_EQ(Translated("x=1:/* a").flat, "0200004x=1:");
  EXPECT_EQ(Translated("/*").flat, "");
}

TEST(Translator, TheFirstCharacterBehindACommentIsNotLookedAt) {
  EXPECT_EQ(Translated("/* c */ =\"x\"").ItemsWithFields(), Items{"¶=\"X\":"});
}

TEST(Translator, ACommentMayBeThreeCharacters) {
  ExpectItems({{"/*/x=1", {"x=1:"}}});
}

TEST(Translator, TheSlashOfACommentEndsNoWord) {
  ExpectItems({{"word/* a */again", {"¶AGAIN:"}}});
}

TEST(Translator, ACommentWithOneDoubleQuoteFailsAtTheLineEnd) {
  EXPECT_EQ(Translated("/* a \" b\nc */x=1").Messages(), Items{"There is not a pair for \" symbol."});
  EXPECT_EQ(Translated("/* \"a*/\" */x=1").Items(), Items{"x=1:"});
}

TEST(Translator, OperatorsInStringsEndNoWord) {
  EXPECT_EQ(Translated("x\"a+b\"").Items(), Items{"¶X\"A+B\":"});
}

TEST(Translator, AOneLinePieceWithACommentIsAnUnknownStatement) {
  EXPECT_EQ(Translated("'a note").ItemsWithFields(), Items{"-1,00 'a note:"});
  EXPECT_EQ(Translated("'note").Items(), Items{"¶'NOTE:"});
}

TEST(Translator, ALabelMarkInTheSourceIsEmittedAsItStands) {
  EXPECT_EQ(Translated("\1lower:x=1").Items(), (Items{"¶lower:", "x=1:"}));
}

TEST(Translator, CountersLiveAcrossPieces) {
  ScriptState state = Translated("WHILE a\nIF b THEN\nSELECT CASE c\nCASE 1").state;
  EXPECT_EQ(state.counters, (Counters{.ifDepth = 2, .loopDepth = 1, .loopId = 1, .selectId = -1}));
  const Translated second("END SELECT\nEND IF\nWEND", state);
  EXPECT_EQ(second.Items(),
            (Items{"END IF:", "¶_S1:", "END IF:", "¶_I2:", "GOTB _F1_1:", "END IF:", "¶_I1:", "¶_F0_1:"}));
  EXPECT_EQ(second.Count(), (Counters{.loopId = 1}));
}

TEST(Translator, AnOpenFunctionDoesNotLiveAcrossPieces) {
  const ScriptState state = Translated("FUNCTION f(a)").state;
  EXPECT_EQ(Translated("END FUNCTION", state).Messages(), Items{"There is no Function for End Function operator."});
}

TEST(Translator, AStatementPastTheWidthsIsWrittenAllTheSame) {
  EXPECT_EQ(Translated(std::string(99, 'x') + "=1").flat, "10000102" + std::string(99, 'x') + "=1:::");
  EXPECT_EQ(Translated("x=" + std::string(998, 'y')).flat.substr(0, 10), "02001001x=");
}

// The cleaning takes the blank behind a keyword before a sign or a bracket, and it is a keyword no more.
TEST(Translator, AWhileWithABracketOpensNoLoop) {
  const Translated translated("WHILE (x)\ny=1");
  EXPECT_EQ(translated.ItemsWithFields(), (Items{"-1,06 WHILE(x):", "02,00 y=1:"}));
  EXPECT_EQ(translated.Count(), Counters());
}

TEST(Translator, ACaseWithASignIsAnUnknownStatement) {
  EXPECT_EQ(Translated("SELECT CASE v\nCASE -1").Items(), (Items{"PUSH(1,v):", "CASE-1:"}));
}

TEST(Translator, AnIfWithASignIsNoIf) {
  const Translated translated("IF -1<0 THEN\ny=1");
  EXPECT_EQ(translated.ItemsWithFields(), (Items{"-1,00 IF-1<0 THEN:", "02,00 y=1:"}));
  EXPECT_EQ(translated.Count(), Counters());
}

TEST(Translator, AnAndWithASignStandsWithoutItsBlank) {
  ExpectItems({{"x=a AND -b", {"x=a AND-b:"}}, {"x=a AND (b)", {"x=a AND (b):"}}});
}

TEST(Translator, AStringAloneIsALabel) {
  ExpectItems({{"\"a+b\"", {"¶\"A+B\":"}}});
}

TEST(Translator, OperatorsThatAJumpSkipsEndNoWord) {
  ExpectItems({{"VAR(a+b)", {"¶VAR(A+B):"}}, {"VAR(a+b)+c", {"VAR(a+b)+c:"}}});
}

// Each IF waits for the one in its tail.
TEST(Translator, ALongChainOfIfsIsTranslatedFromItsEnd) {
  std::string code;
  for (int i = 0; i < 300; ++i) code += "IF a THEN ";
  const std::string flat = Translated(code + "b=1").flat;
  EXPECT_EQ(flat.rfind("-100023IF a THEN 0200004b=1:::"), flat.size() - 30 - 2 * 300);
  EXPECT_TRUE(flat.ends_with("0200004b=1:" + std::string(2 * 301, ':')));
}

}  // namespace
}  // namespace corvane::script
