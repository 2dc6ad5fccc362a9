// Text boxes and combo boxes.
#include "runtime/code_page.h"
#include "tests/toolkit_win32/window_fixture.h"
#include "toolkit_win32/texts.h"

namespace corvane::toolkit_win32 {
namespace {

using Log = std::vector<std::string>;

class TextTest : public WindowTest {
 protected:
  TextTest() {
    txt.Move(120, 120, 3000, 315), memo.Move(120, 600, 3000, 1500);
    memo.SetMultiLine(true), memo.SetScrollBars(2);
    for (forms::TextBox* box : {&txt, &memo})
      box->Change = [this, box] { told.push_back(box->Name() + " " + box->Text()); };
  }
  Log Taken() { return std::exchange(told, {}); }
  std::pair<long, long> SelectionOf(const forms::Control& control) {
    DWORD from = 0, to = 0;
    SendMessageW(WindowOf(control), EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
    return {from, to};
  }
  forms::TextBox txt{form, "txt"}, memo{form, "memo"};
};

TEST_F(TextTest, TextAndSelectionReachTheWindow) {
  txt.SetText("caf\xE9 au lait");
  txt.SetSelStart(5), txt.SetSelLength(2);
  memo.SetText("one\r\ntwo\r\nthree");
  memo.SetSelStart(5), memo.SetSelLength(3);
  Show();
  EXPECT_EQ(TextOf(WindowOf(txt)), L"caf\u00E9 au lait");
  EXPECT_EQ(SelectionOf(txt), std::make_pair(5L, 7L));
  EXPECT_EQ(TextOf(WindowOf(memo)), L"one\r\ntwo\r\nthree");
  EXPECT_EQ(SendMessageW(WindowOf(memo), EM_GETLINECOUNT, 0, 0), 3);
  EXPECT_EQ(SelectionOf(memo), std::make_pair(5L, 8L));
}

TEST_F(TextTest, TypingTellsEachChangeAndTheCaret) {
  Show();
  txt.SetFocus();
  Taken();
  PostText(L"aB");
  EXPECT_EQ(Taken(), (Log{"txt a", "txt aB"}));
  EXPECT_EQ(txt.SelStart(), 2);
  PostKey(VK_LEFT);
  EXPECT_EQ(txt.SelStart(), 1);
  PostKey(VK_HOME, {.shift = true});
  EXPECT_EQ(txt.SelStart(), 0);
  EXPECT_EQ(txt.SelLength(), 1);
  PostKey(VK_DELETE);
  EXPECT_EQ(Taken(), Log{"txt B"});
}

TEST_F(TextTest, EnterMakesALineInABoxOfManyAlone) {
  Show();
  memo.SetFocus();
  PostText(L"a");
  PostKey(VK_RETURN);
  PostText(L"b");
  EXPECT_EQ(memo.Text(), "a\r\nb");
  EXPECT_EQ(memo.SelStart(), 4);
  txt.SetFocus();
  PostText(L"a");
  PostKey(VK_RETURN);
  EXPECT_EQ(txt.Text(), "a");
}

TEST_F(TextTest, ALongTextScrollsToTheCaret) {
  std::string text;
  for (int line = 0; line < 200; ++line) text += "line " + std::to_string(line) + "\r\n";
  memo.SetText(text);
  Show();
  EXPECT_EQ(SendMessageW(WindowOf(memo), EM_GETFIRSTVISIBLELINE, 0, 0), 0);
  memo.SetSelStart(static_cast<long>(text.size()));
  EXPECT_GT(SendMessageW(WindowOf(memo), EM_GETFIRSTVISIBLELINE, 0, 0), 150);
}

TEST_F(TextTest, AKeyThatAHandlerTakesTypesNothing) {
  Show();
  txt.SetFocus();
  txt.KeyPress = [](int& key) { key = key == 'a' ? 0 : key == 'b' ? 'X' : key; };
  PostText(L"abc");
  EXPECT_EQ(txt.Text(), "Xc");
  EXPECT_EQ(TextOf(WindowOf(txt)), L"Xc");
}

TEST_F(TextTest, ALockedBoxIsReadOnlyAndKeepsItsColour) {
  txt.SetText("old");
  txt.SetLocked(true);
  txt.SetBackColor(forms::RGB(9, 8, 7));
  Show();
  EXPECT_TRUE(GetWindowLongPtrW(WindowOf(txt), GWL_STYLE) & ES_READONLY);
  txt.SetFocus();
  PostText(L"x");
  EXPECT_EQ(txt.Text(), "old");
  const HDC dc = GetDC(WindowOf(form));
  SendMessageW(WindowOf(form), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc),
               reinterpret_cast<LPARAM>(WindowOf(txt)));
  EXPECT_EQ(GetBkColor(dc), forms::RGB(9, 8, 7));
  ReleaseDC(WindowOf(form), dc);
  txt.SetLocked(false);
  EXPECT_FALSE(GetWindowLongPtrW(WindowOf(txt), GWL_STYLE) & ES_READONLY);
}

TEST_F(TextTest, NoMoreThanMaxLengthCanBeTyped) {
  txt.SetMaxLength(3);
  Show();
  txt.SetFocus();
  PostText(L"abcd");
  EXPECT_EQ(txt.Text(), "abc");
  EXPECT_EQ(TextOf(WindowOf(txt)), L"abc");
}

TEST_F(TextTest, APasswordIsNotShown) {
  txt.SetPasswordChar("*");
  Show();
  EXPECT_EQ(SendMessageW(WindowOf(txt), EM_GETPASSWORDCHAR, 0, 0), '*');
}

TEST_F(TextTest, StylesFollowThePropertiesThatMakeAnotherWindow) {
  Show();
  const auto style = [&] { return static_cast<DWORD>(GetWindowLongPtrW(WindowOf(memo), GWL_STYLE)); };
  EXPECT_EQ(style() & (WS_VSCROLL | WS_HSCROLL | ES_AUTOHSCROLL), static_cast<DWORD>(WS_VSCROLL));
  memo.SetText("kept");
  memo.SetScrollBars(3);
  EXPECT_EQ(style() & (WS_VSCROLL | WS_HSCROLL), static_cast<DWORD>(WS_VSCROLL | WS_HSCROLL));
  EXPECT_EQ(TextOf(WindowOf(memo)), L"kept");
  memo.SetBorderStyle(0);
  EXPECT_FALSE(GetWindowLongPtrW(WindowOf(memo), GWL_EXSTYLE) & WS_EX_CLIENTEDGE);
  memo.SetAlignment(forms::Alignment::Center);
  EXPECT_TRUE(style() & ES_CENTER);
  EXPECT_TRUE(IsWindowVisible(WindowOf(memo)));
}

TEST_F(TextTest, PositionsCountBytesInACodePageOfTwo) {
  runtime::SetAnsiCodePage(932);
  txt.SetText("a\x95\x5C z");
  txt.SetSelStart(3), txt.SetSelLength(2);
  Show();
  EXPECT_EQ(SelectionOf(txt), std::make_pair(2L, 4L));
  txt.SetFocus();
  PostKey(VK_HOME);
  PostKey(VK_RIGHT);
  PostKey(VK_RIGHT);
  EXPECT_EQ(txt.SelStart(), 3);
  runtime::SetAnsiCodePage(1252);
}

TEST_F(TextTest, BytesWithoutACharacterSurviveAnEdit) {
  txt.SetText("\x81z");
  Show();
  txt.SetFocus();
  PostKey(VK_END);
  PostText(L"x");
  EXPECT_EQ(txt.Text(), "\x81zx");
}

HWND CaretWindow() {
  GUITHREADINFO state{};
  state.cbSize = sizeof state;
  GetGUIThreadInfo(GetCurrentThreadId(), &state);
  return state.hwndCaret;
}

TEST_F(TextTest, TheCaretStaysWhereValidateKeepsTheFocus) {
  txt.Validate = [](bool& cancel) { cancel = true; };
  Show();
  txt.SetFocus();
  ASSERT_EQ(CaretWindow(), WindowOf(txt));
  Click(memo);
  EXPECT_EQ(GetFocus(), WindowOf(txt));
  EXPECT_EQ(CaretWindow(), WindowOf(txt));
}

TEST_F(TextTest, TheCaretIsWhereAHandlerMovesTheFocusOn) {
  forms::TextBox last(form, "last");
  last.Move(120, 2400, 1500, 315);
  memo.GotFocus = [&] { last.SetFocus(); };
  Show();
  txt.SetFocus();
  Click(memo);
  EXPECT_EQ(GetFocus(), WindowOf(last));
  EXPECT_EQ(CaretWindow(), WindowOf(last));
}

TEST_F(TextTest, AFocusedBoxThatIsMadeAgainKeepsTheKeys) {
  Show();
  memo.SetFocus();
  PostText(L"a");
  const HWND before = WindowOf(memo);
  memo.SetScrollBars(3);
  ASSERT_NE(WindowOf(memo), before);
  EXPECT_EQ(GetFocus(), WindowOf(memo));
  PostText(L"b");
  EXPECT_EQ(memo.Text(), "ab");
  const HWND focus = GetFocus();
  txt.SetAlignment(forms::Alignment::Right);
  EXPECT_EQ(GetFocus(), focus) << "a box without the focus takes none";
}

TEST_F(TextTest, ControlASelectsAll) {
  memo.SetText("one\r\ntwo");
  Show();
  memo.SetFocus();
  PostKey('A', {.ctrl = true});
  EXPECT_EQ(memo.SelStart(), 0);
  EXPECT_EQ(memo.SelLength(), 8);
}

TEST_F(TextTest, ControlBackspaceTakesTheWordBeforeTheCaret) {
  txt.SetText("one two  three"), txt.SetSelStart(9);
  memo.SetText("one\r\ntwo"), memo.SetSelStart(5);
  Show();
  const auto back = [] { SendMessageW(GetFocus(), WM_CHAR, 127, 0); };  // the character that Ctrl+Backspace makes
  txt.SetFocus();
  back();
  EXPECT_EQ(txt.Text(), "one three");
  EXPECT_EQ(txt.SelStart(), 4);
  txt.SetSelStart(0), txt.SetSelLength(2);
  back();
  EXPECT_EQ(txt.Text(), "e three") << "what is selected goes first";
  back();
  EXPECT_EQ(txt.Text(), "e three") << "nothing stands before the caret";
  txt.SetSelStart(7), txt.SetLocked(true);
  back();
  EXPECT_EQ(txt.Text(), "e three");
  memo.SetFocus();
  back();
  EXPECT_EQ(memo.Text(), "onetwo") << "the end of a line is a word of its own";
}

class ComboTest : public TextTest {
 protected:
  ComboTest() {
    edited.Move(120, 2400, 1800, 315), chosen.Move(2100, 2400, 1800, 315), simple.Move(120, 2900, 1800, 1200);
    chosen.SetStyle(2), simple.SetStyle(1);
    for (forms::ComboBox* combo : All()) {
      for (const char* text : {"alpha", "beta", "gamma"}) combo->AddItem(text);
      combo->Click = [this, combo] { told.push_back(combo->Name() + "_Click"); };
      combo->Change = [this, combo] { told.push_back(combo->Name() + "_Change"); };
      combo->DropDown = [this, combo] { told.push_back(combo->Name() + "_DropDown"); };
    }
  }
  std::vector<forms::ComboBox*> All() { return {&edited, &chosen, &simple}; }
  LRESULT CountOf(const forms::Control& control) { return SendMessageW(WindowOf(control), CB_GETCOUNT, 0, 0); }
  LRESULT IndexOf(const forms::Control& control) { return SendMessageW(WindowOf(control), CB_GETCURSEL, 0, 0); }
  void Drop(const forms::Control& control, bool open) {
    SendMessageW(WindowOf(control), CB_SHOWDROPDOWN, open, 0);
    Pump();
  }
  forms::ComboBox edited{form, "cmb"}, chosen{form, "cmbList"}, simple{form, "cmbSimple"};
};

TEST_F(ComboTest, TextsReachTheWindowAndRowsWhenItDropsDown) {
  chosen.SetListIndex(1), edited.SetText("own");
  Show();
  EXPECT_EQ(TextOf(WindowOf(chosen)), L"beta");
  EXPECT_EQ(TextOf(WindowOf(edited)), L"own");
  Taken();
  Drop(chosen, true);
  EXPECT_EQ(CountOf(chosen), 3);
  EXPECT_EQ(IndexOf(chosen), 1);
  EXPECT_EQ(Taken(), Log{"cmbList_DropDown"});
  Drop(chosen, false);
  chosen.AddItem("delta");
  Pump();
  Drop(chosen, true);
  EXPECT_EQ(CountOf(chosen), 4);
  Drop(chosen, false);
  EXPECT_EQ(Taken(), Log{"cmbList_DropDown"});
}

TEST_F(ComboTest, ALongListCostsNothingWhileItIsClosed) {
  Show();
  const ULONGLONG before = GetTickCount64();
  for (int row = 0; row < 100000; ++row) chosen.AddItem("row");
  chosen.SetListIndex(99999);
  Pump();
  EXPECT_LT(GetTickCount64() - before, 1000u);
  EXPECT_LE(CountOf(chosen), 1);
  EXPECT_EQ(TextOf(WindowOf(chosen)), L"row");
}

TEST_F(ComboTest, ArrowsChooseInAClosedList) {
  Show();
  chosen.SetFocus();
  Taken();
  PostKey(VK_DOWN);
  PostKey(VK_DOWN);
  EXPECT_EQ(chosen.ListIndex(), 1);
  EXPECT_EQ(Taken(), (Log{"cmbList_Click", "cmbList_Click"}));
  PostText(L"g");
  EXPECT_EQ(chosen.Text(), "gamma");
}

TEST_F(ComboTest, EscInAnOpenListKeepsWhatWasChosen) {
  forms::CommandButton cancel(form, "cmdCancel");
  cancel.SetCancel(true);
  cancel.Click = [this] { told.push_back("cancel"); };
  chosen.SetListIndex(0);
  Show();
  chosen.SetFocus();
  Drop(chosen, true);
  Taken();
  PostKey(VK_DOWN);
  PostKey(VK_ESCAPE);
  EXPECT_EQ(chosen.ListIndex(), 0);
  EXPECT_EQ(TextOf(WindowOf(chosen)), L"alpha");
  EXPECT_EQ(IndexOf(chosen), 0);
  EXPECT_EQ(Taken(), Log{});
  PostKey(VK_ESCAPE);
  EXPECT_EQ(Taken(), Log{"cancel"});
}

TEST_F(ComboTest, TypingInTheEditIsAChangeAndAHandlersTextStays) {
  Show();
  edited.SetFocus();
  Taken();
  PostText(L"be");
  EXPECT_EQ(edited.Text(), "be");
  EXPECT_EQ(Taken(), (Log{"cmb_Change", "cmb_Change"}));
  edited.Click = [this] { edited.SetText("handler's"); };
  PostKey(VK_DOWN);
  EXPECT_EQ(edited.Text(), "handler's");
  EXPECT_EQ(TextOf(WindowOf(edited)), L"handler's");
}

TEST_F(ComboTest, ALockedOneCannotBeChanged) {
  chosen.SetListIndex(0);
  for (forms::ComboBox* combo : All()) combo->SetLocked(true);
  Show();
  chosen.SetFocus();
  Taken();
  PostKey(VK_DOWN);
  PostText(L"g");
  Click(chosen);
  EXPECT_FALSE(SendMessageW(WindowOf(chosen), CB_GETDROPPEDSTATE, 0, 0));
  EXPECT_EQ(chosen.ListIndex(), 0);
  edited.SetFocus();
  PostText(L"x");
  EXPECT_EQ(edited.Text(), "");
  EXPECT_EQ(Taken(), Log{});
}

TEST_F(ComboTest, ItsHeightIsThatOfItsFont) {
  Show();
  RECT place{};
  GetWindowRect(WindowOf(chosen), &place);
  EXPECT_EQ(HeightOf(place), toolkit.Fonts().Of(chosen.Font()).Height() + toolkit.Scale().Scaled(8));
  forms::Font large;
  large.Size = 20;
  chosen.SetFont(large);
  GetWindowRect(WindowOf(chosen), &place);
  EXPECT_EQ(HeightOf(place), toolkit.Fonts().Of(large).Height() + toolkit.Scale().Scaled(8));
}

TEST_F(ComboTest, TheSimpleOneIsAnEditAboveAnOpenList) {
  Show();
  const HWND edit = FindWindowExW(WindowOf(simple), nullptr, L"EDIT", nullptr);
  const HWND rows = GetWindow(edit, GW_HWNDNEXT) ? GetWindow(edit, GW_HWNDNEXT) : GetWindow(edit, GW_HWNDPREV);
  ASSERT_TRUE(edit && rows);
  EXPECT_EQ(SendMessageW(rows, LB_GETCOUNT, 0, 0), 3);
  RECT row{};
  SendMessageW(rows, LB_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&row));
  Taken();
  PostClick(rows, {10, (row.top + row.bottom) / 2});
  EXPECT_EQ(simple.Text(), "beta");
  EXPECT_EQ(TextOf(edit), L"beta");
  EXPECT_EQ(Taken(), Log{"cmbSimple_Click"});
  EXPECT_EQ(GetFocus(), edit);
  PostKey(VK_DOWN);
  EXPECT_EQ(simple.Text(), "gamma");
  Taken();
  PostKey(VK_END);
  PostText(L"x");
  EXPECT_EQ(simple.Text(), "gammax");
  EXPECT_EQ(Taken(), Log{"cmbSimple_Change"});
  EXPECT_EQ(simple.ListIndex(), -1);
}

TEST_F(ComboTest, EachChangeOfTheChosenRowIsShownWhileTheListIsClosed) {
  chosen.SetListIndex(0);
  Show();
  chosen.SetList(0, "first");
  Pump();
  EXPECT_EQ(TextOf(WindowOf(chosen)), L"first");
  chosen.SetList(0, "second");
  Pump();
  EXPECT_EQ(TextOf(WindowOf(chosen)), L"second");
}

}  // namespace
}  // namespace corvane::toolkit_win32
