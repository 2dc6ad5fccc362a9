#include "script/sort_lines.h"

#include <gtest/gtest.h>

#include "tests/script/fake_outside.h"

namespace corvane::script {
namespace {

TEST(SortLines, SortsByLineKeyAndOrder) {
  const struct {
    const char* text;
    const char* key;
    const char* order;
    const char* sorted;
  } cases[] = {
      {"b\r\na\r\n", "", "", "a\r\nb\r\n"},
      {"b\r\na", "", "DESCENDING", "b\r\na\r\n"},
      {"b\r\na", "", "des", "b\r\na\r\n"},
      {"b\r\na", "", "up", "a\r\nb\r\n"},
      {"B\r\na\r\nc", "", "", "a\r\nB\r\nc\r\n"},
      {"n=10 x\r\nn=9,y\r\n", "N=", "", "n=9,y\r\nn=10 x\r\n"},
      {"xn=1\r\na n=0\r\n", "n=", "", "a n=0\r\nxn=1\r\n"},
      {"xn=1,n=3\r\nn=2 n=9\r\n", "n=", "", "n=2 n=9\r\nxn=1,n=3\r\n"},
      {"a\r\n\r\nb", "", "", "\r\na\r\nb\r\n"},
      {"", "", "", ""},
  };
  FakeWorkshop workshop;
  for (const auto& c : cases) EXPECT_EQ(SortLines(workshop, c.text, c.key, c.order), c.sorted) << c.text;
}

TEST(SortLines, ALineWithoutTheKeySortsByItself) {
  FakeWorkshop workshop;
  EXPECT_EQ(SortLines(workshop, "zz\r\nk=m\r\naa", "k=", ""), "aa\r\nk=m\r\nzz\r\n");
}

}  // namespace
}  // namespace corvane::script
