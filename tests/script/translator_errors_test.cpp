#include <gtest/gtest.h>

#include "script/flat_to_text.h"
#include "script/translator.h"
#include "tests/script/translated.h"

namespace corvane::script {
namespace {

using Lines = std::vector<std::string>;

// A piece with one error: its message, and what is made of the piece with OK and with Cancel.
struct Failure {
  const char* code;
  const char* message;
  Lines with_ok;
  Lines with_cancel;
};

void ExpectFailure(const Failure& failure) {
  ScriptState start;
  start.currentLine = "as it was";
  const Translated ok(failure.code, start), cancelled(failure.code, start, 0);
  EXPECT_EQ(ok.Messages(), Lines{failure.message}) << failure.code;
  EXPECT_EQ(ok.Items(), failure.with_ok) << failure.code;
  EXPECT_FALSE(ok.state.stopFlag);
  EXPECT_EQ(cancelled.Messages(), Lines{failure.message}) << failure.code;
  EXPECT_EQ(cancelled.Items(), failure.with_cancel) << failure.code;
  EXPECT_TRUE(cancelled.state.stopFlag);
}

TEST(TranslatorErrors, AStringOpenAtALineEnd) {
  ExpectFailure({"a=1\nx=\"b\ny=2", "There is not a pair for \" symbol.", {"a=1:", Piece("x=\"b\ny=2::")}, {"a=1:"}});
}

TEST(TranslatorErrors, EachLineEndInAnOpenStringIsReported) {
  const Translated translated("x=\"b\ny=2\nz=3");
  EXPECT_EQ(translated.Messages(), (Lines{"There is not a pair for \" symbol.", "There is not a pair for \" symbol."}));
  EXPECT_EQ(translated.report.errors[0].currentLine, "0000005x=\"b:0000030y=2\tz=3::");
  EXPECT_EQ(translated.report.errors[1].currentLine, "0000009x=\"b\ty=2:0000030z=3::");
}

TEST(TranslatorErrors, AStringMayStayOpenAtTheEndOfThePiece) {
  const Translated translated("x=\"b");
  EXPECT_EQ(translated.Items(), Lines{"x=\"b::"});
  EXPECT_EQ(translated.Messages(), Lines{});
}

TEST(TranslatorErrors, BracketsThatDiffer) {
  ExpectFailure({"a=1\nx=f(b\ny=2", "Brackets Error.", {"a=1:", "y=2:"}, {"a=1:"}});
  ExpectFailure({"x=f(b)):y=2", "Brackets Error.", {"y=2:"}, {}});
  ExpectFailure({"x=f(\")\":y=2", "Brackets Error.", {"y=2:"}, {}});
}

TEST(TranslatorErrors, TheStatementAndWhatFollowsAreShown) {
  const Translated translated("x=f(b\ny=2:a long statement that goes on and on=1");
  EXPECT_EQ(translated.report.errors[0].currentLine, "0000006x=f(b:0000030y=2:a long statement that goes:");
  EXPECT_EQ(FlatToText(translated.report.errors[0].currentLine), "x=f(b:\r\ny=2:a long statement that goes\r\n");
}

TEST(TranslatorErrors, ACloserWithoutALoop) {
  ExpectFailure({"NEXT i\ny=2", "NEXT  without For or While operators", {"y=2:"}, {}});
  ExpectFailure({"next\ny=2", "next: without For or While operators", {"y=2:"}, {}});
  ExpectFailure({"Wend\ny=2", "Wend: without For or While operators", {"y=2:"}, {}});
  ExpectFailure({"LOOP\ny=2", "LOOP: without For or While operators", {"y=2:"}, {}});
}

TEST(TranslatorErrors, EndIfWithoutIf) {
  ExpectFailure({"END IF\ny=2", "End If operator error.", {"y=2:"}, {}});
  EXPECT_EQ(Translated("END IF").Count().ifDepth, -1);
}

TEST(TranslatorErrors, ADepthBelowZeroStays) {
  const Translated translated("END IF\nIF a THEN\nEND IF");
  EXPECT_EQ(translated.Messages(), (Lines{"End If operator error.", "End If operator error."}));
  EXPECT_EQ(translated.Items(), (Lines{"IF a THEN:", "GO _I0:"}));
  EXPECT_EQ(translated.Count().ifDepth, -1);
}

TEST(TranslatorErrors, CaseAndEndSelectWithoutSelect) {
  ExpectFailure({"CASE 1\ny=2", "Select Case: error", {"y=2:"}, {}});
  ExpectFailure({"CASE(1)\ny=2", "Select Case: error", {"y=2:"}, {}});
  ExpectFailure({"CASE ELSE\ny=2", "Select Case: error", {"y=2:"}, {}});
  ExpectFailure({"END SELECT\ny=2", "Select Case: error", {"y=2:"}, {}});
}

TEST(TranslatorErrors, AnyDefectOfAFor) {
  const char* message = "Syntax Error Use:For i=1 to 12 [step=-1]";
  for (const char* code :
       {"FOR i=1\ny=2", "FOR i=1 TO\ny=2", "FOR i TO 3\ny=2", "FOR i=3 TO -1\ny=2", "FOR i=1 TO (3)\ny=2"}) {
    ExpectFailure({code, message, {"y=2:"}, {}});
    EXPECT_EQ(Translated(code).Count(), Counters()) << code;
  }
}

// The cleaning leaves no two blanks, and none before "=".
TEST(TranslatorErrors, AnyDefectOfAForThatWasNotCleaned) {
  for (std::string text : {"FOR i=1 TO  STEP 2:", "FOR =1 TO 3:", "FOR  TO 3:"}) {
    ScriptState state;
    RecordedErrors report(state);
    EXPECT_EQ(TranslateCode(text, state, report), "::");
    EXPECT_EQ(report.Messages(), Lines{"Syntax Error Use:For i=1 to 12 [step=-1]"});
    EXPECT_EQ(state.counters, Counters());
  }
}

TEST(TranslatorErrors, FunctionWithoutABracket) {
  ExpectFailure({"FUNCTION f\ny=2", "Error Function definition", {"FUNCTION f:", "y=2:"}, {}});
  ExpectFailure({"a=1\nFUNCTION f\ny=2", "Error Function definition", {"a=1:", "FUNCTION f:", "y=2:"}, {"a=1:"}});
}

TEST(TranslatorErrors, EndFunctionWithoutFunction) {
  ExpectFailure(
      {"END FUNCTION\ny=2", "There is no Function for End Function operator.", {"CStr():", "END SUB:", "y=2:"}, {}});
}

TEST(TranslatorErrors, EndFunctionClosesIt) {
  const Translated translated("FUNCTION f(a)\nEND FUNCTION\nEND FUNCTION");
  EXPECT_EQ(translated.Messages(), Lines{"There is no Function for End Function operator."});
}

TEST(TranslatorErrors, ExitFunctionWithoutFunction) {
  ExpectFailure(
      {"EXIT FUNCTION\ny=2", "There is no Function for Exit Function operator.", {"CSTR():", "EXIT SUB:", "y=2:"}, {}});
}

// The tail of a one-line IF is a piece of its own, but for one that begins with EXIT FUNCTION.
TEST(TranslatorErrors, ExitFunctionDeepInAOneLineIfKnowsNoFunction) {
  EXPECT_EQ(Translated("FUNCTION f(a)\nIF a THEN IF b THEN EXIT FUNCTION").Messages(),
            Lines{"There is no Function for Exit Function operator."});
}

TEST(TranslatorErrors, AnEndlessChainOfIfsEnds) {
  std::string code;
  for (int i = 0; i < 20'000; ++i) code += "IF a THEN ";
  const Translated translated(code + "b=1");
  EXPECT_EQ(translated.Messages(), Lines{"IFs are nested too deep."});
  EXPECT_TRUE(translated.state.stopFlag);
}

TEST(TranslatorErrors, ALiteralThatIsNotClosed) {
  ExpectFailure({"y=2:x=[[ a", "There are not ']]' symbols.", {"y=2:", "x=[[ a:"}, {}});
}

TEST(TranslatorErrors, OnlyBracketsAndStringsSetTheCurrentLine) {
  ScriptState start;
  start.currentLine = "as it was";
  for (const char* code :
       {"NEXT", "END IF", "CASE 1", "FOR", "FOR i", "FUNCTION f", "END FUNCTION", "EXIT FUNCTION", "x=[[a"})
    for (const RecordedError& error : Translated(code, start).report.errors)
      EXPECT_EQ(error.currentLine, "as it was") << code;
}

TEST(TranslatorErrors, AStopBeforehandTranslatesNothing) {
  ScriptState start;
  start.stopFlag = true;
  EXPECT_EQ(Translated("x=1", start).flat, "::");
}

}  // namespace
}  // namespace corvane::script
