// Which lines of a module are hits of a search.
#include "explorer/search_module.h"

#include "tests/explorer/explorer_fixture.h"
#include "tests/support/counting_host.h"

namespace corvane::tests {
namespace {

using explorer::ModuleSearch;

class SearchOfAModule : public ExplorerTest {
 protected:
  // "line number text" of each hit.
  std::vector<std::string> Hits(const Code& lines, const ModuleSearch& search) {
    Open({Bas("modMain", lines)});
    std::vector<std::string> hits;
    CountingModule module(Component("modMain")->CodeModule());
    explorer::SearchModule(module, search, [&](long line, const std::string& text, long number) {
      hits.push_back(std::to_string(line) + " " + std::to_string(number) + " " + text);
    });
    finds = module.calls["Find"];
    reads = module.calls["Lines"];
    return hits;
  }
  long finds = 0, reads = 0;
};

TEST_F(SearchOfAModule, FindsATextInAnyCaseAndCountsItsLinesFromOne) {
  EXPECT_THAT(Hits({"Dim total", "x = 1", "TOTAL = total + 1", "End"}, {.text = "Total"}),
              ElementsAre("1 1 Dim total", "3 2 TOTAL = total + 1"));
}

TEST_F(SearchOfAModule, AsksOncePerHitAndOnceMoreAndReadsNoOtherLine) {
  Hits({"a", "hit", "b", "hit", "c", "d"}, {.text = "hit"});
  EXPECT_EQ(finds, 3);
  EXPECT_EQ(reads, 2);
}

TEST_F(SearchOfAModule, ATextOfOneCharacterIsSought) {
  EXPECT_THAT(Hits({"a = 1", "b = 2", "c = 3"}, {.text = "B"}), ElementsAre("2 1 b = 2"));
}

TEST_F(SearchOfAModule, AModuleOfOneLineIsNotSearched) {
  EXPECT_THAT(Hits({"hit"}, {.text = "hit"}), IsEmpty());
  EXPECT_EQ(finds, 0);
}

TEST_F(SearchOfAModule, AHitOnTheLastLineIsFoundFromFurtherUpAlone) {
  EXPECT_THAT(Hits({"a", "b", "hit"}, {.text = "hit"}), ElementsAre("3 1 hit"));
  EXPECT_THAT(Hits({"hit", "b", "hit"}, {.text = "hit"}), ElementsAre("1 1 hit", "3 2 hit"));
  EXPECT_THAT(Hits({"a", "hit", "hit"}, {.text = "hit"}), ElementsAre("2 1 hit"));
}

TEST_F(SearchOfAModule, CommentsAreFoundOnDemandOnly) {
  const Code lines = {"' hit", "    'hit", "Rem hit", "x = 1 ' hit", "End"};
  EXPECT_THAT(Hits(lines, {.text = "hit"}), ElementsAre("3 1 Rem hit", "4 2 x = 1 ' hit"));
  EXPECT_THAT(Hits(lines, {.text = "hit", .withComments = true}),
              ElementsAre("1 1 ' hit", "2 2     'hit", "3 3 Rem hit", "4 4 x = 1 ' hit"));
}

TEST_F(SearchOfAModule, HeadersAreLinesWithAWordThatBeginsThemOrStandsBehindABlank) {
  const Code lines = {"Public Event Pay()",
                      "Sub Pay()",
                      "End Sub",
                      "Private Function MySub (pay)",
                      "End Function",
                      "Property Get Pay()",
                      "Pay = 1",
                      "End Property",
                      "Friend Sub Pay2()",
                      "End Sub",
                      "Function Pay3()",
                      "End Function"};
  EXPECT_THAT(Hits(lines, {.text = "pay", .headersOnly = true}),
              ElementsAre("1 1 Public Event Pay()", "2 2 Sub Pay()", "6 3 Property Get Pay()", "9 4 Friend Sub Pay2()",
                          "11 5 Function Pay3()"));
}

TEST_F(SearchOfAModule, AWholeWordIsAPattern) {
  const Code lines = {"a = net", "a = nets", "a1 = 2", "b = a#", "End"};
  EXPECT_THAT(Hits(lines, {.text = "net", .wholeWord = true}), ElementsAre("1 1 a = net"));
  EXPECT_THAT(Hits(lines, {.text = "a#", .wholeWord = true}), ElementsAre("3 1 a1 = 2"));
  EXPECT_THAT(Hits(lines, {.text = "a#"}), ElementsAre("4 1 b = a#"));
}

TEST_F(SearchOfAModule, AnyTextThatBeginsWithProjectTitleFindsTheFavourites) {
  const Code lines = {"a = 1  ''", "b = 2", "c = 3 '' why", "End"};
  for (const char* text : {"Project Title", "PROJECT TITLE", "project titles of mine"})
    EXPECT_THAT(Hits(lines, {.text = text}), ElementsAre("1 1 a = 1  ''", "3 2 c = 3 '' why")) << text;
}

TEST_F(SearchOfAModule, WholeWordAndHeadersAreIgnoredForTheFavourites) {
  EXPECT_THAT(Hits({"a = 1  ''", "b = 2"}, {.text = "Project Title", .wholeWord = true, .headersOnly = true}),
              ElementsAre("1 1 a = 1  ''"));
}

TEST_F(SearchOfAModule, AMarkInATextIsNoFavourite) {
  EXPECT_THAT(Hits({"a = \"''\"", "b = \"''\" & 1 ''", "c = \"x''y\"", "End"}, {.text = "Project Title"}),
              ElementsAre("2 2 b = \"''\" & 1 ''", "3 3 c = \"x''y\""));
}

TEST_F(SearchOfAModule, ALineOfTwoApostrophesLeavesAGapInTheNumbers) {
  const Code lines = {"'' chapter", "a = 1 ''", "End"};
  EXPECT_THAT(Hits(lines, {.text = "Project Title", .withComments = true}), ElementsAre("2 2 a = 1 ''"));
  EXPECT_THAT(Hits(lines, {.text = "Project Title"}), ElementsAre("2 1 a = 1 ''"));
}

// Of two marks the first decides.
TEST(TitleLine, LooksAtTheFirstMarkOnly) {
  EXPECT_TRUE(explorer::IsTitleLine("a = 1 '' b ''"));
  EXPECT_TRUE(explorer::IsTitleLine("a = \"''\" ''"));
  EXPECT_FALSE(explorer::IsTitleLine("a = \"''\""));
  EXPECT_FALSE(explorer::IsTitleLine("  '' a ''"));
}

}  // namespace
}  // namespace corvane::tests
