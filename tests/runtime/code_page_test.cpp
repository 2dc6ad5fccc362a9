#include "runtime/code_page.h"

#include <algorithm>
#include <cstdio>
#include <gtest/gtest.h>
#include <vector>

#include "runtime/code_page_tables.h"
#include "runtime/collate.h"
#include "runtime/strings.h"
#include "tests/support/golden.h"

namespace corvane::runtime {
namespace {

class CodePages : public testing::TestWithParam<int> {};

INSTANTIATE_TEST_SUITE_P(All, CodePages,
                         testing::Values(874, 932, 936, 949, 950, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257,
                                         1258));

TEST_P(CodePages, EachDefinedByteComesBackFromUtf8) {
  const CodePage page(GetParam());
  EXPECT_EQ(page.Number(), GetParam());
  for (int byte = 1; byte < 256; ++byte) {
    const std::string bytes(1, static_cast<char>(byte));
    const std::string utf8 = page.ToUtf8(bytes);
    if (page.IsLead(static_cast<unsigned char>(byte)) || Holds(utf8, "\xEF\xBF\xBD")) continue;
    std::string back;
    EXPECT_TRUE(page.FromUtf8(utf8, back)) << byte;
    if (GetParam() != 1258) {
      EXPECT_EQ(back, bytes) << byte;
    }
  }
}

TEST_P(CodePages, CaseKeepsTheLengthAndIsStable) {
  const CodePage page(GetParam());
  for (int byte = 0; byte < 256; ++byte) {
    const std::string bytes(1, static_cast<char>(byte));
    const std::string upper = page.ToUpper(bytes);
    EXPECT_EQ(upper.size(), 1u);
    EXPECT_EQ(page.ToUpper(upper), upper) << byte;
    EXPECT_EQ(page.ToUpper(page.ToLower(upper)), upper) << byte;
  }
}

// The tables come from the system, and each system must give the same: "1252 80: 20AC FFFD 201A ...", lead bytes as
// "lead".
TEST_P(CodePages, HaveTheSameCharactersOnEverySystem) {
  const CodePage page(GetParam());
  const auto characters = SingleByteCharacters(GetParam());
  std::string text;
  for (unsigned byte = 0x80; byte < 256; ++byte) {
    char cell[16];
    if (byte % 16 == 0) text += (byte > 0x80 ? "\n" : "") + std::to_string(GetParam()) + " ";
    std::snprintf(cell, sizeof cell, byte % 16 == 0 ? "%02X:" : "", byte);
    text += cell;
    std::snprintf(cell, sizeof cell, " %04X", static_cast<unsigned>(characters[byte]));
    text += page.IsLead(static_cast<unsigned char>(byte)) ? " lead" : cell;
  }
  EXPECT_TRUE(tests::MatchesGolden(text + "\n", "runtime/code_pages/" + std::to_string(GetParam()) + ".txt"));
}

TEST(CodePage, ACharacterOfTwoBytesGoesToUtf8AndBack) {
  const struct {
    int page;
    const char *bytes, *utf8;
  } kCharacters[] = {{932, "\x83\x65\x95\x5C", "\xE3\x83\x86\xE8\xA1\xA8"},
                     {936, "\xB1\xB1\xBE\xA9", "\xE5\x8C\x97\xE4\xBA\xAC"},
                     {949, "\xC7\xD1\xB1\xDB", "\xED\x95\x9C\xEA\xB8\x80"},
                     {950, "\xA4\xA4\xA4\xE5", "\xE4\xB8\xAD\xE6\x96\x87"}};
  for (const auto& each : kCharacters) {
    EXPECT_EQ(CodePage(each.page).ToUtf8(each.bytes), each.utf8) << each.page;
    EXPECT_EQ(CodePage(each.page).FromUtf8(each.utf8), each.bytes) << each.page;
  }
}

TEST(CodePage, WhatIsNoUtf8IsOneQuestionMarkEach) {
  const struct {
    const char *utf8, *bytes;
  } kBroken[] = {{"a\xC3", "a?"}, {"\xA9z", "?z"}, {"\xE2\x82z", "?z"}, {"\xC3\xA9\x80z", "\xE9?z"}, {"\xFFz", "?z"}};
  for (const auto& each : kBroken) {
    std::string bytes;
    EXPECT_FALSE(CodePage(1252).FromUtf8(each.utf8, bytes)) << each.bytes;
    EXPECT_EQ(bytes, each.bytes);
  }
}

TEST(CodePage, ALeadByteWithoutItsSecondIsNoCharacter) {
  EXPECT_EQ(CodePage(932).ToUtf8("a\x83"), "a\xEF\xBF\xBD");
}

TEST(CodePage, UpperCaseFollowsThePage) {
  EXPECT_EQ(CodePage(1252).ToUpper("a\xE4\xF7\xFF"), "A\xC4\xF7\x9F");
  EXPECT_EQ(CodePage(1251).ToUpper("\xE0\xFF\xB8"), "\xC0\xDF\xA8");
  EXPECT_EQ(CodePage(1250).ToUpper("\x9C\xB9"), "\x8C\xA5");
  EXPECT_EQ(CodePage(1253).ToUpper("\xE1\xDC"), "\xC1\xA2");
}

TEST(CodePage, ASecondByteHasNoCase) {
  EXPECT_EQ(CodePage(932).ToUpper("a\x83\x61z"), "A\x83\x61Z");
  EXPECT_TRUE(CodePage(932).IsDoubleByte());
  EXPECT_TRUE(CodePage(932).IsLead(0x83));
  EXPECT_FALSE(CodePage(932).IsLead(0xB1));
}

TEST(CodePage, WhatThePageLacksIsReplacedAndTold) {
  std::string bytes;
  EXPECT_FALSE(
      CodePage(1252).FromUtf8("a\xD0\xB4"
                              "b",
                              bytes));
  EXPECT_EQ(bytes, "a?b");
  EXPECT_EQ(CodePage(1252).ToUtf8("a\x81"
                                  "b"),
            "a\xEF\xBF\xBD"
            "b");
}

TEST(CodePage, AnUnknownNumberIsTakenAs1252) {
  EXPECT_EQ(CodePage(65001).Number(), 1252);
}

TEST(CodePage, WordBytesAreLettersDigitsAndTheUnderscore) {
  const CodePage page(1252);
  for (unsigned char byte : {'a', 'Z', '0', '_', '\xE4', '\xDF'}) EXPECT_TRUE(page.IsWordByte(byte)) << int(byte);
  for (unsigned char byte : {' ', '.', '-', '\xD7', '\xA7', '\x80'}) EXPECT_FALSE(page.IsWordByte(byte)) << int(byte);
}

TEST(CodePage, TellsTheSecondBytesOfATwoByteCharacter) {
  const std::string text = "a\x83\x5F_\x83\x83\x5C\x83";
  const bool second[] = {false, false, true, false, false, true, false, false};
  for (size_t at = 0; at < text.size(); ++at) {
    EXPECT_EQ(CodePage(932).IsSecondByte(text, at), second[at]) << at;
    EXPECT_FALSE(CodePage(1252).IsSecondByte(text, at)) << at;
  }
}

TEST(CodePage, ASearchFindsNoSecondByte) {
  const std::string text = "a\x83\x5F_\x83\x83\x5C\x83";
  std::string copy;
  const std::string_view searched = CodePage(932).ForSearch(text, copy);
  EXPECT_EQ(searched, "a\x83\x83_\x83\x83\x5C\x83");
  EXPECT_EQ(searched.find('_'), 3u);
  EXPECT_EQ(CodePage(1252).ForSearch(text, copy).data(), text.data()) << "nothing is copied";
}

TEST(CodePage, TheCharsetOfAFontNamesItsPage) {
  EXPECT_EQ(CodePageOfCharset(204), 1251);
  EXPECT_EQ(CodePageOfCharset(128), 932);
  EXPECT_EQ(CodePageOfCharset(0), 0);
}

TEST(ListOrder, IsBlankPointSymbolsDigitsLettersWithoutCase) {
  const std::vector<std::string> sorted = {" a",      "\ta",     ".a",      ":a",      "_a",     "1a",    "a", "Form1",
                                           "form1 x", "Form1.x", "FORM1:x", "Form1_x", "Form10", "Formx", "z", "\xC4"};
  for (size_t i = 0; i + 1 < sorted.size(); ++i) {
    EXPECT_LT(CompareAsListed(sorted[i], sorted[i + 1]), 0) << sorted[i] << " / " << sorted[i + 1];
    EXPECT_GT(CompareAsListed(sorted[i + 1], sorted[i]), 0);
  }
}

TEST(ListOrder, TextsThatDifferInCaseAloneAreEqual) {
  EXPECT_EQ(CompareAsListed("FORM\xE4", "form\xC4"), 0);
  EXPECT_EQ(CompareAsListed("", ""), 0);
}

TEST(ListOrder, IsAnOrderOnAllBytes) {
  std::vector<std::string> texts;
  for (int byte = 0; byte < 256; ++byte) texts.emplace_back(1, static_cast<char>(byte));
  std::stable_sort(texts.begin(), texts.end(), [](auto& a, auto& b) { return CompareAsListed(a, b) < 0; });
  for (size_t i = 0; i + 1 < texts.size(); ++i) EXPECT_LE(CompareAsListed(texts[i], texts[i + 1]), 0);
  const auto at = [&](const char* text) { return std::find(texts.begin(), texts.end(), text) - texts.begin(); };
  EXPECT_LT(at("\xF7"), at("0")) << "symbols of the page stand before digits too";
}

}  // namespace
}  // namespace corvane::runtime
