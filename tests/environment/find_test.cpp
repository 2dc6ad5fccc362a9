// The search of a code module: ranges, whole words, patterns; the fast search against a simple one.
#include <algorithm>
#include <gtest/gtest.h>
#include <random>

#include "environment/line_pattern.h"
#include "environment/module_find.h"
#include "environment/procedure_index.h"
#include "runtime/code_page.h"
#include "tests/environment/opened.h"
#include "tests/support/processor_time.h"

namespace corvane::environment {
namespace {

// "line:column+length" of the first hit; empty text without one.
std::string Found(const ModuleText& text, const FindRequest& request) {
  FoundPlace place;
  if (!Finder().Find(text, request, place)) return {};
  return std::to_string(place.line) + ":" + std::to_string(place.column) + "+" + std::to_string(place.length);
}

struct FindCase {
  const char* what;
  const char* lines;
  FindRequest request;
  const char* found;
};

class Finds : public testing::TestWithParam<FindCase> {};
TEST_P(Finds, AsTheEnvironmentDoes) {
  ModuleText text(Text(GetParam().lines) + "\r\n", 0);
  EXPECT_EQ(Found(text, GetParam().request), GetParam().found) << GetParam().what;
}

FindRequest Plain(const char* target, long line = 1, long column = 1, long end_line = -1, long end_column = -1) {
  return {target, line, column, end_line, end_column};
}
FindRequest Whole(const char* target) {
  return {target, 1, 1, -1, -1, true};
}
FindRequest Cased(const char* target) {
  return {target, 1, 1, -1, -1, false, true};
}
FindRequest Pattern(const char* target, bool whole = false, long line = 1, long column = 1, long end_line = -1,
                    long end_column = -1) {
  return {target, line, column, end_line, end_column, whole, false, true};
}

INSTANTIATE_TEST_SUITE_P(
    Ranges, Finds,
    testing::Values(FindCase{"from the column on", "aa|aa", Plain("a", 1, 2), "1:2+1"},
                    FindCase{"behind the end of a line the next one", "aa|aa", Plain("a", 1, 9), "2:1+1"},
                    FindCase{"up to the end line", "x|a", Plain("a", 1, 1, 1), ""},
                    FindCase{"the end column is part of the range", "xxa", Plain("a", 1, 1, 1, 3), "1:3+1"},
                    FindCase{"a hit ends within the range", "xab", Plain("ab", 1, 1, 1, 2), ""},
                    FindCase{"the end beyond the module", "x|a", Plain("a", 1, 1, 99, 99), "2:1+1"},
                    FindCase{"the start behind the module", "a", Plain("a", 2), ""},
                    FindCase{"the end before the start", "a|a", Plain("a", 2, 1, 1, 1), ""},
                    FindCase{"a hit lies within one line", "a|b", Plain("a\r\nb"), ""},
                    FindCase{"nothing finds nothing", "a", Plain(""), ""},
                    FindCase{"a pattern in a range", "ab1|ab2", Pattern("b#", false, 1, 3, 2, 3), "2:2+2"},
                    FindCase{"a pattern that ends behind the range", "ab1", Pattern("b#", false, 1, 1, 1, 2), ""},
                    FindCase{"a whole word is one of the line, not of the range", "ab1",
                             Pattern("ab", true, 1, 1, 1, 2), ""}));

INSTANTIATE_TEST_SUITE_P(
    WholeWords, Finds,
    testing::Values(FindCase{"letters, digits and _ go on a word", "cats cat1 cat_ _cat (cat)", Whole("cat"), "1:22+3"},
                    FindCase{"letters of the code page too", "\xE9t\xE9s t", Whole("t"), "1:6+1"},
                    FindCase{"with case", "Cat cat", Cased("cat"), "1:5+3"},
                    FindCase{"without case by the code page", "\xC9T\xC9", Plain("\xE9t\xE9"), "1:1+3"},
                    FindCase{"a# as a word is a1", "a# a1", Pattern("a#", true), "1:4+2"},
                    FindCase{"a hit goes on until a word ends", "abc ab", Pattern("a*b", true), "1:1+6"}));

INSTANTIATE_TEST_SUITE_P(Patterns, Finds,
                         testing::Values(FindCase{"? is one character", "ac abc", Pattern("a?c"), "1:4+3"},
                                         FindCase{"* is any text, the shortest", "a.b.b", Pattern("a*b"), "1:1+3"},
                                         FindCase{"* may be nothing", "xab", Pattern("a*b"), "1:2+2"},
                                         FindCase{"* at the end is nothing", "xab", Pattern("a*"), "1:2+1"},
                                         FindCase{"* at the start begins where the search does", "xab", Pattern("*b"),
                                                  "1:1+3"},
                                         FindCase{"# is a digit", "ax a7", Pattern("a#"), "1:4+2"},
                                         FindCase{"a list", "bat cat", Pattern("[c-e]at"), "1:5+3"},
                                         FindCase{"a list that excludes", "bat cat", Pattern("[!b]at"), "1:5+3"},
                                         FindCase{"a list without case", "CAT", Pattern("[a-d]at"), "1:1+3"},
                                         FindCase{"signs in a list are themselves", "a1 a#", Pattern("a[#]"), "1:4+2"},
                                         FindCase{"an unclosed list is itself", "a[1", Pattern("a["), "1:1+2"},
                                         FindCase{"text between stars", "one two three", Pattern("o*w*r"), "1:1+11"}));

TEST(Finding, CaseAndPatternTogetherAreAnError) {
  auto opened = Opened::Module("abc");
  long line = 1, column = 1, end_line = -1, end_column = -1;
  EXPECT_EQ(ErrorOf([&] { opened->Code()->Find("a", line, column, end_line, end_column, false, true, true); }), 5);
  line = 0;
  EXPECT_EQ(ErrorOf([&] { opened->Code()->Find("a", line, column, end_line, end_column, false, false, false); }), 9);
}

TEST(Finding, AttributeLinesAreNotFound) {
  ModuleText text("Sub A()\nAttribute A.VB_Description = \"find me\"\nEnd Sub 'find me\n", 0);
  EXPECT_EQ(Found(text, Plain("find me")), "2:10+7");
}

TEST(Finding, EditedLinesAreFound) {
  ModuleText text("one\ntwo\nthree\n", 0);
  text.Replace(2, 1, {"a needle", "needle"});
  EXPECT_EQ(Found(text, Plain("needle")), "2:3+6");
  EXPECT_EQ(Found(text, Plain("needle", 3)), "3:1+6");
  EXPECT_EQ(Found(text, Plain("three")), "4:1+5");
}

TEST(Finding, ACharacterOfTwoBytesIsNotFoundFromItsSecond) {
  runtime::SetAnsiCodePage(932);
  ModuleText text("\x83\x41 A \x83\x61\n", 0);
  EXPECT_EQ(Found(text, Plain("a")), "1:4+1");
  EXPECT_EQ(Found(text, Plain("\x83\x61")), "1:6+2");
  runtime::SetAnsiCodePage(1252);
}

std::string Random(std::mt19937& random, size_t length, std::string_view letters) {
  std::string text;
  while (text.size() < length) text += letters[random() % letters.size()];
  return text;
}

// The simple form: every place of every line in turn.
std::string SimplyFound(const ModuleText& text, const FindRequest& request) {
  const runtime::CodePage& page = runtime::AnsiCodePage();
  std::string target = request.match_case ? request.target : page.ToUpper(request.target);
  for (long number = request.start_line; number <= text.Count(); ++number) {
    std::string line(text.Line(number));
    if (!request.match_case) line = page.ToUpper(line);
    for (size_t at = number == request.start_line ? static_cast<size_t>(request.start_column) - 1 : 0;
         at + target.size() <= line.size(); ++at)
      if (line.compare(at, target.size(), target) == 0 && (!request.whole_word || IsWholeWord(line, at, target.size())))
        return std::to_string(number) + ":" + std::to_string(at + 1) + "+" + std::to_string(target.size());
  }
  return {};
}

TEST(Finding, TheFastFormEqualsTheSimpleForm) {
  std::mt19937 random(7);
  for (int round = 0; round < 4000; ++round) {
    ModuleText text(Random(random, random() % 400, "abAB_. \n\n"), 0);
    if (text.Count() > 2 && round % 3 == 0) text.Replace(2, 1, {"abab", "b.a"});
    FindRequest request{Random(random, 1 + random() % 4, "abAB_ ")};
    request.start_line = 1 + static_cast<long>(random() % 4);
    request.start_column = 1 + static_cast<long>(random() % 6);
    request.whole_word = round % 2 == 0;
    request.match_case = round % 5 == 0;
    ASSERT_EQ(Found(text, request), SimplyFound(text, request)) << "round " << round;
  }
}

struct CodePageInForce {
  explicit CodePageInForce(int number) { runtime::SetAnsiCodePage(number); }
  ~CodePageInForce() { runtime::SetAnsiCodePage(1252); }
};

TEST(Finding, TheSecondByteOfACharacterEndsNoWord) {
  CodePageInForce japanese(932);
  ModuleText text(
      "\x83\x5C"
      "abc\nabc\x83\x5C\n\x83\x5C abc\n",
      0);
  EXPECT_EQ(Found(text, Whole("abc")), "3:4+3");
  EXPECT_EQ(Found(text, Pattern("a?c", true)), "3:4+3");
}

// Character by character, without case, with the second byte of each as it is.
std::string FoundByCharacters(const std::string& line, const std::string& target, bool whole_word) {
  auto is_lead = [](char c) { return c == '\x83'; };
  auto fold = [&](const std::string& text, size_t at) {
    size_t length = is_lead(text[at]) && at + 1 < text.size() ? 2 : 1;
    return length == 2 ? text.substr(at, 2) : runtime::AnsiCodePage().ToUpper(text.substr(at, 1));
  };
  auto cut = [&](const std::string& text) {
    std::vector<std::string> characters;
    for (size_t at = 0; at < text.size(); at += characters.back().size()) characters.push_back(fold(text, at));
    return characters;
  };
  auto is_word = [](const std::string& character) { return character != "." && character != " " && character != "\\"; };
  std::vector<std::string> in = cut(line), of = cut(target);
  for (size_t first = 0, at = 0; first + of.size() <= in.size(); at += in[first++].size()) {
    bool fits = std::equal(of.begin(), of.end(), in.begin() + static_cast<long>(first));
    bool whole =
        (first == 0 || !is_word(in[first - 1])) && (first + of.size() == in.size() || !is_word(in[first + of.size()]));
    if (fits && (whole || !whole_word)) return "1:" + std::to_string(at + 1) + "+" + std::to_string(target.size());
  }
  return {};
}

TEST(Finding, CharactersOfTwoBytesAreWhole) {
  CodePageInForce japanese(932);
  std::mt19937 random(13);
  auto characters = [&](size_t count) {
    std::string text;
    for (; count > 0; --count)
      text += (const char*[]){"a", "A", "\\", ".", " ", "\x83\x5C", "\x83\x41", "\x83\x61"}[random() % 8];
    return text;
  };
  for (int round = 0; round < 4000; ++round) {
    std::string line = characters(random() % 90), target = characters(1 + random() % 3);
    FindRequest request{target};
    request.whole_word = round % 2 == 0;
    ASSERT_EQ(Found(ModuleText(line + "\n", 0), request), FoundByCharacters(line, target, request.whole_word))
        << "round " << round;
  }
}

// A line as no editor shows it, but as files may hold it: [unit] again and again up to a megabyte, then [end].
std::string LongLine(std::string_view unit, std::string_view end) {
  std::string line;
  while (line.size() < 1000000) line += unit;
  return (line += end) += '\n';
}

class LongLines : public testing::TestWithParam<int> {};
TEST_P(LongLines, AreSearchedOnce) {
  CodePageInForce page(GetParam());
  ModuleText text(LongLine("abx", " ab.ac"), 0);
  ModuleText wide(LongLine("\x83\x5C"
                           "ab",
                           " ab.ac"),
                  0);
  EXPECT_LT(tests::SecondsOf([&] {
              EXPECT_EQ(Found(text, Plain("ac")), "1:1000007+2");
              EXPECT_EQ(Found(text, Whole("ab")), "1:1000004+2");
              EXPECT_EQ(Found(text, Pattern("a[bc]", true)), "1:1000004+2");
              EXPECT_EQ(Found(text, Pattern("a?x*zz", true)), "");
              EXPECT_EQ(Found(text, Pattern("ac")), "1:1000007+2");
              EXPECT_EQ(Found(wide, Plain("ac")), "1:1000005+2");
              EXPECT_EQ(Found(wide, Plain("\\ab")), GetParam() == 932 ? "" : "1:2+3");
            }),
            10);
}
INSTANTIATE_TEST_SUITE_P(OneAndTwoBytes, LongLines, testing::Values(1252, 932));

TEST(LongLine, IsOneLineOfItsProcedure) {
  for (const char* unit : {"x = 1: ", ": \"End Sub ", "Rem : End Sub:", "a:End Subs", "' ", "10 "}) {
    std::string bytes = "Sub A()\n  y\n" + LongLine(unit, "z") + "End Sub\nSub B()\nEnd Sub\n";
    EXPECT_LT(tests::SecondsOf([&] {
                ModuleText text(bytes, 0);
                ProcedureIndex index(text);
                ASSERT_EQ(index.Procedures().size(), 2u) << unit;
                EXPECT_EQ(index.At(4)->body, 1u) << unit;
                EXPECT_EQ(index.At(5)->body, 5u) << unit;
              }),
              10);
  }
}

// A page of two bytes, a character of it whose second byte is "[" or "]" where it has one, and the next two by code.
struct DoubleBytePage {
  int page;
  const char *first, *second, *third;
};

class PatternsOfTwoBytes : public testing::TestWithParam<DoubleBytePage> {
 protected:
  PatternsOfTwoBytes() : in_force_(GetParam().page) {}
  // "1", "2", "3" stand for the three characters.
  std::string Spelt(std::string_view text) const {
    std::string spelt;
    for (char c : text)
      if (c >= '1' && c <= '3')
        spelt += c == '1' ? GetParam().first : c == '2' ? GetParam().second : GetParam().third;
      else
        spelt += c;
    return spelt;
  }
  std::string FoundIn(std::string_view line, std::string_view pattern, bool whole = false) const {
    return Found(ModuleText(Spelt(line) + "\r\n", 0), Pattern(Spelt(pattern).c_str(), whole));
  }

 private:
  CodePageInForce in_force_;
};

TEST_P(PatternsOfTwoBytes, EachPlaceTakesOneCharacter) {
  EXPECT_EQ(FoundIn("a1c", "a?c"), "1:1+4");
  EXPECT_EQ(FoundIn("a11c a2c", "a?c"), "1:8+4");
  EXPECT_EQ(FoundIn("ac abc", "a?c"), "1:4+3");
  EXPECT_EQ(FoundIn("1", "??"), "");
  EXPECT_EQ(FoundIn("12", "??"), "1:1+4");
  EXPECT_EQ(FoundIn("1a", "?a"), "1:1+3");
}

TEST_P(PatternsOfTwoBytes, AListHasCharacters) {
  EXPECT_EQ(FoundIn("a b 2", "[12]"), "1:5+2");
  EXPECT_EQ(FoundIn("1 2", "[2]"), "1:4+2");
  EXPECT_EQ(FoundIn("1 2", "[2-3]"), "1:4+2");
  EXPECT_EQ(FoundIn("x2y", "x[1-3]y"), "1:1+4");
  EXPECT_EQ(FoundIn("x2y", "x[a-3]y"), "1:1+4");
  EXPECT_EQ(FoundIn("x1y xby", "x[a-z]y"), "1:6+3");
  EXPECT_EQ(FoundIn("x1y x3y", "x[!1-2]y"), "1:6+4");
  EXPECT_EQ(FoundIn("x1y", "x[!a]y"), "1:1+4");
  EXPECT_EQ(FoundIn("x1y xAy", "x[!1-3]y"), "1:6+3");
}

TEST_P(PatternsOfTwoBytes, ASecondByteIsNoSign) {
  EXPECT_EQ(FoundIn("x1", "x1"), "1:1+3");
  EXPECT_EQ(FoundIn("x1 a", "1 [a]"), "1:2+4");
  EXPECT_EQ(FoundIn("1a 2", "1*2"), "1:1+6");
  EXPECT_EQ(FoundIn("12", "*2"), "1:1+4");
}

TEST_P(PatternsOfTwoBytes, AWordEndsAtTheCharacterBehindIt) {
  EXPECT_EQ(FoundIn("a1b a1", "a?", true), "1:6+3");
  EXPECT_EQ(FoundIn("1ab ab", "a?", true), "1:6+2");
}

INSTANTIATE_TEST_SUITE_P(Pages, PatternsOfTwoBytes,
                         testing::Values(DoubleBytePage{932, "\x83\x5B", "\x83\x5C", "\x83\x5D"},
                                         DoubleBytePage{936, "\x81\x5B", "\x81\x5C", "\x81\x5D"},
                                         DoubleBytePage{949, "\xB0\xA1", "\xB0\xA2", "\xB0\xA3"},
                                         DoubleBytePage{950, "\xA4\x5B", "\xA4\x5C", "\xA4\x5D"}),
                         [](const auto& info) { return std::to_string(info.param.page); });

size_t CharacterLength(std::string_view text) {
  return text.size() > 1 && runtime::AnsiCodePage().IsLead(static_cast<unsigned char>(text[0])) ? 2 : 1;
}

// Whether [pattern], of letters, ? and *, fits all of [text].
bool Fits(std::string_view pattern, std::string_view text) {
  if (pattern.empty()) return text.empty();
  if (pattern[0] == '*')
    return Fits(pattern.substr(1), text) || (!text.empty() && Fits(pattern, text.substr(CharacterLength(text))));
  if (text.empty()) return false;
  size_t length = CharacterLength(text), wanted = CharacterLength(pattern);
  return (pattern[0] == '?' || pattern.substr(0, wanted) == text.substr(0, length)) &&
         Fits(pattern.substr(wanted), text.substr(length));
}

class ShortestHit : public testing::TestWithParam<int> {};
TEST_P(ShortestHit, IsTheFirstOfThePattern) {
  CodePageInForce page(GetParam());
  std::mt19937 random(11);
  auto letters = [&](size_t count, std::vector<const char*> of) {
    std::string text;
    for (; count > 0; --count) text += of[random() % of.size()];
    return text;
  };
  for (int round = 0; round < 4000; ++round) {
    std::string line = letters(random() % 12, {"a", "b", ".", " ", "\x83\x5C", "\x83\x61"});
    std::string pattern = letters(1 + random() % 5, {"a", "b", "?", "*", ".", "\x83\x61"});
    bool whole = round % 2 == 0;
    LinePattern::Hit expected;
    auto inside = [&](size_t at) { return runtime::AnsiCodePage().IsSecondByte(line, at); };
    for (size_t at = 0; at <= line.size() && !expected.found; ++at)
      for (size_t length = 0; at + length <= line.size() && !expected.found; ++length)
        if (!inside(at) && !inside(at + length) && Fits(pattern, std::string_view(line).substr(at, length)) &&
            (!whole || IsWholeWord(line, at, length)))
          expected = {at, length, true};
    LinePattern::Hit hit = LinePattern(pattern, true).Find(line, 0, whole);
    ASSERT_EQ(hit.found, expected.found) << pattern << " in " << line;
    ASSERT_EQ(hit.at, expected.at) << pattern << " in " << line;
    ASSERT_EQ(hit.length, expected.length) << pattern << " in " << line;
  }
}
INSTANTIATE_TEST_SUITE_P(OneAndTwoBytes, ShortestHit, testing::Values(1252, 932));

}  // namespace
}  // namespace corvane::environment
