#include "script/for_statement.h"

#include <gtest/gtest.h>

namespace corvane::script {
namespace {

TEST(ForStatement, HasFourParts) {
  const auto parts = ReadFor("FOR i=1 TO 10 STEP 2:");
  ASSERT_TRUE(parts);
  EXPECT_EQ(parts->init, "i=1");
  EXPECT_EQ(parts->variable, "i");
  EXPECT_EQ(parts->limit, "10");
  EXPECT_EQ(parts->step, "2");
}

TEST(ForStatement, CountsByOneWithoutAStep) {
  EXPECT_EQ(ReadFor("FOR i=1 TO 10:").value().step, "1");
}

TEST(ForStatement, AStepWithoutAValueIsEmpty) {
  EXPECT_EQ(ReadFor("FOR i=1 TO 10 STEP:").value().step, "");
}

TEST(ForStatement, TrimsVariableLimitAndStep) {
  const auto parts = ReadFor("FOR  i =1 TO  10  STEP  2:");
  ASSERT_TRUE(parts);
  EXPECT_EQ(parts->variable, "i");
  EXPECT_EQ(parts->limit, "10");
  EXPECT_EQ(parts->step, "2");
}

TEST(ForStatement, IsCutAtTheFirstToAndTheFirstStep) {
  const auto parts = ReadFor("for i=\" TO \" to n stepping step 2:");
  ASSERT_TRUE(parts);
  EXPECT_EQ(parts->init, "i=\"");
  EXPECT_EQ(parts->limit, "\" to n");
  EXPECT_EQ(parts->step, "ping step 2");
}

TEST(ForStatement, LacksAPart) {
  for (const char* statement :
       {"FOR i=1:", "FOR i=1 TO:", "FOR i TO 3:", "FOR =1 TO 3:", "FOR i=1 TO  STEP 2:", "FOR TO-1:"})
    EXPECT_FALSE(ReadFor(statement)) << statement;
}

}  // namespace
}  // namespace corvane::script
