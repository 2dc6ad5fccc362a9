// The statement commands.
#include "script/commands.h"

#include "tests/script/lib_test.h"
#include "tests/script/shapes.h"

namespace corvane::script {
namespace {

using CommandsTest = LibTest;

struct Sent {
  const char* name;
  const char* code;
  Lines calls;  // of the project's commands, the window, the forms, the platform
};

class SentCommands : public LibTest, public testing::WithParamInterface<Sent> {};

TEST_P(SentCommands, GoToTheirWindow) {
  world.services.files.Put("C:\\a.txt", "x");
  RunCode(GetParam().code);
  Lines calls = world.changes.calls;
  for (const Lines* more : {&world.window.calls, &world.forms.calls, &world.platform.calls})
    for (const std::string& call : *more)
      if (call.substr(0, 6) != "result") calls.push_back(call);
  EXPECT_EQ(calls, GetParam().calls);
  EXPECT_EQ(Errors(), Lines());
}

INSTANTIATE_TEST_SUITE_P(
    , SentCommands,
    testing::Values(Sent{"Kill", "kill(\"C:\\a.txt\")", {"kill C:\\a.txt"}},
                    Sent{"Modify", "modify(\"F.t\",\"default=x\")", {"modify F.t;default=x"}},
                    Sent{"Remove", "remove(\"Form1.Text1\")", {"remove Form1.Text1"}},
                    Sent{"ReplaceLine", "replaceline(\"ME\",3,\"x\")", {"replaceline ME;3;x"}},
                    Sent{"DeleteCode", "deletecode(\"ME\",1,2)", {"deletecode ME;1;2"}},
                    Sent{"Write", "write(\"ME\",4)", {"write ME;4"}}, Sent{"WriteNothing", "write()", {"write "}},
                    Sent{"InsertCode", "insertcode(Me,\"a\",1)", {"insert Me;a;1"}},
                    Sent{"GoCodeLine", "gocodeline(\"ME\",7)\nopen(\"x\")", {"gocodeline ME;7"}},
                    Sent{"Open", "open(\"Form1\")", {"open Form1"}},
                    Sent{"Create", "create(\"VB.Label\",\"lbl1\",\"Frame1\")", {"create VB.Label,lbl1;Frame1"}},
                    Sent{"Replace", "replace(\"a\",\"b\")", {"replace a,b"}},
                    Sent{"ReplaceOfNothingDoesNothing", "replace()", {}},
                    Sent{"Shell", "shell(\"notepad\")", {"shell notepad"}},
                    Sent{"Execute", "execute(\"a.htm\")", {"open a.htm"}},
                    Sent{"ScriptFile", "scriptfile(\"C:\\s.txt\")", {"file C:\\s.txt"}},
                    Sent{"PutCode", "putcode(\"abc\")", {"code abc"}},
                    Sent{"SetSelStartEndsTheRun", "setselstart(7)\nputcode(1)", {"start 7"}},
                    Sent{"UnloadOutsideADialogIsNothing", "unload(\"2\")", {}},
                    Sent{"KeywordsInAnyCase", "Open(\"a\")\nOPEN(\"b\")", {"open a", "open b"}}),
    [](const auto& info) { return info.param.name; });

TEST_F(CommandsTest, PrintingOneAndThenTwoShowsOneAboveTwo) {
  RunCode("print(1)\nprint(2)");
  EXPECT_EQ(Boxes(), Lines{"1\n2\n"});
}

TEST_F(CommandsTest, GoCodeLineThatFailsLetsTheRunGoOn) {
  world.changes.shows_line = false;
  EXPECT_EQ(RunCode("gocodeline(\"ME\",7)\n=1"), "1");
}

TEST_F(CommandsTest, MsgBoxHasAnExclamationMark) {
  RunCode("msgbox(\"hello\")");
  ASSERT_EQ(world.services.prompts.messages.size(), 1u);
  EXPECT_EQ(world.services.prompts.messages[0].style, host::vbExclamation);
  EXPECT_EQ(world.services.prompts.messages[0].prompt, "hello");
}

TEST_F(CommandsTest, SetClipboardEmptiesAndSets) {
  RunCode("setclipboard(\"abc\")");
  EXPECT_EQ(world.services.clipboard.text, "abc");
  EXPECT_EQ(world.services.clipboard.clears, 1);
}

TEST_F(CommandsTest, SetClipboardPassesItsErrorsOver) {
  world.services.clipboard.fail_with = 521;
  EXPECT_EQ(RunCode("setclipboard(\"abc\")\n=1"), "1");
}

TEST_F(CommandsTest, MousePointerTakesABoolean) {
  RunCode("mousepointer(true)");
  EXPECT_EQ(world.services.screen.pointers.back(), host::vbHourglass);
  RunCode("mousepointer(0)");
  EXPECT_EQ(world.services.screen.pointers.back(), host::vbDefault);
}

TEST_F(CommandsTest, ShellLeavesTheTaskNumber) {
  RunCode("shell(\"x\")");
  EXPECT_EQ(TextOf(lib.Parts().state.lastValue), "42");
}

TEST_F(CommandsTest, AnEraseStatementEmptiesTheArray) {
  EXPECT_EQ(RunCode("dim ar()\nar(2)=\"x\"\nerase(ar)\n=\"[\"\n=ar(2)\n=\"]\""), "[]");
}

TEST_F(CommandsTest, ShowLeavesTheCodeAndTheFunctionReturnsIt) {
  world.forms.answers = {"1", "2"};
  EXPECT_EQ(RunCode("dim xx\nshow(\"FORM{a\"&vbcrlf&\"}\")\nxx=show(\"FORM{b\"&vbcrlf&\"}\")\n=xx"), "2");
  EXPECT_EQ(world.forms.blocks, (Lines{"FORM{a", "FORM{b"}));
}

TEST_F(CommandsTest, NoShowBuildsWithoutShowing) {
  RunCode("noshow(\"FORM{a\"&vbcrlf&\"}\")");
  EXPECT_EQ(world.forms.blocks, Lines{"hidden FORM{a"});
}

TEST_F(CommandsTest, ShowOfAKeptDialogByItsName) {
  world.forms.while_shown = [](frmLib& lib) {
    lib.Parts().state.formStore = "\1OTHER\1FORM{o\r\n}\r\n\2\1MINE\1FORM{m\r\nline\r\n}\r\n\2";
  };
  RunScript("FORM{\n}\nCODE{\n<%show(\"Mine\")%>\n}\n");
  EXPECT_EQ(world.forms.blocks, (Lines{"FORM{", "FORM{m|line"}));
}

TEST_F(CommandsTest, UnloadInAnEventEndsItsSubAndClosesTheDialog) {
  world.forms.while_shown = [](frmLib& lib) {
    lib.Parts().state.dialogActive = true;
    lib.RunCode("Call Form_Click(\"F\",\"btn\"):");
    lib.Parts().state.dialogActive = false;
  };
  EXPECT_EQ(RunCode("sub form_click(f,c)\n=c\nunload(\"9\")\n=\"not\"\nend sub\nshow(\"FORM{a\"&vbcrlf&\"}\")\n=\".\""),
            "btn.");
  EXPECT_EQ(world.forms.calls, Lines{"close 9"});
}

TEST_F(CommandsTest, DebugWatchesItsNames) {
  world.debug.answers = {{kStep}, {kRunOn}};
  RunCode("dim aa\naa=5\ndebug(aa,bb)\n=1\n=2\n=3");
  ASSERT_EQ(world.debug.views.size(), 2u);
  EXPECT_EQ(Readable(world.debug.views[0].watch), "aa = 5\nbb = Variable bb is not found\n");
  EXPECT_EQ(world.debug.views[0].lines, (Lines{"=1:", "=2:", "=3:"}));
  EXPECT_EQ(Boxes(), Lines());
}

TEST_F(CommandsTest, InAWizardDebugDoesNothing) {
  world.services.files.Put("C:\\a.txt", "CODE{\r\n<%debug(aa):=1%>\r\n}\r\n");
  lib.Execute("\1C:\\a.txt");
  EXPECT_EQ(world.debug.views.size(), 0u);
}

TEST_F(CommandsTest, ModifyWithoutItsTwoPartsIsReportedWithOkAndWithCancel) {
  const std::string message = "Use Modify(\"MyForm.myTxt\",\"default=string\") syntax";
  EXPECT_EQ(RunCode("modify(\"bad\")\n=1"), "1");
  EXPECT_EQ(Errors(), Lines{message});
  AnswerCancel();
  EXPECT_EQ(RunCode("modify(\"\",\"default=x\")\n=1"), "");
  EXPECT_EQ(Errors(), Lines{message});
  EXPECT_EQ(world.forms.calls, Lines());
}

TEST_F(CommandsTest, AFailingCommandEndsThePieceInSilence) {
  for (const char* code : {"kill(\"C:\\none.txt\")", "mousepointer(\"x\")", "push(\"x\",1)", "push(-1,1)"})
    EXPECT_EQ(RunScript("CODE{\n<%=1:" + std::string(code) + ":=2%><%=3%>\n}\n"), "13\n") << code;
  EXPECT_EQ(Boxes(), Lines());
}

TEST_F(CommandsTest, UnloadOutsideASubIsNothingInAnEventEither) {
  world.forms.while_shown = [](frmLib& lib) {
    lib.Parts().state.dialogActive = true;
    lib.RunCode("unload(\"9\"):=1:");
    lib.Parts().state.dialogActive = false;
  };
  EXPECT_EQ(RunCode("show(\"FORM{a\"&vbcrlf&\"}\")\n=2"), "12");
  EXPECT_EQ(world.forms.calls, Lines());
}

TEST_F(CommandsTest, PrintIsShownBeforeARunStartsAnother) {
  world.services.files.Put("C:\\next.txt", "CODE{\r\n<%print(2):=3%>\r\n}\r\n");
  EXPECT_EQ(RunCode("print(1)\nrun(\"C:\\next.txt\")"), "3\n");
  EXPECT_EQ(Boxes(), (Lines{"1\n", "2\n"}));
}

// The expression goes on behind the call and changes the last value.
TEST_F(CommandsTest, RunInAFunctionStartsTheFileThatItNames) {
  world.services.files.Put("C:\\next.txt", "CODE{\r\n<%=3%>\r\n}\r\n");
  const std::string go = "dim xx\nfunction go(nn)\nrun(\"C:\\next.txt\")\nend function\n";
  for (const char* call : {"=go(1)", "xx=go(1)", "xx=\"a\"&go(1)", "xx=go(1)+2", "if go(1)=\"a\" then\nend if",
                           "call go(1)", "print(\"a\"&go(1)&\"b\")"})
    EXPECT_EQ(RunCode(go + call), "3\n") << call;
  EXPECT_EQ(Boxes(), Lines());
}

// What an IF cannot reckon leaves the condition as it was, and the statement behind THEN is judged by that.
TEST_F(CommandsTest, AnIfPassesItsErrorsOverStatementByStatement) {
  world.ide.fails = true;
  EXPECT_EQ(RunCode("if Form1.xx.Caption=1 then =1\n=2\nif Form1.xx.Caption=1 then =3\n=4"), "124");
  EXPECT_EQ(Boxes(), Lines());
}

// Parameters between scripts.
TEST_F(CommandsTest, GetParamsFillsALocalVariableFirst) {
  lib.Parts().state.scriptParams = "one";
  EXPECT_EQ(RunCode("dim aa\nsub s1()\ndim aa\ngetparams(aa)\n=aa\nend sub\ncall s1()\n=aa"), "one0");
}

TEST_F(CommandsTest, GetParamsFillsVariablesInOrder) {
  lib.Parts().state.scriptParams = "\1one\2two\1three";
  EXPECT_EQ(RunCode("dim aa,cc\ngetparams(aa,nobody,cc)\n=aa\n=\",\"\n=cc"), "one,three");
}

TEST_F(CommandsTest, GetParamsWithoutFieldsLeavesTheRest) {
  lib.Parts().state.scriptParams = "one";
  EXPECT_EQ(RunCode("dim aa,bb\nbb=7\ngetparams(aa,bb)\n=aa\n=bb"), "one7");
}

TEST_F(CommandsTest, PutParamsFramesThem) {
  RunCode("putparams(\"a\",\"b\")");
  EXPECT_EQ(Readable(world.paramExchange), "|a|b|");
  EXPECT_EQ(Readable(lib.Parts().state.scriptParams), "a;b");
}

TEST_F(CommandsTest, ScriptRunHandsParametersOutAndBack) {
  world.services.files.Put("C:\\sub.txt",
                           "CODE{\r\n<%\r\ndim aa,bb\r\ngetparams(aa,bb)\r\nputparams(bb,aa)\r\n%>\r\n}\r\n");
  EXPECT_EQ(RunCode("dim xx,yy\nscriptrun(\"C:\\sub.txt\",\"p\",\"q\")\ngetparams(xx,yy)\n=xx\n=yy"), "qp");
  EXPECT_EQ(world.paramExchange, "");
}

TEST_F(CommandsTest, ScriptRunOfAMissingFileStillBringsItsParametersBack) {
  EXPECT_EQ(RunCode("scriptrun(\"C:\\none.txt\",\"p\",\"q\")\n=getparams()"), "|p|q|");
  EXPECT_EQ(world.paramExchange, "");
}

TEST_F(CommandsTest, ScriptRunOfAFailingFileStillBringsItsParametersBack) {
  world.services.files.Put("C:\\sub.txt", "CODE{\r\n<%putparams(\"r\"):kill(\"C:\\none\"):putparams(\"s\")%>\r\n}\r\n");
  EXPECT_EQ(RunCode("scriptrun(\"C:\\sub.txt\",\"p\")\n=getparams()"), "|r|");
}

TEST_F(CommandsTest, ScriptRunWithoutParametersHandsNoOldOnesOn) {
  world.services.files.Put("C:\\sub.txt", "CODE{\r\n<%print(\"[\"&getparams()&\"]\")%>\r\n}\r\n");
  lib.Parts().state.scriptParams = "old";
  EXPECT_EQ(RunCode("putparams(\"new\")\nscriptrun(\"C:\\sub.txt\")\n=getparams()"), "new");
  EXPECT_EQ(Boxes(), Lines{"[]\n"});
}

TEST_F(CommandsTest, ScriptRunHasStoresOfItsOwn) {
  world.services.files.Put("C:\\sub.txt", "CODE{\r\n<%dim aa:aa=2%>\r\n}\r\n");
  EXPECT_EQ(RunCode("dim aa\naa=1\nscriptrun(\"C:\\sub.txt\")\n=aa"), "1");
}

TEST_F(CommandsTest, AStopReachesTheScriptInsideAScript) {
  world.services.files.Put("C:\\endless.txt", "CODE{\r\n<%while 1=1:wend%>\r\n}\r\n");
  world.services.files.Put("C:\\between.txt",
                           "CODE{\r\n<%scriptrun(\"C:\\endless.txt\"):print(\"between\")%>\r\n}\r\n");
  int yields = 0;
  world.services.loop.on_do_events = [&] {
    if (++yields == 3) lib.StopMe();
    if (yields > 20) throw std::runtime_error("the stop does not reach it");
  };
  EXPECT_EQ(RunCode("=1\nscriptrun(\"C:\\between.txt\")\n=2"), "1");
  EXPECT_EQ(Boxes(), Lines());
}

TEST_F(CommandsTest, AnErrorInAScriptInsideAScriptComesInTheBoxOfTheFirst) {
  world.services.files.Put("C:\\sub.txt", "CODE{\r\n<%foo bar%>\r\n}\r\n");
  Lines told;
  lib.Errors().SetBox([&](const std::string& message, const std::string& flat) {
    told.push_back(message + "/" + Readable(flat));
    return host::vbCancel;
  });
  EXPECT_EQ(RunCode("scriptrun(\"C:\\sub.txt\")\n=1"), "1") << "a Cancel ends the inner script alone";
  EXPECT_EQ(told, Lines{"foo bar: *** Unknown function ***/foo bar:\n"});
  EXPECT_EQ(Boxes(), Lines());
}

TEST_F(CommandsTest, AScriptThatRunsItselfWithoutEndIsStopped) {
  world.services.files.Put("C:\\me.txt", "CODE{\r\n<%scriptrun(\"C:\\me.txt\")%>\r\n}\r\n");
  RunScript("FILE:C:\\me.txt\n");
  EXPECT_EQ(Errors(), Lines{"Scripts are nested too deep."});
}

TEST_F(CommandsTest, PushOutsideASelectKeepsItsValue) {
  RunCode("push(3,\"abc\")");
  EXPECT_EQ(TextOf(PushSlot(lib.Parts().state, "3")), "abc");
  RunCode("push(3)");
  EXPECT_EQ(Boxes(), Lines());
}

TEST(CommandTableTest, EachRowHasItsShapeAndOneLineOfHelp) {
  for (const CommandRow& row : CommandTable()) {
    EXPECT_EQ(row.keyword, runtime::UCase(row.keyword));
    EXPECT_EQ(row.keyword.find('('), std::string_view::npos) << row.keyword;
    EXPECT_TRUE(IsShape(row.arguments)) << row.keyword << ": " << row.arguments;
    EXPECT_TRUE(IsHelp(row.help)) << row.keyword << ": " << row.help;
  }
}

// The stepper.
using DebugStepTest = LibTest;

TEST_F(DebugStepTest, StepsShowEachStatement) {
  world.debug.answers = {{kStep}, {kStep}};
  RunCode("debug\n=1\n=2\n=3\n=4");
  ASSERT_EQ(world.debug.views.size(), 3u);
  EXPECT_EQ(world.debug.views[1].lines.front(), "=2:");
  EXPECT_FALSE(lib.Parts().state.debugOn);
}

TEST_F(DebugStepTest, StopEndsTheRunWithoutTheStatement) {
  world.debug.answers = {{kStopScript}};
  EXPECT_EQ(RunCode("debug\n=1"), "");
}

TEST_F(DebugStepTest, RunOutAtTheTopIsAStep) {
  world.debug.answers = {{kRunOut}, {kRunOn}};
  RunCode("debug\n=1\n=2\n=3");
  EXPECT_EQ(world.debug.views.size(), 2u);
}

TEST_F(DebugStepTest, RunOutGoesToTheReturnOfTheSub) {
  world.debug.answers = {{kStep}, {kRunOut}, {kRunOn}};
  RunCode("sub s1()\n=1\n=2\nend sub\ndebug\ncall s1()\n=3");
  ASSERT_EQ(world.debug.views.size(), 3u);
  EXPECT_EQ(world.debug.views[1].lines.front(), "=1:");
  EXPECT_EQ(world.debug.views[2].lines.front(), "=3:");
}

TEST_F(DebugStepTest, ATypedCountSkips) {
  world.debug.answers = {{kStep, "", "3"}, {kRunOn}};
  RunCode("debug\n=1\n=2\n=3\n=4");
  ASSERT_EQ(world.debug.views.size(), 2u);
  EXPECT_EQ(world.debug.views[1].lines.front(), "=4:");
}

TEST_F(DebugStepTest, ALineFurtherDownTheListSkipsToIt) {
  world.debug.answers = {{kStep, "", "", 2}, {kRunOn}};
  RunCode("debug\n=1\n=2\n=3\n=4");
  EXPECT_EQ(world.debug.views[1].lines.front(), "=3:");
}

TEST_F(DebugStepTest, ATypedExpressionIsEvaluatedAndTheWindowComesAgain) {
  world.debug.answers = {{kStep, "1+1"}, {kRunOn}};
  EXPECT_EQ(RunCode("debug\n=1"), "1");
  ASSERT_EQ(world.debug.views.size(), 2u);
  EXPECT_EQ(Readable(world.debug.views[1].watch), "1+1 = 2\n");
}

TEST_F(DebugStepTest, AnExpressionTypedWithRunOutAtTheTopIsEvaluated) {
  world.debug.answers = {{kRunOut, "1+1"}, {kRunOn}};
  EXPECT_EQ(RunCode("debug\n=1"), "1");
  ASSERT_EQ(world.debug.views.size(), 2u);
  EXPECT_EQ(Readable(world.debug.views[1].watch), "1+1 = 2\n");
}

TEST_F(DebugStepTest, AnExpressionTypedWithRunOutInASubIsDropped) {
  world.debug.answers = {{kStep}, {kRunOut, "1+1"}, {kRunOn}};
  RunCode("sub s1()\n=1\n=2\nend sub\ndebug\ncall s1()\n=3");
  ASSERT_EQ(world.debug.views.size(), 3u);
  EXPECT_EQ(world.debug.views[2].lines.front(), "=3:");
}

TEST_F(DebugStepTest, AFunctionInTheWatchListRunsThrough) {
  world.debug.answers = {{kStep}, {kStep, "ff(5)"}, {kRunOn}};
  const std::string code = "function ff(aa)\nif aa=9 then\nff=0\nelse\nff=aa+1\nend if\nend function\n";
  EXPECT_EQ(RunCode(code + "debug(ff(1))\nif 1=1 then\n=\"x\"\nelse\n=\"y\"\nend if"), "x");
  ASSERT_EQ(world.debug.views.size(), 3u);
  EXPECT_EQ(Readable(world.debug.views[0].watch), "ff(1) = 2\n");
  EXPECT_EQ(world.debug.views[0].lines.front(), "if 1=1 then:");
  EXPECT_EQ(Readable(world.debug.views[2].watch), "ff(1) = 2\nff(5) = 6\n");
  EXPECT_EQ(Boxes(), Lines());
}

TEST_F(DebugStepTest, AnErrorInAWatchedFunctionStopsNothing) {
  world.debug.answers = {{kStep}, {kRunOn}};
  EXPECT_EQ(RunCode("function ff(aa)\nff=ff(aa)\nend function\ndebug(ff(1))\n=\"x\"\n=\"y\""), "xy");
  ASSERT_EQ(world.debug.views.size(), 2u);
  EXPECT_EQ(Readable(world.debug.views[0].watch), "ff(1) = Calls are nested too deep.\n");
}

TEST_F(DebugStepTest, TheNextRunHasNoWatchListAndSkipsNothing) {
  world.debug.answers = {{kStep, "", "50"}};
  RunCode("debug(aa)\n=1\n=2");
  EXPECT_EQ(lib.Parts().state.debugSkip, 48);
  RunCode("=1");
  EXPECT_EQ(lib.Parts().state.debugWatch, "");
  EXPECT_EQ(lib.Parts().state.debugSkip, 0);
}

TEST_F(DebugStepTest, TheWindowsPlaceIsRememberedDuringARun) {
  world.debug.answers = {{kStep, "", "", 1, 100, 200}};
  RunCode("debug\n=1\n=2");
  EXPECT_EQ(world.debug.views[0].left, 2600);
  EXPECT_EQ(world.debug.views[1].left, 100);
  EXPECT_EQ(world.debug.views[1].top, 200);
  world.debug.views.clear();
  RunCode("debug\n=1");
  EXPECT_EQ(world.debug.views[0].left, 2600);
}

}  // namespace
}  // namespace corvane::script
