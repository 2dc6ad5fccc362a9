#include "cli/check_command.h"

#include <gtest/gtest.h>
#include <map>
#include <sstream>

#include "environment/memory_files.h"

namespace corvane::cli {
namespace {

// Whoever reads a file again finds other bytes in it, where [changes] names it.
class ChangingFiles : public environment::MemoryFiles {
 public:
  std::string Read(const std::string& path) override {
    std::string bytes = MemoryFiles::Read(path);
    if (path == changes && ++reads_ > 1) bytes[3] = '?';
    return bytes;
  }
  std::string changes;

 private:
  long reads_ = 0;
};

class CheckCommand : public ::testing::Test {
 protected:
  CheckCommand() {
    files_.Put("Z:\\p\\P.vbp", "Type=Exe\r\nModule=Main; Main.bas\r\n");
    files_.Put("Z:\\p\\Main.bas", "Attribute VB_Name = \"Main\"\r\nSub Main()\r\nEnd Sub\r\n");
  }
  CheckStatus Check() { return RunCheckCommand("/p/P.vbp", 0, files_, out_, errors_); }

  ChangingFiles files_;
  std::ostringstream out_, errors_;
};

TEST_F(CheckCommand, CountsTheFilesThatItUnderstood) {
  EXPECT_EQ(Check(), 0);
  EXPECT_EQ(out_.str(), "2 files read and written, 0 with a difference, 0 things not understood\n");
  EXPECT_EQ(errors_.str(), "");
}

TEST_F(CheckCommand, AFileThatWouldBeWrittenOtherwiseIsThreeAndTold) {
  files_.changes = "Z:\\p\\Main.bas";
  EXPECT_EQ(Check(), 3);
  EXPECT_EQ(errors_.str(), "/p/Main.bas: would be written otherwise from byte 3 on\n");
  EXPECT_EQ(out_.str(), "2 files read and written, 1 with a difference, 0 things not understood\n");
}

TEST_F(CheckCommand, ADifferenceCountsForMoreThanWhatWasNotUnderstood) {
  files_.Put("Z:\\p\\P.vbp", "Type=Exe\r\nModule=Gone; Gone.bas\r\nModule=Main; Main.bas\r\n");
  EXPECT_EQ(Check(), 1);
  files_.changes = "Z:\\p\\Main.bas";
  EXPECT_EQ(Check(), 3);
}

}  // namespace
}  // namespace corvane::cli
