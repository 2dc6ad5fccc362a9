// The document of the language tells every statement, function and command of the tables, in the shape that they have
// there, and no other.
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <regex>
#include <set>
#include <sstream>

#include "runtime/strings.h"
#include "script/commands.h"
#include "script/function_table.h"
#include "script/if_statement.h"
#include "script/keywords.h"
#include "script/run_code.h"

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

std::string Document() {
  std::ifstream in(std::string(CORVANE_SOURCE_DIR) + "/docs/script-language.md");
  return {std::istreambuf_iterator<char>(in), {}};
}

// What stands in the examples, in upper case; a line end in front of each statement.
std::string ExampleCode() {
  std::istringstream in(runtime::UCase(Document()));
  std::string code;
  bool inside = false;
  for (std::string line; std::getline(in, line);) {
    if (line.starts_with("```"))
      inside = line.starts_with("```SCRIPT");
    else if (inside)
      code += '\n' + line;
  }
  for (const char* front : {":", " THEN ", "<%"}) code = runtime::Replace(code, front, "\n");
  return code;
}

TEST(Reference, ShowsEachFunctionInAnExample) {
  const std::string code = ExampleCode();
  for (const auto group : {TextFunctions(), NumberFunctions(), OutsideFunctions()})
    for (const FunctionRow& row : group) EXPECT_TRUE(runtime::Holds(code, row.key)) << row.key;
}

TEST(Reference, ShowsEachCommandInAnExample) {
  const std::string code = ExampleCode();
  for (const CommandRow& row : CommandTable())
    EXPECT_TRUE(runtime::Holds(code, '\n' + std::string(row.keyword) + '(')) << row.keyword;
}

// The jumps that the translator makes are not for scripts to write.
TEST(Reference, ShowsEachStatementInAnExample) {
  const std::string code = ExampleCode();
  for (const auto& table : {RewrittenKeywords(), StatementKeywords()})
    for (const Keyword& keyword : table)
      if (!runtime::BeginsWith(keyword.help, "Made for"))
        EXPECT_TRUE(runtime::Holds(code, '\n' + keyword.name)) << keyword.shape;
}

// The texts that the sources hand to the error box.
std::set<std::string> ReportedTexts() {
  std::set<std::string> texts;
  const std::regex call(R"(Report(?:Error)?\(([^;]*);)"), literal(R"rx("((?:[^"\\]|\\.)*)")rx");
  for (const auto& entry : std::filesystem::directory_iterator(std::string(CORVANE_SOURCE_DIR) + "/src/script")) {
    std::ifstream in(entry.path());
    const std::string source{std::istreambuf_iterator<char>(in), {}};
    for (std::sregex_iterator made(source.begin(), source.end(), call), end; made != end; ++made) {
      const std::string argument = (*made)[1];
      for (std::sregex_iterator text(argument.begin(), argument.end(), literal); text != end; ++text)
        texts.insert(runtime::Trim(runtime::Replace((*text)[1].str(), "\\\"", "\"")));
    }
  }
  return texts;
}

TEST(Reference, TellsEachMessage) {
  const std::string document = Document(), table = document.substr(document.find("| message |"));
  const std::set<std::string> texts = ReportedTexts();
  EXPECT_GT(texts.size(), 40u);
  for (const std::string& text : texts) EXPECT_TRUE(runtime::Holds(table, text)) << text;
}

TEST(Reference, TellsTheLimits) {
  const std::string document = Document();
  const auto row = [](const char* what, const std::string& most) { return std::string("| ") + what + " | " + most; };
  for (const std::string& told :
       {row("calls of functions inside one another", std::to_string(CodeRun::kDeepestRun)),
        row("calls of SUBs inside one another", std::to_string(CodeRun::kDeepestCall)),
        row("one-line `IF`s inside one another", std::to_string(kDeepestIf)),
        row("elements of an array", std::to_string(static_cast<long>(Arrays::kHighest))),
        row("characters of a text", std::to_string(kLongestText)),
        row("all variables, arrays and SUBs together", std::to_string(kMostMemory >> 20) + " MB")})
    EXPECT_TRUE(runtime::Holds(document, told)) << told;
}

}  // namespace
}  // namespace corvane::script
