// The program itself, run as a user runs it without a display.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <regex>

#include "tests/support/program.h"

namespace corvane::cli {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;
using testing::StartsWith;
using tests::Ended;
using tests::TemporaryFolder;
using Words = std::vector<std::string>;

Ended RunCorvane(const Words& arguments, const std::string& output_file = {}) {
  return tests::RunProgram(tests::ProgramBeside("corvane"), arguments, output_file);
}

std::string Sample(const std::string& name) {
  return std::string(CORVANE_SOURCE_DIR) + "/samples/" + name;
}

const std::string kProject = Sample("stockroom/Stockroom.vbp"), kFile = Sample("stockroom/modCsv.bas");

Words operator+(Words words, const Words& more) {
  words.insert(words.end(), more.begin(), more.end());
  return words;
}

std::string Joined(const Words& words) {
  std::string text;
  for (const auto& word : words) text += word + " ";
  return text;
}

void WriteFile(const std::string& path, const std::string& bytes) {
  std::ofstream out(path, std::ios::binary);
  out << bytes;
  ASSERT_TRUE(out.flush()) << path;
}

// With its line breaks and indents taken for blanks, as help is laid out in columns.
std::string Simplified(const std::string& text) {
  return std::regex_replace(text, std::regex(R"(\s+)"), " ");
}

TEST(CommandLine, ScriptPutsItsResultOutAndItsBoxesOnStandardError) {
  const TemporaryFolder folder;
  const std::string script = folder.Path() + "/a.script";
  WriteFile(script, "CODE{\n<%msgbox(\"hello\"):=getparams()%>\n}\n");
  const Ended result = RunCorvane({"script", script, "--param", "Ann"});
  EXPECT_EQ(result.out, "Ann\r\n");
  EXPECT_EQ(result.errors, "Corvane: hello\n");
  EXPECT_EQ(result.status, 0);
}

TEST(CommandLine, FormatTakesItsOptions) {
  const TemporaryFolder folder;
  const std::string file = folder.Path() + "/a.bas";
  WriteFile(file, "Do\n   x\nLoop\n");
  EXPECT_EQ(RunCorvane({"format", file}).out, "Do\n  x\nLoop\n");
  EXPECT_EQ(RunCorvane({"format", file, "--check"}).status, 1);
  EXPECT_EQ(RunCorvane({"format", file, "--check", "--write"}).status, 2);
  EXPECT_EQ(RunCorvane({"format", file, "--write"}).out, file + ": 1 line indented\n");
  EXPECT_EQ(RunCorvane({"format", file, "--check"}).status, 0);
  EXPECT_EQ(RunCorvane({"format", kProject, "--check"}).status, 1);
}

TEST(CommandLine, ViewFoldsLogicallyAndNoOtherWay) {
  const TemporaryFolder folder;
  const std::string file = folder.Path() + "/a.bas";
  WriteFile(file, "Do\nx\nLoop\n");
  EXPECT_THAT(RunCorvane({"view", file}).OutLines(), SizeIs(3));
  EXPECT_THAT(RunCorvane({"view", file, "--fold", "logical"}).OutLines(), SizeIs(2));
  EXPECT_EQ(RunCorvane({"view", file, "--fold", "all"}).status, 2);
}

TEST(CommandLine, ScriptWithAnErrorBoxEndsWithOne) {
  const TemporaryFolder folder;
  const std::string script = folder.Path() + "/a.script";
  WriteFile(script, "CODE{\n<%=nobody%>\n}\n");
  EXPECT_EQ(RunCorvane({"script", script}).status, 1);
  EXPECT_EQ(RunCorvane({"script", script + "x"}).status, 1);
  EXPECT_EQ(RunCorvane({"script", script, "--messages", "xml"}).status, 2);
}

TEST(CommandLine, ScriptTakesItsOptions) {
  const TemporaryFolder folder;
  const std::string script = folder.Path() + "/a.script";
  WriteFile(script, "CODE{\n<%=inputbox(\"Name?\",\"Ask\",\"nobody\"):=$AA:ENDIF%>\n}\n");
  WriteFile(folder.Path() + "/LibCode.txt", "{COMMON}\r\n$AA=5\r\n}\r\n");
  const Words library = {"--library", folder.Path()};
  const Ended result = RunCorvane(Words{"script", script, "--answer", "Ann", "--messages", "json"} + library);
  EXPECT_EQ(result.out, "Ann5\r\n");
  EXPECT_EQ(result.errors, "{\"box\":\"input\",\"title\":\"Ask\",\"message\":\"Name?\",\"answer\":\"Ann\"}\n");
  EXPECT_EQ(RunCorvane(Words{"script", script, "--answer", ""} + library).out, "5\r\n");
  EXPECT_EQ(RunCorvane({"script", script, "--plan"}).out,
            "=inputbox(\"Name?\",\"Ask\",\"nobody\"):\r\n=$AA:\r\nENDIF:  \r\n");
  const Ended checked = RunCorvane({"script", script, "--check"});
  EXPECT_EQ(checked.status, 1);
  EXPECT_THAT(checked.OutLines(), ElementsAre(HasSubstr("a.script:2: a single word is a label")));
}

TEST(CommandLine, ParametersOfAScriptMayBeAnyText) {
  const TemporaryFolder folder;
  const std::string script = folder.Path() + "/a.script";
  WriteFile(script, "CODE{\n<%dim aa,bb:getparams(aa,bb):=\"<\"&aa&\">\"&bb%>\n}\n");
  for (const char* parameter : {"-5", "", "[a,b]", "--plan", "a b", "\"q\"", "{x}"})
    EXPECT_EQ(RunCorvane({"script", script, "--param", parameter, "--param", "end"}).out,
              "<" + std::string(parameter) + ">end\r\n")
        << parameter;
}

TEST(CommandLine, AnAnswerThatFitsNoButtonOrALibraryThatIsMissingIsWrongUsage) {
  const TemporaryFolder folder;
  const std::string script = folder.Path() + "/a.script";
  WriteFile(script, "CODE{\n<%=1:=msgbox(\"Sure?\")%>\n}\n");
  const Ended answer = RunCorvane({"script", script, "--answer", "yes"});
  EXPECT_EQ(answer.status, 2);
  EXPECT_EQ(answer.out, "");
  EXPECT_THAT(answer.ErrorLines(),
              ElementsAre("--answer \"yes\" fits no button of the box \"Corvane\", which are ok and cancel"));
  const Ended library = RunCorvane({"script", script, "--library", folder.Path() + "/none"});
  EXPECT_EQ(library.status, 2);
  EXPECT_EQ(library.out, "");
  EXPECT_THAT(library.errors, HasSubstr("none"));
}

TEST(CommandLine, HelpNamesTheCommandsAndIsDone) {
  const Ended result = RunCorvane({"--help"});
  EXPECT_EQ(result.status, 0);
  for (const char* command : {"list", "view", "check", "inspect", "script"})
    EXPECT_THAT(result.out, HasSubstr(command));
}

TEST(CommandLine, WrongUsageIsTwo) {
  for (const Words& arguments : {Words{"list"},
                                 {"list", "--kind", "odd", "x.vbp"},
                                 {"--no-such-option"},
                                 {"--connect-mode", "7"},
                                 {"inspect"},
                                 {"inspect", "lines"},
                                 {"inspect", "lines", "x.bas", "--mode", "odd"},
                                 {"inspect", "lines", kFile, "--mode", "vb", "--role", "3"},
                                 {"check"}})
    EXPECT_EQ(RunCorvane(arguments).status, 2) << Joined(arguments);
}

TEST(CommandLine, ACodePageThatIsNotKnownIsWrongUsage) {
  for (const char* page : {"437", "0", "-1", "65001", "1252x", "cp1252", ""})
    for (const Words& command : {Words{"list", kProject},
                                 {"check", kProject},
                                 {"view", kFile},
                                 {"inspect", "lines", kFile, "--mode", "vb"},
                                 {kProject}}) {
      const Ended result = RunCorvane(command + Words{"--codepage", page});
      EXPECT_EQ(result.status, 2) << Joined(command) << page;
      EXPECT_EQ(result.out, "");
    }
  EXPECT_EQ(RunCorvane({"view", kFile, "--codepage", "1251"}).status, 0);
}

TEST(CommandLine, HelpSaysWhichCodePageIsTakenWhenItIsLeftOut) {
  for (const Words& command : {Words{"list"}, {"check"}})
    EXPECT_THAT(Simplified(RunCorvane(command + Words{"--help"}).out), HasSubstr("guessed when it is left out"));
  for (const Words& command : {Words{"view"}, {"inspect", "lines"}})
    EXPECT_THAT(Simplified(RunCorvane(command + Words{"--help"}).out), HasSubstr("1252 when it is left out"));
}

TEST(CommandLine, AnOutputThatCannotBeWrittenIsOneLineAndStatusOne) {
  if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no device that is always full";
  for (const Words& command : {Words{"list", kProject}, {"view", kFile}, {"inspect", "lines", kFile, "--mode", "vb"}}) {
    const Ended result = RunCorvane(command, "/dev/full");
    EXPECT_EQ(result.status, 1) << Joined(command);
    EXPECT_THAT(result.ErrorLines(), ElementsAre("the output cannot be written"));
  }
}

TEST(CommandLine, ListNamesTheComponents) {
  const Ended result = RunCorvane({"list", kProject});
  EXPECT_EQ(result.status, 0) << result.errors;
  EXPECT_THAT(result.OutLines(), SizeIs(22));
  EXPECT_THAT(result.out, StartsWith("mdiMain\tMDI form\t"));
}

TEST(CommandLine, ListFiltersProceduresByKindVisibilityAndText) {
  const Ended all = RunCorvane({"list", kProject, "--procedures"});
  const Ended functions = RunCorvane({"list", kProject, "--procedures", "--kind", "functions"});
  const Ended filtered = RunCorvane({"list", kProject, "--procedures", "--filter", "load"});
  EXPECT_EQ(all.status, 0);
  EXPECT_GT(all.OutLines().size(), functions.OutLines().size());
  ASSERT_GT(filtered.OutLines().size(), 0u);
  const std::regex load("load", std::regex::icase);
  for (const auto& line : filtered.OutLines()) EXPECT_TRUE(std::regex_search(line, load)) << line;
  for (const auto& line : functions.OutLines()) EXPECT_THAT(line, HasSubstr("Function"));
}

TEST(CommandLine, AProjectThatCannotBeReadIsOneLineAndStatusOne) {
  const TemporaryFolder folder;
  WriteFile(folder / "zeros.vbp", std::string(4096, '\0'));
  for (const std::string& path : {folder / "missing.vbp", folder.Path(), folder / "zeros.vbp"}) {
    const Ended result = RunCorvane({"list", path});
    EXPECT_EQ(result.status, 1) << path;
    EXPECT_THAT(result.ErrorLines(), ElementsAre(HasSubstr(path)));
    EXPECT_EQ(result.out, "");
  }
}

TEST(CommandLine, ANameBeyondTheCodePageIsShownAsItIs) {
  const TemporaryFolder folder;
  const std::string path = folder / "Склад.vbp";
  WriteFile(path, "Type=Exe\r\nModule=gone; gone.bas\r\nName=\"P\"\r\n");
  for (const char* command : {"list", "check"}) {
    const Ended result = RunCorvane({command, path});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.ErrorLines(), ElementsAre(path + ":2: gone.bas: file not found"));
  }
}

TEST(CommandLine, ViewColoursAFileAndInspectShowsItsStoredLines) {
  EXPECT_THAT(RunCorvane({"view", kFile}).out, HasSubstr("\x1b["));
  EXPECT_THAT(RunCorvane({"view", "--html", kFile}).out, HasSubstr("<html"));
  const Ended lines = RunCorvane({"inspect", "lines", kFile, "--mode", "vb", "--role", "1"});
  EXPECT_EQ(lines.status, 0);
  ASSERT_GT(lines.OutLines().size(), 10u);
  for (const auto& line : lines.OutLines()) EXPECT_THAT(line, StartsWith("{\"level\":"));
  for (const Words& arguments : {Words{"view", "/no/such.bas"}, {"inspect", "lines", "/no/such.bas", "--mode", "vb"}}) {
    const Ended missing = RunCorvane(arguments);
    EXPECT_EQ(missing.status, 1);
    EXPECT_THAT(missing.ErrorLines(), ElementsAre(StartsWith("/no/such.bas: ")));
  }
}

TEST(CommandLine, CheckFindsTheSamplesIdentical) {
  for (const char* project : {"stockroom/Stockroom.vbp", "group/Counters.vbg"}) {
    const Ended result = RunCorvane({"check", Sample(project)});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
  }
}

TEST(CommandLine, AMissingModuleIsToldAndTheRestIsListed) {
  const TemporaryFolder folder;
  WriteFile(folder / "p.vbp", "Type=Exe\r\nModule=here; here.bas\r\nModule=gone; gone.bas\r\nName=\"P\"\r\n");
  WriteFile(folder / "here.bas", "Attribute VB_Name = \"here\"\r\nSub A()\r\nEnd Sub\r\n");
  const Ended result = RunCorvane({"list", folder / "p.vbp"});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.OutLines(), ElementsAre(StartsWith("here\t")));
  EXPECT_THAT(result.ErrorLines(), ElementsAre(HasSubstr("gone.bas")));
}

TEST(CommandLine, AGroupOfWhichNoProjectOpensSaysSo) {
  const TemporaryFolder folder;
  const std::string group = folder / "g.vbg", none = group + ": no project in the group could be opened";
  const struct {
    std::string bytes;
    Words errors;
  } kCases[] = {{"VBGROUP 5.0\r\n", {none}},
                {"VBGROUP 5.0\r\nProject=gone.vbp\r\n", {group + ":2: gone.vbp: file not found", none}}};
  for (const auto& each : kCases) {
    WriteFile(group, each.bytes);
    const Ended result = RunCorvane({"list", group});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.ErrorLines(), each.errors);
    EXPECT_EQ(result.out, "");
  }
}

TEST(CommandLine, AWordThatIsNotOfferedIsRefusedWithThoseThatAre) {
  for (const std::string word : {"odd", "2", "Subs"}) {
    const Ended kind = RunCorvane({"list", "--kind", word, kProject});
    EXPECT_EQ(kind.status, 2) << word;
    EXPECT_THAT(kind.errors, StartsWith("--kind: \"" + word +
                                        "\" is none of all, subs, functions, properties, "
                                        "events\n"));
    EXPECT_EQ(kind.out, "");
  }
  const Ended visibility = RunCorvane({"list", "--visibility", "1", kProject});
  EXPECT_EQ(visibility.status, 2);
  EXPECT_THAT(visibility.errors, StartsWith("--visibility: \"1\" is none of all, public, private, static\n"));
}

TEST(CommandLine, SearchTakesItsOptionsAndEndsWithOneWhereNothingIsFound) {
  const Ended hits = RunCorvane({"search", kProject, "TOTAL", "--subs", "--whole", "--module", "clsOrder"});
  EXPECT_EQ(hits.out, "clsOrder\t97\tPublic Property Get Total() As Currency\n");
  EXPECT_EQ(hits.status, 0);
  const Ended comments = RunCorvane({"search", kProject, "articles, bins", "--comments"});
  EXPECT_THAT(comments.out, StartsWith("modMain\t"));
  const Ended properties = RunCorvane({"search", kProject, "frmorders", "--properties"});
  EXPECT_THAT(properties.out, HasSubstr("frmOrders\t\tName\tfrmOrders\n"));
  const Ended none = RunCorvane({"search", kProject, "articles, bins"});
  EXPECT_EQ(none.out, "");
  EXPECT_EQ(none.status, 1);
}

TEST(CommandLine, SearchWantsATextAndAModuleThatIsThere) {
  EXPECT_EQ(RunCorvane({"search", kProject, ""}).status, 2);
  EXPECT_EQ(RunCorvane({"search", kProject}).status, 2);
  const Ended gone = RunCorvane({"search", kProject, "total", "--module", "modGone"});
  EXPECT_THAT(gone.errors, HasSubstr("no component is named modGone"));
  EXPECT_EQ(gone.status, 1);
}

TEST(CommandLine, ListFiltersProceduresByVisibility) {
  const size_t all = RunCorvane({"list", kProject, "--procedures", "--visibility", "all"}).OutLines().size();
  EXPECT_THAT(RunCorvane({"list", kProject, "--procedures"}).OutLines(), SizeIs(all));
  const std::pair<std::string, std::string> kCases[] = {{"public", "Public "}, {"private", "Private "}};
  for (const auto& [word, shown] : kCases) {
    const Ended result = RunCorvane({"list", kProject, "--procedures", "--visibility", word});
    EXPECT_EQ(result.status, 0);
    EXPECT_GT(result.OutLines().size(), 0u);
    EXPECT_LT(result.OutLines().size(), all);
    for (const auto& line : result.OutLines()) EXPECT_NE(line.find(shown, line.rfind('\t')), std::string::npos) << line;
  }
}

TEST(CommandLine, ListWritesJsonLines) {
  const std::string text = R"("(?:[^"\\]|\\.)*")";
  const struct {
    Words options;
    std::regex line;
  } kCases[] = {{{},
                 std::regex(R"(\{"component":)" + text + R"(,"kind":)" + text +
                            R"(,"lines":\d+,"declarations":\d+,"procedures":\d+\})")},
                {{"--procedures"}, std::regex(R"(\{"component":)" + text + R"(,"line":\d+,"text":)" + text + R"(\})")}};
  for (const auto& each : kCases) {
    const Ended result = RunCorvane(Words{"list", kProject, "--json"} + each.options);
    EXPECT_EQ(result.status, 0);
    EXPECT_GT(result.OutLines().size(), 0u);
    EXPECT_THAT(RunCorvane(Words{"list", kProject} + each.options).OutLines(), SizeIs(result.OutLines().size()));
    for (const auto& line : result.OutLines()) EXPECT_TRUE(std::regex_match(line, each.line)) << line;
  }
}

TEST(CommandLine, ListOfAGroupSaysWhichProjectItLists) {
  const std::string group = Sample("group/Counters.vbg");
  const Ended result = RunCorvane({"list", group});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.out, StartsWith("frmTill\t"));
  EXPECT_THAT(result.ErrorLines(), ElementsAre(group + ": Till is listed, the active project; not listed: Report"));
  EXPECT_EQ(RunCorvane({"list", Sample("group/Till/Till.vbp")}).errors, "");
}

}  // namespace
}  // namespace corvane::cli
