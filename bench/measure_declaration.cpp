#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <vector>

#include "bench/measurements.h"
#include "environment/disk_files.h"
#include "environment/environment.h"
#include "explorer/frm_add_in.h"
#include "forms/headless_toolkit.h"
#include "tests/support/fake_services.h"

namespace corvane::bench {

namespace {

constexpr int kRounds = 5;
constexpr double kAimSeconds = 1;
constexpr long kLinesOfAim = 1'500'000;  // larger projects are only shown

// The explorer over a project, with the code of a standard module in view.
struct OpenExplorer {
  explicit OpenExplorer(const std::string& path) : files(environment::NewDiskFiles()) {
    auto project = environment::Environment::Create(*files);
    project->Open(environment::WindowsPath(path));
    form.VBInstance = project;
    form.Show();
    form.axModules.Click();
    form.lbxProc->UserSelect(form.lbxProc->ListCount() - 1);
    if (form.txtCode.ListCount() < 2) throw std::runtime_error("no code is in view");
  }
  std::unique_ptr<host::Files> files;
  tests::FakeServices services;
  forms::HeadlessToolkit toolkit;
  explorer::frmAddIn form{services, toolkit};
};

}  // namespace

void MeasureDeclaration(const Setting& setting, Table& table) {
  const struct {
    const char *what, *asked;
  } kWords[] = {{"Goto Declaration", " NOWHERETOBEFOUND"}, {"Goto Procedure", "NOWHERETOBEFOUND"}};
  for (const auto& project : setting.projects) {
    OpenExplorer open(project.path);
    for (const auto& word : kWords) {
      const long rows = open.form.lbxProc->ListCount();
      std::vector<double> rounds;
      for (int round = 0; round <= kRounds; ++round) {
        const double seconds = Seconds([&] { open.form.txtCode.GoProc(word.asked); });
        if (round > 0) rounds.push_back(seconds);  // the first is warm-up
      }
      if (open.form.lbxProc->ListCount() != rows) throw std::runtime_error("the word was found");
      const std::string what =
          std::string(word.what) + " of a word that is nowhere in " + Count(project.lines) + " lines";
      const double time = Median(rounds);
      if (project.lines <= kLinesOfAim)
        table.AtMost(what + " (beside: the aim)", Milliseconds(time), Milliseconds(kAimSeconds), time / kAimSeconds, 1);
      else
        table.Beside(what, Milliseconds(time));
    }
  }
}

}  // namespace corvane::bench
