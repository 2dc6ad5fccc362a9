// Command buttons, check boxes, options, scroll bars.
#include "tests/toolkit_win32/window_fixture.h"
#include "toolkit_win32/texts.h"

namespace corvane::toolkit_win32 {
namespace {

using Log = std::vector<std::string>;

class ButtonTest : public WindowTest {
 protected:
  void Note(forms::Control& control) {
    const std::string name = control.Name();
    control.Click = [this, name] { told.push_back(name + "_Click"); };
    control.GotFocus = [this, name] { told.push_back(name + "_GotFocus"); };
    control.MouseDown = [this, name](int, int, forms::Twips, forms::Twips) { told.push_back(name + "_MouseDown"); };
    control.MouseUp = [this, name](int, int, forms::Twips, forms::Twips) { told.push_back(name + "_MouseUp"); };
    control.KeyPress = [this, name](int&) { told.push_back(name + "_KeyPress"); };
  }
  Log Taken() { return std::exchange(told, {}); }
  LRESULT CheckOf(const forms::Control& control) { return SendMessageW(WindowOf(control), BM_GETCHECK, 0, 0); }
  DWORD StyleOf(const forms::Control& control) {
    return static_cast<DWORD>(GetWindowLongPtrW(WindowOf(control), GWL_STYLE));
  }

  forms::TextBox first{form, "txt"};
  forms::CommandButton cmd{form, "cmd"}, ok{form, "cmdOK"};
  forms::CheckBox chk{form, "chk"};
  forms::OptionButton one{form, "optOne"}, two{form, "optTwo"};
  forms::HScrollBar bar{form, "hs"};
  ButtonTest() {
    cmd.Move(120, 120, 1200, 375), ok.Move(120, 600, 1200, 375), chk.Move(120, 1100, 1500, 300);
    one.Move(120, 1500, 1500, 300), two.Move(120, 1900, 1500, 300), bar.Move(120, 2300, 3000, 255);
    first.Move(3000, 120, 1500, 300);
    cmd.SetCaption("&Save && go \xFC");
  }
};

TEST_F(ButtonTest, CaptionsReachTheWindow) {
  Show();
  EXPECT_EQ(TextOf(WindowOf(cmd)), L"&Save && go \u00FC");
  cmd.SetCaption("");
  EXPECT_EQ(TextOf(WindowOf(cmd)), L"");
}

TEST_F(ButtonTest, TheDefaultButtonLooksLikeIt) {
  ok.SetDefault(true);
  Show();
  EXPECT_EQ(StyleOf(ok) & BS_TYPEMASK, static_cast<DWORD>(BS_DEFPUSHBUTTON));
  cmd.SetDefault(true);
  EXPECT_EQ(StyleOf(ok) & BS_TYPEMASK, static_cast<DWORD>(BS_PUSHBUTTON));
  EXPECT_EQ(StyleOf(cmd) & BS_TYPEMASK, static_cast<DWORD>(BS_DEFPUSHBUTTON));
}

TEST_F(ButtonTest, AQuickSecondPressIsAClickToo) {
  Show();
  Note(cmd);
  Click(cmd);
  const HWND window = WindowOf(cmd);
  PostMouse(window, WM_LBUTTONDBLCLK, Middle(window), MK_LBUTTON);
  PostMouse(window, WM_LBUTTONUP, Middle(window));
  const Log taken = Taken();
  EXPECT_EQ(std::count(taken.begin(), taken.end(), "cmd_Click"), 2);
}

TEST_F(ButtonTest, AReleaseOutsideIsNoClick) {
  Show();
  Note(cmd);
  PostMouse(WindowOf(cmd), WM_LBUTTONDOWN, {5, 5}, MK_LBUTTON);
  PostMouse(WindowOf(cmd), WM_MOUSEMOVE, {500, 500}, MK_LBUTTON);
  PostMouse(WindowOf(cmd), WM_LBUTTONUP, {500, 500});
  EXPECT_EQ(Taken(), (Log{"cmd_GotFocus", "cmd_MouseDown", "cmd_MouseUp"}));
}

TEST_F(ButtonTest, TheBlankClicksUnlessAHandlerTakesIt) {
  Show();
  cmd.SetFocus();
  Note(cmd);
  PostKey(VK_SPACE);
  EXPECT_EQ(Taken(), (Log{"cmd_KeyPress", "cmd_Click"}));
  cmd.KeyPress = [](int& key) { key = 0; };
  PostKey(VK_SPACE);
  EXPECT_EQ(Taken(), Log{});
}

TEST_F(ButtonTest, ADisabledButtonTakesNoClick) {
  Show();
  Note(cmd);
  cmd.SetEnabled(false);
  EXPECT_FALSE(IsWindowEnabled(WindowOf(cmd)));
  Click(cmd);
  EXPECT_EQ(Taken(), Log{});
}

TEST_F(ButtonTest, ACheckBoxShowsItsThreeStatesAndTurnsByItself) {
  Show();
  for (int value : {forms::vbChecked, forms::vbGrayed, forms::vbUnchecked}) {
    chk.SetValue(value);
    EXPECT_EQ(CheckOf(chk), value);
  }
  Note(chk);
  Click(chk);
  EXPECT_EQ(chk.Value(), forms::vbChecked);
  EXPECT_EQ(CheckOf(chk), BST_CHECKED);
  EXPECT_EQ(Taken(), (Log{"chk_GotFocus", "chk_MouseDown", "chk_Click", "chk_MouseUp"}));
  chk.Click = [this] { chk.SetValue(forms::vbChecked); };
  Click(chk);
  EXPECT_EQ(CheckOf(chk), BST_CHECKED);
}

TEST_F(ButtonTest, AnOptionClearsItsSiblingsAndIsNotChosenByTheFocusAlone) {
  one.SetValue(true);
  Show();
  Note(one), Note(two);
  two.SetFocus();
  EXPECT_EQ(Taken(), Log{"optTwo_GotFocus"});
  EXPECT_TRUE(one.Value());
  Click(two);
  EXPECT_EQ(CheckOf(one), BST_UNCHECKED);
  EXPECT_EQ(CheckOf(two), BST_CHECKED);
  EXPECT_EQ(Taken(), (Log{"optTwo_MouseDown", "optTwo_Click", "optTwo_MouseUp"}));
  PostKey(VK_UP);
  EXPECT_EQ(CheckOf(one), BST_CHECKED);
  EXPECT_EQ(Taken(), (Log{"optOne_GotFocus", "optOne_Click"}));
}

TEST_F(ButtonTest, ColoursAreTheControls) {
  chk.SetBackColor(forms::RGB(1, 2, 3));
  chk.SetForeColor(forms::RGB(4, 5, 6));
  Show();
  const HDC dc = GetDC(WindowOf(form));
  const auto brush = reinterpret_cast<HBRUSH>(SendMessageW(
      WindowOf(form), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(WindowOf(chk))));
  EXPECT_TRUE(brush);
  EXPECT_EQ(GetTextColor(dc), forms::RGB(4, 5, 6));
  EXPECT_EQ(GetBkColor(dc), forms::RGB(1, 2, 3));
  ReleaseDC(WindowOf(form), dc);
}

TEST_F(ButtonTest, FontsAreTheControls) {
  forms::Font font;
  font.Name = "Arial", font.Size = 18, font.Bold = true;
  cmd.SetFont(font);
  Show();
  LOGFONTW shown{};
  GetObjectW(reinterpret_cast<HFONT>(SendMessageW(WindowOf(cmd), WM_GETFONT, 0, 0)), sizeof shown, &shown);
  EXPECT_STREQ(shown.lfFaceName, L"Arial");
  EXPECT_EQ(shown.lfHeight, -MulDiv(18, toolkit.Scale().Dpi(), 72));
  EXPECT_EQ(shown.lfWeight, FW_BOLD);
}

TEST_F(ButtonTest, AGraphicalButtonIsPaintedAndClicks) {
  cmd.SetStyle(1);
  cmd.SetBackColor(forms::RGB(0, 128, 255));
  Show();
  const HWND window = WindowOf(cmd);
  EXPECT_EQ(StyleOf(cmd) & BS_TYPEMASK, static_cast<DWORD>(BS_OWNERDRAW));
  UpdateWindow(window);
  const HDC dc = GetDC(window);
  EXPECT_EQ(GetPixel(dc, 6, 6), forms::RGB(0, 128, 255));
  ReleaseDC(window, dc);
  Note(cmd);
  Click(cmd);
  EXPECT_EQ(Taken(), (Log{"cmd_GotFocus", "cmd_MouseDown", "cmd_Click", "cmd_MouseUp"}));
}

TEST_F(ButtonTest, AButtonMayUnloadItsForm) {
  Show();
  cmd.Click = [this] { form.Unload(); };
  Click(cmd);
  EXPECT_EQ(WindowOf(form), nullptr);
  EXPECT_EQ(faults, Log{});
}

class ScrollBarTest : public ButtonTest {
 protected:
  ScrollBarTest() {
    bar.SetMin(10), bar.SetMax(110), bar.SetSmallChange(2), bar.SetLargeChange(20), bar.SetValue(30);
    bar.Change = [this] { told.push_back("Change " + std::to_string(bar.Value())); };
    bar.Scroll = [this] { told.push_back("Scroll " + std::to_string(bar.Value())); };
  }
  SCROLLINFO Info() {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    GetScrollInfo(WindowOf(bar), SB_CTL, &info);
    return info;
  }
  void Act(int how) {
    SendMessageW(WindowOf(form), WM_HSCROLL, MAKEWPARAM(how, 0), reinterpret_cast<LPARAM>(WindowOf(bar)));
  }
  // From the thumb at the near end to [x]; the messages wait.
  void DragThumb(int x) {
    const int thumb = GetSystemMetrics(SM_CXHSCROLL) + 4;
    PostMessageW(WindowOf(bar), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(thumb, 8));
    for (int step = thumb; step < x; step += 10) {
      PostMessageW(WindowOf(bar), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(step, 8));
    }
    PostMessageW(WindowOf(bar), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(x, 8));
  }
};

TEST_F(ScrollBarTest, ShowsRangePageAndPlace) {
  Show();
  const SCROLLINFO info = Info();
  EXPECT_EQ(info.nMin, 0);
  EXPECT_EQ(info.nMax, 119);
  EXPECT_EQ(info.nPage, 20u);
  EXPECT_EQ(info.nPos, 20);
}

TEST_F(ScrollBarTest, LinesPagesAndEndsMoveByTheControlsSteps) {
  Show();
  Taken();
  for (int how : {SB_LINEDOWN, SB_LINEUP, SB_PAGEDOWN, SB_PAGEUP, SB_BOTTOM, SB_LINEDOWN, SB_TOP}) Act(how);
  EXPECT_EQ(Taken(), (Log{"Change 32", "Change 30", "Change 50", "Change 30", "Change 110", "Change 10"}));
  EXPECT_EQ(Info().nPos, 0);
}

// As when the bar is disabled, or loses the mouse, under the thumb.
TEST_F(ScrollBarTest, DraggingThatIsBrokenOffChangesOnceAndEnds) {
  Show();
  Taken();
  SCROLLINFO info = Info();
  info.fMask = SIF_POS;
  info.nPos = 50;
  SetScrollInfo(WindowOf(bar), SB_CTL, &info, FALSE);
  Act(SB_THUMBTRACK);
  EXPECT_EQ(Taken(), Log{"Scroll 60"});
  Act(SB_ENDSCROLL);
  EXPECT_EQ(Taken(), Log{"Change 60"});
  Act(SB_LINEDOWN);
  EXPECT_EQ(Taken(), Log{"Change 62"});
  bar.SetValue(10);
  EXPECT_EQ(Info().nPos, 0);
}

TEST_F(ScrollBarTest, ARangeMayRunBackwards) {
  bar.SetMin(100), bar.SetMax(0);
  bar.SetValue(90);
  Show();
  EXPECT_EQ(Info().nPos, 10);
  Taken();
  Act(SB_LINEDOWN);
  EXPECT_EQ(Taken(), Log{"Change 88"});
  EXPECT_EQ(Info().nPos, 12);
}

TEST_F(ScrollBarTest, ArrowsScrollTheBarWithTheFocus) {
  Show();
  bar.SetFocus();
  Taken();
  PostKey(VK_RIGHT);
  PostKey(VK_NEXT);
  EXPECT_EQ(Taken(), (Log{"Change 32", "Change 52"}));
}

// The mouse itself: the system's own loop follows the thumb.
TEST_F(ScrollBarTest, TheThumbIsDraggedAcrossALargeRange) {
  bar.Move(120, 120, 4500, 255);
  bar.SetValue(10), bar.SetMax(200010), bar.SetLargeChange(20000);
  Show();
  Taken();
  DragThumb(150);
  PostMessageW(WindowOf(bar), WM_LBUTTONUP, 0, MAKELPARAM(150, 8));
  Pump();
  const Log taken = Taken();
  ASSERT_GE(taken.size(), 2u);
  for (size_t at = 0; at + 1 < taken.size(); ++at) EXPECT_EQ(taken[at].substr(0, 7), "Scroll ") << at;
  EXPECT_EQ(taken.back(), "Change " + std::to_string(bar.Value()));
  EXPECT_GT(bar.Value(), 65535 + 10);
  EXPECT_EQ(Info().nPos, bar.Value() - 10);
}

TEST_F(ScrollBarTest, ADragThatTheSystemBreaksOffIsAtItsEnd) {
  bar.Move(120, 120, 4500, 255);
  bar.SetValue(10), bar.SetMax(1010), bar.SetLargeChange(100);
  Show();
  Taken();
  DragThumb(150);
  const UINT_PTR clock = toolkit.StartClock(10, [] { ReleaseCapture(); });
  // The system's loop looks whether it has the mouse when a message comes.
  PumpFor(100);
  toolkit.StopClock(clock);
  ASSERT_NE(GetCapture(), WindowOf(bar));
  ASSERT_FALSE(told.empty());
  EXPECT_EQ(told.front().substr(0, 7), "Scroll ");
  EXPECT_EQ(Taken().back(), "Change " + std::to_string(bar.Value()));
  bar.SetValue(500);
  EXPECT_EQ(Info().nPos, 490) << "the thumb follows the value again";
  Taken();
  Act(SB_LINEDOWN);
  EXPECT_EQ(Taken(), Log{"Change 502"});
}

TEST_F(ScrollBarTest, ALargeRangeIsNotCutTo16Bits) {
  bar.SetMax(1000000);
  bar.SetValue(900000);
  Show();
  EXPECT_EQ(Info().nPos, 900000 - 10);
}

}  // namespace
}  // namespace corvane::toolkit_win32
