#include "cli/run_script.h"

#include <chrono>
#include <csignal>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <thread>

#include "environment/disk_files.h"
#include "tests/support/program.h"

namespace corvane::cli {
namespace {

struct Ran {
  int status;
  std::string out, errors;
};

Ran RunScript(const std::string& script, const ScriptOptions& options = {}) {
  std::ostringstream out, errors;
  const int status = RunScriptFile(script, options, out, errors);
  return {status, out.str(), errors.str()};
}

// A file on disk, and its name as scripts write it.
struct ScriptFile {
  tests::TemporaryFolder folder;
  std::string path = folder.Path() + "/inner.txt", name = environment::WindowsPath(path);

  explicit ScriptFile(const std::string& text) { std::ofstream(path, std::ios::binary) << text; }
};

TEST(RunScriptFile, PutsTheResultOutAsItIs) {
  const Ran ran = RunScript("CODE{\na <%=1%>\n}\n");
  EXPECT_EQ(ran.out, "a 1\r\n");
  EXPECT_EQ(ran.errors, "");
  EXPECT_EQ(ran.status, 0);
}

TEST(RunScriptFile, AnErrorBoxIsCancelledAndTheStatusIsOne) {
  const Ran ran = RunScript("CODE{\n<%=1:foo bar:=2%>\n}\n");
  EXPECT_EQ(ran.out, "1");
  EXPECT_EQ(ran.errors, "Weaver: foo bar: *** Unknown function ***\r\nfoo bar:\r\n=2:\r\n\n");
  EXPECT_EQ(ran.status, 1);
}

TEST(RunScriptFile, AnErrorBoxAnsweredWithOkLetsTheRunGoOn) {
  const Ran ran = RunScript("CODE{\n<%=1:foo bar:=2%>\n}\n", {.answers = {"ok"}, .parameters = {}, .library = {}});
  EXPECT_EQ(ran.out, "12\r\n");
  EXPECT_EQ(ran.status, 1);
}

TEST(RunScriptFile, AnswersGoToTheBoxesInTheirOrder) {
  const std::string script =
      "CODE{\n<%\ndim aa,bb\naa=inputbox(\"Name?\",\"Ask\",\"nobody\")\nbb=msgbox(\"Sure?\")\n=aa\n=bb\n%>\n}\n";
  EXPECT_EQ(RunScript(script, {.answers = {"Ann", "cancel"}, .parameters = {}, .library = {}}).out, "AnnFalse");
  EXPECT_EQ(RunScript(script).out, "nobodyTrue");
  EXPECT_EQ(RunScript(script).errors, "Ask: Name?\nCorvane: Sure?\n");
}

TEST(RunScriptFile, AnswersOfInputBoxesAndErrorBoxesInterleave) {
  ScriptOptions options;
  options.answers = {"Ann", "OK", "Bob", "cancel", "unused"};
  const std::string ask = "=inputbox(\"Name?\",\"Ask\")\nfoo bar\n";
  const Ran ran = RunScript("CODE{\n<%\n" + ask + ask + "=3\n%>\n}\n", options);
  EXPECT_EQ(ran.out, "AnnBob");
  EXPECT_EQ(ran.status, 1);
}

TEST(RunScriptFile, AnAnswerThatFitsNoButtonEndsItAtOnce) {
  ScriptOptions options;
  options.answers = {"yes"};
  for (const char* code : {"=msgbox(\"Sure?\")", "foo bar"}) {
    const Ran ran = RunScript("CODE{\n<%=1:" + std::string(code) + ":print(2):=3%>\n}\n", options);
    EXPECT_EQ(ran.out, "");
    EXPECT_EQ(ran.errors.substr(0, 43),
              "--answer \"yes\" fits no button of the box \"" + std::string(1, code[0] == '=' ? 'C' : 'W'));
    EXPECT_EQ(ran.errors.find('\n'), ran.errors.size() - 1) << ran.errors;
    EXPECT_EQ(ran.status, 2);
  }
}

TEST(RunScriptFile, ExecuteSaysThatItOpensNothingAndTheRunGoesOn) {
  const Ran ran = RunScript("CODE{\n<%=1:execute(\"a.htm\"):=2%>\n}\n");
  EXPECT_EQ(ran.out, "12\r\n");
  EXPECT_EQ(ran.errors, "Corvane: EXECUTE opens no file on the command line: a.htm\n");
  EXPECT_EQ(ran.status, 0);
}

TEST(RunScriptFile, ShellSaysThatItStartsNothingAndEndsThePiece) {
  const Ran ran =
      RunScript("CODE{\n<%=1:shell(\"notepad\"):=2%><%=3%>\n}\n", {.answers = {"ok"}, .parameters = {}, .library = {}});
  EXPECT_EQ(ran.out, "13\r\n");
  EXPECT_EQ(ran.errors, "Weaver: SHELL starts no program on the command line: notepad\r\n\n");
  EXPECT_EQ(ran.status, 1);
}

TEST(RunScriptFile, CreateWithoutAProjectSaysSo) {
  for (const std::string code : {"create(\"CLASSMODULE\",\"clsA\")", "create(\"C:\\a.cls\",\"clsA\")"}) {
    const Ran ran =
        RunScript("CODE{\n<%=1:" + code + ":=2%>\n}\n", {.answers = {"ok"}, .parameters = {}, .library = {}});
    EXPECT_EQ(ran.out, "12\r\n");
    EXPECT_EQ(ran.errors.substr(0, 29), "Weaver: No project is open.\r\n") << ran.errors;
    EXPECT_EQ(ran.status, 1);
  }
}

TEST(RunScriptFile, TheLibraryIsTheFolderThatIsGiven) {
  const tests::TemporaryFolder folder;
  std::ofstream(folder / "LibCode.txt", std::ios::binary) << "{COMMON}\r\n$AA=5\r\n}\r\n";
  std::filesystem::create_directory(folder / "WorkShop");
  std::ofstream(folder / "WorkShop/inner.txt", std::ios::binary) << "CODE{\r\n<%=$AA%>\r\n}\r\n";
  ScriptOptions options;
  options.library = folder.Path();
  EXPECT_EQ(RunScript("FILE:inner.txt\n", options).out, "5\r\n");
}

TEST(RunScriptFile, CtrlCEndsTheScriptThatRunStarted) {
  const ScriptFile next("CODE{\r\n<%=2:while 1=1:wend%>\r\n}\r\n");
  std::signal(SIGINT, SIG_IGN);
  std::thread user([] {
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    std::raise(SIGINT);
  });
  EXPECT_EQ(RunScript("CODE{\n<%\n=1\nrun(\"" + next.name + "\")\n%>\n}\n").out, "2");
  user.join();
  std::signal(SIGINT, SIG_DFL);
}

TEST(RunScriptFile, BoxesAsJson) {
  ScriptOptions options;
  options.json = true;
  EXPECT_EQ(RunScript("CODE{\n<%print(1):foo bar%>\n}\n", options).errors,
            "{\"box\":\"error\",\"title\":\"Weaver\",\"message\":\"foo bar: *** Unknown function ***\","
            "\"flat\":\"foo bar:\\u000d\\u000a\",\"answer\":\"cancel\"}\n"
            "{\"box\":\"print\",\"title\":\"Print Box\",\"message\":\"1\\u000d\\u000a\",\"answer\":\"ok\"}\n");
}

TEST(RunScriptFile, ParametersFillVariables) {
  ScriptOptions options;
  options.parameters = {"one", "two"};
  EXPECT_EQ(RunScript("CODE{\n<%\ndim aa,bb\ngetparams(aa,bb)\n=bb\n=aa\n%>\n}\n", options).out, "twoone");
}

TEST(RunScriptFile, ThePlanIsPutOutInPlaceOfTheResult) {
  ScriptOptions options;
  options.plan = true;
  EXPECT_EQ(RunScript("CODE{\n<%\nprint(1)\n%>\n}\n", options).out, "print(1):\r\n");
}

TEST(RunScriptFile, FormsDeclareTheirNamesAndArePassed) {
  EXPECT_EQ(RunScript("FORM{\nDIM aa\nCONST bb = 5\nTEXT NAME=t\n}\nCODE{\n<%=aa:=bb%>\n}\n").out, "05\r\n");
}

TEST(RunScriptFile, CtrlCEndsAnEndlessScript) {
  std::signal(SIGINT, SIG_IGN);
  std::thread user([] {
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    std::raise(SIGINT);
  });
  const Ran ran = RunScript("CODE{\n<%\n=\"begun\"\nwhile 1=1\nwend\n%>\n}\n");
  user.join();
  std::signal(SIGINT, SIG_DFL);
  EXPECT_EQ(ran.out, "begun");
  EXPECT_EQ(ran.status, 0);
}

TEST(RunScriptFile, CtrlCEndsAnEndlessScriptInsideAScript) {
  const ScriptFile inner("CODE{\r\n<%while 1=1:wend%>\r\n}\r\n");
  std::signal(SIGINT, SIG_IGN);
  std::thread user([] {
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    std::raise(SIGINT);
  });
  EXPECT_EQ(RunScript("CODE{\n<%\n=1\nscriptrun(\"" + inner.name + "\")\n=2\n%>\n}\n").out, "1");
  user.join();
  std::signal(SIGINT, SIG_DFL);
}

TEST(RunScriptFile, AnErrorBoxInsideScriptRunIsOneToo) {
  const ScriptFile inner("CODE{\r\n<%foo bar%>\r\n}\r\n");
  ScriptOptions options;
  options.json = true;
  const Ran ran = RunScript("CODE{\n<%\n=1\nscriptrun(\"" + inner.name + "\")\n=2\n%>\n}\n", options);
  EXPECT_EQ(ran.out, "12");
  EXPECT_EQ(ran.errors,
            "{\"box\":\"error\",\"title\":\"Weaver\",\"message\":\"foo bar: *** Unknown function ***\","
            "\"flat\":\"foo bar:\\u000d\\u000a\",\"answer\":\"cancel\"}\n");
  EXPECT_EQ(ran.status, 1);
}

}  // namespace
}  // namespace corvane::cli
