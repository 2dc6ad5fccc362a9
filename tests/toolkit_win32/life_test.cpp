// Nothing is left behind: windows, handles, classes, hooks; and what goes in the middle of its own message.
#include "tests/stage/resources.h"
#include "tests/toolkit_win32/window_fixture.h"

namespace corvane::toolkit_win32 {
namespace {

using Log = std::vector<std::string>;
using stage::Resources;

BOOL CALLBACK Note(HWND window, LPARAM list) {
  reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
  return TRUE;
}

std::vector<HWND> WindowsOfThread() {
  std::vector<HWND> found;
  EnumThreadWindows(GetCurrentThreadId(), Note, reinterpret_cast<LPARAM>(&found));
  return found;
}

struct FullWindow : forms::Form {
  explicit FullWindow(forms::Toolkit& toolkit) : Form(toolkit, "frmFull") {
    Move(300, 300, 6000, 4500);
    txt.Move(120, 120, 1800, 315), cmd.Move(120, 600, 1200, 375), lbl.Move(120, 1200, 1200, 300);
    lst.Move(120, 1600, 1200, 900), cmb.Move(2000, 120, 1500, 315), pic.Move(2000, 600, 2000, 1500);
    cmd.SetToolTipText("Press");
    lbl.SetCaption("Label"), chk.SetCaption("Check");
  }
  forms::TextBox txt{*this, "txt"};
  forms::CommandButton cmd{*this, "cmd"};
  forms::CheckBox chk{*this, "chk"};
  forms::Label lbl{*this, "lbl"};
  forms::ListBox lst{*this, "lst"};
  forms::ComboBox cmb{*this, "cmb"};
  forms::PictureBox pic{*this, "pic"};
  forms::VScrollBar bar{*this, "bar"};
  forms::Timer timer{*this, "timer"};
  forms::Menu mnuFile{*this, "mnuFile", "&File"}, mnuOpen{mnuFile, "mnuOpen", "&Open"};
};

void ShowAndUnload(Win32Toolkit& toolkit) {
  FullWindow window(toolkit);
  window.Show();
  window.pic.Print("text");
  window.mnuFile.SetCaption("Other");
  Pump();
  window.Unload();
  Pump();
}

TEST(Life, TwoHundredWindowsLeaveNoHandle) {
  Win32Toolkit toolkit;
  for (int i = 0; i < 3; ++i) ShowAndUnload(toolkit);
  const Resources before = Resources::Now();
  for (int i = 0; i < 200; ++i) ShowAndUnload(toolkit);
  const Resources after = Resources::Now();
  EXPECT_EQ(after.user, before.user);
  EXPECT_EQ(after.gdi, before.gdi);
  EXPECT_EQ(after.kernel, before.kernel);
}

TEST(Life, ToolkitsComeAndGoWithoutATrace) {
  const auto one = [] {
    Win32Toolkit toolkit;
    ShowAndUnload(toolkit);
  };
  for (int i = 0; i < 3; ++i) one();
  const Resources before = Resources::Now();
  const size_t windows = WindowsOfThread().size();
  for (int i = 0; i < 50; ++i) one();
  const Resources after = Resources::Now();
  EXPECT_EQ(after.user, before.user);
  EXPECT_EQ(after.gdi, before.gdi);
  EXPECT_EQ(after.kernel, before.kernel);
  EXPECT_EQ(WindowsOfThread().size(), windows);
}

TEST(Life, TheWindowClassIsTakenBack) {
  std::wstring name;
  HINSTANCE module = nullptr;
  WNDCLASSEXW found{};
  found.cbSize = sizeof found;
  {
    Win32Toolkit toolkit;
    name = toolkit.OwnClass();
    module = toolkit.Instance();
    EXPECT_TRUE(GetClassInfoExW(module, name.c_str(), &found));
    ShowAndUnload(toolkit);
  }
  EXPECT_FALSE(GetClassInfoExW(module, name.c_str(), &found));
}

class InTheMiddle : public WindowTest {};

TEST_F(InTheMiddle, AButtonThatUnloadsItsFormIsDestroyedBehindItsMessage) {
  forms::CommandButton cmd(form, "cmd");
  HWND button = nullptr, window = nullptr;
  bool there = false;
  Show();
  button = WindowOf(cmd), window = WindowOf(form);
  cmd.Click = [&] {
    form.Unload();
    there = IsWindow(button) && !IsWindowVisible(window);
  };
  Click(cmd);
  EXPECT_TRUE(there) << "destroyed while its own message ran";
  EXPECT_FALSE(IsWindow(button));
  EXPECT_FALSE(IsWindow(window));
  EXPECT_EQ(faults, Log{});
}

TEST_F(InTheMiddle, AControlRemovedByItsOwnClickGoes) {
  Show();
  auto& made = form.AddControl("VB.CommandButton", "cmdMade", form);
  made.SetVisible(true);
  const HWND button = WindowOf(made);
  made.Click = [&] { form.RemoveControl(made); };
  PostClick(button, {5, 5});
  EXPECT_FALSE(IsWindow(button));
  EXPECT_EQ(faults, Log{});
}

TEST_F(InTheMiddle, AWindowOpenedAndUnloadedInAClickIsDestroyedInIt) {
  forms::CommandButton cmd(form, "cmd");
  Show();
  int left = 0;
  cmd.Click = [&] {
    for (int i = 0; i < 5; ++i) {
      FullWindow other(toolkit);
      other.Show();
      const HWND window = WindowOf(other);
      other.Unload();
      left += IsWindow(window) ? 1 : 0;
    }
  };
  Click(cmd);
  EXPECT_EQ(left, 0);
}

TEST_F(InTheMiddle, AWindowWithAnotherThatItOwnsStaysWhileAMessageOfThatRuns) {
  Show();
  FullWindow other(toolkit);
  other.Show();
  SetWindowLongPtrW(WindowOf(other), GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(WindowOf(form)));
  const HWND below = WindowOf(form), window = WindowOf(other), button = WindowOf(other.cmd);
  bool there = false;
  other.cmd.Click = [&] {
    other.Unload();
    form.Unload();
    there = IsWindow(below) && IsWindow(window) && IsWindow(button);
  };
  Click(other.cmd);
  EXPECT_TRUE(there);
  EXPECT_FALSE(IsWindow(below));
  EXPECT_FALSE(IsWindow(window));
  EXPECT_EQ(faults, Log{});
}

TEST_F(InTheMiddle, APostedActDoesNotWaitForTheEndOfAnother) {
  const auto life = std::make_shared<int>();
  toolkit.Post(life, [this] {
    told.push_back("first");
    PumpFor(20);
    told.push_back("first done");
  });
  toolkit.Post(life, [this] { told.push_back("second"); });
  toolkit.Post(life, [this] { told.push_back("third"); });
  PumpFor(20);
  EXPECT_EQ(told, (Log{"first", "second", "third", "first done"}));
}

TEST_F(InTheMiddle, APostedActThatFailsLeavesTheOthers) {
  const auto life = std::make_shared<int>();
  toolkit.Post(life, [] { throw std::runtime_error("broken"); });
  toolkit.Post(life, [this] { told.push_back("second"); });
  Pump();
  EXPECT_EQ(told, Log{"second"});
  EXPECT_EQ(faults, Log{"broken"});
}

TEST_F(InTheMiddle, AFormUnloadedByMouseDownHearsNothingMore) {
  forms::PictureBox pic(form, "pic");
  Show();
  pic.MouseDown = [this](int, int, forms::Twips, forms::Twips) { form.Unload(); };
  pic.MouseUp = [this](int, int, forms::Twips, forms::Twips) { told.push_back("MouseUp"); };
  pic.Click = [this] { told.push_back("Click"); };
  Click(pic);
  EXPECT_EQ(told, Log{});
  EXPECT_FALSE(form.IsLoaded());
}

TEST_F(InTheMiddle, AFormUnloadedByGotFocusGoes) {
  forms::PictureBox first(form, "first"), second(form, "second");
  second.Move(1500, 0, 1200, 1200);
  Show();
  second.GotFocus = [this] { form.Unload(); };
  Click(second);
  EXPECT_FALSE(form.IsLoaded());
  EXPECT_EQ(faults, Log{});
}

TEST_F(InTheMiddle, ATimerThatUnloadsItsFormStops) {
  forms::Timer timer(form, "timer");
  int ticks = 0;
  timer.Tick = [&] {
    ++ticks;
    form.Unload();
  };
  timer.SetInterval(5);
  Show();
  PumpFor(80);
  EXPECT_EQ(ticks, 1);
}

TEST_F(InTheMiddle, ATimerThatYieldsIsNotEnteredAgain) {
  forms::Timer timer(form, "timer");
  int ticks = 0, inside = 0, deepest = 0;
  timer.Tick = [&] {
    ++ticks;
    deepest = std::max(deepest, ++inside);
    if (inside < 3) PumpFor(40);
    --inside;
  };
  timer.SetInterval(10);
  Show();
  PumpFor(150);
  timer.SetEnabled(false);
  EXPECT_GE(ticks, 2);
  EXPECT_EQ(deepest, 1);
}

TEST_F(InTheMiddle, AFaultInAnyActStaysInside) {
  forms::PictureBox pic(form, "pic");
  Show();
  const auto fail = [] { throw std::runtime_error("broken"); };
  pic.MouseDown = [&](int, int, forms::Twips, forms::Twips) { fail(); };
  form.Resize = fail;
  form.QueryUnload = [&](bool&, forms::UnloadMode) { fail(); };
  Click(pic);
  SetWindowPos(WindowOf(form), nullptr, 0, 0, 500, 400, SWP_NOMOVE | SWP_NOZORDER);
  PostMessageW(WindowOf(form), WM_CLOSE, 0, 0);
  Pump();
  EXPECT_EQ(faults, (Log{"broken", "broken", "broken"}));
  form.Resize = nullptr;
  form.QueryUnload = nullptr;
}

}  // namespace
}  // namespace corvane::toolkit_win32
