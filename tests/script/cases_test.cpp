// Small scripts as data: NAME.script beside NAME.expected, what it puts out, and NAME.messages, its boxes, a line each
// as "Title: text". Without NAME.messages there are none. NAME.answers has a line for each question: ok, cancel, or the
// text that is typed. Line ends inside a box are written "\n", and nothing is told of the listing under an error.
#include <filesystem>
#include <fstream>
#include <sstream>

#include "tests/script/lib_test.h"

namespace corvane::script {
namespace {

namespace fs = std::filesystem;

fs::path Folder() {
  return fs::path(CORVANE_SOURCE_DIR) / "tests" / "script" / "cases";
}

std::string ReadText(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

Lines ReadLines(const fs::path& path) {
  Lines lines;
  std::istringstream in(ReadText(path));
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

std::vector<std::string> Names() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(Folder()))
    if (entry.path().extension() == ".script") names.push_back(entry.path().stem().string());
  std::sort(names.begin(), names.end());
  return names;
}

class ScriptCases : public LibTest, public testing::WithParamInterface<std::string> {
 protected:
  fs::path File(const char* extension) const { return Folder() / (GetParam() + extension); }

  void TakeAnswers() {
    for (const std::string& answer : ReadLines(File(".answers"))) {
      if (answer == "ok" || answer == "cancel")
        world.services.prompts.answers.push_back(answer == "ok" ? host::vbOK : host::vbCancel);
      else
        world.services.prompts.inputs.push_back(answer);
    }
  }

  std::string Messages() const {
    std::string told;
    for (const tests::AskedMessage& asked : world.services.prompts.messages) {
      const bool error = asked.title == "Weaver" && asked.style == host::vbOKCancel;
      const size_t end = error ? asked.prompt.find(runtime::kCrLf) : std::string::npos;
      const std::string text = runtime::Replace(Readable(asked.prompt.substr(0, end)), "\n", "\\n");
      told += (asked.title.empty() ? "Message" : asked.title) + ": " + text + "\n";
    }
    return told;
  }
};

TEST_P(ScriptCases, PutOutAndTellWhatIsExpected) {
  TakeAnswers();
  EXPECT_EQ(RunScript(ReadText(File(".script"))), ReadText(File(".expected")));
  EXPECT_EQ(Messages(), ReadText(File(".messages")));
}

INSTANTIATE_TEST_SUITE_P(, ScriptCases, testing::ValuesIn(Names()), [](const auto& info) { return info.param; });

TEST(ScriptCaseFiles, EachBelongsToAScript) {
  for (const auto& entry : fs::directory_iterator(Folder())) {
    const std::string extension = entry.path().extension().string();
    EXPECT_TRUE(extension == ".script" || extension == ".expected" || extension == ".messages" ||
                extension == ".answers")
        << entry.path();
    fs::path script = entry.path();
    EXPECT_TRUE(fs::exists(script.replace_extension(".script"))) << entry.path();
    EXPECT_TRUE(fs::exists(script.replace_extension(".expected"))) << entry.path();
  }
  EXPECT_GE(Names().size(), 60u);
}

}  // namespace
}  // namespace corvane::script
