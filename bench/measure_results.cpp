#include <algorithm>
#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <vector>

#include "bench/measurements.h"
#include "bench/process.h"
#include "environment/disk_files.h"
#include "environment/environment.h"
#include "explorer/frm_add_in.h"
#include "forms/headless_toolkit.h"
#include "tests/support/fake_services.h"

namespace corvane::bench {

namespace {

constexpr int kRounds = 5, kSteps = 200;
constexpr double kMargin = 0.2, kAimOfStep = 0.005;
constexpr long kLinesOfAim = 1'500'000, kHitsOfAim = 20'000, kRowsOfAim = 100'000;
constexpr char kWord[] = "dim", kFrequentWord[] = "article";

struct OpenExplorer {
  explicit OpenExplorer(const std::string& path) : files(environment::NewDiskFiles()) {
    auto project = environment::Environment::Create(*files);
    project->Open(environment::WindowsPath(path));
    form.VBInstance = project;
    form.Show();
  }
  void Search(const std::string& word) {
    form.cmbSearch.SetText(word);
    form.cbSearch.Click();
    if (form.lbxProc->ListCount() == 0) throw std::runtime_error("nothing was found");
  }
  std::unique_ptr<host::Files> files;
  tests::FakeServices services;
  forms::HeadlessToolkit toolkit;
  explorer::frmAddIn form{services, toolkit};
};

std::vector<std::string> Grep(const GeneratedProject& project, const std::string& word) {
  std::vector<std::string> arguments = {"grep", "-F", "-i", "-n", "-H", "-e", word};
  arguments.insert(arguments.end(), project.files.begin(), project.files.end());
  return arguments;
}

// Hits shown as rows, with the first one's code, and grep.
void MeasureHits(OpenExplorer& open, const GeneratedProject& project, const Setting& setting, Table& table) {
  const auto ours = [&] { return Seconds([&] { open.Search(kWord); }); };
  const auto peer = [&] { return Run(Grep(project, kWord), setting.scratch).seconds; };
  const auto [our_time, peer_time] = InTurn(kRounds, ours, peer);
  const long hits = open.form.lbxProc->ListCount();
  const std::string what = Count(hits) + " hits in " + Count(project.lines) + " lines as rows (beside: grep + 0.2 s)";
  const double bound = peer_time + kMargin;
  if (project.lines <= kLinesOfAim && hits <= 2 * kHitsOfAim)
    table.AtMost(what, Milliseconds(our_time), Milliseconds(bound), our_time / bound, 1);
  else
    table.Beside(what, Milliseconds(our_time), Milliseconds(bound), our_time / bound);
}

// The longest step from a row to the next, its code loaded, anywhere in a list that is long enough.
void MeasureSteps(OpenExplorer& open, Table& table) {
  open.Search(kFrequentWord);
  auto& list = *open.form.lbxProc;
  const long rows = list.ListCount();
  if (rows < kRowsOfAim) return;
  std::vector<double> steps;
  for (int step = 0; step < kSteps; ++step) {
    const long row = rows / kSteps * step;
    list.UserSelect(row);
    steps.push_back(Seconds([&] { list.UserSelect(row + 1); }));
  }
  const double step = Median(steps);
  table.AtMost("a step in a list of " + Count(rows) + " rows (beside: the aim)", Milliseconds(step),
               Milliseconds(kAimOfStep), step / kAimOfStep, 1);
  table.Note("  the longest of " + Count(kSteps) + " such steps " +
             Milliseconds(*std::max_element(steps.begin(), steps.end())));
}

}  // namespace

void MeasureResults(const Setting& setting, Table& table) {
  for (const auto& project : setting.projects) {
    OpenExplorer open(project.path);
    MeasureHits(open, project, setting, table);
    MeasureSteps(open, table);
  }
}

}  // namespace corvane::bench
