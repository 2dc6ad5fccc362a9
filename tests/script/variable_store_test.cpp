#include "script/variable_store.h"

#include <gtest/gtest.h>
#include <random>

#include "runtime/strings.h"
#include "script/marks.h"
#include "tests/support/processor_time.h"

namespace corvane::script {
namespace {

const std::string kSep(1, listSep);

// The plain form: a search of the text.
long PlainFindForReading(const std::string& text, const std::string& name) {
  const long at = runtime::InStr(text, "<(_" + name + "=");
  return at == 0 ? 0 : at + 4 + runtime::Len(name);
}
long PlainFindForStoring(const std::string& text, const std::string& name) {
  const long at = runtime::InStr(text, "_" + name + "=" + kSep);
  return at == 0 ? 0 : at + 2 + runtime::Len(name);
}

TEST(VariableStore, IsOneTextOfEntries) {
  VariableStore store;
  store.AppendConstant("$AUTHOR=Ann");
  EXPECT_EQ(store.Declare("A"), 1);
  EXPECT_EQ(store.Declare("AR("), 2);
  EXPECT_EQ(store.Declare(LocalName("A", 2)), 3);
  EXPECT_EQ(store.Text(), "<(_$AUTHOR=Ann<(_A=" + kSep + "001<(_AR(=" + kSep + "002<(_A__2=" + kSep + "003");
}

TEST(VariableStore, ACellNumberHasThreeDigitsAtLeast) {
  VariableStore store;
  for (int i = 0; i < 1000; ++i) store.Declare("V" + std::to_string(i));
  EXPECT_TRUE(runtime::Holds(store.Text(), "<(_V9=" + kSep + "010<"));
  EXPECT_TRUE(runtime::Holds(store.Text(), "<(_V999=" + kSep + "1000"));
  EXPECT_EQ(store.CellNumberAt(store.FindForReading("V999")), 1000);
}

TEST(VariableStore, ALocalHidesAGlobalAtItsDepthOnly) {
  VariableStore store;
  store.Declare("A");
  store.Declare(LocalName("A", 1));
  EXPECT_EQ(store.CellNumberAt(store.FindVisible("A", 0)), 1);
  EXPECT_EQ(store.CellNumberAt(store.FindVisible("A", 1)), 2);
  EXPECT_EQ(store.CellNumberAt(store.FindVisible("A", 2)), 1);
  EXPECT_EQ(store.CellForStoring("A", 1), 2);
  EXPECT_EQ(store.CellForStoring("A", 2), 1);
}

TEST(VariableStore, StoringFindsTheEndOfALongerNameReadingDoesNot) {
  VariableStore store;
  store.Declare("B_A");
  store.Declare("A");
  EXPECT_EQ(store.CellForStoring("A", 0), 1);
  EXPECT_EQ(store.CellNumberAt(store.FindVisible("A", 0)), 2);
}

TEST(VariableStore, AConstantHasNoCell) {
  VariableStore store;
  store.AppendConstant("A=5");
  store.Declare("B");
  EXPECT_EQ(store.ValueAt(store.FindForReading("A")), "5");
  EXPECT_EQ(store.CellNumberAt(store.FindForReading("A")), 0);
  EXPECT_EQ(store.CellForStoring("A", 0), 0);
}

TEST(VariableStore, AnEntryInsideAValueIsFound) {
  VariableStore store;
  store.AppendConstant("A=x<(_B=y");
  store.AppendConstant("C=<(_D");
  store.AppendConstant("E=z");
  EXPECT_EQ(store.ValueAt(store.FindForReading("A")), "x");
  EXPECT_EQ(store.ValueAt(store.FindForReading("B")), "y");
  EXPECT_EQ(store.ValueAt(store.FindForReading("C")), "");
  EXPECT_EQ(store.ValueAt(store.FindForReading("D<(_E")), "z");
  EXPECT_EQ(store.FindForReading("D"), 0);
}

TEST(VariableStore, ACutForgetsTheNewestEntriesAndTheirCells) {
  VariableStore store;
  store.Declare("A");
  const size_t length = store.Text().size();
  store.Declare("B");
  store.Store(2, std::string("b"));
  store.CutTo(length, 1);
  EXPECT_EQ(store.FindForReading("B"), 0);
  EXPECT_EQ(store.FindForStoring("B"), 0);
  EXPECT_EQ(store.Declare("C"), 2);
  EXPECT_EQ(TextOf(store.Value(2)), "0");
}

TEST(VariableStore, AFoundPlaceOutsideTheCellsReadsAsAFreshCell) {
  VariableStore store;
  store.AppendConstant("A=" + kSep + "99999999999999999999");
  const long cell = store.CellNumberAt(store.FindForReading("A"));
  EXPECT_FALSE(store.HasCell(cell));
  EXPECT_EQ(TextOf(store.Value(cell)), "0");
  store.Store(cell, 5.0);
  EXPECT_EQ(TextOf(store.Value(cell)), "0");
}

// Names and values of the letters that the format itself is made of.
class Generated {
 public:
  explicit Generated(unsigned seed) : random_(seed) {}
  int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }
  std::string Name() {
    static const char* const kPieces[] = {"A", "B", "_", "__1", "(", "C", "AB", "<(_", "=", "1"};
    std::string name;
    for (int pieces = 1 + Below(3); pieces > 0; --pieces) name += kPieces[Below(Below(4) == 0 ? 10 : 7)];
    return name;
  }
  std::string Value() {
    static const std::string kPieces[] = {"<(_", "_A=" + kSep + "001", "=", kSep, "_", "A", "<", "<(", "B=", ""};
    std::string value;
    for (int pieces = Below(4); pieces > 0; --pieces) value += kPieces[Below(10)];
    return value;
  }

 private:
  std::mt19937 random_;
};

TEST(VariableStore, TheIndexAnswersAsASearchOfTheText) {
  long found = 0;
  for (unsigned seed = 0; seed < 400; ++seed) {
    Generated generated(seed);
    VariableStore store;
    std::vector<size_t> lengths;
    for (int step = 0; step < 60; ++step) {
      switch (generated.Below(8)) {
        case 0:
          store.AppendConstant(generated.Name() + "=" + generated.Value());
          break;
        case 1:
          lengths.push_back(store.Text().size());
          break;
        case 2:
          if (lengths.empty()) break;
          store.CutTo(lengths.back(), generated.Below(5));
          lengths.pop_back();
          break;
        default:
          store.Declare(generated.Name());
      }
      for (int lookup = 0; lookup < 8; ++lookup) {
        const std::string name = generated.Name();
        const long reading = PlainFindForReading(store.Text(), name), storing = PlainFindForStoring(store.Text(), name);
        ASSERT_EQ(store.FindForReading(name), reading) << name << " in " << store.Text();
        ASSERT_EQ(store.FindForStoring(name), storing) << name << " in " << store.Text();
        found += (reading != 0) + (storing != 0);
      }
    }
  }
  EXPECT_GT(found, 10000);
}

// Processor seconds of many look-ups among [names] names.
double SecondsOfLookups(int names) {
  VariableStore store;
  for (int i = 0; i < names; ++i) store.Declare("NAME" + std::to_string(i));
  const std::string first = "NAME0", last = "NAME" + std::to_string(names - 1);
  return tests::SecondsOf([&] {
    long missed = 0;
    for (int i = 0; i < 100000; ++i) {
      if (store.FindVisible(i % 2 == 0 ? first : last, 0) == 0) ++missed;
      if (store.CellForStoring("MISSING", 1) != 0) ++missed;
    }
    EXPECT_EQ(missed, 0);
  });
}

TEST(VariableStore, ALookupCostsTheSameAmongManyNames) {
  EXPECT_LT(SecondsOfLookups(10000), 8 * SecondsOfLookups(10) + 0.2);  // a walk would cost a thousand times as much
}

}  // namespace
}  // namespace corvane::script
