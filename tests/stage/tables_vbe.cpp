// The root, its windows, and the entry of an add-in.
#include "tests/stage/members.h"
#include "tests/stage/stage.h"

namespace corvane::stage {

using host::VBE;
using host::Window;
using host::Windows;

template <>
const ObjectTable& TableOf<VBE>() {
  static const ObjectTable table = {
      "VBE",
      {
          Get("Name", 0x0, [](Call& call) { call.Return(std::string("Microsoft Visual Basic")); }),
          Get("Version", 0x64, [](Call& call) { call.Return(std::string("6.00")); }),
          Get("VBProjects", 0x6b, kForward<VBE, &VBE::VBProjects>),
          Get("CommandBars", 0x6c, kForward<VBE, &VBE::CommandBars>),
          Get("CodePanes", 0x6d, kForward<VBE, &VBE::CodePanes>),
          Get("Windows", 0x6e, kForward<VBE, &VBE::Windows>),
          Get("Events", 0x6f, kForward<VBE, &VBE::Events>),
          Get("ActiveVBProject", 0xc9, kForward<VBE, &VBE::ActiveVBProject>),
          Get("SelectedVBComponent", 0xca, kForward<VBE, &VBE::SelectedVBComponent>),
          Get("MainWindow", 0xcc, kForward<VBE, &VBE::MainWindow>),
          Get("ActiveCodePane", 0xce, kForward<VBE, &VBE::ActiveCodePane>),
          Get("DisplayModel", 0xd0, [](Call& call) { call.Return(1L); }),
      }};
  return table;
}

namespace {

// Only the main window is a window of this process; null for another.
HWND HandleOf(Call& call) {
  return call.Shared<Window>() == call.stage.environment->MainWindow() ? call.stage.main_window : nullptr;
}

void WindowHandle(Call& call) {
  call.Return(static_cast<long>(reinterpret_cast<LONG_PTR>(HandleOf(call))));
}

void FocusWindow(Call& call) {
  call.Target<Window>().SetFocus();
  if (const HWND window = HandleOf(call)) ::SetFocus(window);
}

}  // namespace

template <>
const ObjectTable& TableOf<Window>() {
  static const ObjectTable table = {"Window",
                                    {
                                        Method("Close", 0x63, kForward<Window, &Window::Close>),
                                        Get("Caption", 0x64, kForward<Window, &Window::Caption>),
                                        GetSet("Visible", 0x6a, nullptr, kForward<Window, &Window::SetVisible>),
                                        Method("SetFocus", 0x6f, &FocusWindow),
                                        Get("HWnd", 0x78, &WindowHandle),
                                    }};
  return table;
}

template <>
const ObjectTable& TableOf<Windows>() {
  static const ObjectTable table = {"Windows", CollectionMembers<Windows>(0xc9)};
  return table;
}

template <>
const ObjectTable& TableOf<AddInEntry>() {
  static const ObjectTable table = {
      "AddIn",
      {
          Get("Description", 0x0, [](Call& call) { call.Return(call.Target<AddInEntry>().description); }),
          Get("VBE", 0x1, [](Call& call) { call.Return(host::Ref<VBE>(call.stage.environment)); }),
          Get("ProgId", 0x3, [](Call& call) { call.Return(call.Target<AddInEntry>().prog_id); }),
          Get("Guid", 0x4, [](Call& call) { call.Return(call.Target<AddInEntry>().guid); }),
          GetSet(
              "Connect", 0x6, [](Call& call) { call.Return(call.Target<AddInEntry>().connected); },
              [](Call& call) { call.Target<AddInEntry>().connected = call.Flag(0); }),
      }};
  return table;
}

}  // namespace corvane::stage
