// usage: corvane_bench TREE PROGRAM [analysis|listing|search|memory|painting|commands|scripts|declaration ...]
// TREE is the folder of the sources, PROGRAM our command line.
// Measures everything, or what is named, in one run and prints one table. Exit status: 0 measured (aims met or not), 1
// could not measure.
#include <QApplication>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iterator>
#include <set>
#include <string_view>

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

struct Measurement {
  const char* name;
  void (*measure)(const bench::Setting&, bench::Table&);
  bool on_projects;
};

constexpr Measurement kMeasurements[] = {
    {"analysis", bench::MeasureAnalysis, true}, {"listing", bench::MeasureListing, true},
    {"search", bench::MeasureSearch, true},     {"memory", bench::MeasureMemory, true},
    {"painting", bench::MeasurePainting, true}, {"commands", bench::MeasureCommands, true},
    {"scripts", bench::MeasureScripts, false},  {"declaration", bench::MeasureDeclaration, true},
    {"results", bench::MeasureResults, true},
};

bool IsMeasurement(std::string_view name) {
  return std::any_of(std::begin(kMeasurements), std::end(kMeasurements),
                     [&](const Measurement& measurement) { return measurement.name == name; });
}

void GenerateProjects(bench::Setting& setting) {
  for (long lines : {100'000L, 1'000'000L, 2'000'000L}) {
    std::fprintf(stderr, "generating %ld lines\n", lines);
    const std::string folder = setting.scratch + "/" + std::to_string(lines);
    setting.projects.push_back(
        bench::GenerateProject(setting.tree + "/samples/stockroom/Stockroom.vbp", folder, lines));
  }
}

void MeasureAll(const std::string& tree, const std::string& program, const std::set<std::string>& wanted) {
  ScratchFolder scratch;
  bench::Setting setting{{}, tree, program, std::filesystem::read_symlink("/proc/self/exe").string(), scratch.Path()};
  bench::Table table;
  for (const auto& [name, measure, on_projects] : kMeasurements) {
    if (!wanted.empty() && !wanted.contains(name)) continue;
    if (on_projects && setting.projects.empty()) GenerateProjects(setting);
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
      std::fprintf(stderr, "usage: %s TREE PROGRAM [MEASUREMENT...]\n", argv[0]);
      return 2;
    }
    for (int i = 3; i < argc; ++i)
      if (!IsMeasurement(argv[i])) throw std::runtime_error("there is no measurement " + std::string(argv[i]));
    QApplication application(argc, argv);
    MeasureAll(std::filesystem::absolute(argv[1]).string(), std::filesystem::absolute(argv[2]).string(),
               {argv + 3, argv + argc});
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s: %s\n", argv[0], error.what());
    return 1;
  }
}
