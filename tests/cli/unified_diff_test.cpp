#include "cli/unified_diff.h"

#include <gtest/gtest.h>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace corvane::cli {
namespace {

std::string Diff(const std::string& before, const std::string& after) {
  return UnifiedDiff("a.bas", "b.bas", before, after);
}
// Without the two lines of names.
std::string Body(const std::string& before, const std::string& after) {
  const std::string diff = Diff(before, after);
  const size_t names = diff.find("@@");
  return names == std::string::npos ? diff : diff.substr(names);
}

TEST(UnifiedDiff, EqualTextsHaveNone) {
  EXPECT_EQ(Diff("a\nb\n", "a\nb\n"), "");
  EXPECT_EQ(Diff("", ""), "");
}

struct Case {
  const char *name, *before, *after, *body;
};
class Cases : public testing::TestWithParam<Case> {};

TEST_P(Cases, AreToldInOneStretch) {
  EXPECT_EQ(Body(GetParam().before, GetParam().after), GetParam().body);
}

INSTANTIATE_TEST_SUITE_P(
    UnifiedDiff, Cases,
    testing::Values(
        Case{"ALineReplaced", "1\n2\n3\n", "1\nx\n3\n", "@@ -1,3 +1,3 @@\n 1\n-2\n+x\n 3\n"},
        Case{"ALineInserted", "1\n2\n", "1\nx\n2\n", "@@ -1,2 +1,3 @@\n 1\n+x\n 2\n"},
        Case{"ALineDeleted", "1\n2\n3\n", "1\n3\n", "@@ -1,3 +1,2 @@\n 1\n-2\n 3\n"},
        Case{"ANewFile", "", "1\n2\n", "@@ -0,0 +1,2 @@\n+1\n+2\n"},
        Case{"AnEmptiedFile", "1\n", "", "@@ -1 +0,0 @@\n-1\n"},
        Case{"ThreeLinesAround", "1\n2\n3\n4\n5\n6\n7\n8\n9\n", "1\n2\n3\n4\nx\n6\n7\n8\n9\n",
             "@@ -2,7 +2,7 @@\n 2\n 3\n 4\n-5\n+x\n 6\n 7\n 8\n"},
        Case{"ACarriageReturnIsPartOfItsLine", "1\r\n2\r\n", "1\r\n2\n", "@@ -1,2 +1,2 @@\n 1\r\n-2\r\n+2\n"},
        Case{"NoEndOfTheLastLine", "1\n2", "1\n2\n", "@@ -1,2 +1,2 @@\n 1\n-2\n\\ No newline at end of file\n+2\n"},
        Case{"BothWithoutAnEnd", "1\n2", "x\n2", "@@ -1,2 +1,2 @@\n-1\n+x\n 2\n\\ No newline at end of file\n"}),
    [](const auto& info) { return info.param.name; });

TEST(UnifiedDiff, NamesBothFiles) {
  EXPECT_EQ(Diff("1\n", "2\n"), "--- a.bas\n+++ b.bas\n@@ -1 +1 @@\n-1\n+2\n");
}

TEST(UnifiedDiff, ChangesFarApartAreStretchesOfTheirOwn) {
  std::string before, after;
  for (int line = 1; line <= 20; ++line) {
    before += std::to_string(line) + "\n";
    after += (line == 3 || line == 17 ? "x" : std::to_string(line)) + "\n";
  }
  EXPECT_EQ(Body(before, after),
            "@@ -1,6 +1,6 @@\n 1\n 2\n-3\n+x\n 4\n 5\n 6\n@@ -14,7 +14,7 @@\n 14\n 15\n 16\n-17\n+x\n 18\n 19\n 20\n");
}

TEST(UnifiedDiff, ChangesCloseByShareAStretch) {
  EXPECT_EQ(Body("a\n1\n2\n3\n4\n5\n6\nb\n", "x\n1\n2\n3\n4\n5\n6\ny\n"),
            "@@ -1,8 +1,8 @@\n-a\n+x\n 1\n 2\n 3\n 4\n 5\n 6\n-b\n+y\n");
}

TEST(UnifiedDiff, BinaryFilesAreToldToDiffer) {
  EXPECT_EQ(UnifiedDiff("a.frx", "a.frx", std::string("a\0b", 3), "ab"), "Binary files a.frx and a.frx differ\n");
}

// What the tools that apply differences make of one.
std::string Applied(const std::string& before, const std::string& diff) {
  std::vector<std::string> lines;
  std::istringstream in(before);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  std::istringstream differences(diff);
  std::string after, line;
  size_t at = 0;
  std::getline(differences, line);
  std::getline(differences, line);
  const auto take = [&] { after += lines.at(at++) + "\n"; };
  while (std::getline(differences, line)) {
    if (line[0] == '@') {
      const size_t from = std::stoul(line.substr(4)), comma = line.find_first_of(", ", 4);
      const bool none = line.compare(comma, 3, ",0 ") == 0;
      while (at + (none ? 0 : 1) < from) take();
    } else if (line[0] == '+') {
      after += line.substr(1) + "\n";
    } else {
      EXPECT_EQ(lines.at(at), line.substr(1));
      line[0] == ' ' ? take() : void(++at);
    }
  }
  while (at < lines.size()) take();
  return after;
}

TEST(UnifiedDiff, AppliedToTheOldTextItGivesTheNewOne) {
  std::mt19937 random(7);
  for (int run = 0; run < 500; ++run) {
    const int kinds = 1 + static_cast<int>(random() % 6);
    std::string texts[2];
    for (std::string& text : texts)
      for (auto count = random() % 30; count > 0; --count) text += std::to_string(random() % kinds) + "\n";
    if (texts[0] == texts[1]) continue;
    EXPECT_EQ(Applied(texts[0], Diff(texts[0], texts[1])), texts[1]) << texts[0];
  }
}

TEST(UnifiedDiff, TheShortestWayIsFound) {
  const std::string diff = Body("a\nb\nc\na\nb\nb\na\n", "c\nb\na\nb\na\nc\n");
  long steps = 0;
  for (size_t at = 0; at < diff.size(); at = diff.find('\n', at) + 1) steps += diff[at] == '+' || diff[at] == '-';
  EXPECT_EQ(steps, 5);
}

TEST(UnifiedDiff, LongTextsThatHaveNothingInCommonAreReplacedAsAWhole) {
  std::string before, after;
  for (int line = 0; line < 20000; ++line) {
    before += "a" + std::to_string(line) + "\n";
    after += "b" + std::to_string(line) + "\n";
  }
  const std::string diff = Diff(before + "end\n", after + "end\n");
  EXPECT_EQ(Applied(before + "end\n", diff), after + "end\n");
}

}  // namespace
}  // namespace corvane::cli
