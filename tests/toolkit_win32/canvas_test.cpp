// What only pixels show: the canvas draws what it says it measures, where it is told, at every resolution.
#include "toolkit_win32/canvas.h"

#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <vector>

#include "runtime/code_page.h"
#include "toolkit_win32/toolkit.h"

namespace corvane::toolkit_win32 {
namespace {

constexpr forms::Color kWhite = forms::RGB(255, 255, 255), kBlack = forms::RGB(0, 0, 0), kRed = forms::RGB(255, 0, 0),
                       kYellow = forms::RGB(255, 255, 0);

forms::Font CodeFont() {
  forms::Font font;
  font.Name = "Arial";
  font.Size = 9.75f;
  return font;
}

// What a canvas would show.
class Image {
 public:
  Image(const GdiCanvas& canvas, SIZE size) : size_(size), pixels_(static_cast<size_t>(size.cx * size.cy)) {
    const HDC dc = CreateCompatibleDC(nullptr);
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, size.cx, -size.cy, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    const HBITMAP bitmap = CreateDIBSection(dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    const HGDIOBJ before = SelectObject(dc, bitmap);
    canvas.ShowOn(dc, {0, 0, size.cx, size.cy});
    GdiFlush();
    const auto* from = static_cast<const uint32_t*>(bits);
    for (size_t i = 0; i < pixels_.size(); ++i) pixels_[i] = from[i] & 0xFFFFFF;
    SelectObject(dc, before);
    DeleteObject(bitmap);
    DeleteDC(dc);
  }
  forms::Color At(int x, int y) const {
    const uint32_t pixel = pixels_[static_cast<size_t>(y * size_.cx + x)];
    return forms::RGB(static_cast<int>(pixel >> 16), static_cast<int>(pixel >> 8 & 0xFF),
                      static_cast<int>(pixel & 0xFF));
  }
  // The smallest box around what is not white; empty for none.
  RECT Ink() const {
    RECT ink{};
    for (int y = 0; y < size_.cy; ++y) {
      for (int x = 0; x < size_.cx; ++x) {
        if (At(x, y) == kWhite) continue;
        const RECT pixel{x, y, x + 1, y + 1}, before = ink;
        UnionRect(&ink, &before, &pixel);
      }
    }
    return ink;
  }
  int Height() const { return size_.cy; }
  bool operator==(const Image& other) const { return pixels_ == other.pixels_; }

 private:
  SIZE size_;
  std::vector<uint32_t> pixels_;
};

// A surface of 200 x 100 logical pixels on white.
class Canvas : public ::testing::Test {
 protected:
  explicit Canvas(int dpi = 96) : toolkit(nullptr, dpi), size{MulDiv(200, dpi, 96), MulDiv(100, dpi, 96)} {
    canvas.Fit(size, kWhite);
    canvas.Clear(kWhite);
  }
  ~Canvas() override { runtime::SetAnsiCodePage(1252); }

  Image Shown() { return Image(canvas, size); }
  Image Drawn(const std::function<void()>& draw) {
    canvas.Clear(kWhite);
    draw();
    return Shown();
  }
  int Pixels(forms::Twips value) { return toolkit.Scale().Pixels(value); }

  Win32Toolkit toolkit;
  int touched = 0;
  GdiCanvas canvas{toolkit, [this] { ++touched; }};
  SIZE size;
};

class AtResolutions : public Canvas, public ::testing::WithParamInterface<int> {
 protected:
  AtResolutions() : Canvas(GetParam()) {}
  double Scale() const { return GetParam() / 96.0; }
};
INSTANTIATE_TEST_SUITE_P(Dpi, AtResolutions, ::testing::Values(96, 120, 144, 192));

TEST_P(AtResolutions, InkStaysInsideTheMeasuredBox) {
  const std::string text = "HMEKXHMEKX";
  canvas.Text(300, 150, text, CodeFont(), kBlack);
  const RECT ink = Shown().Ink();
  ASSERT_FALSE(IsRectEmpty(&ink));
  const int right = Pixels(300 + canvas.TextWidth(text, CodeFont()));
  EXPECT_GE(ink.left, Pixels(300) - 1);
  EXPECT_LE(ink.right, right + 2);
  EXPECT_GE(ink.right, right - 4 * Scale()) << "what is drawn is narrower than what is measured";
  EXPECT_GE(ink.top, Pixels(150) - 1);
  EXPECT_LE(ink.bottom, Pixels(150 + canvas.TextHeight(CodeFont())) + 1);
}

TEST_P(AtResolutions, WidthsAddUp) {
  const std::string whole = "Private Function AVA() As String ' WAVE";
  for (size_t cut = 0; cut <= whole.size(); ++cut) {
    EXPECT_EQ(canvas.TextWidth(whole.substr(0, cut), CodeFont()) + canvas.TextWidth(whole.substr(cut), CodeFont()),
              canvas.TextWidth(whole, CodeFont()));
  }
}

TEST_P(AtResolutions, BoldIsWiderThanPlainWhereverItStands) {
  constexpr forms::Twips kBoldShift = 8;
  for (int pixel = 20; pixel < 40; ++pixel) {
    const auto x = static_cast<forms::Twips>(pixel * 15);
    const RECT plain = Drawn([&] { canvas.Text(x, 150, "I", CodeFont(), kBlack); }).Ink();
    const RECT bold = Drawn([&] {
                        canvas.Text(x - kBoldShift, 150, "I", CodeFont(), kBlack);
                        canvas.Text(x, 150, "I", CodeFont(), kBlack);
                      }).Ink();
    EXPECT_GE(WidthOf(bold), WidthOf(plain) + 1) << pixel;
    EXPECT_LE(WidthOf(bold), WidthOf(plain) + std::ceil(Scale())) << pixel;
  }
}

TEST_P(AtResolutions, BoxesThatTouchLeaveNoGapAndDoNotOverlap) {
  for (int i = 0; i < 7; ++i) {
    canvas.FillBox({static_cast<forms::Twips>(i * 200), 0, 200, 1500}, i % 2 ? kRed : kBlack);
  }
  const Image image = Shown();
  const int end = Pixels(1400);
  int changes = 0;
  for (int x = 0; x < end; ++x) {
    EXPECT_NE(image.At(x, 3), kWhite) << x;
    if (x > 0 && image.At(x, 3) != image.At(x - 1, 3)) ++changes;
  }
  EXPECT_EQ(changes, 6);
  EXPECT_EQ(image.At(end, 3), kWhite);
}

TEST_P(AtResolutions, FrameIsOneLogicalPixelWideInsideItsBox) {
  canvas.FrameBox({150, 150, 750, 450}, kRed);
  const Image image = Shown();
  const RECT ink = image.Ink(), expected{Pixels(150), Pixels(150), Pixels(900), Pixels(600)};
  EXPECT_TRUE(EqualRect(&ink, &expected));
  const int line = static_cast<int>(std::lround(Scale())), middle = (ink.top + ink.bottom) / 2;
  EXPECT_EQ(image.At(ink.left + line - 1, middle), kRed);
  EXPECT_EQ(image.At(ink.left + line, middle), kWhite);
}

TEST_P(AtResolutions, UprightAndLevelLinesHaveWholePixels) {
  const int line = static_cast<int>(std::lround(Scale()));
  const RECT upright = Drawn([&] { canvas.Line(300, 150, 300, 600, kBlack, 1); }).Ink();
  EXPECT_EQ(WidthOf(upright), line);
  EXPECT_EQ(upright.left, Pixels(300));
  EXPECT_NEAR(HeightOf(upright), Pixels(600) - Pixels(150), line);
  const RECT level = Drawn([&] { canvas.Line(300, 150, 900, 150, kBlack, 1); }).Ink();
  EXPECT_EQ(HeightOf(level), line);
  EXPECT_EQ(level.top, Pixels(150));
}

TEST_F(Canvas, SlantedLineRunsBetweenItsPoints) {
  const RECT ink = Drawn([&] { canvas.Line(150, 150, 600, 450, kBlack, 1); }).Ink();
  EXPECT_NEAR(ink.left, 10, 1);
  EXPECT_NEAR(ink.top, 10, 1);
  EXPECT_NEAR(ink.right, 40, 1);
  EXPECT_NEAR(ink.bottom, 30, 1);
}

TEST_F(Canvas, TextInPiecesStandsWhereTheWholeStands) {
  const std::string whole = "Private Function AVA() As String ' WAVE";
  const Image at_once = Drawn([&] { canvas.Text(45, 30, whole, CodeFont(), kBlack); });
  for (size_t cut = 1; cut < whole.size(); cut += 3) {
    const Image in_pieces = Drawn([&] {
      const std::string front = whole.substr(0, cut);
      canvas.Text(45, 30, front, CodeFont(), kBlack);
      canvas.Text(45 + canvas.TextWidth(front, CodeFont()), 30, whole.substr(cut), CodeFont(), kBlack);
    });
    ASSERT_TRUE(at_once == in_pieces) << "cut at " << cut;
  }
}

TEST_F(Canvas, BytesAreLettersOfTheCodePage) {
  const std::string bytes = "\xCF\xF0\xE8\xE2\xE5\xF2";
  runtime::SetAnsiCodePage(1251);
  const Image cyrillic = Drawn([&] { canvas.Text(45, 30, bytes, CodeFont(), kBlack); });
  const auto width = canvas.TextWidth(bytes, CodeFont());
  runtime::SetAnsiCodePage(1252);
  const Image latin = Drawn([&] { canvas.Text(45, 30, bytes, CodeFont(), kBlack); });
  EXPECT_FALSE(cyrillic == latin);
  EXPECT_NE(width, canvas.TextWidth(bytes, CodeFont()));
}

TEST_F(Canvas, CharactersOfTwoBytesAreOneLetter) {
  runtime::SetAnsiCodePage(932);
  const std::string letter = "\x82\xA0";
  EXPECT_GT(canvas.TextWidth(letter, CodeFont()), 0);
  EXPECT_EQ(canvas.TextWidth(letter + letter, CodeFont()), 2 * canvas.TextWidth(letter, CodeFont()));
}

TEST_F(Canvas, ControlCharactersTakeNoRoomAndLeaveNoInk) {
  EXPECT_EQ(canvas.TextWidth("a\x02\x03z", CodeFont()), canvas.TextWidth("az", CodeFont()));
  const Image with = Drawn([&] { canvas.Text(45, 30, "a\x02\x03z", CodeFont(), kBlack); });
  EXPECT_TRUE(with == Drawn([&] { canvas.Text(45, 30, "az", CodeFont(), kBlack); }));
}

TEST_F(Canvas, UnderlineRunsUnderTheWholeText) {
  forms::Font font = CodeFont();
  font.Underline = true;
  const Image image = Drawn([&] { canvas.Text(0, 0, "a a", font, kBlack); });
  const int width = Pixels(canvas.TextWidth("a a", font));
  bool found = false;
  for (int y = 0; y < image.Height() && !found; ++y) {
    int run = 0;
    while (run < width && image.At(run, y) == kBlack) ++run;
    found = run == width;
  }
  EXPECT_TRUE(found);
}

TEST_F(Canvas, WhatWasDrawnStaysWhenTheSurfaceGrows) {
  canvas.FillBox({150, 150, 150, 150}, kRed);
  const SIZE larger{300, 200};
  EXPECT_TRUE(canvas.Fit(larger, kBlack));
  const Image image(canvas, larger);
  EXPECT_EQ(image.At(15, 15), kRed);
  EXPECT_EQ(image.At(250, 150), kBlack);
  EXPECT_FALSE(canvas.Fit(larger, kBlack));
}

TEST_F(Canvas, SurfaceWithoutSizeTakesDrawingsInSilence) {
  canvas.Fit({0, 0}, kWhite);
  touched = 0;
  canvas.Clear(kWhite);
  canvas.FillBox({0, 0, 150, 150}, kRed);
  canvas.FrameBox({0, 0, 150, 150}, kRed);
  canvas.Line(0, 0, 150, 150, kRed, 1);
  canvas.Circle(75, 75, 40, kRed, true, kRed);
  canvas.Text(0, 0, "text", CodeFont(), kRed);
  canvas.PaintPicture(nullptr, {0, 0, 150, 150});
  canvas.Refresh();
  EXPECT_EQ(touched, 0);
}

TEST_F(Canvas, FilledCircleHasItsOutlineAndItsFill) {
  const Image image = Drawn([&] { canvas.Circle(450, 450, 150, kRed, true, kYellow); });
  EXPECT_EQ(image.At(30, 30), kYellow);
  EXPECT_EQ(image.At(30, 45), kWhite);
  EXPECT_EQ(image.At(40, 30), kRed);
  const Image hollow = Drawn([&] { canvas.Circle(450, 450, 150, kRed, false, kYellow); });
  EXPECT_EQ(hollow.At(30, 30), kWhite);
}

TEST_F(Canvas, TheFirstStrokeSinceARefreshAsksForTheNext) {
  canvas.Refresh();
  touched = 0;
  canvas.FillBox({0, 0, 150, 150}, kRed);
  canvas.FillBox({150, 0, 150, 150}, kRed);
  EXPECT_EQ(touched, 1);
  canvas.Refresh();
  canvas.FillBox({30000, 0, 150, 150}, kRed);  // outside
  EXPECT_EQ(touched, 1);
  canvas.FillBox({0, 0, 150, 150}, kRed);
  EXPECT_EQ(touched, 2);
}

forms::PictureRef PictureOf(std::string bytes) {
  return std::make_shared<const forms::Picture>(forms::Picture{std::move(bytes)});
}

void Put(std::string& bytes, uint32_t value, int count) {
  for (int i = 0; i < count; ++i) bytes += static_cast<char>(value >> 8 * i & 0xFF);
}

// 24 bits a pixel, all of one colour.
std::string BitmapFile(int side, forms::Color color) {
  const int stride = (side * 3 + 3) / 4 * 4;
  std::string bytes = "BM";
  Put(bytes, static_cast<uint32_t>(54 + stride * side), 4), Put(bytes, 0, 4), Put(bytes, 54, 4);
  Put(bytes, 40, 4), Put(bytes, static_cast<uint32_t>(side), 4), Put(bytes, static_cast<uint32_t>(side), 4);
  Put(bytes, 1, 2), Put(bytes, 24, 2);
  for (int i = 0; i < 6; ++i) Put(bytes, 0, 4);
  for (int y = 0; y < side; ++y) {
    std::string row;
    for (int x = 0; x < side; ++x)
      Put(row, color >> 16 & 0xFF, 1), Put(row, color >> 8 & 0xFF, 1), Put(row, color & 0xFF, 1);
    row.resize(static_cast<size_t>(stride));
    bytes += row;
  }
  return bytes;
}

// 32 bits a pixel; the left half of each picture is transparent.
std::string IconFile(const std::vector<std::pair<int, forms::Color>>& pictures) {
  std::string entries, data;
  const auto start = static_cast<uint32_t>(6 + 16 * pictures.size());
  for (const auto& [side, color] : pictures) {
    std::string one;
    Put(one, 40, 4), Put(one, static_cast<uint32_t>(side), 4), Put(one, static_cast<uint32_t>(side * 2), 4);
    Put(one, 1, 2), Put(one, 32, 2);
    for (int i = 0; i < 6; ++i) Put(one, 0, 4);
    for (int y = 0; y < side; ++y) {
      for (int x = 0; x < side; ++x) {
        const bool clear = x < side / 2;
        Put(one, clear ? 0 : (color >> 16 & 0xFF) | (color & 0xFF00) | (color & 0xFF) << 16 | 0xFF000000, 4);
      }
    }
    const int stride = (side + 31) / 32 * 4;
    for (int y = 0; y < side; ++y) {
      for (int byte = 0; byte < stride; ++byte) {
        int mask = 0;
        for (int bit = 0; bit < 8; ++bit) mask |= byte * 8 + bit < side / 2 ? 0x80 >> bit : 0;
        Put(one, static_cast<uint32_t>(mask), 1);
      }
    }
    Put(entries, static_cast<uint32_t>(side), 1), Put(entries, static_cast<uint32_t>(side), 1), Put(entries, 0, 2);
    Put(entries, 1, 2), Put(entries, 32, 2), Put(entries, static_cast<uint32_t>(one.size()), 4);
    Put(entries, start + static_cast<uint32_t>(data.size()), 4);
    data += one;
  }
  std::string file;
  Put(file, 0, 2), Put(file, 1, 2), Put(file, static_cast<uint32_t>(pictures.size()), 2);
  return file + entries + data;
}

TEST_F(Canvas, PictureFillsItsPlaceAtEverySize) {
  const auto picture = PictureOf(BitmapFile(8, kRed));
  for (int side : {75, 120, 300}) {
    const auto twips = static_cast<forms::Twips>(side);
    const Image image = Drawn([&] { canvas.PaintPicture(picture, {150, 150, twips, twips}); });
    const RECT ink = image.Ink(), expected{10, 10, 10 + side / 15, 10 + side / 15};
    EXPECT_TRUE(EqualRect(&ink, &expected)) << side;
    EXPECT_EQ(image.At(10, 10), kRed) << side;
  }
}

TEST_F(Canvas, IconGivesThePictureThatFitsBest) {
  const auto picture = PictureOf(IconFile({{32, kRed}, {16, kYellow}, {48, kBlack}}));
  const std::pair<int, forms::Color> wanted[] = {{16, kYellow}, {32, kRed}, {24, kRed}, {48, kBlack}, {64, kBlack}};
  for (const auto& [side, color] : wanted) {
    const auto twips = static_cast<forms::Twips>(side * 15);
    const Image image = Drawn([&] { canvas.PaintPicture(picture, {0, 0, twips, twips}); });
    EXPECT_EQ(image.At(side * 3 / 4, side / 2), color) << side;
    EXPECT_EQ(image.At(side / 4, side / 2), kWhite) << "the transparent half at " << side;
  }
}

TEST_F(Canvas, PicturesTellTheirOwnSize) {
  PictureStore& pictures = toolkit.Pictures();
  EXPECT_EQ(pictures.SizeOf(PictureOf(BitmapFile(8, kRed))).cx, 8);
  EXPECT_EQ(pictures.SizeOf(PictureOf(IconFile({{32, kRed}, {16, kRed}}))).cy, 32);
  EXPECT_EQ(pictures.SizeOf(nullptr).cx, 0);
  EXPECT_EQ(pictures.SizeOf(PictureOf("no picture")).cx, 0);
}

TEST_F(Canvas, NothingIsDrawnForAnEmptyOrUndecodablePicture) {
  const Image blank = Drawn([] {});
  for (const auto& picture : {forms::PictureRef(), PictureOf(""), PictureOf("no picture"), PictureOf("BM")}) {
    EXPECT_TRUE(blank == Drawn([&] { canvas.PaintPicture(picture, {0, 0, 300, 300}); }));
  }
}

TEST_F(Canvas, ABrokenPictureIsNotSeenOutsideItsPlace) {
  const std::string whole = IconFile({{32, kRed}, {16, kYellow}});
  for (size_t length = 0; length < whole.size(); length += 37) {
    const RECT ink = Drawn([&] { canvas.PaintPicture(PictureOf(whole.substr(0, length)), {0, 0, 300, 300}); }).Ink();
    EXPECT_LE(ink.right, toolkit.Scale().Pixels(300)) << length;
    EXPECT_LE(ink.bottom, toolkit.Scale().Pixels(300)) << length;
  }
  EXPECT_EQ(toolkit.Pictures().SizeOf(PictureOf(whole)).cx, 32);
}

TEST_P(AtResolutions, ALineMuchLongerThanTheSurfaceIsDrawnWhereItIsSeen) {
  std::string text;
  for (int i = 0; i < 40000; ++i) text += static_cast<char>('a' + i % 26);
  const Image shown = Drawn([&] { canvas.Text(150, 150, text, CodeFont(), kBlack); });
  const Image expected = Drawn([&] { canvas.Text(150, 150, text.substr(0, 200), CodeFont(), kBlack); });
  EXPECT_TRUE(shown == expected);
  const RECT ink = shown.Ink();
  EXPECT_GT(ink.right, size.cx - Pixels(300)) << "up to the edge";
  const size_t hidden = 26 * 1000;
  const forms::Twips left = 150 - canvas.TextWidth(text.substr(0, hidden), CodeFont());
  EXPECT_TRUE(Drawn([&] { canvas.Text(left, 150, text, CodeFont(), kBlack); }) == Drawn([&] {
                canvas.Text(150, 150, text.substr(hidden), CodeFont(), kBlack);
                canvas.Text(left + canvas.TextWidth(text.substr(0, hidden - 52), CodeFont()), 150,
                            text.substr(hidden - 52, 52), CodeFont(), kBlack);
              }));
}

}  // namespace
}  // namespace corvane::toolkit_win32
