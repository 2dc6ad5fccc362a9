#include "script/vb_strings.h"

#include <gtest/gtest.h>

#include "script/arguments.h"
#include "script/marks.h"
#include "tests/support/processor_time.h"

namespace corvane::script {
namespace {

TEST(VbStrings, TextsBecomeSource) {
  const struct {
    std::string text, source;
  } cases[] = {
      {"", "\"\""},
      {"abc", "\"abc\""},
      {"say \"x\"", "\"say \"\"x\"\"\""},
      {"\"abc", "abc\""},
      {"a\r\nb", "\"a\" + vbCrLf _\r\n+\"b\""},
      {std::string(70, 'x'), "\"" + std::string(66, 'x') + "\" _\r\n+\"xxxx\""},
      {std::string(54, 'x') + " y", "\"" + std::string(54, 'x') + " \" _\r\n+\"y\""},
      {std::string(53, 'x') + " y", "\"" + std::string(53, 'x') + " y\""},
      {"a:b", "\"a:b\""},
  };
  for (const auto& c : cases) EXPECT_EQ(VBSTR(c.text, false), c.source) << c.text;
}

TEST(VbStrings, NamesOfAnSqlTextAreJoined) {
  const struct {
    std::string text, source;
  } cases[] = {
      {"id=:nId", "\"id=\"+CStr(nId)"},
      {"id=:nId,b", "\"id=\"+CStr(nId)+\",b\""},
      {"in (:nId)", "\"in (\"+CStr(nId)+\")\""},
      {":nId", "\":nId\""},
      {"id=:aNameThatIsTooLong", "\"id=:aNameThatIsTooLong\""},
      {"a b:", "\"a b:\""},
      {"id =:sIndex,", "\"id =\"+CStr(sIndex)+\",\""},
      {"id =:txtA.Value,", "\"id =\"+CStr(txtA.Value)+\",\""},
  };
  for (const auto& c : cases) EXPECT_EQ(VBSTR(c.text, true), c.source) << c.text;
}

TEST(VbStrings, ANameOfATextIsQuotedAndTidied) {
  EXPECT_EQ(VBSTR("like :sName,", true), "\"like \"+\"'\"+sName\"',\"");
  EXPECT_EQ(VBSTR("name=:sName,", true), "\"name='\"+sName\"',\"");
  EXPECT_EQ(VBSTR("name=:txtA.Text,", true), "\"name='\"+txtA.Text\"',\"");
}

TEST(VbStrings, ANameOfATextInTheMiddleIsNotJoinedToTheRest) {
  EXPECT_EQ(VBSTR("where name=:sName, id=1", true), "\"where name='\"+sName\"', id=1\"");
}

TEST(VbStrings, ANameEndsAtACommaAColonABracketOrTheEnd) {
  EXPECT_EQ(VBSTR("(a=:nA)", true), "\"(a=\"+CStr(nA)+\")\"");
  EXPECT_EQ(VBSTR("xx :nA:", true), "\"xx \"+CStr(nA)+\":\"");
  EXPECT_EQ(VBSTR("id=:nId order by 1", true), "\"id=\"+CStr(nId order by 1)") << "a blank does not end it";
}

TEST(VbStrings, APlusInFrontOfAQuoteGoesWithIt) {
  EXPECT_EQ(VBSTR("a+\"b\"", false), "\"ab\"\"\"");
  EXPECT_EQ(UNVBSTR(VBSTR("a+\"b\"", false)), "ab\"");
  EXPECT_EQ(VBSTR("a\r\n\"b", false), "\"a\" + vbCrLf _\r\n\"b\"");
}

TEST(VbStrings, ATextThatIsCutAtItsEndLeavesAnOpenContinuation) {
  EXPECT_EQ(VBSTR("a\r\n", false), "\"a\" + vbCrLf _\r\n");
  EXPECT_EQ(VBSTR(std::string(66, 'x'), false), "\"" + std::string(66, 'x') + "\" _\r\n");
}

TEST(VbStrings, ALongTextOfNamesIsReadInOneWalk) {
  std::string text = "xx";
  for (int i = 0; i < 100'000; ++i) text += ":(";
  EXPECT_LT(tests::SecondsOf([&] { EXPECT_EQ(VBSTR(text, true).substr(0, 8), "\"xx:(:(:"); }), 2);
}

TEST(VbStrings, ANameAtTheEndIsJoinedOnBothSides) {
  EXPECT_EQ(VBSTR("name=:sName", true), "\"name='\"+sName+\"'\"");
  EXPECT_EQ(VBSTR("id=:nId", true), "\"id=\"+CStr(nId)");
}

TEST(VbStrings, SourceBecomesText) {
  const struct {
    std::string source, text;
  } cases[] = {
      {"\"abc\"", "abc"},
      {"\"a\"\"b\"", "a\"b"},
      {"\"a\" & vbCrLf & \"b\"", "a\r\nb"},
      {"\"a\" + VBCRLF _\r\n+ \"b\"", "a\r\nb"},
      {"\"a\" + name + \"b\"", "anameb"},
      {"\"open", "open"},
      {"", ""},
      {"_a_", "a"},
  };
  for (const auto& c : cases) EXPECT_EQ(UNVBSTR(c.source), c.text) << c.source;
}

TEST(VbStrings, ATextComesBackFromItsSource) {
  for (const std::string text :
       {"abc", "a, b\r\nc d", "select * from t where a = 1 and b = 2 and c = 3 and d = 4 order by 5"})
    EXPECT_EQ(UNVBSTR(VBSTR(text, false)), text);
}

TEST(Arguments, ListsAreSplitAtTheirSeparators) {
  const std::string sep(1, listSep);
  using Parts = std::vector<std::string>;
  EXPECT_EQ(SplitArguments("a" + sep + sep + "b"), (Parts{"a", "", "b"}));
  EXPECT_EQ(SplitArguments(""), Parts{""});
}

TEST(Arguments, ExpressionsEndAtSeparatorsOutsideBrackets) {
  std::string text = "f(a,b)+\"x:y\",c:d";
  EXPECT_EQ(NextExprPart(text, false), "f(a,b)+\"x:y\"");
  EXPECT_EQ(NextExprPart(text, false), "c");
  EXPECT_EQ(text, "d");
  text = "f(a+b)&c+d)e";
  EXPECT_EQ(NextExprPart(text, true), "f(a+b)");
  EXPECT_EQ(NextExprPart(text, true), "c");
  EXPECT_EQ(NextExprPart(text, true), "d");
  EXPECT_EQ(NextExprPart(text, true), "e");
  EXPECT_EQ(NextExprPart(text, true), "");
}

}  // namespace
}  // namespace corvane::script
