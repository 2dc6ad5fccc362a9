// The word that the code view asks the project for, without a window.
#include "explorer/sought_word.h"

#include <gtest/gtest.h>

#include "environment/environment.h"
#include "tests/support/fake_services.h"
#include "tests/support/sources.h"

namespace corvane::tests {
namespace {

using explorer::SoughtIn;
using explorer::SoughtWord;
using explorer::TypeOfVariable;

class SoughtWords : public ::testing::Test {
 protected:
  host::CodeModule& Module(const std::vector<std::string>& lines) {
    environment = environment::Environment::Create(services.files, &services.clipboard);
    environment->OpenFromModules("Shop", {Bas("modMain", lines)});
    module = environment->ActiveVBProject()->VBComponents()->Item("modMain")->CodeModule();
    return *module;
  }
  long LineIn(const std::string& text, const std::vector<std::string>& lines) {
    return SoughtIn(text).LineIn(Module(lines));
  }
  std::string TypeIn(const std::vector<std::string>& lines) { return TypeOfVariable(Module(lines), "STORE"); }

  FakeServices services;
  std::shared_ptr<environment::Environment> environment;
  host::Ref<host::CodeModule> module;
};

TEST_F(SoughtWords, ABlankInFrontAsksForADeclaration) {
  const SoughtWord procedure = SoughtIn("Fill");
  EXPECT_FALSE(procedure.declared);
  EXPECT_EQ(procedure.name, " FILL(");
  const SoughtWord declaration = SoughtIn(" Total()");
  EXPECT_TRUE(declaration.declared);
  EXPECT_EQ(declaration.name, " TOTAL()");
  EXPECT_EQ(declaration.bare, " TOTAL");
  EXPECT_EQ(SoughtIn(" TOTAL").bare, " TOTAL");
}

TEST_F(SoughtWords, WhatStandsBeforeTheDotIsTheObject) {
  const SoughtWord word = SoughtIn("FRMMAIN.Fill");
  EXPECT_TRUE(word.dotted);
  EXPECT_EQ(word.object, "FRMMAIN");
  EXPECT_EQ(word.name, "FILL(");
  EXPECT_FALSE(SoughtIn("Fill").dotted);
}

TEST_F(SoughtWords, RowsOfProcedures) {
  const struct {
    const char *text, *row;
    bool passes;
  } kCases[] = {
      {"Fill", "PUBLIC SUB FILL()", true},
      {"Fill", "FUNCTION FILL(BYVAL A AS LONG)", true},
      {"Fill", "PROPERTY GET FILL() AS LONG", true},
      {"Fill", "CALL FILL(1)", false},
      {"Fill", "PUBLIC SUB REFILL()", false},
      {"Fill", "X = FILL(1): CALL SUB ", false},   // the keyword must stand in front
      {"Main.Fill", "PUBLIC SUB REFILL()", true},  // behind a dot the blank is gone
      {"Fill", "EVENT FILL()", false},
  };
  for (const auto& c : kCases) EXPECT_EQ(SoughtIn(c.text).IsIn(c.row), c.passes) << c.text << " in " << c.row;
}

TEST_F(SoughtWords, RowsOfDeclarations) {
  const struct {
    const char *text, *row;
    bool passes;
  } kCases[] = {
      {" TOTAL", "PUBLIC TOTAL AS LONG", true},
      {" TOTAL", "PUBLIC CONST TOTAL = 3", true},
      {" TOTAL", "DECLARE SUB TOTAL LIB \"SHOP\" ()", true},
      {" TOTAL", "PUBLIC FUNCTION TOTAL(A) AS LONG", true},
      {" TOTAL", "PUBLIC FUNCTION TOTAL(A(), B) AS LONG", false},  // the first bracket that closes
      {" TOTAL", "PUBLIC SUB TOTAL(A AS LONG)", false},
      {" TOTAL()", "PUBLIC TOTAL() AS LONG", true},
      {" TOTAL()", "PUBLIC FUNCTION TOTAL(A) AS LONG", true},
      {" TOTAL", "PUBLIC SUBTOTAL AS LONG", false},
      {" TOTAL", "PUBLIC TOTALS AS LONG", false},
  };
  for (const auto& c : kCases) EXPECT_EQ(SoughtIn(c.text).IsIn(c.row), c.passes) << c.text << " in " << c.row;
}

TEST_F(SoughtWords, AProcedureIsFoundBehindItsCalls) {
  EXPECT_EQ(LineIn("Fill", {"Public a", "Sub Main()", "x = Fill(1)", "End Sub", "Function Fill(a)", "End Function"}),
            5);
  EXPECT_EQ(LineIn("Fill", {"Public a", "Sub Main()", "x = Fill(1)", "End Sub"}), 0);
  EXPECT_EQ(LineIn("Fill", {"Public a", "Sub Main()", "End Sub", "x = Fill(1)"}), 0) << "a call on the last line";
}

TEST_F(SoughtWords, AHeaderInACommentIsNone) {
  EXPECT_EQ(LineIn("Fill", {"Public a", "' the Sub Fill() is below", "Sub Fill()", "End Sub"}), 3);
}

TEST_F(SoughtWords, DeclarationsByTheirFourForms) {
  EXPECT_EQ(LineIn(" TOTAL", {"Public a", "Public Total As Long"}), 2);
  EXPECT_EQ(LineIn(" TOTAL", {"Public a", "Public Const Total = 3"}), 2);
  EXPECT_EQ(LineIn(" TOTAL", {"Public a", "Declare Sub Total Lib \"shop\" ()"}), 2);
  EXPECT_EQ(LineIn(" TOTAL", {"Public a", "Public Total(10)"}), 2);
  EXPECT_EQ(LineIn(" TOTAL", {"Public a", "Public Subtotal As Long"}), 0);
}

TEST_F(SoughtWords, DeclarationsCountInTheDeclarationLinesOnly) {
  EXPECT_EQ(LineIn(" TOTAL", {"Public a", "", "Sub Main()", "Dim Total As Long", "End Sub"}), 0);
}

TEST_F(SoughtWords, ADeclarationInACommentIsPassedOver) {
  EXPECT_EQ(LineIn(" TOTAL", {"Public a ' Total As Long", "Public Total As Long"}), 2);
}

TEST_F(SoughtWords, TypesOfVariables) {
  EXPECT_EQ(TypeIn({"Public Store As clsStore"}), "CLSSTORE");
  EXPECT_EQ(TypeIn({"Public Store As New clsStore"}), "CLSSTORE");
  EXPECT_EQ(TypeIn({"Public Store As clsStore, Other As Long"}), "CLSSTORE");
  EXPECT_EQ(TypeIn({"Public Store As clsStore _", ", Other As Long"}), "CLSSTORE");
  EXPECT_EQ(TypeIn({"Public Store As clsStore ' Store As Long"}), "CLSSTORE");
}

TEST_F(SoughtWords, OnlyTheFirstPlaceTellsAType) {
  EXPECT_EQ(TypeIn({"Public Price As Currency ' Store As clsStore", "Public Store As clsStore"}), "");
  EXPECT_EQ(TypeIn({"Public a", "", "Sub Main()", "Dim Store As clsStore", "End Sub"}), "");
  EXPECT_EQ(TypeIn({"Public a"}), "");
}

}  // namespace
}  // namespace corvane::tests
