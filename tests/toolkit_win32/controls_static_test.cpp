// Labels, frames, images, lines, shapes, and the toolbar.
#include "tests/toolkit_win32/popup.h"
#include "tests/toolkit_win32/window_fixture.h"
#include "toolkit_win32/texts.h"

namespace corvane::toolkit_win32 {
namespace {

using Log = std::vector<std::string>;
constexpr forms::Color kRed = forms::RGB(255, 0, 0), kBlue = forms::RGB(0, 0, 255), kGreen = forms::RGB(0, 128, 0);

// A picture of one colour: a bitmap file of 16 by 16.
forms::PictureRef PictureOf(forms::Color color) {
  BITMAPINFOHEADER info{};
  info.biSize = sizeof info;
  info.biWidth = info.biHeight = 16;
  info.biPlanes = 1;
  info.biBitCount = 24;
  BITMAPFILEHEADER file{};
  file.bfType = 0x4D42;
  file.bfOffBits = sizeof file + sizeof info;
  std::string bytes(reinterpret_cast<char*>(&file), sizeof file);
  bytes.append(reinterpret_cast<char*>(&info), sizeof info);
  for (int pixel = 0; pixel < 256; ++pixel)
    for (int shift : {16, 8, 0}) bytes += static_cast<char>(color >> shift & 0xFF);
  return std::make_shared<forms::Picture>(forms::Picture{bytes});
}

class PaintedTest : public WindowTest {
 protected:
  // Twips of the form.
  COLORREF PixelAt(forms::Twips x, forms::Twips y) {
    const HWND window = WindowOf(form);
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    POINT place{toolkit.Scale().Pixels(x), toolkit.Scale().Pixels(y)};
    const Spot spot = SpotOn(window, place);
    const HDC own = GetDC(spot.window);
    const COLORREF color = GetPixel(own, spot.place.x, spot.place.y);
    ReleaseDC(spot.window, own);
    return color;
  }
  // What stands on the screen there, without painting anything again.
  COLORREF ShownAt(forms::Twips x, forms::Twips y) {
    Pump();
    const Spot spot = SpotOn(WindowOf(form), {toolkit.Scale().Pixels(x), toolkit.Scale().Pixels(y)});
    const HDC dc = GetDC(spot.window);
    const COLORREF color = GetPixel(dc, spot.place.x, spot.place.y);
    ReleaseDC(spot.window, dc);
    return color;
  }
  // The topmost window there, also one that takes no mouse.
  static Spot SpotOn(HWND base, POINT place) {
    const HWND below = ChildWindowFromPointEx(base, place, CWP_SKIPINVISIBLE);
    if (!below || below == base) return {base, place};
    MapWindowPoints(base, below, &place, 1);
    return SpotOn(below, place);
  }
  bool HasColour(const forms::Control& control, COLORREF wanted) {
    const HWND window = WindowOf(control);
    UpdateWindow(window);
    RECT client{};
    GetClientRect(window, &client);
    const HDC dc = GetDC(window);
    bool found = false;
    for (int y = 0; y < client.bottom && !found; ++y)
      for (int x = 0; x < client.right && !found; ++x) found = GetPixel(dc, x, y) == wanted;
    ReleaseDC(window, dc);
    return found;
  }
};

TEST_F(PaintedTest, ALabelHasItsColoursAndItsText) {
  forms::Label label(form, "lbl");
  label.Move(300, 300, 1500, 600);
  label.SetBackColor(kBlue), label.SetForeColor(kRed), label.SetCaption("MMMM");
  Show();
  EXPECT_EQ(TextOf(WindowOf(label)), L"MMMM");
  EXPECT_EQ(PixelAt(1700, 800), kBlue);
  EXPECT_TRUE(HasColour(label, kRed));
  label.SetEnabled(false);
  EXPECT_FALSE(HasColour(label, kRed));
  EXPECT_TRUE(HasColour(label, GetSysColor(COLOR_GRAYTEXT)));
}

TEST_F(PaintedTest, AClearLabelShowsWhatLiesBehindIt) {
  forms::Shape shape(form, "shp");
  shape.Move(0, 0, 3000, 3000);
  shape.SetFillStyle(0), shape.SetFillColor(kGreen);
  forms::Label label(form, "lbl");
  label.Move(300, 300, 1500, 600);
  label.SetBackStyle(0), label.SetCaption("");
  Show();
  EXPECT_EQ(ShownAt(900, 500), kGreen);
  shape.SetFillColor(kBlue);
  EXPECT_EQ(ShownAt(900, 500), kBlue);
}

TEST_F(PaintedTest, AFrameHoldsControlsAndItsCaption) {
  forms::Frame frame(form, "fra");
  frame.Move(300, 300, 3000, 1500);
  frame.SetBackColor(kBlue), frame.SetForeColor(kRed), frame.SetCaption("&MMM");
  forms::Label label(frame, "lbl");
  label.Move(300, 600, 900, 300);
  label.SetBackColor(kGreen);
  Show();
  EXPECT_EQ(GetParent(WindowOf(label)), WindowOf(frame));
  EXPECT_EQ(TextOf(WindowOf(frame)), L"&MMM");
  EXPECT_EQ(ShownAt(900, 1100), kGreen);
  EXPECT_EQ(ShownAt(2500, 1200), kBlue);
  EXPECT_TRUE(HasColour(frame, kRed));
  frame.SetBorderStyle(0);
  EXPECT_FALSE(HasColour(frame, kRed));
}

TEST_F(PaintedTest, ADisabledFrameLeavesTheLookOfWhatItHolds) {
  forms::Frame frame(form, "fra");
  frame.Move(300, 300, 3000, 1500);
  frame.SetForeColor(kRed), frame.SetCaption("MMM");
  forms::Label label(frame, "lbl");
  label.Move(300, 600, 900, 300);
  label.SetForeColor(kBlue), label.SetCaption("MMM");
  Show();
  frame.SetEnabled(false);
  EXPECT_FALSE(HasColour(frame, kRed));
  InvalidateRect(WindowOf(label), nullptr, FALSE);
  EXPECT_TRUE(HasColour(label, kBlue));
}

TEST_F(PaintedTest, AnImageIsShownAtItsSizeOrStretched) {
  forms::Image image(form, "img");
  image.Move(300, 300, 1500, 1500);
  image.SetPicture(PictureOf(kRed));
  Show();
  EXPECT_EQ(ShownAt(300 + 8 * 15, 300 + 8 * 15), kRed);
  EXPECT_NE(ShownAt(1500, 1500), kRed);
  image.SetStretch(true);
  EXPECT_EQ(ShownAt(1500, 1500), kRed);
  image.SetPicture(nullptr);
  EXPECT_NE(ShownAt(1500, 1500), kRed);
}

TEST_F(PaintedTest, LinesAreAsThickAsTheySayInBothDirections) {
  forms::Line flat(form, "lin1"), rising(form, "lin2");
  flat.SetPoints(300, 600, 2100, 600), rising.SetPoints(300, 2700, 1800, 1200);
  for (forms::Line* line : {&flat, &rising}) line->SetBorderColor(kRed), line->SetBorderWidth(2);
  Show();
  EXPECT_EQ(ShownAt(900, 600), kRed);
  EXPECT_EQ(ShownAt(900, 615), kRed);
  EXPECT_NE(ShownAt(900, 645), kRed);
  EXPECT_EQ(ShownAt(1050, 1950), kRed);
  EXPECT_NE(ShownAt(400, 1300), kRed);
}

TEST_F(PaintedTest, ShapesHaveTheirForm) {
  forms::Shape shape(form, "shp");
  shape.Move(300, 300, 3000, 1500);
  shape.SetFillStyle(0), shape.SetFillColor(kGreen), shape.SetBorderColor(kRed), shape.SetBorderWidth(3);
  Show();
  using forms::ShapeKind;
  const struct {
    ShapeKind kind;
    bool corner, middle_of_left_side;
  } cases[] = {{ShapeKind::Rectangle, true, true},
               {ShapeKind::Oval, false, true},
               {ShapeKind::RoundedRectangle, false, true},
               {ShapeKind::Square, false, false},
               {ShapeKind::Circle, false, false}};
  for (const auto& each : cases) {
    shape.SetShape(each.kind);
    EXPECT_EQ(ShownAt(1800, 1050), kGreen);
    EXPECT_EQ(ShownAt(315, 315) == kRed, each.corner) << static_cast<int>(each.kind);
    EXPECT_EQ(ShownAt(315, 1050) == kRed, each.middle_of_left_side) << static_cast<int>(each.kind);
  }
  shape.SetFillStyle(1);
  EXPECT_NE(ShownAt(1800, 1050), kGreen);
}

TEST_F(PaintedTest, LinesAndShapesLieBehindControlsTheLastInFront) {
  forms::CommandButton button(form, "cmd");
  button.Move(600, 600, 900, 600);
  forms::Shape below(form, "shp1"), above(form, "shp2");
  below.Move(300, 300, 2400, 2400), above.Move(1800, 1800, 600, 600);
  for (forms::Shape* shape : {&below, &above}) shape->SetFillStyle(0);
  below.SetFillColor(kGreen), above.SetFillColor(kBlue);
  Show();
  EXPECT_EQ(ShownAt(450, 450), kGreen);
  EXPECT_EQ(ShownAt(2100, 2100), kBlue);
  EXPECT_NE(ShownAt(1050, 900), kGreen);
  below.ZOrder();
  EXPECT_EQ(ShownAt(2100, 2100), kGreen);
  EXPECT_NE(ShownAt(1050, 900), kGreen);
  int clicks = 0;
  button.Click = [&] { ++clicks; };
  Click(button);
  EXPECT_EQ(clicks, 1);
}

TEST_F(PaintedTest, WhatShowsThroughFollowsAShapeBehindIt) {
  forms::Shape shape(form, "shp");
  forms::Label label(form, "lbl");
  shape.Move(0, 0, 1500, 1500), label.Move(300, 300, 600, 600);
  label.SetBackStyle(0), label.SetCaption("");
  shape.SetFillStyle(0), shape.SetFillColor(kRed);
  Show();
  EXPECT_EQ(ShownAt(600, 600), kRed);
  shape.SetFillColor(kBlue);
  EXPECT_EQ(ShownAt(600, 600), kBlue);
  shape.SetVisible(false);
  EXPECT_EQ(ShownAt(600, 600), GetSysColor(COLOR_BTNFACE));
  shape.SetVisible(true);
  EXPECT_EQ(ShownAt(600, 600), kBlue);
  shape.SetLeft(3000);
  EXPECT_EQ(ShownAt(600, 600), GetSysColor(COLOR_BTNFACE));
}

TEST_F(PaintedTest, WhatShowsThroughFollowsTheOrderOfWhatLiesBehind) {
  forms::Shape below(form, "shp1"), above(form, "shp2");
  forms::Label label(form, "lbl");
  label.Move(300, 300, 600, 600);
  label.SetBackStyle(0), label.SetCaption("");
  for (forms::Shape* shape : {&below, &above}) shape->Move(0, 0, 1500, 1500), shape->SetFillStyle(0);
  below.SetFillColor(kGreen), above.SetFillColor(kBlue);
  Show();
  EXPECT_EQ(ShownAt(600, 600), kBlue);
  below.ZOrder();
  EXPECT_EQ(ShownAt(600, 600), kGreen);
  auto& made = dynamic_cast<forms::Shape&>(form.AddControl("VB.Shape", "shpNew", form));
  made.Move(0, 0, 1500, 1500);
  made.SetFillStyle(0), made.SetFillColor(kRed);
  made.SetVisible(true);
  EXPECT_EQ(ShownAt(600, 600), kRed);
  form.RemoveControl(made);
  EXPECT_EQ(ShownAt(600, 600), kGreen);
}

TEST_F(PaintedTest, ALabelThatGoesBehindIsNotSeenInFront) {
  forms::Label first(form, "lbl1"), second(form, "lbl2");
  first.Move(0, 0, 1500, 1500), second.Move(0, 0, 1500, 1500);
  first.SetBackColor(kGreen), second.SetBackColor(kBlue);
  forms::Label clear(form, "lbl3");
  clear.Move(300, 300, 600, 600);
  clear.SetBackStyle(0), clear.SetCaption("");
  Show();
  EXPECT_EQ(ShownAt(600, 600), kBlue);
  second.ZOrder(1);
  EXPECT_EQ(ShownAt(600, 600), kGreen);
}

TEST_F(PaintedTest, WhatShowsThroughFollowsTheGroundOfItsContainer) {
  forms::Frame frame(form, "fra");
  forms::Label on_form(form, "lbl1"), on_frame(frame, "lbl2");
  on_form.Move(3000, 0, 900, 900), frame.Move(0, 0, 2400, 2400), on_frame.Move(600, 600, 900, 900);
  for (forms::Label* label : {&on_form, &on_frame}) label->SetBackStyle(0), label->SetCaption("");
  Show();
  form.SetBackColor(kGreen);
  EXPECT_EQ(ShownAt(3300, 300), kGreen);
  frame.SetBackColor(kRed);
  EXPECT_EQ(ShownAt(900, 900), kRed);
}

TEST_F(PaintedTest, WhatShowsThroughFollowsAPictureThatIsDrawnAgain) {
  forms::PictureBox pic(form, "pic");
  forms::Label label(pic, "lbl");
  pic.Move(0, 0, 2400, 2400), label.Move(600, 600, 900, 900);
  label.SetBackStyle(0), label.SetCaption("");
  Show();
  pic.FillBox(0, 0, 2400, 2400, kRed);
  EXPECT_EQ(ShownAt(900, 900), kRed);
  pic.FillBox(0, 0, 2400, 2400, kBlue);
  pic.Refresh();
  EXPECT_EQ(ShownAt(900, 900), kBlue);
  label.SetBackStyle(1), label.SetBackColor(kGreen);
  EXPECT_EQ(ShownAt(900, 900), kGreen);
}

class ToolbarTest : public PaintedTest {
 protected:
  ToolbarTest() {
    bar.Move(0, 0, 6000, 420);
    images.Add(PictureOf(kRed)), images.Add(PictureOf(kGreen));
    bar.SetImageList(&images);
    forms::ToolButton run{"run", "", "Runs it"}, check{"check", "", ""}, split{"", "", ""},
        text{"text", "Text \xFC", ""};
    run.Image = 1, check.Image = 2;
    check.Style = forms::ToolButtonStyle::Check, split.Style = forms::ToolButtonStyle::Separator;
    forms::ToolButton more{"more", "", "More"};
    more.Style = forms::ToolButtonStyle::DropDown, more.Image = 1;
    more.ButtonMenus = {{"one", "First"}, {"bar", "-"}, {"two", "Second"}, {"off", "Off", false}};
    for (const forms::ToolButton& button : {run, check, split, text, more}) bar.Add(button);
    bar.ButtonClick = [this](int position) { told.push_back("Click " + std::to_string(position)); };
    bar.ButtonDropDown = [this](int position) { told.push_back("DropDown " + std::to_string(position)); };
    bar.ButtonMenuClick = [this](int position, int entry) {
      told.push_back("Menu " + std::to_string(position) + " " + std::to_string(entry));
    };
  }
  Log Taken() { return std::exchange(told, {}); }
  RECT PlaceOf(int position) {
    RECT place{};
    SendMessageW(WindowOf(bar), TB_GETITEMRECT, static_cast<WPARAM>(position - 1), reinterpret_cast<LPARAM>(&place));
    return place;
  }
  LRESULT StateOf(int position) { return SendMessageW(WindowOf(bar), TB_GETSTATE, static_cast<WPARAM>(position), 0); }
  void ClickButton(int position) {
    const RECT place = PlaceOf(position);
    PostClick(WindowOf(bar), {place.left + 6, (place.top + place.bottom) / 2});
  }
  // Inside the loop of the menu that opens next.
  void InMenu(std::function<bool()> act) {
    auto number = std::make_shared<UINT_PTR>();
    *number = toolkit.StartClock(5, [this, number, act = std::move(act)] {
      const auto run = act;
      if (run()) toolkit.StopClock(*number);
    });
  }

  forms::ImageList images{form, "iml"};
  forms::Toolbar bar{form, "tlb"};
};

TEST_F(ToolbarTest, ItsButtonsHaveTextsPicturesAndStates) {
  bar.SetButtonEnabled(1, false);
  bar.SetButtonPressed(2, true);
  Show();
  EXPECT_EQ(SendMessageW(WindowOf(bar), TB_BUTTONCOUNT, 0, 0), 5);
  EXPECT_FALSE(StateOf(1) & TBSTATE_ENABLED);
  EXPECT_TRUE(StateOf(2) & TBSTATE_CHECKED);
  wchar_t text[32];
  EXPECT_EQ(SendMessageW(WindowOf(bar), TB_GETBUTTONTEXTW, 4, reinterpret_cast<LPARAM>(text)), 6);
  EXPECT_STREQ(text, L"Text \u00FC");
  EXPECT_TRUE(HasColour(bar, kGreen));
  bar.SetButtonEnabled(1, true);
  bar.SetButtonVisible(4, false);
  EXPECT_TRUE(StateOf(1) & TBSTATE_ENABLED);
  EXPECT_TRUE(StateOf(4) & TBSTATE_HIDDEN);
  bar.SetEnabled(false);
  EXPECT_FALSE(StateOf(1) & TBSTATE_ENABLED);
}

TEST_F(ToolbarTest, AButtonFitsTheBarAndButtonsStandSideBySide) {
  Show();
  RECT client{};
  GetClientRect(WindowOf(bar), &client);
  int right = 0;
  for (int position : {1, 2, 4, 5}) {
    const RECT place = PlaceOf(position);
    EXPECT_GE(place.left, right) << position;
    EXPECT_LE(place.bottom, client.bottom) << position;
    EXPECT_GT(WidthOf(place), 16) << position;
    right = place.right;
  }
  EXPECT_GT(WidthOf(PlaceOf(4)), WidthOf(PlaceOf(1)));
  EXPECT_GT(WidthOf(PlaceOf(5)), WidthOf(PlaceOf(1)));
}

TEST_F(ToolbarTest, AClickIsToldAndACheckFollowsTheControl) {
  Show();
  ClickButton(1);
  ClickButton(2);
  EXPECT_EQ(Taken(), (Log{"Click 1", "Click 2"}));
  EXPECT_TRUE(bar.Button(2).Pressed);
  EXPECT_TRUE(StateOf(2) & TBSTATE_CHECKED);
  bar.ButtonClick = [this](int) { bar.SetButtonPressed(2, true); };
  ClickButton(2);
  EXPECT_TRUE(StateOf(2) & TBSTATE_CHECKED);
  bar.SetButtonEnabled(1, false);
  ClickButton(1);
  EXPECT_EQ(Taken(), Log{});
}

TEST_F(ToolbarTest, OfAGroupOneIsDown) {
  forms::ToolButton left{"left", "L", ""}, right{"right", "R", ""};
  left.Style = right.Style = forms::ToolButtonStyle::ButtonGroup;
  left.Pressed = true;
  const int first = bar.Add(left), second = bar.Add(right);
  Show();
  EXPECT_TRUE(StateOf(first) & TBSTATE_CHECKED);
  ClickButton(second);
  EXPECT_FALSE(StateOf(first) & TBSTATE_CHECKED);
  EXPECT_TRUE(StateOf(second) & TBSTATE_CHECKED);
  ClickButton(second);
  EXPECT_TRUE(StateOf(second) & TBSTATE_CHECKED);
}

TEST_F(ToolbarTest, TheArrowOpensTheMenuThatTheControlHasBehindDropDown) {
  Show();
  Log entries;
  bar.ButtonDropDown = [this](int position) {
    told.push_back("DropDown " + std::to_string(position));
    bar.SetButtonMenus(5, {{"a", "First"}, {"b", "Last \xFC"}});
  };
  InMenu([&] {
    const HMENU menu = OpenPopup();
    if (!menu) return false;
    for (int place = 0; place < GetMenuItemCount(menu); ++place) entries.push_back(BytesOf(TitleOf(menu, place)));
    return ChooseInOpenPopup(L"Last \u00FC");
  });
  const RECT place = PlaceOf(5);
  PostClick(WindowOf(bar), {place.right - 4, (place.top + place.bottom) / 2});
  EXPECT_EQ(entries, (Log{"First", "Last \xFC"}));
  EXPECT_EQ(Taken(), (Log{"DropDown 5", "Menu 5 2"}));
  ClickButton(5);
  EXPECT_EQ(Taken(), Log{"Click 5"});
}

TEST_F(ToolbarTest, AMenuIsLeftWithoutAChoice) {
  Show();
  UINT separator = 0, off = 0;
  InMenu([&] {
    const HMENU menu = OpenPopup();
    if (!menu) return false;
    separator = GetMenuState(menu, 1, MF_BYPOSITION);
    off = GetMenuState(menu, 3, MF_BYPOSITION);
    return ChooseInOpenPopup(L"");
  });
  const RECT place = PlaceOf(5);
  PostClick(WindowOf(bar), {place.right - 4, (place.top + place.bottom) / 2});
  EXPECT_TRUE(separator & MF_SEPARATOR);
  EXPECT_TRUE(off & MF_GRAYED);
  EXPECT_EQ(Taken(), Log{"DropDown 5"});
}

TEST_F(ToolbarTest, TipsAreTheButtonsOwn) {
  Show();
  const auto tip = [&](int position) {
    wchar_t text[64] = L"";
    NMTBGETINFOTIPW asked{};
    asked.hdr = {WindowOf(bar), 0, static_cast<UINT>(TBN_GETINFOTIPW)};
    asked.pszText = text;
    asked.cchTextMax = 64;
    asked.iItem = position;
    SendMessageW(WindowOf(form), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&asked));
    return std::wstring(text);
  };
  EXPECT_EQ(tip(1), L"Runs it");
  EXPECT_EQ(tip(4), L"Text \u00FC");
}

TEST_F(ToolbarTest, AButtonMayUnloadItsForm) {
  Show();
  bar.ButtonClick = [this](int) { form.Unload(); };
  ClickButton(1);
  EXPECT_EQ(WindowOf(form), nullptr);
  EXPECT_EQ(faults, Log{});
}

// 120 dots to the inch: 125 %.
class ScaledTest : public WindowTest {
 protected:
  ScaledTest() : WindowTest(120) {}
};

TEST_F(ScaledTest, ControlsGrowWithTheDisplay) {
  forms::CommandButton button(form, "cmd");
  forms::ListBox list(form, "lst");
  forms::Toolbar bar(form, "tlb");
  forms::ComboBox combo(form, "cmb");
  button.Move(300, 600, 1200, 375), list.Move(300, 1200, 1200, 900), bar.Move(0, 0, 6000, 420);
  combo.Move(2000, 600, 1200, 315);
  forms::ToolButton text{"text", "Text", ""};
  bar.Add(text);
  list.AddItem("row");
  Show();
  RECT place{};
  GetWindowRect(WindowOf(button), &place);
  EXPECT_EQ(WidthOf(place), 100);
  EXPECT_EQ(HeightOf(place), 31);
  EXPECT_EQ(SendMessageW(WindowOf(list), LB_GETITEMHEIGHT, 0, 0), toolkit.Fonts().Of(list.Font()).Height());
  RECT client{}, tool{};
  GetClientRect(WindowOf(bar), &client);
  SendMessageW(WindowOf(bar), TB_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&tool));
  EXPECT_LE(tool.bottom, client.bottom);
  GetWindowRect(WindowOf(combo), &place);
  EXPECT_GE(HeightOf(place), toolkit.Fonts().Of(combo.Font()).Height() + 6);
}

}  // namespace
}  // namespace corvane::toolkit_win32
