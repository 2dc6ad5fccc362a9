// The examples of the script language's document are run, each as a user runs it. Behind a block "script" come, where
// it has any, "answers" to its boxes, then its "output", its "messages" and what --check tells of it. An example
// "script project NAME" acts on a copy of the sample project; the component NAME is selected.
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <sstream>

#include "cli/run_script.h"
#include "cli/script_command.h"
#include "runtime/strings.h"
#include "tests/support/program.h"

namespace corvane::cli {
namespace {

namespace fs = std::filesystem;

struct Example {
  std::string place;  // "line 12"
  std::vector<std::string> words;
  std::map<std::string, std::string> blocks;

  std::string Block(const std::string& kind) const {
    const auto found = blocks.find(kind);
    return found == blocks.end() ? std::string() : found->second;
  }
};

std::vector<std::string> WordsOf(const std::string& text) {
  std::istringstream in(text);
  return {std::istream_iterator<std::string>(in), {}};
}

std::vector<Example> Examples() {
  std::ifstream in(fs::path(CORVANE_SOURCE_DIR) / "docs" / "script-language.md");
  std::vector<Example> examples;
  std::string* block = nullptr;
  int number = 0;
  for (std::string line; std::getline(in, line);) {
    ++number;
    if (!line.starts_with("```")) {
      if (block != nullptr) block->append(line).append("\n");
      continue;
    }
    const std::vector<std::string> words = WordsOf(line.substr(3));
    block = nullptr;
    if (words.empty()) continue;
    if (words[0] == "script") examples.push_back({"line " + std::to_string(number), words, {}});
    block = &examples.back().blocks[words[0]];
  }
  return examples;
}

// A copy of the sample project that goes with it.
class SampleCopy {
 public:
  SampleCopy() : folder_(fs::temp_directory_path() / ("corvane-example-" + std::to_string(getpid()))) {
    fs::remove_all(folder_);
    fs::copy(fs::path(CORVANE_SOURCE_DIR) / "samples" / "stockroom", folder_);
  }
  ~SampleCopy() { fs::remove_all(folder_); }
  std::string Project() const { return (folder_ / "Stockroom.vbp").string(); }

 private:
  fs::path folder_;
};

// As a document shows it: without the line ends at its end.
std::string Shown(std::string text) {
  text = runtime::Replace(text, "\r", "");
  while (text.ends_with('\n')) text.pop_back();
  return text;
}

void Expect(const Example& example) {
  SCOPED_TRACE(example.place);
  const SampleCopy copy;
  ScriptOptions options;
  options.library = (fs::path(CORVANE_SOURCE_DIR) / "data").string();
  options.answers = tests::LinesOf(example.Block("answers"));
  if (example.words.size() > 1) options.project = copy.Project();
  if (example.words.size() > 2) options.component = example.words[2];
  const std::string& script = example.blocks.at("script");
  std::ostringstream out, errors, odd, ignored;
  RunScriptFile(script, options, out, errors);
  EXPECT_EQ(Shown(out.str()), Shown(example.Block("output")));
  EXPECT_EQ(Shown(errors.str()), Shown(example.Block("messages")));
  CheckScriptFile(script, "example.txt", options, odd, ignored);
  EXPECT_EQ(Shown(odd.str()), Shown(example.Block("check")));
}

TEST(ScriptLanguage, ItsExamplesDoWhatItSays) {
  for (const Example& example : Examples()) Expect(example);
}

TEST(ScriptLanguage, EveryExampleShowsItsOutput) {
  const std::vector<Example> examples = Examples();
  EXPECT_GE(examples.size(), 50u);
  for (const Example& example : examples) {
    EXPECT_TRUE(example.blocks.contains("output")) << example.place;
    for (const auto& [kind, text] : example.blocks)
      EXPECT_TRUE(std::string(" script answers output messages check ").find(' ' + kind + ' ') != std::string::npos)
          << example.place << ": " << kind;
  }
}

}  // namespace
}  // namespace corvane::cli
