// The odd rules of the flow, each by a name of its own.
#include "script/run_code.h"
#include "tests/script/lib_test.h"

namespace corvane::script {
namespace {

using Flow = LibTest;

std::string Repeat(const std::string& text, int count) {
  std::string all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
}

TEST_F(Flow, AStatementCounterAt151YieldsOnceAndCountsOnFromOne) {
  RunCode(Repeat("=1\n", 150));
  EXPECT_EQ(world.services.loop.yields, 0);
  RunCode(Repeat("=1\n", 152));
  EXPECT_EQ(world.services.loop.yields, 1);
  RunCode(Repeat("=1\n", 302));
  EXPECT_EQ(world.services.loop.yields, 3);
}

TEST_F(Flow, LabelsAndTheEndOfThePieceCountForTheYield) {
  RunCode("=1\n" + Repeat("label1:\n", 149));
  EXPECT_EQ(world.services.loop.yields, 0);
  RunCode("=1\n" + Repeat("label1:\n", 150));
  EXPECT_EQ(world.services.loop.yields, 1);
}

TEST_F(Flow, StopMeEndsALoopAtItsNextYield) {
  world.services.loop.on_do_events = [&] { lib.StopMe(); };
  RunCode("while 1=1\n=1\nwend");
  EXPECT_EQ(world.services.loop.yields, 1);
  EXPECT_TRUE(lib.Parts().state.stopFlag);
}

TEST_F(Flow, StopMeEndsRunsThatAreEachTooShortToYield) {
  world.services.loop.on_do_events = [&] { lib.StopMe(); };
  RunCode("function fib(n)\nif n<2 then\nfib=n\nelse\nfib=fib(n-1)+fib(n-2)\nend if\nend function\n=fib(60)");
  EXPECT_EQ(world.services.loop.yields, 1);
}

TEST_F(Flow, StopMeEndsALoopOverTemplateText) {
  world.services.loop.on_do_events = [&] { lib.StopMe(); };
  RunScript("CODE{\n<%TOP1:%>\nx\n<%\nGOTO TOP1\n%>\n}\n");
  EXPECT_TRUE(lib.Parts().state.stopFlag);
}

TEST_F(Flow, StopMeEndsAScriptThatRunsItself) {
  world.services.files.Put("C:\\me.txt", "CODE{\r\n<%RUN(\"C:\\me.txt\")%>\r\n}\r\n");
  int yields = 0;
  world.services.loop.on_do_events = [&] {
    if (++yields == 5) lib.StopMe();
  };
  RunScript("FILE:C:\\me.txt\n");
  EXPECT_EQ(yields, 5);
}

TEST_F(Flow, AForwardJumpSkipsTheTextBetweenThePieces) {
  EXPECT_EQ(RunScript("CODE{\na\n<%goto over1%>\nb\n<%=1:over1:=2%> c\nd\n}\n"), "a\n2 c\nd\n");
}

TEST_F(Flow, PiecesThatAreSkippedAreStillTranslated) {
  EXPECT_EQ(RunScript("CODE{\n<%goto over1%>\n<%end if%>\n<%over1:%>\n}\n"), "\n");
  EXPECT_EQ(Errors(), Lines{"End If operator error."});
}

TEST_F(Flow, SubsInPiecesThatAreSkippedAreNotDefined) {
  RunScript("CODE{\n<%goto over1%>\n<%\nsub s1()\n=1\nend sub\n%>\n<%over1:\ncall s1()\n%>\n}\n");
  EXPECT_EQ(Errors(), Lines{"Calling Sub Error."});
}

TEST_F(Flow, ALoopOverTemplateTextWorksWhereThePieceThatClosesItHasManyLines) {
  EXPECT_EQ(
      RunScript(
          "CODE{\n<%\ndim i1\ni1=0\nsub unused()\nend sub\n%>\n<%while i1<3:i1++%>\nrow <%=i1%>\n<%\nwend\n%>\nend\n"
          "}\n"),
      "\nrow 1\n\nrow 2\n\nrow 3\nend\n");
  EXPECT_EQ(Errors(), Lines());
}

TEST_F(Flow, ALoopOverTemplateTextClosedByAPieceOfOneLineSearchesForward) {
  EXPECT_EQ(RunScript("CODE{\n<%dim i1:while i1<3:i1++%>\nrow\n<%wend%>\nend\n}\n"), "\nrow\n");
  EXPECT_EQ(Errors(), Lines{"Label _F1_1: not found"});
}

TEST_F(Flow, ALoopOverTemplateTextMayBeClosedByThePieceThatTheBlockEnds) {
  EXPECT_EQ(RunScript("CODE{\n<%dim ii%>\n<%while ii<2:ii++%>\nrow\n<%\nwend\n}\n"), "\n\nrow\n\nrow\n");
  EXPECT_EQ(Errors(), Lines());
}

TEST_F(Flow, EndSubInATextIsNoPlaceToResume) {
  EXPECT_EQ(RunScript("CODE{\n<%dim ii,tt%>\n<%while ii<2:ii++%>\nrow\n<%\ntt=\"end sub\"\nwend\n%>\nend\n}\n"),
            "\n\nrow\n\nrow\nend\n");
  EXPECT_EQ(Errors(), Lines());
}

TEST_F(Flow, ASubInThePieceThatClosesALoopHidesTheLoopFromTheRestart) {
  EXPECT_EQ(RunScript("CODE{\n<%dim ii%>\n<%while ii<2:ii++%>\nrow\n<%\nsub s1()\nend sub\nwend\n%>\nend\n}\n"),
            "\n\nrow\n");
  EXPECT_EQ(Errors(), Lines{"Label _F1_1: not found"});
}

TEST_F(Flow, AGoToBackwardRestartsTheBlockAtItsEnd) {
  EXPECT_EQ(RunScript("CODE{\n<%dim n1%>\nfirst\n<%back1:%>\nx\n<%n1++%>\n<%if n1<3 then goto back1%>\nrest\n}\n"),
            "\nfirst\n\nx\n\n\nx\n\n\nx\n\n\nrest\n");
}

TEST_F(Flow, ALabelThatIsNowhereIsToldAtTheBlocksEnd) {
  EXPECT_EQ(RunScript("CODE{\na\n<%goto nowhere%>\nb\n}\n"), "a\n");
  EXPECT_EQ(Errors(), Lines{"Label NOWHERE: not found"});
}

TEST_F(Flow, ALabelThatIsNowhereIsToldAtTheEndOfTheTextToo) {
  RunScript("CODE{\n<%if 1=2 then%>\n");
  EXPECT_EQ(Errors(), Lines{"Label _I1: not found"});
}

TEST_F(Flow, TheLabelOfAJumpToAnEndIfIsToldWithIt) {
  RunScript("CODE{\n<%if 1=1 then%>\n<%else%>\n");
  EXPECT_EQ(Errors(), Lines{"Label END IF:_I1: not found"});
}

TEST_F(Flow, BackwardInsideASubTheBodyAloneStartsAgain) {
  EXPECT_EQ(RunCode("dim n1\nsub s1()\n=\"[\"\nagain1:\nn1++\n=n1\nif n1<3 then goto again1\n=\"]\"\nend sub\ncall "
                    "s1()\n=\".\""),
            "[123].");
}

TEST_F(Flow, AGoToOutOfASubSearchesItsBodyFromItsStartAndFails) {
  world.debug.answers = {};
  AnswerCancel();
  EXPECT_EQ(RunCode("sub s1()\n=1\ngoto out1\nend sub\ncall s1()\nout1:\n=2"), "1");
  EXPECT_EQ(Errors(), Lines{"There is not exists End if or Next operator"});
}

TEST_F(Flow, TheWordEndSubInATextEndsADefinition) {
  EXPECT_EQ(RunCode("sub s1()\nprint(\"Send subject\")\n=1\nend sub"), "1");
  EXPECT_EQ(Errors(), Lines{"END SUB: *** Unknown function ***"});
}

TEST_F(Flow, SubsAtADepthAreSkipped) {
  EXPECT_EQ(RunCode("sub s1()\n=1\nend sub\ncall s1()\n=2"), "12");
}

TEST_F(Flow, CallingASubInItsOwnBodyGivesDeeperLocals) {
  EXPECT_EQ(RunCode("sub s1(n)\ndim aa\naa=n\nif n<3 then call s1(n+1)\n=aa\nend sub\ncall s1(1)"), "321");
}

TEST_F(Flow, TheLocalsAreGoneAfterACall) {
  RunCode("sub s1(n)\ndim loc1\nend sub\ncall s1(1)\n=loc1");
  EXPECT_EQ(Errors(), Lines{"Variable loc1 is not found"});
}

TEST_F(Flow, CondFlagIsFalseAfterEveryOneLineIf) {
  EXPECT_EQ(RunCode("if 1=1 then =1"), "1");
  EXPECT_FALSE(lib.Parts().state.condFlag);
}

TEST_F(Flow, TheConditionInBracketsKeepsThem) {
  EXPECT_EQ(RunCode("if(2=2)then\n=\"y\"\nend if"), "y");
  EXPECT_EQ(Errors(), Lines());
}

TEST_F(Flow, ACaseWithoutASlotChangesNothing) {
  EXPECT_EQ(RunCode("=1"), "1");
  lib.Parts().state.condFlag = true;
  CodeRun(lib.Parts()).RunFlat(std::make_shared<FlatProgram>("0000007CASE 1:"));
  EXPECT_TRUE(lib.Parts().state.condFlag);
}

TEST_F(Flow, CaseInBracketsPassesTheTranslatorOnly) {
  RunCode("select case 2\ncase(2)\n=1\nend select");
  EXPECT_EQ(Errors(), Lines{"case(1,2): Unknown Function"});
}

TEST_F(Flow, ShowPlanPutsTheStatementsOutAndRunsNothing) {
  EXPECT_EQ(RunCode("showplan()\nprint(1)\nagain1:\nif 1=1 then\n=2\nend if"),
            "print(1):\nAGAIN1:  if 1=1 then:\nGO _I1:\n=2:\nEND IF:\n_I1:  ");
  EXPECT_EQ(Boxes(), Lines());
}

TEST_F(Flow, ABareShowPlanIsALabel) {
  EXPECT_EQ(RunCode("showplan\n=2"), "2");
}

TEST_F(Flow, ExitEmptiesTheResultAndMakesTheRunAWizards) {
  EXPECT_EQ(RunCode("=1\nexit\n=2"), "");
  EXPECT_TRUE(lib.Parts().state.wizardMode);
  EXPECT_EQ(world.window.calls, Lines());
}

TEST_F(Flow, StopShowsTheResultAndEndsTheRun) {
  EXPECT_EQ(RunCode("=1\nstop\n=2"), "1");
  EXPECT_EQ(world.result.calls, (Lines{"text", "1/Result of Execution/Result of Execution..."}));
}

TEST_F(Flow, StopExShowsTheResultInAListAndEndsTheRun) {
  RunCode("=1\nstopex\n=2");
  EXPECT_EQ(world.result.calls, (Lines{"list", "1/Result of Execution/Result of Execution..."}));
}

TEST_F(Flow, AfterCancelInAnOutputTheRestOfTheLineDoesNotGoOut) {
  AnswerCancel();
  EXPECT_EQ(RunScript("CODE{\na <%=nix%> b\nc\n}\n"), "a ");
}

TEST_F(Flow, ABackwardJumpFindsTheFirstOfTwoLoopsSideBySideInALoop) {
  world.services.loop.on_do_events = [&] { lib.StopMe(); };
  const std::string out =
      RunCode("dim i1,j1\nfor i1=1 to 2\nfor j1=1 to 2\n=\"a\"\nnext\nfor j1=1 to 2\n=\"b\"\nnext\nnext");
  EXPECT_EQ(out.substr(0, 6), "aababa");
}

}  // namespace
}  // namespace corvane::script
