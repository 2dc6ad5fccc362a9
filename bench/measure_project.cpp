#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <unistd.h>

#include "bench/measurements.h"
#include "bench/process.h"
#include "environment/disk_files.h"
#include "environment/environment.h"
#include "host/code_module.h"

namespace corvane::bench {

namespace {

constexpr int kRounds = 5;
constexpr const char* kWords[] = {"discount", "article"};  // one here and there, one nearly everywhere

struct OpenProject {
  explicit OpenProject(const std::string& path)
      : files(environment::NewDiskFiles()), environment(environment::Environment::Create(*files)) {
    environment->Open(environment::WindowsPath(path));
  }
  std::unique_ptr<host::Files> files;
  std::shared_ptr<environment::Environment> environment;
};

// The lines found, their texts behind one another.
struct Hits {
  struct Hit {
    long component, line;
    size_t end;  // of its text
  };
  void Add(long component, long line, const std::string& text) {
    texts += text;
    hits.push_back({component, line, texts.size()});
  }
  void Clear() {
    texts.clear();
    hits.clear();
  }
  std::string texts;
  std::vector<Hit> hits;
};

// Adds each line that holds [word] in any case, once, as the explorer would list it.
void Search(OpenProject& project, const std::string& word, Hits& hits) {
  const auto components = project.environment->ActiveVBProject()->VBComponents();
  for (long component = 1; component <= components->Count(); ++component) {
    const auto module = components->Item(component)->CodeModule();
    if (!module) continue;
    for (long line = 1, column = 1, end_line = -1, end_column = -1;
         module->Find(word, line, column, end_line, end_column, false, false, false);
         ++line, column = 1, end_line = end_column = -1) {
      hits.Add(component, line, module->Lines(line, 1));
      if (line >= module->CountOfLines()) break;
    }
  }
}

// What a module keeps once it was asked about its procedures and searched is there then.
void AskEveryModule(OpenProject& project) {
  const auto components = project.environment->ActiveVBProject()->VBComponents();
  for (long component = 1; component <= components->Count(); ++component) {
    const auto module = components->Item(component)->CodeModule();
    if (!module || module->CountOfLines() == 0) continue;
    host::ProcKind kind = host::ProcKind::Proc;
    module->ProcOfLine(module->CountOfLines(), kind);
    long line = 1, column = 1, end_line = -1, end_column = -1;
    module->Find(kWords[0], line, column, end_line, end_column, false, false, false);
  }
}

long Resident() {
  std::ifstream in("/proc/self/statm");
  long total = 0, resident = 0;
  in >> total >> resident;
  return resident * sysconf(_SC_PAGESIZE);
}

std::string WholeMegabytes(double bytes) {
  return std::to_string(static_cast<long>(bytes / 1e6)) + " MB";
}

std::string FolderOf(const GeneratedProject& project) {
  return std::filesystem::path(project.path).parent_path().string();
}

// The modules of [project], one a line, for tools that take a list.
std::string ListOfFiles(const Setting& setting, const GeneratedProject& project) {
  const std::string path = setting.scratch + "/files";
  std::ofstream out(path);
  for (const auto& file : project.files) out << std::filesystem::path(file).filename().string() << "\n";
  return path;
}

}  // namespace

void MeasureListing(const Setting& setting, Table& table) {
  Growth growth;
  for (const auto& project : setting.projects) {
    const std::string list = ListOfFiles(setting, project), folder = FolderOf(project);
    long rows = 0, tags = 0;
    const auto ours = [&] {
      const auto run = Run({setting.program, "list", project.path, "--procedures"}, folder);
      if (run.status != 0) throw std::runtime_error("corvane list ended with " + std::to_string(run.status));
      rows = run.lines;
      return run.seconds;
    };
    const auto peer = [&] {
      const auto run =
          Run({"ctags", "-L", list, "-f", "-", "--sort=no", "--kinds-Basic=f", "--langmap=Basic:+.frm.cls.ctl.pag"},
              folder);
      tags = run.lines;
      return run.seconds;
    };
    const auto [our_time, peer_time] = InTurn(kRounds, ours, peer);
    table.AtMost("listing procedures of " + Count(project.lines) + " lines (peer: ctags)", Milliseconds(our_time),
                 Milliseconds(peer_time), our_time / peer_time, 1.0);
    table.Note("  ours " + Count(rows) + " rows, properties with them; ctags " + Count(tags) + " tags, without them");
    growth.Add(our_time, static_cast<double>(project.lines));
  }
  table.AtMost("  its time a line, the largest project to the smallest", "", "", growth.Ratio(), 1.2);
}

void MeasureSearch(const Setting& setting, Table& table) {
  std::map<std::string, Growth> growth;  // by word
  for (const auto& project : setting.projects) {
    OpenProject open(project.path);
    std::vector<std::string> grep = {"xargs", "-a", ListOfFiles(setting, project), "grep", "-F", "-i", "-n", "-H"};
    for (const char* word : kWords) {
      Hits found;
      std::vector<double> used;  // of the processor: what else runs meanwhile is no growth of the search
      long lines = 0;
      const auto ours = [&] {
        found.Clear();
        const double before = ProcessorSeconds();
        const double seconds = Seconds([&] { Search(open, word, found); });
        used.push_back(ProcessorSeconds() - before);
        return seconds;
      };
      const auto peer = [&] {
        auto arguments = grep;
        arguments.push_back(word);
        // The word goes in front of the files.
        arguments.insert(arguments.end() - 1, "-e");
        const auto run = Run(arguments, FolderOf(project));
        lines = run.lines;
        return run.seconds;
      };
      const auto [our_time, peer_time] = InTurn(kRounds, ours, peer);
      table.AtMost("searching " + Count(project.lines) + " lines for \"" + word + "\" (peer: grep -Fin)",
                   Milliseconds(our_time), Milliseconds(peer_time), our_time / peer_time, 1.0);
      table.Note("  ours " + Count(static_cast<long>(found.hits.size())) + " lines of code; grep " + Count(lines) +
                 " lines, designer parts with them");
      growth[word].Add(Median(used), static_cast<double>(project.lines));
    }
  }
  for (const char* word : kWords)
    table.AtMost("  \"" + std::string(word) + "\", processor time a line, largest to smallest", "", "",
                 growth[word].Ratio(), 1.2);
}

int OpenAndTellMemory(const std::string& project) {
  const long before = Resident();
  OpenProject open(project);
  const long opened = Resident();
  AskEveryModule(open);
  std::printf("%ld %ld\n", opened - before, Resident() - before);
  return 0;
}

void MeasureMemory(const Setting& setting, Table& table) {
  Growth opened_growth, searched_growth;
  for (const auto& project : setting.projects) {
    const auto run = Run({setting.self, "--memory-of", project.path}, setting.scratch, true);
    std::istringstream output(run.output);
    double opened = 0, searched = 0;
    if (run.status != 0 || !(output >> opened >> searched)) throw std::runtime_error("the project could not be opened");
    const double bytes = static_cast<double>(project.bytes);
    const std::string lines = Count(project.lines) + " lines";
    table.AtMost("resident memory, " + lines + " open (beside: bytes of sources)", WholeMegabytes(opened),
                 WholeMegabytes(bytes), opened / bytes, 2.5);
    table.AtMost("resident memory, searched, " + lines, WholeMegabytes(searched), WholeMegabytes(bytes),
                 searched / bytes, 2.5);
    opened_growth.Add(opened, bytes);
    searched_growth.Add(searched, bytes);
  }
  table.AtMost("  memory a byte, open, the largest to the smallest", "", "", opened_growth.Ratio(), 1.2);
  table.AtMost("  memory a byte, searched, the largest to the smallest", "", "", searched_growth.Ratio(), 1.2);
}

}  // namespace corvane::bench
