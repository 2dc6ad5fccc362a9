#include "script/cell.h"

#include <gtest/gtest.h>

namespace corvane::script {
namespace {

TEST(Cell, AFreshOneReadsAsZero) {
  EXPECT_EQ(TextOf(Cell()), "0");
}

TEST(Cell, ReadsAsText) {
  EXPECT_EQ(TextOf(std::string("a b")), "a b");
  EXPECT_EQ(TextOf(2.5), "2.5");
  EXPECT_EQ(TextOf(-1.0), "-1");
  EXPECT_EQ(TextOf(true), "True");
  EXPECT_EQ(TextOf(false), "False");
}

TEST(Cell, CopiesOfATextDoNotSeeEachOthersChanges) {
  for (size_t length : {3u, 60u, 64u, 65u, 5000u}) {
    Text first(std::string(length, 'a'));
    Text second = first;
    second.Append("bcdefgh");
    second.Append("i");
    EXPECT_EQ(first.Get(), std::string(length, 'a'));
    EXPECT_EQ(second.Get(), std::string(length, 'a') + "bcdefghi");
  }
}

TEST(Cell, CopiesOfATextGoOnEachInItsOwnWay) {
  Text first(std::string(500, 'a'));
  const Text before = first;
  first.Append("bcd");
  Text second = before;
  second.Append("efg");
  first.Append("hij");
  EXPECT_EQ(before.Get(), std::string(500, 'a'));
  EXPECT_EQ(first.Get(), std::string(500, 'a') + "bcdhij");
  EXPECT_EQ(second.Get(), std::string(500, 'a') + "efg");
  EXPECT_EQ(second.Size(), 503u);
}

}  // namespace
}  // namespace corvane::script
