// Two programs: `corvane` starts without a toolkit, and becomes `corvane-desk` when windows or pictures are asked for.
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>

#include "tests/support/program.h"

namespace corvane::cli {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using tests::Ended;
using tests::ProgramBeside;
using tests::RunProgram;
using tests::TemporaryFolder;

const std::string kProject = std::string(CORVANE_SOURCE_DIR) + "/samples/stockroom/Stockroom.vbp";

std::string BytesOf(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

TEST(BecomeDesk, WithoutADisplayTheDeskSaysSoAndNamesTheOtherWay) {
  const Ended result = RunProgram(ProgramBeside("corvane"), {kProject});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.ErrorLines(), ElementsAre(HasSubstr("--offscreen-tour")));
}

TEST(BecomeDesk, TheOffscreenTourNeedsNoDisplay) {
  const TemporaryFolder folder;
  const Ended result = RunProgram(ProgramBeside("corvane"), {"--offscreen-tour", folder.Path(), kProject});
  EXPECT_EQ(result.status, 0) << result.errors;
  EXPECT_TRUE(std::filesystem::exists(folder / "desk.png"));
  EXPECT_TRUE(std::filesystem::exists(folder / "explorer.png"));
}

TEST(BecomeDesk, AMissingDeskIsOneLineAndStatusOne) {
  const TemporaryFolder folder;
  std::filesystem::copy_file(ProgramBeside("corvane"), folder / "corvane");
  const Ended result = RunProgram(folder / "corvane", {"--explorer"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.errors,
            "corvane: the desk cannot be opened: " + (folder / "corvane-desk") + ": No such file or directory\n");
}

TEST(BecomeDesk, TheCommandsNeedNoDesk) {
  const TemporaryFolder folder;
  std::filesystem::copy_file(ProgramBeside("corvane"), folder / "corvane");
  EXPECT_EQ(RunProgram(folder / "corvane", {"list", kProject}).status, 0);
}

TEST(BecomeDesk, TheProgramOfTheCommandsLoadsNoToolkit) {
  EXPECT_THAT(BytesOf(ProgramBeside("corvane-desk")), HasSubstr("libQt6Widgets"));
  EXPECT_THAT(BytesOf(ProgramBeside("corvane")), Not(HasSubstr("libQt6")));
}

}  // namespace
}  // namespace corvane::cli
