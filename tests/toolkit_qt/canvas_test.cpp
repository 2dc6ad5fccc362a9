// What only pixels show: the canvas draws what it says it measures, where it is told, at every scale.
#include "toolkit_qt/canvas.h"

#include <QApplication>
#include <gtest/gtest.h>

#include "runtime/code_page.h"
#include "toolkit_qt/fonts.h"

namespace corvane::toolkit_qt {
namespace {

constexpr forms::Color kWhite = forms::RGB(255, 255, 255), kBlack = forms::RGB(0, 0, 0), kRed = forms::RGB(255, 0, 0);

forms::Font CodeFont() {
  forms::Font font;
  font.Name = "Arial";
  font.Size = 9.75f;
  return font;
}

// A surface of 200 x 100 logical pixels on white.
class Canvas : public ::testing::Test {
 protected:
  explicit Canvas(double scale = 1) {
    NameSubstitutes();
    canvas.Fit({200, 100}, scale, kWhite);
    canvas.Clear(kWhite);
  }
  ~Canvas() override { runtime::SetAnsiCodePage(1252); }

  QImage Drawn(const std::function<void()>& draw) {
    canvas.Clear(kWhite);
    draw();
    return canvas.Picture().copy();
  }
  QColor At(int x, int y) { return canvas.Picture().pixelColor(x, y); }
  QRect Ink() {
    const QImage& image = canvas.Picture();
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (image.pixelColor(x, y) != Qt::white) ink |= QRect(x, y, 1, 1);
      }
    }
    return ink;
  }

  QWidget widget;
  QtCanvas canvas{widget};
};

class AtScales : public Canvas, public ::testing::WithParamInterface<double> {
 protected:
  AtScales() : Canvas(GetParam()) {}
};
INSTANTIATE_TEST_SUITE_P(Scales, AtScales, ::testing::Values(1.0, 1.25, 1.5, 2.0));

TEST_P(AtScales, MeasuredWidthsAreTheSameAtEveryScale) {
  QtTextMetrics metrics;
  for (std::string_view text : {"If", "Private Sub Form_Load()", "    ", "WWW", "iii"}) {
    EXPECT_EQ(canvas.TextWidth(text, CodeFont()), metrics.TextWidth(text, CodeFont())) << text;
  }
  EXPECT_EQ(canvas.TextHeight(CodeFont()), metrics.TextHeight(CodeFont()));
}

TEST_P(AtScales, InkStaysInsideTheMeasuredBox) {
  const std::string text = "HMEKXHMEKX";
  canvas.Text(300, 150, text, CodeFont(), kBlack);
  const double scale = GetParam();
  const QRect ink = Ink();
  ASSERT_FALSE(ink.isEmpty());
  const double right = (300 + canvas.TextWidth(text, CodeFont())) / 15 * scale;
  EXPECT_GE(ink.left(), 20 * scale - 1);
  EXPECT_LE(ink.right(), right + 1);
  EXPECT_GE(ink.right(), right - 4 * scale) << "what is drawn is narrower than what is measured";
  EXPECT_GE(ink.top(), 10 * scale - 1);
  EXPECT_LE(ink.bottom(), (150 + canvas.TextHeight(CodeFont())) / 15 * scale + 1);
}

TEST_P(AtScales, BoldIsWiderThanPlainWhereverItStands) {
  constexpr forms::Twips kBoldShift = 8;
  for (int pixel = 20; pixel < 40; ++pixel) {
    const forms::Twips x = static_cast<forms::Twips>(pixel * 15);
    canvas.Clear(kWhite);
    canvas.Text(x, 150, "I", CodeFont(), kBlack);
    const QRect plain = Ink();
    canvas.Clear(kWhite);
    canvas.Text(x - kBoldShift, 150, "I", CodeFont(), kBlack);
    canvas.Text(x, 150, "I", CodeFont(), kBlack);
    EXPECT_GE(Ink().width(), plain.width() + 1) << pixel;
    EXPECT_LE(Ink().width(), plain.width() + std::ceil(GetParam())) << pixel;
  }
}

TEST_P(AtScales, BoxesThatTouchLeaveNoGapAndDoNotOverlap) {
  for (int i = 0; i < 7; ++i) {
    canvas.FillBox({static_cast<forms::Twips>(i * 200), 0, 200, 1500}, i % 2 ? kRed : kBlack);
  }
  const int end = static_cast<int>(std::floor(7 * 200 / 15.0 * GetParam() + 0.5));
  int changes = 0;
  for (int x = 0; x < end; ++x) {
    EXPECT_NE(At(x, 3), QColor(Qt::white)) << x;
    if (x > 0 && At(x, 3) != At(x - 1, 3)) ++changes;
  }
  EXPECT_EQ(changes, 6);
  EXPECT_EQ(At(end, 3), QColor(Qt::white));
}

TEST_P(AtScales, FrameIsOneLogicalPixelWideInsideItsBox) {
  canvas.FrameBox({150, 150, 750, 450}, kRed);
  const double scale = GetParam();
  const QRect ink = Ink();
  EXPECT_EQ(ink.left(), std::floor(10 * scale + 0.5));
  EXPECT_EQ(ink.right() + 1, std::floor(60 * scale + 0.5));
  EXPECT_EQ(ink.top(), std::floor(10 * scale + 0.5));
  EXPECT_EQ(ink.bottom() + 1, std::floor(40 * scale + 0.5));
  const int line = std::max(1, static_cast<int>(std::lround(scale)));
  EXPECT_EQ(At(ink.left() + line - 1, ink.center().y()), QColor(Qt::red));
  EXPECT_EQ(At(ink.left() + line, ink.center().y()), QColor(Qt::white));
}

TEST_P(AtScales, UprightLineHasWholePixels) {
  canvas.Line(300, 150, 300, 600, kBlack, 1);
  const QRect ink = Ink();
  EXPECT_EQ(ink.width(), std::max(1, static_cast<int>(std::lround(GetParam()))));
  EXPECT_EQ(ink.top(), std::floor(10 * GetParam() + 0.5));
  EXPECT_EQ(At(ink.left(), ink.center().y()), QColor(Qt::black));
}

TEST_F(Canvas, TextInPiecesStandsWhereTheWholeStands) {
  const std::string whole = "Private Function AVA() As String ' WAVE";
  const QImage at_once = Drawn([&] { canvas.Text(45, 30, whole, CodeFont(), kBlack); });
  for (size_t cut = 1; cut < whole.size(); ++cut) {
    const QImage in_pieces = Drawn([&] {
      const std::string front = whole.substr(0, cut);
      canvas.Text(45, 30, front, CodeFont(), kBlack);
      canvas.Text(45 + canvas.TextWidth(front, CodeFont()), 30, whole.substr(cut), CodeFont(), kBlack);
    });
    ASSERT_EQ(at_once, in_pieces) << "cut at " << cut;
  }
}

TEST_F(Canvas, OverstrikingMovesBoldTextByOnePixel) {
  const auto ink_of = [&](bool twice) {
    const QImage image = Drawn([&] {
      if (twice) canvas.Text(300 - 8, 30, "l", CodeFont(), kBlack);
      canvas.Text(300, 30, "l", CodeFont(), kBlack);
    });
    int dark = 0;
    for (int x = 0; x < image.width(); ++x) dark += image.pixelColor(x, 10).lightness() < 128;
    return dark;
  };
  EXPECT_EQ(ink_of(true), ink_of(false) + 1);
}

TEST_F(Canvas, BytesAreLettersOfTheCodePage) {
  const std::string bytes = "\xCF\xF0\xE8\xE2\xE5\xF2";
  runtime::SetAnsiCodePage(1251);
  const QImage cyrillic = Drawn([&] { canvas.Text(45, 30, bytes, CodeFont(), kBlack); });
  const auto width = canvas.TextWidth(bytes, CodeFont());
  runtime::SetAnsiCodePage(1252);
  const QImage latin = Drawn([&] { canvas.Text(45, 30, bytes, CodeFont(), kBlack); });
  EXPECT_NE(cyrillic, latin);
  EXPECT_NE(width, canvas.TextWidth(bytes, CodeFont()));
}

TEST_F(Canvas, ControlCharactersTakeNoRoomAndLeaveNoInk) {
  EXPECT_EQ(canvas.TextWidth("a\x02\x03z", CodeFont()), canvas.TextWidth("az", CodeFont()));
  const QImage with = Drawn([&] { canvas.Text(45, 30, "a\x02\x03z", CodeFont(), kBlack); });
  const QImage without = Drawn([&] { canvas.Text(45, 30, "az", CodeFont(), kBlack); });
  EXPECT_EQ(with, without);
}

TEST_F(Canvas, UnderlineRunsUnderTheWholeText) {
  forms::Font font = CodeFont();
  font.Underline = true;
  const QImage image = Drawn([&] { canvas.Text(0, 0, "a a", font, kBlack); });
  const int width = static_cast<int>(canvas.TextWidth("a a", font) / 15);
  bool found = false;
  for (int y = 0; y < image.height() && !found; ++y) {
    int run = 0;
    while (run < width && image.pixelColor(run, y) == QColor(Qt::black)) ++run;
    found = run == width;
  }
  EXPECT_TRUE(found);
}

TEST_F(Canvas, TextLineOfTheDefaultFontIs195TwipsHigh) {
  EXPECT_EQ(canvas.TextHeight(forms::Font{}), 195);
}

TEST_F(Canvas, WhatWasDrawnStaysWhenTheSurfaceGrows) {
  canvas.Clear(kWhite);
  canvas.FillBox({150, 150, 150, 150}, kRed);
  EXPECT_TRUE(canvas.Fit({300, 200}, 1, kBlack));
  EXPECT_EQ(canvas.Picture().pixelColor(15, 15), QColor(Qt::red));
  EXPECT_EQ(canvas.Picture().pixelColor(250, 150), QColor(Qt::black));
  EXPECT_FALSE(canvas.Fit({300, 200}, 1, kBlack));
}

TEST_F(Canvas, SurfaceWithoutSizeTakesDrawingsInSilence) {
  canvas.Fit({0, 0}, 1, kWhite);
  canvas.Clear(kWhite);
  canvas.FillBox({0, 0, 150, 150}, kRed);
  canvas.FrameBox({0, 0, 150, 150}, kRed);
  canvas.Line(0, 0, 150, 150, kRed, 1);
  canvas.Circle(75, 75, 40, kRed, true, kRed);
  canvas.Text(0, 0, "text", CodeFont(), kRed);
  canvas.Refresh();
  EXPECT_TRUE(canvas.Picture().isNull());
}

TEST_F(Canvas, FilledCircleHasItsOutlineAndItsFill) {
  const QImage image = Drawn([&] { canvas.Circle(450, 450, 150, kRed, true, forms::RGB(255, 255, 0)); });
  EXPECT_EQ(image.pixelColor(30, 30), QColor(255, 255, 0));
  EXPECT_EQ(image.pixelColor(30, 45), QColor(Qt::white));
  EXPECT_GT(image.pixelColor(40, 30).red(), 200);
  EXPECT_LT(image.pixelColor(40, 30).green(), 200);
}

forms::PictureRef PictureOf(std::string bytes) {
  return std::make_shared<const forms::Picture>(forms::Picture{std::move(bytes)});
}

TEST_F(Canvas, VectorPictureFillsItsPlaceAtEverySize) {
  const auto picture = PictureOf(
      "<?xml version=\"1.0\"?><svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 16 16\">"
      "<rect width=\"16\" height=\"16\" fill=\"#ff0000\"/></svg>");
  for (int size : {150, 240, 600}) {
    const QImage image = Drawn([&] {
      canvas.PaintPicture(picture, {150, 150, static_cast<forms::Twips>(size), static_cast<forms::Twips>(size)});
    });
    EXPECT_EQ(image.pixelColor(10, 10), QColor(Qt::red)) << size;
    EXPECT_EQ(image.pixelColor(10 + size / 15 - 1, 10 + size / 15 - 1), QColor(Qt::red)) << size;
    EXPECT_EQ(image.pixelColor(10 + size / 15, 10), QColor(Qt::white)) << size;
  }
}

TEST_F(Canvas, NothingIsDrawnForAnEmptyOrUndecodablePicture) {
  const QImage blank = Drawn([] {});
  for (const auto& picture : {forms::PictureRef(), PictureOf(""), PictureOf("no picture"), PictureOf("<svg")}) {
    EXPECT_EQ(blank, Drawn([&] { canvas.PaintPicture(picture, {0, 0, 300, 300}); }));
  }
}

}  // namespace
}  // namespace corvane::toolkit_qt
