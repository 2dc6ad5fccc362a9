// Scripts on the command line that work on a project: a copy of the sample in a folder of its own.
#include <atomic>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <sstream>
#include <thread>

#include "cli/run_script.h"
#include "tests/support/golden.h"
#include "tests/support/program.h"

namespace corvane::cli {
namespace {

using testing::HasSubstr;
using Files = std::map<std::string, std::string>;

void Write(const std::filesystem::path& path, const std::string& bytes) {
  std::ofstream out(path, std::ios::binary);
  out << bytes;
  ASSERT_TRUE(out.flush()) << path;
}

struct ScriptOnProject : testing::Test {
  tests::TemporaryFolder folder;
  ScriptOptions options;
  int status = -1;
  std::string out, errors;
  Files before;

  void SetUp() override {
    std::filesystem::copy(std::filesystem::path(CORVANE_SOURCE_DIR) / "samples/stockroom", folder.Path());
    options.project = folder / "Stockroom.vbp";
    before = Now();
  }
  Files Now() const {
    Files files;
    for (const auto& entry : std::filesystem::directory_iterator(folder.Path()))
      files[entry.path().filename()] = tests::golden::ReadFile(entry.path()).value_or("unreadable");
    return files;
  }
  // The files that are no more what they were.
  Files Changed() const {
    Files changed;
    for (const auto& [name, bytes] : Now())
      if (const auto old = before.find(name); old == before.end() || old->second != bytes) changed[name] = bytes;
    for (const auto& [name, bytes] : before)
      if (!std::filesystem::exists(folder / name)) changed[name] = "gone";
    return changed;
  }
  std::string Replaced(const std::string& file, const std::string& from, const std::string& to) {
    std::string text = before[file];
    const size_t at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return at == std::string::npos ? text : text.replace(at, from.size(), to);
  }
  void Run(const std::string& code) {
    std::ostringstream written, told;
    status = RunScriptFile("CODE{\n<%\n" + code + "\n%>\n}\n", options, written, told);
    out = written.str();
    errors = told.str();
  }
};

constexpr char kInsert[] = "INSERTCODE(\"modCsv\",\"' top\",1)";
constexpr char kInsertDiff[] =
    "--- modCsv.bas\n+++ modCsv.bas\n@@ -1,4 +1,5 @@\n Attribute VB_Name = \"modCsv\"\r\n+' top\r\n"
    " Option Explicit\r\n Option Private Module\r\n \r\n";

TEST_F(ScriptOnProject, ReadsTheProject) {
  Run("=GETPROP(\"frmAbout.cmdOk\",\"Caption\")\n=$APPNAME");
  EXPECT_EQ(out, "OKStockroom");
  EXPECT_EQ(errors, "");
  EXPECT_EQ(status, 0);
}

TEST_F(ScriptOnProject, ShowsItsChangesAndSavesNothing) {
  Run(kInsert);
  EXPECT_EQ(errors, kInsertDiff);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(Changed(), Files());
}

TEST_F(ScriptOnProject, SavesItsChangesWhenItIsTold) {
  options.save = true;
  Run(kInsert);
  EXPECT_EQ(errors, kInsertDiff);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(Changed(), (Files{{"modCsv.bas", Replaced("modCsv.bas", "Option Explicit", "' top\r\nOption Explicit")}}));
}

TEST_F(ScriptOnProject, QuietShowsNothing) {
  options.quiet = true;
  Run(kInsert);
  EXPECT_EQ(errors, "");
  EXPECT_EQ(Changed(), Files());
  options.save = true;
  Run(kInsert);
  EXPECT_EQ(errors, "");
  EXPECT_EQ(Changed().size(), 1u);
}

TEST_F(ScriptOnProject, ChangesThatCancelEachOtherAreNone) {
  options.save = true;
  Run(std::string(kInsert) + "\nDELETECODE(\"modCsv\",1,1)");
  EXPECT_EQ(errors, "");
  EXPECT_EQ(Changed(), Files());
}

TEST_F(ScriptOnProject, BoxesComeBeforeTheChanges) {
  Run(std::string("MSGBOX(\"done\")\n") + kInsert);
  EXPECT_EQ(errors, std::string("Corvane: done\n") + kInsertDiff);
}

TEST_F(ScriptOnProject, ANewComponentGetsAFileBesideTheProject) {
  options.save = true;
  Run("CREATE(\"ClassModule\",\"clsNew\")\nINSERTCODE(\"clsNew\",\"Public Name As String\",1)");
  EXPECT_EQ(status, 0);
  EXPECT_THAT(errors, HasSubstr("--- /dev/null\n+++ clsNew.cls\n"));
  EXPECT_THAT(errors, HasSubstr("+Class=clsNew; clsNew.cls\r\n"));
  const Files changed = Changed();
  ASSERT_EQ(changed.size(), 2u);
  EXPECT_THAT(changed.at("clsNew.cls"), HasSubstr("Attribute VB_Name = \"clsNew\"\r\n"));
  EXPECT_THAT(changed.at("clsNew.cls"), HasSubstr("Public Name As String\r\n"));
  EXPECT_THAT(changed.at("Stockroom.vbp"), HasSubstr("Class=clsNew; clsNew.cls\r\n"));
}

TEST_F(ScriptOnProject, AFileOfTheNameOfANewComponentIsNotTouched) {
  Write(folder / "clsNew.cls", "somebody else's");
  before = Now();
  options.save = true;
  Run(std::string("CREATE(\"ClassModule\",\"clsNew\")\n") + kInsert);
  EXPECT_EQ(status, 1);
  EXPECT_THAT(errors, HasSubstr("clsNew.cls: File already exists\n"));
  EXPECT_EQ(Changed(), Files());
}

TEST_F(ScriptOnProject, AComponentThatIsRemovedKeepsItsFile) {
  options.save = true;
  Run("REMOVE(\"ActiveVBProject.modCsv\")");
  EXPECT_EQ(Changed(), (Files{{"Stockroom.vbp", Replaced("Stockroom.vbp", "Module=modCsv; modCsv.bas\r\n", "")}}));
}

TEST_F(ScriptOnProject, ABinaryFileIsToldToDiffer) {
  std::string picture = "BM";
  picture += std::string(30, '\0');
  Write(folder / "new.bmp", picture);
  before = Now();
  options.save = true;
  Run("=SETPICTURE(\"frmAbout.imgCrate\",$APPPATH&\"\\new.bmp\")");
  EXPECT_THAT(errors, HasSubstr("Binary files frmAbout.frx and frmAbout.frx differ\n"));
  EXPECT_THAT(errors, HasSubstr("+      Picture         =   \"frmAbout.frx\":"));
  EXPECT_EQ(Changed().size(), 2u);
}

TEST_F(ScriptOnProject, WithoutASelectedComponentMeIsMissing) {
  options.answers = {"ok"};
  Run("=COMPONENTS(Me)\n=READCODE(Me,1,1)\n=1");
  EXPECT_EQ(out, "1");
  EXPECT_EQ(status, 1);
  EXPECT_THAT(errors, HasSubstr("Weaver: Component does not exists.\r\nMe\r\n"));
}

TEST_F(ScriptOnProject, AComponentCanBeSelected) {
  options.component = "modcsv";
  Run("=COMPONENTS(Me)\n=READCODE(Me,1,1)");
  EXPECT_EQ(out, "StdModule.modCsv|Option Explicit");
  EXPECT_EQ(status, 0);
}

TEST_F(ScriptOnProject, ASelectedComponentMustBeThere) {
  options.component = "modNone";
  Run("=1");
  EXPECT_EQ(out, "");
  EXPECT_EQ(errors, options.project + ": there is no component modNone\n");
  EXPECT_EQ(status, 1);
}

TEST_F(ScriptOnProject, AProjectThatIsMissingIsTold) {
  options.project = folder / "None.vbp";
  Run("=1");
  EXPECT_EQ(out, "");
  EXPECT_EQ(errors, options.project + ": File not found\n");
  EXPECT_EQ(status, 1);
}

TEST_F(ScriptOnProject, WithoutAProjectNothingIsThereToChange) {
  options.project.clear();
  Run("=COMPONENTS()\n=$APPPATH\n=GETPROP(\"frmAbout\",\"Caption\")");
  EXPECT_EQ(out, "");
  EXPECT_EQ(errors, "Weaver: Component does not exists.\r\nfrmAbout\r\n=GETPROP(\"frmAbout\",\"Caption\"):\r\n\n");
  EXPECT_EQ(status, 1);
}

TEST_F(ScriptOnProject, WhatWasNotUnderstoodOfTheProjectIsTold) {
  std::filesystem::remove(folder / "modApi.bas");
  before = Now();
  Run("=COMPONENTS()");
  EXPECT_THAT(out, HasSubstr("modCsv"));
  EXPECT_THAT(errors, HasSubstr("modApi.bas"));
  EXPECT_EQ(status, 0);
}

TEST_F(ScriptOnProject, AFileThatSomebodyElseChangedIsNotOverwritten) {
  options.save = true;
  Run("=WRITEFILE($APPPATH&\"\\modCsv.bas\",\"other\")\n" + std::string(kInsert));
  EXPECT_EQ(status, 1);
  EXPECT_THAT(errors, HasSubstr("modCsv.bas: changed on disk since it was read\n"));
  EXPECT_EQ(Changed(), (Files{{"modCsv.bas", "other"}}));
}

TEST_F(ScriptOnProject, CtrlCSavesNothing) {
  options.save = true;
  std::signal(SIGINT, SIG_IGN);
  std::atomic<bool> ended = false;
  std::thread user([&] {
    while (!ended) {  // it is ignored until the script runs
      std::this_thread::sleep_for(std::chrono::milliseconds(100));
      std::raise(SIGINT);
    }
  });
  Run("dim nn\n" + std::string(kInsert) + "\nwhile nn=0\nwend");
  ended = true;
  user.join();
  std::signal(SIGINT, SIG_DFL);
  EXPECT_EQ(errors, std::string(kInsertDiff) + "interrupted: nothing was saved\n");
  EXPECT_EQ(status, 1);
  EXPECT_EQ(Changed(), Files());
}

TEST_F(ScriptOnProject, AProjectOfAGroupIsChanged) {
  Write(folder / "All.vbg", "VBGROUP 5.0\r\nStartupProject=Stockroom.vbp\r\n");
  options.project = folder / "All.vbg";
  Run(kInsert);
  EXPECT_EQ(errors, kInsertDiff);
}

TEST_F(ScriptOnProject, TheProgramTakesTheSameFromItsOptions) {
  Write(folder / "a.script", std::string("CODE{\n<%\n") + kInsert + "\n=COMPONENTS(Me)\n%>\n}\n");
  before = Now();
  const std::string program = tests::ProgramBeside("corvane");
  const auto shown = tests::RunProgram(
      program, {"script", folder / "a.script", "--project", options.project, "--component", "modMain"});
  EXPECT_EQ(shown.out, "StdModule.modMain|");
  EXPECT_EQ(shown.errors, kInsertDiff);
  EXPECT_EQ(Changed(), Files());
  const auto saved =
      tests::RunProgram(program, {"script", folder / "a.script", "--project", options.project, "--save", "--quiet"});
  EXPECT_EQ(saved.errors, "");
  EXPECT_EQ(saved.status, 0);
  EXPECT_EQ(Changed().size(), 1u);
  EXPECT_EQ(tests::RunProgram(program, {"script", folder / "a.script", "--save"}).status, 2);
}

}  // namespace
}  // namespace corvane::cli
