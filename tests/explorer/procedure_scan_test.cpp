// The rows of a module: what the scan of its lines finds and what it misses.
#include "explorer/procedure_scan.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "environment/environment.h"
#include "runtime/code_page.h"
#include "tests/support/counting_host.h"
#include "tests/support/fake_services.h"
#include "tests/support/sources.h"

namespace corvane::tests {
namespace {

using explorer::ProcedureFilter;
using explorer::ProcedureKind;
using explorer::Visibility;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Scan : public ::testing::Test {
 protected:
  host::Ref<host::CodeModule> Load(const Code& lines) {
    environment->OpenFromModules("Shop", {Cls("Thing", lines)});
    return environment->ActiveVBProject()->VBComponents()->Item("Thing")->CodeModule();
  }
  std::vector<long> LinesFound(host::CodeModule& module, const ProcedureFilter& filter) {
    std::vector<long> lines;
    explorer::ScanProcedures(module, filter, [&](long line, const std::string&) { lines.push_back(line); });
    return lines;
  }
  std::vector<long> LinesFound(const Code& lines, const ProcedureFilter& filter = {}) {
    return LinesFound(*Load(lines), filter);
  }

  FakeServices services;
  std::shared_ptr<environment::Environment> environment = environment::Environment::Create(services.files);
};

const Code kEvents = {"Option Explicit", "", "Private Sub Form_Load()", "End Sub", "", "Public Function X(a_b)",
                      "End Function",    "", "Private Sub Tidy()",      "End Sub"};

TEST_F(Scan, AHandlerIsNoPlainSub) {
  EXPECT_THAT(LinesFound(kEvents, {ProcedureKind::Subs}), ElementsAre(9));
}

TEST_F(Scan, AHandlerIsAnEvent) {
  EXPECT_THAT(LinesFound(kEvents, {ProcedureKind::Events}), ElementsAre(3));
}

TEST_F(Scan, AnUnderscoreInAParameterOfAFunctionDoesNotMatter) {
  EXPECT_THAT(LinesFound(kEvents, {ProcedureKind::Functions}), ElementsAre(6));
}

TEST_F(Scan, AllThreeAccessorsOfAPropertyHaveRows) {
  const Code lines = {"Dim mName",
                      "",
                      "Property Get Name()",
                      "End Property",
                      "Property Let Name(v)",
                      "End Property",
                      "Property Set Name(v)",
                      "End Property"};
  EXPECT_THAT(LinesFound(lines, {ProcedureKind::Properties}), ElementsAre(3, 5, 7));
}

// A scan starts behind the declarations; the event stands where a module has none.
TEST_F(Scan, AnEventIsListedThroughItsWord) {
  CountingModule module(Load({"", "Sub First()", "End Sub", "Public Event Changed()"}));
  EXPECT_THAT(LinesFound(module, {}), ElementsAre(2, 4));
}

TEST_F(Scan, TheEndOfASubIsNoRow) {
  EXPECT_THAT(LinesFound({"Dim a", "", "Sub First()", "End Sub", "Sub Other()", "End Sub"}), ElementsAre(3, 5));
}

TEST_F(Scan, AHeaderWhoseTextHoldsEndIsMissing) {
  const Code lines = {"Dim a",   "",           "Sub Send Mail()", "End Sub", "Friend Sub Pay()",
                      "End Sub", "Sub Last()", "End Sub"};
  EXPECT_THAT(LinesFound(lines), ElementsAre(7));
}

TEST_F(Scan, ANameThatOnlyAParameterHasIsNotFound) {
  const Code lines = {"Dim a", "", "Sub Pay(customer)", "End Sub", "Sub CustomerName(x)", "End Sub"};
  EXPECT_THAT(LinesFound(lines, {ProcedureKind::All, Visibility::All, "Customer"}), ElementsAre(5));
}

TEST_F(Scan, ANameFilterLooksIntoBodies) {
  const Code lines = {"Dim a", "", "Sub Pay()", "  x = 1 ' a sub pays", "  Call Function pay", "End Sub"};
  EXPECT_THAT(LinesFound(lines, {ProcedureKind::All, Visibility::All, "pay"}), ElementsAre(3, 5));
}

TEST_F(Scan, VisibilityOfEachKindOfHeader) {
  const Code lines = {"Dim a",           "",        "Public Sub A1()", "End Sub", "Private Sub B1()", "End Sub",
                      "Static Sub C1()", "End Sub", "Sub D1()",        "End Sub"};
  const struct {
    Visibility visibility;
    std::vector<long> rows;
  } kCases[] = {{Visibility::All, {3, 5, 7, 9}},
                {Visibility::Public, {3}},
                {Visibility::Private, {5}},
                {Visibility::Static, {7}}};
  for (const auto& c : kCases)
    EXPECT_EQ(LinesFound(lines, {ProcedureKind::All, c.visibility}), c.rows) << static_cast<int>(c.visibility);
}

TEST_F(Scan, KindsOfEachHeader) {
  const Code lines = {"Dim a",
                      "",
                      "Sub Tidy()",
                      "End Sub",
                      "Sub cmd_Click()",
                      "End Sub",
                      "Function Count()",
                      "End Function",
                      "Property Get Size()",
                      "End Property"};
  const struct {
    ProcedureKind kind;
    std::vector<long> rows;
  } kCases[] = {{ProcedureKind::All, {3, 5, 7, 9}},
                {ProcedureKind::Subs, {3}},
                {ProcedureKind::Events, {5}},
                {ProcedureKind::Functions, {7}},
                {ProcedureKind::Properties, {9}}};
  for (const auto& c : kCases) EXPECT_EQ(LinesFound(lines, {c.kind}), c.rows) << static_cast<int>(c.kind);
}

TEST_F(Scan, EventsPassEveryVisibility) {
  const Code lines = {"Dim a", "", "Private Sub cmd_Click()", "End Sub"};
  EXPECT_THAT(LinesFound(lines, {ProcedureKind::Events, Visibility::Public}), ElementsAre(3));
}

TEST_F(Scan, ANameFilterSetsAllVisibilitiesButPrivateAside) {
  const Code lines = {"Dim a", "", "Public Sub Pay()", "End Sub", "Private Sub PayBack()", "End Sub"};
  EXPECT_THAT(LinesFound(lines, {ProcedureKind::All, Visibility::Public, "pay"}), ElementsAre(3, 5));
  EXPECT_THAT(LinesFound(lines, {ProcedureKind::All, Visibility::Private, "pay"}), ElementsAre(5));
}

TEST_F(Scan, AnApostropheCutsTheLineEvenInAString) {
  EXPECT_THAT(LinesFound({"Dim a", "", "x = \"it's a Sub here\"", "Sub Real()", "End Sub"}), ElementsAre(4));
}

// What is left is "Exit Sub '": it has the word, a blank in front of it, and no "END ".
TEST_F(Scan, ACommentedExitInsideABodyThatIsScannedIsARow) {
  EXPECT_THAT(LinesFound({"Sub First()", "  Exit Sub 'done", "End Sub"}), ElementsAre(1, 2));
}

TEST_F(Scan, AProcedureOnTheFirstLineHasItsBodyScanned) {
  EXPECT_THAT(LinesFound({"Sub First()", "  Call Sub two", "End Sub", "Sub Second()", "  Call Sub two", "End Sub"}),
              ElementsAre(1, 2, 4));
}

TEST_F(Scan, AWordInsideAnotherEndsTheLookAtTheLine) {
  EXPECT_THAT(LinesFound({"Dim a", "", "Property Let Subject(strSub As String)", "End Property"}), IsEmpty());
}

TEST_F(Scan, WithAVisibilityWordEveryLineThatHoldsItCounts) {
  const Code lines = {"Dim a", "", "Sub First()", "  Static n As Long", "End Sub", "Static Sub Two()", "End Sub"};
  EXPECT_THAT(LinesFound(lines, {ProcedureKind::All, Visibility::Static}), ElementsAre(4, 6));
}

TEST_F(Scan, AContinuedHeaderIsOneRow) {
  EXPECT_THAT(LinesFound({"Dim a", "", "Function Sum(a, _", "    b)", "End Function"}), ElementsAre(3));
}

TEST_F(Scan, LinesOfFourCharactersAreNothing) {
  const Code four = {"Dim a", "", "Sub First()", "End Sub", "Sub ", "Sub Second()", "End Sub"};
  EXPECT_THAT(LinesFound(four), ElementsAre(3, 6));
  const Code five = {"Dim a", "", "Sub First()", "End Sub", "Sub 'x", "Sub Second()", "End Sub"};
  EXPECT_THAT(LinesFound(five), ElementsAre(3, 5));
}

TEST_F(Scan, AModuleOfOneLineHasNoRows) {
  EXPECT_THAT(LinesFound(Code{}), IsEmpty());
  EXPECT_THAT(LinesFound({"Sub First()"}), IsEmpty());
}

TEST_F(Scan, FailingQuestionsAboutTheProcedureKeepTheScanGoing) {
  CountingModule module(Load({"Dim a", "", "Sub First()", "  Call Sub two", "End Sub", "Sub Two()", "End Sub"}));
  module.fail_procedure_calls = 35;
  EXPECT_THAT(LinesFound(module, {}), ElementsAre(3, 4, 6));
}

// 20 procedures of 40 lines: of each the lines in front of its header, the header and its "End" are read.
TEST_F(Scan, CostsAFewCallsForEachProcedure) {
  Code lines = {"Option Explicit"};
  for (int i = 0; i < 20; ++i) {
    lines.push_back("");
    lines.push_back("Public Sub Proc" + std::to_string(i) + "()");
    for (int k = 0; k < 37; ++k) lines.push_back("    x = x + 1");
    lines.push_back("End Sub");
  }
  CountingModule module(Load(lines));
  EXPECT_EQ(LinesFound(module, {}).size(), 20u);
  EXPECT_EQ(module.calls["Lines"], 20 * 3);
  EXPECT_EQ(module.calls["ProcOfLine"], 20);
  EXPECT_EQ(module.calls["ProcStartLine"], 20);
  EXPECT_EQ(module.calls["ProcCountLines"], 20);
  EXPECT_EQ(module.Total(), 20 * 6 + 2);
}

TEST_F(Scan, ANameFilterReadsEachLineOnce) {
  Code lines = {"Option Explicit", ""};
  for (int i = 0; i < 100; ++i) lines.push_back("    x = x + 1");
  CountingModule module(Load(lines));
  LinesFound(module, {ProcedureKind::All, Visibility::All, "pay"});
  EXPECT_LE(module.calls["Lines"], module.CountOfLines());
  EXPECT_EQ(module.calls["ProcOfLine"], 0);
}

TEST(IsPlainSub, TellsByTheUnderscoreInTheName) {
  const struct {
    const char* line;
    bool plain, event;
  } kCases[] = {{"PRIVATE SUB TIDY()", true, false},      {"PRIVATE SUB FORM_LOAD()", false, true},
                {"SUB TIDY(A_B)", true, false},           {"SUB TIDY", false, false},
                {"SUB FORM_LOAD", false, false},          {"FUNCTION X_Y()", false, false},
                {"DECLARE_SUB X SUB TIDY()", true, false}};
  for (const auto& c : kCases) {
    EXPECT_EQ(explorer::IsPlainSub(c.line), c.plain) << c.line;
    EXPECT_EQ(explorer::IsEventSub(c.line), c.event) << c.line;
  }
}

// A two-byte character whose second byte is that of an underscore.
TEST(IsPlainSub, ASecondByteOfACharacterIsNoUnderscore) {
  runtime::SetAnsiCodePage(932);
  EXPECT_TRUE(explorer::IsPlainSub("SUB \x83\x5F\x83\x43()"));
  EXPECT_FALSE(explorer::IsEventSub("SUB \x83\x5F\x83\x43()"));
  EXPECT_FALSE(explorer::IsPlainSub("SUB \x83\x5F_CLICK()"));
  EXPECT_TRUE(explorer::IsEventSub("SUB \x83\x5F_CLICK()"));
  runtime::SetAnsiCodePage(1252);
  EXPECT_TRUE(explorer::IsEventSub("SUB \x83\x5F\x83\x43()"));
}

TEST_F(Scan, ANameFilterDoesNotFindASecondByte) {
  const auto module = Load({"Dim a", "", "Sub \x83\x41()", "End Sub", "Sub \x83\x41_Pay1()", "End Sub"});
  runtime::SetAnsiCodePage(932);
  EXPECT_THAT(LinesFound(*module, {ProcedureKind::All, Visibility::All, "a"}), ElementsAre(5));
  EXPECT_THAT(LinesFound(*module, {ProcedureKind::All, Visibility::All, "\x83\x41"}), ElementsAre(3, 5));
  runtime::SetAnsiCodePage(1252);
}

}  // namespace
}  // namespace corvane::tests
