// Small scripts on projects and files as data: NAME.script beside NAME.expected, what it puts out, and NAME.told, what
// goes to standard error: its boxes, then how it changed the project. Without NAME.told that is nothing. In front of
// the script's first block stand lines that the language passes over: "sample: NAME", of which a copy is open, and
// where there is any "component: NAME", which is selected, and "answers: ANSWER, ANSWER".
#include <filesystem>
#include <gtest/gtest.h>
#include <sstream>

#include "cli/run_script.h"
#include "runtime/code_page.h"
#include "runtime/strings.h"
#include "tests/support/golden.h"
#include "tests/support/program.h"

namespace corvane::cli {
namespace {

namespace fs = std::filesystem;

fs::path Source(const std::string& name) {
  return fs::path(CORVANE_SOURCE_DIR) / name;
}

std::string Text(const fs::path& path) {
  return tests::golden::ReadFile(path).value_or("");
}

std::vector<std::string> Names() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(Source("tests/cli/cases")))
    if (entry.path().extension() == ".script") names.push_back(entry.path().stem().string());
  std::sort(names.begin(), names.end());
  return names;
}

// What stands behind "KEY: " in front of the first block; empty where nothing does.
std::string Directive(const std::string& script, const std::string& key) {
  std::istringstream lines(script);
  for (std::string line; std::getline(lines, line) && !line.ends_with('{');)
    if (line.starts_with(key + ": ")) return line.substr(key.size() + 2);
  return {};
}

std::vector<std::string> Answers(std::string list) {
  std::vector<std::string> answers;
  for (size_t end; !list.empty(); list.erase(0, end == std::string::npos ? end : end + 2)) {
    end = list.find(", ");
    answers.push_back(list.substr(0, end));
  }
  return answers;
}

class ScriptCases : public testing::TestWithParam<std::string> {};

TEST_P(ScriptCases, PutOutAndChangeWhatIsExpected) {
  const std::string file = "tests/cli/cases/" + GetParam(), script = Text(Source(file + ".script"));
  const std::string sample = Directive(script, "sample");
  ASSERT_FALSE(sample.empty());
  const tests::TemporaryFolder folder;
  fs::copy(Source("samples/" + sample), folder / sample);
  ScriptOptions options;
  options.library = Source("data").string();
  options.project = folder / (sample + "/" + static_cast<char>(sample[0] - 'a' + 'A') + sample.substr(1) + ".vbp");
  options.component = Directive(script, "component");
  options.answers = Answers(Directive(script, "answers"));
  std::ostringstream out, told;
  RunScriptFile(script, options, out, told);
  EXPECT_EQ(runtime::Replace(out.str(), "\r", ""), Text(Source(file + ".expected")));
  EXPECT_EQ(runtime::Replace(told.str(), "\r", ""), Text(Source(file + ".told")));
}

INSTANTIATE_TEST_SUITE_P(, ScriptCases, testing::ValuesIn(Names()), [](const auto& info) { return info.param; });

TEST(ScriptCasesFolder, HoldsNoFileWithoutItsScript) {
  EXPECT_GE(Names().size(), 50u);
  for (const auto& entry : fs::directory_iterator(Source("tests/cli/cases")))
    EXPECT_TRUE(fs::exists(fs::path(entry.path()).replace_extension(".script"))) << entry.path();
}

}  // namespace
}  // namespace corvane::cli
