#include "tests/environment/host_contract.h"

namespace corvane::tests {

using host::ProcKind;

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(HostContract);

TEST_P(HostContract, AnEmptyModuleHasNoMoreThanOneLine) {
  auto code = Code("");
  EXPECT_LE(code->CountOfLines(), 1);
  EXPECT_EQ(code->Lines(1, 250), "");
}

TEST_P(HostContract, LinesPastTheEndAreTheRemainder) {
  auto code = Code("a = 1|b = 2|c = 3");
  EXPECT_EQ(code->Lines(2, 250), "b = 2\r\nc = 3");
  EXPECT_EQ(code->Lines(3, 1), "c = 3");
  EXPECT_EQ(code->Lines(1, 0), "");
}

TEST_P(HostContract, BadLineNumbersAreError9) {
  auto code = Code("Sub A()|End Sub");
  ProcKind kind = ProcKind::Proc;
  for (long line : {0L, -1L, 3L}) {
    EXPECT_EQ(ErrorOf([&] { code->Lines(line, 1); }), 9) << line;
    EXPECT_EQ(ErrorOf([&] { code->ProcOfLine(line, kind); }), 9) << line;
    EXPECT_EQ(ErrorOf([&] { code->DeleteLines(line, 1); }), 9) << line;
    EXPECT_EQ(ErrorOf([&] { code->ReplaceLine(line, "x"); }), 9) << line;
  }
  EXPECT_EQ(ErrorOf([&] { code->InsertLines(0, "x"); }), 9);
}

TEST_P(HostContract, InsertedTextIsCutIntoLines) {
  auto code = Code("a|b");
  code->InsertLines(2, "x\r\ny");
  EXPECT_EQ(All(*code), "a|x|y|b");
  code->InsertLines(1, "top\r\n");
  EXPECT_EQ(All(*code), "top||a|x|y|b");
}

TEST_P(HostContract, InsertionBehindTheEndAppends) {
  auto code = Code("a");
  code->InsertLines(9, "b");
  EXPECT_EQ(All(*code), "a|b");
}

TEST_P(HostContract, DeletesAndReplacesLines) {
  auto code = Code("a|b|c|d");
  code->DeleteLines(2, 2);
  EXPECT_EQ(All(*code), "a|d");
  code->DeleteLines(1);
  EXPECT_EQ(All(*code), "d");
  code->ReplaceLine(1, "x\r\ny");
  EXPECT_EQ(All(*code), "x|y");
}

TEST_P(HostContract, AProcedureHoldsTheLinesAboveItsHeader) {
  auto code = Code("Option Explicit||'c|Sub A()|End Sub||Sub B()|End Sub|");
  EXPECT_EQ(code->CountOfDeclarationLines(), 1);
  EXPECT_EQ(code->ProcStartLine("A", ProcKind::Proc), 2);
  EXPECT_EQ(code->ProcBodyLine("A", ProcKind::Proc), 4);
  EXPECT_EQ(code->ProcCountLines("A", ProcKind::Proc), 4);
  EXPECT_EQ(code->ProcStartLine("B", ProcKind::Proc), 6);
  EXPECT_EQ(code->ProcCountLines("B", ProcKind::Proc), code->CountOfLines() - 5);
}

TEST_P(HostContract, ProcOfLineOnADeclarationLineIsEmpty) {
  auto code = Code("Dim x As Long|Property Get P()|End Property");
  ProcKind kind = ProcKind::Set;
  EXPECT_EQ(code->ProcOfLine(1, kind), "");
  EXPECT_EQ(kind, ProcKind::Proc);
  EXPECT_EQ(code->ProcOfLine(2, kind), "P");
  EXPECT_EQ(kind, ProcKind::Get);
}

TEST_P(HostContract, TheKindsOfOnePropertyAreThreeProcedures) {
  auto code = Code("Property Get P()|End Property|Property Let P(v)|End Property|Property Set P(v)|End Property");
  EXPECT_EQ(code->ProcBodyLine("P", ProcKind::Get), 1);
  EXPECT_EQ(code->ProcBodyLine("p", ProcKind::Let), 3);
  EXPECT_EQ(code->ProcBodyLine("P", ProcKind::Set), 5);
}

TEST_P(HostContract, AnUnknownProcedureIsError35) {
  auto code = Code("Sub A()|End Sub");
  EXPECT_EQ(ErrorOf([&] { code->ProcStartLine("B", ProcKind::Proc); }), 35);
  EXPECT_EQ(ErrorOf([&] { code->ProcBodyLine("A", ProcKind::Get); }), 35);
  EXPECT_EQ(ErrorOf([&] { code->ProcCountLines("", ProcKind::Proc); }), 35);
}

TEST_P(HostContract, DeclarationsAndProceduresAreAllLines) {
  auto code = Code("Dim a||Sub A()|End Sub|'c|Sub B()|End Sub||");
  long sum = code->CountOfDeclarationLines();
  for (const char* name : {"A", "B"}) sum += code->ProcCountLines(name, ProcKind::Proc);
  EXPECT_EQ(sum, code->CountOfLines());
}

TEST_P(HostContract, FindHoldsThePlaceOfAHit) {
  auto code = Code("one|  Two two|three");
  long line = 1, column = 1, end_line = -1, end_column = -1;
  ASSERT_TRUE(code->Find("two", line, column, end_line, end_column, false, false, false));
  EXPECT_EQ(std::vector<long>({line, column, end_line}), std::vector<long>({2, 3, 2}));
  EXPECT_EQ(end_column, 6);
}

TEST_P(HostContract, FindWithoutAHitLeavesItsArguments) {
  auto code = Code("one");
  long line = 1, column = 1, end_line = -1, end_column = -1;
  EXPECT_FALSE(code->Find("two", line, column, end_line, end_column, false, false, false));
  EXPECT_EQ(std::vector<long>({line, column, end_line, end_column}), std::vector<long>({1, 1, -1, -1}));
}

TEST_P(HostContract, FindKnowsWholeWordsCaseAndPatterns) {
  struct Case {
    const char* target;
    bool whole, match_case, pattern;
    long line, column;
  };
  auto code = Code("Counter = count1|COUNT = 1|a7 = a#");
  for (const Case& c : {Case{"count", false, false, false, 1, 1}, Case{"count", true, false, false, 2, 1},
                        Case{"COUNT", false, true, false, 2, 1}, Case{"c*1", false, false, true, 1, 1},
                        Case{"a#", false, false, true, 3, 1}, Case{"a#", false, false, false, 3, 6},
                        Case{"c[a-o]u?t", true, false, true, 2, 1}}) {
    long line = 1, column = 1, end_line = -1, end_column = -1;
    ASSERT_TRUE(code->Find(c.target, line, column, end_line, end_column, c.whole, c.match_case, c.pattern)) << c.target;
    EXPECT_EQ(line, c.line) << c.target;
    EXPECT_EQ(column, c.column) << c.target;
  }
}

TEST_P(HostContract, ComponentsAreFoundByPositionAndByNameInAnyCase) {
  auto components = Open({{"Main", false, ""}, {"Thing", true, ""}})->ActiveVBProject()->VBComponents();
  EXPECT_EQ(components->Count(), 2);
  EXPECT_EQ(components->Item(2)->Name(), "Thing");
  EXPECT_EQ(components->Item("thing")->Type(), host::ComponentType::ClassModule);
  EXPECT_EQ(ErrorOf([&] { components->Item(3); }), 9);
  EXPECT_EQ(ErrorOf([&] { components->Item(0); }), 9);
  EXPECT_EQ(ErrorOf([&] { components->Item("Other"); }), 9);
}

TEST_P(HostContract, AComponentAndItsCodeHaveOneName) {
  auto component = Open({{"Main", false, ""}})->ActiveVBProject()->VBComponents()->Item(1);
  EXPECT_EQ(component->CodeModule()->Name(), component->Name());
  EXPECT_EQ(component->Designer(), nullptr);
}

TEST_P(HostContract, NewComponentsTakeTheFirstFreeName) {
  auto components = Open({{"Main", false, ""}, {"Module1", false, ""}})->ActiveVBProject()->VBComponents();
  auto added = components->Add(host::ComponentType::StdModule);
  EXPECT_EQ(added->Name(), "Module2");
  EXPECT_EQ(components->Count(), 3);
  EXPECT_EQ(components->Add(host::ComponentType::ClassModule)->Name(), "Class1");
  components->Remove(added);
  EXPECT_EQ(ErrorOf([&] { components->Item("Module2"); }), 9);
}

TEST_P(HostContract, ANameInUseIsError32813) {
  auto components = Open({{"Main", false, ""}, {"Other", false, ""}})->ActiveVBProject()->VBComponents();
  EXPECT_EQ(ErrorOf([&] { components->Item(1)->SetName("OTHER"); }), 32813);
  components->Item(1)->SetName("Start");
  EXPECT_EQ(components->Item("Start")->CodeModule()->Name(), "Start");
}

TEST_P(HostContract, ThePaneOfAModuleIsMadeOnDemand) {
  auto code = Code("one|two");
  EXPECT_EQ(vbe_->ActiveCodePane(), nullptr);
  auto pane = code->CodePane();
  pane->SetSelection({2, 1, 2, 3});
  pane->Show();
  EXPECT_EQ(vbe_->ActiveCodePane()->CodeModule()->Name(), "Main");
  EXPECT_EQ(vbe_->ActiveCodePane()->GetSelection(), (host::Selection{2, 1, 2, 3}));
  EXPECT_EQ(vbe_->CodePanes()->Count(), 1);
}

}  // namespace corvane::tests
