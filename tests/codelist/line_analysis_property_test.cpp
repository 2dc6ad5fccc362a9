// What holds for every line: the fast form equals the simple one, cleaned text is the line with canonical keywords, and
// analysing a text whole equals analysing it line by line.
#include <gtest/gtest.h>
#include <random>

#include "codelist/markup.h"
#include "simple_analysis.h"

namespace corvane::codelist {
namespace {

class Lines {
 public:
  Lines(Language language, unsigned seed) : random_(seed) {
    for (const KeywordRow& row : language == Language::Sql ? SqlKeywords() : VbKeywords())
      pieces_.emplace_back(row.match);
    for (const char* piece :
         {" ", " ",   " ",    "  ",   "\t",   ":",    "#", "'", "\"", "\"\"", "(",   ")",      "=",    "+",     "\\",
          ",", "--",  "/*",   "*/",   "*",    "/",    "-", "a", "x1", "_",    "[",   "\xE4",   "\xFF", "Open ", "100",
          ".", "Me.", "/+\\", "/-\\", "\x02", "\x06", "<", "%", "1 ", "Case", "End", "Begin ", "Then", "If"})
      pieces_.emplace_back(piece);
  }

  std::string Next() {
    std::string line;
    for (size_t count = random_() % 12; count > 0; --count) line += Varied(pieces_[random_() % pieces_.size()]);
    return line;
  }

 private:
  // In another case, and sometimes cut short.
  std::string Varied(std::string piece) {
    switch (random_() % 5) {
      case 0:
        return runtime::LCase(piece);
      case 1:
        return runtime::Left(piece, 1) + runtime::LCase(runtime::Mid(piece, 2));
      case 2:
        return piece.substr(0, 1 + random_() % piece.size());
      default:
        return piece;
    }
  }

  std::mt19937 random_;
  std::vector<std::string> pieces_;
};

class EveryLine : public testing::TestWithParam<Language> {};

INSTANTIATE_TEST_SUITE_P(Languages, EveryLine, testing::Values(Language::Vb, Language::Sql),
                         [](const auto& info) { return info.param == Language::Vb ? "Vb" : "Sql"; });

TEST_P(EveryLine, IsAnalysedInTheFastFormAsInTheSimpleOne) {
  for (unsigned seed = 0; seed < 40; ++seed) {
    Lines lines(GetParam(), seed);
    AnalysisState fast, simple;
    LineBuffer buffer;
    for (int count = 0; count < 1000; ++count) {
      const std::string line = lines.Next();
      fast.endOfProc = simple.endOfProc = false;
      const std::string expected = SimpleAnalysis(GetParam(), simple, line).Run();
      ASSERT_EQ(AnalyseLine(GetParam(), fast, line, buffer), expected) << "[" << line << "] seed " << seed;
      ASSERT_EQ(fast.inBlockComment, simple.inBlockComment) << line;
      ASSERT_EQ(fast.sqlInCase, simple.sqlInCase) << line;
      ASSERT_EQ(fast.endOfProc, simple.endOfProc) << line;
    }
  }
}

TEST_P(EveryLine, HasOneLevelForEachMarkOfItsText) {
  Lines lines(GetParam(), 7);
  AnalysisState state;
  LineBuffer buffer;
  for (int count = 0; count < 5000; ++count) {
    const std::string marked(AnalyseLine(GetParam(), state, lines.Next(), buffer));
    long level = 0;
    for (size_t at = 0; at + 3 <= marked.size(); ++at) {
      if (marked.compare(at, 3, "/+\\") == 0) ++level;
      if (marked.compare(at, 3, "/-\\") == 0) --level;
    }
    ASSERT_EQ(SumOfMarks(marked), level) << marked;
  }
}

// Without marks of its own, tabs and the odd blanks of some words, a line differs from its cleaned text in case alone.
TEST_P(EveryLine, CleanedIsTheLineWithItsKeywordsInCanonicalSpelling) {
  const char* words[] = {"If ",          "then",  " ",     "end if",  "next ",   "\"end if\"",
                         "Select Case ", "x = 1", "else ", "from ",   "select ", "case ",
                         "where a ",     "(",     ")",     "End",     " ",       ",",
                         "begin ",       "do ",   "loop ", "exit for"};
  std::mt19937 random(11);
  LineBuffer buffer;
  for (int count = 0; count < 5000; ++count) {
    AnalysisState state;
    std::string line;
    for (int piece = 0; piece < 6; ++piece) line += words[random() % std::size(words)];
    if (GetParam() == Language::Sql && runtime::Holds(runtime::UCase(line), "END,")) continue;
    std::string clean = CleanText(AnalyseLine(GetParam(), state, line, buffer));
    EXPECT_EQ(runtime::RTrim(runtime::UCase(clean)), runtime::RTrim(runtime::UCase(line)));
    AnalysisState again;
    EXPECT_EQ(CleanText(AnalyseLine(GetParam(), again, clean, buffer)), clean) << "a second analysis changes nothing";
  }
}

TEST_P(EveryLine, OfAMegabyteIsAnalysedLikeAShortOne) {
  std::string line;
  while (line.size() < 1'000'000) line += "If a Then b: x = \"End If\" + (1) : ";
  AnalysisState fast, simple;
  LineBuffer buffer;
  EXPECT_EQ(AnalyseLine(GetParam(), fast, line, buffer), SimpleAnalysis(GetParam(), simple, line).Run());
}

TEST(EveryLoop, OfAMegabyteOnOneLineIsAnalysedLikeAShortOne) {
  for (const auto& [front, size] : {std::pair{"", 1'000'000u}, {"Open f : ", 1'000u}, {"For Open : ", 1'000u}}) {
    std::string line = front;
    while (line.size() < size) line += "x: For ";
    AnalysisState fast, simple;
    LineBuffer buffer;
    EXPECT_EQ(AnalyseLine(Language::Vb, fast, line, buffer), SimpleAnalysis(Language::Vb, simple, line).Run());
  }
}

}  // namespace
}  // namespace corvane::codelist
