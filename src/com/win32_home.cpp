// The home of the add-in inside Visual Basic 6.
#include "com/session.h"
#include "runtime/code_page.h"
#include "toolkit_win32/services.h"
#include "toolkit_win32/texts.h"
#include "toolkit_win32/toolkit.h"

namespace corvane::com {

namespace {

class Win32Home : public Home {
 public:
  Win32Home() {
    toolkit_.OnFault = [](const std::string& what) { OutputDebugStringA(("corvane: " + what + "\n").c_str()); };
  }
  host::Services& Services() override { return list_; }
  forms::Toolkit& Toolkit() override { return toolkit_; }
  void SetHostWindow(HWND window) override { toolkit_.SetHostWindow(window); }
  bool IsBusy() override { return toolkit_.IsInAct() || toolkit_.Yard()->IsVisited(); }

 private:
  toolkit_win32::Win32Toolkit toolkit_;
  toolkit_win32::Win32Services services_{toolkit_};
  host::Services list_ = services_;
};

}  // namespace

std::unique_ptr<Home> NewWin32Home() {
  runtime::SetAnsiCodePage(toolkit_win32::SystemCodePage());
  return std::make_unique<Win32Home>();
}

}  // namespace corvane::com
