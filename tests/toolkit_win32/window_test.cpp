// Windows as a user sees them: frames, states, menus, tips, the pointer, the surface of a picture box.
#include "tests/toolkit_win32/popup.h"
#include "tests/toolkit_win32/window_fixture.h"
#include "toolkit_win32/peer.h"
#include "toolkit_win32/texts.h"

namespace corvane::toolkit_win32 {
namespace {

using Log = std::vector<std::string>;

RECT Outer(HWND window) {
  RECT place{};
  GetWindowRect(window, &place);
  return place;
}

RECT Client(HWND window) {
  RECT place{};
  GetClientRect(window, &place);
  return place;
}

class Window : public WindowTest {};

TEST_F(Window, StandsWhereTheFormSays) {
  Show();
  const RECT place = Outer(WindowOf(form)), expected{20, 20, 420, 320};
  EXPECT_TRUE(EqualRect(&place, &expected));
}

class WindowAtResolutions : public WindowTest, public ::testing::WithParamInterface<int> {
 protected:
  WindowAtResolutions() : WindowTest(GetParam()) {}
};
INSTANTIATE_TEST_SUITE_P(Dpi, WindowAtResolutions, ::testing::Values(96, 120, 144));

TEST_P(WindowAtResolutions, TheClientAreaIsTheFormsInside) {
  const forms::FormBorder borders[] = {forms::FormBorder::None,      forms::FormBorder::FixedSingle,
                                       forms::FormBorder::Sizable,   forms::FormBorder::FixedDialog,
                                       forms::FormBorder::FixedTool, forms::FormBorder::SizableTool};
  for (forms::FormBorder border : borders) {
    forms::Form shown(toolkit, "frmBorder");
    shown.SetBorderStyle(border);
    shown.Move(600, 600, 6000, 4500);
    shown.Show();
    Pump();
    const RECT client = Client(WindowOf(shown));
    EXPECT_NEAR(client.right, toolkit.Scale().Pixels(shown.ScaleWidth()), 1) << static_cast<int>(border);
    EXPECT_NEAR(client.bottom, toolkit.Scale().Pixels(shown.ScaleHeight()), 1) << static_cast<int>(border);
    EXPECT_EQ(WidthOf(Outer(WindowOf(shown))), toolkit.Scale().Pixels(6000));
  }
}

TEST_P(WindowAtResolutions, ControlsThatTouchInTwipsTouchInPixels) {
  forms::PictureBox left(form, "left"), right(form, "right");
  left.Move(100, 100, 1001, 600), right.Move(1101, 100, 1001, 600);
  Show();
  EXPECT_EQ(Outer(WindowOf(left)).right, Outer(WindowOf(right)).left);
}

TEST_F(Window, MakesRoomForTheMenuBar) {
  forms::Menu mnuFile(form, "mnuFile", "&File"), mnuOpen(mnuFile, "mnuOpen", "&Open");
  Show();
  EXPECT_NE(GetMenu(WindowOf(form)), nullptr);
  EXPECT_NEAR(Client(WindowOf(form)).bottom, toolkit.Scale().Pixels(form.ScaleHeight()), 1);
}

TEST_F(Window, CaptionIsOfTheCodePage) {
  form.SetCaption(
      "Pr\xFC"
      "fung");
  Show();
  EXPECT_EQ(TextOf(WindowOf(form)), L"Pr\u00FCfung");
}

TEST_F(Window, ResizedByTheUserRaisesResizeWithTheNewSize) {
  Show();
  int resizes = 0;
  form.Resize = [&] { ++resizes; };
  SetWindowPos(WindowOf(form), nullptr, 0, 0, 500, 400, SWP_NOMOVE | SWP_NOZORDER);
  Pump();
  EXPECT_EQ(resizes, 1);
  EXPECT_EQ(form.Width(), 7500);
  EXPECT_EQ(form.Height(), 6000);
}

TEST_F(Window, MovedByTheUserTellsItsPlaceWithoutResize) {
  Show();
  int resizes = 0;
  form.Resize = [&] { ++resizes; };
  SetWindowPos(WindowOf(form), nullptr, 100, 50, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  Pump();
  EXPECT_EQ(resizes, 0);
  EXPECT_EQ(form.Left(), 1500);
  EXPECT_EQ(form.Top(), 750);
}

TEST_F(Window, StatesGoBothWays) {
  Show();
  form.SetWindowState(forms::vbMaximized);
  Pump();
  EXPECT_TRUE(IsZoomed(WindowOf(form)));
  EXPECT_GT(form.Width(), 6000);
  PostMessageW(WindowOf(form), WM_SYSCOMMAND, SC_RESTORE, 0);
  Pump();
  EXPECT_EQ(form.WindowState(), forms::vbNormal);
  EXPECT_EQ(form.Width(), 6000);
  form.SetWindowState(forms::vbMinimized);
  Pump();
  EXPECT_TRUE(IsIconic(WindowOf(form)));
  EXPECT_EQ(form.Width(), 6000);
  PostMessageW(WindowOf(form), WM_SYSCOMMAND, SC_RESTORE, 0);
  Pump();
  EXPECT_EQ(form.WindowState(), forms::vbNormal);
}

TEST_F(Window, TheUsersMaximisingResizesOnceWithTheNewSize) {
  Show();
  std::vector<forms::Twips> widths;
  form.Resize = [&] { widths.push_back(form.Width()); };
  PostMessageW(WindowOf(form), WM_SYSCOMMAND, SC_MAXIMIZE, 0);
  Pump();
  EXPECT_EQ(form.WindowState(), forms::vbMaximized);
  ASSERT_EQ(widths.size(), 1u);
  EXPECT_GT(widths[0], 6000);
}

TEST_F(Window, AStateSetByCodeResizesOnceWithTheNewSize) {
  Show();
  std::vector<forms::Twips> widths;
  form.Resize = [&] { widths.push_back(form.Width()); };
  form.SetWindowState(forms::vbMaximized);
  Pump();
  ASSERT_EQ(widths.size(), 1u);
  EXPECT_GT(widths[0], 6000);
  form.SetWindowState(forms::vbNormal);
  Pump();
  ASSERT_EQ(widths.size(), 2u);
  EXPECT_EQ(widths[1], 6000);
}

TEST_F(Window, AHandlerMayUnloadTheFormThatIsMaximised) {
  Show();
  form.Resize = [this] { form.Unload(); };
  form.SetWindowState(forms::vbMaximized);
  Pump();
  EXPECT_FALSE(form.IsLoaded());
  EXPECT_EQ(faults, Log{});
}

TEST_F(Window, HiddenMaximisedItIsShownAsItWasBefore) {
  Show();
  form.SetWindowState(forms::vbMaximized);
  Pump();
  form.Hide();
  form.SetWindowState(forms::vbNormal);
  Show();
  EXPECT_FALSE(IsZoomed(WindowOf(form)));
  EXPECT_TRUE(IsWindowVisible(WindowOf(form)));
  EXPECT_EQ(form.Width(), 6000);
  EXPECT_EQ(form.Height(), 4500);
}

TEST_F(Window, InTheCornerOfTheScreenItStaysThere) {
  Show();
  SetWindowPos(WindowOf(form), nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  Pump();
  ASSERT_EQ(form.Left(), 0);
  form.SetWidth(5000);
  RECT place{};
  GetWindowRect(WindowOf(form), &place);
  EXPECT_EQ(place.left, 0);
  EXPECT_EQ(place.top, 0);
}

TEST_F(Window, RestoredByCodeHasItsNormalSizeAgain) {
  Show();
  form.SetWindowState(forms::vbMaximized);
  Pump();
  ASSERT_GT(form.Width(), 6000);
  form.SetWindowState(forms::vbNormal);
  Pump();
  EXPECT_EQ(form.Width(), 6000);
  EXPECT_EQ(form.Height(), 4500);
}

TEST_F(Window, MaximisedFromTheStartHasItsSizeInTheFirstResize) {
  form.SetWindowState(forms::vbMaximized);
  forms::Twips width = 0;
  form.Resize = [&] { width = form.Width(); };
  Show();
  EXPECT_TRUE(IsZoomed(WindowOf(form)));
  EXPECT_GT(width, 6000);
}

TEST_F(Window, StaysInFrontOfTheHost) {
  const HWND host = CreateWindowExW(0, L"STATIC", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 400, 300, nullptr,
                                    nullptr, nullptr, nullptr);
  toolkit.SetHostWindow(host);
  Show();
  EXPECT_EQ(GetWindow(WindowOf(form), GW_OWNER), host);
  form.Unload();
  DestroyWindow(host);
}

// Counts what a window hears of one message.
class Heard {
 public:
  Heard(HWND window, UINT id) : window_(window), id_(id) {
    SetPropW(window, kName, this);
    before_ = reinterpret_cast<WNDPROC>(SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure)));
  }
  ~Heard() {
    SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(before_));
    RemovePropW(window_, kName);
  }
  Heard(const Heard&) = delete;
  Heard& operator=(const Heard&) = delete;
  int Count() const { return count_; }

 private:
  static constexpr wchar_t kName[] = L"Heard";
  static LRESULT CALLBACK Procedure(HWND window, UINT id, WPARAM w, LPARAM l) {
    auto& self = *static_cast<Heard*>(GetPropW(window, kName));
    if (id == self.id_) ++self.count_;
    return CallWindowProcW(self.before_, window, id, w, l);
  }
  HWND window_;
  UINT id_;
  WNDPROC before_ = nullptr;
  int count_ = 0;
};

TEST_F(Window, F1ThatNobodyUsesDoesNotAskTheHostForHelp) {
  const HWND host = CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 200, 100, nullptr,
                                    nullptr, nullptr, nullptr);
  toolkit.SetHostWindow(host);
  form.SetBorderStyle(forms::FormBorder::FixedDialog);
  forms::TextBox txt(form, "txt");
  Show();
  {
    const Heard asked(host, WM_HELP);
    HELPINFO help{};
    help.cbSize = sizeof help;
    help.iContextType = HELPINFO_WINDOW;
    help.hItemHandle = WindowOf(txt);
    SendMessageW(WindowOf(txt), WM_HELP, 0, reinterpret_cast<LPARAM>(&help));
    EXPECT_EQ(asked.Count(), 0);
  }
  form.Unload();
  toolkit.SetHostWindow(nullptr);
  DestroyWindow(host);
}

TEST_F(Window, ColoursAndStylesOfTheSystemThatChangeReachAllControls) {
  forms::Frame fra(form, "fra");
  forms::TextBox txt(fra, "txt");
  fra.Move(120, 120, 2000, 2000), txt.Move(240, 240, 1000, 315);
  Show();
  UpdateWindow(WindowOf(form));
  for (UINT id : {UINT{WM_SYSCOLORCHANGE}, UINT{WM_THEMECHANGED}}) {
    const Heard told_frame(WindowOf(fra), id), told_text(WindowOf(txt), id);
    SendMessageW(WindowOf(form), id, 0, 0);
    EXPECT_EQ(told_frame.Count(), 1) << id;
    EXPECT_EQ(told_text.Count(), 1) << id;
    EXPECT_TRUE(GetUpdateRect(WindowOf(txt), nullptr, FALSE)) << id;
    Pump();
  }
}

TEST_F(Window, UnplacedStandsInsideTheScreen) {
  form.Move(0, 0, 6000, 4500);
  Show();
  const RECT place = Outer(WindowOf(form));
  EXPECT_GT(place.left, 0);
  EXPECT_GT(place.top, 0);
  EXPECT_EQ(form.Left(), toolkit.Scale().TwipsOf(place.left));
}

TEST_F(Window, CheckedAndDisabledItemsShowSo) {
  forms::Menu mnuFile(form, "mnuFile", "&File"), mnuOn(mnuFile, "mnuOn", "On"), mnuOff(mnuFile, "mnuOff", "Off"),
      mnuHidden(mnuFile, "mnuHidden", "Hidden");
  mnuOn.SetChecked(true), mnuOff.SetEnabled(false), mnuHidden.SetVisible(false);
  mnuOn.SetShortcut("^{F2}");
  Show();
  const HMENU file = GetSubMenu(GetMenu(WindowOf(form)), 0);
  SendMessageW(WindowOf(form), WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(file), 0);
  ASSERT_EQ(GetMenuItemCount(file), 2);
  EXPECT_TRUE(GetMenuState(file, 0, MF_BYPOSITION) & MF_CHECKED);
  EXPECT_TRUE(GetMenuState(file, 1, MF_BYPOSITION) & MF_GRAYED);
  EXPECT_EQ(TitleOf(file, 0), L"On\tCtrl+F2");
}

TEST_F(Window, MenuTitlesFollowTheirMenus) {
  forms::Menu mnuFile(form, "mnuFile", "&File"), mnuEdit(form, "mnuEdit", "&Edit"), mnuCut(mnuEdit, "mnuCut", "Cut");
  Show();
  mnuFile.SetCaption("&Project");
  mnuEdit.SetEnabled(false);
  Pump();
  const HMENU bar = GetMenu(WindowOf(form));
  EXPECT_EQ(TitleOf(bar, 0), L"&Project");
  EXPECT_TRUE(GetMenuState(bar, 1, MF_BYPOSITION) & MF_GRAYED);
  mnuEdit.SetVisible(false);
  Pump();
  EXPECT_EQ(GetMenuItemCount(GetMenu(WindowOf(form))), 1);
}

TEST_F(Window, SubmenusOpenOutOfPopups) {
  forms::Menu mnuPopup(form, "mnuPopup", "Popup"), mnuMore(mnuPopup, "mnuMore", "More"),
      mnuDeep(mnuMore, "mnuDeep", "Deep");
  mnuPopup.SetVisible(false);
  mnuMore.Click = [this] { told.push_back("More"); };
  mnuDeep.Click = [this] { told.push_back("Deep"); };
  Show();
  const UINT_PTR clock = toolkit.StartClock(10, [] {
    const HMENU open = OpenPopup();
    const HWND owner = ThreadState().hwndMenuOwner;
    if (!open || !owner) return;
    const bool deep = PlaceIn(open, L"Deep") >= 0;
    for (int key : {VK_DOWN, deep ? VK_RETURN : VK_RIGHT}) PostMessageW(owner, WM_KEYDOWN, static_cast<WPARAM>(key), 1);
    if (!deep) PostMessageW(owner, WM_KEYDOWN, VK_RETURN, 1);
  });
  form.PopupMenu(mnuPopup, 300, 300);
  toolkit.StopClock(clock);
  EXPECT_EQ(told, (Log{"More", "Deep"}));
}

TEST_F(Window, AFormUnloadedByAMenuOfItsOwnGoes) {
  forms::Menu mnuPopup(form, "mnuPopup", "Popup"), mnuExit(mnuPopup, "mnuExit", "Exit");
  mnuPopup.SetVisible(false);
  mnuExit.Click = [this] { form.Unload(); };
  Show();
  const UINT_PTR clock = toolkit.StartClock(5, [] { ChooseInOpenPopup(L"Exit"); });
  form.PopupMenu(mnuPopup, 300, 300);
  toolkit.StopClock(clock);
  EXPECT_FALSE(form.IsLoaded());
  EXPECT_EQ(faults, Log{});
}

TEST_F(Window, AFormUnloadedWhileItsMenuIsOpenGoes) {
  forms::Menu mnuPopup(form, "mnuPopup", "Popup"), mnuExit(mnuPopup, "mnuExit", "Exit");
  mnuPopup.SetVisible(false);
  Show();
  const UINT_PTR clock = toolkit.StartClock(5, [this] {
    if (!OpenPopup()) return;
    form.Unload();
    EndMenu();
  });
  form.PopupMenu(mnuPopup, 300, 300);
  toolkit.StopClock(clock);
  EXPECT_FALSE(form.IsLoaded());
  EXPECT_EQ(faults, Log{});
}

TEST_F(Window, PointerOfTheScreenGoesBeforeThatOfAControl) {
  forms::PictureBox pic(form, "pic");
  pic.SetMousePointer(2);
  Show();
  const auto shown = [&] {
    SendMessageW(WindowOf(pic), WM_SETCURSOR, reinterpret_cast<WPARAM>(WindowOf(pic)), HTCLIENT);
    return GetCursor();
  };
  EXPECT_EQ(shown(), ShownPointer(2));
  toolkit.SetScreenPointer(11);
  EXPECT_EQ(shown(), ShownPointer(11));
  toolkit.SetScreenPointer(0);
  form.SetMousePointer(11);
  EXPECT_EQ(shown(), ShownPointer(2));
  pic.SetMousePointer(0);
  EXPECT_EQ(shown(), ShownPointer(11));
}

TEST_F(Window, TellsWhatLiesUnderThePointer) {
  forms::PictureBox pic(form, "pic");
  pic.Move(300, 300, 3000, 1500);
  Show();
  POINT inside{20, 20};
  ClientToScreen(WindowOf(pic), &inside);
  SetCursorPos(inside.x, inside.y);
  EXPECT_EQ(toolkit.ControlUnderPointer(), &pic);
  SetCursorPos(1, 1);
  EXPECT_EQ(toolkit.ControlUnderPointer(), nullptr);
}

TEST_F(Window, ToolTipHasTheTextOfItsControl) {
  forms::PictureBox pic(form, "pic");
  pic.SetToolTipText(
      "Gr\xF6\xDF"
      "e");
  Show();
  wchar_t text[64] = L"";
  TTTOOLINFOW tool{};
  tool.cbSize = TTTOOLINFOW_V2_SIZE;
  tool.uFlags = TTF_IDISHWND;
  tool.hwnd = WindowOf(pic);
  tool.uId = reinterpret_cast<UINT_PTR>(WindowOf(pic));
  tool.lpszText = text;
  SendMessageW(toolkit.Tips().Handle(), TTM_GETTEXTW, 64, reinterpret_cast<LPARAM>(&tool));
  EXPECT_STREQ(text, L"Gr\u00F6\u00DFe");
  pic.SetToolTipText("");
  EXPECT_EQ(SendMessageW(toolkit.Tips().Handle(), TTM_GETTOOLCOUNT, 0, 0), 0);
}

class Surface : public Window {
 protected:
  Surface() {
    pic.Move(300, 300, 3000, 1500), bar.Move(3300, 300, 255, 1500);
    bar.SetMax(1000), bar.SetLargeChange(20);
    pic.Paint = [this] { told.push_back("Paint"); };
  }
  COLORREF Pixel(int x, int y) {
    UpdateWindow(WindowOf(pic));
    const HDC dc = GetDC(WindowOf(pic));
    const COLORREF color = GetPixel(dc, x, y);
    ReleaseDC(WindowOf(pic), dc);
    return color;
  }
  forms::PictureBox pic{form, "pic"};
  forms::VScrollBar bar{form, "bar"};
};

TEST_F(Surface, HasTheSizeInsideItsBorder) {
  Show();
  EXPECT_EQ(Client(WindowOf(pic)).right, toolkit.Scale().Pixels(pic.ScaleWidth()));
  EXPECT_EQ(Client(WindowOf(pic)).bottom, toolkit.Scale().Pixels(pic.ScaleHeight()));
  pic.SetBorderStyle(0);
  Pump();
  EXPECT_EQ(Client(WindowOf(pic)).right, 200);
}

TEST_F(Surface, ShowsWhatIsDrawnWithoutARefresh) {
  Show();
  pic.FillBox(0, 0, 1500, 1500, forms::RGB(255, 0, 0));
  Pump();
  EXPECT_EQ(Pixel(10, 10), forms::RGB(255, 0, 0));
}

TEST_F(Surface, ShowsOnlyWhatChanged) {
  Show();
  pic.FillBox(0, 0, 3000, 1500, forms::RGB(0, 0, 255));
  pic.Refresh();
  Pump();
  ValidateRect(WindowOf(pic), nullptr);
  pic.FillBox(150, 150, 300, 300, forms::RGB(255, 0, 0));
  // What Refresh invalidates is painted at once: nothing is left.
  pic.Refresh();
  EXPECT_FALSE(GetUpdateRect(WindowOf(pic), nullptr, FALSE));
  EXPECT_EQ(Pixel(15, 15), forms::RGB(255, 0, 0));
  EXPECT_EQ(Pixel(100, 50), forms::RGB(0, 0, 255));
}

TEST_F(Surface, IsDrawnAgainWhenItGrows) {
  Show();
  told.clear();
  pic.Move(300, 300, 4500, 1500);
  EXPECT_EQ(told, (Log{"Paint"}));
}

TEST_F(Surface, TheWheelScrollsItsBar) {
  Show();
  bar.SetValue(100);
  POINT over{20, 20};
  ClientToScreen(WindowOf(pic), &over);
  const auto turn = [&](int by) {
    SendMessageW(WindowOf(pic), WM_MOUSEWHEEL, MAKEWPARAM(0, by), MAKELPARAM(over.x, over.y));
  };
  turn(-WHEEL_DELTA);
  EXPECT_EQ(bar.Value(), 103);
  turn(WHEEL_DELTA / 2);
  EXPECT_EQ(bar.Value(), 103);
  turn(WHEEL_DELTA / 2);
  EXPECT_EQ(bar.Value(), 100);
  turn(100 * WHEEL_DELTA);
  EXPECT_EQ(bar.Value(), 0);
}

TEST_F(Surface, ADragIsHeardBeyondTheEdge) {
  Show();
  std::vector<forms::Twips> heard;
  pic.MouseMove = [&](int button, int, forms::Twips x, forms::Twips) {
    if (button == forms::vbLeftButton) heard.push_back(x);
  };
  PostMouse(WindowOf(pic), WM_LBUTTONDOWN, {10, 10}, MK_LBUTTON);
  EXPECT_EQ(GetCapture(), WindowOf(pic));
  PostMouse(WindowOf(pic), WM_MOUSEMOVE, {-30, 10}, MK_LBUTTON);
  PostMouse(WindowOf(pic), WM_LBUTTONUP, {-30, 10});
  EXPECT_EQ(GetCapture(), nullptr);
  EXPECT_EQ(heard, (std::vector<forms::Twips>{-450}));
}

TEST_F(Surface, ControlsOnItAreShown) {
  forms::TextBox edit(pic, "edit");
  edit.Move(60, 60, 900, 315);
  Show();
  EXPECT_EQ(GetParent(WindowOf(edit)), WindowOf(pic));
  EXPECT_TRUE(IsWindowVisible(WindowOf(edit)));
}

TEST_F(Window, AClickOnAScrollBarTakesTheFocus) {
  forms::TextBox txt(form, "txt");
  forms::VScrollBar bar(form, "vs");
  bar.Move(3000, 300, 255, 1500);
  Show();
  ASSERT_EQ(form.ActiveControl(), &txt);
  const HWND window = WindowOf(bar);
  const LPARAM low = MAKELPARAM(5, Client(window).bottom - 4);
  PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, low);  // the system waits for the release in a loop of its own
  PostMessageW(window, WM_LBUTTONUP, 0, low);
  Pump();
  EXPECT_EQ(form.ActiveControl(), &bar);
  EXPECT_EQ(GetFocus(), window);
  EXPECT_EQ(bar.Value(), 1);
}

TEST_F(Window, TheWheelTurnsTheScrollBarUnderIt) {
  forms::VScrollBar upright(form, "vs");
  forms::HScrollBar flat(form, "hs");
  upright.Move(3000, 300, 255, 1500), flat.Move(300, 3000, 1500, 255);
  upright.SetMax(100), upright.SetValue(50), flat.SetMax(100), flat.SetValue(50);
  Show();
  const auto turn = [&](const forms::Control& over, UINT wheel, int notches) {
    SendMessageW(WindowOf(over), wheel, MAKEWPARAM(0, notches * WHEEL_DELTA), 0);
  };
  turn(upright, WM_MOUSEWHEEL, 1);
  EXPECT_EQ(upright.Value(), 47);
  turn(upright, WM_MOUSEWHEEL, -2);
  EXPECT_EQ(upright.Value(), 53);
  turn(flat, WM_MOUSEWHEEL, -1);
  EXPECT_EQ(flat.Value(), 53);
  turn(flat, WM_MOUSEHWHEEL, -1);
  EXPECT_EQ(flat.Value(), 50);
  turn(upright, WM_MOUSEWHEEL, 100);
  EXPECT_EQ(upright.Value(), 0);
}

TEST_F(Window, TheSidewaysWheelTurnsTheFlatScrollBarBesideASurface) {
  forms::PictureBox pic(form, "pic");
  forms::HScrollBar flat(form, "hs");
  pic.Move(0, 0, 1500, 1500), flat.Move(0, 1500, 1500, 255);
  flat.SetMax(100);
  Show();
  SendMessageW(WindowOf(pic), WM_MOUSEHWHEEL, MAKEWPARAM(0, WHEEL_DELTA), 0);
  EXPECT_EQ(flat.Value(), 3);
  SendMessageW(WindowOf(pic), WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), 0);
  EXPECT_EQ(flat.Value(), 3) << "upright turns are another bar's";
}

}  // namespace
}  // namespace corvane::toolkit_win32
