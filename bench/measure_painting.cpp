#include <QApplication>
#include <QWidget>
#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>

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
  std::string text;
  for (const auto& file : setting.projects.front().files) {
    if (!file.ends_with(".bas") && !file.ends_with(".cls")) continue;
    std::ifstream in(file, std::ios::binary);
    text.append(std::istreambuf_iterator<char>(in), {});
    if (text.size() > 1'000'000) break;
  }
  list.SetText(text);
  QApplication::processEvents();
  const long lines = list.ListCount();
  if (lines < 10 * kRows) throw std::runtime_error("too few lines to paint");

  const double repaint = MedianOf([&](int round) {
    const long line = 100 + (round * 997L) % (lines - 200);
    return UntilDrawn([&] { list.SetStrPos(line); });
  });
  table.AtMost("a full repaint of " + std::to_string(list.VisibleRows()) + " rows on the Qt canvas (ms)",
               Milliseconds(repaint), "", repaint * 1e3, 2.0);

  const auto step = [&] {
    return UntilDrawn([&] {
      int key = forms::vbKeyDown;
      list.pic.UserKeyDown(key, 0);
    });
  };
  list.SetStrPos(100);
  const double within = MedianOf([&](int round) {
    if (round % 40 == 0) list.SetStrPos(100 + round);
    QApplication::processEvents();
    return step();
  });
  table.AtMost("a step down within the rows (ms)", Milliseconds(within), "", within * 1e3, 0.5);
  list.SetStrPos(100);
  for (long row = 0; row < kRows; ++row) step();
  const double scrolling = MedianOf([&](int) { return step(); });
  table.AtMost("a step down from the last row, which scrolls (ms)", Milliseconds(scrolling), "", scrolling * 1e3, 0.5);
}

}  // namespace corvane::bench
