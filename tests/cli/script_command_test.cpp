#include "cli/script_command.h"

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>

#include "runtime/code_page.h"
#include "tests/support/program.h"

namespace corvane::cli {
namespace {

struct Checked {
  explicit Checked(const std::string& bytes, const std::string& library = {}) {
    std::ostringstream written, told;
    ScriptOptions options;
    options.code_page = 1252;
    options.library = library;
    status = CheckScriptFile(bytes, "a.txt", options, written, told);
    out = written.str();
    errors = told.str();
  }
  int status;
  std::string out, errors;
};

TEST(CheckScriptFile, ListsOddPlacesWithTheirLines) {
  const Checked checked("CODE{\n<%\nx=A(1)\nENDIF\n%>\n}\n");
  EXPECT_EQ(checked.status, 1);
  EXPECT_EQ(
      checked.out,
      "a.txt:3: an array or function whose name has one letter cannot be read; write: a name of two letters or more\n"
      "a.txt:4: a single word is a label, and no GOTO names it: nothing happens; write: a statement with its blank "
      "(END IF) or a command with its brackets (SHOWPLAN())\n");
  EXPECT_EQ(checked.errors, "");
}

TEST(CheckScriptFile, FindsNothingInAPlainScript) {
  const Checked checked("CODE{\r\n<%x=1%>\r\n}\r\n");
  EXPECT_EQ(checked.status, 0);
  EXPECT_EQ(checked.out, "");
  EXPECT_EQ(checked.errors, "");
}

TEST(CheckScriptFile, TellsThatThereIsNoCode) {
  const Checked checked("x=A(1)\n");
  EXPECT_EQ(checked.status, 1);
  EXPECT_EQ(checked.out, "");
  EXPECT_EQ(checked.errors, "a.txt:1: there is no CODE{ block\n");
}

TEST(CheckScriptFile, ReadsWhatTheScriptIncludes) {
  const tests::TemporaryFolder folder;
  std::filesystem::create_directory(folder / "WorkShop");
  std::ofstream(folder / "WorkShop/one.txt") << "CODE{\n<%\n\nx=A(1)%>\n}\n";
  const Checked checked("FORM{\n}\nFILE:one.txt\n", folder.Path());
  EXPECT_EQ(checked.status, 1);
  EXPECT_THAT(checked.out, testing::HasSubstr("WorkShop/one.txt:4: an array or function whose name has one letter"));
  EXPECT_EQ(checked.errors, "");
}

TEST(CheckScriptFile, TellsThatAFileIsNotThere) {
  const tests::TemporaryFolder folder;
  const Checked checked("\nFILE:none.txt\nCODE{\n}\n", folder.Path());
  EXPECT_EQ(checked.status, 1);
  EXPECT_EQ(checked.errors, "a.txt:2: the file cannot be included\n");
}

TEST(CheckScriptFile, AScriptOfDialogsAloneHasNothingToCheck) {
  for (const char* script : {"FORM{ff\n}\n", "MENU{\n}\n"}) {
    const Checked checked(script);
    EXPECT_EQ(checked.status, 0) << script;
    EXPECT_EQ(checked.errors, "a.txt: there is no CODE{ block to check\n");
  }
}

}  // namespace
}  // namespace corvane::cli
