// The runtime's services on Windows.
#include "toolkit_win32/services.h"

#include <gtest/gtest.h>

#include "forms/icons.h"
#include "runtime/error.h"
#include "tests/support/registry_rights.h"
#include "tests/toolkit_win32/scratch_folder.h"
#include "tests/toolkit_win32/window_fixture.h"
#include "toolkit_win32/input_box.h"
#include "toolkit_win32/texts.h"

namespace corvane::toolkit_win32 {
namespace {

template <class Act>
long NumberOf(Act&& act) {
  try {
    act();
  } catch (const runtime::Error& error) {
    return error.Number();
  }
  return 0;
}

class ServicesTest : public WindowTest {
 protected:
  // Runs [act] inside the loop of whatever is shown next, as soon as [act] says that it is there.
  void Soon(std::function<bool()> act) {
    auto number = std::make_shared<UINT_PTR>();
    *number = toolkit.StartClock(5, [this, number, act = std::move(act)] {
      const auto run = act;
      if (run()) toolkit.StopClock(*number);
    });
  }
  // Does [act] to the next dialog of this thread.
  void InDialog(std::function<void(HWND)> act) {
    Soon([act = std::move(act)] {
      const HWND dialog = FindDialog();
      if (dialog) act(dialog);
      return dialog != nullptr;
    });
  }
  static BOOL CALLBACK KeepDialog(HWND window, LPARAM result) {
    wchar_t name[16];
    GetClassNameW(window, name, 16);
    if (std::wstring(name) == L"#32770" && IsWindowVisible(window)) *reinterpret_cast<HWND*>(result) = window;
    return TRUE;
  }
  static HWND FindDialog() {
    HWND found = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), KeepDialog, reinterpret_cast<LPARAM>(&found));
    return found;
  }

  Win32Services all{toolkit};
  host::Services services = all;
};

using ClipboardTest = ServicesTest;

TEST_F(ClipboardTest, TextComesBackByteForByte) {
  services.Clipboard.SetText("one\r\ntwo\nthree \xE9\x80");
  EXPECT_EQ(services.Clipboard.GetText(), "one\r\ntwo\nthree \xE9\x80");
}

TEST_F(ClipboardTest, BytesWithoutACharacterComeBackToo) {
  services.Clipboard.SetText("a\x81\x8D\x8F\x90\x9D z");
  EXPECT_EQ(services.Clipboard.GetText(), "a\x81\x8D\x8F\x90\x9D z");
}

TEST_F(ClipboardTest, OtherProgramsSeeUnicode) {
  services.Clipboard.SetText("caf\xE9 \x80");
  ASSERT_TRUE(OpenClipboard(nullptr));
  const auto* text = static_cast<const wchar_t*>(GlobalLock(GetClipboardData(CF_UNICODETEXT)));
  EXPECT_STREQ(text, L"caf\u00E9 \u20AC");
  CloseClipboard();
}

TEST_F(ClipboardTest, CharactersOutsideTheCodePageAreQuestionMarks) {
  const HWND owner = CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
  const std::wstring text = L"a\u0416z";
  ASSERT_TRUE(OpenClipboard(owner));
  EmptyClipboard();
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(wchar_t));
  std::copy_n(text.c_str(), text.size() + 1, static_cast<wchar_t*>(GlobalLock(memory)));
  GlobalUnlock(memory);
  SetClipboardData(CF_UNICODETEXT, memory);
  CloseClipboard();
  EXPECT_EQ(services.Clipboard.GetText(), "a?z");
  DestroyWindow(owner);
}

TEST_F(ClipboardTest, EmptyTextIsAText) {
  services.Clipboard.SetText("x");
  services.Clipboard.SetText("");
  EXPECT_EQ(services.Clipboard.GetText(), "");
  EXPECT_TRUE(IsClipboardFormatAvailable(CF_UNICODETEXT));
}

// A bitmap of 2 by 1 pixels, its colours behind a gap of [gap] bytes.
std::string SmallBitmap(size_t gap = 0) {
  BITMAPINFOHEADER info{};
  info.biSize = sizeof info;
  info.biWidth = 2;
  info.biHeight = info.biPlanes = 1;
  info.biBitCount = 24;
  BITMAPFILEHEADER file{};
  file.bfType = 0x4D42;
  file.bfOffBits = static_cast<DWORD>(sizeof file + sizeof info + gap);
  file.bfSize = static_cast<DWORD>(file.bfOffBits + 8);
  return std::string(reinterpret_cast<char*>(&file), sizeof file) +
         std::string(reinterpret_cast<char*>(&info), sizeof info) + std::string(gap, '\x55') +
         std::string("\x01\x02\x03\x04\x05\x06\0\0", 8);
}

runtime::PictureRef PictureOf(std::string bytes) {
  return std::make_shared<runtime::Picture>(runtime::Picture{std::move(bytes)});
}

TEST_F(ClipboardTest, APictureReplacesTextAndIsABitmapForAll) {
  services.Clipboard.SetText("text");
  services.Clipboard.SetData(PictureOf(SmallBitmap()));
  EXPECT_EQ(services.Clipboard.GetText(), "");
  EXPECT_TRUE(IsClipboardFormatAvailable(CF_DIB));
  EXPECT_TRUE(IsClipboardFormatAvailable(CF_BITMAP));
  ASSERT_TRUE(services.Clipboard.GetData());
  EXPECT_EQ(services.Clipboard.GetData()->bytes.substr(0, SmallBitmap().size()), SmallBitmap());
}

TEST_F(ClipboardTest, TheGapInFrontOfTheColoursOfAFileIsLeftOut) {
  services.Clipboard.SetData(PictureOf(SmallBitmap(10)));
  EXPECT_EQ(services.Clipboard.GetData()->bytes.substr(0, SmallBitmap().size()), SmallBitmap());
}

TEST_F(ClipboardTest, ClearAndNothingEmptyIt) {
  services.Clipboard.SetText("text");
  services.Clipboard.Clear();
  EXPECT_EQ(services.Clipboard.GetText(), "");
  EXPECT_FALSE(services.Clipboard.GetData());
  services.Clipboard.SetText("text");
  services.Clipboard.SetData(nullptr);
  EXPECT_EQ(services.Clipboard.GetText(), "");
}

TEST_F(ClipboardTest, AnIconIsPaintedOnWhite) {
  const forms::PictureRef icon = forms::Icon("search");
  const SIZE size = toolkit.Pictures().SizeOf(icon);
  services.Clipboard.SetData(icon);
  const runtime::PictureRef got = services.Clipboard.GetData();
  ASSERT_TRUE(got);
  EXPECT_EQ(toolkit.Pictures().SizeOf(got).cx, size.cx);
  const std::string pixels = got->bytes.substr(sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER));
  const auto is_white = [&](size_t pixel) { return pixels.compare(pixel * 4, 3, "\xFF\xFF\xFF") == 0; };
  size_t white = 0;
  for (size_t pixel = 0; pixel < pixels.size() / 4; ++pixel) white += is_white(pixel) ? 1 : 0;
  EXPECT_TRUE(is_white(0));
  EXPECT_LT(white, pixels.size() / 4 - 20);
  EXPECT_GT(white, 50u);
}

TEST_F(ClipboardTest, WhatIsNoBitmapIsError461AndLeavesWhatIsThere) {
  services.Clipboard.SetText("text");
  for (std::string bytes :
       {std::string("GIF89a"), std::string("<svg/>"), std::string("BM"), std::string("BM") + std::string(60, '\xFF')})
    EXPECT_EQ(NumberOf([&] { services.Clipboard.SetData(PictureOf(bytes)); }), 461) << bytes;
  EXPECT_EQ(services.Clipboard.GetText(), "text");
}

// Keeps the clipboard open from another thread, as another program would.
class HeldClipboard {
 public:
  explicit HeldClipboard(DWORD milliseconds) : milliseconds_(milliseconds) {
    opened_ = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    thread_ = CreateThread(nullptr, 0, Hold, this, 0, nullptr);
    WaitForSingleObject(opened_, INFINITE);
  }
  ~HeldClipboard() {
    WaitForSingleObject(thread_, INFINITE);
    CloseHandle(thread_);
    CloseHandle(opened_);
  }

 private:
  static DWORD CALLBACK Hold(void* held) {
    auto& self = *static_cast<HeldClipboard*>(held);
    const HWND owner = CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    OpenClipboard(owner);
    SetEvent(self.opened_);
    Sleep(self.milliseconds_);
    CloseClipboard();
    DestroyWindow(owner);
    return 0;
  }
  DWORD milliseconds_;
  HANDLE opened_, thread_;
};

TEST_F(ClipboardTest, OneHeldByAnotherProgramIsError521) {
  const HeldClipboard held(1500);
  EXPECT_EQ(NumberOf([&] { services.Clipboard.SetText("x"); }), 521);
}

TEST_F(ClipboardTest, OneHeldForAMomentIsWaitedFor) {
  {
    const HeldClipboard held(60);
    services.Clipboard.SetText("waited");
  }
  EXPECT_EQ(services.Clipboard.GetText(), "waited");
}

using PromptsTest = ServicesTest;

TEST_F(PromptsTest, AMessageBoxHasTheButtonsOfItsStyleAndReturnsTheOneThatWasPressed) {
  struct Case {
    long style;
    std::vector<int> buttons;  // by number
    long pressed, default_button;
  };
  using namespace host;
  const Case cases[] = {
      {vbOKOnly, {vbOK}, vbOK, vbOK},
      {vbOKCancel | vbQuestion, {vbOK, vbCancel}, vbCancel, vbOK},
      {vbAbortRetryIgnore | vbCritical, {vbAbort, vbRetry, vbIgnore}, vbIgnore, vbAbort},
      {vbYesNoCancel | vbDefaultButton2, {vbCancel, vbYes, vbNo}, vbNo, vbNo},
      {vbYesNo | vbExclamation | vbDefaultButton2, {vbYes, vbNo}, vbYes, vbNo},
      {vbRetryCancel | vbInformation, {vbCancel, vbRetry}, vbRetry, vbRetry},
      {9, {vbOK}, vbOK, vbOK},  // no such set of buttons
  };
  for (const Case& each : cases) {
    std::vector<int> buttons;
    long default_button = 0;
    std::wstring title;
    InDialog([&](HWND dialog) {
      title = TextOf(dialog);
      for (int id = vbOK; id <= vbNo; ++id) {
        const HWND button = GetDlgItem(dialog, id);
        if (!button || !IsWindowVisible(button)) continue;
        buttons.push_back(id);
        if ((GetWindowLongW(button, GWL_STYLE) & BS_TYPEMASK) == BS_DEFPUSHBUTTON) default_button = id;
      }
      PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(each.pressed), 0);
    });
    EXPECT_EQ(services.Prompts.MsgBox("Two\r\nlines", each.style), each.pressed) << each.style;
    EXPECT_EQ(buttons, each.buttons) << each.style;
    EXPECT_EQ(default_button, each.default_button) << each.style;
    EXPECT_EQ(title, L"Corvane");
  }
}

TEST_F(PromptsTest, AMessageBoxBelongsToTheActiveFormAndKeepsTheOthersFromInput) {
  forms::Form other(toolkit, "frmOther");
  other.Move(3000, 3000, 3000, 3000);
  other.Show();
  Show();
  HWND owner = nullptr;
  bool other_enabled = true;
  std::wstring title;
  InDialog([&](HWND dialog) {
    owner = GetWindow(dialog, GW_OWNER);
    other_enabled = IsWindowEnabled(WindowOf(other)) != FALSE;
    title = TextOf(dialog);
    PostMessageW(dialog, WM_COMMAND, IDOK, 0);
  });
  services.Prompts.MsgBox("text", host::vbOKOnly, "Titel \xFC");
  EXPECT_EQ(owner, WindowOf(form));
  EXPECT_FALSE(other_enabled);
  EXPECT_TRUE(IsWindowEnabled(WindowOf(other)));
  EXPECT_TRUE(IsWindowEnabled(WindowOf(form)));
  EXPECT_EQ(title, L"Titel \u00FC");
  EXPECT_EQ(GetActiveWindow(), WindowOf(form));
  other.Unload();
}

TEST_F(PromptsTest, WithoutAFormTheBoxBelongsToTheEnvironmentsWindow) {
  const HWND host = CreateWindowExW(0, L"STATIC", L"host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 50, 50, 300, 200, nullptr,
                                    nullptr, nullptr, nullptr);
  toolkit.SetHostWindow(host);
  Pump();
  for (bool input : {false, true}) {
    HWND owner = nullptr;
    bool enabled = true;
    InDialog([&](HWND dialog) {
      owner = GetWindow(dialog, GW_OWNER);
      enabled = IsWindowEnabled(host) != FALSE;
      PostMessageW(dialog, WM_COMMAND, IDOK, 0);
    });
    input ? static_cast<void>(services.Prompts.InputBox("text")) : static_cast<void>(services.Prompts.MsgBox("text"));
    EXPECT_EQ(owner, host);
    EXPECT_FALSE(enabled);
    EXPECT_TRUE(IsWindowEnabled(host));
    EXPECT_EQ(GetActiveWindow(), host);
  }
  toolkit.SetHostWindow(nullptr);
  DestroyWindow(host);
}

// Whether code asks for a context of its own in this place, as VisualStyles::Use does.
bool IsContextInUse() {
  HANDLE context = nullptr;
  GetCurrentActCtx(&context);
  if (context) ReleaseActCtx(context);
  return context != nullptr;
}

TEST_F(PromptsTest, BothBoxesHaveTheVisualStyles) {
  ASSERT_TRUE(toolkit.Styles().AreThere());
  for (bool input : {false, true}) {
    bool used = false;
    InDialog([&](HWND dialog) {
      used = IsContextInUse();
      PostMessageW(dialog, WM_COMMAND, IDOK, 0);
    });
    input ? static_cast<void>(services.Prompts.InputBox("text")) : static_cast<void>(services.Prompts.MsgBox("text"));
    EXPECT_TRUE(used) << input;
    EXPECT_FALSE(IsContextInUse()) << input;
  }
}

TEST_F(PromptsTest, EscInAMessageBoxIsCancel) {
  InDialog([](HWND) { PostMessageW(GetFocus(), WM_KEYDOWN, VK_ESCAPE, 1); });
  EXPECT_EQ(services.Prompts.MsgBox("text", host::vbOKCancel), host::vbCancel);
}

TEST_F(PromptsTest, AnInputBoxShowsItsTextsAndReturnsWhatIsTyped) {
  std::wstring prompt, title, text;
  DWORD from = 1, to = 0;
  InDialog([&](HWND dialog) {
    const HWND edit = GetDlgItem(dialog, kInputText);
    prompt = TextOf(GetDlgItem(dialog, kInputPrompt)), title = TextOf(dialog), text = TextOf(edit);
    SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
    EXPECT_EQ(GetFocus(), edit);
    PostMessageW(edit, WM_CHAR, 0xFC, 1);
    PostMessageW(edit, WM_CHAR, 'x', 1);
    PostMessageW(edit, WM_KEYDOWN, VK_RETURN, 1);
  });
  EXPECT_EQ(services.Prompts.InputBox("Name & place", "Title", "old"), "\xFCx");
  EXPECT_EQ(prompt, L"Name & place");
  EXPECT_EQ(title, L"Title");
  EXPECT_EQ(text, L"old");
  EXPECT_EQ(from, 0u);
  EXPECT_EQ(to, 3u);
}

TEST_F(PromptsTest, BehindWhatWasTypedTheCaretStandsInTheBox) {
  DWORD from = 9, to = 9;
  InDialog([&](HWND dialog) {
    const HWND edit = GetDlgItem(dialog, kInputText);
    SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
    EXPECT_EQ(GetFocus(), edit);
    EXPECT_EQ(TextOf(dialog), L"Corvane");
    PostMessageW(edit, WM_CHAR, 'b', 1);
    PostMessageW(edit, WM_KEYDOWN, VK_RETURN, 1);
  });
  EXPECT_EQ(services.Prompts.InputBoxTyped("Search", "\xE4"),
            "\xE4"
            "b");
  EXPECT_EQ(from, 1u);
  EXPECT_EQ(to, 1u);
}

TEST_F(PromptsTest, CancelEscAndTheCloseBoxOfAnInputBoxGiveEmptyText) {
  InDialog([](HWND dialog) { PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0); });
  EXPECT_EQ(services.Prompts.InputBox("Name", "", "old"), "");
  InDialog([](HWND dialog) { PostMessageW(GetDlgItem(dialog, kInputText), WM_KEYDOWN, VK_ESCAPE, 1); });
  EXPECT_EQ(services.Prompts.InputBox("Name", "", "old"), "");
  InDialog([](HWND dialog) { PostMessageW(dialog, WM_SYSCOMMAND, SC_CLOSE, 0); });
  EXPECT_EQ(services.Prompts.InputBox("Name", "", "old"), "");
}

TEST_F(PromptsTest, ALongPromptMakesTheInputBoxHigherAndNothingOverlaps) {
  std::vector<int> heights;
  for (std::string prompt :
       {std::string("short"), std::string(600, 'w') + "\r\n\r\n" + std::string(200, ' ') + "end"}) {
    for (size_t at = 30; at < prompt.size(); at += 30) prompt[at] = ' ';
    InDialog([&](HWND dialog) {
      RECT box{}, above{}, below{}, button{};
      GetWindowRect(dialog, &box);
      GetWindowRect(GetDlgItem(dialog, kInputPrompt), &above);
      GetWindowRect(GetDlgItem(dialog, kInputText), &below);
      GetWindowRect(GetDlgItem(dialog, IDCANCEL), &button);
      heights.push_back(HeightOf(box));
      EXPECT_LE(above.bottom, below.top);
      EXPECT_LE(button.bottom, below.top);
      EXPECT_LE(above.right, button.left);
      EXPECT_LT(below.bottom, box.bottom);
      PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    });
    services.Prompts.InputBox(prompt);
  }
  EXPECT_GT(heights[1], heights[0]);
}

using SettingsTest = ServicesTest;

TEST_F(SettingsTest, AreWhereVisualBasicsProgramsKeepThem) {
  constexpr wchar_t kPlace[] = L"Software\\VB and VBA Program Settings\\CorvaneTest\\Settings";
  RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\VB and VBA Program Settings\\CorvaneTest");
  EXPECT_EQ(services.Settings.GetSetting("CorvaneTest", "Settings", "DisplayOnConnect", "0"), "0");
  services.Settings.SaveSetting("CorvaneTest", "Settings", "DisplayOnConnect", "1");
  EXPECT_EQ(services.Settings.GetSetting("CorvaneTest", "Settings", "DisplayOnConnect", "0"), "1");
  wchar_t value[8];
  DWORD size = sizeof value;
  ASSERT_EQ(RegGetValueW(HKEY_CURRENT_USER, kPlace, L"DisplayOnConnect", RRF_RT_REG_SZ, nullptr, value, &size), 0);
  EXPECT_STREQ(value, L"1");
  services.Settings.SaveSetting("CorvaneTest", "A b", "k=\xE9", "caf\xE9 \"q\"");
  EXPECT_EQ(services.Settings.GetSetting("corvanetest", "a B", "K=\xE9"), "caf\xE9 \"q\"");
  services.Settings.SaveSetting("CorvaneTest", "A b", "empty", "");
  EXPECT_EQ(services.Settings.GetSetting("CorvaneTest", "A b", "empty", "default"), "");
  const std::string large(5000, 'x');
  services.Settings.SaveSetting("CorvaneTest", "A b", "large", large);
  EXPECT_EQ(services.Settings.GetSetting("CorvaneTest", "A b", "large"), large);
  RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\VB and VBA Program Settings\\CorvaneTest");
}

TEST_F(SettingsTest, ANumberInThePlaceOfATextIsTheDefault) {
  constexpr wchar_t kPlace[] = L"Software\\VB and VBA Program Settings\\CorvaneTest\\S";
  const DWORD number = 7;
  RegSetKeyValueW(HKEY_CURRENT_USER, kPlace, L"n", REG_DWORD, &number, sizeof number);
  EXPECT_EQ(services.Settings.GetSetting("CorvaneTest", "S", "n", "default"), "default");
  RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\VB and VBA Program Settings\\CorvaneTest");
}

TEST_F(SettingsTest, WhatMayNotBeReadIsTheDefaultAndWhatMayNotBeWrittenIsError5) {
  constexpr wchar_t kPlace[] = L"Software\\VB and VBA Program Settings\\CorvaneTest\\S";
  services.Settings.SaveSetting("CorvaneTest", "S", "n", "one");
  tests::Allow(HKEY_CURRENT_USER, kPlace, tests::kNoValuesRead);
  EXPECT_EQ(services.Settings.GetSetting("CorvaneTest", "S", "n", "default"), "default");
  services.Settings.SaveSetting("CorvaneTest", "S", "n", "two");
  tests::Allow(HKEY_CURRENT_USER, kPlace, tests::kNoValuesSet);
  EXPECT_EQ(NumberOf([&] { services.Settings.SaveSetting("CorvaneTest", "S", "n", "three"); }), 5);
  EXPECT_EQ(services.Settings.GetSetting("CorvaneTest", "S", "n"), "two");
  tests::Allow(HKEY_CURRENT_USER, kPlace, tests::kEverything);
  RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\VB and VBA Program Settings\\CorvaneTest");
}

TEST_F(SettingsTest, WithoutApplicationOrSectionItIsError5) {
  EXPECT_EQ(NumberOf([&] { services.Settings.GetSetting("", "s", "k"); }), 5);
  EXPECT_EQ(NumberOf([&] { services.Settings.SaveSetting("a", "", "k", "v"); }), 5);
}

TEST_F(SettingsTest, ARegistryThatRefusesIsError5) {
  const std::string too_long(300, 'k');  // no name of a key is longer than 255 characters
  EXPECT_EQ(NumberOf([&] { services.Settings.SaveSetting(too_long, "s", "k", "v"); }), 5);
  EXPECT_EQ(services.Settings.GetSetting(too_long, "s", "k", "d"), "d");
}

using ScreenTest = ServicesTest;

TEST_F(ScreenTest, ThePointerIsThatOfAllOurWindows) {
  forms::CommandButton button(form, "cmd");
  Show();
  services.Screen.SetMousePointer(host::vbHourglass);
  EXPECT_EQ(services.Screen.MousePointer(), host::vbHourglass);
  for (HWND window : {WindowOf(form), WindowOf(button)}) {
    SetCursor(LoadCursorW(nullptr, MAKEINTRESOURCEW(32512)));
    SendMessageW(window, WM_SETCURSOR, reinterpret_cast<WPARAM>(window), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, MAKEINTRESOURCEW(32514)));
  }
  services.Screen.SetMousePointer(host::vbDefault);
  SendMessageW(WindowOf(button), WM_SETCURSOR, reinterpret_cast<WPARAM>(WindowOf(button)),
               MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
  EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, MAKEINTRESOURCEW(32512)));
}

using LoopTest = ServicesTest;

TEST_F(LoopTest, DoEventsRunsWhatWaits) {
  bool ran = false;
  forms::Timer clock(form, "tmr");
  clock.Tick = [&] { ran = true; };
  clock.SetInterval(1);
  Show();
  Sleep(50);
  services.Loop.DoEvents();
  EXPECT_TRUE(ran);
}

TEST_F(LoopTest, TheTickCountRuns) {
  const uint32_t before = services.Loop.TickCount();
  Sleep(60);
  EXPECT_GE(services.Loop.TickCount() - before, 30u);
}

TEST_F(LoopTest, SendKeysTypesIntoTheWindowWithTheFocus) {
  forms::TextBox box(form, "txt");
  box.Move(120, 120, 3000, 900);
  box.SetMultiLine(true);
  std::vector<int> shifts;
  box.KeyDown = [&](int& key, int shift) {
    if (key == 'Q') shifts.push_back(shift);
  };
  Show();
  box.SetFocus();
  SetForegroundWindow(WindowOf(form));
  Pump();
  services.Loop.SendKeys("Dim x~{HOME}{UP}+ab{END}({!}){DEL 2}^+q");
  EXPECT_EQ(box.Text(), "AbDim x!");
  EXPECT_EQ(shifts, (std::vector<int>{forms::vbShiftMask | forms::vbCtrlMask}));
  EXPECT_EQ(faults, std::vector<std::string>{});
}

// No window of this thread has the focus: each key would be waited for in vain.
TEST_F(LoopTest, KeysThatAreNotHeardOfHereAreWaitedForOnce) {
  constexpr ULONGLONG kOneWait = 250;
  const ULONGLONG start = GetTickCount64();
  services.Loop.SendKeys("abcdefghijklmnop");
  const ULONGLONG took = GetTickCount64() - start;
  EXPECT_GE(took, kOneWait / 2);
  EXPECT_LT(took, 8 * kOneWait);
}

TEST_F(LoopTest, KeysThatCannotBeReadAreError5AndNoneIsSent) {
  forms::TextBox box(form, "txt");
  Show();
  box.SetFocus();
  EXPECT_EQ(NumberOf([&] { services.Loop.SendKeys("ab{NOKEY}"); }), 5);
  EXPECT_EQ(box.Text(), "");
}

TEST_F(ServicesTest, TheLibrarysFolderIsThatOfTheFileThatHoldsTheCode) {
  wchar_t path[MAX_PATH];
  GetModuleFileNameW(nullptr, path, MAX_PATH);
  const std::string file = BytesOf(path);
  EXPECT_EQ(services.App.Path, file.substr(0, file.rfind('\\')));
  EXPECT_EQ(services.App.Title, "Corvane");
}

TEST_F(ServicesTest, APictureIsLoadedAsItsBytes) {
  ScratchFolder folder;
  folder.Put(L"p.bmp", SmallBitmap());
  folder.Put(L"p.txt", "text");
  EXPECT_EQ(services.Pictures.LoadPicture(folder.Path("p.bmp"))->bytes, SmallBitmap());
  EXPECT_EQ(NumberOf([&] { services.Pictures.LoadPicture(folder.Path("p.txt")); }), 481);
  EXPECT_EQ(NumberOf([&] { services.Pictures.LoadPicture(folder.Path("none.bmp")); }), 53);
}

TEST(CodePageOfTheSystem, IsThatOfItsLanguageWherePagesOfProcessesAreUtf8) {
  EXPECT_EQ(KnownCodePage(1251, 1252), 1251);
  EXPECT_EQ(KnownCodePage(932, 1252), 932);
  EXPECT_EQ(KnownCodePage(CP_UTF8, 1250), 1250);
  EXPECT_EQ(SystemCodePage(), KnownCodePage(GetACP(), 1252));
}

}  // namespace
}  // namespace corvane::toolkit_win32
