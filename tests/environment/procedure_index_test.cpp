#include "environment/procedure_index.h"

#include <gtest/gtest.h>

#include "tests/environment/opened.h"

namespace corvane::environment {
namespace {

using host::ProcKind;

// "declarations; name start-body-last; ..." of lines with "|" between them.
std::string Outline(std::string_view lines) {
  ModuleText text(Text(lines) + "\r\n", 0);
  ProcedureIndex index(text);
  std::string outline = std::to_string(index.DeclarationLines());
  for (const Procedure& procedure : index.Procedures()) {
    long last = procedure.start + index.LineCountOf(procedure) - 1;
    outline += "; " + std::string(index.NameOf(procedure)) + " " + std::to_string(procedure.start) + "-" +
               std::to_string(procedure.body) + "-" + std::to_string(last);
  }
  return outline;
}

struct OutlineCase {
  const char *lines, *outline;
};

class Outlines : public testing::TestWithParam<OutlineCase> {};
TEST_P(Outlines, AreAsTheEnvironmentSees) {
  EXPECT_EQ(Outline(GetParam().lines), GetParam().outline) << GetParam().lines;
}

INSTANTIATE_TEST_SUITE_P(
    Declarations, Outlines,
    testing::Values(
        OutlineCase{"Option Explicit||'c|Sub A()|End Sub", "1; A 2-4-5"},
        OutlineCase{"Dim x|'attached|'too||Sub A()|End Sub", "3; A 4-5-6"},
        OutlineCase{"Dim x|'attached|Sub A()|End Sub", "2; A 3-3-4"},
        OutlineCase{"'block|'of comments||Sub A()|End Sub", "2; A 3-4-5"},
        OutlineCase{"'directly above|Sub A()|End Sub", "0; A 1-2-3"}, OutlineCase{"|'c|Sub A()|End Sub", "0; A 1-3-4"},
        OutlineCase{"Dim x", "1"}, OutlineCase{"'only a comment", "1"},
        OutlineCase{"Type T|  Function As Long|  Sub As Long|  Property As Long|End Type|Sub A()|End Sub",
                    "5; A 6-6-7"},
        OutlineCase{"Private Enum E: A: B: End Enum|Sub A()|End Sub|Sub B()|End Sub", "1; A 2-2-3; B 4-4-5"},
        OutlineCase{"Type T: a As Long: End Type|Sub A()|End Sub", "1; A 2-2-3"},
        OutlineCase{"Enum E: A|  B: End Enum|Sub A()|End Sub", "2; A 3-3-4"},
        OutlineCase{"Enum E: A 'to: End Enum|  Function|End Enum|Sub A()|End Sub", "3; A 4-4-5"},
        OutlineCase{"Private Declare Sub S Lib \"x\" ()|Public Event E()|Sub A()|End Sub", "2; A 3-3-4"},
        OutlineCase{"#If Win32 Then|Declare Sub S Lib \"x\" ()|#Else|#End If|Sub A()|End Sub", "4; A 5-5-6"},
        OutlineCase{"Dim x|#If D Then|#End If|Sub A()|End Sub", "1; A 2-4-5"},
        OutlineCase{"Dim x|#Const D = 1|Sub A()|End Sub", "1; A 2-3-4"},
        OutlineCase{"#Const D = 1|Sub A()|End Sub", "0; A 1-2-3"},
        OutlineCase{"Dim x, _|  y|Sub A()|End Sub", "2; A 3-3-4"},
        OutlineCase{"Dim x|'a comment _|that goes on|Sub A()|End Sub", "3; A 4-4-5"}));

INSTANTIATE_TEST_SUITE_P(
    Procedures, Outlines,
    testing::Values(OutlineCase{"Sub A()|End Sub|'below|Sub B()|End Sub||", "0; A 1-1-2; B 3-4-7"},
                    OutlineCase{"Public Static Function F$(a)|End Function", "0; F 1-1-2"},
                    OutlineCase{"Friend Property Get P() As Long|End Property", "0; P 1-1-2"},
                    OutlineCase{"Sub A( _|  x)|End Sub|Sub B()|End Sub", "0; A 1-1-3; B 4-4-5"},
                    OutlineCase{"Private _|  Sub _|  A()|End Sub", "0; A 1-1-4"},
                    OutlineCase{"Sub A(): x = 1: End Sub|Sub B()|End Sub", "0; A 1-1-1; B 2-2-3"},
                    OutlineCase{"Sub A()|x = 1: End Sub|Sub B()|End Sub", "0; A 1-1-2; B 3-3-4"},
                    OutlineCase{"Sub A()|x = \": End Sub\"|y ': End Sub|End Sub", "0; A 1-1-4"},
                    OutlineCase{"Sub A()|' comment _|Sub B()|End Sub", "0; A 1-1-4"},
                    OutlineCase{"#If X Then|Sub A(x)|#Else|Sub A(y)|#End If|End Sub|Sub B()|End Sub",
                                "0; A 1-2-6; B 7-7-8"},
                    OutlineCase{"#If X Then|Sub A()|End Sub|#Else|Sub A()|End Sub|#End If", "0; A 1-2-3; A 4-5-7"},
                    OutlineCase{"Sub A()|Sub B()|End Sub", "0; A 1-1-1; B 2-2-3"},
                    OutlineCase{"Sub A()|End Function|Sub B()|End Sub", "0; A 1-1-2; B 3-3-4"},
                    OutlineCase{"Sub A()|End Sub|End Sub|Sub B()|End Sub", "0; A 1-1-2; B 3-4-5"},
                    OutlineCase{"End Sub|Sub B()|End Sub", "0; B 1-2-3"},
                    OutlineCase{"Sub A()|10 End Sub|Sub B()|End Sub", "0; A 1-1-2; B 3-3-4"},
                    OutlineCase{"Sub A()|End Sub|Dim late", "0; A 1-1-3"},
                    OutlineCase{"Sub A()|Rem see: End Sub|x = 1|End Sub|Sub B()|End Sub", "0; A 1-1-4; B 5-5-6"},
                    OutlineCase{"Sub A()|x = 1: Rem see: End Sub|End Sub|Sub B()|End Sub", "0; A 1-1-3; B 4-4-5"},
                    OutlineCase{"Sub A()|10 Rem see: End Sub|End Sub|Sub B()|End Sub", "0; A 1-1-3; B 4-4-5"},
                    OutlineCase{"Sub A()|If x Then Rem see: End Sub|End Sub|Sub B()|End Sub", "0; A 1-1-3; B 4-4-5"},
                    OutlineCase{"Sub A()|o.Rem = remark: End Sub|Sub B()|End Sub", "0; A 1-1-2; B 3-3-4"},
                    OutlineCase{"Sub A(): Rem see: End Sub|x = 1|End Sub|Sub B()|End Sub", "0; A 1-1-3; B 4-4-5"},
                    OutlineCase{"Sub A()|x \"Rem \": End Sub|Sub B()|End Sub", "0; A 1-1-2; B 3-3-4"},
                    OutlineCase{"  private  SUB\tA ()|  end  sub", "0; A 1-1-2"},
                    OutlineCase{"Sub \xC4\xD6()|End Sub", "0; \xC4\xD6 1-1-2"}));

TEST(ProcedureIndex, FindsNamesInAnyCaseOfTheCodePage) {
  ModuleText text("Sub \xC4pfel()\nEnd Sub\n", 0);
  ProcedureIndex index(text);
  ASSERT_NE(index.Find("\xE4PFEL", ProcKind::Proc), nullptr);
  EXPECT_EQ(index.Find("\xE4PFEL", ProcKind::Get), nullptr);
}

TEST(ProcedureIndex, TheFirstOfEqualNamesIsFound) {
  ModuleText text("Sub A()\nEnd Sub\nSub A()\nEnd Sub\n", 0);
  ProcedureIndex index(text);
  EXPECT_EQ(index.Find("A", ProcKind::Proc)->body, 1u);
  EXPECT_EQ(index.At(4)->body, 3u);
}

}  // namespace
}  // namespace corvane::environment
