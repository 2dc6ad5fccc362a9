#include "cli/script_command.h"

#include <gtest/gtest.h>
#include <sstream>

#include "runtime/code_page.h"

namespace corvane::cli {
namespace {

struct Checked {
  explicit Checked(const std::string& bytes) {
    std::ostringstream written, told;
    status = CheckScriptFile(bytes, "a.txt", 1252, written, told);
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

}  // namespace
}  // namespace corvane::cli
