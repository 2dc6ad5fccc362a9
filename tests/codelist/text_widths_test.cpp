#include "codelist/text_widths.h"

#include <gtest/gtest.h>

namespace corvane::codelist {
namespace {

class Widths : public testing::Test {
 protected:
  forms::Twips Of(const std::string& text) {
    return widths.Of(text, [this](std::string_view measured) {
      ++measurements;
      return static_cast<forms::Twips>(10 * measured.size());
    });
  }
  TextWidths widths;
  int measurements = 0;
};

TEST_F(Widths, AreMeasuredOnce) {
  EXPECT_EQ(Of("abc"), 30);
  EXPECT_EQ(Of("abc"), 30);
  EXPECT_EQ(measurements, 1);
  EXPECT_EQ(Of(""), 0);
  EXPECT_EQ(measurements, 1);
  widths.Forget();
  Of("abc");
  EXPECT_EQ(measurements, 2);
}

TEST_F(Widths, OfLongTextsAreNotKept) {
  const std::string longest(TextWidths::kLongestKept, 'x');
  Of(longest);
  EXPECT_EQ(widths.Bytes(), longest.size());
  for (int time = 0; time < 2; ++time) EXPECT_EQ(Of(longest + "y"), 10 * (longest.size() + 1));
  EXPECT_EQ(measurements, 3);
  EXPECT_EQ(widths.Bytes(), longest.size());
}

TEST_F(Widths, AreKeptUpToABoundOfBytes) {
  const std::string tail(200, 'x');
  for (int text = 0; text < 20000; ++text) {
    Of(std::to_string(text) + tail);
    ASSERT_LE(widths.Bytes(), TextWidths::kBytesKept);
  }
}

}  // namespace
}  // namespace corvane::codelist
