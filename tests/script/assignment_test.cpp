#include "script/assignment.h"

#include "tests/script/engine_test.h"

namespace corvane::script {
namespace {

struct AssignmentTest : EngineTest {
  std::string Cell(long number) { return Shown(engine.store.Value(number)); }
};

TEST_F(AssignmentTest, AVariableTakesTheValueWithItsType) {
  Dim("a,b,c");
  Assign("a=2+3");
  Assign("b=2-3");
  Assign("c=5=5");
  EXPECT_EQ(Cell(1), "5");
  EXPECT_EQ(Cell(2), "double -1");
  EXPECT_EQ(Cell(3), "boolean True");
  Assign("a=\"x\"&(5=5)");
  EXPECT_EQ(Cell(1), "xTrue");
}

TEST_F(AssignmentTest, AnOperatorBeforeTheEqualsIsWrittenOut) {
  Dim("y");
  for (const auto& [statement, value] : {std::pair{"y=5", "5"},
                                         {"y*=2+3", "13"},
                                         {"y-=3", "double 10"},
                                         {"y/=4", "double 2.5"},
                                         {"y+=1", "3.5"},
                                         {"y&=\"x\"", "3.5x"}}) {
    Assign(statement);
    EXPECT_EQ(Cell(1), value) << statement;
  }
}

TEST_F(AssignmentTest, TheNameOfATargetMayBeComputed) {
  Dim("a,n");
  Assign("n=\"A\"");
  Assign("var(n)=7");
  EXPECT_EQ(Cell(1), "7");
  Assign("VAR(\"a\")=8");
  EXPECT_EQ(Cell(1), "8");
}

TEST_F(AssignmentTest, APropertyIsSetOnTheObjectThatTheVariableNames) {
  Dim("f");
  Assign("f=\"Form1\"");
  Assign("f.Caption=\"a\"&1");
  Assign("Form2.Text1.Text=5-1");
  Assign("Me.Caption=\"me\"");
  EXPECT_EQ(world.ide.set, (Texts{"Form1.Caption=a1", "Form2.Text1.Text=4", "Me.Caption=me"}));
  EXPECT_EQ(Messages(), Texts());
  EXPECT_FALSE(state.lvalueMode);
}

TEST_F(AssignmentTest, ResultReplacesTheResultText) {
  state.resultText = "a";
  Assign("Result=result&\"b\"");
  EXPECT_EQ(state.resultText.Get(), "ab");
  Assign("result=5-1");
  EXPECT_EQ(state.resultText.Get(), "4");
}

TEST_F(AssignmentTest, AnUnknownVariableIsReportedWithOkAndWithCancel) {
  Assign("x=5");
  EXPECT_EQ(Messages(), Texts{"x=5: Unknown Variable"});
  EXPECT_FALSE(state.stopFlag);
  errors.cancel = true;
  Assign("x=5");
  EXPECT_TRUE(state.stopFlag);
}

TEST_F(AssignmentTest, AConstantCannotBeAssigned) {
  engine.store.AppendConstant("A=5");
  Dim("a");
  Assign("a=6");
  EXPECT_EQ(Messages(), Texts{"a=6: Unknown Variable"});
  EXPECT_EQ(Primary("a"), "5");
}

TEST_F(AssignmentTest, NothingBehindTheEqualsIsReportedWithOkAndWithCancel) {
  Dim("a");
  Assign("a=");
  errors.cancel = true;
  Assign("a=");
  EXPECT_EQ(Messages(), (Texts{"a=: Error operation", "a=: Error operation"}));
  EXPECT_TRUE(state.stopFlag);
}

TEST_F(AssignmentTest, ALiteralInBracketsKeepsItsLines) {
  Dim("a");
  Assign(std::string("a=[[one + \"") + lineMark + "two]]");
  EXPECT_EQ(Cell(1), "one + \"\r\ntwo");
  EXPECT_EQ(Shown(state.lastValue), "one + \"\r\ntwo");
}

TEST_F(AssignmentTest, AnUnclosedLiteralIsReportedWithOkAndWithCancel) {
  Dim("a");
  Assign("a=[[one");
  errors.cancel = true;
  Assign("a=[[");
  EXPECT_EQ(Messages(), (Texts{"There are not ]] brackets", "There are not ]] brackets"}));
  EXPECT_TRUE(state.stopFlag);
  EXPECT_EQ(Cell(1), "integer 0");
}

TEST_F(AssignmentTest, ABadExpressionLeavesTheRightSideItself) {
  Dim("a");
  Assign("a=(1+2");
  EXPECT_EQ(Messages(), Texts{"Bad expression"});
  EXPECT_EQ(Cell(1), "(1+2:");
}

TEST_F(AssignmentTest, ALongerNameThatWasDeclaredFirstTakesTheValue) {
  Dim("b_a,a");
  Assign("a=5");
  EXPECT_EQ(Primary("b_a"), "5");
  EXPECT_EQ(Primary("a"), "0");
}

TEST_F(AssignmentTest, ALocalIsSetBeforeAGlobal) {
  Dim("a");
  state.subDepth = 1;
  Assign("a=1");
  Dim("a");
  Assign("a=2");
  EXPECT_EQ(Primary("a"), "2");
  state.subDepth = 0;
  EXPECT_EQ(Primary("a"), "1");
}

TEST_F(AssignmentTest, ATextOfAFunctionIsSubstitutedOnceMore) {
  Dim("x");
  Assign("x=MID(\"a 5\",2)");
  EXPECT_EQ(Cell(1), "5");
}

TEST_F(AssignmentTest, AStoppedEvaluationStoresNothing) {
  Dim("a");
  Assign("a=5");
  errors.cancel = true;
  Assign("a=nobody");
  EXPECT_EQ(Cell(1), "5");
}

TEST_F(AssignmentTest, AnElementTakesTheValue) {
  Dim("ar(),i");
  Assign("i=2");
  EXPECT_TRUE(AssignElement("ar(i+1)= 5-1 "));
  EXPECT_EQ(Primary("ar(3)"), "4");
  EXPECT_EQ(Primary("ar(1)"), "0");
  EXPECT_EQ(Primary("UBOUND(ar)"), "3");
}

TEST_F(AssignmentTest, AnUnknownArrayOrAQuoteBeforeTheIndexEndsIsNoElement) {
  Dim("ar()");
  EXPECT_FALSE(AssignElement("qq(1)=5"));
  EXPECT_FALSE(AssignElement("ar(\"1\")=5"));
  EXPECT_FALSE(AssignElement("ar(1)"));
}

TEST_F(AssignmentTest, ABadIndexIsReportedWithOkAndWithCancel) {
  Dim("ar()");
  EXPECT_TRUE(AssignElement("ar(true)=5"));
  EXPECT_TRUE(AssignElement("ar(0)=5"));
  EXPECT_TRUE(AssignElement("ar(1)="));
  EXPECT_EQ(Messages(), (Texts{"ar Array index is not numeric.", "ar Bad expression.", "ar Bad expression."}));
  errors.cancel = true;
  EXPECT_TRUE(AssignElement("ar(0)=5"));
  EXPECT_TRUE(state.stopFlag);
}

TEST_F(AssignmentTest, OnlyTwentyArraysWithOkAndWithCancel) {
  for (int i = 0; i < 21; ++i) Dim("a" + std::to_string(i) + "()");
  EXPECT_TRUE(AssignElement("a19(1)=5"));
  EXPECT_TRUE(AssignElement("a20(1)=5"));
  EXPECT_EQ(Primary("a20(1)"), "");
  EXPECT_EQ(Primary("UBOUND(a20)"), "");
  EXPECT_EQ(Messages(), (Texts{"You can use only 20 arrays.", "Index is out of bounds.", "Index is out of bounds."}));
  errors.cancel = true;
  AssignElement("a20(1)=5");
  EXPECT_TRUE(state.stopFlag);
}

TEST_F(AssignmentTest, CancelStopsTheRunAtEachMessageOfAnArray) {
  for (int i = 0; i < 21; ++i) Dim("a" + std::to_string(i) + "()");
  errors.cancel = true;
  const struct {
    std::function<void()> act;
    const char* message;
  } cases[] = {
      {[&] { AssignElement("a1(true)=5"); }, "a1 Array index is not numeric."},
      {[&] { AssignElement("a1(1)="); }, "a1 Bad expression."},
      {[&] { Primary("a20(1)"); }, "Index is out of bounds."},
      {[&] { Primary("UBOUND(a20)"); }, "Index is out of bounds."},
      {[&] { Primary("a1(0)"); }, "Array's Index Error."},
      {[&] { Primary("a1(\"x\")"); }, "Array's Index Error."},
  };
  for (const auto& c : cases) {
    state.stopFlag = false;
    c.act();
    EXPECT_EQ(Messages(), Texts{c.message});
    EXPECT_TRUE(state.stopFlag) << c.message;
  }
}

TEST_F(AssignmentTest, DimOfAVariableClearsItDimOfAnArrayTakesANewSlot) {
  Dim("a,ar()");
  Assign("a=5");
  AssignElement("ar(1)=5");
  Dim("a,ar()");
  EXPECT_EQ(Primary("a"), "0");
  EXPECT_EQ(engine.arrays.arrayCount, 2);
  EXPECT_EQ(Primary("ar(1)"), "5") << "the first entry is found";
}

TEST_F(AssignmentTest, NamesOfADimAreTrimmedAndAnEmptyOneEndsThem) {
  Dim(" a , b ,, c");
  EXPECT_EQ(Primary("b"), "0");
  EXPECT_EQ(engine.store.varCount(), 2);
}

TEST_F(AssignmentTest, ADimWithoutNamesIsReportedWithOkAndWithCancel) {
  engine.assignment.DeclareVars("DIM ");
  errors.cancel = true;
  engine.assignment.DeclareVars("DIM:");
  EXPECT_EQ(Messages(), (Texts{"DIM  Operator DIM Error", "DIM: Operator DIM Error"}));
  EXPECT_TRUE(state.stopFlag);
}

TEST_F(AssignmentTest, ADimWithASizeDeclaresAVariableOfThatName) {
  Dim("ar(5)");
  EXPECT_EQ(engine.arrays.arrayCount, 0);
  EXPECT_FALSE(AssignElement("ar(1)=5"));
}

TEST_F(AssignmentTest, AnErasedArrayReadsAsEmpty) {
  Dim("ar()");
  AssignElement("ar(1)=5");
  Value("ERASE(ar)");
  EXPECT_EQ(Primary("ar(1)"), "");
}

}  // namespace
}  // namespace corvane::script
