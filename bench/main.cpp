// usage: corvane_bench SAMPLE.vbp PROGRAM [analysis|listing|search|memory|painting ...]
// Measures everything, or what is named, in one run and prints one table. Exit status: 0 measured (aims met or not), 1
// could not measure.
#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <set>

#include "bench/measurements.h"

namespace {

namespace bench = corvane::bench;

class ScratchFolder {
 public:
  ScratchFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "corvane-bench-XXXXXX").string();
    if (!mkdtemp(name.data())) throw std::runtime_error("no temporary folder");
    path_ = name;
  }
  ~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

void MeasureAll(const std::string& sample, const std::string& program, const std::set<std::string>& wanted) {
  ScratchFolder scratch;
  bench::Setting setting{{}, program, std::filesystem::read_symlink("/proc/self/exe").string(), scratch.Path()};
  for (long lines : {100'000L, 1'000'000L, 2'000'000L}) {
    std::fprintf(stderr, "generating %ld lines\n", lines);
    const std::string folder = scratch.Path() + "/" + std::to_string(lines);
    setting.projects.push_back(bench::GenerateProject(sample, folder, lines));
  }
  bench::Table table;
  const std::pair<const char*, void (*)(const bench::Setting&, bench::Table&)> measurements[] = {
      {"analysis", bench::MeasureAnalysis}, {"listing", bench::MeasureListing},   {"search", bench::MeasureSearch},
      {"memory", bench::MeasureMemory},     {"painting", bench::MeasurePainting},
  };
  for (const auto& [name, measure] : measurements) {
    if (!wanted.empty() && !wanted.contains(name)) continue;
    std::fprintf(stderr, "measuring %s\n", name);
    measure(setting, table);
  }
  table.Print();
  if (!table.AllAimsMet()) std::printf("\nNot every aim was met.\n");
}

}  // namespace

int main(int argc, char** argv) {
  try {
    if (argc == 3 && std::string(argv[1]) == "--memory-of") return bench::OpenAndTellMemory(argv[2]);
    if (argc < 3) {
      std::fprintf(stderr, "usage: %s SAMPLE.vbp PROGRAM [MEASUREMENT...]\n", argv[0]);
      return 2;
    }
    QApplication application(argc, argv);
    MeasureAll(std::filesystem::absolute(argv[1]).string(), std::filesystem::absolute(argv[2]).string(),
               {argv + 3, argv + argc});
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s: %s\n", argv[0], error.what());
    return 1;
  }
}
