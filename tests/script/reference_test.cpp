// The document of the language tells every statement, function and command of the tables, in the shape that they have
// there, and no other.
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <set>

#include "runtime/strings.h"
#include "script/commands.h"
#include "script/function_table.h"
#include "script/keywords.h"

namespace corvane::script {
namespace {

using Shapes = std::set<std::string>;

// The text between the first two backticks.
std::string Quoted(const std::string& line) {
  const size_t begin = line.find('`'), end = line.find('`', begin + 1);
  return begin == std::string::npos || end == std::string::npos ? "" : line.substr(begin + 1, end - begin - 1);
}

// The first cells of the tables whose head begins with each of the words.
std::map<std::string, Shapes> Documented() {
  std::ifstream in(std::string(CORVANE_SOURCE_DIR) + "/docs/script-language.md");
  std::map<std::string, Shapes> told = {{"Statement", {}}, {"Function", {}}, {"Command", {}}};
  Shapes* table = nullptr;
  for (std::string line; std::getline(in, line);) {
    if (!line.starts_with("| ")) {
      if (!line.starts_with("|---")) table = nullptr;
      continue;
    }
    const auto found = told.find(line.substr(2, line.find(' ', 2) - 2));
    if (found != told.end()) {
      table = &found->second;
    } else if (table != nullptr) {
      EXPECT_TRUE(table->insert(Quoted(line)).second) << "told twice: " << line;
    }
  }
  return told;
}

Shapes StatementShapes() {
  Shapes shapes;
  for (const Keyword& keyword : RewrittenKeywords()) shapes.emplace(keyword.shape);
  for (const Keyword& keyword : StatementKeywords()) shapes.emplace(keyword.shape);
  return shapes;
}

Shapes FunctionShapes() {
  Shapes shapes;
  for (const auto group : {TextFunctions(), NumberFunctions(), OutsideFunctions()})
    for (const FunctionRow& row : group) shapes.insert(std::string(row.key) + std::string(row.arguments) + ')');
  return shapes;
}

Shapes CommandShapes() {
  Shapes shapes;
  for (const CommandRow& row : CommandTable())
    shapes.insert(std::string(row.keyword) + '(' + std::string(row.arguments) + ')');
  return shapes;
}

TEST(Reference, TellsEveryStatementAndNoOther) {
  EXPECT_EQ(Documented()["Statement"], StatementShapes());
}

TEST(Reference, TellsEveryFunctionAndNoOther) {
  EXPECT_EQ(Documented()["Function"], FunctionShapes());
}

TEST(Reference, TellsEveryCommandAndNoOther) {
  EXPECT_EQ(Documented()["Command"], CommandShapes());
}

}  // namespace
}  // namespace corvane::script
