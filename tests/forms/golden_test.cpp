#include "tests/support/golden.h"

#include <gtest/gtest.h>
#include <unistd.h>

namespace corvane::tests {
namespace {

struct Goldens : testing::Test {
  std::filesystem::path folder =
      std::filesystem::temp_directory_path() / ("corvane-goldens-" + std::to_string(getpid()));
  std::filesystem::path path = folder / "window.layout";
  Goldens() { std::filesystem::create_directories(folder); }
  ~Goldens() override { std::filesystem::remove_all(folder); }
  void Write(const std::string& text) { std::ofstream(path, std::ios::binary) << text; }
  std::string New() { return golden::ReadFile(path.string() + ".new").value_or("none"); }
};

TEST_F(Goldens, AnEqualTextPassesAndTakesAStaleNewAway) {
  Write("a\nb\n");
  EXPECT_FALSE(MatchesGoldenAt(path, "a\n"));
  EXPECT_TRUE(MatchesGoldenAt(path, "a\nb\n"));
  EXPECT_EQ(New(), "none");
}

TEST_F(Goldens, ADifferenceIsNamedAndWrittenBeside) {
  Write("a\nb\nc\n");
  const testing::AssertionResult result = MatchesGoldenAt(path, "a\nx\nc\n");
  EXPECT_FALSE(result);
  EXPECT_NE(std::string(result.message()).find("line 2: expected <b>, is <x>"), std::string::npos) << result.message();
  EXPECT_EQ(New(), "a\nx\nc\n");
}

TEST_F(Goldens, AMissingGoldenFails) {
  EXPECT_FALSE(MatchesGoldenAt(path, "a\n"));
  EXPECT_EQ(New(), "a\n");
}

TEST_F(Goldens, AMissingEndIsADifference) {
  Write("a\nb\n");
  const testing::AssertionResult result = MatchesGoldenAt(path, "a\nb");
  EXPECT_FALSE(result);
  EXPECT_NE(std::string(result.message()).find("line 2"), std::string::npos) << result.message();
}

}  // namespace
}  // namespace corvane::tests
