#include "script/script_check.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>

#include "runtime/strings.h"
#include "script/code_pieces.h"

namespace corvane::script {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

std::string WithCrLf(const std::string& text) {
  return runtime::Replace(text, "\n", "\r\n");
}

// Of the files that a script may include.
ScriptSource SourceOf(const std::string& script, const std::map<std::string, std::string>& files = {}) {
  return ReadScriptSource(WithCrLf(script), [&](const std::string& name) -> std::optional<IncludedFile> {
    const auto file = files.find(name);
    if (file == files.end()) return std::nullopt;
    return IncludedFile{name, WithCrLf(file->second)};
  });
}

std::vector<OddPlace> PlacesIn(const std::string& script) {
  return CheckScript(SourceOf(script));
}

// The numbers of the odd lines of a piece of code, which begins in line 2 of its script.
std::vector<long> OddLines(const std::string& code) {
  std::vector<long> lines;
  const auto places = PlacesIn("CODE{\n<%" + code + "%>\n}\n");
  for (const OddPlace& place : places) lines.push_back(place.at.line);
  return lines;
}

// What the only odd place of [code] does; it is in its first line.
std::string OddThing(const std::string& code) {
  const auto places = PlacesIn("CODE{\n<%" + code + "%>\n}\n");
  if (places.size() != 1) return std::to_string(places.size()) + " places";
  EXPECT_EQ(places[0].at.line, 2) << code;
  EXPECT_FALSE(places[0].write.empty()) << code;
  return places[0].does;
}

TEST(ScriptCheck, ADescendingFor) {
  EXPECT_THAT(OddThing("FOR i=3 TO 1 STEP -1\nNEXT"), HasSubstr("descending FOR"));
  for (const char* code : {"FOR i=1 TO 3 STEP 2", "FOR i=1 TO 3 STEP 2-1", "FOR i=1 TO 3 STEP (2)"})
    EXPECT_THAT(OddLines(code), IsEmpty()) << code;
}

TEST(ScriptCheck, ADescendingForWhoseStepHidesItsSign) {
  for (const char* code : {"FOR i=3 TO 1 STEP=-1", "FOR i=3 TO 1 STEP (-1)", "FOR i=3 TO 1 STEP 0-1",
                           "FOR i=3 TO 1 STEP (0-1)", "FOR i=3 TO 1 step=(-1)"})
    EXPECT_THAT(OddThing(code), HasSubstr("no pass")) << code;
}

TEST(ScriptCheck, TwoLoopsSideBySideInALoop) {
  EXPECT_THAT(OddLines("WHILE a\nFOR i=1 TO 2\nNEXT\nFOR i=1 TO 2\nNEXT\nWEND"), ElementsAre(5));
  EXPECT_THAT(OddLines("FOR i=1 TO 2\nNEXT\nFOR i=1 TO 2\nNEXT"), IsEmpty());
  EXPECT_THAT(OddLines("WHILE a\nWHILE b\nWEND\nWEND\nWHILE a\nWHILE b\nWEND\nWEND"), IsEmpty());
}

TEST(ScriptCheck, ALoopInABesideALoopInB) {
  EXPECT_THAT(OddLines("WHILE a\nWHILE b\nWHILE c\nWEND\nWEND\nWHILE d\nWHILE e\nWEND\nWEND\nWEND"), ElementsAre(7, 8));
}

TEST(ScriptCheck, ASingleWordThatBecomesALabel) {
  for (const char* word : {"EndIf", "SHOWPLAN", "Printx"}) EXPECT_THAT(OddThing(word), HasSubstr("label")) << word;
  EXPECT_THAT(OddThing("x"), HasSubstr("dropped"));
}

TEST(ScriptCheck, AWordOfTheLanguageAsALabel) {
  for (const char* word : {"TOP", "FOR", "ex", "WHILE", "STEP"}) {
    EXPECT_THAT(OddThing(word), HasSubstr("is no label")) << word;
    EXPECT_THAT(OddThing(std::string(word) + "\nGOTO " + word), HasSubstr("is no label")) << word;
  }
}

TEST(ScriptCheck, WordsThatAreStatementsAndLabelsThatAreSought) {
  EXPECT_THAT(
      OddLines("IF a THEN\nELSE\nEND IF\nWHILE a\nCONTINUE\nWEND\nFOR i=1 TO 2\nNEXT\nSTOP\nEXIT\nDEBUG\nSTOPEX"),
      IsEmpty());
  EXPECT_THAT(OddLines("Again\nx=1\nGOTO again"), IsEmpty());
  EXPECT_THAT(OddLines("Again\nIF a THEN GOTO again"), IsEmpty());
}

TEST(ScriptCheck, AOneLineIfWithASecondStatement) {
  EXPECT_THAT(OddThing("IF a THEN b=1:c=2"), HasSubstr("in any case"));
  EXPECT_THAT(OddLines("IF a THEN b=1\nc=2"), IsEmpty());
  EXPECT_THAT(OddLines("IF a THEN b=1:\nc=2"), IsEmpty());
  EXPECT_THAT(OddLines("IF a THEN: b=1: END IF"), IsEmpty());
}

TEST(ScriptCheck, ABlankThatGoesBeforeASignOrBracket) {
  const std::pair<const char*, const char*> cases[] = {
      {"FOR i=3 TO -1", "TO"},      {"FOR i=1 TO (nn)", "TO"},   {"WHILE (a)", "WHILE"},
      {"CASE -1", "CASE"},          {"CASE (2)", "CASE"},        {"IF -1<xx THEN", "IF"},
      {"x=a AND -bb", "AND or OR"}, {"x=a or +bb", "AND or OR"}, {"IF -1<xx THEN b=1", "IF"},
  };
  for (const auto& [code, keyword] : cases) EXPECT_THAT(OddThing(code), HasSubstr(keyword)) << code;
  EXPECT_THAT(OddLines("IF (a) OR (b) THEN\nEND IF\nSELECT CASE (v)\nCASE 2\nEND SELECT\nFOR i=1 TO nn STEP -nn"),
              ElementsAre(7));
}

TEST(ScriptCheck, ASignBehindAnOperator) {
  for (const char* code :
       {"x=12*-3", "x=12/-3", "x=12*(-3)", "x=yy*(12*-3)", "x*=-2", "IF x<-1+b THEN", "x=a+-3*b", "IF a THEN x=2*-3"})
    EXPECT_THAT(OddThing(code), HasSubstr("sign")) << code;
  for (const char* code : {"x=-5", "=-5", "x=a+-3", "x+=-3", "x++", "x--", "IF x>-15 THEN", "IF x=-n THEN", "AR(1)=-5",
                           "x=MID(s,1,-15)", "FOR i=-1 TO 2", "x=\"2*-3\"", "x=[[2*-3]]", "x=2*a+-3", "x=-5*a"})
    EXPECT_THAT(OddLines(code), IsEmpty()) << code;
}

TEST(ScriptCheck, AComparisonWithASignBesideAndOrOr) {
  for (const char* code : {"IF xx=-5 AND yy=2 THEN", "IF xx=-5 or yy=7 THEN", "IF xx=-15 AND yy=2 THEN",
                           "IF yy=2 AND xx=-15 THEN", "IF xx>-15 AND yy=2 THEN", "IF xx<>-1 AND yy=0 THEN",
                           "IF xx>=-1 OR yy=7 THEN", "WHILE xx<-2 AND yy=0", "IF aa THEN\nELSEIF xx=-5 AND yy=2 THEN",
                           "zz=xx=-5 AND yy=2", "PRINT(xx=-5 OR yy=7)", "IF (xx=-5 AND yy=2) THEN"})
    EXPECT_EQ(OddLines(code).size(), 1u) << code;
  for (const char* code :
       {"IF (xx=-5) AND (yy=2) THEN", "IF xx=-5 THEN yy=aa AND bb", "IF xx=5 AND yy=2 THEN", "IF 2*aa=-5 THEN"})
    EXPECT_THAT(OddLines(code), IsEmpty()) << code;
}

TEST(ScriptCheck, AnArgumentWithASignBeforeOneThatIsComputed) {
  for (const char* code :
       {"xx=sum3(3,-15,2-3)", "xx=sum3(3,-5,nn+3)", "xx=sum3(1,-5,len(\"a\")+1)", "xx=ff(1,-5,aa&bb)",
        "CALL ss(1,-5,nn+3)", "PRINT(mid(aa,-5,nn+3))", "CASE 1,-5,nn-1", "xx=ff(aa=1,-5)"})
    EXPECT_THAT(OddThing(code), HasSubstr("sign")) << code;
  for (const char* code : {"xx=sum3(2-3,3,-15)", "xx=sum3(3,-15,(2-3))", "xx=sum3(3,-15,-5)", "xx=ff(3,-15,2*3)",
                           "CALL ss(nn+3,-5)", "xx=ff(1,-5)+nn", "SELECT CASE -5"})
    EXPECT_THAT(OddLines(code), IsEmpty()) << code;
}

TEST(ScriptCheck, ASignInAListThatTheStatementMakes) {
  for (const char* code :
       {"CALL ss(aa--3)", "SELECT CASE aa--3", "SELECT CASE -5+aa", "FOR ii=1 TO 5--3", "xx=ff(aa--3,1)"})
    EXPECT_THAT(OddThing(code), HasSubstr("sign")) << code;
}

TEST(ScriptCheck, ASignIsJudgedByItsOwnBracket) {
  for (const char* code :
       {"bb=len(left(aa,2))+-1", "bb=mid(aa,1,1)&-1", "bb=(aa<5)&-1", "IF (aa+-1)<5 THEN", "AR(1,2)=aa+-1"})
    EXPECT_THAT(OddLines(code), IsEmpty()) << code;
  for (const char* code : {"bb=len(left(aa,2))*-1", "bb=mid(aa+-1,1,1)", "IF aa+-1<5 THEN"})
    EXPECT_THAT(OddThing(code), HasSubstr("sign")) << code;
}

TEST(ScriptCheck, ANameOfOneLetterWithABracket) {
  for (const char* code : {"x=A(1)", "x=2*f(1)", "PRINT(A(1))", "FUNCTION f(aa)", "DIM A()"})
    EXPECT_THAT(OddThing(code), HasSubstr("one letter")) << code;
  for (const char* code : {"A(1)=5", "x=AR(1)", "SUB s(aa)", "CALL s(aa)", "x=\"A(1)\"", "x=(1)"})
    EXPECT_THAT(OddLines(code), IsEmpty()) << code;
}

TEST(ScriptCheck, ANameOfOneLetterAmongTheArgumentsOfACall) {
  for (const char* code : {"CALL ff(g(1))", "CALL s(g(1))", "CALL ff(1,A(1))"})
    EXPECT_THAT(OddThing(code), HasSubstr("one letter")) << code;
  EXPECT_THAT(OddLines("CALL s"), IsEmpty());
}

TEST(ScriptCheck, AStatementBeforeAComment) {
  for (const char* code :
       {"x=1 /* n */", "x=1 /* n */\ny=2", "/* m */ x=1 /* n */", "IF a THEN x=1 /* n */", "x=1 /* n */ /* m */ y=2"})
    EXPECT_THAT(OddThing(code), HasSubstr("comment")) << code;
  EXPECT_THAT(OddLines("\n/* m\n*/ x=1 /* n\n*/\ny=2"), ElementsAre(4));
  for (const char* code : {"/* n */ x=1", "/* n */", "x=1\n/* n */", "x=1\n/* n */\n", "x=1:/* n */ /*/ y=2",
                           "/* m */ /* n */ x=1", "x=\"/* n */\"", "x=1 ' /* n */\ny=2"})
    EXPECT_THAT(OddLines(code), IsEmpty()) << code;
}

TEST(ScriptCheck, AComparisonWithAText) {
  for (const char* code : {"IF aa<\"abc\" THEN", "IF \"abc\">=aa THEN", "IF aa>\"\" THEN"})
    EXPECT_THAT(OddThing(code), HasSubstr("different length")) << code;
  for (const char* code : {"IF aa<\"12\" THEN", "IF aa=\"abc\" THEN", "IF aa<>\"abc\" THEN", "IF aa<bb THEN"})
    EXPECT_THAT(OddLines(code), IsEmpty()) << code;
}

TEST(ScriptCheck, ADimOfAnArrayInALoop) {
  EXPECT_THAT(OddLines("DIM AR()\nWHILE a\nDIM BR(), cc\nDIM dd\nWEND\nDIM CR()"), ElementsAre(4));
}

TEST(ScriptCheck, ADimOfAnArrayInASub) {
  for (const char* head : {"SUB ss()", "FUNCTION ff()"})
    EXPECT_THAT(OddLines(std::string(head) + "\nDIM xx\nDIM AR()\nEND " + std::string(head).substr(0, 3) +
                         (head[0] == 'S' ? "" : "CTION") + "\nDIM BR()"),
                ElementsAre(4));
}

TEST(ScriptCheck, TwoLoopsOverTextClosedInOnePiece) {
  const auto lines = [](const std::string& ends) {
    std::vector<long> found;
    for (const OddPlace& place :
         PlacesIn("CODE{\n<%for ii=1 to 2%>\na\n<%for jj=1 to 2%>\nb\n<%\n" + ends + "\n%>\n}\n"))
      found.push_back(place.at.line);
    return found;
  };
  EXPECT_THAT(lines("next\nnext"), ElementsAre(8));
  EXPECT_THAT(lines("next\n%>\n<%\nnext"), IsEmpty());
  EXPECT_THAT(lines("for kk=1 to 2\nnext\nnext\n%>\n<%\nnext"), IsEmpty());
}

TEST(ScriptCheck, ASubInAPieceThatLeavesALoopOpen) {
  const std::string sub = "CODE{\n<%\nsub aa()\nend sub\n";
  for (const char* open : {"for ii=1 to 2\n%>\na\n<%\nnext", "if 1=1 then\n%>\na\n<%\nend if"}) {
    const auto places = PlacesIn(sub + open + "\n%>\n}\n");
    ASSERT_EQ(places.size(), 1u) << open;
    EXPECT_EQ(places[0].at.line, 4);
  }
  EXPECT_THAT(PlacesIn(sub + "if 1=1 then\nend if\nif 1=1 then =2\n%>\n<%\nfor ii=1 to 2\nnext\n%>\n}\n"), IsEmpty());
}

TEST(ScriptCheck, ANameThatEndsInAnother) {
  EXPECT_THAT(OddLines("DIM first_name,text\nDIM name"), ElementsAre(2));
  EXPECT_THAT(OddLines("DIM name\nDIM list_of_name()\nDIM a_b"), ElementsAre(3));
  EXPECT_THAT(OddLines("DIM first_name,names"), IsEmpty());
}

TEST(ScriptCheck, AStepWithoutAValue) {
  for (const char* code : {"FOR ii=1 TO 3 STEP", "for ii=1 to 3 step "})
    EXPECT_THAT(OddThing(code), HasSubstr("never ends")) << code;
}

TEST(ScriptCheck, CountsTheLinesOfTheScript) {
  std::vector<long> lines;
  for (const OddPlace& place : PlacesIn("text\nCODE{\nrow <%x=A(1)%> and <%=B(1)%>\nREM a\n<%\n' note\n\ny=1 ' note\n"
                                        "/* a\nb */\nz=f(1, _\n2)\n%><%=C(1)%>\n}\n<%=D(1)%>"))
    lines.push_back(place.at.line);
  EXPECT_THAT(lines, ElementsAre(3, 3, 11, 13));
}

TEST(ScriptCheck, ReadsWhatTheScriptIncludes) {
  const ScriptSource source = SourceOf("FORM{ff\n}\nFILE: one\n<%=C(1)%>\n}\n",
                                       {{"one", "text\nfile:two\n<%=B(1)%>"}, {"two", "CODE{\n<%=A(1)%>"}});
  EXPECT_TRUE(source.has_block);
  std::vector<std::string> places;
  for (const OddPlace& place : CheckScript(source)) places.push_back(place.at.file + std::to_string(place.at.line));
  EXPECT_THAT(places, ElementsAre("two2", "one3", "4"));
}

TEST(ScriptCheck, AFileThatIsNotThereEndsTheReading) {
  const ScriptSource source = SourceOf("FILE:one\nCODE{\n}\n", {{"one", "\n\nFILE:two"}});
  EXPECT_FALSE(source.has_block);
  ASSERT_TRUE(source.failed_include.has_value());
  EXPECT_EQ(source.failed_include->file, "one");
  EXPECT_EQ(source.failed_include->line, 3);
}

TEST(ScriptCheck, AFileThatIncludesItselfEndsTheReading) {
  EXPECT_TRUE(SourceOf("FILE:one", {{"one", "FILE:one"}}).failed_include.has_value());
  std::string many;
  for (int i = 0; i < 100; ++i) many += "FILE:one\n";
  EXPECT_TRUE(SourceOf(many + "CODE{\n", {{"one", "text"}}).has_block);
}

TEST(ScriptCheck, AScriptWithoutABlock) {
  EXPECT_FALSE(SourceOf("x=A(1)\n").has_block);
  EXPECT_FALSE(SourceOf("x=A(1)\n").has_dialog);
  EXPECT_FALSE(SourceOf("").has_block);
  EXPECT_TRUE(SourceOf("CODE{").has_block);
  for (const char* script : {"FORM{ff\n}\n", "menu{\nCODE{\n}"}) {
    EXPECT_FALSE(SourceOf(script).has_block) << script;
    EXPECT_TRUE(SourceOf(script).has_dialog) << script;
  }
}

TEST(CodePieces, StandBetweenTheirMarks) {
  const auto pieces = SourceOf("FORM{\nCODE{\n}\n code{ \na <%x=1%> b <%y=2\nrem c\nz=3%>\n}\n<%no%>").pieces;
  ASSERT_EQ(pieces.size(), 2u);
  EXPECT_EQ(pieces[0].code, "x=1");
  EXPECT_THAT(pieces[0].lines, ElementsAre(5));
  EXPECT_EQ(pieces[1].code, "y=2\tz=3");
  EXPECT_THAT(pieces[1].lines, ElementsAre(5, 7));
}

TEST(CodePieces, ABraceClosesTheBlockUnlessALiteralEndsBehindIt) {
  EXPECT_EQ(SourceOf("CODE{\n}\n<%x=1%>\n").pieces.size(), 0u);
  EXPECT_EQ(SourceOf("CODE{\n}\n<%x=1%>\n]]").pieces.size(), 1u);
}

TEST(CodePieces, ABraceInOpenCodeClosesTheBlock) {
  const auto pieces = SourceOf("CODE{\n<%x=1\n}\ny=2%>\n").pieces;
  ASSERT_EQ(pieces.size(), 1u);
  EXPECT_EQ(pieces[0].code, "x=1");
}

}  // namespace
}  // namespace corvane::script
