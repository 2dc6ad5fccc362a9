// What the fuzzers begin with comes from the tables, so that each function and each command is reached: the words that
// they put together, and a call of each.
#include <algorithm>
#include <set>

#include "script/commands.h"
#include "script/function_table.h"
#include "script/keywords.h"
#include "tests/support/golden.h"

namespace corvane::script {
namespace {

std::vector<FunctionRow> AllFunctions() {
  std::vector<FunctionRow> all;
  for (const auto group : {TextFunctions(), NumberFunctions(), OutsideFunctions()})
    all.insert(all.end(), group.begin(), group.end());
  return all;
}

// A call of each that takes so many arguments.
std::string CallsOf(int count) {
  static const char* const kArguments[] = {"", "b", "\"2\",a", "\"3,4|5\",\"2\",b"};
  std::string calls;
  for (const FunctionRow& row : AllFunctions()) {
    const bool takes = count == 1 ? row.one != nullptr : count == 2 ? row.two != nullptr : row.three != nullptr;
    if (takes || (count == 1 && row.names_array))
      calls.append("a=").append(row.key).append(row.names_array ? "arr" : kArguments[count]).append(")\n");
  }
  return calls;
}

// Behind these nothing of the script runs.
bool EndsTheScript(std::string_view keyword) {
  return keyword == "SHOWPLAN" || keyword == "RUN" || keyword == "SETSELSTART" || keyword == "GOCODELINE";
}

std::string LineOf(const CommandRow& row) {
  const bool list = row.arguments.find(',') != std::string_view::npos;
  return std::string(row.keyword) + (row.arguments.empty() ? "()" : list ? "(\"a\",bb,1)" : "(\"1\")") + "\n";
}

TEST(FuzzSeeds, CallEveryFunctionInEachOfItsForms) {
  EXPECT_TRUE(tests::MatchesGolden(CallsOf(1), "fuzz/fuzz_expression/functions_of_one.txt"));
  EXPECT_TRUE(tests::MatchesGolden(CallsOf(2), "fuzz/fuzz_expression/functions_of_two.txt"));
  EXPECT_TRUE(tests::MatchesGolden(CallsOf(3), "fuzz/fuzz_expression/functions_of_three.txt"));
  const std::string all = CallsOf(1) + CallsOf(2) + CallsOf(3);
  for (const FunctionRow& row : AllFunctions())
    EXPECT_NE(all.find("=" + std::string(row.key)), std::string::npos) << row.key;
  for (const int count : {1, 2, 3}) {
    const std::string calls = CallsOf(count);
    EXPECT_LE(std::count(calls.begin(), calls.end(), '\n'), 60) << "as many lines are read of one input";
  }
}

TEST(FuzzSeeds, RunEveryCommand) {
  constexpr int kTogether = 10;
  std::vector<std::string> scripts;
  int in_last = kTogether;
  for (const CommandRow& row : CommandTable()) {
    if (EndsTheScript(row.keyword)) continue;
    if (in_last == kTogether) scripts.emplace_back(), in_last = 0;
    scripts.back() += LineOf(row);
    ++in_last;
  }
  for (const CommandRow& row : CommandTable())
    if (EndsTheScript(row.keyword)) scripts.push_back(LineOf(row));
  for (size_t i = 0; i < scripts.size(); ++i) {
    EXPECT_LT(scripts[i].size(), 600u) << "as much is read of one input";
    EXPECT_TRUE(tests::MatchesGolden(scripts[i], "fuzz/fuzz_script/commands_" + std::to_string(i + 1) + ".txt"));
  }
}

TEST(FuzzSeeds, TheWordsAreThoseOfTheTables) {
  std::set<std::string> words = {
      " AND ",    " OR ", "<=",     ">=",    "<>",    "=>",    "{}",    "<%",    "%>",    "=[[",    "]]",
      "/*",       "*/",   "CODE{",  "FORM{", "FILE:", "VAR(",  "TRUE",  "FALSE", "NOT",   "VBCRLF", "RESULT",
      "$APPPATH", " TO ", " STEP ", " THEN", "\\x01", "\\x02", "\\x03", "\\x04", "\\x09", "<(_"};
  for (const FunctionRow& row : AllFunctions()) words.emplace(row.key);
  for (const CommandRow& row : CommandTable()) words.insert(std::string(row.keyword) + '(');
  for (const auto& table : {RewrittenKeywords(), StatementKeywords()})
    for (const Keyword& keyword : table)
      if (!keyword.name.empty()) words.insert(keyword.name == "=" ? keyword.name : keyword.name + ' ');
  std::string text;
  for (const std::string& word : words) text += '"' + word + "\"\n";
  EXPECT_TRUE(tests::MatchesGolden(text, "fuzz/script.dict"));
}

}  // namespace
}  // namespace corvane::script
