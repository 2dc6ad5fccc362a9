#include "forms/picture_box.h"

#include <gtest/gtest.h>

#include "tests/forms/sample_window.h"

namespace corvane::forms {
namespace {

struct PictureBoxes : testing::Test {
  HeadlessToolkit toolkit;
  SampleWindow window{toolkit};
  PictureBox pic{window, "pic"};
  PictureBoxes() { pic.Move(2000, 0, 3000, 2000); }
  RecordingCanvas& Shown() {
    window.Show();
    RecordingCanvas& canvas = toolkit.CanvasOf(pic);
    canvas.Forget();
    return canvas;
  }
};

TEST_F(PictureBoxes, PrintStandsAtTheCurrentPlaceAndMovesIt) {
  RecordingCanvas& canvas = Shown();
  pic.SetForeColor(RGB(0, 0, 128));
  pic.SetCurrentX(100);
  pic.SetCurrentY(200);
  pic.Print("ab");
  pic.Print("c");
  EXPECT_EQ(canvas.Calls(),
            (Log{"text 100 200 \"ab\" MS Sans Serif 8.25 #000080", "text 266 200 \"c\" MS Sans Serif 8.25 #000080"}));
  EXPECT_EQ(pic.CurrentX(), 100 + 3 * 83);
  EXPECT_EQ(pic.CurrentY(), 200);
}

TEST_F(PictureBoxes, APrintedLineEndLeadsToTheStartOfTheNextLine) {
  RecordingCanvas& canvas = Shown();
  pic.SetCurrentX(100);
  pic.Print("a\r\nb");
  EXPECT_EQ(canvas.Calls().back(), "text 0 198 \"b\" MS Sans Serif 8.25 system:18");
  EXPECT_EQ(pic.CurrentX(), 83);
  pic.PrintLine("c");
  EXPECT_EQ(pic.CurrentX(), 0);
  EXPECT_EQ(pic.CurrentY(), 2 * 198);
}

TEST_F(PictureBoxes, ClsClearsAndGoesToTheCorner) {
  RecordingCanvas& canvas = Shown();
  pic.SetBackColor(RGB(255, 255, 255));
  pic.Print("a");
  pic.SetCurrentY(500);
  pic.Cls();
  EXPECT_EQ(canvas.Calls(), (Log{"clear #ffffff"}));
  EXPECT_EQ(pic.CurrentX(), 0);
  EXPECT_EQ(pic.CurrentY(), 0);
}

TEST_F(PictureBoxes, DrawingIsRecordedInTwips) {
  RecordingCanvas& canvas = Shown();
  pic.FillBox(100, 300, 50, 10, kGrayText);
  pic.FrameBox(0, 0, 100, 200, 0);
  pic.DrawLine(1, 2, 3, 4, RGB(255, 0, 0));
  pic.Circle(80, 90, 40, RGB(255, 0, 0));
  pic.SetFillStyle(0);
  pic.SetFillColor(RGB(255, 255, 0));
  pic.Circle(80, 90, 40, RGB(255, 0, 0));
  pic.PaintPicture(std::make_shared<Picture>(Picture{"12345"}), 10, 20, 30, 40);
  pic.PaintPicture(nullptr, 10, 20, 30, 40);
  pic.PrintAt(5, 6, "x");
  pic.Refresh();
  EXPECT_EQ(canvas.Calls(),
            (Log{"fill 50 10 50 290 system:17", "frame 0 0 100 200 #000000", "line 1 2 3 4 #ff0000 width 1",
                 "circle 80 90 40 #ff0000", "circle 80 90 40 #ff0000 filled #ffff00",
                 "picture 10 20 30 40 5 bytes, sum 255", "text 5 6 \"x\" MS Sans Serif 8.25 system:18", "refresh"}));
}

TEST_F(PictureBoxes, FiguresMoveTheCurrentPlaceToTheirEnd) {
  Shown();
  pic.FillBox(10, 20, 30, 40, 0);
  EXPECT_EQ(pic.CurrentX(), 30);
  EXPECT_EQ(pic.CurrentY(), 40);
  pic.Circle(80, 90, 40, 0);
  EXPECT_EQ(pic.CurrentX(), 80);
}

TEST_F(PictureBoxes, FontsReachTheCanvas) {
  RecordingCanvas& canvas = Shown();
  pic.SetFont(Font{"Arial", 9.75f});
  pic.SetFontBold(true);
  pic.SetFontUnderline(true);
  pic.Print("a");
  EXPECT_EQ(canvas.Calls(), (Log{"text 0 0 \"a\" Arial 9.75 bold underline system:18"}));
}

TEST_F(PictureBoxes, DrawingBeforeLoadingGoesNowhereButMeasures) {
  pic.Print("abc");
  pic.Cls();
  pic.FillBox(0, 0, 1, 1, 0);
  EXPECT_EQ(pic.TextWidth("abc"), 3 * 83);
  EXPECT_EQ(pic.TextWidth("abc\r\nabcde"), 5 * 83);
  EXPECT_EQ(pic.TextHeight("a\r\nb\r\n"), 3 * 198);
}

TEST_F(PictureBoxes, ScaleIsInsideTheBorder) {
  EXPECT_EQ(pic.ScaleWidth(), 3000 - 60);
  pic.SetBorderStyle(0);
  EXPECT_EQ(pic.ScaleWidth(), 3000);
  EXPECT_EQ(pic.ScaleHeight(), 2000);
}

TEST_F(PictureBoxes, PaintsWhenLoadedAndResized) {
  Log log;
  pic.Resize = [&] { log.push_back("Resize"); };
  pic.Paint = [&] { log.push_back("Paint"); };
  window.Show();
  EXPECT_EQ(log, (Log{"Paint"}));
  pic.SetWidth(2000);
  EXPECT_EQ(log, (Log{"Paint", "Resize", "Paint"}));
}

TEST_F(PictureBoxes, AnotherPictureRaisesChange) {
  int changes = 0;
  pic.Change = [&] { ++changes; };
  const auto picture = std::make_shared<Picture>(Picture{"x"});
  pic.SetPicture(picture);
  pic.SetPicture(picture);
  EXPECT_EQ(changes, 1);
}

}  // namespace
}  // namespace corvane::forms
