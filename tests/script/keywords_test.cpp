// The tables of keywords, as the reference tells them: every row is told, and is the one that acts on its shape.
#include "script/keywords.h"

#include <gtest/gtest.h>
#include <set>

#include "runtime/strings.h"
#include "script/run_code.h"
#include "script/translation.h"
#include "tests/script/recorded_errors.h"
#include "tests/script/shapes.h"

namespace corvane::script {
namespace {

std::vector<Keyword> AllKeywords() {
  std::vector<Keyword> all = RewrittenKeywords();
  for (Keyword& keyword : StatementKeywords()) all.push_back(std::move(keyword));
  return all;
}

// What a script that shows all of it would write.
std::string Written(std::string_view shape) {
  std::string text(shape);
  for (const char* mark : {"[", "]", " ...", "..."}) text = runtime::Replace(text, mark, "");
  return text + ':';
}

ProgramItem ItemOf(std::string_view shape) {
  ScriptState state;
  RecordedErrors errors(state);
  UnreadText unread(Written(shape));
  Statement scanned;
  EXPECT_EQ(ScanStatement(unread, scanned, state, errors), ScanEnd::kStatement) << shape;
  ProgramItem item;
  item.kind = FlatItem::kStatement;
  item.eq = scanned.eqPos;
  item.paren = scanned.parenPos;
  item.upper = runtime::UCase(scanned.text);
  return item;
}

TEST(Keywords, AreEachToldInOneLine) {
  EXPECT_GE(AllKeywords().size(), 40u);
  for (const Keyword& keyword : AllKeywords()) {
    EXPECT_TRUE(IsHelp(keyword.help)) << keyword.shape;
    EXPECT_TRUE(runtime::BeginsWith(keyword.shape, keyword.name)) << keyword.shape;
    EXPECT_EQ(runtime::UCase(keyword.name), keyword.name);
  }
}

TEST(Keywords, AreToldOnceInEachTable) {
  for (const auto& table : {RewrittenKeywords(), StatementKeywords()}) {
    std::set<std::string_view> shapes;
    for (const Keyword& keyword : table) EXPECT_TRUE(shapes.insert(keyword.shape).second) << keyword.shape;
  }
}

TEST(Keywords, AreNamedWithoutTheSignsThatEndThem) {
  EXPECT_EQ(KeywordOf("NEXT ", "", "").name, "NEXT");
  EXPECT_EQ(KeywordOf("END CODE:", "", "").name, "END CODE");
  EXPECT_EQ(KeywordOf("IF(", "", "").name, "IF");
  EXPECT_EQ(KeywordOf("", "", "").name, "");
}

TEST(Keywords, TheRuleThatRewritesAShapeIsItsOwn) {
  for (const auto* rule = Translation::kRules; rule->apply != nullptr; ++rule) {
    const auto* first = Translation::kRules;
    while (first->apply != nullptr && !runtime::BeginsWith(runtime::UCase(Written(rule->shape)), first->start)) ++first;
    EXPECT_EQ(first, rule) << rule->shape;
  }
}

TEST(Keywords, TheRowThatActsOnAShapeIsItsOwn) {
  const size_t rows = StatementKeywords().size();
  for (size_t row = 0; row < rows; ++row) {
    const ProgramItem statement = ItemOf(CodeRun::kRows[row].shape);
    size_t first = 0;
    while (!CodeRun::kRows[first].Fits(statement)) ++first;
    EXPECT_EQ(first, row) << CodeRun::kRows[row].shape;
  }
}

}  // namespace
}  // namespace corvane::script
