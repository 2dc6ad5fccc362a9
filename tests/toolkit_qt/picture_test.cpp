// A window with one control of each kind, drawn into a picture: each leaves its mark where it stands.
#include <QFile>
#include <cmath>
#include <fstream>
#include <set>

#include "tests/toolkit_qt/window_fixture.h"
#include "toolkit_qt/colors.h"
#include "toolkit_qt/pictures.h"
#include "toolkit_qt/screenshot.h"
#include "toolkit_qt/units.h"

namespace corvane::toolkit_qt {
namespace {

forms::PictureRef IconFile(const std::string& name) {
  std::ifstream file(CORVANE_SOURCE_DIR "/data/icons/" + name + ".svg", std::ios::binary);
  std::string bytes((std::istreambuf_iterator<char>(file)), {});
  return std::make_shared<const forms::Picture>(forms::Picture{std::move(bytes)});
}

class SampleWindow : public forms::Form {
 public:
  explicit SampleWindow(forms::Toolkit& toolkit) : Form(toolkit, "frmSample") {
    SetCaption("Every kind of control");
    Move(0, 0, 9000, 6600);
    SetUpTexts();
    SetUpLists();
    SetUpDrawings();
    SetUpToolbar();
  }

  forms::Menu file{*this, "mnuFile", "&File"}, open{file, "mnuOpen", "&Open"}, edit{*this, "mnuEdit", "&Edit"};
  forms::ImageList images{*this, "img"};
  forms::Toolbar bar{*this, "tb"};
  forms::Label label{*this, "lbl"}, bordered{*this, "lblBorder"};
  forms::TextBox text{*this, "txt"}, lines{*this, "txtLines"};
  forms::CommandButton button{*this, "cmd"}, disabled{*this, "cmdOff"};
  forms::Frame frame{*this, "fra"};
  forms::CheckBox check{frame, "chk"}, ticked{frame, "chkOn"}, gray{frame, "chkGray"};
  forms::OptionButton option{frame, "opt"}, chosen{frame, "optOn"};
  forms::ListBox list{*this, "lst"}, ticks{*this, "lstTicks"};
  forms::ComboBox combo{*this, "cmb"}, drop_down{*this, "cmbList"}, simple{*this, "cmbSimple"};
  forms::PictureBox picture{*this, "pic"};
  forms::Image image{*this, "imgOne"};
  forms::Line line{*this, "lin"};
  forms::Shape shape{*this, "shp"}, oval{*this, "shpOval"};
  forms::VScrollBar vs{*this, "vs"};
  forms::HScrollBar hs{*this, "hs"};

 private:
  void SetUpTexts() {
    label.SetCaption("&Label of the text:");
    label.Move(120, 600, 1500, 195);
    bordered.SetCaption("With a border, gyj");
    bordered.SetBorderStyle(1);
    bordered.Move(120, 900, 1500, 255);
    text.SetText("Some text, gyjpq");
    text.Move(1680, 560, 1800, 285);
    lines.SetMultiLine(true);
    lines.SetScrollBars(2);
    lines.SetText("first line\r\nsecond line\r\nthird line\r\nfourth\r\nfifth");
    lines.Move(1680, 900, 1800, 735);
    button.SetCaption("&Ok");
    button.SetDefault(true);
    button.Move(3600, 560, 1095, 375);
    disabled.SetCaption("Cancel");
    disabled.SetEnabled(false);
    disabled.Move(3600, 990, 1095, 375);
    frame.SetCaption("&Frame with options");
    frame.Move(120, 1700, 2400, 1800);
    check.SetCaption("&Check, gyj");
    check.Move(120, 270, 2100, 255);
    ticked.SetCaption("Ticked");
    ticked.SetValue(forms::vbChecked);
    ticked.Move(120, 540, 2100, 255);
    gray.SetCaption("Neither");
    gray.SetValue(forms::vbGrayed);
    gray.Move(120, 810, 2100, 255);
    option.SetCaption("Option");
    option.Move(120, 1110, 2100, 255);
    chosen.SetCaption("Chosen");
    chosen.SetValue(true);
    chosen.Move(120, 1380, 2100, 255);
  }
  void SetUpLists() {
    for (auto* each : {&list, &ticks}) {
      for (int row = 0; row < 30; ++row) each->AddItem("Row " + std::to_string(row) + " gyjpq");
    }
    ticks.SetStyle(1);
    ticks.SetSelected(1, true);
    list.SetListIndex(2);
    list.Move(2640, 1770, 1800, 1740);
    ticks.Move(4560, 1770, 1800, 1740);
    drop_down.SetStyle(2);
    simple.SetStyle(1);
    for (auto* each : {&combo, &drop_down, &simple}) {
      for (auto item : {"first, gyj", "second", "third"}) each->AddItem(item);
      each->SetListIndex(0);
    }
    combo.Move(4800, 560, 1700, 315);
    drop_down.Move(4800, 960, 1700, 315);
    simple.Move(6600, 560, 1500, 1095);
  }
  void SetUpDrawings() {
    picture.Move(120, 3600, 6240, 1800);
    picture.SetBackColor(forms::RGB(255, 255, 255));
    forms::Font code;
    code.Name = "Arial";
    code.Size = 9.75f;
    picture.SetFont(code);
    picture.Paint = [this] { Draw(); };
    image.SetPicture(IconFile("search"));
    image.SetStretch(true);
    image.Move(6600, 1770, 480, 480);
    line.SetPoints(6600, 2400, 8400, 2700);
    shape.SetFillStyle(0);
    shape.SetFillColor(forms::RGB(255, 255, 192));
    shape.Move(6600, 2850, 700, 500);
    oval.SetShape(forms::ShapeKind::Oval);
    oval.Move(7500, 2850, 700, 500);
    vs.Move(6360, 3600, 255, 1800);
    hs.Move(120, 5400, 6240, 255);
  }
  void SetUpToolbar() {
    int images_made = 0;
    for (auto name : {"search", "bookmark", "save", "print"}) {
      images.Add(IconFile(name));
      forms::ToolButton each;
      each.Image = ++images_made;
      if (images_made == 2) each.Style = forms::ToolButtonStyle::DropDown;
      if (images_made == 3) each.Enabled = false;
      bar.Add(each);
      if (images_made != 2) continue;
      forms::ToolButton gap;
      gap.Style = forms::ToolButtonStyle::Separator;
      bar.Add(gap);
    }
    bar.SetImageList(&images);
    bar.Move(0, 0, 8880, 420);
  }
  void Draw() {
    picture.Cls();
    const auto height = picture.TextHeight("A"), gutter = picture.TextWidth("    ");
    picture.FillBox(0, 0, gutter, picture.ScaleHeight(), forms::k3DLight);
    picture.DrawLine(gutter, 0, gutter, picture.ScaleHeight(), 0);
    picture.FillBox(gutter, height, picture.ScaleWidth(), height * 2, forms::RGB(210, 255, 230));
    picture.FrameBox(gutter, height, picture.ScaleWidth(), height * 2, forms::RGB(0, 255, 0));
    picture.SetFillStyle(0);
    picture.SetFillColor(forms::RGB(255, 255, 0));
    picture.Circle(gutter / 2, height * 2.5f, 40, forms::RGB(255, 0, 0));
    const char* code[] = {"Private Sub cmdSearch_Click()",
                          "  Dim Index As Integer, Name As String",
                          "  If Index > 0 Then",
                          "    lstHits.AddItem Format$(Index, \"000\") & Name",
                          "  End If",
                          "End Sub"};
    for (int row = 0; row < 6; ++row) {
      picture.SetForeColor(forms::RGB(row * 40, 0, 200 - row * 30));
      picture.SetCurrentX(gutter + 60);
      picture.SetCurrentY(height * static_cast<forms::Twips>(row));
      picture.Print(code[row]);
      if (row == 2) {
        const auto x = picture.CurrentX() + 300;
        picture.PrintAt(x - 8, picture.CurrentY(), "overstruck bold");
        picture.PrintAt(x, picture.CurrentY(), "overstruck bold");
      }
    }
    picture.PaintPicture(IconFile("bookmark"), 10, height + 10, gutter - 20, height - 20);
    picture.Refresh();
  }
};

class Picture : public WindowTest, public ::testing::WithParamInterface<double> {};
INSTANTIATE_TEST_SUITE_P(Scales, Picture, ::testing::Values(1.0, 1.25));

QRect PlaceInWindow(QtToolkit& toolkit, forms::Form& form, const forms::Control& control) {
  QWidget* widget = toolkit.WidgetOf(control);
  return {widget->mapTo(toolkit.WindowOf(form), QPoint()), widget->size()};
}

int ColorsIn(const QImage& image, const QRect& place) {
  std::set<QRgb> colors;
  for (int y = place.top(); y <= place.bottom(); ++y) {
    for (int x = place.left(); x <= place.right(); ++x) colors.insert(image.pixel(x, y));
  }
  return static_cast<int>(colors.size());
}

TEST_P(Picture, EachControlLeavesItsMarkWhereItStands) {
  SampleWindow window(toolkit);
  window.Show();
  const double scale = GetParam();
  const QImage image = PictureOfWindow(toolkit, window, scale);
  ASSERT_EQ(image.size(), (QSizeF(toolkit.WindowOf(window)->size()) * scale).toSize());
  for (const forms::Control* control : window.AllControls()) {
    if (!toolkit.WidgetOf(*control)) continue;
    const QRect place = PlaceInWindow(toolkit, window, *control);
    EXPECT_TRUE(toolkit.WindowOf(window)->rect().contains(place)) << control->Name();
    const QRect shown(QPoint(place.x() * scale, place.y() * scale),
                      QSize(place.width() * scale, place.height() * scale));
    EXPECT_GE(ColorsIn(image, shown & image.rect()), 2) << control->Name();
  }
  window.Unload();
  EXPECT_TRUE(faults.empty());
}

TEST_P(Picture, IsWrittenToAFile) {
  SampleWindow window(toolkit);
  window.Show();
  const std::string path = ::testing::TempDir() + "corvane-window-" + std::to_string(int(GetParam() * 100)) + ".png";
  EXPECT_TRUE(SaveWindowPicture(toolkit, window, path, GetParam()));
  QImage read;
  EXPECT_TRUE(read.load(QString::fromStdString(path)));
  EXPECT_EQ(read.width(), static_cast<int>(toolkit.WindowOf(window)->width() * GetParam()));
  window.Unload();
}

// What is drawn on the surface is what the window shows, pixel for pixel.
TEST_P(Picture, ShowsSurfacesPixelForPixel) {
  forms::PictureBox picture(form, "pic");
  picture.SetBorderStyle(0);
  picture.Move(300, 300, 1500, 1500);
  picture.Paint = [&] {
    for (int line = 0; line < 100; ++line) {
      const auto at = static_cast<forms::Twips>(line * 15);
      picture.FillBox(0, at, 1500, at + 15, line % 2 ? forms::RGB(255, 0, 0) : forms::RGB(0, 0, 255));
    }
  };
  Show();
  const double scale = GetParam();
  const QImage image = PictureOfWindow(toolkit, form, scale);
  const int x = static_cast<int>(50 * scale), top = static_cast<int>(20 * scale);
  for (int y = top; y < top + static_cast<int>(100 * scale); ++y) {
    const QColor pixel = image.pixelColor(x, y);
    EXPECT_TRUE(pixel == QColor(Qt::red) || pixel == QColor(Qt::blue)) << y << " is blurred";
  }
  form.Unload();
}

// Each side of the box, in the middle of the side, has the colour of the frame.
TEST_P(Picture, ATextOfManyLinesHasItsFrameOnAllFourSides) {
  const double scale = GetParam();
  forms::TextBox lines(form, "txt");
  lines.SetMultiLine(true);
  Show();
  for (int width = 1500; width < 1560; width += 15) {
    lines.Move(315, 315, static_cast<forms::Twips>(width), 1515);
    const QImage image = PictureOfWindow(toolkit, form, scale);
    const QRectF shown(21 * scale, 21 * scale, width / 15 * scale, 101 * scale);
    const QPoint middle = shown.center().toPoint();
    const int right = static_cast<int>(shown.right()), bottom = static_cast<int>(shown.bottom());
    const auto has = [&](QPoint place) { return image.pixel(place) == ShownColor(forms::kButtonShadow).rgb(); };
    EXPECT_TRUE(has({static_cast<int>(std::ceil(shown.left())), middle.y()})) << width;
    EXPECT_TRUE(has({middle.x(), static_cast<int>(std::ceil(shown.top()))})) << width;
    EXPECT_TRUE(has({right - 1, middle.y()})) << width;
    EXPECT_TRUE(has({middle.x(), bottom - 1})) << width;
  }
}

TEST_P(Picture, AComboBoxToTypeInHasTheColourOfItsField) {
  const auto yellow = forms::RGB(255, 255, 128);
  forms::ComboBox drop_down(form, "cmb"), simple(form, "cmbSimple");
  simple.SetStyle(1);
  drop_down.Move(300, 300, 1500, 300);
  simple.Move(300, 900, 1500, 1500);
  Show();
  for (forms::Color color : {forms::Color(forms::kWindowBackground), yellow}) {
    drop_down.SetBackColor(color);
    simple.SetBackColor(color);
    const QImage image = PictureOfWindow(toolkit, form, GetParam());
    for (const QPointF inside : {QPointF(60, 31), QPointF(60, 71)})
      EXPECT_EQ(image.pixel((inside * GetParam()).toPoint()), ShownColor(color).rgb()) << inside.y();
  }
}

TEST_F(WindowTest, NoPictureOfAWindowThatIsNotLoaded) {
  EXPECT_TRUE(PictureOfWindow(toolkit, form).isNull());
  EXPECT_FALSE(SaveWindowPicture(toolkit, form, ::testing::TempDir() + "corvane-none.png"));
}

TEST_F(WindowTest, PictureCannotBeWrittenIntoAMissingFolder) {
  Show();
  EXPECT_FALSE(SaveWindowPicture(toolkit, form, ::testing::TempDir() + "no/such/folder/picture.png"));
}

TEST_F(WindowTest, DisabledIconIsAPaleGrayOfItsShape) {
  const QIcon icon = IconOf(IconFile("search"));
  const QImage whole = icon.pixmap(16, 16).toImage(), pale = icon.pixmap(16, 16, QIcon::Disabled).toImage();
  ASSERT_EQ(whole.size(), pale.size());
  for (int y = 0; y < 16; ++y) {
    for (int x = 0; x < 16; ++x) {
      const QColor from = whole.pixelColor(x, y), to = pale.pixelColor(x, y);
      EXPECT_LE(to.alpha(), from.alpha() / 2 + 1) << x << "," << y;
      EXPECT_LT(to.alpha() > 20 ? to.hslSaturation() : 0, 30) << x << "," << y;
    }
  }
}

TEST_F(WindowTest, APictureOfManySizesKeepsTheLastFew) {
  const forms::PictureRef picture = IconFile("search");
  const auto drawn = [&](int size) { return ImageOf(picture, {size, size}).cacheKey(); };
  const qint64 first = drawn(10);
  for (int size : {11, 12, 13}) drawn(size);
  EXPECT_EQ(drawn(10), first);
  for (int size : {14, 15, 16, 17}) drawn(size);
  EXPECT_NE(drawn(10), first);
}

TEST_F(WindowTest, SystemColoursAreThoseOfThePalette) {
  const QPalette palette = QGuiApplication::palette();
  EXPECT_EQ(ShownColor(forms::kWindowBackground), palette.color(QPalette::Base));
  EXPECT_EQ(ShownColor(forms::kHighlight), palette.color(QPalette::Highlight));
  EXPECT_EQ(ShownColor(forms::kGrayText), palette.color(QPalette::Disabled, QPalette::WindowText));
  EXPECT_EQ(ShownColor(forms::RGB(1, 2, 3)), QColor(1, 2, 3));
}

}  // namespace
}  // namespace corvane::toolkit_qt
