// How long a full window of code takes to draw: run with --gtest_also_run_disabled_tests --gtest_filter='*Benchmark*'.
// The numbers depend on the machine, so nothing is asserted about them and the suite leaves it out.
#include <QApplication>
#include <cstdio>
#include <ctime>
#include <gtest/gtest.h>

#include "toolkit_qt/canvas.h"
#include "toolkit_qt/fonts.h"

namespace corvane::toolkit_qt {
namespace {

constexpr int kRows = 60;

class CodePane {
 public:
  explicit CodePane(double scale) {
    NameSubstitutes();
    font_.Name = "Arial";
    font_.Size = 9.75f;
    height_ = canvas_.TextHeight(font_);
    widget_.resize(900, static_cast<int>(kRows * height_ / 15));
    canvas_.Fit(widget_.size(), scale, forms::RGB(255, 255, 255));
    width_ = static_cast<forms::Twips>(widget_.width()) * 15;
    gutter_ = canvas_.TextWidth("    ", font_);
  }

  void DrawRow(int row, int line, forms::Color back) {
    const forms::Twips top = height_ * static_cast<forms::Twips>(row);
    canvas_.FillBox({0, top, width_, height_}, back);
    canvas_.FillBox({0, top, gutter_, height_}, forms::k3DLight);
    canvas_.Line(gutter_, top, gutter_, top + height_, forms::RGB(0, 0, 0), 1);
    const std::string number = std::to_string(line);
    const std::string segments[] = {" If CountOf(" + number + ") > Limit Then", " For Each Item In Items" + number,
                                    " Total = Total + Item.Price * Quantity(" + number + ")", " ' sum " + number};
    forms::Twips pen = gutter_;
    for (int i = 0; i < 4; ++i) {
      canvas_.Text(pen, top, segments[i], font_, forms::RGB(i * 60, 0, 200 - i * 40));
      pen += canvas_.TextWidth(segments[i], font_);
    }
  }
  void DrawAll(int first_line) {
    canvas_.Clear(forms::RGB(255, 255, 255));
    for (int row = 0; row < kRows; ++row) DrawRow(row, first_line + row, forms::RGB(255, 255, 255));
    canvas_.Refresh();
  }
  void StepDown(int row) {
    DrawRow(row, row, forms::RGB(255, 255, 255));
    DrawRow(row + 1, row + 1, forms::RGB(210, 255, 230));
    canvas_.Refresh();
  }
  void Show() { canvas_.Picture(); }

 private:
  QWidget widget_;
  QtCanvas canvas_{widget_};
  forms::Font font_;
  forms::Twips height_ = 0, width_ = 0, gutter_ = 0;
};

// Of processor time, which other programs do not disturb.
template <class Action>
double Milliseconds(int times, Action action) {
  for (int i = 0; i < times / 10 + 1; ++i) action(i);
  const std::clock_t start = std::clock();
  for (int i = 0; i < times; ++i) action(i);
  return static_cast<double>(std::clock() - start) * 1000 / CLOCKS_PER_SEC / times;
}

// Disabled: it prints times at several scales to whoever works on the canvas; its numbers decide nothing.
TEST(DISABLED_CanvasBenchmark, RepaintAndStep) {
  for (double scale : {1.0, 1.25, 2.0}) {
    CodePane pane(scale);
    std::printf("scale %.2f: repaint of %d rows %.3f ms", scale, kRows,
                Milliseconds(200, [&](int i) { pane.DrawAll(i); }));
    std::printf(", step down %.3f ms\n", Milliseconds(2000, [&](int i) { pane.StepDown(i % (kRows - 1)); }));
  }
}

}  // namespace
}  // namespace corvane::toolkit_qt
