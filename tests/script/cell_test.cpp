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

}  // namespace
}  // namespace corvane::script
