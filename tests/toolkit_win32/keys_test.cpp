// Keys of our windows inside a message loop that is not ours and makes something else of keys.
#include <functional>

#include "tests/toolkit_win32/popup.h"
#include "tests/toolkit_win32/window_fixture.h"

namespace corvane::toolkit_win32 {
namespace {

using Log = std::vector<std::string>;

constexpr int kHostCommand = 77;

// The environment: a main window with a field, accelerators for keys that our windows use too, and dialog keys of its
// own.
class Host {
 public:
  Host() {
    main = CreateWindowExW(0, L"STATIC", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 400, 300, nullptr, nullptr,
                           nullptr, nullptr);
    for (int place = 0; place < 2; ++place) {
      fields[place] = CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 10, 10 + 30 * place, 100, 20,
                                      main, nullptr, nullptr, nullptr);
    }
    ACCEL keys[] = {{FVIRTKEY, VK_TAB, kHostCommand},
                    {FVIRTKEY, VK_RETURN, kHostCommand},
                    {FVIRTKEY | FCONTROL, 'S', kHostCommand},
                    {FVIRTKEY, 'A', kHostCommand},
                    {FVIRTKEY, VK_F5, kHostCommand}};
    table = CreateAcceleratorTableW(keys, 5);
  }
  ~Host() {
    DestroyWindow(main);
    DestroyAcceleratorTable(table);
  }
  // The environment's loop: its accelerators first, then the keys of its dialogs.
  void Run() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
      if (message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST) ++keys_seen;
      if (TranslateAcceleratorW(main, table, &message)) {
        ++commands;
        continue;
      }
      if (IsDialogMessageW(main, &message)) continue;
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
  }
  void Key(int code, KeyState state = {}) {
    const Held held({state.shift ? VK_SHIFT : 0, state.ctrl ? VK_CONTROL : 0, state.alt ? VK_MENU : 0});
    const bool system = state.alt && !state.ctrl;
    const LPARAM down =
        1 | (static_cast<LPARAM>(MapVirtualKeyW(static_cast<UINT>(code), 0)) << 16) | (system ? 1 << 29 : 0);
    PostMessageW(GetFocus(), system ? WM_SYSKEYDOWN : WM_KEYDOWN, static_cast<WPARAM>(code), down);
    Run();
    PostMessageW(GetFocus(), system ? WM_SYSKEYUP : WM_KEYUP, static_cast<WPARAM>(code),
                 down | static_cast<LPARAM>(0xC0000000));
    Run();
  }

  HWND main, fields[2];
  HACCEL table;
  int commands = 0, keys_seen = 0;
};

class InForeignLoop : public WindowTest {
 protected:
  InForeignLoop() {
    txt.Move(120, 120, 1800, 315), memo.Move(120, 600, 1800, 900), cmdOK.Move(2400, 120, 1200, 375);
    cmdCancel.Move(2400, 600, 1200, 375), pic.Move(2400, 1200, 1800, 1500);
    memo.SetMultiLine(true);
    cmdOK.SetCaption("&OK"), cmdOK.SetDefault(true), cmdCancel.SetCancel(true);
    mnuSave.SetShortcut("^S"), mnuRun.SetShortcut("{F5}");
    const auto note = [this](const char* name) { return [this, name] { told.push_back(name); }; };
    cmdOK.Click = note("OK"), cmdCancel.Click = note("Cancel"), mnuSave.Click = note("Save"),
    mnuRun.Click = note("Run");
    mnuOpen.Click = note("Open");
    toolkit.SetHostWindow(host.main);
    Show();
    told.clear();
  }
  void Focus(forms::Control& control) {
    control.SetFocus();
    host.Run();
    told.clear();
  }

  Host host;
  forms::TextBox txt{form, "txt"}, memo{form, "memo"};
  forms::CommandButton cmdOK{form, "cmdOK"}, cmdCancel{form, "cmdCancel"};
  forms::PictureBox pic{form, "pic"};
  forms::Menu mnuFile{form, "mnuFile", "&File"}, mnuOpen{mnuFile, "mnuOpen", "&Open"},
      mnuSave{mnuFile, "mnuSave", "&Save"}, mnuRun{mnuFile, "mnuRun", "&Run"};
};

TEST_F(InForeignLoop, TabWalksThroughOurControls) {
  Focus(txt);
  host.Key(VK_TAB);
  EXPECT_EQ(form.ActiveControl(), &memo);
  EXPECT_EQ(GetFocus(), WindowOf(memo));
  host.Key(VK_TAB, {.shift = true});
  EXPECT_EQ(form.ActiveControl(), &txt);
  EXPECT_EQ(host.commands, 0);
  EXPECT_EQ(host.keys_seen, 0);
}

TEST_F(InForeignLoop, EnterAndEscapePressOurButtons) {
  Focus(txt);
  host.Key(VK_RETURN);
  host.Key(VK_ESCAPE);
  EXPECT_EQ(told, (Log{"OK", "Cancel"}));
  EXPECT_EQ(host.commands, 0);
}

TEST_F(InForeignLoop, ShortcutsAreOurMenusOwn) {
  Focus(txt);
  host.Key('S', {.ctrl = true});
  host.Key(VK_F5);
  EXPECT_EQ(told, (Log{"Save", "Run"}));
  EXPECT_EQ(host.commands, 0);
  EXPECT_EQ(txt.Text(), "");
}

TEST_F(InForeignLoop, AccessKeysPressOurButtons) {
  Focus(txt);
  host.Key('O', {.alt = true});
  EXPECT_EQ(told, (Log{"OK"}));
  EXPECT_EQ(form.ActiveControl(), &cmdOK);
}

TEST_F(InForeignLoop, AnAccessKeyOpensAMenuOfTheBar) {
  Focus(txt);
  bool chosen = false;
  const UINT_PTR clock = toolkit.StartClock(5, [&] { chosen = chosen || ChooseInOpenPopup(L"Open"); });
  host.Key('F', {.alt = true});
  toolkit.StopClock(clock);
  EXPECT_TRUE(chosen);
  EXPECT_EQ(told, (Log{"Open"}));
}

// The system never sees the letter: to it Alt alone goes down and up.
TEST_F(InForeignLoop, LettingAltGoFirstOpensNoMenu) {
  Focus(txt);
  bool opened = false;
  const UINT_PTR clock = toolkit.StartClock(10, [&] {
    if (!(ThreadState().flags & GUI_INMENUMODE)) return;
    opened = true;
    EndMenu();
  });
  const auto post = [&](UINT id, int key, LPARAM state) {
    PostMessageW(GetFocus(), id, static_cast<WPARAM>(key), 1 | state);
    host.Run();
  };
  constexpr LPARAM kAlt = 1 << 29, kUp = static_cast<LPARAM>(0xC0000000);
  {
    const Held alt({VK_MENU});
    post(WM_SYSKEYDOWN, VK_MENU, kAlt);
    post(WM_SYSKEYDOWN, 'O', kAlt);
  }
  post(WM_SYSKEYUP, VK_MENU, kUp);
  post(WM_KEYUP, 'O', kUp);
  PumpFor(60);
  EXPECT_FALSE(opened);
  EXPECT_EQ(told, (Log{"OK"}));
  Focus(txt);
  host.Key('Q');
  {
    const Held alt({VK_MENU});
    post(WM_SYSKEYDOWN, VK_MENU, kAlt);
  }
  post(WM_SYSKEYUP, VK_MENU, kUp);
  PumpFor(60);
  toolkit.StopClock(clock);
  EXPECT_TRUE(opened) << "Alt alone goes to the menu bar";
}

TEST_F(InForeignLoop, LettersAreTypedAndEnterBreaksLines) {
  cmdOK.SetDefault(false);
  Focus(memo);
  host.Key('A');
  host.Key(VK_RETURN);
  host.Key('B', {.shift = true});
  EXPECT_EQ(memo.Text(), "a\r\nB");
  EXPECT_EQ(host.commands, 0);
}

TEST_F(InForeignLoop, ArrowsReachAPictureBox) {
  Focus(pic);
  std::vector<int> keys;
  pic.KeyDown = [&](int& key, int) { keys.push_back(key); };
  host.Key(VK_LEFT);
  host.Key(VK_DOWN);
  host.Key(VK_PRIOR);
  EXPECT_EQ(keys, (std::vector<int>{VK_LEFT, VK_DOWN, VK_PRIOR}));
  EXPECT_EQ(form.ActiveControl(), &pic);
}

TEST_F(InForeignLoop, NoKeyIsTakenWhileOurWindowsHaveNoFocus) {
  SetActiveWindow(host.main);
  SetFocus(host.fields[0]);
  host.Run();
  for (int key : {VK_TAB, VK_RETURN, VK_F5, static_cast<int>('A')}) host.Key(key);
  host.Key('S', {.ctrl = true});
  EXPECT_EQ(host.commands, 5);
  EXPECT_GE(host.keys_seen, 5);
  host.Key('B');
  EXPECT_EQ(TextOf(host.fields[0]), L"b");
  EXPECT_EQ(told, Log{});
}

TEST_F(InForeignLoop, NoKeyIsTakenOnceTheToolkitIsGone) {
  const HWND field = host.fields[0];
  {
    Win32Toolkit other;
    forms::Form second(other, "frmOther");
    second.Show();
    second.Unload();
  }
  form.Unload();
  SetActiveWindow(host.main);
  SetFocus(field);
  host.Key(VK_F5);
  EXPECT_EQ(host.commands, 1);
}

TEST_F(InForeignLoop, AKeyThatUnloadsItsWindowGoesNowhereElse) {
  Focus(txt);
  txt.KeyDown = [this](int&, int) { form.Unload(); };
  host.Key('A');
  EXPECT_FALSE(form.IsLoaded());
  EXPECT_EQ(faults, Log{});
  EXPECT_EQ(host.commands, 0);
}

TEST_F(InForeignLoop, AKeyDownSetToZeroTypesNothing) {
  Focus(txt);
  txt.KeyDown = [](int& key, int) { key = 0; };
  host.Key('B');
  EXPECT_EQ(txt.Text(), "");
}

TEST_F(InForeignLoop, AFaultInAKeyIsToldAndTheLoopGoesOn) {
  Focus(txt);
  txt.KeyDown = [](int&, int) { throw runtime::Error(5); };
  host.Key('B');
  EXPECT_EQ(faults.size(), 1u);
  txt.KeyDown = [](int&, int) {};
  host.Key('B');
  EXPECT_EQ(txt.Text(), "b");
}

// Real input of the system, as the keyboard makes it.
TEST_F(InForeignLoop, KeysOfTheKeyboardArrive) {
  Focus(txt);
  INPUT keys[4]{};
  for (int i = 0; i < 4; ++i) keys[i].type = INPUT_KEYBOARD;
  keys[0].ki.wVk = keys[1].ki.wVk = 'X';
  keys[2].ki.wVk = keys[3].ki.wVk = VK_TAB;
  keys[1].ki.dwFlags = keys[3].ki.dwFlags = KEYEVENTF_KEYUP;
  ASSERT_EQ(SendInput(4, keys, sizeof(INPUT)), 4u);
  for (int i = 0; i < 50 && form.ActiveControl() == &txt; ++i) {
    host.Run();
    Sleep(2);
  }
  host.Run();
  EXPECT_EQ(txt.Text(), "x");
  EXPECT_EQ(form.ActiveControl(), &memo);
  EXPECT_EQ(host.commands, 0);
}

}  // namespace
}  // namespace corvane::toolkit_win32
