// Modal windows: who takes input meanwhile, where the focus goes behind them, and what happens when something goes away
// inside their loop.
#include <memory>

#include "tests/toolkit_win32/window_fixture.h"
#include "toolkit_win32/services.h"

namespace corvane::toolkit_win32 {
namespace {

using Log = std::vector<std::string>;

class Modal : public ::testing::Test {
 protected:
  Modal() {
    host = CreateWindowExW(0, L"STATIC", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 400, 300, nullptr, nullptr,
                           nullptr, nullptr);
    field = CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 10, 10, 100, 20, host, nullptr, nullptr, nullptr);
    toolkit = std::make_unique<Win32Toolkit>();
    toolkit->SetHostWindow(host);
    toolkit->OnFault = [this](const std::string& what) { faults.push_back(what); };
    SetForegroundWindow(host);
    SetFocus(field);
    Pump();
  }
  ~Modal() override {
    toolkit.reset();
    DestroyWindow(host);
    Pump();
  }
  // Inside the next loop that runs.
  void Soon(std::function<void()> act) {
    auto number = std::make_shared<UINT_PTR>();
    *number = toolkit->StartClock(1, [this, number, act = std::move(act)] {
      const auto run = act;
      toolkit->StopClock(*number);
      run();
    });
  }

  // A window of the environment's that is the active one.
  static HWND NewOwner() {
    const HWND owner = CreateWindowExW(0, L"STATIC", L"Owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 300, 200,
                                       nullptr, nullptr, nullptr, nullptr);
    SetActiveWindow(owner);
    return owner;
  }
  // Shows it modal, and tells whether the user saw it.
  bool ComesUp(forms::Form& dialog) {
    bool visible = false;
    Soon([&] {
      visible = IsWindowVisible(toolkit->WindowOf(dialog)) != FALSE;
      dialog.Hide();
    });
    dialog.ShowModal();
    return visible;
  }

  HWND host, field;
  std::unique_ptr<Win32Toolkit> toolkit;
  Log faults;
};

struct Dialog : forms::Form {
  explicit Dialog(forms::Toolkit& toolkit, const char* name = "frmDialog") : Form(toolkit, name) {
    Move(600, 600, 3000, 2400);
    SetBorderStyle(forms::FormBorder::FixedDialog);
    cmd.Move(120, 120, 1200, 375), txt.Move(120, 600, 1200, 315);
  }
  forms::CommandButton cmd{*this, "cmd"};
  forms::TextBox txt{*this, "txt"};
};

TEST_F(Modal, TheHostTakesNoInputMeanwhileAndHasItsFocusBackBehind) {
  Dialog dialog(*toolkit);
  bool enabled = true, active = false;
  Soon([&] {
    enabled = IsWindowEnabled(host);
    active = GetActiveWindow() == toolkit->WindowOf(dialog);
    dialog.Hide();
  });
  dialog.ShowModal();
  Pump();
  EXPECT_FALSE(enabled);
  EXPECT_TRUE(active);
  EXPECT_TRUE(IsWindowEnabled(host));
  EXPECT_EQ(GetActiveWindow(), host);
  EXPECT_EQ(GetFocus(), field);
}

TEST_F(Modal, OurOtherWindowsTakeNoInputMeanwhileAndOneOfThemIsActiveBehind) {
  Dialog first(*toolkit, "frmFirst"), dialog(*toolkit);
  first.Show();
  first.txt.SetFocus();
  Pump();
  bool enabled = true;
  Soon([&] {
    enabled = IsWindowEnabled(toolkit->WindowOf(first));
    dialog.Unload();
  });
  dialog.ShowModal();
  Pump();
  EXPECT_FALSE(enabled);
  EXPECT_TRUE(IsWindowEnabled(toolkit->WindowOf(first)));
  EXPECT_TRUE(first.IsActiveForm());
  EXPECT_EQ(GetFocus(), toolkit->WindowOf(first.txt));
}

TEST_F(Modal, AWindowDisabledBeforeStaysDisabled) {
  EnableWindow(host, FALSE);
  Dialog dialog(*toolkit);
  Soon([&] { dialog.Hide(); });
  dialog.ShowModal();
  EXPECT_FALSE(IsWindowEnabled(host));
  EnableWindow(host, TRUE);
}

TEST_F(Modal, InnerWindowsGiveBackToOuterOnes) {
  Dialog outer(*toolkit, "frmOuter"), inner(*toolkit, "frmInner");
  bool outer_in_inner = true, outer_behind = false, host_behind = true;
  Soon([&] {
    Soon([&] {
      outer_in_inner = IsWindowEnabled(toolkit->WindowOf(outer));
      inner.Hide();
    });
    inner.ShowModal();
    outer_behind = IsWindowEnabled(toolkit->WindowOf(outer));
    host_behind = IsWindowEnabled(host);
    outer.Hide();
  });
  outer.ShowModal();
  EXPECT_FALSE(outer_in_inner);
  EXPECT_TRUE(outer_behind);
  EXPECT_FALSE(host_behind);
  EXPECT_TRUE(IsWindowEnabled(host));
}

TEST_F(Modal, AnOuterWindowThatEndsFirstLeavesTheOthersToTheInnerOne) {
  Dialog outer(*toolkit, "frmOuter"), inner(*toolkit, "frmInner");
  bool host_in_inner = true;
  Soon([&] {
    Soon([&] {
      outer.Hide();
      host_in_inner = IsWindowEnabled(host) != FALSE;
      inner.Hide();
    });
    inner.ShowModal();
  });
  outer.ShowModal();
  EXPECT_FALSE(host_in_inner);
  EXPECT_TRUE(IsWindowEnabled(host));
  EXPECT_TRUE(IsWindowEnabled(toolkit->WindowOf(outer)));
}

TEST_F(Modal, TheCloseBoxEndsIt) {
  Dialog dialog(*toolkit);
  Soon([&] { PostMessageW(toolkit->WindowOf(dialog), WM_SYSCOMMAND, SC_CLOSE, 0); });
  dialog.ShowModal();
  EXPECT_FALSE(dialog.IsLoaded());
  EXPECT_TRUE(IsWindowEnabled(host));
}

TEST_F(Modal, KeysGoToTheModalWindow) {
  Dialog dialog(*toolkit);
  dialog.cmd.SetCancel(true);
  dialog.cmd.Click = [&] { dialog.Hide(); };
  Soon([&] {
    dialog.txt.SetFocus();
    PostText(L"ab");
    PostKey(VK_ESCAPE);
  });
  dialog.ShowModal();
  EXPECT_EQ(dialog.txt.Text(), "ab");
}

TEST_F(Modal, ADialogDestroyedInItsOwnClickEndsTheLoop) {
  auto dialog = std::make_unique<Dialog>(*toolkit);
  dialog->cmd.Click = [&] { dialog->Unload(); };
  Soon([&] { PostClick(toolkit->WindowOf(dialog->cmd), {5, 5}); });
  dialog->ShowModal();
  EXPECT_FALSE(dialog->IsLoaded());
  EXPECT_TRUE(IsWindowEnabled(host));
  EXPECT_EQ(faults, Log{});
}

// As when the add-in is disconnected while one of its windows waits for the user.
TEST_F(Modal, EverythingMayGoWhileTheLoopRuns) {
  auto first = std::make_unique<Dialog>(*toolkit, "frmFirst"), dialog = std::make_unique<Dialog>(*toolkit);
  first->Show();
  Soon([&] {
    dialog->Unload();
    first.reset();
  });
  dialog->ShowModal();
  dialog.reset();
  toolkit.reset();
  EXPECT_TRUE(IsWindowEnabled(host));
  EXPECT_TRUE(IsWindow(host));
  EXPECT_EQ(faults, Log{});
}

// The environment's own window hears the user's wish to disconnect, in the loop of our dialog.
TEST_F(Modal, AToolkitThatGoesInTheLoopTakesItsWindowsAlong) {
  auto dialog = std::make_unique<Dialog>(*toolkit);
  struct Wish {
    std::function<void()> act;
    static void CALLBACK Hear(HWND window, UINT, UINT_PTR number, DWORD) {
      KillTimer(window, number);
      auto* wish = reinterpret_cast<Wish*>(GetWindowLongPtrW(window, GWLP_USERDATA));
      wish->act();
    }
  };
  HWND window = nullptr;
  Wish wish{[&] {
    window = toolkit->WindowOf(*dialog);
    dialog.reset();
    toolkit.reset();
  }};
  SetWindowLongPtrW(host, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&wish));
  SetTimer(host, 1, 10, Wish::Hear);
  dialog->ShowModal();
  EXPECT_NE(window, nullptr);
  EXPECT_FALSE(IsWindow(window));
  EXPECT_TRUE(IsWindowEnabled(host));
  EXPECT_EQ(faults, Log{});
}

TEST_F(Modal, ADialogThatWasHiddenDoesNotGoWithTheWindowItWasShownOver) {
  Dialog first(*toolkit, "frmFirst"), dialog(*toolkit);
  first.Show();
  Soon([&] { dialog.Hide(); });
  dialog.ShowModal();
  first.Unload();
  Pump();
  EXPECT_NE(toolkit->WindowOf(dialog), nullptr);
  EXPECT_TRUE(ComesUp(dialog));
  EXPECT_FALSE(dialog.Visible());
}

TEST_F(Modal, ADialogStaysWhenTheFormBelowItIsUnloaded) {
  Dialog first(*toolkit, "frmFirst"), dialog(*toolkit);
  first.Show();
  bool visible = false, enabled = true;
  Soon([&] {
    first.Unload();
    Soon([&] {
      visible = IsWindowVisible(toolkit->WindowOf(dialog)) != FALSE;
      enabled = IsWindowEnabled(host) != FALSE;
      dialog.Hide();
    });
  });
  dialog.ShowModal();
  EXPECT_TRUE(visible);
  EXPECT_FALSE(enabled);
  EXPECT_TRUE(IsWindowEnabled(host));
}

TEST_F(Modal, AWindowDestroyedByItsOwnerEndsTheLoopAndIsUnloaded) {
  HWND owner = NewOwner();
  Dialog dialog(*toolkit), other(*toolkit, "frmOther");
  Log modes;
  dialog.QueryUnload = [&](bool&, forms::UnloadMode mode) { modes.push_back(std::to_string(static_cast<int>(mode))); };
  Soon([&] { DestroyWindow(owner); });
  dialog.ShowModal();
  EXPECT_FALSE(dialog.IsLoaded());
  EXPECT_EQ(modes, (Log{"5"}));
  EXPECT_EQ(toolkit->WindowOf(dialog), nullptr);
  EXPECT_TRUE(IsWindowEnabled(host));
  other.Show();
  EXPECT_TRUE(ComesUp(dialog));
  EXPECT_EQ(faults, Log{});
}

TEST_F(Modal, AWindowDestroyedByItsOwnerIsHiddenWhereUnloadIsRefused) {
  HWND owner = NewOwner();
  Dialog dialog(*toolkit), other(*toolkit, "frmOther");
  dialog.QueryUnload = [](bool& cancel, forms::UnloadMode) { cancel = true; };
  Soon([&] { DestroyWindow(owner); });
  dialog.ShowModal();
  EXPECT_TRUE(dialog.IsLoaded());
  EXPECT_FALSE(dialog.Visible());
  dialog.SetCaption("gone"), dialog.Move(0, 0, 3000, 3000), dialog.txt.SetText("gone"), dialog.SetWindowState(2);
  dialog.ShowModal();
  EXPECT_FALSE(dialog.Visible());
  other.Show();
  EXPECT_TRUE(other.Visible());
  dialog.QueryUnload = nullptr;
  dialog.Unload();
  EXPECT_EQ(faults, Log{});
}

BOOL CALLBACK KeepBox(HWND window, LPARAM result) {
  wchar_t name[16];
  GetClassNameW(window, name, 16);
  if (std::wstring(name) == L"#32770" && IsWindowVisible(window)) *reinterpret_cast<HWND*>(result) = window;
  return TRUE;
}

// The system's box that this thread shows now; null if there is none.
HWND FindBox() {
  HWND found = nullptr;
  EnumThreadWindows(GetCurrentThreadId(), KeepBox, reinterpret_cast<LPARAM>(&found));
  return found;
}

class ModalBehindABox : public Modal {
 protected:
  // Shows [dialog] modal, [box] in its loop, and does [act] as soon as the box is there, which is then closed.
  void Show(Dialog& dialog, const std::function<void(host::Services&)>& box, const std::function<void()>& act) {
    Win32Services all(*toolkit);
    host::Services services = all;
    Soon([&] {
      WhenThereIsABox([&](HWND shown) {
        act();
        host_in_box = IsWindowEnabled(host) != FALSE;
        active_in_box = GetActiveWindow() == shown;
        PostMessageW(shown, WM_COMMAND, IDOK, 0);
      });
      box(services);
      active_behind_box = GetActiveWindow();
    });
    dialog.ShowModal();
    Pump();
  }
  void WhenThereIsABox(std::function<void(HWND)> act) {
    auto number = std::make_shared<UINT_PTR>();
    *number = toolkit->StartClock(5, [this, number, act = std::move(act)] {
      const HWND shown = FindBox();
      if (!shown) return;
      const auto run = act;
      toolkit->StopClock(*number);
      run(shown);
    });
  }

  bool host_in_box = true, active_in_box = false;
  HWND active_behind_box = nullptr;
};

void ShowMsgBox(host::Services& services) {
  services.Prompts.MsgBox("text", host::vbOKOnly, "title");
}

void ShowInputBox(host::Services& services) {
  services.Prompts.InputBox("text", "title", "");
}

TEST_F(ModalBehindABox, AFormHiddenLeavesTheHostDisabled) {
  for (const auto box : {ShowMsgBox, ShowInputBox}) {
    Dialog dialog(*toolkit);
    host_in_box = true;
    Show(dialog, box, [&] { dialog.Hide(); });
    EXPECT_FALSE(host_in_box);
    EXPECT_TRUE(active_in_box);
    EXPECT_TRUE(IsWindowEnabled(host));
    EXPECT_EQ(GetActiveWindow(), host);
    EXPECT_EQ(GetFocus(), field);
  }
}

TEST_F(ModalBehindABox, AnotherFormOfOursStaysBehindIt) {
  for (const auto box : {ShowMsgBox, ShowInputBox}) {
    Dialog first(*toolkit, "frmFirst"), dialog(*toolkit);
    first.Show();
    bool first_in_box = true;
    Show(dialog, box, [&] {
      dialog.Hide();
      first_in_box = IsWindowEnabled(toolkit->WindowOf(first)) != FALSE;
    });
    EXPECT_FALSE(first_in_box);
    EXPECT_FALSE(host_in_box);
    EXPECT_TRUE(active_in_box);
    EXPECT_TRUE(IsWindowEnabled(toolkit->WindowOf(first)));
    EXPECT_TRUE(IsWindowEnabled(host));
    EXPECT_EQ(GetActiveWindow(), toolkit->WindowOf(first));
  }
}

TEST_F(Modal, TheEndOfTheProgramEndsTheLoopAndIsPassedOn) {
  Dialog dialog(*toolkit);
  Soon([] { PostQuitMessage(7); });
  dialog.ShowModal();
  MSG message;
  bool quit = false;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    quit = quit || message.message == WM_QUIT;
    DispatchMessageW(&message);
  }
  EXPECT_TRUE(quit);
  dialog.Unload();
}

TEST_F(Modal, DoEventsLeavesTheEndOfTheProgramToTheHost) {
  PostQuitMessage(7);
  toolkit->DoEvents();
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) && message.message != WM_QUIT) DispatchMessageW(&message);
  EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
  EXPECT_EQ(message.wParam, 7u);
}

}  // namespace
}  // namespace corvane::toolkit_win32
