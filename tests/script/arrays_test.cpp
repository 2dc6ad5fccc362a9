#include "script/arrays.h"

#include <gtest/gtest.h>

#include "runtime/error.h"
#include "tests/script/fake_engine.h"

namespace corvane::script {
namespace {

struct ArraysTest : testing::Test {
  ScriptState state;
  FakeErrors errors{state};
  Arrays arrays{state, errors};
  using Messages = std::vector<std::string>;

  void Store(long slot, double index, Cell value) {
    state.lastValue = std::move(value);
    arrays.ArrayStore(slot, index);
  }
};

TEST_F(ArraysTest, GrowOnAssignmentAndKeepTheirElements) {
  EXPECT_EQ(arrays.ArrayAccess(1, "UBOUND"), "-1");
  Store(1, 2, std::string("b"));
  Store(1, 5, true);
  EXPECT_EQ(arrays.ArrayAccess(1, "UBOUND"), "5");
  EXPECT_EQ(arrays.ArrayAccess(1, "2"), "b");
  EXPECT_EQ(arrays.ArrayAccess(1, "5"), "True");
}

TEST_F(ArraysTest, AnElementNeverAssignedIsZeroAndOneBeyondTheEndIsEmpty) {
  Store(1, 3, 1.5);
  EXPECT_EQ(arrays.ArrayAccess(1, "1"), "0");
  EXPECT_EQ(arrays.ArrayAccess(1, "4"), "");
  EXPECT_TRUE(errors.messages.empty());
}

TEST_F(ArraysTest, AnErasedArrayIsNotGrown) {
  Store(20, 3, 1.5);
  EXPECT_EQ(arrays.ArrayAccess(20, "ERASE"), "");
  EXPECT_EQ(arrays.ArrayAccess(20, "UBOUND"), "-1");
  EXPECT_EQ(arrays.ArrayAccess(20, "1"), "");
}

TEST_F(ArraysTest, ABadIndexIsReported) {
  for (const char* index : {"0", "-1", "0.6", "x", ""}) EXPECT_EQ(arrays.ArrayAccess(1, index), "");
  EXPECT_EQ(errors.messages, Messages(5, "Array's Index Error."));
}

TEST_F(ArraysTest, SlotsBeyondTwentyAreReported) {
  Store(21, 1, 1.5);
  EXPECT_EQ(arrays.ArrayAccess(21, "1"), "");
  EXPECT_EQ(arrays.ArrayAccess(0, "UBOUND"), "");
  EXPECT_EQ(errors.messages,
            (Messages{"You can use only 20 arrays.", "Index is out of bounds.", "Index is out of bounds."}));
}

TEST_F(ArraysTest, AnIndexThatNoMemoryHoldsFails) {
  Store(1, 1e9, 1.0);
  EXPECT_EQ(errors.messages, std::vector<std::string>{"You can use only 1000000 elements of an array."});
  EXPECT_EQ(arrays.ArrayAccess(1, "UBOUND"), "-1");
}

}  // namespace
}  // namespace corvane::script
