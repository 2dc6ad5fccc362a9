// Every sample is read, written to memory and compared: what `corvane check` does, and what the table of the awkward
// projects says it must answer.
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <memory>
#include <regex>
#include <sstream>

#include "environment/disk_files.h"
#include "environment/environment.h"
#include "environment/project.h"

namespace corvane::environment {
namespace {

const std::string kSamples = std::string(CORVANE_SOURCE_DIR) + "/samples/";

struct Sample {
  std::string project, what;
  int status = 0;
};

void PrintTo(const Sample& sample, std::ostream* out) {
  *out << sample.project << ": " << sample.what;
}

// What the table in the README of the awkward projects says.
std::vector<Sample> Awkward() {
  static const std::regex kRow(R"(^\| `([^`]+)` \| `([^`]+)` \| (.*) \| (\d) \|$)");
  std::vector<Sample> samples;
  std::ifstream in(kSamples + "awkward/README.md");
  for (std::string line; std::getline(in, line);) {
    std::smatch cells;
    if (std::regex_match(line, cells, kRow))
      samples.push_back({"awkward/" + cells[1].str() + "/" + cells[2].str(), cells[3], std::stoi(cells[4])});
  }
  return samples;
}

std::vector<Sample> All() {
  auto samples = Awkward();
  samples.push_back({"stockroom/Stockroom.vbp", "the realistic one", 0});
  samples.push_back({"group/Counters.vbg", "two projects that share a module", 0});
  return samples;
}

struct Checked {
  int status = 0;  // as the command would end
  std::vector<Problem> problems;
  std::string Text() const {
    std::ostringstream text;
    for (const auto& problem : problems) text << problem.file << ":" << problem.line << ": " << problem.reason << "\n";
    return text.str();
  }
};

Checked Check(const std::string& project) {
  auto files = NewDiskFiles();
  auto environment = Environment::Create(*files);
  Checked checked;
  try {
    environment->Open(WindowsPath(kSamples + project));
  } catch (const host::Error& error) {
    return {1, {{project, 0, error.Description()}}};
  }
  const auto compared = CheckFiles(*environment, *files);
  checked.problems = environment->Problems();  // designers were read by the comparison
  checked.status = checked.problems.empty() ? 0 : 1;
  for (const auto& file : compared) {
    EXPECT_TRUE(file.identical) << file.path << " differs from byte " << file.first_difference << " on";
    if (!file.identical) checked.status = 3;
  }
  return checked;
}

class EachSample : public testing::TestWithParam<Sample> {};

TEST_P(EachSample, AnswersAsItsTableSays) {
  const auto checked = Check(GetParam().project);
  EXPECT_EQ(checked.status, GetParam().status) << checked.Text();
}

TEST_P(EachSample, NamesFileAndReasonOfWhatWasNotUnderstood) {
  for (const auto& problem : Check(GetParam().project).problems) {
    EXPECT_FALSE(problem.file.empty()) << problem.reason;
    EXPECT_FALSE(problem.reason.empty()) << problem.file;
    EXPECT_EQ(problem.reason.find('\n'), std::string::npos) << "one line: " << problem.reason;
  }
}

TEST_P(EachSample, IsLeftAsItWas) {
  const auto folder = std::filesystem::path(kSamples + GetParam().project).parent_path();
  const auto before = std::filesystem::last_write_time(folder);
  auto files = NewDiskFiles();
  auto environment = Environment::Create(*files);
  host::PassOverErrors([&] { environment->Open(WindowsPath(kSamples + GetParam().project)); });
  EXPECT_FALSE(environment->IsDirty());
  EXPECT_TRUE(environment->SaveAll().empty());
  EXPECT_EQ(std::filesystem::last_write_time(folder), before) << "saving wrote although nothing was edited";
}

std::string TestName(const testing::TestParamInfo<Sample>& info) {
  const auto start = info.param.project.find('/') + 1;
  std::string name = info.param.status == 0 && !info.param.project.starts_with("awkward/")
                         ? info.param.project
                         : info.param.project.substr(start);
  name = name.substr(0, name.find('/'));
  std::string word;
  for (char c : name) word += std::isalnum(static_cast<unsigned char>(c)) ? c : '_';
  return word;
}

INSTANTIATE_TEST_SUITE_P(Samples, EachSample, testing::ValuesIn(All()), TestName);

TEST(SamplesTable, HasARowForEveryFolder) {
  size_t folders = 0;
  for (const auto& entry : std::filesystem::directory_iterator(kSamples + "awkward")) folders += entry.is_directory();
  EXPECT_EQ(Awkward().size(), folders);
}

}  // namespace
}  // namespace corvane::environment
