// The short way of an assignment against its plain form, on generated programs of declarations and assignments.
#include <random>

#include "runtime/strings.h"
#include "tests/script/engine_test.h"

namespace corvane::script {
namespace {

class Side {
 public:
  ScriptState state;
  FakeErrors errors{state};
  FakeRunner runner;
  FakeOutside world{state};
  Evaluator engine{state, errors, runner, world.outside};
};

class Program {
 public:
  explicit Program(unsigned seed) : random_(seed) {}

  // A statement that both sides run, as text for the failure message.
  std::string Step(Side& plain, Side& fast) {
    switch (Below(12)) {
      case 0: {
        const std::string names = "DIMM" + Name() + (Below(6) == 0 ? "()" : "") + ":";
        plain.engine.assignment.DeclareVars(names);
        fast.engine.assignment.DeclareVars(names);
        return names;
      }
      case 1: {
        plain.state.subDepth = fast.state.subDepth = static_cast<int>(Below(3));
        return "depth";
      }
      case 2: {
        if (lengths_.empty() || Below(2) == 0) {
          lengths_.emplace_back(plain.engine.store.Text().size(), plain.engine.store.varCount());
        } else {
          plain.engine.store.CutTo(lengths_.back().first, lengths_.back().second);
          fast.engine.store.CutTo(lengths_.back().first, lengths_.back().second);
          lengths_.pop_back();
        }
        return "cut";
      }
      case 3: {
        // Long texts go the way of appending in place.
        const std::string name = Name();
        for (Side* side : {&plain, &fast}) {
          const long cell = side->engine.store.CellForStoring(runtime::UCase(name), side->state.subDepth);
          side->engine.store.Store(cell, std::string(1500, 'x'));
          if (cell == 1) side->state.resultText = std::string(1500, 'r');
        }
        return "long " + name;
      }
      default: {
        const std::string statement = Assignment();
        const long eq = static_cast<long>(statement.find('=')) + 1;
        plain.engine.assignment.AssignLiterally(statement, eq);
        fast.engine.assignment.Assign(statement, eq);
        return statement;
      }
    }
  }

 private:
  size_t Below(size_t limit) { return std::uniform_int_distribution<size_t>(0, limit - 1)(random_); }
  std::string Name() {
    static const char* const kNames[] = {"a", "b", "B_a", "c", "A", "cc"};
    return kNames[Below(6)];
  }
  std::string Assignment() {
    static const char* const kRights[] = {"1",    "\"x\"", "a+1",       "b&\"y\"", "5=5",     "2-3",  "a&b",
                                          "cc*2", "\"\"",  "(a",        "[[z]]",   "NOT a",   "none", "b&a&\"!\"",
                                          "a=b",  "",      "a+b+\"z\"", "LEN(a)",  "nobody.x"};
    static const char* const kOperators[] = {"=", "=", "&=", "+=", "*=", "-="};
    const std::string name = Name(), op = kOperators[Below(6)];
    if (Below(3) == 0) {
      static const char* const kJoined[] = {"\"k\"&", "vbcrlf&",   "LEN(\"abc\")&", "LEFT(\"xyz\",2)+",
                                            "(1+2)&", "(a=b)+",    "(2-3)&",        "UCASE(c)&",
                                            "\"\"&",  "TRUE+NOT+", "2*3&"};
      const std::string target = Below(5) == 0 ? "Result" : name;
      return target + "=" + target + (Below(2) == 0 ? "&" : "+") + kJoined[Below(11)] + Name() + ":";
    }
    return (Below(12) == 0 ? "Result" : name) + op + kRights[Below(19)] + ":";
  }

  std::mt19937 random_;
  std::vector<std::pair<size_t, long>> lengths_;
};

TEST(AssignmentDifferential, GeneratedPrograms) {
  for (unsigned seed = 0; seed < 300; ++seed) {
    Program program(seed);
    Side plain, fast;
    for (int step = 0; step < 150; ++step) {
      const std::string statement = program.Step(plain, fast);
      ASSERT_EQ(fast.errors.messages, plain.errors.messages) << statement;
      ASSERT_EQ(Shown(fast.state.lastValue), Shown(plain.state.lastValue)) << statement;
      ASSERT_EQ(fast.state.resultText.Get(), plain.state.resultText.Get()) << statement;
      ASSERT_EQ(fast.state.notFlag, plain.state.notFlag) << statement;
      ASSERT_EQ(fast.engine.store.Text(), plain.engine.store.Text()) << statement;
      for (long cell = 1; cell <= plain.engine.store.varCount(); ++cell)
        ASSERT_EQ(Shown(fast.engine.store.Value(cell)), Shown(plain.engine.store.Value(cell))) << statement;
    }
  }
}

struct AppendingTest : EngineTest {};

TEST_F(AppendingTest, ATextThatIsSharedKeepsItsValue) {
  Dim("s,t");
  for (int i = 0; i < 3; ++i) Assign("s=SPACE(1100)");
  for (int i = 0; i < 3; ++i) {
    Assign("t=s");
    Assign("s=s&\"x\"");
    EXPECT_EQ(TextOf(engine.store.Value(1)).size(), 1101u + static_cast<size_t>(i));
    EXPECT_EQ(TextOf(engine.store.Value(2)).size(), 1100u + static_cast<size_t>(i));
    EXPECT_EQ(TextOf(state.lastValue).size(), 1101u + static_cast<size_t>(i));
  }
}

}  // namespace
}  // namespace corvane::script
