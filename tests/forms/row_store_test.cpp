#include "forms/row_store.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <vector>

#include "runtime/collate.h"
#include "tests/support/processor_time.h"

namespace corvane::forms {
namespace {

std::vector<std::string> TextsOf(const RowStore& rows) {
  std::vector<std::string> texts;
  for (long row = 0; row < rows.Count(); ++row) texts.push_back(rows.At(row).text);
  return texts;
}

// The same acts on a store and on a plain vector give the same rows.
TEST(RowStore, BehavesAsAPlainListUnderRandomActs) {
  std::mt19937 random(7);
  RowStore rows;
  std::vector<std::string> plain;
  for (int act = 0; act < 6000; ++act) {
    const long count = static_cast<long>(plain.size());
    if (count > 0 && random() % 4 == 0) {
      const long row = static_cast<long>(random() % static_cast<unsigned>(count));
      rows.Remove(row);
      plain.erase(plain.begin() + row);
    } else {
      const long row = static_cast<long>(random() % static_cast<unsigned>(count + 1));
      const std::string text = std::to_string(act);
      rows.Insert(row, Row{text});
      plain.insert(plain.begin() + row, text);
    }
    if (!plain.empty() && act % 7 == 0) {
      const long row = static_cast<long>(random() % plain.size());
      ASSERT_EQ(rows.At(row).text, plain[static_cast<size_t>(row)]);
    }
  }
  EXPECT_EQ(TextsOf(rows), plain);
}

TEST(RowStore, SortedPlaceIsBehindAllThatAreNotAbove) {
  RowStore rows;
  EXPECT_EQ(rows.SortedPlace("x"), 0);
  for (const char* text : {"a", "B", "b", "c"}) rows.Insert(rows.Count(), Row{text});
  EXPECT_EQ(rows.SortedPlace("b"), 3);
  EXPECT_EQ(rows.SortedPlace("A"), 1);
  EXPECT_EQ(rows.SortedPlace(" "), 0);
  EXPECT_EQ(rows.SortedPlace("d"), 4);
}

TEST(RowStore, FillsInOrderOverManyBlocks) {
  RowStore rows;
  std::mt19937 random(11);
  for (int row = 0; row < 4000; ++row) {
    const std::string text = "row " + std::to_string(random() % 5000);
    rows.Insert(rows.SortedPlace(text), Row{text});
  }
  const auto texts = TextsOf(rows);
  EXPECT_TRUE(std::is_sorted(texts.begin(), texts.end(), [](const std::string& left, const std::string& right) {
    return runtime::CompareAsListed(left, right) < 0;
  }));
}

TEST(RowStore, ClearEmptiesIt) {
  RowStore rows;
  for (int row = 0; row < 5000; ++row) rows.Insert(row, Row{"x"});
  rows.At(4999);
  rows.Clear();
  EXPECT_EQ(rows.Count(), 0);
  rows.Insert(0, Row{"y"});
  EXPECT_EQ(rows.At(0).text, "y");
}

// Ten times the rows take about ten times the time: a quadratic walk would take a hundred times. Processor time, and
// the best of three, so that a busy machine does not decide; at least one step of a coarse clock.
TEST(RowStore, InsertingGrowsLinearly) {
  const auto seconds_for = [](int count) {
    double best = std::numeric_limits<double>::max();
    for (int run = 0; run < 3; ++run) {
      RowStore rows;
      std::mt19937 random(3);
      best = std::min(best, tests::SecondsOf([&] {
                        for (int row = 0; row < count; ++row) {
                          const std::string text = std::to_string(random());
                          rows.Insert(rows.SortedPlace(text), Row{text});
                        }
                      }));
    }
    return best;
  };
  const double few = std::max(0.01, seconds_for(6000)), many = seconds_for(60000);
  EXPECT_LT(many, 40 * few) << few << " s and " << many << " s";
}

}  // namespace
}  // namespace corvane::forms
