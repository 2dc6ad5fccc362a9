#include <gtest/gtest.h>

#include "marked_text.h"

namespace corvane::codelist {
namespace {

struct Case {
  const char* line;
  const char* marked;  // "^" bold, "{" a level up, "}" a level down
};

void PrintTo(const Case& c, std::ostream* out) {
  *out << c.line;
}

class VbWords : public testing::TestWithParam<Case> {};

TEST_P(VbWords, AreMarked) {
  EXPECT_EQ(Vb(GetParam().line), GetParam().marked);
}

INSTANTIATE_TEST_SUITE_P(
    EachRow, VbWords,
    testing::Values(Case{"end if", "}^End If}{"}, Case{"end with", "}^End With}{"},
                    Case{"END SELECT", "}^End Select}{"}, Case{"elseif x then", "}^ElseIf{ x }^Then{"},
                    Case{"else", "}^Else{"}, Case{"else: x", "}^Else{: x"}, Case{"else'x", "}^Else{'x"},
                    Case{"exit for", "Exit For"}, Case{"exit do", "Exit Do"}, Case{"exit while", "Exit While"},
                    Case{"if a", "^If{ a"}, Case{"if(a", "^If{(a"}, Case{"in x", "}^In{ x"}, Case{"then", "}^Then{"},
                    Case{"then'", "}^Then{'"}, Case{"to 5", "}^To{ 5"}, Case{"for each a in b", "^For Each{ a }^In{ b"},
                    Case{"for i = 1 to 2", "^For{ i = 1 }^To{ 2"}, Case{"with a", "^With{ a"},
                    Case{"while a", "^While{ a"}, Case{"wend", "}^Wend}{"}, Case{"wend:", "}^Wend}{:"},
                    Case{"resume next", "Resume Next"}, Case{"next i", "}^Next}{ i"}, Case{"<% x", "^<%}{ x"},
                    Case{"x %>", "x ^%>}{"}, Case{"select case a", "^Select Case{ a"}, Case{"step 2", "}^Step{ 2"},
                    Case{"case else", "}^Case Else{ "}, Case{"case 1", "}^Case{ 1"}, Case{"do while a", "^Do While{ a"},
                    Case{"do until a", "^Do Until{ a"}, Case{"do", "^Do{ "}, Case{"loop while a", "}^Loop While}{ a"},
                    Case{"loop until a", "}^Loop Until}{ a"}, Case{"loop", "}^Loop}{ "}));

INSTANTIATE_TEST_SUITE_P(ThatOnlyLookAlike, VbWords,
                         testing::Values(Case{"Double", "Double"}, Case{"CaseElse", "CaseElse"},
                                         Case{"If\ta", "If     a"}, Case{"Next:", "Next:"},
                                         Case{"Loop: Do:", "Loop: Do:"}, Case{"Then(", "Then("}, Case{"Xif a", "Xif a"},
                                         Case{".With a", ".With a"}, Case{"Select Cases", "Select Cases"},
                                         Case{"\"a\"If b", "\"a\"If b"}, Case{"End  If", "End  ^If{"}));

INSTANTIATE_TEST_SUITE_P(ThatMatchByTheirStart, VbWords,
                         testing::Values(Case{"End Iffy", "}^End If}{fy"}, Case{"resume nextline", "Resume Nextline"},
                                         Case{"RESUME NEXT", "Resume NEXT"}, Case{"Exit Forward", "Exit Forward"},
                                         Case{"Do Whileloop", "^Do While{loop"}));

INSTANTIATE_TEST_SUITE_P(BehindAWord, VbWords,
                         testing::Values(Case{"Next Next", "}^Next}{ Next"}, Case{"Next  Next", "}^Next}{  }^Next}{ "},
                                         Case{"Then If a", "}^Then{ ^If{ a}"}, Case{"Else If a", "}^Else{ ^If{ a"},
                                         Case{"<%If a", "^<%}{If a"}, Case{"<% If a", "^<%}{ ^If{ a"},
                                         Case{"x: Next", "x: }^Next}{ "}, Case{"Case 1 To 2", "}^Case{ 1 }^To{ 2"}));

INSTANTIATE_TEST_SUITE_P(
    OneLineIf, VbWords,
    testing::Values(Case{"If a Then b", "^If{ a }^Then{ b}"}, Case{"If a Then", "^If{ a }^Then{"},
                    Case{"If a Then b Else c", "^If{ a }^Then{ b }^Else{ c}"},
                    Case{"If a Then If b Then c", "^If{ a }^Then{ ^If{ b }^Then{ c}"},
                    Case{"If a Then If b Then 10", "^If{ a }^Then{ ^If{ b }^Then{ 10"},
                    Case{"If a Then If b Then 'c", "^If{ a }^Then{ ^If{ b }^Then{ 'c"},
                    Case{"If a Then: b", "^If{ a Then: b"}, Case{"If a Then \"abc\"", "^If{ a }^Then{ \"abc\""},
                    Case{"If a Then _", "^If{ a }^Then{ _}"}, Case{"If a Then [x]", "^If{ a }^Then{ [x]}"},
                    Case{"If a Then \xE4", "^If{ a }^Then{ \xE4}"}, Case{"ElseIf a Then b", "}^ElseIf{ a }^Then{ b}"}));

TEST(Analyser, LeavesAKeywordInAStringAlone) {
  EXPECT_EQ(Vb("x = \"End If\""), "x = \"End If\"");
}

TEST(Analyser, LeavesAKeywordInACommentAlone) {
  EXPECT_EQ(Vb("x 'End If\tx"), "x 'End If\tx");
}

TEST(Analyser, ExitForLeavesTheLevelAlone) {
  EXPECT_EQ(Vb("    Exit For"), "    Exit For");
}

TEST(Analyser, FindsNextAtTheEndOfALine) {
  EXPECT_EQ(Vb("Next"), "}^Next}{ ");
}

TEST(Analyser, OpenForInputIsNoLoop) {
  EXPECT_EQ(Vb("Open f For Input As 1"), "Open f For Input As 1");
}

TEST(Analyser, AnOpenBehindTheForDoesNotHinderIt) {
  EXPECT_EQ(Vb("For i = 1 To Open"), "^For{ i = 1 }^To{ Open");
}

TEST(Analyser, AnOpenAnywhereInFrontHindersTheFor) {
  EXPECT_EQ(Vb("Reopen x: For i"), "Reopen x: For i");
  EXPECT_EQ(Vb("x = \"open \": For i"), "x = \"open \": For i");
}

TEST(Analyser, MarksAnIfBehindTheNumberSign) {
  EXPECT_EQ(Vb("#If a Then"), "#^If{ a }^Then{");
}

TEST(Analyser, ElseIfStaysNeutral) {
  const std::string marked = Vb("ElseIf x Then");
  EXPECT_EQ(std::count(marked.begin(), marked.end(), '{'), std::count(marked.begin(), marked.end(), '}'));
}

TEST(Analyser, FindsCaseElseAtTheEndOfALine) {
  EXPECT_EQ(Vb("  Case Else"), "  }^Case Else{ ");
}

TEST(Analyser, FindsDoAloneOnALine) {
  EXPECT_EQ(Vb("Do"), "^Do{ ");
}

TEST(Analyser, ClosesAOneLineIfInFrontOfItsComment) {
  EXPECT_EQ(Vb("If x Then y 'z"), "^If{ x }^Then{ y }'z");
}

TEST(Analyser, LeavesAnIfOpenWhenOnlyACommentFollows) {
  EXPECT_EQ(Vb("If x Then 'z"), "^If{ x }^Then{ 'z");
}

TEST(Analyser, LeavesAnIfOpenWhenANumberFollows) {
  EXPECT_EQ(Vb("If x Then 100"), "^If{ x }^Then{ 100");
}

TEST(Analyser, TurnsATabIntoFiveBlanksButNotInAStringOrAComment) {
  EXPECT_EQ(Vb("a\tb"), "a     b");
  EXPECT_EQ(Vb("\"a\tb\""), "\"a\tb\"");
  EXPECT_EQ(Vb("\tNext"), "     }^Next}{ ");
}

TEST(Analyser, DoesNotKnowRem) {
  EXPECT_EQ(Vb("Rem if a"), "Rem ^If{ a");
}

TEST(Analyser, CopiesTheRestBehindAStringWithoutEnd) {
  EXPECT_EQ(Vb("x = \"a If b"), "x = \"a If b");
}

TEST(Analyser, ASecondAnalysisOfCleanedTextAddsNothing) {
  EXPECT_EQ(Vb("Next "), "}^Next}{ ");
  EXPECT_EQ(Vb("Case Else "), "}^Case Else{ ");
}

class EndOfProcedure : public testing::TestWithParam<std::pair<const char*, bool>> {};

TEST_P(EndOfProcedure, IsTold) {
  AnalysisState state;
  const auto& [line, ends] = GetParam();
  EXPECT_EQ(Analysed(Language::Vb, state, line), line) << "no mark is written";
  EXPECT_EQ(state.endOfProc, ends);
}

INSTANTIATE_TEST_SUITE_P(Lines, EndOfProcedure,
                         testing::Values(std::pair{"End Sub", true}, std::pair{"end function", true},
                                         std::pair{"  End Property 'x", true}, std::pair{"x: End Sub", true},
                                         std::pair{"End Subject", true}, std::pair{"Rem End Sub", true},
                                         std::pair{"'End Sub", false}, std::pair{"x = \"End Sub\"", false},
                                         std::pair{"Send Sub", false}, std::pair{"End", false},
                                         std::pair{"End Su", false}));

class EndWatch : public testing::TestWithParam<std::pair<const char*, bool>> {};

TEST_P(EndWatch, LooksAnywhereInTheCode) {
  EXPECT_EQ(EndsProcedure(GetParam().first), GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(Lines, EndWatch,
                         testing::Values(std::pair{"End Sub", true}, std::pair{"Send Subject", true},
                                         std::pair{"end funct", true}, std::pair{"x: End Property", true},
                                         std::pair{"'End Sub", false}, std::pair{"x = \"End Sub\"", false},
                                         std::pair{"End Sub'", true}, std::pair{"End Su", false}));

}  // namespace
}  // namespace corvane::codelist
