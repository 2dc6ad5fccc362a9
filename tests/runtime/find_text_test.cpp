#include "runtime/find_text.h"

#include <gtest/gtest.h>
#include <random>
#include <string>

#include "runtime/strings.h"
#include "tests/support/processor_time.h"

namespace corvane::runtime {
namespace {

using tests::SecondsOf;

std::string Times(const std::string& text, size_t count) {
  std::string all;
  for (size_t i = 0; i < count; ++i) all += text;
  return all;
}

// A text of [size] characters in which long pieces come back.
std::string Repeating(std::mt19937& numbers, size_t size, char letters) {
  std::string text;
  while (text.size() < size) {
    if (text.size() > 4 && numbers() % 3 == 0) {
      const size_t from = numbers() % text.size(), piece = 1 + numbers() % 40;
      text += Times(text.substr(from, piece), 1 + numbers() % 3);
    } else {
      text += static_cast<char>('a' + static_cast<char>(numbers() % static_cast<unsigned>(letters)));
    }
  }
  text.resize(size);
  return text;
}

// A piece of [text], half the times with a character changed.
std::string PieceOf(std::mt19937& numbers, const std::string& text) {
  const size_t from = numbers() % text.size();
  std::string piece = text.substr(from, 30 + numbers() % 60);
  if (numbers() % 2 == 0) piece[numbers() % piece.size()] = 'a';
  return piece;
}

TEST(FindText, FindsWhatTheStandardSearchFinds) {
  std::mt19937 numbers(4);
  int found = 0, missed = 0;
  for (int round = 0; round < 20'000; ++round) {
    const std::string text = Repeating(numbers, 60 + numbers() % 300, static_cast<char>(2 + numbers() % 3));
    const std::string word = PieceOf(numbers, text);
    const size_t from = numbers() % (text.size() + 2);
    ASSERT_EQ(FindFirst(text, word), text.find(word)) << text << "\n" << word;
    ASSERT_EQ(FindFirst(text, word, from), text.find(word, from)) << text << "\n" << word << "\n" << from;
    ASSERT_EQ(FindLast(text, word), text.rfind(word)) << text << "\n" << word;
    if (word.size() > 32) ++(text.find(word) == std::string::npos ? missed : found);
  }
  EXPECT_GT(found, 5'000);
  EXPECT_GT(missed, 3'000);
}

TEST(FindText, AWordLongerThanTheTextOrAsLong) {
  const std::string word = Times("ab", 40);
  EXPECT_EQ(FindFirst(word, word), 0u);
  EXPECT_EQ(FindLast(word, word), 0u);
  EXPECT_EQ(FindFirst(word, word + "a"), std::string::npos);
  EXPECT_EQ(FindLast(word, word + "a"), std::string::npos);
  EXPECT_EQ(FindFirst(word, word, 1), std::string::npos);
  EXPECT_EQ(FindFirst("", word), std::string::npos);
  EXPECT_EQ(FindFirst("abc", "", 3), 3u);
  EXPECT_EQ(FindLast("abc", ""), 3u);
}

struct Worst {
  const char* name;
  std::string text, word;
};

class FindWorst : public testing::TestWithParam<Worst> {};

// What compares the word at each place takes minutes for these.
TEST_P(FindWorst, TakesTimeThatGrowsWithTheLengths) {
  const auto& [name, text, word] = GetParam();
  const std::string turned_text(text.rbegin(), text.rend()), turned_word(word.rbegin(), word.rend());
  EXPECT_LT(SecondsOf([&] { EXPECT_EQ(InStr(text, word), 0); }), 0.5);
  EXPECT_LT(SecondsOf([&] { EXPECT_EQ(InStrRev(turned_text, turned_word), 0); }), 0.5);
  EXPECT_LT(SecondsOf([&] { EXPECT_EQ(Replace(text, word, "x"), text); }), 0.5);
}

INSTANTIATE_TEST_SUITE_P(
    , FindWorst,
    testing::Values(Worst{"Blanks", std::string(2'000'000, ' '), std::string(1'000'000, ' ') + "x"},
                    Worst{"Pairs", Times("ab", 1'000'000), Times("ab", 500'000) + "x"},
                    Worst{"OtherFront", std::string(2'000'000, 'a'), "b" + std::string(1'000'000, 'a')},
                    Worst{"OtherMiddle", std::string(2'000'000, 'a'),
                          std::string(500'000, 'a') + "b" + std::string(500'000, 'a')}),
    [](const auto& info) { return info.param.name; });

TEST(FindText, ReplacesManyLongWords) {
  const std::string word = Times("ab", 500);
  std::string replaced;
  EXPECT_LT(SecondsOf([&] { replaced = Replace(Times(word, 2'000), word, "x"); }), 0.5);
  EXPECT_EQ(replaced, std::string(2'000, 'x'));
}

}  // namespace
}  // namespace corvane::runtime
