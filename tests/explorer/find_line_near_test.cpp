#include "explorer/find_line_near.h"

#include <gtest/gtest.h>

#include "environment/environment.h"
#include "explorer/rows.h"
#include "tests/support/counting_host.h"
#include "tests/support/fake_services.h"
#include "tests/support/sources.h"

namespace corvane::tests {
namespace {

using explorer::FindLineNear;

class NearLine : public ::testing::Test {
 protected:
  // Line 1 "Option Explicit", 2 blank, 3 "Sub First()", 4 to [fillers] + 3 "a = a + 1", then "b = 2", "End Sub",
  // a blank line, "Sub Second()", "b = 2", "End Sub".
  host::CodeModule& Load(int fillers) {
    Code lines = {"Option Explicit", "", "Sub First()"};
    for (int i = 0; i < fillers; ++i) lines.push_back("    a = a + 1");
    for (const char* line : {"    b = 2", "End Sub", "", "Sub Second()", "    b = 2", "End Sub"}) lines.push_back(line);
    return LoadLines(lines);
  }
  host::CodeModule& LoadLines(const Code& lines) {
    environment->OpenFromModules("Shop", {Bas("modMain", lines)});
    module = environment->ActiveVBProject()->VBComponents()->Item("modMain")->CodeModule();
    return *module;
  }

  FakeServices services;
  std::shared_ptr<environment::Environment> environment = environment::Environment::Create(services.files);
  host::Ref<host::CodeModule> module;
};

TEST_F(NearLine, WhatIsFoundFromEachPlace) {
  const struct {
    const char* what;
    long line;
    std::string text, title;
    long found;
  } kCases[] = {
      {"the line itself", 3, "Sub First()", "", 3},
      {"blanks around the text do not matter", 4, "   a = a + 1  ", "", 4},
      {"forward before backward", 5, "b = 2", "", 8},
      {"a header farther down", 3, "Sub Second()", "", 11},
      {"a header farther up", 13, "Sub First()", "", 3},
      {"no header: not behind the end of the procedure", 4, "Sub2", "", 4},
      {"no header: upward past the start of its procedure", 9, "Option Explicit", "", 1},
      {"without the bounds of the procedure", -9, "Option Explicit", "", 1},
      {"the title is the header: bounded by the procedure", 13, "a = a + 1", "Sub Second()", 13},
      {"a row with its tail", 3, "Sub Second()" + explorer::TailOf(1), "", 11},
      {"a hit with label and number", 3, "modMain:    002   Sub Second()" + explorer::TailOf(1), "", 11},
      {"a row with a label of one word", 3, "modMain:    Sub Second()" + explorer::TailOf(1), "", 11},
      {"a hit number of four digits stays in the text", 3, "modMain:    1002   Sub Second()", "", 3},
      {"the label of the caret row has blanks and stays", -3, "A current line:    Sub Second()", "", 3},
      {"nowhere", -3, "Sub Third()", "", 3},
      {"behind the end of the module", -40, "Sub Second()", "", 11},
      {"behind the end, with bounds", 40, "Sub Second()", "", 11},
  };
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.what);
    EXPECT_EQ(FindLineNear(Load(4), c.line, c.text, c.title), c.found);
  }
}

TEST_F(NearLine, ATextThatIsNoHeaderIsLookedForOnElevenLines) {
  EXPECT_EQ(FindLineNear(Load(10), 4, "b = 2", ""), 14);  // the 11th line
  EXPECT_EQ(FindLineNear(Load(11), 4, "b = 2", ""), 4);   // the 12th
}

TEST_F(NearLine, WithoutBoundsItIsLookedForOnTwoHundredAndOneLinesEachWay) {
  EXPECT_EQ(FindLineNear(Load(200), -4, "b = 2", ""), 204);
  EXPECT_EQ(FindLineNear(Load(201), -4, "b = 2", ""), 4);
  EXPECT_EQ(FindLineNear(Load(300), -204, "Sub First()", ""), 3);
  EXPECT_EQ(FindLineNear(Load(300), -205, "Sub First()", ""), 205);
}

TEST_F(NearLine, ALineThatIsWhereItWasCostsOneLook) {
  Load(4);
  CountingModule counting(module);
  EXPECT_EQ(FindLineNear(counting, -3, "Sub First()", ""), 3);
  EXPECT_EQ(counting.calls["Lines"], 1);
}

// "Sub First()", 15 lines, its end, a function and a property on lines 20 to 25.
TEST_F(NearLine, HeadersOfEveryKindAreLookedForBeyondTheProcedure) {
  Code lines = {"Option Explicit", "", "Sub First()"};
  lines.resize(18, "    a = a + 1");
  for (const char* line :
       {"End Sub", "Function Far()", "    b = 2", "End Function", "Property Get Way()", "    b = 3", "End Property"})
    lines.push_back(line);
  host::CodeModule& code = LoadLines(lines);
  EXPECT_EQ(FindLineNear(code, 4, "Function Far()", ""), 20);
  EXPECT_EQ(FindLineNear(code, 4, "Property Get Way()", ""), 23);
  EXPECT_EQ(FindLineNear(code, 4, "b = 2", ""), 4);
}

TEST_F(NearLine, TheEndOfEveryKindOfProcedureBoundsTheSearch) {
  const char* kKinds[] = {"Sub", "Function", "Property"};
  for (const std::string kind : kKinds) {
    std::string header = kind == "Property" ? "Property Get First()" : kind + " First()";
    host::CodeModule& code =
        LoadLines({"Option Explicit", "", header, "    a = 1", "end " + kind, "Sub Second()", "    b = 2", "End Sub"});
    EXPECT_EQ(FindLineNear(code, 4, "b = 2", ""), 4) << kind;
    EXPECT_EQ(FindLineNear(code, 4, "end " + kind, ""), 5) << kind;
  }
}

TEST_F(NearLine, AProcedureWithANameOfOneLetterBoundsNothing) {
  for (const std::string name : {"A", "Ab"}) {
    Code lines = {"Option Explicit", "", "Sub " + name + "()"};
    lines.resize(20, "    a = 1");
    for (const char* line : {"End Sub", "Sub Second()", "    b = 2", "End Sub"}) lines.push_back(line);
    EXPECT_EQ(FindLineNear(LoadLines(lines), 4, "b = 2", ""), name == "A" ? 23 : 4);
  }
}

TEST_F(NearLine, AnEndInACommentDoesNotBoundTheSearch) {
  environment->OpenFromModules(
      "Shop", {Bas("modMain", {"Option Explicit", "", "Sub First()", "  a = 1 ' End Sub", "  b = 2", "End Sub"})});
  auto code = environment->ActiveVBProject()->VBComponents()->Item("modMain")->CodeModule();
  EXPECT_EQ(FindLineNear(*code, 4, "b = 2", ""), 5);
}

}  // namespace
}  // namespace corvane::tests
