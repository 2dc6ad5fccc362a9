#include "script/built_ins.h"

#include <set>

#include "script/oem_text.h"
#include "tests/script/engine_test.h"
#include "tests/script/shapes.h"

namespace corvane::script {
namespace {

struct BuiltInsTest : EngineTest {};

struct Row {
  const char* expression;
  const char* value;
};

// One line and more for each function of the table; ";" stands for listSep in values.
const Row kRows[] = {
    {"MID(\"abcdef\",3)", "cdef"},
    {"MID(\"abcdef\",3,2)", "cd"},
    {"MID(\"abc\",9)", ""},
    {"MID(\"abc\",0)", ""},
    {"LEN(\"abc\")", "3"},
    {"LEN(\"\")", "0"},
    {"LEN(12345)", "5"},
    {"TRIM(\"  a b  \")", "a b"},
    {"UCASE(\"aBc\")", "ABC"},
    {"STEP(5)", "5"},
    {"RTRIM(\" a \")", " a"},
    {"LTRIM(\" a \")", "a "},
    {"RIGHT(\"abc\",2)", "bc"},
    {"RIGHT(\"abc\",-1)", ""},
    {"LEFT(\"abc\",2)", "ab"},
    {"LEFT(\"\",2)", ""},
    {"LEFT(\"abc\",\"x\")", ""},
    {"INSTRREV(\"abcabc\",\"b\")", "5"},
    {"INSTRREV(\"abcabc\",\"b\",4)", "2"},
    {"INSTRREV(\"abc\",\"x\")", "0"},
    {"INSTR(\"abcabc\",\"B\")", "0"},
    {"INSTR(\"abcabc\",\"b\")", "2"},
    {"INSTR(3,\"abcabc\",\"b\")", "5"},
    {"CHR(65)", "A"},
    {"CHR(256)", ""},
    {"ASC(\"A\")", "65"},
    {"ASC(\"\")", ""},
    {"VAR(\"vv\")", "value"},
    {"VAR(\"3\")", "3"},
    {"REPLACE(\"a.b.c\",\".\",\"--\")", "a--b--c"},
    {"STRCOMP(\"a\",\"b\")", "-1"},
    {"STRCOMP(\"b\",\"a\")", "1"},
    {"STRCOMP(\"a\",\"A\")", "1"},
    {"STRCOMP(\"a\",\"A\",1)", "0"},
    {"STRCOMP(\"a\",\"A\",0)", "1"},
    {"STRCOMP(\"a\",\"A\",5)", ""},
    {"STRCOMP(\"a_\",\"aB\",1)", "-1"},
    {"STRCOMP(\"a_\",\"aB\")", "1"},
    {"DAY(\"2/14/2026\")", "14"},
    {"MONTH(\"2/14/2026\")", "2"},
    {"YEAR(\"2/14/2026\")", "2026"},
    {"DAY(\"no date\")", ""},
    {"ISDATE(\"2/14/2026\")", "True"},
    {"ISDATE(\"x\")", "False"},
    {"ISNUMERIC(\"1.5\")", "True"},
    {"ISNUMERIC(\"1.5x\")", "False"},
    {"NOW()", "2/14/2026 12:00:00 PM"},
    {"SPACE(3)", "   "},
    {"SPACE(2000000000)", ""},
    {"SPACE(67108865)", ""},
    {"LEN(REPLACE(SPACE(500),\" \",SPACE(500)))", "250000"},
    {"LEN(REPLACE(SPACE(8193),\" \",SPACE(8193)))", "0"},
    {"CSTR(5)", "5"},
    {"ABS(\"-5.5\")", "5.5"},
    {"ABS(\"x\")", ""},
    {"INT(\"-1.5\")", "-2"},
    {"FIX(\"-1.5\")", "-1"},
    {"CREATEOBJECT(\"Lib\",\"ff\")", "1"},
    {"DBTASK(\"open\")", "did open"},
    {"GETPARAMS()", "a;b"},
    {"GETSELSTART()", "7"},
    {"GETCODE()", "the code"},
    {"CODELINES(\"Form1\",2,3)", "codelines Form1;2;3"},
    {"GETSELECTION(Me)", "getselection Me"},
    {"CLST(\"a\"&vbcrlf&\"b\")", "a|b"},
    {"SQR(9)", "3"},
    {"SQR(\"-1\")", ""},
    {"ADD(\"Form1.tb\",\"1\",\"key\")", "add Form1.tb;1;key"},
    {"SETPICTURE(\"Form1.p\",\"a.bmp\")", "setpicture Form1.p;a.bmp"},
    {"DIR(\"C:\\t\\*.txt\")", "a.txt|b.txt|"},
    {"DIR(\"C:\\u\\\")", "c|d.e|"},
    {"DIR(\"C:\\none\\\")", ""},
    {"GETCLIPBOARD()", "clip"},
    {"UBOUND(ar)", "2"},
    {"UBOUND(\"AR\")", "2"},
    {"ERASE(ar)", ""},
    {"GETPROP(\"Form1.t\",\"Caption\")", "getprop Form1.t;Caption"},
    {"PROCLINES(\"Form1\",\"Main\")", "proclines Form1;Main"},
    {"DECLARATION(\"Form1\")", "declaration Form1"},
    {"FINDLINE(\"Form1\",\"x\")", "findline Form1;x"},
    {"OEMTOCHAR(\"\x84\")", "\xE4"},
    {"WRITEFILE(\"C:\\t\\new.dat\",\"text\")", "0"},
    {"READFILE(\"C:\\t\\a.txt\")", "content"},
    {"READFILE(\"C:\\t\\a.txt\",3)", "con"},
    {"READFILE(\"C:\\t\\missing\")", ""},
    {"SORT(\"b\"&vbcrlf&\"a\")", "a\r\nb\r\n"},
    {"SORT(\"x=10\"&vbcrlf&\"x=9\",\"X=\")", "x=9\r\nx=10\r\n"},
    {"SORT(\"x=10\"&vbcrlf&\"x=9\",\"x=\",\"Desc\")", "x=10\r\nx=9\r\n"},
    {"READCODE(\"Form1\")", "readcode Form1"},
    {"SHOW(\"FORM{\")", "2"},
    {"MSGBOX(\"Go on?\")", "True"},
    {"COMPONENTS(Me)", "components Me"},
    {"INPUTBOX(\"Name?\",\"Title\")", "typed"},
    {"INPUTBOX(\"Name?\",\"Title\",\"x\")", "typed"},
    {"FORMAT(5,\"000\")", "005"},
    {"FORMAT(\"2/14/2026\",\"yyyy-mm-dd\")", "2026-02-14"},
    {"VBSQL(\"a\")", "\"a\""},
    {"VBSQL(\"id=:nId\")", "\"id=\"+CStr(nId)"},
    {"VBSTR(\"a\")", "\"a\""},
    {"UNVBSTR(\"abc\")", "abc"},
    {"COMMENT(\"a\"&vbcrlf&\"b\")", "'a\r\n'b\r\n"},
    {"NOT(\"True\")", "False"},
};

TEST_F(BuiltInsTest, EachFunctionGivesWhatItsRowSays) {
  Dim("vv,ar()");
  Assign("vv=\"value\"");
  ASSERT_TRUE(AssignElement("ar(2)=5"));
  state.scriptParams = std::string("a") + listSep + "b";
  world.services.clipboard.text = "clip";
  world.services.files.Write("C:\\t\\a.txt", "content");
  world.services.files.Write("C:\\t\\b.txt", "");
  for (const char* name : {"c", "d.e"}) world.services.files.Write(std::string("C:\\u\\") + name, "");
  std::set<std::string> tested;
  for (const Row& row : kRows) {
    world.services.prompts.inputs = {"typed"};
    EXPECT_EQ(Value(row.expression), std::string(row.expression).find("NOT(") == 0 ? "boolean False" : row.value)
        << row.expression;
    EXPECT_EQ(Messages(), Texts()) << row.expression;
    tested.insert(std::string(row.expression, std::string(row.expression).find('(') + 1));
  }
  for (const auto group : {TextFunctions(), NumberFunctions(), OutsideFunctions()})
    for (const FunctionRow& row : group) EXPECT_TRUE(tested.count(std::string(row.key))) << row.key;
  EXPECT_EQ(world.services.files.Read("C:\\t\\new.dat"), "text");
  EXPECT_EQ(world.dialogs.shown, Texts{"FORM{"});
  EXPECT_EQ(world.services.prompts.input_boxes.back().default_text, "x");
}

TEST_F(BuiltInsTest, EachRowHasItsShapeOneLineOfHelpAndAForm) {
  for (const auto group : {TextFunctions(), NumberFunctions(), OutsideFunctions()})
    for (const FunctionRow& row : group) {
      EXPECT_EQ(FindFunction(row.key), &row) << row.key;
      EXPECT_EQ(row.key.back(), '(') << row.key;
      EXPECT_TRUE(IsShape(row.arguments)) << row.key << row.arguments;
      EXPECT_TRUE(IsHelp(row.help)) << row.key << row.help;
      EXPECT_TRUE(row.one || row.two || row.three || row.names_array) << row.key;
    }
  EXPECT_EQ(FindFunction("NOSUCH("), nullptr);
}

TEST_F(BuiltInsTest, TheShapeOfAFunctionSaysHowManyArgumentsItTakes) {
  for (const auto group : {TextFunctions(), NumberFunctions(), OutsideFunctions()})
    for (const FunctionRow& row : group) {
      if (!row.two && !row.three) continue;  // a list is taken as it is
      EXPECT_EQ(Arguments(row.arguments, false), row.three ? 3 : 2) << row.key;
      EXPECT_EQ(Arguments(row.arguments, true), row.one ? 1 : row.two ? 2 : 3) << row.key;
    }
}

TEST_F(BuiltInsTest, MidWithOneArgumentQuietlyIsEmpty) {
  EXPECT_EQ(Primary("MID(\"abc\")"), "");
  EXPECT_EQ(Messages(), Texts());
  EXPECT_EQ(Value("MID(\"abc\",1,2,3)"), "");
  EXPECT_EQ(Messages(), Texts{"Bad parameters"});
}

TEST_F(BuiltInsTest, ReplaceWithTwoArgumentsHasBadParametersWithOkAndWithCancel) {
  EXPECT_EQ(Value("REPLACE(\"a\",\"b\")"), "");
  EXPECT_EQ(Messages(), Texts{"Bad parameters"});
  EXPECT_FALSE(state.stopFlag);
  errors.cancel = true;
  EXPECT_EQ(Value("LEFT(\"abc\")"), "");
  EXPECT_EQ(Messages(), Texts{"Bad parameters"});
  EXPECT_TRUE(state.stopFlag);
  EXPECT_EQ(Primary("LEN(\"abc\")"), "") << "a stopped run evaluates nothing";
}

TEST_F(BuiltInsTest, LenOfANumberCountsTheCharactersOfItsText) {
  EXPECT_EQ(Primary("LEN(1.50)"), "4");
}

TEST_F(BuiltInsTest, AQuoteDoubledInALiteralStaysDoubledInAnArgument) {
  EXPECT_EQ(Primary("LEN(\"a\"\"b\")"), "4");
}

TEST_F(BuiltInsTest, AHexadecimalNumberGivesItsDecimalText) {
  EXPECT_EQ(Primary("&HFF"), "255");
  EXPECT_EQ(Primary("&O17"), "15");
}

TEST_F(BuiltInsTest, ASignNegatesTheValue) {
  EXPECT_EQ(Primary("-5"), "-5");
  EXPECT_EQ(Primary("-1.50"), "-1.5");
  EXPECT_EQ(Primary("-LEN(\"abc\")"), "-3");
  EXPECT_EQ(Primary("-"), "");
  EXPECT_EQ(Messages(), Texts{"Variable - is not found"});
  EXPECT_EQ(Primary("-\"abc\""), "");
}

TEST_F(BuiltInsTest, AnArgumentHasNoSign) {
  Dim("x");
  EXPECT_EQ(Primary("ABS(-X)"), "");
  EXPECT_EQ(Messages(), Texts{"Variable -X is not found"});
  EXPECT_EQ(Primary("ABS(-5)"), "5");
}

TEST_F(BuiltInsTest, TextsStandBetweenTheirFirstAndLastCharacter) {
  EXPECT_EQ(Primary("\"a+b\""), "a+b");
  EXPECT_EQ(Primary(std::string(1, quoteMark) + "a\"b" + quoteMark), "a\"b");
  EXPECT_EQ(Primary("\"\""), "");
  EXPECT_EQ(Primary("\""), "");
}

TEST_F(BuiltInsTest, ATwoLetterArrayIsReadAOneLetterOneIsNot) {
  Dim("ar(),a()");
  ASSERT_TRUE(AssignElement("ar(1)=5"));
  ASSERT_TRUE(AssignElement("a(1)=6"));
  EXPECT_EQ(Primary("ar(1)"), "5");
  EXPECT_EQ(Primary("a(1)"), "");
  EXPECT_EQ(Messages(), Texts{"Variable a(1 is not found"});
}

TEST_F(BuiltInsTest, ALocalArrayHidesAGlobalOne) {
  Dim("ar()");
  ASSERT_TRUE(AssignElement("ar(1)=5"));
  state.subDepth = 1;
  EXPECT_EQ(Primary("AR(1)"), "5");
  Dim("ar()");
  EXPECT_EQ(Primary("AR(1)"), "");
  EXPECT_EQ(Primary("UBOUND(ar)"), "-1");
  state.subDepth = 2;
  EXPECT_EQ(Primary("AR(1)"), "5");
}

TEST_F(BuiltInsTest, AnUnknownNameIsReportedWithOkAndWithCancel) {
  EXPECT_EQ(Primary("nobody"), "");
  EXPECT_EQ(Messages(), Texts{"Variable nobody is not found"});
  EXPECT_FALSE(state.stopFlag);
  errors.cancel = true;
  EXPECT_EQ(Primary("nobody"), "");
  EXPECT_TRUE(state.stopFlag);
}

TEST_F(BuiltInsTest, AnUnknownNameIsQuietWhileTheLeftSideIsLookedUp) {
  state.lvalueMode = true;
  EXPECT_EQ(Primary("nobody"), "");
  EXPECT_EQ(Messages(), Texts());
}

TEST_F(BuiltInsTest, AnUndeclaredArrayIsReportedWithOkAndWithCancel) {
  EXPECT_EQ(Primary("UBOUND(nobody)"), "");
  errors.cancel = true;
  EXPECT_EQ(Primary("ERASE(nobody)"), "");
  EXPECT_EQ(Messages(), (Texts{"Undeclared array.", "Undeclared array."}));
  EXPECT_TRUE(state.stopFlag);
}

TEST_F(BuiltInsTest, WriteFileNeedsNameAndTextWithOkAndWithCancel) {
  EXPECT_EQ(Primary("WRITEFILE(\"x\")"), "");
  errors.cancel = true;
  EXPECT_EQ(Value("WRITEFILE(\"x\",\"y\",\"z\")"), "");
  EXPECT_EQ(Messages(), (Texts{"WriteFile syntax error.", "WriteFile syntax error."}));
  EXPECT_TRUE(state.stopFlag);
}

TEST_F(BuiltInsTest, WriteFileNeedsAName) {
  EXPECT_EQ(Value("WRITEFILE(\"\",\"x\")"), "");
  errors.cancel = true;
  EXPECT_EQ(Value("WRITEFILE(\"\",\"\")"), "");
  EXPECT_EQ(Messages(), (Texts{"WriteFile syntax error.", "WriteFile syntax error."}));
  EXPECT_TRUE(state.stopFlag);
}

TEST_F(BuiltInsTest, WriteFileOfNothingEmptiesTheFile) {
  world.services.files.Write("C:\\a.txt", "content");
  EXPECT_EQ(Value("WRITEFILE(\"C:\\a.txt\",\"\")"), "0");
  EXPECT_EQ(world.services.files.Read("C:\\a.txt"), "");
}

TEST_F(BuiltInsTest, AFunctionThatFailsIsEmptyWithoutAMessage) {
  world.services.clipboard.fail_with = runtime::kPermissionDenied;
  EXPECT_EQ(Primary("GETCLIPBOARD()"), "");
  EXPECT_EQ(Primary("SQR(\"x\")"), "");
  EXPECT_EQ(Messages(), Texts());
}

TEST_F(BuiltInsTest, AUserFunctionRunsACallAndGivesTheLastValue) {
  runner.on_run = [&](const std::string&) { state.lastValue = 7.0; };
  EXPECT_EQ(Primary("ff(1)"), "7");
  EXPECT_EQ(runner.ran, Texts{"Call FF(1):"});
  EXPECT_EQ(Value("ff(1+1,\"a b\")+1"), "8");
  EXPECT_EQ(runner.ran.back(), "Call FF(\"2" + std::string(1, listSep) + "a b\"):");
}

TEST_F(BuiltInsTest, AComputedQuoteStandsBareInACall) {
  Dim("x");
  Assign("x=CHR(34)");
  Value("ff(\"a\"&x&\"b\")");
  EXPECT_EQ(runner.ran, Texts{"Call FF(\"a\"b\"):"});
}

TEST_F(BuiltInsTest, ACallWithoutArgumentsHasAnEmptyOne) {
  EXPECT_EQ(Primary("LEN()"), "0");
  EXPECT_EQ(Messages(), Texts());
  Value("ff()");
  EXPECT_EQ(runner.ran, Texts{"Call FF():"});
}

TEST_F(BuiltInsTest, ATruthInsideACallMakesTheValueATruth) {
  EXPECT_EQ(Value("LEN(TRIM(\"True\"))"), "boolean True");
  EXPECT_EQ(Value("LEN(TRIM(\"True\")&\"\")"), "4");
}

TEST_F(BuiltInsTest, AFailedCallGivesWhateverWasThere) {
  state.lastValue = std::string("before");
  EXPECT_EQ(Primary("ff()"), "before");
}

TEST_F(BuiltInsTest, VarThatNamesItselfEnds) {
  Dim("x");
  Assign("x=\"VAR(x)\"");
  EXPECT_EQ(Primary("VAR(x)"), "");
}

TEST_F(BuiltInsTest, ObjectsAreCalledByTheirFunction) {
  EXPECT_EQ(Value("CREATEOBJECT(\"Lib\",\" task \")"), "1");
  EXPECT_EQ(Value("createobject(\"Other\",\"two\")"), "2");
  EXPECT_EQ(Value("CREATEOBJECT(\"Lib\",\"TASK\")"), "1") << "the key stands already";
  EXPECT_EQ(engine.objects.objectNames, "\1TASK(1\1\1TWO(2\1");
  EXPECT_EQ(Value("task(\"a\",\"b\")"), "did a;b");
  EXPECT_EQ(Value("two(1+1)&\"!\""), "did 2!");
  EXPECT_EQ(world.objects.calls, (Texts{"new Lib.clsAction", "new Other.clsAction",
                                        "Lib.clsAction: a" + std::string(1, listSep) + "b", "Other.clsAction: 2"}));
}

TEST_F(BuiltInsTest, TheSiblingLibraryIsToldTheFolderFirst) {
  Value("CREATEOBJECT(\"sernith\",\"ff\")");
  EXPECT_EQ(world.objects.calls,
            (Texts{"new sernith.clsAction", "sernith.clsAction: INIT:" + std::string(1, listSep) + "C:\\Corvane"}));
}

TEST_F(BuiltInsTest, DbTaskMakesItsObjectOnceAndLendsItsConnection) {
  EXPECT_EQ(Value("DBTASK(\"a\")"), "did a");
  EXPECT_EQ(Value("DBTASK(\"b\")"), "did b");
  Value("CREATEOBJECT(\"Lib\",\"task\")");
  EXPECT_EQ(Value("task(\"SetConnection\")"), "connected");
  EXPECT_EQ(world.objects.calls,
            (Texts{"new Sernith.clsAction", "Sernith.clsAction: INIT:" + std::string(1, listSep) + "C:\\Corvane",
                   "Sernith.clsAction: a", "Sernith.clsAction: b", "new Lib.clsAction",
                   "Lib.clsAction connected with Sernith.clsAction"}));
}

TEST_F(BuiltInsTest, AFailingCallOfAnObjectIsEmptyWithoutAMessage) {
  Value("CREATEOBJECT(\"Lib\",\"task\")");
  Value("DBTASK(\"a\")");
  world.objects.calls_fail = true;
  state.lastValue = std::string("before");
  EXPECT_EQ(Value("task(\"a\")"), "");
  EXPECT_EQ(Value("\"<\"&task(\"SETCONNECTION\")&\">\""), "<>");
  EXPECT_EQ(Value("\"<\"&DBTASK(\"b\")&\">\""), "<>");
  EXPECT_EQ(Messages(), Texts());
}

TEST_F(BuiltInsTest, AnObjectThatFailsWhenItIsToldTheFolderStandsAllTheSame) {
  world.objects.calls_fail = true;
  EXPECT_EQ(Value("CREATEOBJECT(\"sernith\",\"ff\")"), "");
  EXPECT_EQ(Value("DBTASK(\"a\")"), "");
  EXPECT_EQ(Messages(), Texts());
  EXPECT_EQ(engine.objects.objectNames, "\1FF(1\1");
  world.objects.calls_fail = false;
  EXPECT_EQ(Value("ff(\"a\")"), "did a");
  EXPECT_EQ(Value("DBTASK(\"b\")"), "did b");
  EXPECT_EQ(world.objects.calls,
            (Texts{"new sernith.clsAction", "new Sernith.clsAction", "sernith.clsAction: a", "Sernith.clsAction: b"}));
}

TEST_F(BuiltInsTest, AnArrayIsFoundBeforeTheFunctionOfAnObject) {
  Dim("task()");
  ASSERT_TRUE(AssignElement("task(1)=5"));
  Value("CREATEOBJECT(\"Lib\",\"task\")");
  EXPECT_EQ(Value("task(1)"), "5");
}

TEST_F(BuiltInsTest, AFunctionOfOneArgumentTakesAListAsItStands) {
  EXPECT_EQ(Value("LEN(\"a\",\"b\")"), "3");
  EXPECT_EQ(Value("UCASE(\"a\",\"b\")"), "A;B");
  EXPECT_EQ(Messages(), Texts());
}

TEST_F(BuiltInsTest, SetConnectionWithoutAConnectionIsACommand) {
  Value("CREATEOBJECT(\"Lib\",\"task\")");
  EXPECT_EQ(Value("task(\"SETCONNECTION\")"), "did SETCONNECTION");
}

TEST_F(BuiltInsTest, AnObjectThatCannotBeMadeIsReportedWithOkAndWithCancel) {
  world.objects.fail = true;
  EXPECT_EQ(Value("CREATEOBJECT(\"Lib\",\"task\")"), "0");
  errors.cancel = true;
  Value("CREATEOBJECT(\"Lib\",\"task\")");
  EXPECT_EQ(Messages(), (Texts{"Can not create object Lib.clsAction", "Can not create object Lib.clsAction"}));
  EXPECT_TRUE(state.stopFlag);
  EXPECT_EQ(engine.objects.objectNames, "");
}

TEST_F(BuiltInsTest, CreateObjectWithOneArgumentIsReportedWithOkAndWithCancel) {
  const std::string message = "Bad syntax. Use var=CreateObject(\"DllName\",\"FunctionName\")";
  EXPECT_EQ(Value("CREATEOBJECT(\"Lib\")"), "0");
  errors.cancel = true;
  Value("CREATEOBJECT(\"\",\"x\")");
  EXPECT_EQ(Messages(), (Texts{message, message}));
  EXPECT_TRUE(state.stopFlag);
}

TEST_F(BuiltInsTest, ABadIndexOfAnObjectIsReportedWithOkAndWithCancel) {
  engine.objects.objectNames = "\1TASK(";
  EXPECT_EQ(Value("task(1)"), "");
  errors.cancel = true;
  Value("task(1)");
  EXPECT_EQ(Messages(), (Texts{"Function calling Error.", "Function calling Error."}));
  EXPECT_TRUE(state.stopFlag);
  state.stopFlag = false;
  engine.objects.objectNames = "\1TASK(9\1";
  EXPECT_EQ(Value("task(1)"), "") << "no such object";
}

TEST_F(BuiltInsTest, AMessageBoxIsTrueForOk) {
  world.services.prompts.answers = {host::vbCancel, host::vbOK};
  EXPECT_EQ(Value("MSGBOX(\"a\")"), "False");
  EXPECT_EQ(Value("MSGBOX(\"b\")"), "True");
  EXPECT_EQ(world.services.prompts.messages[0].style, host::vbOKCancel);
}

TEST_F(BuiltInsTest, OemTextsFollowTheAnsiPage) {
  EXPECT_EQ(OemToChar("plain \x81"), "plain \xFC");
}

}  // namespace
}  // namespace corvane::script
