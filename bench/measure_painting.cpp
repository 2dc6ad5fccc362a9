#include <QApplication>
#include <QWidget>
#include <algorithm>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <utility>

#include "bench/measurements.h"
#include "codelist/uc_list_box.h"
#include "forms/types.h"
#include "tests/support/fake_services.h"
#include "toolkit_qt/toolkit.h"

namespace corvane::bench {

namespace {

constexpr int kRounds = 201;
constexpr long kRows = 60;

struct Window : forms::Form {
  Window(forms::Toolkit& toolkit, host::Services& services) : Form(toolkit, "Window"), list(*this, "list", services) {
    Move(0, 0, 12000, 16000);
  }
  // As high as [rows] rows and the horizontal bar.
  void ShowRows(long rows) {
    for (forms::Twips height = 3000; list.VisibleRows() < rows; height += 60) list.Move(0, 0, 11000, height);
  }
  codelist::ucListBox list;
};

// Seconds of [act] until its pixels stand.
double UntilDrawn(const std::function<void()>& act) {
  return Seconds([&] {
    act();
    QApplication::processEvents();
  });
}

double MedianOf(const std::function<double(int)>& run) {
  std::vector<double> times;
  for (int round = 0; round < kRounds; ++round) times.push_back(run(round));
  return Median(times);
}

// The text of modules of [project], at most [most] bytes and the rest of a file.
std::string TextOf(const GeneratedProject& project, size_t most) {
  std::string text;
  for (const auto& file : project.files) {
    if (!file.ends_with(".bas") && !file.ends_with(".cls")) continue;
    std::ifstream in(file, std::ios::binary);
    text.append(std::istreambuf_iterator<char>(in), {});
    if (text.size() > most) break;
  }
  return text;
}

void MeasureRepaint(codelist::ucListBox& list, const std::string& rows, Table& table) {
  const long lines = list.ListCount();
  const double repaint = MedianOf([&](int round) {
    const long line = 100 + (round * 997L) % (lines - 200);
    return UntilDrawn([&] { list.SetStrPos(line); });
  });
  table.AtMost("a full repaint of " + std::to_string(list.VisibleRows()) + " rows, " + rows + " (ms)",
               Milliseconds(repaint), "", repaint * 1e3, 2.0);
}

// The keys start in the middle of the text.
void MeasureSteps(codelist::ucListBox& list, const std::string& rows, Table& table) {
  const auto step = [&] {
    return UntilDrawn([&] {
      int key = forms::vbKeyDown;
      list.pic.UserKeyDown(key, 0);
    });
  };
  const long middle = list.ListCount() / 2;
  const double within = MedianOf([&](int round) {
    if (round % 40 == 0) list.SetStrPos(middle + round);
    QApplication::processEvents();
    return step();
  });
  table.AtMost("a step down within the rows, " + rows + " (ms)", Milliseconds(within), "", within * 1e3, 0.5);
  list.SetStrPos(middle);
  for (long row = 0; row < kRows; ++row) step();
  const double scrolling = MedianOf([&](int) { return step(); });
  table.AtMost("a step down which scrolls, " + rows + " (ms)", Milliseconds(scrolling), "", scrolling * 1e3, 0.5);
}

}  // namespace

void MeasurePainting(const Setting& setting, Table& table) {
  tests::FakeServices services;
  toolkit_qt::QtToolkit toolkit;
  Window window(toolkit, services);
  window.Show();
  window.ShowRows(kRows);
  auto& list = window.list;
  list.sGrid("VB");
  list.ListRole = codelist::kSourcePane;
  const std::pair<const GeneratedProject*, size_t> texts[] = {{&setting.projects.front(), 1'000'000},
                                                              {&setting.projects.back(), SIZE_MAX}};
  for (const auto& [project, most] : texts) {
    list.SetText(TextOf(*project, most));
    QApplication::processEvents();
    if (list.ListCount() < 10 * kRows) throw std::runtime_error("too few lines to paint");
    const std::string rows = "list of " + Count(list.ListCount());
    MeasureRepaint(list, rows, table);
    MeasureSteps(list, rows, table);
  }
}

}  // namespace corvane::bench
