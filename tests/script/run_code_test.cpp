// The execution loop: statements, jumps, SUBs, errors.
#include "tests/script/lib_test.h"

namespace corvane::script {
namespace {

using RunCodeTest = LibTest;

struct Program {
  const char* name;
  const char* code;
  const char* output;
};

class RunCodePrograms : public LibTest, public testing::WithParamInterface<Program> {};

TEST_P(RunCodePrograms, PutOut) {
  EXPECT_EQ(RunCode(GetParam().code), GetParam().output);
  EXPECT_EQ(Boxes(), Lines());
}

INSTANTIATE_TEST_SUITE_P(
    , RunCodePrograms,
    testing::Values(
        Program{"Assignment", "dim a1\na1=5\n=a1", "5"}, Program{"OutputSplitsAtPlus", "=1+2", "12"},
        Program{"OutputSplitsAtAmpersandAndComma", "=\"a\"&\"b\",\"c\"", "abc"},
        Program{"OutputInBracketsAdds", "=(1+2)", "3"}, Program{"AnEmptyPartPrintsAgain", "=\"a\"&&\"b\"", "aab"},
        Program{"PlusPlus", "dim n1\nn1++\nn1++\n=n1", "2"}, Program{"MinusMinus", "dim n1\nn1--\n=n1", "-1"},
        Program{"PlusEquals", "dim y1\ny1=3\ny1+=2\n=y1", "5"},
        Program{"ForCountsUp", "dim i1\nfor i1=1 to 3\n=i1\nnext", "123"},
        Program{"ForWithStep", "dim i1\nfor i1=1 to 7 step 3\n=i1\nnext", "147"},
        Program{"ADescendingForEndsAtZero", "dim i1\nfor i1=3 to 2 step -1\n=i1\nnext", "321"},
        Program{"ForOverNothing", "dim i1\nfor i1=5 to 3\n=i1\nnext\n=\"end\"", "end"},
        Program{"While", "dim n1\nwhile n1<3\nn1++\n=n1\nwend", "123"},
        Program{"LoopClosesAWhile", "dim n1\nwhile n1<2\nn1++\n=n1\nloop", "12"},
        Program{"Continue", "dim i1\nfor i1=1 to 4\nif i1=2 then\ncontinue\nend if\n=i1\nnext", "134"},
        Program{"ExitFor", "dim i1\nfor i1=1 to 9\nif i1=3 then exit for\n=i1\nnext\n=\".\"", "12."},
        Program{"ExitForLeavesAWhile", "dim n1\nwhile 1=1\nn1++\nif n1=3 then exit for\n=n1\nwend", "12"},
        Program{"NestedLoops", "dim i1,j1\nfor i1=1 to 2\nfor j1=1 to 2\n=i1\n=j1\n=\" \"\nnext\nnext", "11 12 21 22 "},
        Program{"SiblingLoopsAtTheTop", "dim i1\nfor i1=1 to 2\n=i1\nnext\nfor i1=3 to 4\n=i1\nnext", "1234"},
        Program{"BlockIf", "dim a1\na1=1\nif a1=1 then\n=\"y\"\nelse\n=\"n\"\nend if", "y"},
        Program{"BlockIfElse", "dim a1\na1=2\nif a1=1 then\n=\"y\"\nelse\n=\"n\"\nend if", "n"},
        Program{"ElseIf",
                "dim a1\nfor a1=1 to 3\nif a1=1 then\n=\"a\"\nelseif a1=2 then\n=\"b\"\nelse\n=\"c\"\nend if\nnext",
                "abc"},
        Program{"OneLineIf", "dim a1\nif 1=1 then a1=7\n=a1\nif 1=2 then a1=8\n=a1", "77"},
        Program{"TheSecondStatementBehindAOneLineIfAlwaysRuns", "dim b1,c1\nif 1=2 then b1=1:c1=2\n=b1\n=c1", "02"},
        Program{"OneLineIfInBrackets", "if(1=1)then =\"y\"", "y"},
        Program{"BlockIfInBrackets", "if(1=2)then\n=\"y\"\nelse\n=\"n\"\nend if", "n"},
        Program{"ZeroIsFalse", "if 1-1 then ==\"y\"\n=\"end\"", "end"},
        Program{"TextIsTrue", "if \"abc\" then =\"y\"", "y"},
        Program{"SelectCase",
                "dim v1\nfor v1=1 to 4\nselect case v1\ncase 1,2\n=\"A\"\ncase 3\n=\"B\"\ncase else\n=\"C\"\nend "
                "select\nnext",
                "AABC"},
        Program{"SelectCaseOfTexts", "select case \"b\"\ncase \"a\"\n=1\ncase \"b\"\n=2\nend select", "2"},
        Program{"SelectCaseComparesWholeTexts", "select case \"b\"\ncase \"ab\",\"bc\"\n=1\ncase else\n=2\nend select",
                "2"},
        Program{"GoToForward", "goto over1\n=\"x\"\nover1:\n=\"y\"", "y"},
        Program{"GoToBackward", "dim n1\nagain1:\nn1++\n=n1\nif n1<3 then goto again1\n=\".\"", "123."},
        Program{"Sub", "sub greet(a)\n=\"hi \"\n=a\nend sub\ncall greet(\"you\")", "hi you"},
        Program{"SubWithTwo", "sub both(a,b)\n=b\n=a\nend sub\ncall both(1,2)", "21"},
        Program{"SubWithoutParameters", "sub none()\n=\"x\"\nend sub\ncall none()\ncall none()", "xx"},
        Program{"LocalsHideGlobals", "dim aa\naa=1\nsub loc(x)\ndim aa\naa=x\n=aa\nend sub\ncall loc(5)\n=aa", "51"},
        Program{"SubSeesGlobals", "dim aa\naa=1\nsub glob()\naa=aa+1\nend sub\ncall glob()\n=aa", "2"},
        Program{"TooFewValuesByOneGiveAnEmptyOne", "sub both(a,b)\n=\"[\"\n=b\n=\"]\"\nend sub\ncall both(1)", "[]"},
        Program{"SurplusValuesAreIgnored", "sub one(a)\n=a\nend sub\ncall one(1,2,3)", "1"},
        Program{"ExitSub", "sub part(a)\n=a\nif a=1 then exit sub\n=\"x\"\nend sub\ncall part(1)\ncall part(2)", "12x"},
        Program{"ASubThatCallsItself", "sub down(n)\n=n\nif n>1 then call down(n-1)\n=\".\"\nend sub\ncall down(3)",
                "321..."},
        Program{"LoopInSub", "sub loops(n)\ndim i1\nfor i1=1 to n\n=i1\nnext\nend sub\ncall loops(3)\ncall loops(2)",
                "12312"},
        Program{"TheFirstDefinitionStays", "sub twice()\n=1\nend sub\nsub twice()\n=2\nend sub\ncall twice()", "1"},
        Program{"TheNameIsTakenWhole", "sub ab()\n=1\nend sub\nsub b1()\n=2\nend sub\ncall b1()", "2"},
        Program{"Function", "function twice(n)\ntwice=n*2\nend function\n=twice(4)", "8"},
        Program{"FunctionInExpression", "function twice(n)\ntwice=n*2\nend function\ndim x1\nx1=twice(3)+twice(1)\n=x1",
                "8"},
        Program{"RecursiveFunction",
                "function fact(n)\nif n<2 then\nfact=1\nelse\nfact=n*fact(n-1)\nend if\nend function\n=fact(5)", "120"},
        Program{"ExitFunction",
                "function sign1(n)\nsign1=\"p\"\nif n>0 then exit function\nsign1=\"n\"\nend "
                "function\n=sign1(1)\n=sign1(-1)",
                "pn"},
        Program{"Arrays", "dim ar()\nar(1)=\"x\"\nar(3)=\"z\"\n=ar(1)\n=ar(2)\n=ar(3)\n=ubound(ar)", "x0z3"},
        Program{"EndCode", "=1\nend code\n=2", "1"}, Program{"ExitForOutsideALoop", "=1\nexit for\n=2", "12"},
        Program{"AMisspeltWordIsALabel", "if 1=2 then\n=1\nendif\n=2\nend if\n=3", "3"},
        Program{"StepAloneIsIgnored", "=1\nstep\n=2", "12"},
        Program{"MultilineLiteral", "dim t1\nt1=[[a\nb]]\n=t1", "a\nb"},
        Program{"ResultIsAVariable", "=\"ab\"\nresult=result&\"c\"", "abc"},
        Program{"AFailingOuterCaseLandsBehindTheInnerSelect",
                "select case 3\ncase 1\n=1\nselect case 2\ncase 2\n=\"in\"\nend select\n=\"after\"\ncase "
                "3\n=\"three\"\nend select",
                "afterthree"},
        Program{"CaseOfNestedSelects",
                "select case 1\ncase 1\nselect case 2\ncase 2\n=\"in\"\nend select\n=\"out\"\nend select", "inout"}),
    [](const auto& info) { return info.param.name; });

}  // namespace
}  // namespace corvane::script
