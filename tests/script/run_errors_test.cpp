// Every message of the execution loop and of the commands, answered with OK and with Cancel.
#include "script/run_code.h"
#include "tests/script/lib_test.h"

namespace corvane::script {
namespace {

// What a piece puts out and which messages come, if each is answered with OK; and what it puts out if the first is
// answered with Cancel.
struct Failure {
  const char* name;
  const char* code;
  Lines messages;
  const char* after_ok;
  const char* after_cancel;
};

class RunFailures : public LibTest, public testing::WithParamInterface<Failure> {};

TEST_P(RunFailures, AnsweredWithOkTheRunGoesOn) {
  EXPECT_EQ(RunCode(GetParam().code), GetParam().after_ok);
  EXPECT_EQ(Errors(), GetParam().messages);
}

TEST_P(RunFailures, AnsweredWithCancelTheRunEnds) {
  AnswerCancel();
  EXPECT_EQ(RunCode(GetParam().code), GetParam().after_cancel);
  EXPECT_EQ(Errors().front(), GetParam().messages.front());
}

INSTANTIATE_TEST_SUITE_P(
    , RunFailures,
    testing::Values(
        Failure{"JumpOutOfASub",
                "dim n1\nsub leave()\nn1++\nif n1=1 then goto out1\n=n1\nend sub\ncall leave()\nout1:\n=9",
                {"There is not exists End if or Next operator"},
                "29",
                ""},
        Failure{"CallOfAnUnknownSub", "=1\ncall nobody(1)\n=2", {"Calling Sub Error."}, "12", "1"},
        Failure{"CallWithoutBracket", "=1\ncall nobody\n=2", {"Calling Sub Error."}, "12", "1"},
        Failure{"CallWithTooFewValues",
                "sub three(a,b,c)\n=a\nend sub\n=1\ncall three(5)\n=2",
                {"Calling Sub Error."},
                "12",
                "1"},
        Failure{"SubWithoutEndSubInTheStore",
                "sub odd()\nx=\"end sub\"\n=1\ncall odd()\n=2",
                {"Sub definition Error"},
                "12",
                "1"},
        Failure{"EndSubBehindACallThatFoundNoBody",
                "sub odd()\nx=\"end sub\"\n=1\ncall odd()\nend sub\n=2",
                {"Sub definition Error"},
                "12",
                "1"},
        Failure{"ExitSubAtTheTop", "=1\nexit sub\n=2", {"exit sub: *** Unknown function ***"}, "12", "1"},
        Failure{
            "EraseOfTheTwentyFirstArray",
            "=1\ndim a01(),a02(),a03(),a04(),a05(),a06(),a07(),a08(),a09(),a10(),a11(),a12(),a13(),a14(),a15(),a16()"
            "\ndim a17(),a18(),a19(),a20(),a21()\nerase(a21)\n=2",
            {"Index is out of bounds."},
            "12",
            "1"},
        Failure{"SubWithoutBracket", "=1\nsub x1\n=2", {"Sub Declaration error."}, "12", "1"},
        Failure{"SubInASub",
                "=1\nsub a1()\nsub b1()\nend sub\n=2",
                {"Sub Declaration without previous End Sub."},
                "12",
                "1"},
        Failure{"PieceThatEndsInADefinition", "=1\nsub a1()\n=2", {"End Sub not found."}, "1", "1"},
        Failure{"OpenIfAtEndSub", "sub a1()\nif 1=1 then\nend sub\n=2", {"End If operator is not found."}, "2", ""},
        Failure{"OpenLoopAtEndSub",
                "sub a1()\nwhile 1=1\nend sub\n=2",
                {"End If operator is not found.", "Next or Wend operators are not found."},
                "2",
                ""},
        Failure{"IfWithoutThen", "=1\nif 1=1\n=2", {"Syntax Error: if 1=1:"}, "12", "1"},
        Failure{"StatementOfNoForm", "=1\nfoo bar\n=2", {"foo bar: *** Unknown function ***"}, "12", "1"},
        Failure{"EndSubAtTheTop", "=1\nend sub\n=2", {"END SUB: *** Unknown function ***"}, "12", "1"},
        Failure{"UnknownCommand", "=1\nfrob(1)\n=2", {"frob(1): Unknown Function"}, "12", "1"},
        Failure{
            "ReplaceWithOnePart", "=1\nreplace(\"a\")\n=2", {"replace(\"a\"): Function parameters error"}, "12", "1"},
        Failure{"CreateWithOnePart", "=1\ncreate(\"a\")\n=2", {"create(\"a\"): Function parameters error"}, "12", "1"},
        Failure{"CommandWithoutArgument", "=1\nprint()\n=2", {"Must be parameter"}, "12", "1"},
        Failure{"UnknownVariable", "=1\nzz=5\n=2", {"zz=5: Unknown Variable"}, "12", "1"},
        Failure{
            "UnknownArray", "=1\nqq(1)=5\n=2", {"Variable 1) is not found", "qq(1)=5: Unknown Function"}, "12", "1"},
        Failure{"ReadingAnUnknownName", "=nix", {"Variable nix is not found"}, "", ""},
        Failure{"ShowOfAnUnknownDialog",
                "=1\nshow(\"nobody\")\n=2",
                {"Show function Error. Use Form{} script as parameter."},
                "12",
                "1"},
        Failure{"OpenBracket", "=1\nprint((1)\n=2", {"Brackets Error."}, "12", ""},
        Failure{"OpenString",
                "=1\nprint(\"a)\n=2",
                {"There is not a pair for \" symbol.", "There is not a pair for \" symbol.", "Brackets Error."},
                "1",
                ""}),
    [](const auto& info) { return info.param.name; });

using RunErrors = LibTest;

// No text of a script makes these; a flat program may.
TEST_F(RunErrors, ALabelWithoutItsEndIsASyntaxErrorAndEndsTheRun) {
  CodeRun(lib.Parts()).RunFlat(std::make_shared<FlatProgram>("0100003=1:\1abc"));
  EXPECT_EQ(Errors(), Lines{"Syntax Error"});
  EXPECT_TRUE(lib.Parts().state.stopFlag);
  EXPECT_EQ(lib.ResultText(), "1");
}

// With OK it goes on behind the jump, with Cancel it ends.
class JumpErrors : public LibTest, public testing::WithParamInterface<bool> {
 protected:
  void ExpectError(const char* flat, const char* message) {
    if (GetParam()) AnswerCancel();
    CodeRun(lib.Parts()).RunFlat(std::make_shared<FlatProgram>(flat));
    EXPECT_EQ(Errors(), Lines{message});
    EXPECT_EQ(lib.ResultText(), GetParam() ? "" : "1");
  }
};

TEST_P(JumpErrors, AGotoWithoutALabelIsAGoToOperatorError) {
  ExpectError("-100005GOTO 0100003=1:", "GoTo Operator Error");
}

TEST_P(JumpErrors, ABackwardJumpWithoutACallIsAScriptError) {
  lib.Parts().state.subDepth = 1;
  ExpectError("-100010GOTB _F1_1:0100003=1:", "Script Error");
}

TEST_P(JumpErrors, ABackwardJumpInASubWithoutALineEndBehindItsHeaderIsAnUnknownSub) {
  lib.Parts().subs.Append("NAME()");
  lib.Parts().subs.callChain = {1};
  lib.Parts().state.subDepth = 1;
  ExpectError("-100010GOTB _F1_1:0100003=1:", "Unknown Sub");
}

TEST_P(JumpErrors, ABackwardJumpInASubWithoutItsEndIsASubDefinitionError) {
  lib.Parts().subs.Append("NAME()\r\n0100003=2:");
  lib.Parts().subs.callChain = {1};
  lib.Parts().state.subDepth = 1;
  ExpectError("-100010GOTB _F1_1:0100003=1:", "Sub definition Error");
}

INSTANTIATE_TEST_SUITE_P(, JumpErrors, testing::Bool(), [](const auto& info) { return info.param ? "Cancel" : "Ok"; });

TEST_F(RunErrors, AFormalThatIsAConstantThereTakesNoValue) {
  world.services.files.Put("C:\\Corvane\\LibCode.txt", "{COMMON}\r\n$P__1=5\r\n}\r\n");
  EXPECT_EQ(RunCode("sub part($p)\n=$p\nend sub\ncall part(7)"), "5");
  EXPECT_EQ(Errors(), Lines{"call part(7): Error operation"});
}

TEST_F(RunErrors, AHeaderThatIsNoNumberEndsThePieceWithoutAMessage) {
  CodeRun(lib.Parts()).RunFlat(std::make_shared<FlatProgram>("0100003=1:xx00003=2:0100003=3:"));
  EXPECT_EQ(lib.ResultText(), "1");
  EXPECT_EQ(Boxes(), Lines());
}

// The fields are read by their width: a column past 99 shifts them, and they may say anything.
TEST_F(RunErrors, AHeaderThatPointsBeyondItsStatementIsTakenAsItStands) {
  for (const char* flat : {"-1990083(1):", "0099008print(1):", "0100000", "9900003a=:"}) {
    CodeRun(lib.Parts()).RunFlat(std::make_shared<FlatProgram>(flat));
    lib.Parts().state.stopFlag = false;
  }
  const std::string commas(110, ',');
  EXPECT_EQ(RunCode("=1\n" + commas + "=abs(-5)\n=2"), "1");
}

TEST_F(RunErrors, AFailingConversionEndsThePieceAndTheReaderGoesOnBehindIt) {
  EXPECT_EQ(RunScript("CODE{\n<%=1%>\n<%MOUSEPOINTER(\"abc\"):=2%>\n<%=3%>\n}\n"), "1\n\n3\n");
  EXPECT_EQ(Boxes(), Lines());
}

TEST_F(RunErrors, AFileThatIsNotThereEndsThePieceWithoutAMessage) {
  EXPECT_EQ(RunCode("=1\nkill(\"C:\\none.txt\")\n=2"), "1");
  EXPECT_EQ(Boxes(), Lines());
}

TEST_F(RunErrors, TheBoxShowsTheMessageOverTheListing) {
  RunCode("foo bar\n=1");
  ASSERT_EQ(world.services.prompts.messages.size(), 1u);
  const tests::AskedMessage& box = world.services.prompts.messages[0];
  EXPECT_EQ(box.title, "Weaver");
  EXPECT_EQ(box.style, host::vbOKCancel);
  EXPECT_EQ(Readable(box.prompt), "foo bar: *** Unknown function ***\nfoo bar:\n=1:\n");
}

TEST_F(RunErrors, ListingsEndAfterSixtyCharactersOfTheProgram) {
  RunCode("foo bar\n=1234567890123456789012345\n=2234567890123456789012345\n=3");
  EXPECT_EQ(Boxes(), Lines{"foo bar: *** Unknown function ***\nfoo bar:\n=1234567890123456789012345:\n=223\n"});
}

TEST_F(RunErrors, AfterOkTheRunGoesOnUnderTheDebugger) {
  RunCode("foo bar\n=1");
  ASSERT_EQ(world.debug.views.size(), 1u);
  EXPECT_EQ(world.debug.views[0].lines.front(), "=1:");
}

TEST_F(RunErrors, InAWizardAnErrorDoesNotTurnTheDebuggerOn) {
  world.services.files.Put("C:\\a.txt", "CODE{\r\n<%foo bar:=1%>\r\n}\r\n");
  lib.Execute("\1C:\\a.txt");
  EXPECT_EQ(Readable(lib.ResultText()), "1\n");
  EXPECT_EQ(world.debug.views.size(), 0u);
}

TEST_F(RunErrors, AfterCancelInAnArgumentTheCommandDoesNotAct) {
  AnswerCancel();
  RunCode("print(nix)");
  EXPECT_EQ(Boxes(), Lines{"Variable nix is not found\nprint(nix):\n"});
}

TEST_F(RunErrors, AfterCancelInAnIndexTheArrayIsNotReached) {
  AnswerCancel();
  RunCode("dim ar()\nar(nix)=5");
  EXPECT_EQ(Errors(), Lines{"Variable nix is not found"});
  AnswerCancel();
  RunCode("dim ar()\n=ar(nix)");
  EXPECT_EQ(Errors(), Lines{"Variable nix is not found"});
}

TEST_F(RunErrors, BothMessagesAtEndSubComeThoughTheFirstIsCancelled) {
  AnswerCancel();
  RunCode("sub a1()\nwhile 1=1\nend sub\n=2");
  EXPECT_EQ(Errors(), (Lines{"End If operator is not found.", "Next or Wend operators are not found."}));
}

// A recursion without an end.
TEST_F(RunErrors, AFunctionThatCallsItselfWithoutEndIsStopped) {
  AnswerCancel();
  RunCode("function ever(n)\never=ever(n+1)\nend function\n=ever(1)");
  EXPECT_EQ(Errors(), Lines{"Calls are nested too deep."});
}

TEST_F(RunErrors, AFunctionThatCallsItselfTwiceWithoutEndIsStoppedThoughAllIsAnsweredWithOk) {
  RunCode("function ever(n)\never=ever(n+1)+ever(n+2)\nend function\n=ever(1)\n=\"on\"");
  EXPECT_EQ(Errors(), Lines{"Calls are nested too deep."});
}

TEST_F(RunErrors, ASubThatCallsItselfWithoutEndIsStopped) {
  RunCode("sub ever(n)\ncall ever(n+1)\nend sub\ncall ever(1)");
  EXPECT_EQ(Errors(), Lines{"Calls are nested too deep."});
}

TEST_F(RunErrors, ATextThatDoublesWithoutEndStopsTheScript) {
  lib.Parts().longest_text = 10'000;
  RunCode("dim aa\naa=\"0123456789\"\nwhile 1=1\naa=aa&aa\nwend");
  EXPECT_EQ(Errors(), Lines{"A text is too long."});
}

}  // namespace
}  // namespace corvane::script
