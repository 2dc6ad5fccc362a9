// What the controls and the services take from the system they give back.
#include "forms/icons.h"
#include "tests/toolkit_win32/window_fixture.h"
#include "toolkit_win32/services.h"

namespace corvane::toolkit_win32 {
namespace {

struct RareWindow : forms::Form {
  explicit RareWindow(forms::Toolkit& toolkit) : Form(toolkit, "frmRare") {
    Move(300, 300, 6000, 4500);
    images.Add(forms::Icon("search"));
    bar.SetImageList(&images);
    forms::ToolButton plain{"a", "", ""}, text{"b", "Text", "Tip"};
    plain.Image = 1;
    bar.Add(plain), bar.Add(text);
    bar.Move(0, 0, 6000, 420), pictured.Move(120, 600, 900, 900), frame.Move(1200, 600, 1500, 900);
    shape.Move(3000, 600, 600, 600), line.SetPoints(3000, 1500, 4200, 1800), image.Move(3900, 600, 480, 480);
    boxes.Move(120, 1800, 1500, 900), simple.Move(1800, 1800, 1500, 900), list.Move(3600, 1800, 1500, 315);
    pictured.SetStyle(1), pictured.SetPicture(forms::Icon("cut")), image.SetPicture(forms::Icon("folder"));
    boxes.SetStyle(1), simple.SetStyle(1), list.SetStyle(2);
    for (forms::ListControl* each :
         {static_cast<forms::ListControl*>(&boxes), static_cast<forms::ListControl*>(&simple),
          static_cast<forms::ListControl*>(&list)})
      each->AddItem("row");
  }
  forms::ImageList images{*this, "images"};
  forms::Toolbar bar{*this, "bar"};
  forms::CommandButton pictured{*this, "pictured"};
  forms::Frame frame{*this, "frame"};
  forms::OptionButton option{frame, "option"};
  forms::Shape shape{*this, "shape"};
  forms::Line line{*this, "line"};
  forms::Image image{*this, "image"};
  forms::ListBox boxes{*this, "boxes"};
  forms::ComboBox simple{*this, "simple"}, list{*this, "list"};
  forms::HScrollBar scroll{*this, "scroll"};
};

// Drawing objects of this process. Wine does not count them, but it knows each by the lower half of its handle.
DWORD DrawingObjects() {
  if (const DWORD counted = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS)) return counted;
  DWORD count = 0;
  for (UINT_PTR low = 1; low <= 0xFFFF; ++low)
    if (GetObjectType(reinterpret_cast<HGDIOBJ>(low)) != 0) ++count;
  return count;
}

struct Counts {
  DWORD gdi = DrawingObjects();
  DWORD user = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
  DWORD kernel = 0;
  Counts() { GetProcessHandleCount(GetCurrentProcess(), &kernel); }
};

void ShowAndUnload(Win32Toolkit& toolkit) {
  RareWindow window(toolkit);
  window.Show();
  window.boxes.SetTopIndex(0);
  window.list.SetListIndex(0);
  SendMessageW(toolkit.WindowOf(window.list), CB_SHOWDROPDOWN, TRUE, 0);
  RedrawWindow(toolkit.WindowOf(window), nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
  Pump();
  window.Unload();
  Pump();
}

void ExpectNoMore(const Counts& before) {
  const Counts now;
  EXPECT_LE(now.user, before.user);
  EXPECT_LE(now.gdi, before.gdi);
  EXPECT_LE(now.kernel, before.kernel + 2);
}

TEST(ControlLife, WindowsLeaveNoHandle) {
  Win32Toolkit toolkit;
  for (int warm = 0; warm < 3; ++warm) ShowAndUnload(toolkit);
  const Counts before;
  ASSERT_GT(before.gdi, 0u);
  for (int cycle = 0; cycle < 12; ++cycle) ShowAndUnload(toolkit);
  ExpectNoMore(before);
}

TEST(ControlLife, ServicesComeAndGoWithoutATrace) {
  Win32Toolkit toolkit;
  const auto use = [&] {
    Win32Services all(toolkit);
    const host::Services services = all;
    services.Clipboard.SetText("text");
    services.Clipboard.SetData(forms::Icon("search"));
    services.Settings.GetSetting("Corvane", "None", "none");
    services.Files.List(services.App.Path, "*");
    services.Loop.SendKeys("{x 0}");
  };
  for (int warm = 0; warm < 3; ++warm) use();
  const Counts before;
  for (int cycle = 0; cycle < 100; ++cycle) use();
  ExpectNoMore(before);
}

// A picture that follows the size of its control.
TEST(ControlLife, APictureOfManySizesKeepsTheLastFew) {
  PictureStore store;
  const HDC dc = CreateCompatibleDC(nullptr);
  const forms::PictureRef picture = forms::Icon("search");
  for (int size = 1; size < 20; ++size) store.Draw(dc, {0, 0, size, size}, picture, size % 2 != 0);
  const DWORD before = DrawingObjects();
  for (int size = 20; size < 120; ++size) store.Draw(dc, {0, 0, size, size}, picture, size % 2 != 0);
  EXPECT_LE(DrawingObjects(), before);
  DeleteDC(dc);
}

}  // namespace
}  // namespace corvane::toolkit_win32
